#ifndef COMMANDLINE_PRESETTABLE_H
#define COMMANDLINE_PRESETTABLE_H

#include "host/presets/presetsettings.h"

#include <QStringList>
#include <QVariantMap>
#include <QVector>

/*! Rows for Console::printTable(), the heading first; video columns only if a preset has video. */
[[nodiscard]] QVector<QStringList> presetTable(const QVector<QVariantMap> &presets);
/*! Prints the table, or all of the presets as JSON; \a none instead of an empty table. */
void printPresets(const QVector<QVariantMap> &presets, bool asJson, const QString &none);

#endif

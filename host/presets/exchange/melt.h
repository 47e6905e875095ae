#ifndef PRESETS_EXCHANGE_MELT_H
#define PRESETS_EXCHANGE_MELT_H

#include "host/presets/exchange/portablepreset.h"

#include <QByteArray>

/*! A preset of Shotcut: lines of "key=value", as MLT's encoder takes them. Only known keys are
 *  taken, nothing is passed through. \a name is its title unless it has one of its own. */
[[nodiscard]] PortablePresets readShotcut(const QByteArray &content, const QString &name);

/*! The profiles in a file of Kdenlive: XML whose "args" have the same keys. */
[[nodiscard]] PortablePresets readKdenlive(const QByteArray &content);

#endif

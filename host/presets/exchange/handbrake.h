#ifndef PRESETS_EXCHANGE_HANDBRAKE_H
#define PRESETS_EXCHANGE_HANDBRAKE_H

#include "host/presets/exchange/portablepreset.h"

#include <QJsonObject>

/*! Whether a JSON file is one of HandBrake's presets. */
[[nodiscard]] bool isHandBrake(const QJsonObject &root);

/*! The presets of a file of HandBrake, with what becomes of each of their settings. Only values of
 *  known settings are taken, nothing is passed through. */
[[nodiscard]] PortablePresets readHandBrake(const QJsonObject &root);

#endif

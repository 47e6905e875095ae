#ifndef PRESETS_EXCHANGE_HANDBRAKELEFTOVERS_H
#define PRESETS_EXCHANGE_HANDBRAKELEFTOVERS_H

#include "host/presets/exchange/portablepreset.h"

#include <QJsonObject>

/*! Adds what becomes of the settings that aren't values of a preset here: those that the converter
 *  always keeps, always does in its own way, or never does, and those that aren't known. */
void addLeftovers(PortablePreset &preset, const QJsonObject &handBrake);

#endif

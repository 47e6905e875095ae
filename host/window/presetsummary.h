#ifndef WINDOW_PRESETSUMMARY_H
#define WINDOW_PRESETSUMMARY_H

#include "host/presets/find/presetquery.h"

#include <QString>
#include <QVariantMap>

// What the window says of presets, in the user's language.

/*! ".mp4  ·  h264  ·  1920 × 1080  ·  at most 8000 kbps  ·  aac  ·  stereo"; what follows the
 *  source is left out. \a preset is as FormatDetailModelData::toVarMap() makes it. */
[[nodiscard]] QString summaryOf(const QVariantMap &preset);

/*! What a word matched; empty where the row shows it anyway. */
[[nodiscard]] QString reasonText(const PresetMatch::Reason &reason);

/*! "Bitrate: 8000 kbps", with the colon of the language. */
[[nodiscard]] QString labelled(const QString &label, const QString &value);
/*! The name of a setting of valueNames(): "Video: Bitrate". */
[[nodiscard]] QString settingLabel(const QString &name);
/*! Its value with the unit: "8000 kbps"; words for "0" and where it is missing. */
[[nodiscard]] QString settingText(const QString &name, const QString &value);

#endif

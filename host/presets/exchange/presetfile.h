#ifndef PRESETS_EXCHANGE_PRESETFILE_H
#define PRESETS_EXCHANGE_PRESETFILE_H

#include "host/error.h"
#include "host/presets/exchange/portablepreset.h"

#include <QByteArray>
#include <QString>

/*! The presets of a file of this program, HandBrake, Kdenlive or Shotcut. Fails for one that can't
 *  be read, is too large, or is none of these; single presets are refused. */
[[nodiscard]] Result<PortablePresets> readPresetFile(const QString &path);

/*! The same for the content of a file; \a name is what it is called in messages. */
[[nodiscard]] Result<PortablePresets> readPresets(const QByteArray &content, const QString &name);

/*! The content of a file of this program's own. */
[[nodiscard]] QByteArray presetFile(const QVector<PortablePreset> &presets);

#endif

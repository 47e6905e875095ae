#ifndef WINDOW_DEFAULTPRESET_H
#define WINDOW_DEFAULTPRESET_H

#include <QString>

/*! The id of the preset that a page starts with, and that replaces a deleted one. */
inline QString defaultPresetId()
{
    return QStringLiteral("Video_MP4_001");
}

/*! The id of the preset that songs start with. */
inline QString defaultAudioPresetId()
{
    return QStringLiteral("Audio_MP3_002");
}

#endif

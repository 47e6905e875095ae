#ifndef MEDIA_MEDIAPROBE_H
#define MEDIA_MEDIAPROBE_H

#include "host/media/mediafacts.h"
#include "host/tools/tool.h"

/*! Facts about a media file, or one line that says why there are none and how to mend it. */
struct ProbeOutcome
{
    MediaFacts facts;
    QString error;
};

/*! What a look into a file may take: any file that can be read takes far less. */
constexpr ToolLimits probeLimits{32 * 1024 * 1024, 30000};

/*!
 * Asks ffprobe what the file holds, without waiting. \a done is called once from the event loop;
 * destroying the returned tool, a child of \a parent, gives the question up.
 */
Tool *probeMedia(const QString &path, QObject *parent,
                 const std::function<void(const ProbeOutcome &)> &done,
                 const ToolLimits &limits = probeLimits);

#endif

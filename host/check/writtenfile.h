#ifndef CHECK_WRITTENFILE_H
#define CHECK_WRITTENFILE_H

#include "host/convert/outputsettings.h"
#include "host/media/mediafacts.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

/*! A file that a conversion wrote, as ffprobe sees it. */
struct WrittenFile
{
    MediaFacts facts;
    QHash<int, qint64> streamBytes; //!< by the stream's index; the container's own don't count

    /*! Reads the bytes of each stream from ffprobe's list of packets (see packetListArguments()).
     */
    void readPackets(const QByteArray &list);

    /*! What isn't as \a asked of a conversion of \a source, a few words each; empty: all is. */
    [[nodiscard]] QStringList deviations(const OutputSettings &asked,
                                         const MediaFacts &source) const;
};

/*! The arguments with which ffprobe lists the packets of a file for WrittenFile::readPackets(). */
[[nodiscard]] QStringList packetListArguments(const QString &path);

#endif

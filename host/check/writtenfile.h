#ifndef CHECK_WRITTENFILE_H
#define CHECK_WRITTENFILE_H

#include "host/convert/outputsettings.h"
#include "host/media/mediafacts.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

/*! A file written by a conversion, as ffprobe sees it. */
struct WrittenFile
{
    MediaFacts facts;
    QHash<int, qint64> streamBytes; //!< by stream index; without the container's overhead

    /*! Reads the bytes of each stream from ffprobe's list of packets (see packetListArguments()).
     */
    void readPackets(const QByteArray &list);

    /*! The differences from what was \a asked for in a conversion of \a source, a few words each;
     *  empty if there are none. */
    [[nodiscard]] QStringList deviations(const OutputSettings &asked,
                                         const MediaFacts &source) const;
};

/*! The arguments with which ffprobe lists the packets of a file for WrittenFile::readPackets(). */
[[nodiscard]] QStringList packetListArguments(const QString &path);

#endif

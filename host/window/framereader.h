#ifndef WINDOW_FRAMEREADER_H
#define WINDOW_FRAMEREADER_H

#include "host/files/workfolder.h"
#include "host/media/mediafacts.h"
#include "host/tools/tool.h"

#include <QCache>
#include <QObject>

#include <optional>

/*!
 * Reads single pictures of videos, for somebody who looks for a moment. Of the requests only the
 * newest one is worked on: first a picture nearby, which is there at once, then the very one, then
 * those before and after it. Pictures are kept for a while.
 */
class FrameReader : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(FrameReader)

public:
    explicit FrameReader(QObject *parent = nullptr);

    /*! The duration of one of the video's pictures in seconds; a tenth of a second without one. */
    [[nodiscard]] static double frameSeconds(const MediaFacts &facts);

    /*! Asks for the first picture at \a seconds or later. Nothing follows for a file without video,
     *  or if there is none. */
    void request(const QString &path, const MediaFacts &facts, double seconds);

Q_SIGNALS:
    /*! The picture for a request, or one nearby with a better one to follow. \a url is valid until
     *  the next request. */
    void ready(const QString &path, double seconds, const QString &url);

private:
    struct Picture
    {
        QString path;
        int track = 0;
        QString container;
        double frameSeconds = 0;
        double seconds = 0;
        bool isNearby = false; //!< the last key frame before will do

        [[nodiscard]] QString key() const;
    };
    /*! Removed when the cache lets go of it. */
    struct PictureFile
    {
        QString path;
        ~PictureFile();
    };

    /*! True if the picture was there already. */
    bool tell(const Picture &picture);
    void readNext();
    void read(const Picture &picture);
    void take(const Result<ToolRun> &run);

    static constexpr int mostPictures = 60;

    const Result<WorkFolder> m_folder = WorkFolder::make();
    QCache<QString, PictureFile> m_pictures{mostPictures};
    int m_fileNumber = 0;
    std::optional<Picture> m_wanted;
    QVector<Picture> m_neighbours; // of the last one that was told
    std::optional<Picture> m_current;
    bool m_isForNeighbour = false;
    Tool m_ffmpeg; // declared last, so that it stops before the folder is removed
};

#endif

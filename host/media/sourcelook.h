#ifndef MEDIA_SOURCELOOK_H
#define MEDIA_SOURCELOOK_H

#include "host/media/mediafacts.h"
#include "host/tools/tool.h"

#include <QObject>

/*!
 * Looks at the frames of a file for what its streams don't say of its video: whether it is
 * interlaced, the display that an HDR10 picture was graded on, and how bright an HDR picture is.
 * Most files say it all, and aren't looked at.
 */
class SourceLook : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(SourceLook)

public:
    explicit SourceLook(QObject *parent = nullptr);

    /*! finished() follows once, at once where nothing is missing. The brightness is only looked at
     *  if it \a needsLight. */
    void start(const QString &path, const MediaFacts &facts, bool needsLight);
    /*! Gives the look up; finished() follows with Error::Cancelled. */
    void stop();

Q_SIGNALS:
    /*! The facts, with what was found. */
    void finished(const Result<MediaFacts> &facts);

private:
    void lookAtFields();
    void takeFields(const Result<ToolRun> &run);
    void lookAtDisplay();
    void takeDisplay(const Result<ToolRun> &run);
    void lookAtLight();
    void takeLight(const Result<ToolRun> &run);

    QString m_path;
    MediaFacts m_facts;
    VideoTrack *m_track = nullptr; // of m_facts
    bool m_needsLight = false;
    Tool m_fields;
    Tool m_display;
    Tool m_light;
};

/*! The field order that a sample shows, in the lines that idet's frames are printed with. */
[[nodiscard]] VideoTrack::FieldOrder fieldOrderInSample(const QByteArray &lines);

#endif

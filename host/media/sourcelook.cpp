#include "host/media/sourcelook.h"

#include "host/media/lightsample.h"
#include "host/media/mediainput.h"
#include "host/media/probetracks.h"

#include <QJsonDocument>

namespace {

// A look that takes longer is given up: the conversion does without.
constexpr ToolLimits lookLimits{4LL * 1024 * 1024, 30000};

bool canBeInterlaced(const VideoTrack &track)
{
    static const QStringList progressive = {
        QStringLiteral("vp8"),       QStringLiteral("vp9"),       QStringLiteral("av1"),
        QStringLiteral("theora"),    QStringLiteral("gif"),       QStringLiteral("apng"),
        QStringLiteral("png"),       QStringLiteral("webp"),      QStringLiteral("flv1"),
        QStringLiteral("h263"),      QStringLiteral("wmv1"),      QStringLiteral("wmv2"),
        QStringLiteral("msmpeg4v2"), QStringLiteral("msmpeg4v3"), QStringLiteral("mpeg1video")};
    return !progressive.contains(track.codec);
}

/*! Containers mean different orders by one name, so that without marks only the frames tell. */
bool needsLookAtFields(const VideoTrack &track)
{
    const bool isUnknown = track.fieldOrder == VideoTrack::UnknownOrder && canBeInterlaced(track);
    return isUnknown || (track.isInterlaced() && !track.framesTellFields);
}

bool wasCancelled(const Result<ToolRun> &run)
{
    return !run && run.error().kind == Error::Cancelled;
}

/*! How many frames of the sample the last line counts. */
double counted(const QByteArray &lines, const QByteArray &kind)
{
    const QByteArray key = "lavfi.idet.multiple." + kind + '=';
    const int at = lines.lastIndexOf(key);
    const int from = at + key.size();
    return at < 0 ? 0 : lines.mid(from, lines.indexOf('\n', from) - from).toDouble();
}

} // namespace

SourceLook::SourceLook(QObject *parent)
    : QObject(parent)
{
    connect(&m_fields, &Tool::finished, this, &SourceLook::takeFields);
    connect(&m_display, &Tool::finished, this, &SourceLook::takeDisplay);
    connect(&m_light, &Tool::finished, this, &SourceLook::takeLight);
}

void SourceLook::start(const QString &path, const MediaFacts &facts, bool needsLight)
{
    m_path = path;
    m_facts = facts;
    m_needsLight = needsLight;
    const VideoTrack *shown = facts.video();
    m_track = nullptr;
    for (VideoTrack &track : m_facts.videoTracks) {
        if (shown != nullptr && track.index == shown->index) {
            m_track = &track;
        }
    }
    if (m_track != nullptr && needsLookAtFields(*m_track)) {
        lookAtFields();
    } else {
        lookAtDisplay();
    }
}

void SourceLook::stop()
{
    m_fields.stop();
    m_display.stop();
    m_light.stop();
}

void SourceLook::lookAtFields()
{
    // Films begin with titles that don't move.
    const double start = m_facts.duration / 3;
    // At its own threshold idet takes fine progressive detail for fields.
    const QString filter = QStringLiteral("idet=intl_thres=1.3,metadata=mode=print:file=-");
    m_fields.start(
        ffmpegCall(QStringList{QStringLiteral("-ss"), QString::number(start, 'f', 3)} +
                   inputArguments(m_path, m_facts.container) +
                   QStringList{QStringLiteral("-map"), QStringLiteral("0:%1").arg(m_track->index),
                               QStringLiteral("-frames:v"), QStringLiteral("60"),
                               QStringLiteral("-vf"), filter, QStringLiteral("-f"),
                               QStringLiteral("null"), QStringLiteral("-")}),
        lookLimits);
}

void SourceLook::takeFields(const Result<ToolRun> &run)
{
    if (wasCancelled(run)) {
        Q_EMIT finished(tl::make_unexpected(run.error()));
        return;
    }
    if (run) {
        m_track->fieldOrder = fieldOrderInSample(run->output);
        m_track->framesTellFields = false;
    }
    lookAtDisplay();
}

void SourceLook::lookAtDisplay()
{
    const bool isComplete = m_track == nullptr || !m_track->colour.isHdr() ||
                            (m_track->masteringDisplay && m_track->lightLevel);
    if (isComplete) {
        lookAtLight();
        return;
    }
    m_display.start(
        ffprobeCall(QStringList{QStringLiteral("-print_format"), QStringLiteral("json"),
                                QStringLiteral("-show_frames"), QStringLiteral("-select_streams"),
                                QString::number(m_track->index), QStringLiteral("-read_intervals"),
                                QStringLiteral("%+#1")} +
                    inputArguments(m_path, m_facts.container)),
        lookLimits);
}

void SourceLook::takeDisplay(const Result<ToolRun> &run)
{
    if (wasCancelled(run)) {
        Q_EMIT finished(tl::make_unexpected(run.error()));
        return;
    }
    if (run) {
        const QJsonArray frames =
            QJsonDocument::fromJson(run->output).object().value(QLatin1String("frames")).toArray();
        readHdrSideData(frames.at(0).toObject().value(QLatin1String("side_data_list")).toArray(),
                        *m_track);
    }
    lookAtLight();
}

void SourceLook::lookAtLight()
{
    if (m_track == nullptr || !m_track->colour.isHdr() || !m_needsLight) {
        Q_EMIT finished(m_facts);
        return;
    }
    m_light.start(ffmpegCall(lightSampleArguments(m_facts, *m_track, m_path)), lookLimits);
}

void SourceLook::takeLight(const Result<ToolRun> &run)
{
    if (wasCancelled(run)) {
        Q_EMIT finished(tl::make_unexpected(run.error()));
        return;
    }
    if (run) {
        m_track->seenLight = seenLightIn(run->output, m_track->colour);
    }
    Q_EMIT finished(m_facts);
}

VideoTrack::FieldOrder fieldOrderInSample(const QByteArray &lines)
{
    const double top = counted(lines, "tff");
    const double bottom = counted(lines, "bff");
    const double fields = top + bottom;
    // Frames in which nothing moves count as progressive.
    constexpr double fewest = 0.25;
    if (fields <= fewest * (fields + counted(lines, "progressive"))) {
        return VideoTrack::Progressive;
    }
    return top >= bottom ? VideoTrack::TopFieldFirst : VideoTrack::BottomFieldFirst;
}

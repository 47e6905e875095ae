#include "host/window/taskoutlooks.h"

#include "host/convert/ffmpegarguments.h"
#include "host/window/presets.h"
#include "host/window/windowsettings.h"

#include <algorithm>

TaskOutlooks::TaskOutlooks(const Presets &presets, const WindowSettings &settings,
                           const JobMaker &jobOf, QObject *parent)
    : QObject(parent)
    , m_presets(presets)
    , m_settings(settings)
    , m_jobOf(jobOf)
{
    connect(&m_list, &EncoderList::finished, this, [this](const Result<QSet<QString>> &encoders) {
        // Without ffmpeg, each conversion says so itself.
        m_encoders = encoders.value_or(QSet<QString>());
        Q_EMIT known();
    });
    m_list.start();
}

Outlook TaskOutlooks::of(const Task &task) const
{
    if (task.facts.isEmpty() || m_encoders.isEmpty()) {
        return {};
    }
    Outlook outlook = outlookOf(m_jobOf(task), task.facts, m_encoders);
    if (!outlook.problem.isEmpty()) {
        outlook.nearest = nearestTo(task);
        outlook.nearestCaption = m_presets.caption(outlook.nearest);
    }
    return outlook;
}

/*! The first preset that works, of the same format, else of the same kind, else of any; one that
 *  was chosen last comes before the others. */
QString TaskOutlooks::nearestTo(const Task &task) const
{
    const std::optional<FoundPreset> chosen = m_presets.find(task.format);
    const ConversionJob job = m_jobOf(task);
    QString nearest;
    int best = -1;
    const QStringList ids =
        QStringList{m_settings.lastId(true), m_settings.lastId(false)} + m_presets.ids();
    for (const QString &id : ids) {
        const std::optional<FoundPreset> preset = m_presets.find(id);
        const bool isSameFormat = preset && chosen && preset->className == chosen->className;
        const bool isSameKind = preset && chosen && preset->tag == chosen->tag;
        const int nearness = isSameFormat ? 2 : isSameKind ? 1 : 0;
        if (!preset || nearness <= best) {
            continue;
        }
        OutputSettings settings = preset->outputSettings();
        settings.start = job.settings.start;
        settings.end = job.settings.end;
        settings.audioTracks = job.settings.audioTracks;
        settings.subtitles = job.settings.subtitles;
        settings.burnedSubtitles = job.settings.burnedSubtitles;
        if (ffmpegArguments(settings, task.facts, m_encoders, job.source, QStringLiteral("part"))) {
            nearest = id;
            best = nearness;
        }
    }
    return nearest;
}

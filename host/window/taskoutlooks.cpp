#include "host/window/taskoutlooks.h"

#include "host/presets/fitness.h"
#include "host/window/presets.h"
#include "host/window/windowsettings.h"

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

/*! The nearest preset that suits the file, else one of another kind, the last chosen first; empty
 *  where the format isn't what is wrong. */
QString TaskOutlooks::nearestTo(const Task &task) const
{
    const Fitness fitness(m_encoders, FitnessSource{task.source, task.facts});
    const std::optional<FoundPreset> chosen = m_presets.find(task.format);
    if (chosen && fitness.problemWith(*chosen).isEmpty()) {
        return {};
    }
    return m_presets.nearestTo(chosen, fitness,
                               {m_settings.lastId(true), m_settings.lastId(false)});
}

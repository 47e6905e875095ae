#include "host/window/taskoutlooks.h"

#include "host/presets/fitness.h"
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
    const ConversionJob job = m_jobOf(task);
    const Sample *sample = sampleOf(job);
    Outlook outlook = outlookOf(job, task.facts, m_encoders, sample == nullptr ? 0 : sample->bytes);
    if (!outlook.problem.isEmpty()) {
        outlook.nearest = nearestTo(task);
        outlook.nearestCaption = m_presets.caption(outlook.nearest);
    }
    return outlook;
}

bool TaskOutlooks::needsSample(const Task &task) const
{
    return sampleOf(m_jobOf(task)) == nullptr && of(task).needsSample;
}

void TaskOutlooks::keepSample(const ConversionJob &job, double bytes)
{
    m_samples[job.source] << Sample{job.settings, bytes};
    Q_EMIT known();
}

const TaskOutlooks::Sample *TaskOutlooks::sampleOf(const ConversionJob &job) const
{
    const auto samples = m_samples.constFind(job.source);
    if (samples == m_samples.cend()) {
        return nullptr;
    }
    const auto found =
        std::find_if(samples->cbegin(), samples->cend(),
                     [&job](const Sample &sample) { return sample.settings == job.settings; });
    return found == samples->cend() ? nullptr : &*found;
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

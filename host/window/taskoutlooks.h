#ifndef WINDOW_TASKOUTLOOKS_H
#define WINDOW_TASKOUTLOOKS_H

#include "host/tools/encoderlist.h"
#include "host/window/outlook.h"
#include "host/window/task.h"

#include <functional>

class Presets;
class WindowSettings;

/*! Tells of tasks what their conversions will give, as soon as ffmpeg's encoders are known. */
class TaskOutlooks : public QObject
{
    Q_OBJECT

public:
    using JobMaker = std::function<ConversionJob(const Task &task)>;

    TaskOutlooks(const Presets &presets, const WindowSettings &settings, const JobMaker &jobOf,
                 QObject *parent = nullptr);

    /*! Empty while the task's file or the encoders are unknown. */
    [[nodiscard]] Outlook of(const Task &task) const;

    /*! Whether a sample of the task's file would tell its size better. */
    [[nodiscard]] bool needsSample(const Task &task) const;
    /*! Those of ffmpeg; none until they are known. */
    [[nodiscard]] const QSet<QString> &encoders() const { return m_encoders; }
    /*! Keeps what a sample of this job has foretold, also for when the task gets other settings
     *  and then these again. No bytes: it foretold nothing, and no other one is needed. */
    void keepSample(const ConversionJob &job, double bytes);

Q_SIGNALS:
    /*! The encoders are known, or a sample is. */
    void known();

private:
    struct Sample
    {
        OutputSettings settings;
        double bytes = 0;
    };

    [[nodiscard]] QString nearestTo(const Task &task) const;
    /*! Null if there is none of this job. */
    [[nodiscard]] const Sample *sampleOf(const ConversionJob &job) const;

    const Presets &m_presets;
    const WindowSettings &m_settings;
    const JobMaker m_jobOf;
    EncoderList m_list;
    QSet<QString> m_encoders;
    QHash<QString, QVector<Sample>> m_samples; // by source
};

#endif

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

Q_SIGNALS:
    /*! The encoders are known. */
    void known();

private:
    [[nodiscard]] QString nearestTo(const Task &task) const;

    const Presets &m_presets;
    const WindowSettings &m_settings;
    const JobMaker m_jobOf;
    EncoderList m_list;
    QSet<QString> m_encoders;
};

#endif

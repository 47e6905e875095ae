#ifndef WINDOW_SIZESAMPLER_H
#define WINDOW_SIZESAMPLER_H

#include "host/convert/sizesample.h"

#include <QPointer>
#include <QVector>

class Page;
class QWindow;
class WindowSettings;

/*!
 * Lets short samples tell the rows how large their results will be: one at a time, while the window
 * is in sight, and neither the user nor a conversion is at work. A sample ends at once where its
 * row becomes another one, or a conversion begins.
 */
class SizeSampler : public QObject
{
    Q_OBJECT

public:
    static constexpr int usualPause = 4000;

    /*! Waits until nothing has happened for \a pause ms. The window's property "isAsking" says
     *  whether it waits for an answer, and "currentPage" which of the pages it shows. All of them
     *  outlive this object. */
    SizeSampler(const QVector<Page *> &pages, QWindow &window, const WindowSettings &settings,
                int pause = usualPause);

    [[nodiscard]] bool isSampling() const { return m_page != nullptr; }
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /*! A sample of this task begins. */
    void began(int taskId);

private:
    [[nodiscard]] bool isAllowed() const;
    [[nodiscard]] bool isAtRest() const;
    /*! Whether the sample that runs is still of its task. */
    [[nodiscard]] bool isWanted() const;
    void review();
    void beginNext();
    void take(const Result<double> &bytes);

    const QVector<Page *> m_pages;
    QWindow &m_window;
    const WindowSettings &m_settings;
    Page *m_page = nullptr; // of the sample that runs; null: none
    int m_taskId = 0;
    ConversionJob m_job;
    QTimer m_pause;
    SizeSample m_sample;
};

#endif

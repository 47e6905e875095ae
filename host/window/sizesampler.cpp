#include "host/window/sizesampler.h"

#include "host/window/page.h"
#include "host/window/windowsettings.h"

#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

/*! The next file whose size a sample would tell better: of those in sight and a few below them.
 *  Null if there is none. */
const Task *nextIn(Page &page)
{
    constexpr int mostRows = 50;
    const QVector<Task> &all = page.tasks()->tasks();
    const int first = std::clamp(page.firstInSight(), 0, all.size());
    const auto end = all.cbegin() + std::min(all.size(), first + mostRows);
    const auto next = std::find_if(all.cbegin() + first, end, [&page](const Task &task) {
        return task.state == Task::Ready && page.outlooks().needsSample(task) &&
               QFileInfo::exists(task.source);
    });
    return next == end ? nullptr : &*next;
}

} // namespace

SizeSampler::SizeSampler(const QVector<Page *> &pages, QWindow &window,
                         const WindowSettings &settings, int pause)
    : m_pages(pages)
    , m_window(window)
    , m_settings(settings)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, &SizeSampler::beginNext);
    connect(&m_sample, &SizeSample::finished, this, &SizeSampler::take);
    connect(&settings, &WindowSettings::samplingChanged, this, &SizeSampler::review);
    connect(&window, &QWindow::visibilityChanged, this, &SizeSampler::review);
    for (const Page *page : pages) {
        connect(page->tasks(), &TaskList::edited, this, &SizeSampler::review);
        connect(page, &Page::queueChanged, this, &SizeSampler::review);
        connect(page, &Page::globalFormatChanged, this, &SizeSampler::review);
        connect(page, &Page::outlookChanged, this, &SizeSampler::review);
        connect(page, &Page::scrolled, this, &SizeSampler::review);
    }
    QCoreApplication::instance()->installEventFilter(this);
    review();
}

bool SizeSampler::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::TouchUpdate:
    case QEvent::DragEnter:
    case QEvent::DragMove:
        m_pause.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool SizeSampler::isAllowed() const
{
    const bool isShown = m_window.isVisible() && m_window.visibility() != QWindow::Minimized;
    return m_settings.isSampling() && isShown &&
           std::none_of(m_pages.begin(), m_pages.end(),
                        [](const Page *page) { return page->isBusy(); });
}

bool SizeSampler::isAtRest() const
{
    return QGuiApplication::modalWindow() == nullptr && !m_window.property("isAsking").toBool() &&
           QGuiApplication::mouseButtons() == Qt::NoButton &&
           std::none_of(m_pages.begin(), m_pages.end(),
                        [](const Page *page) { return page->tasks()->countOf(Task::Reading) > 0; });
}

bool SizeSampler::isWanted() const
{
    const Task *task = m_page->tasks()->find(m_taskId);
    return task != nullptr && task->state == Task::Ready &&
           m_page->jobOf(*task).settings == m_job.settings;
}

void SizeSampler::review()
{
    if (m_page != nullptr && !(isAllowed() && isWanted())) {
        m_sample.stop();
        m_page = nullptr;
    }
    if (m_page == nullptr) {
        m_pause.start();
    }
}

void SizeSampler::beginNext()
{
    if (m_page != nullptr || !isAllowed() || !isAtRest()) {
        return;
    }
    QVector<Page *> pages = m_pages;
    const int shown = m_window.property("currentPage").toInt();
    std::rotate(pages.begin(), pages.begin() + shown, pages.end());
    for (Page *page : qAsConst(pages)) {
        if (const Task *task = nextIn(*page)) {
            m_page = page;
            m_taskId = task->id;
            m_job = page->jobOf(*task);
            Q_EMIT began(m_taskId);
            m_sample.start(m_job, task->facts, page->outlooks().encoders());
            return;
        }
    }
}

void SizeSampler::take(const Result<double> &bytes)
{
    Page *page = std::exchange(m_page, nullptr);
    page->outlooks().keepSample(m_job, bytes.value_or(0));
    // The user may be at work again: then the next one waits until the pause is over.
    if (!m_pause.isActive()) {
        beginNext();
    }
}

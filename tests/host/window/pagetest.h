#ifndef WINDOW_PAGETEST_H
#define WINDOW_PAGETEST_H

#include "host/window/pageproxies.h"
#include "host/window/presets.h"

#include "formats/proxy/formatsproxy.h"
#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/*! Tests of both pages over the built-in catalogue and real clips. */
class PageTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    const QString mp3 = QStringLiteral("Audio_MP3_003");
    const QString aac = QStringLiteral("Audio_AAC_001");
    const QString flac = QStringLiteral("Audio_FLAC_001");
    const QString mkv = QStringLiteral("Video_MKV_001");
    const QString mp4 = QStringLiteral("Video_MP4_001");

    QUrl song(const QString &name = QStringLiteral("song.wav"));
    QStringList names(Page &page) const;
    /*! A file that is called like a film and is none. */
    QUrl noMedia();
    int addReady(Page &page, const QUrl &url);
    const Task &task(Page &page, int id) { return *page.tasks()->find(id); }

    QTemporaryDir m_config;
    std::unique_ptr<PresetStore> m_store;
    std::unique_ptr<WindowSettings> m_settings;
    std::unique_ptr<Presets> m_presets;

    std::unique_ptr<QTemporaryDir> m_files;
    std::unique_ptr<ConverterProxy> m_converter;
    std::unique_ptr<EditorProxy> m_editor;
    QVector<int> m_runs; //!< the converter's tasks in the order in which they ran
};

#endif

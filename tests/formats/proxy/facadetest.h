#ifndef TESTS_FORMATS_PROXY_FACADETEST_H
#define TESTS_FORMATS_PROXY_FACADETEST_H

#include "formats/proxy/formatsproxy.h"
#include "tests/formats/models/modelobservers.h"
#include "tests/formats/models/presetsamples.h"
#include "tests/formats/proxy/samplecatalogue.h"
#include "tests/support/messagelog.h"

#include <QtTest>

#include <optional>

/*! A facade whose models are guarded, including every format's presets: see guard(). */
class WatchedFacade : public FormatsProxy
{
public:
    WatchedFacade()
    {
        guard(*formatListModel());
        guard(*formatListModelProxy());
        guard(*recentlyFormatsModel());
        connect(formatListModel(), &FormatListModel::rowsInserted, this,
                [this](const QModelIndex &, int row) {
                    guard(*formatListModel()->formatDetailModel(formatListModel()->getTitle(row)));
                });
    }
};

/*!
 * What the tests of the facade share: each test function gets a new facade over an empty catalogue,
 * user-defined ids restart, and a log line that the function did not expect fails it.
 */
class FacadeTest : public QObject
{
    Q_OBJECT

protected:
    using Preset = FormatDetailModelData;

    /*! Adds a format and returns its presets. */
    FormatDetailModel &addFormat(const QString &title, const QString &tag,
                                 const QString &icon = QString())
    {
        m_facade->formatListModel()->addModeInfo({title, icon, tag});
        return *m_facade->formatListModel()->formatDetailModel(title);
    }

    /*! Splits at single blanks. */
    static QStringList words(const char *texts)
    {
        return QString::fromUtf8(texts).split(QLatin1Char(' '));
    }

    static Preset presetAt(const FormatDetailModel &presets, int row)
    {
        Preset preset;
        presets.getModelInfoByIndex(row, preset);
        return preset;
    }

    /*! Adds a format whose presets differ in one field and have their row as the title. */
    FormatDetailModel &addPresets(const QString &title, const QString &tag, QString Preset::*member,
                                  const QStringList &values)
    {
        FormatDetailModel &presets = addFormat(title, tag);
        for (const QString &value : values) {
            Preset preset;
            preset.title = QString::number(presets.rowCount());
            preset.*member = value;
            presets.addModeInfo(preset);
        }
        return presets;
    }

    /*! The title in a preset's map; empty for an empty map. */
    static QString titleOf(const QVariantMap &preset)
    {
        return preset.value(QStringLiteral("title")).toString();
    }

    /*! Calls init() with sampleCatalogue() and an empty folder. */
    void initOverSamples(const QString &folder)
    {
        FakeCatalogue::served() = sampleCatalogue();
        m_facade->init(folder);
        QCOMPARE(m_log->takeAll().size(), 2);
    }

    FormatDetailModel &mp4()
    {
        return *m_facade->formatListModel()->formatDetailModel(QStringLiteral("MP4"));
    }

    static QString recentlyFile(const QTemporaryDir &folder)
    {
        return folder.filePath(QStringLiteral("recently.json"));
    }

    static QString userPresetsFile(const QTemporaryDir &folder)
    {
        return folder.filePath(QStringLiteral("formatCache.json"));
    }

    static QByteArray readFile(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "can't be read: " + path.toUtf8();
    }

    static void writeFile(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    std::optional<MessageLog> m_log;
    std::optional<WatchedFacade> m_facade;

private Q_SLOTS:
    void init()
    {
        m_log.emplace();
        FakeCatalogue::served() = FakeCatalogue();
        FormatDetailModel::s_userDefineId = 1000;
        m_facade.emplace();
    }

    void cleanup()
    {
        m_facade.reset();
        const QStringList unexpected = m_log->takeAll();
        m_log.reset();
        QCOMPARE(unexpected, QStringList());
    }
};

#endif

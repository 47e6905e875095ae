#include "tests/formats/proxy/facadetest.h"

#include <QDir>

/*! What uninit() writes, and where. */
class TestFormatsProxySaving : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void uninitWritesTheUsersPresetsAndTheRecentlyUsed();
    void uninitWritesEmptyLists();
    void uninitWritesOverTheOldFiles();
    void uninitWithoutAFolderWritesNothing_data();
    void uninitWithoutAFolderWritesNothing();
    void uninitMakesNoFolder();
    void aFileThatCannotBeWrittenDoesNotStopTheOther();
    void uninitLeavesTheModelsAsTheyAre();
    void destructionSavesNothing();
    void theFolderIsTheOneOfTheLastInit();

private:
    void makeUserPresets();

    static QByteArray golden(const char *name)
    {
        return readFile(QFINDTESTDATA(QStringLiteral("golden/") + QLatin1String(name)));
    }
};

// The contents of golden/: a video and an audio preset, with strings that JSON has to escape.
void TestFormatsProxySaving::makeUserPresets()
{
    const auto add = [this](const QString &className, const char *id, const QVariantMap &param) {
        return m_facade->addUserDefineFormat(QString(), className, QString::fromLatin1(id), param);
    };
    const QString audioClass = QStringLiteral("音频");
    QCOMPARE(add(QStringLiteral("MP4"), "video_mp4_source",
                 {{QStringLiteral("title"), QStringLiteral("我的 \"预设\"\n\t\\/")},
                  {QStringLiteral("videoEncoder"), QStringLiteral("hevc")},
                  {QStringLiteral("videoFrameRate"), QStringLiteral("30")},
                  {QStringLiteral("videoResolution"), QStringLiteral("1280x720")},
                  {QStringLiteral("videoBitrateLow"), QStringLiteral("1001")},
                  {QStringLiteral("videoBitrateMid"), QStringLiteral("2002")},
                  {QStringLiteral("videoBitrateHigh"), QStringLiteral("3003")},
                  {QStringLiteral("audioEncoder"), QStringLiteral("aac")},
                  {QStringLiteral("audioSampleRate"), QStringLiteral("48000")},
                  {QStringLiteral("audioChannel"), QStringLiteral("1")},
                  {QStringLiteral("audioBitrate"), QStringLiteral("256")}}),
             QStringLiteral("1001"));
    const QChar highSurrogate(0xd83d);
    const QChar lowSurrogate(0xde00);
    QCOMPARE(
        add(audioClass, "audio_yinpin_source",
            {{QStringLiteral("title"), QString(highSurrogate) + QLatin1Char('a') + lowSurrogate +
                                           QLatin1Char('b') + highSurrogate + lowSurrogate}}),
        QStringLiteral("1002"));
    QVERIFY(m_facade->add2Recently(QStringLiteral("video"), QStringLiteral("MP4"),
                                   QStringLiteral("video_mp4_720p")));
    QVERIFY(m_facade->add2Recently(QStringLiteral("audio"), audioClass, QStringLiteral("1002")));
}

void TestFormatsProxySaving::uninitWritesTheUsersPresetsAndTheRecentlyUsed()
{
    const QTemporaryDir folder;
    initOverSamples(folder.path());
    makeUserPresets();
    m_facade->uninit();
    QCOMPARE(readFile(recentlyFile(folder)), golden("recently.json"));
    QCOMPARE(readFile(userPresetsFile(folder)), golden("formatCache.json"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
}

void TestFormatsProxySaving::uninitWritesEmptyLists()
{
    const QTemporaryDir folder;
    initOverSamples(folder.path());
    m_facade->uninit();
    QCOMPARE(readFile(recentlyFile(folder)), QByteArray("[\n]\n"));
    QCOMPARE(readFile(userPresetsFile(folder)), QByteArray("[\n]\n"));
}

void TestFormatsProxySaving::uninitWritesOverTheOldFiles()
{
    const QTemporaryDir folder;
    initOverSamples(folder.path());
    writeFile(recentlyFile(folder), QByteArray(100000, 'x'));
    writeFile(userPresetsFile(folder), QByteArray(100000, 'x'));
    makeUserPresets();
    m_facade->uninit();
    QCOMPARE(readFile(recentlyFile(folder)), golden("recently.json"));
    QCOMPARE(readFile(userPresetsFile(folder)), golden("formatCache.json"));
}

void TestFormatsProxySaving::uninitWithoutAFolderWritesNothing_data()
{
    QTest::addColumn<bool>("initialised");
    QTest::newRow("before init") << false;
    QTest::newRow("after init without a folder") << true;
}

void TestFormatsProxySaving::uninitWithoutAFolderWritesNothing()
{
    QFETCH(const bool, initialised);
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    if (initialised) {
        m_facade->init(QString());
        QCOMPARE(
            m_log->takeAll(),
            QStringList(QStringLiteral(
                "debug: parseVideo -->open formats file failed, path= \"/formatCache.json\"")));
    }
    m_facade->uninit();
    QVERIFY(QDir::setCurrent(before));

    QVERIFY(QDir(folder.path()).isEmpty());
    QVERIFY(!QFile::exists(QStringLiteral("/recently.json")));
    QVERIFY(!QFile::exists(QStringLiteral("/formatCache.json")));
}

void TestFormatsProxySaving::uninitMakesNoFolder()
{
    const QTemporaryDir folder;
    initOverSamples(folder.filePath(QStringLiteral("missing")));
    m_facade->uninit();
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestFormatsProxySaving::aFileThatCannotBeWrittenDoesNotStopTheOther()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("recently.json")));
    initOverSamples(folder.path());
    makeUserPresets();
    m_facade->uninit();
    QCOMPARE(readFile(userPresetsFile(folder)), golden("formatCache.json"));
}

void TestFormatsProxySaving::uninitLeavesTheModelsAsTheyAre()
{
    const QTemporaryDir folder;
    initOverSamples(folder.path());
    makeUserPresets();
    QSignalSpy formats(m_facade->formatListModel(), &FormatListModel::countChanged);
    QSignalSpy presets(&mp4(), &FormatDetailModel::countChanged);
    QSignalSpy recents(m_facade->recentlyFormatsModel(), &FormatDetailModel::countChanged);
    m_facade->uninit();
    QCOMPARE(formats.count() + presets.count() + recents.count(), 0);
    QCOMPARE(m_facade->formatListModel()->rowCount(), 3);
    QCOMPARE(mp4().rowCount(), 3);
    QCOMPARE(m_facade->recentlyFormatsModel()->rowCount(), 2);
    QCOMPARE(m_facade->formatTags().size(), 5);
}

void TestFormatsProxySaving::destructionSavesNothing()
{
    const QTemporaryDir folder;
    initOverSamples(folder.path());
    makeUserPresets();
    m_facade.reset();
    QVERIFY(QDir(folder.path()).isEmpty());
    m_facade.emplace();
}

void TestFormatsProxySaving::theFolderIsTheOneOfTheLastInit()
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    initOverSamples(first.path());
    initOverSamples(second.path());
    m_facade->uninit();
    QVERIFY(QDir(first.path()).isEmpty());
    QCOMPARE(QDir(second.path()).entryList(QDir::Files), words("formatCache.json recently.json"));
}

QTEST_GUILESS_MAIN(TestFormatsProxySaving)
#include "tst_formatsproxy_saving.moc"

#include "tests/formats/proxy/facadetest.h"

class TestFormatsProxyLookups : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void aPresetIsFoundByItsClass();
    void theTagIsNotCheckedButTheClassIs_data();
    void theTagIsNotCheckedButTheClassIs();
    void theTagRecentlyLooksInTheRecentlyUsedOnly();
    void aPresetIsFoundByItsIdAlone();
    void aRecentlyUsedPresetIsNotFoundByItsIdAlone();
    void aFormatTaggedRecentlySharesItsPresetsWithTheRecentlyUsed();
    void tagAndClassComeTogether();
    void withoutATagOrAClassThereIsNeither_data();
    void withoutATagOrAClassThereIsNeither();
    void anIdOfTwoFormatsHasTheFirstRowsTagAndTheFirstKeysClass();
    void theEncodersOfferedTellAudioFromVideo_data();
    void theEncodersOfferedTellAudioFromVideo();
    void multiTrackSupportDependsOnTheClassTitle_data();
    void multiTrackSupportDependsOnTheClassTitle();
    void anUnknownIdGivesNothing_data();
    void anUnknownIdGivesNothing();
    void userDefinedPresetsAreCountedByClass();
    void aCountNeedsATagAndAKnownClass_data();
    void aCountNeedsATagAndAKnownClass();

private:
    void addPreset(const QString &className, const QString &tag, const QString &id)
    {
        addFormat(className, tag, className + QStringLiteral(".png")).addModeInfo(presetWithId(id));
    }

    static QString idOf(const QVariantMap &preset)
    {
        return preset.value(QStringLiteral("id")).toString();
    }
};

void TestFormatsProxyLookups::aPresetIsFoundByItsClass()
{
    const Preset preset = samplePreset();
    addFormat(QStringLiteral("MP4"), QStringLiteral("video")).addModeInfo(preset);
    QCOMPARE(m_facade->getFormat(QStringLiteral("video"), QStringLiteral("MP4"), preset.id),
             preset.toVarMap());
}

void TestFormatsProxyLookups::theTagIsNotCheckedButTheClassIs_data()
{
    QTest::addColumn<QString>("tagName");
    QTest::addColumn<QString>("className");
    QTest::addColumn<bool>("found");
    const QString mp4 = QStringLiteral("MP4");
    const QString video = QStringLiteral("video");
    QTest::newRow("its own tag") << video << mp4 << true;
    QTest::newRow("another tag") << QStringLiteral("audio") << mp4 << true;
    QTest::newRow("no tag") << QString() << mp4 << true;
    QTest::newRow("recently in another case") << QStringLiteral("Recently") << mp4 << true;
    QTest::newRow("another class") << video << QStringLiteral("AVI") << false;
    QTest::newRow("class in another case") << video << QStringLiteral("mp4") << false;
    QTest::newRow("unknown class") << video << QStringLiteral("MOV") << false;
    QTest::newRow("recently") << QStringLiteral("recently") << mp4 << false;
}

void TestFormatsProxyLookups::theTagIsNotCheckedButTheClassIs()
{
    QFETCH(const QString, tagName);
    QFETCH(const QString, className);
    QFETCH(const bool, found);
    addPreset(QStringLiteral("MP4"), QStringLiteral("video"), QStringLiteral("a"));
    addPreset(QStringLiteral("AVI"), QStringLiteral("video"), QStringLiteral("b"));
    QCOMPARE(!m_facade->getFormat(tagName, className, QStringLiteral("a")).isEmpty(), found);
}

void TestFormatsProxyLookups::theTagRecentlyLooksInTheRecentlyUsedOnly()
{
    addPreset(QStringLiteral("MP4"), QStringLiteral("video"), QStringLiteral("a"));
    Preset recent = presetWithId(QStringLiteral("b"));
    recent.title = QStringLiteral("recent");
    m_facade->recentlyFormatsModel()->addModeInfo(recent);

    const QString list = QStringLiteral("recently");
    for (const QString &className : {QString(), QStringLiteral("MP4"), QStringLiteral("none")}) {
        QCOMPARE(m_facade->getFormat(list, className, QStringLiteral("b")), recent.toVarMap());
        QCOMPARE(m_facade->getFormat(list, className, QStringLiteral("a")), QVariantMap());
    }
}

void TestFormatsProxyLookups::aPresetIsFoundByItsIdAlone()
{
    addPreset(QStringLiteral("MP4"), QStringLiteral("video"), QStringLiteral("a"));
    Preset preset = presetWithId(QStringLiteral("b"));
    preset.title = QStringLiteral("title");
    addFormat(QStringLiteral("MP3"), QStringLiteral("audio")).addModeInfo(preset);
    QCOMPARE(m_facade->getFormat(QStringLiteral("b")), preset.toVarMap());
    QCOMPARE(m_facade->getFormat(QStringLiteral("B")), QVariantMap());
}

void TestFormatsProxyLookups::aRecentlyUsedPresetIsNotFoundByItsIdAlone()
{
    const QString id = QStringLiteral("a");
    m_facade->recentlyFormatsModel()->addModeInfo(presetWithId(id));
    QCOMPARE(m_facade->getTagAndClassById(id), QVariantMap());
    QCOMPARE(m_facade->getFormat(id), QVariantMap());
    QCOMPARE(m_facade->getFormat(QStringLiteral("recently"), QString(), id),
             presetWithId(id).toVarMap());
}

void TestFormatsProxyLookups::aFormatTaggedRecentlySharesItsPresetsWithTheRecentlyUsed()
{
    addPreset(QStringLiteral("MP4"), QStringLiteral("recently"), QStringLiteral("a"));
    QCOMPARE(m_facade->getFormat(QStringLiteral("a")), QVariantMap());
    m_facade->recentlyFormatsModel()->addModeInfo(presetWithId(QStringLiteral("a")));
    QCOMPARE(idOf(m_facade->getFormat(QStringLiteral("a"))), QStringLiteral("a"));
}

void TestFormatsProxyLookups::tagAndClassComeTogether()
{
    addPreset(QStringLiteral("AVI"), QStringLiteral("video"), QStringLiteral("a"));
    addPreset(QStringLiteral("MP3"), QStringLiteral("audio"), QStringLiteral("b"));

    const QVariantMap expected{{QStringLiteral("tag"), QStringLiteral("audio")},
                               {QStringLiteral("class"), QStringLiteral("MP3")}};
    QCOMPARE(m_facade->getTagAndClassById(QStringLiteral("b")), expected);
    QCOMPARE(m_facade->getTagName(QStringLiteral("b")), QStringLiteral("audio"));
    QCOMPARE(m_facade->getClassIconById(QStringLiteral("b")), QStringLiteral("MP3.png"));
}

void TestFormatsProxyLookups::withoutATagOrAClassThereIsNeither_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("tag");
    QTest::newRow("no tag") << QStringLiteral("MP4") << QString();
    QTest::newRow("no class") << QString() << QStringLiteral("video");
}

void TestFormatsProxyLookups::withoutATagOrAClassThereIsNeither()
{
    QFETCH(const QString, className);
    QFETCH(const QString, tag);
    const QString id = QStringLiteral("a");
    Preset preset = presetWithId(id);
    preset.videoEncoders = QVariantList{QStringLiteral("h264")};
    preset.audioEncoders = QVariantList{QStringLiteral("aac")};
    addFormat(className, tag).addModeInfo(preset);

    QCOMPARE(m_facade->getTagAndClassById(id), QVariantMap());
    QCOMPARE(m_facade->getTagName(id), tag);
    QCOMPARE(m_facade->getFormat(id), QVariantMap());
    QVERIFY(!m_facade->isVideoFormat(id));
    QVERIFY(!m_facade->isSupportMultiTrack(id));
    QCOMPARE(idOf(m_facade->getFormat(tag, className, id)), id);
}

void TestFormatsProxyLookups::anIdOfTwoFormatsHasTheFirstRowsTagAndTheFirstKeysClass()
{
    Preset video = presetWithId(QStringLiteral("a"));
    video.title = QStringLiteral("first row");
    addFormat(QStringLiteral("MP4"), QStringLiteral("video"), QStringLiteral("row.png"))
        .addModeInfo(video);
    Preset audio = presetWithId(QStringLiteral("a"));
    audio.title = QStringLiteral("first key");
    audio.audioEncoders = QVariantList{QStringLiteral("aac")};
    addFormat(QStringLiteral("AAC"), QStringLiteral("audio"), QStringLiteral("key.png"))
        .addModeInfo(audio);

    const QString id = QStringLiteral("a");
    const QVariantMap expected{{QStringLiteral("tag"), QStringLiteral("video")},
                               {QStringLiteral("class"), QStringLiteral("AAC")}};
    QCOMPARE(m_facade->getTagAndClassById(id), expected);
    QCOMPARE(m_facade->getTagName(id), QStringLiteral("video"));
    QCOMPARE(m_facade->getClassIconById(id), QStringLiteral("row.png"));
    QCOMPARE(m_facade->getFormat(id), audio.toVarMap());
    QVERIFY(m_facade->isAudioFormat(id));
    QVERIFY(!m_facade->isSupportMultiTrack(id));
}

void TestFormatsProxyLookups::theEncodersOfferedTellAudioFromVideo_data()
{
    QTest::addColumn<QVariantList>("videoEncoders");
    QTest::addColumn<QVariantList>("audioEncoders");
    QTest::addColumn<bool>("isAudio");
    QTest::addColumn<bool>("isVideo");
    const QVariantList none;
    const QVariantList some{QString()};
    QTest::newRow("audio only") << none << some << true << false;
    QTest::newRow("video and audio") << some << some << false << true;
    QTest::newRow("video without audio") << some << none << false << false;
    QTest::newRow("nothing offered") << none << none << false << false;
}

void TestFormatsProxyLookups::theEncodersOfferedTellAudioFromVideo()
{
    QFETCH(const QVariantList, videoEncoders);
    QFETCH(const QVariantList, audioEncoders);
    QFETCH(const bool, isAudio);
    QFETCH(const bool, isVideo);
    Preset preset = presetWithId(QStringLiteral("a"));
    preset.videoEncoders = videoEncoders;
    preset.audioEncoders = audioEncoders;
    // The tag doesn't matter.
    addFormat(QStringLiteral("Phone"), QStringLiteral("device")).addModeInfo(preset);

    QCOMPARE(m_facade->isAudioFormat(preset.id), isAudio);
    QCOMPARE(m_facade->isVideoFormat(preset.id), isVideo);
}

void TestFormatsProxyLookups::multiTrackSupportDependsOnTheClassTitle_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<bool>("supported");
    QTest::newRow("MP4") << QStringLiteral("MP4") << false << true;
    QTest::newRow("MOV") << QStringLiteral("MOV") << false << true;
    QTest::newRow("AVI") << QStringLiteral("AVI") << false << true;
    QTest::newRow("M4V") << QStringLiteral("M4V") << false << true;
    QTest::newRow("mp4 in lower case") << QStringLiteral("mp4") << true << false;
    QTest::newRow("MKV with the flag set") << QStringLiteral("MKV") << true << false;
}

void TestFormatsProxyLookups::multiTrackSupportDependsOnTheClassTitle()
{
    QFETCH(const QString, className);
    QFETCH(const bool, flag);
    QFETCH(const bool, supported);
    Preset preset = presetWithId(QStringLiteral("a"));
    preset.supportMultiTrack = flag;
    addFormat(className, QStringLiteral("video")).addModeInfo(preset);
    QCOMPARE(m_facade->isSupportMultiTrack(preset.id), supported);
}

void TestFormatsProxyLookups::anUnknownIdGivesNothing_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("empty") << QString();
    QTest::newRow("unknown") << QStringLiteral("b");
    QTest::newRow("in another case") << QStringLiteral("A");
    QTest::newRow("only recently used") << QStringLiteral("recent");
}

void TestFormatsProxyLookups::anUnknownIdGivesNothing()
{
    QFETCH(const QString, id);
    Preset recent = presetWithId(QStringLiteral("recent"));
    recent.audioEncoders = QVariantList{QStringLiteral("aac")};
    m_facade->recentlyFormatsModel()->addModeInfo(recent);
    addPreset(QStringLiteral("MP4"), QStringLiteral("video"), QStringLiteral("a"));

    QCOMPARE(m_facade->getFormat(QStringLiteral("video"), QStringLiteral("MP4"), id),
             QVariantMap());
    QCOMPARE(m_facade->getFormat(id), QVariantMap());
    QCOMPARE(m_facade->getTagAndClassById(id), QVariantMap());
    QCOMPARE(m_facade->getTagName(id), QString());
    QCOMPARE(m_facade->getClassIconById(id), QString());
    QVERIFY(!m_facade->isAudioFormat(id));
    QVERIFY(!m_facade->isVideoFormat(id));
    QVERIFY(!m_facade->isSupportMultiTrack(id));
}

void TestFormatsProxyLookups::userDefinedPresetsAreCountedByClass()
{
    FormatDetailModel &mp4 = addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    mp4.addModeInfo(presetWithId(QStringLiteral("built-in")));
    const auto count = [this](const char *tag) {
        return m_facade->getUserDefineCount(QString::fromLatin1(tag), QStringLiteral("MP4"));
    };
    QCOMPARE(count("video"), 0);

    Preset own = presetWithId(QStringLiteral("own"));
    own.userDefine = true;
    mp4.addModeInfo(own);
    mp4.addModeInfo(own);
    QCOMPARE(count("video"), 2);
    QCOMPARE(count("audio"), 2);
    QCOMPARE(count("Recently"), 2);
}

void TestFormatsProxyLookups::aCountNeedsATagAndAKnownClass_data()
{
    QTest::addColumn<QString>("tagName");
    QTest::addColumn<QString>("className");
    QTest::newRow("recently") << QStringLiteral("recently") << QStringLiteral("MP4");
    QTest::newRow("no tag") << QString() << QStringLiteral("MP4");
    QTest::newRow("no class") << QStringLiteral("video") << QString();
    QTest::newRow("unknown class") << QStringLiteral("video") << QStringLiteral("AVI");
    QTest::newRow("class in another case") << QStringLiteral("video") << QStringLiteral("mp4");
}

void TestFormatsProxyLookups::aCountNeedsATagAndAKnownClass()
{
    QFETCH(const QString, tagName);
    QFETCH(const QString, className);
    addPreset(QStringLiteral("MP4"), QStringLiteral("video"), QStringLiteral("a"));
    // A format without a title would have presets to count.
    addPreset(QString(), QStringLiteral("video"), QStringLiteral("b"));
    QCOMPARE(m_facade->getUserDefineCount(tagName, className), -1);
}

QTEST_GUILESS_MAIN(TestFormatsProxyLookups)
#include "tst_formatsproxy_lookups.moc"

#include "host/presets/find/presetindexbuilder.h"

#include "formats/proxy/formatsproxy.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/*! Searches in the built-in catalogue. */
class TestPresetIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void whatPeopleTypeIsFoundFirst_data();
    void whatPeopleTypeIsFoundFirst();
    void allWordsMustMatchInAnyOrder();
    void wholeWordsComeBeforeBeginnings();
    void formatsComeBeforeOtherFields();
    void recentlyUsedPresetsComeFirst();
    void ownPresetsAreFound();
    void valuesOfSignsAloneHaveNoWord();
    void aFilterMatchesOnlyItsField_data();
    void aFilterMatchesOnlyItsField();
    void everyWordSaysWhatItMatched();
    void onlyAsManyAsAskedForAreDescribed();
    void theFirstUnknownWordIsNamed();
    void anIndexMadeInPartsFindsTheSame();
    void oddTextFindsNothing_data();
    void oddTextFindsNothing();

private:
    PresetMatches find(const PresetQuery &query, int limit = 1000) const
    {
        return PresetIndex(*m_formats).find(query, limit);
    }
    PresetMatches find(const QString &text) const { return find(PresetQuery{text, {}, {}, {}}); }
    QStringList ids(const QString &text) const
    {
        QStringList all;
        const PresetMatches matches = find(text);
        for (const PresetMatch &match : matches.best) {
            all << match.id;
        }
        return all;
    }

    const QTemporaryDir m_folder; // without presets of its own
    std::unique_ptr<FormatsProxy> m_formats;
};

void TestPresetIndex::initTestCase()
{
    qunsetenv("VEX_EXPORT_CATALOGUE");
}

void TestPresetIndex::init()
{
    m_formats = std::make_unique<FormatsProxy>();
    m_formats->init(m_folder.path());
}

void TestPresetIndex::whatPeopleTypeIsFoundFirst_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("first");
    const auto row = [](const char *text, const char *first) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromLatin1(first);
    };
    row("iphone", "Device_APPLE_001");
    row("iph", "Device_APPLE_001");
    row("iphnoe", "Device_APPLE_001");
    row("iphone 4k", "Device_APPLE_001");
    row("apple tv", "Device_APPLE_007");
    row("1080 iphone", "Device_APPLE_002");
    row("mp4", "Video_MP4_001");
    row("mp4 1080", "Video_MP4_004");
    row("mp4 1080p", "Video_MP4_004");
    row("1080", "Video_MP4_004");
    row("1080p", "Video_MP4_004");
    row("full hd", "Video_MP4_004");
    row("Full-HD", "Video_MP4_004");
    row("fhd", "Video_MP4_004");
    row("4k", "Video_MP4_002");
    row("uhd", "Video_MP4_002");
    row("ultra hd", "Video_MP4_002");
    row("2k", "Video_MP4_003");
    row("1440p", "Video_MP4_003");
    row("720", "Video_MP4_005");
    row("h265", "Video_HEVCMP4_001");
    row("H.265", "Video_HEVCMP4_001");
    row("hevc", "Video_HEVCMP4_001");
    row("x265", "Video_HEVCMP4_001");
    row("h265 4k", "Video_HEVCMP4_002");
    row("avc", "Video_MP4_002");
    row("x264", "Video_MP4_002");
    row("av1", "Video_AV1MKV_001");
    row("vp9", "Video_WEBM_002");
    row("prores", "Video_PRORESMOV_001");
    row("divx", "Device_TV_006");
    row(".mov", "Video_MOV_001");
    row("mkv", "Video_MKV_001");
    row(".webm 720", "Video_WEBM_005");
    row("whatsapp", "Video_MP4_005");
    row("WhatsApp", "Video_MP4_005");
    row("whatsap", "Video_MP4_005");
    row("shorts", "SocialVideo_YOUTUBE_007");
    row("youtube shorts", "SocialVideo_YOUTUBE_007");
    row("yt 4k", "SocialVideo_YOUTUBE_001");
    row("insta reel", "SocialVideo_INSTAGRAM_001");
    row("insta story", "SocialVideo_INSTAGRAM_003");
    row("tiktok", "SocialVideo_TIKTOK_001");
    row("twitter", "SocialVideo_TWITTER_001");
    row("square", "SocialVideo_FACEBOOK_008");
    row("instagram square", "SocialVideo_INSTAGRAM_005");
    row("vertical 1080", "SocialVideo_YOUTUBE_008");
    row("small", "Video_HEVCMP4_007");
    row("smal", "Video_HEVCMP4_007");
    row("small mp4", "Video_HEVCMP4_007");
    row("lossless", "Audio_M4A_002");
    row("lossless audio", "Audio_M4A_002");
    row("email", "Video_MP4_008");
    row("archive", "Video_HEVCMKV_001");
    row("audiobook", "Audio_M4B_003");
    row("voice", "Audio_MP3_005");
    row("podcast", "Audio_MP3_004");
    row("editing", "Video_PRORESMOV_004");
    row("web", "Video_MP4_004");
    row("ringtone", "Audio_M4R_003");
    row("gif", "Video_GIF_001");
    row("dvd", "Video_VOB_002");
    row("ps5", "Device_PLAYSTATION_001");
    row("xbox 360", "Device_XBOX_006");
    row("android", "Device_SAMSUNG_001");
    row("samsung tv", "Device_SAMSUNG_007");
    row("galaxy tab", "Device_SAMSUNG_005");
    row("fire tv", "Device_AMAZON_001");
    row("chromecast", "Device_GOOGLE_004");
    row("mp3 320", "Audio_MP3_002");
    row("mp3 320kbps", "Audio_MP3_002");
    row("flac 96000", "Audio_FLAC_002");
    row("cd", "Audio_WAV_005");
    row("cd quality", "Audio_WAV_005");
    row("klein", "Video_HEVCMP4_007");
    row("verlustfrei", "Audio_FLAC_001");
    row("Hörbuch", "Audio_M4B_003");
    row("hoerbuch", "Audio_M4B_003");
    row("Klingelton", "Audio_M4R_003");
    row("Schnitt 4K", "Video_PRORESMOV_002");
    row("für das Handy", "Device_APPLE_001");
    row("Musik mp3", "Audio_MP3_002");
    row("pequeño", "Video_HEVCMP4_007");
    row("pequeno", "Video_HEVCMP4_007");
    row("sin pérdida", "Audio_FLAC_001");
    row("audiolibro", "Audio_M4B_003");
    row("música", "Audio_MP3_002");
    row("petit", "Video_HEVCMP4_007");
    row("sans perte", "Audio_FLAC_001");
    row("livre audio", "Audio_M4B_003");
    row("sonnerie", "Audio_M4R_003");
    row("montage", "Video_PRORESMOV_004");
    row("小さい", "Video_HEVCMP4_007");
    row("可逆", "Audio_FLAC_001");
    row("ロスレス", "Audio_FLAC_001");
    row("着信音", "Audio_M4R_003");
    row("スマホ", "Device_APPLE_001");
    row("動画編集", "Video_PRORESMOV_004");
    row("ｉｐｈｏｎｅ", "Device_APPLE_001");
    row("ハイビジョン", "Video_MP4_005");
    row("无损", "Audio_FLAC_001");
    row("小文件", "Video_HEVCMP4_007");
    row("微信", "Video_MP4_005");
    row("抖音", "SocialVideo_TIKTOK_001");
    row("手机铃声", "Audio_M4R_003");
    row("有声书", "Audio_M4B_003");
    row("苹果手机", "Device_APPLE_001");
    row("竖屏 抖音", "SocialVideo_TIKTOK_001");
    row("4K 电视", "Device_TV_001");
    row("video for whatsapp", "Video_MP4_005");
    row("convert to mp3", "Audio_MP3_001");
    row("playstaton", "Device_PLAYSTATION_001");
    row("instgram", "SocialVideo_INSTAGRAM_001");
    row("chromcast", "Device_GOOGLE_004");
    row("qucktime", "Video_MOV_004");
    row("samsnug", "Device_SAMSUNG_001");
    row("youtbe", "SocialVideo_YOUTUBE_001");
    row("high quality mp3", "Audio_MP3_002");
    row("3840x2160", "Video_MP4_002");
    row("1920×1080 mkv", "Video_MKV_004");
    row("5.1", "Audio_AC3_005");
    row("4k mp4 hevc", "Video_HEVCMP4_002");
    row("hevc mkv 1080", "Video_HEVCMKV_004");
    row("instagram 4:5 1080p", "SocialVideo_INSTAGRAM_004");
    row("iphone1080", "Device_APPLE_002");
    row("无损音频", "Audio_FLAC_001");
    row("final cu", "Video_PRORESMOV_004");
    row("playstation5", "Device_PLAYSTATION_001");
    row("you tube", "SocialVideo_YOUTUBE_001");
    row("fullhd mkv", "Video_MKV_004");
    row("apple lossless", "Audio_M4A_002");
    row("mpeg 2", "Video_MPEG2_001");
    row("mpeg-2", "Video_MPEG2_001");
    row("e-mail", "Video_MP4_008");
    row("voice memo", "Audio_MP3_005");
    row("old phone", "Video_3GP_005");
    row("tv", "Device_TV_001");
    row("x", "SocialVideo_TWITTER_001");
    row("m4a", "Audio_M4A_001");
}

void TestPresetIndex::whatPeopleTypeIsFoundFirst()
{
    QFETCH(QString, text);
    const QStringList found = ids(text);
    QVERIFY(!found.isEmpty());
    QTEST(found.constFirst(), "first");
}

void TestPresetIndex::allWordsMustMatchInAnyOrder()
{
    const QStringList found = ids(QStringLiteral("iphone 1080"));
    QCOMPARE(found, QStringList(QStringLiteral("Device_APPLE_002")));
    QCOMPARE(ids(QStringLiteral("1080 iphone")), found);
    QCOMPARE(ids(QStringLiteral("1080 iphone flac")), QStringList());
}

void TestPresetIndex::wholeWordsComeBeforeBeginnings()
{
    const QStringList found = ids(QStringLiteral("x"));
    const int whole = found.indexOf(QStringLiteral("Device_XBOX_001")); // "Xbox Series X 4K"
    const int beginning = found.indexOf(QStringLiteral("Device_XBOX_002"));
    QVERIFY(whole >= 0);
    QVERIFY(beginning > whole);
}

void TestPresetIndex::formatsComeBeforeOtherFields()
{
    const QStringList found = ids(QStringLiteral("mkv"));
    const int format = found.indexOf(QStringLiteral("Video_AV1MKV_009"));
    const int title = found.indexOf(QStringLiteral("Device_TV_002"));
    QVERIFY(format >= 0);
    QVERIFY(title > format);
}

void TestPresetIndex::recentlyUsedPresetsComeFirst()
{
    const QString older = QStringLiteral("Video_WEBM_004");
    const QString newer = QStringLiteral("Video_MKV_004");
    m_formats->add2Recently(QStringLiteral("video"), QStringLiteral("WEBM"), older);
    m_formats->add2Recently(QStringLiteral("video"), QStringLiteral("MKV"), newer);
    QCOMPARE(ids(QStringLiteral("1080")).mid(0, 3),
             QStringList({newer, older, QStringLiteral("Video_MP4_004")}));
    QVERIFY(!ids(QStringLiteral("iphone")).contains(newer));
}

void TestPresetIndex::ownPresetsAreFound()
{
    const QString id = m_formats->addUserDefineFormat(
        QStringLiteral("video"), QStringLiteral("MP4"), QStringLiteral("Video_MP4_005"),
        {{QStringLiteral("title"), QStringLiteral("Für die Bahn")},
         {QStringLiteral("videoEncoder"), QStringLiteral("hevc")},
         {QStringLiteral("videoResolution"), QStringLiteral("1280x720")}});
    for (const char *text : {"bahn", "eigene", "bahn h265 720"}) {
        QCOMPARE(ids(QString::fromUtf8(text)), QStringList(id));
    }
}

void TestPresetIndex::valuesOfSignsAloneHaveNoWord()
{
    m_formats->addUserDefineFormat(QStringLiteral("video"), QStringLiteral("MP4"),
                                   QStringLiteral("Video_MP4_005"),
                                   {{QStringLiteral("title"), QStringLiteral("***")},
                                    {QStringLiteral("videoEncoder"), QStringLiteral("***")}});
    QVERIFY(!PresetIndex(*m_formats).words().contains(QString()));
    QCOMPARE(find(QStringLiteral("own")).best.value(0).title, QStringLiteral("***"));
}

void TestPresetIndex::aFilterMatchesOnlyItsField_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("count");
    const auto row = [](const char *name, const char *kind, const char *codec, const char *size,
                        const char *first, int count) {
        QTest::newRow(name) << QString::fromLatin1(kind) << QString::fromLatin1(codec)
                            << QString::fromLatin1(size) << QString::fromLatin1(first) << count;
    };
    row("none", "", "", "", "Video_WEBM_001", 10);
    row("video", "video", "", "", "Video_WEBM_001", 10);
    row("audio", "audio", "", "", "", 0);
    row("codec", "", "vp9", "", "Video_WEBM_002", 9);
    row("only whole words", "", "vp", "", "", 0);
    row("a word of another field", "", "webm", "", "", 0);
    row("size", "", "", "1080p", "Video_WEBM_004", 1);
    row("a phrase", "", "", "full hd", "Video_WEBM_004", 1);
    row("all of them", "video", "vp9", "4k", "Video_WEBM_002", 2);
}

void TestPresetIndex::aFilterMatchesOnlyItsField()
{
    QFETCH(QString, kind);
    QFETCH(QString, codec);
    QFETCH(QString, size);
    const PresetMatches matches = find({QStringLiteral("webm"), kind, codec, size});
    QTEST(matches.count, "count");
    QTEST(matches.best.value(0).id, "first");
}

void TestPresetIndex::everyWordSaysWhatItMatched()
{
    const PresetMatches matches = find(QStringLiteral("WhatsApp h.264 mp4 for hd"));
    QVERIFY(matches.count > 0);
    const PresetMatch &best = matches.best.constFirst();
    QCOMPARE(best.id, QStringLiteral("Video_MP4_005"));
    QCOMPARE(best.title, QStringLiteral("HD 720P"));
    QCOMPARE(best.format, QStringLiteral("MP4"));
    QCOMPARE(best.tag, QStringLiteral("video"));
    QStringList why;
    for (const PresetMatch::Reason &reason : best.why) {
        why << reason.typed + QLatin1Char('|') + nameOf(reason.field) + QLatin1Char('|') +
                   reason.text;
    }
    QCOMPARE(why, QStringList({QStringLiteral("whatsapp|purpose|messenger"),
                               QStringLiteral("h264|codec|h264"), QStringLiteral("mp4|format|MP4"),
                               QStringLiteral("hd|title|HD 720P")}));
}

void TestPresetIndex::onlyAsManyAsAskedForAreDescribed()
{
    const PresetQuery query = {QStringLiteral("1080"), {}, {}, {}};
    const PresetMatches few = find(query, 3);
    const PresetMatches all = find(query);
    QCOMPARE(few.best.size(), 3);
    QCOMPARE(few.count, all.best.size());
    QVERIFY(few.count > 3);
    QCOMPARE(few.best.constLast().id, all.best.at(2).id);
    QCOMPARE(find(query, 0).count, few.count);
}

void TestPresetIndex::theFirstUnknownWordIsNamed()
{
    QCOMPARE(find(QStringLiteral("iphone Qqq.qq zzzzz")).unknown, QStringLiteral("qqqqq"));
    // Each is known, but no preset has both.
    QCOMPARE(find(QStringLiteral("iphone flac")).unknown, QString());
}

void TestPresetIndex::anIndexMadeInPartsFindsTheSame()
{
    PresetIndexBuilder builder(*m_formats);
    int parts = 1;
    while (builder.addSome(20)) {
        ++parts;
    }
    QVERIFY(parts > 5);
    const PresetIndex index = builder.finish();
    const PresetQuery query = {QStringLiteral("1080"), {}, {}, {}};
    const PresetMatches expected = find(query);
    const PresetMatches found = index.find(query, expected.count);
    QCOMPARE(found.count, expected.count);
    for (int place = 0; place < expected.best.size(); ++place) {
        QCOMPARE(found.best.at(place).id, expected.best.at(place).id);
    }
    QCOMPARE(index.words(), PresetIndex(*m_formats).words());
}

void TestPresetIndex::oddTextFindsNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("signs") << QStringLiteral("?!*");
    QTest::newRow("endless word") << QString(1000000, QLatin1Char('m'));
    QTest::newRow("many words") << QStringLiteral("mp4 qq ").repeated(1000);
    QTest::newRow("lone surrogate") << QString(QChar(0xd800));
}

void TestPresetIndex::oddTextFindsNothing()
{
    QFETCH(QString, text);
    QCOMPARE(find(text).count, 0);
}

QTEST_GUILESS_MAIN(TestPresetIndex)
#include "tst_presetindex.moc"

#include "tests/formats/models/presetsamples.h"

#include <QtTest>

namespace {

QVariantMap audioOfSample()
{
    const FormatDetailModelData sample = samplePreset();
    return {
        {QStringLiteral("encoder"), sample.audioEncoder},
        {QStringLiteral("encoders"), sample.audioEncoders},
        {QStringLiteral("sampleRate"), sample.audioSampleRate},
        {QStringLiteral("sampleRates"), sample.audioSampleRates},
        {QStringLiteral("channel"), sample.audioChannel},
        {QStringLiteral("channels"), sample.audioChannels},
        {QStringLiteral("bitrate"), sample.audioBitrate},
        {QStringLiteral("bitrates"), sample.audioBitrates},
        {QStringLiteral("isLoseless"), sample.isLoseless},
        {QStringLiteral("param"), sample.param},
    };
}

QVariantMap outerOfSample()
{
    const FormatDetailModelData sample = samplePreset();
    return {
        {QStringLiteral("id"), sample.id},
        {QStringLiteral("extension"), sample.extension},
        {QStringLiteral("title"), sample.title},
        {QStringLiteral("icon"), sample.icon},
        {QStringLiteral("socialType"), sample.socialType},
        {QStringLiteral("supportMultiTrack"), sample.supportMultiTrack},
        {QStringLiteral("audio"), audioOfSample()},
        {QStringLiteral("outPutNode"), sample.outPutNode},
    };
}

QVariantMap videoOf(const QVariantMap &preset)
{
    return preset.value(QStringLiteral("video")).toMap();
}

} // namespace

class TestFormatDetailModelData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewPresetHoldsTheDefaults();
    void aCopyHoldsEveryField();
    void anAssignedPresetHoldsEveryField();
    void changingACopyLeavesTheOriginal();
    void theFullMapOfANewPresetHasNoVideo();
    void theFullMapOfAVideoPresetHoldsTheseKeys();
    void theSavedMapOfAVideoPresetHoldsTheseKeys();
    void theSavedMapOfAnAudioPresetIsTheFullOne();
    void offeredVideoEncodersDecideWhetherThereIsVideo();
    void savedBitratesAreFolded_data();
    void savedBitratesAreFolded();
    void eachCallReturnsANewMap();
    void joiningPutsTheSeparatorBetweenTheItems_data();
    void joiningPutsTheSeparatorBetweenTheItems();
};

void TestFormatDetailModelData::aNewPresetHoldsTheDefaults()
{
    const QVariantList none;
    const QVariantMap defaults{
        {QStringLiteral("id"), QString()},
        {QStringLiteral("extension"), QString()},
        {QStringLiteral("title"), QString()},
        {QStringLiteral("icon"), QString()},
        {QStringLiteral("socialType"), QString()},
        {QStringLiteral("userDefine"), false},
        {QStringLiteral("videoEncoder"), QStringLiteral("h264")},
        {QStringLiteral("videoEncoders"), none},
        {QStringLiteral("videoFrameRate"), QStringLiteral("0")},
        {QStringLiteral("videoFrameRates"), none},
        {QStringLiteral("videoResolution"), QStringLiteral("0")},
        {QStringLiteral("videoResolutions"), none},
        {QStringLiteral("videoBitrate"), QStringLiteral("0")},
        {QStringLiteral("videoBitrateLow"), QStringLiteral("0")},
        {QStringLiteral("videoBitrateMid"), QStringLiteral("0")},
        {QStringLiteral("videoBitrateHigh"), QStringLiteral("0")},
        {QStringLiteral("videoBitrates"), none},
        {QStringLiteral("audioEncoder"), QStringLiteral("aac")},
        {QStringLiteral("audioEncoders"), none},
        {QStringLiteral("audioSampleRate"), QStringLiteral("0")},
        {QStringLiteral("audioSampleRates"), none},
        {QStringLiteral("audioChannel"), QStringLiteral("0")},
        {QStringLiteral("audioChannels"), none},
        {QStringLiteral("audioBitrate"), QStringLiteral("0")},
        {QStringLiteral("audioBitrates"), none},
        {QStringLiteral("isLoseless"), false},
        {QStringLiteral("supportMultiTrack"), false},
        {QStringLiteral("outPutNode"), QVariantMap()},
        {QStringLiteral("param"), QString()},
    };
    QCOMPARE(asLines(fieldsOf(FormatDetailModelData())), asLines(defaults));
}

void TestFormatDetailModelData::aCopyHoldsEveryField()
{
    const FormatDetailModelData original = samplePreset();
    const FormatDetailModelData copy(original);
    QCOMPARE(asLines(fieldsOf(copy)), asLines(fieldsOf(samplePreset())));
    QCOMPARE(asLines(fieldsOf(original)), asLines(fieldsOf(samplePreset())));
}

void TestFormatDetailModelData::anAssignedPresetHoldsEveryField()
{
    const FormatDetailModelData original = samplePreset();
    FormatDetailModelData assigned;
    assigned = original;
    QCOMPARE(asLines(fieldsOf(assigned)), asLines(fieldsOf(samplePreset())));

    assigned = FormatDetailModelData();
    QCOMPARE(asLines(fieldsOf(assigned)), asLines(fieldsOf(FormatDetailModelData())));
}

void TestFormatDetailModelData::changingACopyLeavesTheOriginal()
{
    const FormatDetailModelData original = samplePreset();
    FormatDetailModelData copy = original;
    copy.outPutNode.insert(QStringLiteral("id"), QStringLiteral("other"));
    copy.videoBitrates.append(9000);
    copy.title = QStringLiteral("other");
    QCOMPARE(asLines(fieldsOf(original)), asLines(fieldsOf(samplePreset())));
}

void TestFormatDetailModelData::theFullMapOfANewPresetHasNoVideo()
{
    const QVariantList none;
    const QVariantMap audio{
        {QStringLiteral("encoder"), QStringLiteral("aac")},
        {QStringLiteral("encoders"), none},
        {QStringLiteral("sampleRate"), QStringLiteral("0")},
        {QStringLiteral("sampleRates"), none},
        {QStringLiteral("channel"), QStringLiteral("0")},
        {QStringLiteral("channels"), none},
        {QStringLiteral("bitrate"), QStringLiteral("0")},
        {QStringLiteral("bitrates"), none},
        {QStringLiteral("isLoseless"), false},
        {QStringLiteral("param"), QString()},
    };
    const QVariantMap expected{
        {QStringLiteral("id"), QString()},         {QStringLiteral("extension"), QString()},
        {QStringLiteral("title"), QString()},      {QStringLiteral("icon"), QString()},
        {QStringLiteral("socialType"), QString()}, {QStringLiteral("supportMultiTrack"), false},
        {QStringLiteral("audio"), audio},          {QStringLiteral("outPutNode"), QVariantMap()},
    };
    QCOMPARE(asLines(FormatDetailModelData().toVarMap()), asLines(expected));
}

void TestFormatDetailModelData::theFullMapOfAVideoPresetHoldsTheseKeys()
{
    const FormatDetailModelData sample = samplePreset();
    QVariantMap expected = outerOfSample();
    expected.insert(QStringLiteral("video"),
                    QVariantMap{
                        {QStringLiteral("encoder"), sample.videoEncoder},
                        {QStringLiteral("encoders"), sample.videoEncoders},
                        {QStringLiteral("frameRate"), sample.videoFrameRate},
                        {QStringLiteral("frameRates"), sample.videoFrameRates},
                        {QStringLiteral("resolution"), sample.videoResolution},
                        {QStringLiteral("resolutions"), sample.videoResolutions},
                        {QStringLiteral("bitrateLow"), sample.videoBitrateLow},
                        {QStringLiteral("bitrateMid"), sample.videoBitrateMid},
                        {QStringLiteral("bitrateHigh"), sample.videoBitrateHigh},
                        {QStringLiteral("bitrates"), sample.videoBitrates},
                    });
    QCOMPARE(asLines(sample.toVarMap()), asLines(expected));
}

void TestFormatDetailModelData::theSavedMapOfAVideoPresetHoldsTheseKeys()
{
    const FormatDetailModelData sample = samplePreset();
    QVariantMap expected = outerOfSample();
    expected.insert(
        QStringLiteral("video"),
        QVariantMap{
            {QStringLiteral("encoder"), sample.videoEncoder},
            {QStringLiteral("encoders"), sample.videoEncoders},
            {QStringLiteral("frameRate"), sample.videoFrameRate},
            {QStringLiteral("frameRates"), sample.videoFrameRates},
            {QStringLiteral("resolution"), sample.videoResolution},
            {QStringLiteral("resolutions"), sample.videoResolutions},
            {QStringLiteral("bitrates"), QStringLiteral("8000:4000:2000:1000,2000,4000")},
        });
    QCOMPARE(asLines(sample.toVarMapForSave()), asLines(expected));
}

void TestFormatDetailModelData::theSavedMapOfAnAudioPresetIsTheFullOne()
{
    FormatDetailModelData preset = samplePreset();
    preset.videoEncoders.clear();
    QCOMPARE(asLines(preset.toVarMapForSave()), asLines(outerOfSample()));
    QCOMPARE(asLines(preset.toVarMap()), asLines(outerOfSample()));
}

void TestFormatDetailModelData::offeredVideoEncodersDecideWhetherThereIsVideo()
{
    FormatDetailModelData preset;
    preset.videoEncoders = {QStringLiteral("h264")};
    QVERIFY(preset.toVarMap().contains(QStringLiteral("video")));
    QVERIFY(preset.toVarMapForSave().contains(QStringLiteral("video")));

    preset.videoEncoders = {QVariant()};
    QVERIFY(preset.toVarMap().contains(QStringLiteral("video")));

    preset.videoEncoders.clear();
    preset.videoResolutions = {QStringLiteral("640x480")};
    preset.videoBitrates = {1000};
    QVERIFY(!preset.toVarMap().contains(QStringLiteral("video")));
    QVERIFY(!preset.toVarMapForSave().contains(QStringLiteral("video")));
}

void TestFormatDetailModelData::savedBitratesAreFolded_data()
{
    QTest::addColumn<QString>("high");
    QTest::addColumn<QString>("mid");
    QTest::addColumn<QString>("low");
    QTest::addColumn<QVariantList>("offered");
    QTest::addColumn<QString>("folded");
    const QString none = QStringLiteral("0");
    QTest::newRow("high, middle, low, offered")
        << QStringLiteral("8000") << QStringLiteral("4000") << QStringLiteral("2000")
        << QVariantList{1000, 2000, 4000} << QStringLiteral("8000:4000:2000:1000,2000,4000");
    QTest::newRow("no offered bitrates")
        << QStringLiteral("8000") << QStringLiteral("4000") << QStringLiteral("2000")
        << QVariantList() << QStringLiteral("8000:4000:2000:");
    QTest::newRow("defaults") << none << none << none << QVariantList() << QStringLiteral("0:0:0:");
    QTest::newRow("empty texts") << QString() << QString() << QString() << QVariantList{QString()}
                                 << QStringLiteral(":::");
    QTest::newRow("place markers in the texts")
        << QStringLiteral("%2") << QStringLiteral("%1") << QStringLiteral("%3")
        << QVariantList{QStringLiteral("%1")} << QStringLiteral("%2:%1:%3:%1");
}

void TestFormatDetailModelData::savedBitratesAreFolded()
{
    QFETCH(QString, high);
    QFETCH(QString, mid);
    QFETCH(QString, low);
    QFETCH(QVariantList, offered);
    QFETCH(QString, folded);
    FormatDetailModelData preset;
    preset.videoEncoders = {QStringLiteral("h264")};
    preset.videoBitrateHigh = high;
    preset.videoBitrateMid = mid;
    preset.videoBitrateLow = low;
    preset.videoBitrates = offered;

    const QVariant bitrates = videoOf(preset.toVarMapForSave()).value(QStringLiteral("bitrates"));
    QCOMPARE(bitrates.userType(), int(QMetaType::QString));
    QCOMPARE(bitrates.toString(), folded);
}

void TestFormatDetailModelData::eachCallReturnsANewMap()
{
    const FormatDetailModelData preset = samplePreset();
    QVariantMap map = preset.toVarMap();
    map.insert(QStringLiteral("title"), QStringLiteral("other"));
    map.remove(QStringLiteral("video"));
    QVariantMap saved = preset.toVarMapForSave();
    saved.clear();

    QCOMPARE(asLines(fieldsOf(preset)), asLines(fieldsOf(samplePreset())));
    QCOMPARE(asLines(preset.toVarMap()), asLines(samplePreset().toVarMap()));
    QCOMPARE(asLines(preset.toVarMapForSave()), asLines(samplePreset().toVarMapForSave()));
}

void TestFormatDetailModelData::joiningPutsTheSeparatorBetweenTheItems_data()
{
    QTest::addColumn<QVariantList>("items");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("joined");
    const QString comma = QStringLiteral(",");
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    QTest::newRow("no items") << QVariantList() << comma << QString();
    QTest::newRow("one item") << QVariantList{a} << comma << a;
    QTest::newRow("an empty item") << QVariantList{QString()} << comma << QString();
    QTest::newRow("an empty item in the middle")
        << QVariantList{a, QString(), b} << comma << QStringLiteral("a,,b");
    QTest::newRow("an empty item at either end")
        << QVariantList{QString(), a, QString()} << comma << QStringLiteral(",a,");
    QTest::newRow("items of a value without text")
        << QVariantList{QVariant(), QVariant()} << comma << comma;
    QTest::newRow("blanks are kept")
        << QVariantList{QStringLiteral(" a "), b} << comma << QStringLiteral(" a ,b");
    QTest::newRow("a separator in an item is not escaped")
        << QVariantList{QStringLiteral("a,b"), b} << comma << QStringLiteral("a,b,b");
    QTest::newRow("numbers and flags by their texts")
        << QVariantList{1000, 23.5, true} << comma << QStringLiteral("1000,23.5,true");
    QTest::newRow("no separator") << QVariantList{a, b} << QString() << QStringLiteral("ab");
    QTest::newRow("a long separator")
        << QVariantList{a, b} << QStringLiteral(" | ") << QStringLiteral("a | b");
}

void TestFormatDetailModelData::joiningPutsTheSeparatorBetweenTheItems()
{
    QFETCH(QVariantList, items);
    QFETCH(QString, separator);
    QFETCH(QString, joined);
    QCOMPARE(FormatDetailModelData().joinStringList(items, separator), joined);
    QCOMPARE(samplePreset().joinStringList(items, separator), joined);
}

QTEST_APPLESS_MAIN(TestFormatDetailModelData)
#include "tst_formatdetailmodeldata.moc"

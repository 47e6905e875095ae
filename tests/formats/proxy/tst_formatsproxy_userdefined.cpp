#include "tests/formats/proxy/facadetest.h"

#include <numeric>

namespace {

using Preset = FormatDetailModelData;

struct UserValue
{
    const char *key;
    QString Preset::*member;
    const char *text;
};

constexpr UserValue userValueTable[] = {
    {"title", &Preset::title, "Mine"},
    {"videoEncoder", &Preset::videoEncoder, "vp9"},
    {"videoFrameRate", &Preset::videoFrameRate, "60"},
    {"videoResolution", &Preset::videoResolution, "1280x720"},
    {"videoBitrateLow", &Preset::videoBitrateLow, "2001"},
    {"videoBitrateMid", &Preset::videoBitrateMid, "3002"},
    {"videoBitrateHigh", &Preset::videoBitrateHigh, "4003"},
    {"audioEncoder", &Preset::audioEncoder, "opus"},
    {"audioSampleRate", &Preset::audioSampleRate, "48000"},
    {"audioChannel", &Preset::audioChannel, "6"},
    {"audioBitrate", &Preset::audioBitrate, "256"},
};

QVariantMap userValues()
{
    QVariantMap param;
    for (const UserValue &value : userValueTable) {
        param.insert(QLatin1String(value.key), QString::fromLatin1(value.text));
    }
    return param;
}

QVariantMap converterVideo()
{
    return {
        {QStringLiteral("bitrateKbps"), 3002},
        {QStringLiteral("encoder"), QStringLiteral("vp9")},
        {QStringLiteral("frameRate"), QStringLiteral("60")},
        {QStringLiteral("resolution"), QStringLiteral("1280x720")},
    };
}

QVariantMap converterAudio()
{
    return {
        {QStringLiteral("bitrateKbps"), 256},
        {QStringLiteral("channel"), QStringLiteral("6")},
        {QStringLiteral("encoder"), QStringLiteral("opus")},
        {QStringLiteral("sampleRate"), 48000},
    };
}

// A built-in preset that shares no value with userValues().
Preset base()
{
    Preset preset = samplePreset();
    preset.id = QStringLiteral("base");
    preset.userDefine = false;
    preset.outPutNode = {
        {QStringLiteral("id"), QStringLiteral("video_mp4_source")},
        {QStringLiteral("extension"), QStringLiteral("mp4")},
        {QStringLiteral("videoParam"),
         QVariantMap{{QStringLiteral("encoder"), QStringLiteral("mpeg4")},
                     {QStringLiteral("profile"), QStringLiteral("main")}}},
        {QStringLiteral("audioParam"),
         QVariantMap{{QStringLiteral("encoder"), QStringLiteral("mp3")},
                     {QStringLiteral("profile"), QStringLiteral("low")}}},
    };
    return preset;
}

QVariantMap settings(const Preset &preset, const char *key)
{
    return preset.outPutNode.value(QLatin1String(key)).toMap();
}

// The base with userValues(), but still with its ids and as a built-in preset. The audio settings
// are replaced, the video settings keep what the user can't change.
Preset baseWithUserValues()
{
    Preset preset = base();
    for (const UserValue &value : userValueTable) {
        preset.*value.member = QString::fromLatin1(value.text);
    }
    QVariantMap video = converterVideo();
    video.insert(QStringLiteral("profile"), QStringLiteral("main"));
    preset.outPutNode.insert(QStringLiteral("videoParam"), video);
    preset.outPutNode.insert(QStringLiteral("audioParam"), converterAudio());
    return preset;
}

QStringList lines(const Preset &preset)
{
    return asLines(fieldsOf(preset));
}

} // namespace

class TestFormatsProxyUserDefined : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void newIdsCountUpAcrossClasses();
    void aNewIdIsOneAboveTheHighestOneEverHeld();
    void aNewPresetStandsAtTheEndOfItsClass();
    void aNewPresetTakesTheUsersValuesAndItsBasesRest();
    void theUsersValuesBecomeTexts();
    void aMissingValueIsEmpty();
    void bitratesAndSampleRatesOfTheConverterAreWholeNumbers();
    void anAudioBaseGetsVideoSettingsToo();
    void theConverterIdKeepsTheFirstTwoPartsOfTheBases_data();
    void theConverterIdKeepsTheFirstTwoPartsOfTheBases();
    void aPresetOfTheUsersCanBeABase();
    void aTitleCanBeUsedTwice();
    void theTagIsIgnored();
    void addingTouchesNeitherTheBaseNorTheRecentlyUsed();
    void addingNeedsAKnownClassAndId_data();
    void addingNeedsAKnownClassAndId();
    void aChangedPresetTakesTheUsersValues();
    void aChangeKeepsTheRowAndAnnouncesEveryRole();
    void aChangedPresetKeepsItsIdentity_data();
    void aChangedPresetKeepsItsIdentity();
    void aChangeDoesNotReachTheRecentlyUsed();
    void onlyTheFirstOfEqualIdsIsChanged();
    void changingAnUnknownClassIsNotAFailure();
    void changingAnUnknownIdFails();
    void aDeletedPresetLeavesTheRecentlyUsedToo();
    void aBuiltInPresetCanBeDeleted();
    void onlyTheFirstOfEqualIdsIsDeleted();
    void aFailedDeletionKeepsTheRecentlyUsed_data();
    void aFailedDeletionKeepsTheRecentlyUsed();

private:
    static constexpr QLatin1String mp4Class{"MP4"};

    QString add(const QString &id = QStringLiteral("base"), const QVariantMap &param = userValues(),
                const QString &className = mp4Class)
    {
        return m_facade->addUserDefineFormat(QStringLiteral("video"), className, id, param);
    }

    bool change(const QString &id = QStringLiteral("base"), const QVariantMap &param = userValues(),
                const QString &className = mp4Class)
    {
        return m_facade->changeUserDefineFormat(className, id, param);
    }

    bool remove(const QString &id = QStringLiteral("base"), const QString &className = mp4Class)
    {
        return m_facade->delUserDefineFormat(QStringLiteral("video"), className, id);
    }

    bool pick(const QString &id = QStringLiteral("base"))
    {
        return m_facade->add2Recently(QStringLiteral("video"), mp4Class, id);
    }

    QStringList recentlyUsed() { return idsOf(*m_facade->recentlyFormatsModel()); }

    FormatDetailModel &addMp4(const QList<Preset> &presets)
    {
        FormatDetailModel &model = addFormat(mp4Class, QStringLiteral("video"));
        for (const Preset &preset : presets) {
            model.addModeInfo(preset);
        }
        return model;
    }
};

void TestFormatsProxyUserDefined::newIdsCountUpAcrossClasses()
{
    addMp4({base()});
    addFormat(QStringLiteral("AVI"), QStringLiteral("video")).addModeInfo(base());
    QCOMPARE(add(), QStringLiteral("1001"));
    QCOMPARE(add(QStringLiteral("base"), userValues(), QStringLiteral("AVI")),
             QStringLiteral("1002"));
    QCOMPARE(add(), QStringLiteral("1003"));
}

void TestFormatsProxyUserDefined::aNewIdIsOneAboveTheHighestOneEverHeld()
{
    const Preset loaded = presetWithId(QStringLiteral("1005"), true);
    FormatDetailModel &mp4 = addMp4({base()});
    addFormat(QStringLiteral("AVI"), QStringLiteral("video")).addModeInfo(loaded);
    QCOMPARE(add(), QStringLiteral("1006"));

    QVERIFY(remove(QStringLiteral("1006")));
    QCOMPARE(add(), QStringLiteral("1007"));
    QCOMPARE(idsOf(mp4), words("base 1007"));
}

void TestFormatsProxyUserDefined::aNewPresetStandsAtTheEndOfItsClass()
{
    FormatDetailModel &mp4 = addMp4({base(), presetWithId(QStringLiteral("last"))});
    QSignalSpy inserted(&mp4, &QAbstractItemModel::rowsInserted);
    add();

    QCOMPARE(idsOf(mp4), words("base last 1001"));
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.first().mid(1), (QVariantList{2, 2}));
    QCOMPARE(FormatDetailModel::s_userDefineId, 1001);
    QCOMPARE(m_facade->getUserDefineCount(QStringLiteral("video"), QStringLiteral("MP4")), 1);
}

void TestFormatsProxyUserDefined::aNewPresetTakesTheUsersValuesAndItsBasesRest()
{
    FormatDetailModel &mp4 = addMp4({base()});
    add();

    Preset expected = baseWithUserValues();
    expected.id = QStringLiteral("1001");
    expected.outPutNode.insert(QStringLiteral("id"), QStringLiteral("video_mp4_1001"));
    expected.userDefine = true;
    QCOMPARE(lines(presetAt(mp4, 1)), lines(expected));
}

void TestFormatsProxyUserDefined::theUsersValuesBecomeTexts()
{
    FormatDetailModel &mp4 = addMp4({base()});
    QVariantMap param = userValues();
    param.insert(QStringLiteral("videoFrameRate"), 60);
    param.insert(QStringLiteral("videoBitrateMid"), 3002.0);
    param.insert(QStringLiteral("audioChannel"), 6);
    QVERIFY(change(QStringLiteral("base"), param));
    QCOMPARE(lines(presetAt(mp4, 0)), lines(baseWithUserValues()));
}

void TestFormatsProxyUserDefined::aMissingValueIsEmpty()
{
    FormatDetailModel &mp4 = addMp4({base()});
    add(QStringLiteral("base"), QVariantMap());

    const Preset made = presetAt(mp4, 1);
    for (const UserValue &value : userValueTable) {
        QCOMPARE(made.*value.member, QString());
    }
    const QVariantMap emptyAudio{
        {QStringLiteral("bitrateKbps"), 0},
        {QStringLiteral("channel"), QString()},
        {QStringLiteral("encoder"), QString()},
        {QStringLiteral("sampleRate"), 0},
    };
    const QVariantMap emptyVideo{
        {QStringLiteral("bitrateKbps"), 0},
        {QStringLiteral("encoder"), QString()},
        {QStringLiteral("frameRate"), QString()},
        {QStringLiteral("profile"), QStringLiteral("main")},
        {QStringLiteral("resolution"), QString()},
    };
    QCOMPARE(asLines(settings(made, "audioParam")), asLines(emptyAudio));
    QCOMPARE(asLines(settings(made, "videoParam")), asLines(emptyVideo));
}

void TestFormatsProxyUserDefined::bitratesAndSampleRatesOfTheConverterAreWholeNumbers()
{
    FormatDetailModel &mp4 = addMp4({base()});
    QVariantMap param = userValues();
    param.insert(QStringLiteral("videoBitrateMid"), QStringLiteral("high"));
    param.insert(QStringLiteral("audioBitrate"), 256.0);
    add(QStringLiteral("base"), param);

    const Preset made = presetAt(mp4, 1);
    const QVariantList numbers{settings(made, "videoParam").value(QStringLiteral("bitrateKbps")),
                               settings(made, "audioParam").value(QStringLiteral("bitrateKbps")),
                               settings(made, "audioParam").value(QStringLiteral("sampleRate"))};
    QCOMPARE(numbers, (QVariantList{0, 256, 48000}));
    for (const QVariant &number : numbers) {
        QCOMPARE(number.userType(), int(QMetaType::Int));
    }
}

void TestFormatsProxyUserDefined::anAudioBaseGetsVideoSettingsToo()
{
    Preset audio = base();
    audio.videoEncoders.clear();
    audio.outPutNode.remove(QStringLiteral("videoParam"));
    FormatDetailModel &mp4 = addMp4({audio});
    add();
    QCOMPARE(settings(presetAt(mp4, 1), "videoParam"), converterVideo());
}

void TestFormatsProxyUserDefined::theConverterIdKeepsTheFirstTwoPartsOfTheBases_data()
{
    QTest::addColumn<QVariant>("baseId");
    QTest::addColumn<QString>("newId");
    const auto row = [](const char *name, const char *baseId, const char *newId) {
        QTest::newRow(name) << QVariant(QString::fromLatin1(baseId)) << QString::fromLatin1(newId);
    };
    row("three parts", "video_mp4_source", "video_mp4_1001");
    row("two parts", "video_mp4", "video_mp4_1001");
    row("four parts", "video_mp4_source_2", "video_mp4_1001");
    row("empty first part", "_mp4_source", "_mp4_1001");
    row("empty second part", "video__source", "video__1001");
    row("one part", "X", "X__1001");
    row("empty", "", "__1001");
    row("placeholders in the id", "%3_%1_x", "%3_%1_1001");
    QTest::newRow("none") << QVariant() << QStringLiteral("__1001");
}

void TestFormatsProxyUserDefined::theConverterIdKeepsTheFirstTwoPartsOfTheBases()
{
    QFETCH(const QVariant, baseId);
    QFETCH(const QString, newId);
    Preset preset = base();
    if (baseId.isValid()) {
        preset.outPutNode.insert(QStringLiteral("id"), baseId);
    } else {
        preset.outPutNode.remove(QStringLiteral("id"));
    }
    FormatDetailModel &mp4 = addMp4({preset});

    add();
    const QVariant made = presetAt(mp4, 1).outPutNode.value(QStringLiteral("id"));
    QCOMPARE(made, QVariant(newId));
    QCOMPARE(made.userType(), int(QMetaType::QString));
}

void TestFormatsProxyUserDefined::aPresetOfTheUsersCanBeABase()
{
    FormatDetailModel &mp4 = addMp4({base()});
    add();
    QCOMPARE(add(QStringLiteral("1001")), QStringLiteral("1002"));
    QCOMPARE(presetAt(mp4, 2).outPutNode.value(QStringLiteral("id")).toString(),
             QStringLiteral("video_mp4_1002"));
    QCOMPARE(presetAt(mp4, 1).outPutNode.value(QStringLiteral("id")).toString(),
             QStringLiteral("video_mp4_1001"));
}

void TestFormatsProxyUserDefined::aTitleCanBeUsedTwice()
{
    FormatDetailModel &mp4 = addMp4({base()});
    add();
    add();
    QCOMPARE(presetAt(mp4, 1).title, QStringLiteral("Mine"));
    QCOMPARE(presetAt(mp4, 2).title, QStringLiteral("Mine"));
}

void TestFormatsProxyUserDefined::theTagIsIgnored()
{
    FormatDetailModel &mp4 = addMp4({base()});
    int lastId = 1000;
    for (const QString &tag : {QString(), QStringLiteral("audio"), QStringLiteral("recently")}) {
        const QString id = m_facade->addUserDefineFormat(tag, QStringLiteral("MP4"),
                                                         QStringLiteral("base"), userValues());
        QCOMPARE(id, QString::number(++lastId));
        QVERIFY(mp4.containId(id));
        QVERIFY(m_facade->delUserDefineFormat(tag, QStringLiteral("MP4"), id));
        QVERIFY(!mp4.containId(id));
    }
}

void TestFormatsProxyUserDefined::addingTouchesNeitherTheBaseNorTheRecentlyUsed()
{
    FormatDetailModel &mp4 = addMp4({base()});
    QVERIFY(pick());
    add();

    QCOMPARE(lines(presetAt(mp4, 0)), lines(base()));
    QVERIFY(!presetAt(mp4, 0).userDefine);
    QCOMPARE(recentlyUsed(), words("base"));
}

void TestFormatsProxyUserDefined::addingNeedsAKnownClassAndId_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("id");
    QTest::newRow("unknown class") << QStringLiteral("AVI") << QStringLiteral("base");
    QTest::newRow("class in another case") << QStringLiteral("mp4") << QStringLiteral("base");
    QTest::newRow("unknown id") << QStringLiteral("MP4") << QStringLiteral("other");
    QTest::newRow("only in the recently-used list")
        << QStringLiteral("MP4") << QStringLiteral("recent");
}

void TestFormatsProxyUserDefined::addingNeedsAKnownClassAndId()
{
    QFETCH(const QString, className);
    QFETCH(const QString, id);
    FormatDetailModel &mp4 = addMp4({base()});
    m_facade->recentlyFormatsModel()->addModeInfo(presetWithId(QStringLiteral("recent")));

    QCOMPARE(add(id, userValues(), className), QString());
    QCOMPARE(mp4.rowCount(), 1);
    QCOMPARE(m_facade->formatListModel()->rowCount(), 1);
    QCOMPARE(FormatDetailModel::s_userDefineId, 1000);
}

void TestFormatsProxyUserDefined::aChangedPresetTakesTheUsersValues()
{
    FormatDetailModel &mp4 = addMp4({base()});
    QVERIFY(change());
    QCOMPARE(lines(presetAt(mp4, 0)), lines(baseWithUserValues()));
}

void TestFormatsProxyUserDefined::aChangeKeepsTheRowAndAnnouncesEveryRole()
{
    FormatDetailModel &mp4 = addMp4(
        {presetWithId(QStringLiteral("first")), base(), presetWithId(QStringLiteral("last"))});
    QSignalSpy changed(&mp4, &QAbstractItemModel::dataChanged);
    QVERIFY(change());

    QCOMPARE(idsOf(mp4), words("first base last"));
    QVector<int> roles(26);
    std::iota(roles.begin(), roles.end(), int(FormatDetailModel::ExtensionRole));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex(), mp4.index(1));
    QCOMPARE(changed.first().at(1).toModelIndex(), mp4.index(1));
    QCOMPARE(changed.first().at(2).value<QVector<int>>(), roles);
}

void TestFormatsProxyUserDefined::aChangedPresetKeepsItsIdentity_data()
{
    QTest::addColumn<bool>("userDefine");
    QTest::addColumn<bool>("hasConverterId");
    QTest::newRow("built-in") << false << true;
    QTest::newRow("user-defined") << true << true;
    QTest::newRow("without a converter id") << true << false;
}

void TestFormatsProxyUserDefined::aChangedPresetKeepsItsIdentity()
{
    QFETCH(const bool, userDefine);
    QFETCH(const bool, hasConverterId);
    Preset preset = base();
    preset.userDefine = userDefine;
    if (!hasConverterId) {
        preset.outPutNode.remove(QStringLiteral("id"));
    }
    FormatDetailModel &mp4 = addMp4({preset});
    QVERIFY(change());

    const Preset changed = presetAt(mp4, 0);
    QCOMPARE(changed.id, QStringLiteral("base"));
    QCOMPARE(changed.userDefine, userDefine);
    QCOMPARE(changed.outPutNode.contains(QStringLiteral("id")), hasConverterId);
    QCOMPARE(changed.outPutNode.value(QStringLiteral("id")),
             preset.outPutNode.value(QStringLiteral("id")));
    QCOMPARE(FormatDetailModel::s_userDefineId, 1000);
}

void TestFormatsProxyUserDefined::aChangeDoesNotReachTheRecentlyUsed()
{
    addMp4({base()});
    QVERIFY(pick());
    QVERIFY(change());
    Preset expected = base();
    expected.userDefine = true;
    QCOMPARE(lines(presetAt(*m_facade->recentlyFormatsModel(), 0)), lines(expected));
}

void TestFormatsProxyUserDefined::onlyTheFirstOfEqualIdsIsChanged()
{
    FormatDetailModel &mp4 = addMp4({base(), base()});
    QVERIFY(change());
    QCOMPARE(presetAt(mp4, 0).title, QStringLiteral("Mine"));
    QCOMPARE(lines(presetAt(mp4, 1)), lines(base()));
}

void TestFormatsProxyUserDefined::changingAnUnknownClassIsNotAFailure()
{
    FormatDetailModel &mp4 = addMp4({base()});
    QVERIFY(change(QStringLiteral("base"), userValues(), QStringLiteral("AVI")));
    QCOMPARE(lines(presetAt(mp4, 0)), lines(base()));
    QCOMPARE(m_facade->formatListModel()->rowCount(), 1);
}

void TestFormatsProxyUserDefined::changingAnUnknownIdFails()
{
    FormatDetailModel &mp4 = addMp4({base()});
    QVERIFY(!change(QStringLiteral("other")));
    QCOMPARE(idsOf(mp4), words("base"));
    QCOMPARE(lines(presetAt(mp4, 0)), lines(base()));
}

void TestFormatsProxyUserDefined::aDeletedPresetLeavesTheRecentlyUsedToo()
{
    FormatDetailModel &mp4 = addMp4({base()});
    const QString id = add();
    QVERIFY(pick(id));
    QVERIFY(pick());

    QVERIFY(remove(id));
    QCOMPARE(idsOf(mp4), words("base"));
    QCOMPARE(recentlyUsed(), words("base"));
}

void TestFormatsProxyUserDefined::aBuiltInPresetCanBeDeleted()
{
    FormatDetailModel &mp4 = addMp4({base()});
    QVERIFY(remove());
    QCOMPARE(mp4.rowCount(), 0);
    QCOMPARE(m_facade->formatListModel()->rowCount(), 1);
}

void TestFormatsProxyUserDefined::onlyTheFirstOfEqualIdsIsDeleted()
{
    Preset second = base();
    second.title = QStringLiteral("second");
    FormatDetailModel &mp4 = addMp4({base(), second});
    QVERIFY(remove());
    QCOMPARE(mp4.rowCount(), 1);
    QCOMPARE(presetAt(mp4, 0).title, QStringLiteral("second"));
}

void TestFormatsProxyUserDefined::aFailedDeletionKeepsTheRecentlyUsed_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("id");
    QTest::newRow("unknown class") << QStringLiteral("AVI") << QStringLiteral("base");
    QTest::newRow("unknown id") << QStringLiteral("MP4") << QStringLiteral("other");
}

void TestFormatsProxyUserDefined::aFailedDeletionKeepsTheRecentlyUsed()
{
    QFETCH(const QString, className);
    QFETCH(const QString, id);
    FormatDetailModel &mp4 = addMp4({base()});
    m_facade->recentlyFormatsModel()->addModeInfo(presetWithId(id));

    QVERIFY(!remove(id, className));
    QCOMPARE(mp4.rowCount(), 1);
    QCOMPARE(recentlyUsed(), QStringList(id));
}

QTEST_GUILESS_MAIN(TestFormatsProxyUserDefined)
#include "tst_formatsproxy_userdefined.moc"

#include "host/check/cataloguelint.h"
#include "host/convert/codecs.h"
#include "utility/cataloguefiles.h"

#include <formatcodecapi.h>

#include <QtTest>

#include <algorithm>
#include <limits>

namespace {

const QString videoParam = QStringLiteral("videoParam");
const QString videoOptions = QStringLiteral("videoOptions");
const QString audioParam = QStringLiteral("audioParam");
const QString audioOptions = QStringLiteral("audioOptions");
const QString bitrateKbps = QStringLiteral("bitrateKbps");
const QString sameAsSource = QStringLiteral("Same as source");
const QString keepsSource = QStringLiteral("0");

struct Group
{
    QString category;
    QString name;
    QString icon;
    QList<QVariantMap> presets;

    [[nodiscard]] bool isOfFormat() const
    {
        return category == QLatin1String("Video") || category == QLatin1String("Audio");
    }

    // As in ids and icons: "HEVC MP4" is HEVCMP4.
    [[nodiscard]] QString idName() const
    {
        const QString own = presets.value(0).value(QStringLiteral("idName")).toString();
        return !own.isEmpty()
                   ? own
                   : name.toUpper().remove(QRegularExpression(QStringLiteral("[^A-Z0-9]")));
    }
};

QList<Group> allGroups()
{
    FormatCodecApi *const api = FormatCodecApi::getInstance();
    QList<Group> groups;
    for (const QVariant &category : api->getExportCategoryLists()) {
        for (const QVariant &entry : api->getExportGroupLists(category.toString())) {
            const QVariantMap map = entry.toMap();
            Group group{category.toString(),
                        map.value(QStringLiteral("name")).toString(),
                        map.value(QStringLiteral("icon")).toString(),
                        {}};
            for (const QVariant &preset : api->getExportGroupContents(map)) {
                group.presets.append(preset.toMap());
            }
            groups.append(group);
        }
    }
    return groups;
}

QString text(const QVariantMap &preset, const char *key)
{
    return preset.value(QLatin1String(key)).toString();
}

bool hasAudio(const QVariantMap &preset)
{
    return !preset.value(audioParam).toMap().isEmpty();
}

// A chosen value with the list of values that are offered for it.
struct Choice
{
    QString key;
    QVariant value;
    QVariantList options;
};

QList<Choice> choicesOf(const QVariantMap &preset)
{
    const QString list = QStringLiteral("List");
    QList<Choice> choices;
    const auto add = [&](const QString &param, const QString &options, const char *key) {
        choices.append({param + QLatin1Char('.') + QLatin1String(key),
                        preset.value(param).toMap().value(QLatin1String(key)),
                        preset.value(options).toMap().value(QLatin1String(key) + list).toList()});
    };
    if (preset.contains(videoParam)) {
        for (const char *key : {"encoder", "resolution", "frameRate", "bitrateKbps"}) {
            add(videoParam, videoOptions, key);
        }
    }
    if (hasAudio(preset)) {
        for (const char *key : {"encoder", "channel", "sampleRate", "bitrateKbps"}) {
            add(audioParam, audioOptions, key);
        }
    }
    return choices;
}

qint64 areaOf(const QString &resolution)
{
    const QStringList sides = resolution.split(QLatin1Char('x'));
    return sides.value(0).toLongLong() * sides.value(1).toLongLong();
}

bool ascends(const QVariantList &numbers)
{
    return std::adjacent_find(numbers.cbegin(), numbers.cend(),
                              [](const QVariant &a, const QVariant &b) {
                                  return a.toDouble() >= b.toDouble();
                              }) == numbers.cend();
}

} // namespace

Q_DECLARE_METATYPE(Group)

class TestBuiltInCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itHoldsTheFormatsOfEveryCategory();
    void theCheckFindsNoMistake();
    void equalOptionListsAreShared();

    void groupsAreWellFormed_data() { everyGroup(); }
    void groupsAreWellFormed();
    void fittingPresetsDiffer_data() { everyGroup(); }
    void fittingPresetsDiffer();
    void onlyTheFirstPresetOfAFormatIsSameAsSource_data() { everyGroup(); }
    void onlyTheFirstPresetOfAFormatIsSameAsSource();

    void textsAreFilledIn_data() { everyPreset(); }
    void textsAreFilledIn();
    void onlyAudioFormatsLackVideoAndOnlyGifLacksAudio_data() { everyPreset(); }
    void onlyAudioFormatsLackVideoAndOnlyGifLacksAudio();
    void optionsAreInOrder_data() { everyPreset(); }
    void optionsAreInOrder();
    void bitratesAreOfferedWhereEncodersTakeThem_data() { everyPreset(); }
    void bitratesAreOfferedWhereEncodersTakeThem();
    void bitratesStartWithTheSources_data() { everyPreset(); }
    void bitratesStartWithTheSources();
    void levelsAreOfferedAndDescend_data() { everyPreset(); }
    void levelsAreOfferedAndDescend();
    void sameAsSourceChangesNothing_data() { everyPreset(); }
    void sameAsSourceChangesNothing();
    void devicesAndSitesSayWhichLimitTheyFollow_data() { everyPreset(); }
    void devicesAndSitesSayWhichLimitTheyFollow();
    void xIsSentNoMoreThanItTakes();

private:
    void everyGroup();
    void everyPreset();

    const QList<Group> m_groups = allGroups();
};

void TestBuiltInCatalogue::everyGroup()
{
    QTest::addColumn<Group>("group");
    for (const Group &group : m_groups) {
        QTest::addRow("%s %s", qPrintable(group.category), qPrintable(group.name)) << group;
    }
}

void TestBuiltInCatalogue::everyPreset()
{
    QTest::addColumn<Group>("group");
    QTest::addColumn<QVariantMap>("preset");
    for (const Group &group : m_groups) {
        for (const QVariantMap &preset : group.presets) {
            QTest::addRow("%s", qPrintable(text(preset, "id"))) << group << preset;
        }
    }
}

void TestBuiltInCatalogue::itHoldsTheFormatsOfEveryCategory()
{
    QMap<QString, QStringList> names;
    for (const Group &group : m_groups) {
        names[group.category].append(group.name);
    }
    const auto list = [](const char *commaSeparated) {
        return QString::fromLatin1(commaSeparated).split(QLatin1Char(','));
    };
    QCOMPARE(names.value(QStringLiteral("Video")),
             list("MP4,HEVC MP4,MOV,MKV,HEVC MKV,AV1 MKV,M4V,AVI,XVID AVI,WMV,ASF,WEBM,FLV,F4V,MPG,"
                  "MPEG-2,VOB,TS,M2TS,3GP,3G2,OGV,PRORES MOV,DNXHD MOV,MXF,DV,GIF"));
    QCOMPARE(names.value(QStringLiteral("Audio")),
             list("MP3,AAC,M4A,M4B,M4R,ALAC,FLAC,WAV,AIFF,AU,CAF,OGG,OPUS,AC3,EAC3,MP2,WMA,MKA,AMR,"
                  "TTA,WV"));
    QCOMPARE(names.value(QStringLiteral("Device")),
             list("Apple,Samsung,Google,Huawei,Xiaomi,OPPO,Sony,LG,PlayStation,Xbox,Nintendo,"
                  "Amazon,Roku,TV"));
    QCOMPARE(names.value(QStringLiteral("SocialVideo")),
             list("YouTube,Vimeo,Facebook,Instagram,TikTok,X,Dailymotion,Twitch,LinkedIn,"
                  "Bilibili"));
    QCOMPARE(text(m_groups.value(0).presets.value(0), "id"), QStringLiteral("Video_MP4_001"));
}

void TestBuiltInCatalogue::theCheckFindsNoMistake()
{
    const CatalogueResult catalogue = readCatalogueAt(builtInCataloguePath());
    QStringList icons = QDir(QStringLiteral(VEX_FORMAT_ICONS)).entryList({QStringLiteral("*.svg")});
    icons.replaceInStrings(QStringLiteral(".svg"), QString());
    for (const CatalogueMistake &mistake :
         catalogue.mistakes +
             lintCatalogue(catalogue, icons,
                           {QStringLiteral("video"), QStringLiteral("audio"),
                            QStringLiteral("device"), QStringLiteral("socialvideo")})) {
        QFAIL(qPrintable(mistake.text()));
    }
    QVERIFY(!catalogue.presetPlaces.isEmpty());
}

void TestBuiltInCatalogue::equalOptionListsAreShared()
{
    QHash<QByteArray, QVariantList> lists;
    for (const Group &group : m_groups) {
        for (const QVariantMap &preset : group.presets) {
            for (const QString &options : {videoOptions, audioOptions}) {
                for (const QVariant &value : preset.value(options).toMap()) {
                    const QVariantList list = value.toList();
                    const QByteArray json = QJsonDocument::fromVariant(value).toJson();
                    const QVariantList first = lists.value(json, list);
                    QVERIFY2(list.isSharedWith(first), qPrintable(text(preset, "id")));
                    lists.insert(json, first);
                }
            }
        }
    }
    QVERIFY(!lists.isEmpty());
}

void TestBuiltInCatalogue::groupsAreWellFormed()
{
    QFETCH(Group, group);
    QVERIFY(group.presets.size() >= 3);
    QVERIFY(group.presets.size() <= 12);
    QCOMPARE(group.icon, QLatin1String("fmt_") + group.idName().toLower());
    if (group.isOfFormat()) {
        QCOMPARE(group.name, group.name.toUpper());
    }
    QStringList titles;
    for (const QVariantMap &preset : qAsConst(group.presets)) {
        QVERIFY(!titles.contains(text(preset, "title")));
        titles.append(text(preset, "title"));
    }
}

void TestBuiltInCatalogue::onlyTheFirstPresetOfAFormatIsSameAsSource()
{
    QFETCH(Group, group);
    for (int i = 0; i < group.presets.size(); ++i) {
        QCOMPARE(text(group.presets.at(i), "title") == sameAsSource, group.isOfFormat() && i == 0);
    }
}

void TestBuiltInCatalogue::onlyAudioFormatsLackVideoAndOnlyGifLacksAudio()
{
    QFETCH(Group, group);
    QFETCH(QVariantMap, preset);
    QCOMPARE(preset.contains(videoParam), group.category != QLatin1String("Audio"));
    QCOMPARE(hasAudio(preset), group.name != QLatin1String("GIF"));
}

void TestBuiltInCatalogue::textsAreFilledIn()
{
    QFETCH(Group, group);
    QFETCH(QVariantMap, preset);
    for (const char *key : {"extension", "title"}) {
        QCOMPARE(preset.value(QLatin1String(key)).type(), QVariant::String);
        QVERIFY(!text(preset, key).isEmpty());
    }
    QCOMPARE(text(preset, "extension"), text(preset, "extension").toLower());
    const QString title = text(preset, "title");
    if (group.category == QLatin1String("Video") && title != sameAsSource) {
        QCOMPARE(title, title.toUpper());
    }
}

void TestBuiltInCatalogue::optionsAreInOrder()
{
    QFETCH(QVariantMap, preset);
    const QRegularExpression box(QStringLiteral("^[1-9][0-9]*[02468]x[1-9][0-9]*[02468]$"));
    for (const Choice &choice : choicesOf(preset)) {
        if (choice.key.endsWith(QLatin1String("encoder"))) {
            QVERIFY2(choice.options.lastIndexOf(keepsSource) <= 0, qPrintable(choice.key));
        } else if (choice.key.endsWith(QLatin1String("resolution"))) {
            QVERIFY2(choice.options.lastIndexOf(keepsSource) <= 0, qPrintable(choice.key));
            qint64 area = std::numeric_limits<qint64>::max();
            for (const QVariant &option : choice.options) {
                const QString resolution = option.toString();
                if (resolution != keepsSource) {
                    QVERIFY2(box.match(resolution).hasMatch(), qPrintable(resolution));
                    QVERIFY2(areaOf(resolution) < area, qPrintable(resolution));
                    area = areaOf(resolution);
                }
            }
        } else {
            QVERIFY2(ascends(choice.options), qPrintable(choice.key));
            QVERIFY2(choice.options.value(0).toDouble() >= 0, qPrintable(choice.key));
        }
    }
}

void TestBuiltInCatalogue::bitratesAreOfferedWhereEncodersTakeThem()
{
    QFETCH(QVariantMap, preset);
    const auto expectBitrates = [&preset](const QString &block, auto takesBitrate) {
        const QStringList encoders =
            preset.value(block).toMap().value(QStringLiteral("encoderList")).toStringList();
        const QVariantList bitrates =
            preset.value(block).toMap().value(QStringLiteral("bitrateKbpsList")).toList();
        if (std::any_of(encoders.begin(), encoders.end(), takesBitrate)) {
            QVERIFY2(bitrates.size() > 1, qPrintable(block));
        }
    };
    expectBitrates(videoOptions, [](const QString &name) {
        return name != keepsSource && videoCodec(name).takesBitrate;
    });
    expectBitrates(audioOptions, [](const QString &name) {
        return name != keepsSource && audioCodec(name).takesBitrate;
    });
}

void TestBuiltInCatalogue::bitratesStartWithTheSources()
{
    QFETCH(QVariantMap, preset);
    for (const Choice &choice : choicesOf(preset)) {
        if (choice.key.endsWith(bitrateKbps)) {
            QVERIFY2(!choice.options.isEmpty(), qPrintable(choice.key));
            QVERIFY2(choice.options.constFirst() == 0, qPrintable(choice.key));
        }
    }
}

void TestBuiltInCatalogue::levelsAreOfferedAndDescend()
{
    QFETCH(QVariantMap, preset);
    if (!preset.contains(videoParam)) {
        return;
    }
    const QVariantMap options = preset.value(videoOptions).toMap();
    const QVariantList bitrates = options.value(QStringLiteral("bitrateKbpsList")).toList();
    const QVariantList levels = options.value(QStringLiteral("levelList")).toList();
    QCOMPARE(levels.size(), 3);
    for (const QVariant &level : levels) {
        QVERIFY2(bitrates.contains(level), qPrintable(level.toString()));
    }
    const int high = levels.at(0).toInt();
    const int middle = levels.at(1).toInt();
    const int low = levels.at(2).toInt();
    QCOMPARE(high, bitrates.constLast().toInt());
    QCOMPARE(middle, preset.value(videoParam).toMap().value(bitrateKbps).toInt());
    if (bitrates.size() == 1) {
        return; // the encoder sets the bitrate
    }
    QVERIFY(high > low);
    QVERIFY(low > 0);
    if (text(preset, "title") == sameAsSource) {
        QCOMPARE(middle, 0);
    } else {
        QVERIFY(high > middle);
        QVERIFY(middle > low);
    }
}

void TestBuiltInCatalogue::sameAsSourceChangesNothing()
{
    QFETCH(QVariantMap, preset);
    if (text(preset, "title") != sameAsSource) {
        return;
    }
    for (const Choice &choice : choicesOf(preset)) {
        // A format that is named after a codec uses that codec.
        const bool isOfOneCodec =
            choice.key.endsWith(QLatin1String("encoder")) && !choice.options.contains(keepsSource);
        QCOMPARE(choice.value.toString() == keepsSource, !isOfOneCodec);
    }
}

void TestBuiltInCatalogue::devicesAndSitesSayWhichLimitTheyFollow()
{
    QFETCH(Group, group);
    QFETCH(QVariantMap, preset);
    const bool says = !text(preset, "limit").isEmpty() || !text(preset, "status").isEmpty();
    QCOMPARE(says, !group.isOfFormat());
}

void TestBuiltInCatalogue::xIsSentNoMoreThanItTakes()
{
    const auto x = std::find_if(m_groups.begin(), m_groups.end(), [](const Group &group) {
        return group.name == QLatin1String("X");
    });
    QVERIFY(x != m_groups.end());
    for (const QVariantMap &preset : x->presets) {
        QVERIFY(text(preset, "id").startsWith(QLatin1String("SocialVideo_TWITTER_")));
        const QVariantMap options = preset.value(videoOptions).toMap();
        for (const QString &size : options.value(QStringLiteral("resolutionList")).toStringList()) {
            const QStringList sides = size.split(QLatin1Char('x'));
            const int width = sides.value(0).toInt();
            const int height = sides.value(1).toInt();
            const bool isTaken =
                (width <= 1920 && height <= 1200) || (width <= 1200 && height <= 1900);
            QVERIFY2(width > 0 && isTaken, qPrintable(size));
        }
    }
}

void TestBuiltInCatalogue::fittingPresetsDiffer()
{
    QFETCH(Group, group);
    if (!group.isOfFormat()) {
        return; // presets of other categories are never fitted
    }
    // Of two that fit equally well, the first would never be chosen.
    QStringList seen;
    for (const QVariantMap &preset : qAsConst(group.presets)) {
        const QString fits =
            preset.contains(videoParam)
                ? QString::number(areaOf(text(preset.value(videoParam).toMap(), "resolution")))
                : preset.value(audioParam).toMap().value(bitrateKbps).toString();
        QVERIFY2(fits == keepsSource || !seen.contains(fits), qPrintable(text(preset, "id")));
        seen.append(fits);
    }
}

int main(int argc, char *argv[])
{
    qunsetenv("VEX_EXPORT_CATALOGUE");
    QCoreApplication application(argc, argv);
    TestBuiltInCatalogue test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_builtincatalogue.moc"

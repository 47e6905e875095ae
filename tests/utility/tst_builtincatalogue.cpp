#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/convert/textlist.h"

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

    // As ids and icons write it: "HEVC MP4" is HEVCMP4.
    [[nodiscard]] QString idPart() const
    {
        return name.toUpper().remove(QRegularExpression(QStringLiteral("[^A-Z0-9]")));
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

bool hasSound(const QVariantMap &preset)
{
    return !preset.value(audioParam).toMap().isEmpty();
}

QVariantList offered(const QVariantMap &preset, const QString &block, const char *key)
{
    return preset.value(block).toMap().value(QLatin1String(key)).toList();
}

// The values of an option list without the one that keeps the source's.
QStringList ownValues(const QVariantMap &preset, const QString &block, const char *key)
{
    QStringList values;
    for (const QVariant &value : offered(preset, block, key)) {
        if (value != keepsSource) {
            values.append(value.toString());
        }
    }
    return values;
}

// The codecs that a preset may be written with; "0" may come out as the container's usual one.
QStringList codecsOf(const QVariantMap &preset, const QString &block, const char *held)
{
    QStringList codecs = ownValues(preset, block, "encoderList");
    if (offered(preset, block, "encoderList").contains(keepsSource)) {
        codecs.append(words(held).constFirst());
    }
    return codecs;
}

bool takes(const char *allowed, const QString &value)
{
    return *allowed == '\0' || words(allowed).contains(value);
}

bool takesFrameRate(const VideoCodec &codec, const QString &rate)
{
    const QStringList allowed = words(codec.frameRates);
    return allowed.isEmpty() ||
           std::any_of(allowed.cbegin(), allowed.cend(), [&rate](const QString &text) {
               return Ratio::fromText(text) == Ratio::fromFrameRate(rate);
           });
}

bool takesSize(const VideoCodec &codec, const QString &resolution)
{
    return codec.frames.isEmpty() ||
           std::any_of(
               codec.frames.cbegin(), codec.frames.cend(),
               [&resolution](const VideoCodec::Frame &frame) {
                   return resolution ==
                          QStringLiteral("%1x%2").arg(frame.size.width()).arg(frame.size.height());
               });
}

// The catalogue's bitrates are whole numbers, also where a codec's are not.
bool takesBitrate(const AudioCodec &codec, const QString &kbps)
{
    const QStringList allowed = words(codec.bitrates);
    return allowed.isEmpty() ||
           std::any_of(allowed.cbegin(), allowed.cend(), [&kbps](const QString &text) {
               return qRound(text.toDouble()) == kbps.toInt();
           });
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
    if (hasSound(preset)) {
        for (const char *key : {"encoder", "channel", "sampleRate", "bitrateKbps"}) {
            add(audioParam, audioOptions, key);
        }
    }
    return choices;
}

bool isText(const Choice &choice)
{
    return choice.key.endsWith(QLatin1String("encoder")) ||
           choice.key.endsWith(QLatin1String("resolution"));
}

bool isNumber(const QVariant &value)
{
    return value.type() == QVariant::LongLong || value.type() == QVariant::Double;
}

// Unlike QVariant's own comparison, tells the text "0" from the number 0.
bool isSame(const QVariant &a, const QVariant &b)
{
    return a.type() == b.type() && a == b;
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

class tst_BuiltInCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void itHoldsTheFormatsOfEveryCategory();
    void idsAreUnique();
    void groupNamesAreUnique();
    void equalOptionListsAreShared();

    void groupsAreWellFormed_data() { everyGroup(); }
    void groupsAreWellFormed();
    void iconsAreDrawn_data() { everyGroup(); }
    void iconsAreDrawn();
    void fittingPresetsDiffer_data() { everyGroup(); }
    void fittingPresetsDiffer();
    void formatsKeepingTheSourceSaySoFirst_data() { everyGroup(); }
    void formatsKeepingTheSourceSaySoFirst();

    void idsNameCategoryAndFormat_data() { everyPreset(); }
    void idsNameCategoryAndFormat();
    void textsAreFilledIn_data() { everyPreset(); }
    void textsAreFilledIn();
    void presetsHoldTheKnownKeysOnly_data() { everyPreset(); }
    void presetsHoldTheKnownKeysOnly();
    void chosenValuesAreOffered_data() { everyPreset(); }
    void chosenValuesAreOffered();
    void encodersAndResolutionsAreTextsAllElseNumbers_data() { everyPreset(); }
    void encodersAndResolutionsAreTextsAllElseNumbers();
    void optionsAreInOrder_data() { everyPreset(); }
    void optionsAreInOrder();
    void bitratesStartWithTheSources_data() { everyPreset(); }
    void bitratesStartWithTheSources();
    void levelsAreOfferedAndDescend_data() { everyPreset(); }
    void levelsAreOfferedAndDescend();
    void sameAsSourceChangesNothing_data() { everyPreset(); }
    void sameAsSourceChangesNothing();
    void containersHoldTheEncoders_data() { everyPreset(); }
    void containersHoldTheEncoders();
    void videoEncodersTakeTheOptions_data() { everyPreset(); }
    void videoEncodersTakeTheOptions();
    void audioEncodersTakeTheOptions_data() { everyPreset(); }
    void audioEncodersTakeTheOptions();

private:
    void everyGroup();
    void everyPreset();

    const QList<Group> m_groups = allGroups();
};

void tst_BuiltInCatalogue::everyGroup()
{
    QTest::addColumn<Group>("group");
    for (const Group &group : m_groups) {
        QTest::addRow("%s %s", qPrintable(group.category), qPrintable(group.name)) << group;
    }
}

void tst_BuiltInCatalogue::everyPreset()
{
    QTest::addColumn<Group>("group");
    QTest::addColumn<QVariantMap>("preset");
    for (const Group &group : m_groups) {
        for (const QVariantMap &preset : group.presets) {
            QTest::addRow("%s", qPrintable(text(preset, "id"))) << group << preset;
        }
    }
}

void tst_BuiltInCatalogue::itHoldsTheFormatsOfEveryCategory()
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
             list("YouTube,Vimeo,Facebook,Instagram,TikTok,Twitter,Dailymotion,Twitch,LinkedIn,"
                  "Bilibili"));
    QCOMPARE(text(m_groups.value(0).presets.value(0), "id"), QStringLiteral("Video_MP4_001"));
}

void tst_BuiltInCatalogue::idsAreUnique()
{
    QSet<QString> ids;
    for (const Group &group : m_groups) {
        for (const QVariantMap &preset : group.presets) {
            const QString id = text(preset, "id");
            QVERIFY2(!ids.contains(id), qPrintable(id));
            ids.insert(id);
        }
    }
}

void tst_BuiltInCatalogue::groupNamesAreUnique()
{
    QSet<QString> names;
    for (const Group &group : m_groups) {
        QVERIFY2(!names.contains(group.name), qPrintable(group.name));
        names.insert(group.name);
    }
}

void tst_BuiltInCatalogue::equalOptionListsAreShared()
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

void tst_BuiltInCatalogue::groupsAreWellFormed()
{
    QFETCH(Group, group);
    QVERIFY(group.presets.size() >= 3);
    QVERIFY(group.presets.size() <= 12);
    QCOMPARE(group.icon, QLatin1String("fmt_") + group.idPart().toLower());
    if (group.isOfFormat()) {
        QCOMPARE(group.name, group.name.toUpper());
    }
    QStringList titles;
    for (const QVariantMap &preset : qAsConst(group.presets)) {
        QVERIFY(!titles.contains(text(preset, "title")));
        titles.append(text(preset, "title"));
    }
}

void tst_BuiltInCatalogue::iconsAreDrawn()
{
    QFETCH(Group, group);
    const QString file = QStringLiteral(VEX_FORMAT_ICONS "/%1.svg").arg(group.icon);
    QVERIFY2(QFile::exists(file), qPrintable(file));
}

void tst_BuiltInCatalogue::formatsKeepingTheSourceSaySoFirst()
{
    QFETCH(Group, group);
    for (int i = 0; i < group.presets.size(); ++i) {
        QCOMPARE(text(group.presets.at(i), "title") == sameAsSource, group.isOfFormat() && i == 0);
    }
}

void tst_BuiltInCatalogue::idsNameCategoryAndFormat()
{
    QFETCH(Group, group);
    QFETCH(QVariantMap, preset);
    const QString id = text(preset, "id");
    const QRegularExpression pattern(QStringLiteral("^([A-Za-z]+)_([A-Z0-9]+)_[0-9]{3}$"));
    const QRegularExpressionMatch match = pattern.match(id);
    QVERIFY2(match.hasMatch(), qPrintable(id));
    QCOMPARE(match.captured(1), group.category);
    QCOMPARE(match.captured(2), group.idPart());
}

void tst_BuiltInCatalogue::presetsHoldTheKnownKeysOnly()
{
    QFETCH(Group, group);
    QFETCH(QVariantMap, preset);
    const auto keysOf = [&preset](const QString &block) {
        return preset.value(block).toMap().keys().join(QLatin1Char(' '));
    };
    const bool isVideo = group.category != QLatin1String("Audio");
    QCOMPARE(preset.keys().join(QLatin1Char(' ')),
             isVideo ? QStringLiteral("audioOptions audioParam extension id title videoOptions "
                                      "videoParam")
                     : QStringLiteral("audioOptions audioParam extension id title"));
    if (isVideo) {
        QCOMPARE(keysOf(videoParam), QStringLiteral("bitrateKbps encoder frameRate resolution"));
        QCOMPARE(keysOf(videoOptions), QStringLiteral("bitrateKbpsList encoderList frameRateList "
                                                      "levelList resolutionList"));
    }
    // A GIF is the one format without sound.
    const bool sounds = group.name != QLatin1String("GIF");
    QCOMPARE(keysOf(audioParam),
             sounds ? QStringLiteral("bitrateKbps channel encoder sampleRate") : QString());
    QCOMPARE(keysOf(audioOptions),
             sounds ? QStringLiteral("bitrateKbpsList channelList encoderList sampleRateList")
                    : QString());
}

void tst_BuiltInCatalogue::textsAreFilledIn()
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

void tst_BuiltInCatalogue::chosenValuesAreOffered()
{
    QFETCH(QVariantMap, preset);
    for (const Choice &choice : choicesOf(preset)) {
        QVERIFY2(std::any_of(choice.options.cbegin(), choice.options.cend(),
                             [&](const QVariant &option) { return isSame(option, choice.value); }),
                 qPrintable(choice.key));
    }
}

void tst_BuiltInCatalogue::encodersAndResolutionsAreTextsAllElseNumbers()
{
    QFETCH(QVariantMap, preset);
    for (const Choice &choice : choicesOf(preset)) {
        for (const QVariant &value : choice.options + QVariantList{choice.value}) {
            QVERIFY2(isText(choice) ? value.type() == QVariant::String : isNumber(value),
                     qPrintable(choice.key));
        }
    }
    for (const QVariant &level :
         preset.value(videoOptions).toMap().value(QStringLiteral("levelList")).toList()) {
        QCOMPARE(level.type(), QVariant::LongLong);
    }
}

void tst_BuiltInCatalogue::optionsAreInOrder()
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

void tst_BuiltInCatalogue::bitratesStartWithTheSources()
{
    QFETCH(QVariantMap, preset);
    for (const Choice &choice : choicesOf(preset)) {
        if (choice.key.endsWith(bitrateKbps)) {
            QVERIFY2(!choice.options.isEmpty(), qPrintable(choice.key));
            QVERIFY2(choice.options.constFirst() == 0, qPrintable(choice.key));
        }
    }
}

void tst_BuiltInCatalogue::levelsAreOfferedAndDescend()
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

void tst_BuiltInCatalogue::sameAsSourceChangesNothing()
{
    QFETCH(QVariantMap, preset);
    if (text(preset, "title") != sameAsSource) {
        return;
    }
    for (const Choice &choice : choicesOf(preset)) {
        // A format that is named after its codec is written with that one.
        const bool isOfOneCodec =
            choice.key.endsWith(QLatin1String("encoder")) && !choice.options.contains(keepsSource);
        QCOMPARE(choice.value.toString() == keepsSource, !isOfOneCodec);
    }
}

void tst_BuiltInCatalogue::fittingPresetsDiffer()
{
    QFETCH(Group, group);
    if (!group.isOfFormat()) {
        return; // those are never fitted
    }
    // Of two that fit a wish equally well the later would always be taken.
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

void tst_BuiltInCatalogue::containersHoldTheEncoders()
{
    QFETCH(QVariantMap, preset);
    const Container *const container = Container::find(text(preset, "extension"));
    QVERIFY(container);
    for (const QString &encoder : ownValues(preset, videoOptions, "encoderList")) {
        QVERIFY2(words(container->videoCodecs).contains(encoder), qPrintable(encoder));
    }
    for (const QString &encoder : ownValues(preset, audioOptions, "encoderList")) {
        QVERIFY2(words(container->audioCodecs).contains(encoder), qPrintable(encoder));
    }
    QCOMPARE(hasSound(preset), *container->audioCodecs != '\0');
}

void tst_BuiltInCatalogue::videoEncodersTakeTheOptions()
{
    QFETCH(QVariantMap, preset);
    if (!preset.contains(videoParam)) {
        return;
    }
    const Container *const container = Container::find(text(preset, "extension"));
    QVERIFY(container);
    bool takesBitrates = false;
    for (const QString &name : codecsOf(preset, videoOptions, container->videoCodecs)) {
        const VideoCodec &codec = videoCodec(name);
        takesBitrates = takesBitrates || codec.takesBitrate;
        for (const QString &rate : ownValues(preset, videoOptions, "frameRateList")) {
            QVERIFY2(takesFrameRate(codec, rate), qPrintable(name + QLatin1Char(' ') + rate));
        }
        for (const QString &size : ownValues(preset, videoOptions, "resolutionList")) {
            QVERIFY2(takesSize(codec, size), qPrintable(name + QLatin1Char(' ') + size));
        }
    }
    QCOMPARE(!ownValues(preset, videoOptions, "bitrateKbpsList").isEmpty(), takesBitrates);
}

void tst_BuiltInCatalogue::audioEncodersTakeTheOptions()
{
    QFETCH(QVariantMap, preset);
    if (!hasSound(preset)) {
        return;
    }
    const Container *const container = Container::find(text(preset, "extension"));
    QVERIFY(container);
    bool takesBitrates = false;
    for (const QString &name : codecsOf(preset, audioOptions, container->audioCodecs)) {
        const AudioCodec &codec = audioCodec(name);
        takesBitrates = takesBitrates || codec.takesBitrate;
        const auto message = [&name](const QString &value) {
            return name + QLatin1Char(' ') + value;
        };
        for (const QString &rate : ownValues(preset, audioOptions, "sampleRateList")) {
            QVERIFY2(takes(codec.sampleRates, rate) && takes(container->sampleRates, rate),
                     qPrintable(message(rate)));
        }
        for (const QString &channels : ownValues(preset, audioOptions, "channelList")) {
            QVERIFY2(channels.toInt() <= codec.maxChannels, qPrintable(message(channels)));
            QVERIFY2(container->channels == 0 || channels.toInt() == container->channels,
                     qPrintable(message(channels)));
        }
        for (const QString &kbps : ownValues(preset, audioOptions, "bitrateKbpsList")) {
            QVERIFY2(takesBitrate(codec, kbps), qPrintable(message(kbps)));
        }
    }
    QCOMPARE(!ownValues(preset, audioOptions, "bitrateKbpsList").isEmpty(), takesBitrates);
}

int main(int argc, char *argv[])
{
    qunsetenv("VEX_EXPORT_CATALOGUE");
    QCoreApplication application(argc, argv);
    tst_BuiltInCatalogue test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_builtincatalogue.moc"

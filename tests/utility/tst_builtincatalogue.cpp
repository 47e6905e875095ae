#include <formatcodecapi.h>

#include <QtTest>

#include <algorithm>

namespace {

const QString videoParam = QStringLiteral("videoParam");
const QString videoOptions = QStringLiteral("videoOptions");
const QString audioParam = QStringLiteral("audioParam");
const QString audioOptions = QStringLiteral("audioOptions");
const QString bitrateKbps = QStringLiteral("bitrateKbps");
const QString sameAsSource = QStringLiteral("Same as source");

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

// A chosen value with the list of values that are offered for it.
struct Choice
{
    QString key;
    QVariant value;
    QVariantList options;
};

QList<Choice> choicesOf(const QVariantMap &preset)
{
    QList<Choice> choices;
    const auto add = [&](const QString &param, const QString &options, const char *key) {
        choices.append({param + QLatin1Char('.') + QLatin1String(key),
                        preset.value(param).toMap().value(QLatin1String(key)),
                        preset.value(options)
                            .toMap()
                            .value(QLatin1String(key) + QLatin1String("List"))
                            .toList()});
    };
    if (preset.contains(videoParam)) {
        for (const char *key : {"encoder", "resolution", "frameRate", "bitrateKbps"}) {
            add(videoParam, videoOptions, key);
        }
    }
    for (const char *key : {"encoder", "channel", "sampleRate", "bitrateKbps"}) {
        add(audioParam, audioOptions, key);
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
    void formatsKeepingTheSourceSaySoFirst_data() { everyGroup(); }
    void formatsKeepingTheSourceSaySoFirst();

    void idsNameCategoryAndFormat_data() { everyPreset(); }
    void idsNameCategoryAndFormat();
    void textsAreFilledIn_data() { everyPreset(); }
    void textsAreFilledIn();
    void onlyAudioFormatsLackVideo_data() { everyPreset(); }
    void onlyAudioFormatsLackVideo();
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
    QCOMPARE(names.value(QStringLiteral("Video")),
             QStringLiteral("MP4 MOV MKV AVI WEBM WMV MPG").split(QLatin1Char(' ')));
    QCOMPARE(names.value(QStringLiteral("Audio")),
             QStringLiteral("MP3 AAC M4A FLAC WAV OGG OPUS").split(QLatin1Char(' ')));
    QCOMPARE(names.value(QStringLiteral("Device")),
             QStringLiteral("Apple Samsung").split(QLatin1Char(' ')));
    QCOMPARE(names.value(QStringLiteral("SocialVideo")),
             QStringLiteral("YouTube Vimeo Facebook").split(QLatin1Char(' ')));
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
    QVERIFY(group.presets.size() >= 4);
    QVERIFY(group.presets.size() <= 12);
    QVERIFY2(QRegularExpression(QStringLiteral("^fmt_[a-z0-9]+$")).match(group.icon).hasMatch(),
             qPrintable(group.icon));
    if (group.isOfFormat()) {
        QCOMPARE(group.name, group.name.toUpper());
    }
    QStringList titles;
    for (const QVariantMap &preset : qAsConst(group.presets)) {
        QVERIFY(!titles.contains(text(preset, "title")));
        titles.append(text(preset, "title"));
    }
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
    QCOMPARE(match.captured(2), group.name.toUpper());
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

void tst_BuiltInCatalogue::onlyAudioFormatsLackVideo()
{
    QFETCH(Group, group);
    QFETCH(QVariantMap, preset);
    const bool isVideo = group.category != QLatin1String("Audio");
    QCOMPARE(preset.contains(videoParam), isVideo);
    QCOMPARE(preset.contains(videoOptions), isVideo);
    QVERIFY(preset.contains(audioParam));
    QVERIFY(preset.contains(audioOptions));
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
            QVERIFY2(choice.options.lastIndexOf(QStringLiteral("0")) <= 0, qPrintable(choice.key));
        } else if (choice.key.endsWith(QLatin1String("resolution"))) {
            QCOMPARE(choice.options.value(0), QVariant(QStringLiteral("0")));
            for (int i = 1; i < choice.options.size(); ++i) {
                const QString resolution = choice.options.at(i).toString();
                QVERIFY2(box.match(resolution).hasMatch(), qPrintable(resolution));
                QVERIFY2(i == 1 || areaOf(choice.options.at(i - 1).toString()) > areaOf(resolution),
                         qPrintable(resolution));
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
    QFETCH(Group, group);
    QFETCH(QVariantMap, preset);
    if (text(preset, "title") != sameAsSource) {
        return;
    }
    // An audio format is its codec: there only the encoder is not the source's.
    const bool keepsEncoder = group.category != QLatin1String("Audio");
    for (const Choice &choice : choicesOf(preset)) {
        const bool isEncoder = choice.key.endsWith(QLatin1String("encoder"));
        QCOMPARE(choice.value.toString() == QLatin1String("0"), !isEncoder || keepsEncoder);
    }
}

int main(int argc, char *argv[])
{
    qunsetenv("VEX_EXPORT_CATALOGUE");
    QCoreApplication application(argc, argv);
    tst_BuiltInCatalogue test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_builtincatalogue.moc"

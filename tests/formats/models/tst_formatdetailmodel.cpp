#include "formats/models/formatdetailmodel.h"
#include "tests/formats/models/modelobservers.h"
#include "tests/formats/models/presetsamples.h"
#include "tests/support/messagelog.h"

#include <QtTest>

#include <climits>
#include <memory>
#include <optional>

namespace {

const int userDefineIdAtStart = FormatDetailModel::s_userDefineId;
const int idForTestAtStart = FormatDetailModel::s_idForTest;

struct Role
{
    int number;
    const char *name; // also the name of the field
    const char *type;
};

// In the order of their numbers.
constexpr Role roles[] = {
    {FormatDetailModel::ExtensionRole, "extension", "QString"},
    {FormatDetailModel::IdRole, "id", "QString"},
    {FormatDetailModel::TitleRole, "title", "QString"},
    {FormatDetailModel::IconRole, "icon", "QString"},
    {FormatDetailModel::UserDefineRole, "userDefine", "bool"},
    {FormatDetailModel::VideoEncoderRole, "videoEncoder", "QString"},
    {FormatDetailModel::VideoEncodersRole, "videoEncoders", "QVariantList"},
    {FormatDetailModel::VideoFrameRateRole, "videoFrameRate", "QString"},
    {FormatDetailModel::VideoFrameRatesRole, "videoFrameRates", "QVariantList"},
    {FormatDetailModel::VideoResolutionRole, "videoResolution", "QString"},
    {FormatDetailModel::VideoResolutionsRole, "videoResolutions", "QVariantList"},
    {FormatDetailModel::VideoBitrateLowRole, "videoBitrateLow", "QString"},
    {FormatDetailModel::VideoBitrateMidRole, "videoBitrateMid", "QString"},
    {FormatDetailModel::VideoBitrateHighRole, "videoBitrateHigh", "QString"},
    {FormatDetailModel::VideoBitratesRole, "videoBitrates", "QVariantList"},
    {FormatDetailModel::AudioEncoderRole, "audioEncoder", "QString"},
    {FormatDetailModel::AudioEncodersRole, "audioEncoders", "QVariantList"},
    {FormatDetailModel::AudioSampleRateRole, "audioSampleRate", "QString"},
    {FormatDetailModel::AudioSampleRatesRole, "audioSampleRates", "QVariantList"},
    {FormatDetailModel::AudioChannelRole, "audioChannel", "QString"},
    {FormatDetailModel::AudioChannelsRole, "audioChannels", "QVariantList"},
    {FormatDetailModel::AudioBitrateRole, "audioBitrate", "QString"},
    {FormatDetailModel::AudioBitratesRole, "audioBitrates", "QVariantList"},
    {FormatDetailModel::IsLoselessRole, "isLoseless", "bool"},
    {FormatDetailModel::SupportMultiTrackRole, "supportMultiTrack", "bool"},
    {FormatDetailModel::ParamRole, "param", "QString"},
};

void addRoleRows()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("type");
    for (const Role &role : roles) {
        QTest::newRow(role.name) << role.number << QString::fromLatin1(role.name)
                                 << QByteArray(role.type);
    }
}

FormatDetailModel::InvitationRoles asRole(int number)
{
    return static_cast<FormatDetailModel::InvitationRoles>(number);
}

} // namespace

class TestFormatDetailModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theCountersStartAt1000And1001();
    void aNewModelIsEmpty();
    void theMetaObjectOffersTheseMethods();
    void theMetaObjectOffersTheCount();
    void qmlCallsTheInvokables();
    void theRolesAreNumberedFrom257();
    void everyRoleHasAName();
    void dataGivesTheFieldOfTheRole_data();
    void dataGivesTheFieldOfTheRole();
    void dataOfAnUnknownRoleIsInvalid_data();
    void dataOfAnUnknownRoleIsInvalid();
    void dataOutsideTheRowsIsInvalid();
    void rowCountIgnoresTheParent();

    void addingAppendsACopy();
    void addingAtTheHeadPutsACopyFirst();
    void addingAnnouncesOneRowThenTheCount();
    void addingTheSameIdTwiceKeepsBoth();
    void aUserDefinedIdRaisesTheHighestId_data();
    void aUserDefinedIdRaisesTheHighestId();
    void theHighestIdIsSharedAndNeverFalls();
    void theHighestIdIsRaisedBetweenAnnouncementAndInsertion();

    void deletingARowRemovesItAlone();
    void deletingAnnouncesOneRowThenTheCount();
    void deletingOutsideTheRowsIsRefused_data();
    void deletingOutsideTheRowsIsRefused();
    void deletingByIdRemovesTheFirstOfSeveral();
    void deletingAnUnknownIdKeepsTheList();
    void clearingDeletesRowByRowAndSetsTheCountOnceMore();
    void clearingAnEmptyModelSetsTheCountOnce();
    void theDestructorClears();

    void settingTheCountAlwaysNotifies();
    void theCountIsKeptUntilTheRowsChange();

    void updatingOverwritesTheWholePreset();
    void updatingAnnouncesEveryRole();
    void updatingOutsideTheRowsIsRefused_data();
    void updatingOutsideTheRowsIsRefused();
    void updatingFollowsAChangedId();
    void updatingLeavesTheHighestId();

    void idsAreComparedExactly_data();
    void idsAreComparedExactly();
    void theFirstRowOfAnIdIsFound();
    void theIdOutsideTheRowsIsEmpty_data();
    void theIdOutsideTheRowsIsEmpty();
    void allPresetsAreAppendedToTheQueue();
    void aPresetIsReadByItsRow();
    void readingOutsideTheRowsLeavesTheOutput_data();
    void readingOutsideTheRowsLeavesTheOutput();
    void aPresetIsReadByItsId();
    void onlyUserDefinedPresetsAreCounted();

    void theExtensionIsWrittenByIdAndAnnounced();
    void otherRolesAreNotWritten_data();
    void otherRolesAreNotWritten();
    void writingAnUnknownIdIsRefused();
    void onlyTheExtensionIsReadById();

    void theListsHoldUserDefinedPresetsOnly();
    void theListsOfCataloguePresetsAreEmpty();
    void theTestListRenumbersEveryPreset();

private:
    std::optional<MessageLog> m_log;
    std::unique_ptr<FormatDetailModel> m_model;
};

void TestFormatDetailModel::init()
{
    FormatDetailModel::s_userDefineId = 1000;
    FormatDetailModel::s_idForTest = 1001;
    m_log.emplace();
    m_model = std::make_unique<FormatDetailModel>();
    guard(*m_model);
}

void TestFormatDetailModel::cleanup()
{
    m_model.reset();
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
}

void TestFormatDetailModel::theCountersStartAt1000And1001()
{
    QCOMPARE(userDefineIdAtStart, 1000);
    QCOMPARE(idForTestAtStart, 1001);
    QCOMPARE(m_model->getIdIndex(), 1000);
}

void TestFormatDetailModel::aNewModelIsEmpty()
{
    QObject parent;
    const auto *model = new FormatDetailModel(&parent);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->count(), 0);
    QCOMPARE(model->userDefineCount(), 0);
}

void TestFormatDetailModel::theMetaObjectOffersTheseMethods()
{
    const QMetaObject &meta = FormatDetailModel::staticMetaObject;
    QCOMPARE(meta.superClass(), &QAbstractListModel::staticMetaObject);
    QCOMPARE(ownMethods(meta), QStringList({
                                   QStringLiteral("signal void countChanged(int count)"),
                                   QStringLiteral("invokable QString getId(int index)"),
                                   QStringLiteral("invokable bool isExist(QString id)"),
                               }));
}

void TestFormatDetailModel::theMetaObjectOffersTheCount()
{
    QCOMPARE(ownProperties(FormatDetailModel::staticMetaObject),
             QStringList({QStringLiteral("int count, written, notify countChanged")}));
    QVERIFY(m_model->setProperty("count", 7));
    QCOMPARE(m_model->count(), 7);
    QCOMPARE(m_model->property("count"), QVariant(7));
}

void TestFormatDetailModel::qmlCallsTheInvokables()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    QString id;
    QVERIFY(QMetaObject::invokeMethod(m_model.get(), "getId", Q_RETURN_ARG(QString, id),
                                      Q_ARG(int, 0)));
    QCOMPARE(id, QStringLiteral("a"));
    bool exists = false;
    QVERIFY(QMetaObject::invokeMethod(m_model.get(), "isExist", Q_RETURN_ARG(bool, exists),
                                      Q_ARG(QString, QStringLiteral("a"))));
    QVERIFY(exists);
}

void TestFormatDetailModel::theRolesAreNumberedFrom257()
{
    int number = 257;
    for (const Role &role : roles) {
        QCOMPARE(role.number, number++);
    }
    QCOMPARE(QMetaEnum::fromType<FormatDetailModel::InvitationRoles>().keyCount(), number - 257);
}

void TestFormatDetailModel::everyRoleHasAName()
{
    QHash<int, QByteArray> names;
    for (const Role &role : roles) {
        names.insert(role.number, role.name);
    }
    QCOMPARE(m_model->roleNames(), names);
}

void TestFormatDetailModel::dataGivesTheFieldOfTheRole_data()
{
    addRoleRows();
}

void TestFormatDetailModel::dataGivesTheFieldOfTheRole()
{
    QFETCH(int, number);
    QFETCH(QString, name);
    QFETCH(QByteArray, type);
    m_model->addModeInfo(FormatDetailModelData());
    m_model->addModeInfo(samplePreset());

    const QVariant value = m_model->data(m_model->index(1), number);
    QCOMPARE(QByteArray(value.typeName()), type);
    QCOMPARE(value, fieldsOf(samplePreset()).value(name));
    QCOMPARE(m_model->data(m_model->index(0), number),
             fieldsOf(FormatDetailModelData()).value(name));
}

void TestFormatDetailModel::dataOfAnUnknownRoleIsInvalid_data()
{
    QTest::addColumn<int>("role");
    QTest::newRow("below the first") << FormatDetailModel::ExtensionRole - 1;
    QTest::newRow("above the last") << FormatDetailModel::ParamRole + 1;
    QTest::newRow("display role") << int(Qt::DisplayRole);
    QTest::newRow("edit role") << int(Qt::EditRole);
    QTest::newRow("negative") << -1;
    QTest::newRow("highest number") << INT_MAX;
}

void TestFormatDetailModel::dataOfAnUnknownRoleIsInvalid()
{
    QFETCH(int, role);
    m_model->addModeInfo(samplePreset());
    QVERIFY(!m_model->data(m_model->index(0), role).isValid());
}

void TestFormatDetailModel::dataOutsideTheRowsIsInvalid()
{
    FormatDetailModel longer;
    longer.addModeInfo(samplePreset());
    longer.addModeInfo(samplePreset());
    m_model->addModeInfo(samplePreset());
    for (const Role &role : roles) {
        QVERIFY(!m_model->data(QModelIndex(), role.number).isValid());
        QVERIFY(!m_model->data(longer.index(1), role.number).isValid());
    }
}

void TestFormatDetailModel::rowCountIgnoresTheParent()
{
    m_model->addModeInfo(samplePreset());
    m_model->addModeInfo(samplePreset());
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(m_model->rowCount(m_model->index(0)), 2);
}

void TestFormatDetailModel::addingAppendsACopy()
{
    FormatDetailModelData preset = samplePreset();
    QVERIFY(m_model->addModeInfo(presetWithId(QStringLiteral("a"))));
    QVERIFY(m_model->addModeInfo(preset));
    preset.id = QStringLiteral("changed later");

    QCOMPARE(idsOf(*m_model), QStringList({QStringLiteral("a"), samplePreset().id}));
    FormatDetailModelData read;
    QVERIFY(m_model->getModelInfoByIndex(1, read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(samplePreset())));
}

void TestFormatDetailModel::addingAtTheHeadPutsACopyFirst()
{
    FormatDetailModelData preset = samplePreset();
    QVERIFY(m_model->addModeInfoAtHead(presetWithId(QStringLiteral("a"))));
    QVERIFY(m_model->addModeInfoAtHead(preset));
    preset.id = QStringLiteral("changed later");

    QCOMPARE(idsOf(*m_model), QStringList({samplePreset().id, QStringLiteral("a")}));
    FormatDetailModelData read;
    QVERIFY(m_model->getModelInfoByIndex(0, read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(samplePreset())));
}

void TestFormatDetailModel::addingAnnouncesOneRowThenTheCount()
{
    SignalLog log(*m_model);
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeInserted 0-0; rows 0, count 0"),
                          QStringLiteral("rowsInserted 0-0; rows 1, count 0"),
                          QStringLiteral("countChanged 1; rows 1, count 1")}));
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeInserted 1-1; rows 1, count 1"),
                          QStringLiteral("rowsInserted 1-1; rows 2, count 1"),
                          QStringLiteral("countChanged 2; rows 2, count 2")}));
    m_model->addModeInfoAtHead(presetWithId(QStringLiteral("c")));
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeInserted 0-0; rows 2, count 2"),
                          QStringLiteral("rowsInserted 0-0; rows 3, count 2"),
                          QStringLiteral("countChanged 3; rows 3, count 3")}));
}

void TestFormatDetailModel::addingTheSameIdTwiceKeepsBoth()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    QVERIFY(m_model->addModeInfo(presetWithId(QStringLiteral("a"))));
    QVERIFY(m_model->addModeInfoAtHead(presetWithId(QStringLiteral("a"))));
    QCOMPARE(m_model->rowCount(), 3);
    QCOMPARE(m_model->count(), 3);
}

void TestFormatDetailModel::aUserDefinedIdRaisesTheHighestId_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("userDefine");
    QTest::addColumn<int>("highest");
    QTest::newRow("higher") << QStringLiteral("1005") << true << 1005;
    QTest::newRow("higher, of the catalogue") << QStringLiteral("1005") << false << 1000;
    QTest::newRow("equal") << QStringLiteral("1000") << true << 1000;
    QTest::newRow("lower") << QStringLiteral("999") << true << 1000;
    QTest::newRow("negative") << QStringLiteral("-1005") << true << 1000;
    QTest::newRow("no number") << QStringLiteral("Video_MP4_1005") << true << 1000;
    QTest::newRow("number and text") << QStringLiteral("1005_MP4") << true << 1000;
    QTest::newRow("hexadecimal") << QStringLiteral("0x1005") << true << 1000;
    QTest::newRow("leading zeroes are decimal") << QStringLiteral("01005") << true << 1005;
    QTest::newRow("fraction") << QStringLiteral("1005.5") << true << 1000;
    QTest::newRow("empty") << QString() << true << 1000;
    QTest::newRow("highest that an id can be") << QStringLiteral("2147483647") << true << INT_MAX;
    QTest::newRow("above that") << QStringLiteral("2147483648") << true << 1000;
}

void TestFormatDetailModel::aUserDefinedIdRaisesTheHighestId()
{
    QFETCH(QString, id);
    QFETCH(bool, userDefine);
    QFETCH(int, highest);
    m_model->addModeInfo(presetWithId(id, userDefine));
    QCOMPARE(m_model->getIdIndex(), highest);

    FormatDetailModel::s_userDefineId = 1000;
    m_model->addModeInfoAtHead(presetWithId(id, userDefine));
    QCOMPARE(m_model->getIdIndex(), highest);
}

void TestFormatDetailModel::theHighestIdIsSharedAndNeverFalls()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("1005"), true));
    QCOMPARE(FormatDetailModel().getIdIndex(), 1005);
    QCOMPARE(FormatDetailModel::s_userDefineId, 1005);

    m_model->addModeInfo(presetWithId(QStringLiteral("1002"), true));
    m_model->addModeInfo(presetWithId(QStringLiteral("none"), true));
    QCOMPARE(m_model->getIdIndex(), 1005);

    m_model->delModelInfoByKey(QStringLiteral("1005"));
    QCOMPARE(m_model->getIdIndex(), 1005);
    m_model->clearModeInfo();
    QCOMPARE(m_model->getIdIndex(), 1005);
}

void TestFormatDetailModel::theHighestIdIsRaisedBetweenAnnouncementAndInsertion()
{
    int announced = 0;
    int inserted = 0;
    connect(m_model.get(), &FormatDetailModel::rowsAboutToBeInserted, this,
            [&] { announced = m_model->getIdIndex(); });
    connect(m_model.get(), &FormatDetailModel::rowsInserted, this,
            [&] { inserted = m_model->getIdIndex(); });
    m_model->addModeInfo(presetWithId(QStringLiteral("1005"), true));
    QCOMPARE(announced, 1000);
    QCOMPARE(inserted, 1005);
}

void TestFormatDetailModel::deletingARowRemovesItAlone()
{
    for (const auto &id : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}) {
        m_model->addModeInfo(presetWithId(id));
    }
    QVERIFY(m_model->delModeInfo(1));
    QCOMPARE(idsOf(*m_model), QStringList({QStringLiteral("a"), QStringLiteral("c")}));
    QVERIFY(!m_model->containId(QStringLiteral("b")));
    QVERIFY(m_model->delModeInfo(1));
    QVERIFY(m_model->delModeInfo(0));
    QVERIFY(!m_model->delModeInfo(0));
}

void TestFormatDetailModel::deletingAnnouncesOneRowThenTheCount()
{
    for (const auto &id : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}) {
        m_model->addModeInfo(presetWithId(id));
    }
    SignalLog log(*m_model);
    m_model->delModeInfo(1);
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeRemoved 1-1; rows 3, count 3"),
                          QStringLiteral("rowsRemoved 1-1; rows 2, count 3"),
                          QStringLiteral("countChanged 2; rows 2, count 2")}));
}

void TestFormatDetailModel::deletingOutsideTheRowsIsRefused_data()
{
    addRowsOutsideTwo();
}

void TestFormatDetailModel::deletingOutsideTheRowsIsRefused()
{
    QFETCH(int, row);
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    SignalLog log(*m_model);
    QVERIFY(!m_model->delModeInfo(row));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(idsOf(*m_model), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
}

void TestFormatDetailModel::deletingByIdRemovesTheFirstOfSeveral()
{
    FormatDetailModelData second = presetWithId(QStringLiteral("a"));
    second.title = QStringLiteral("second");
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(second);
    SignalLog log(*m_model);

    QVERIFY(m_model->delModelInfoByKey(QStringLiteral("a")));
    QCOMPARE(log.takeAll().constFirst(),
             QStringLiteral("rowsAboutToBeRemoved 1-1; rows 3, count 3"));
    FormatDetailModelData left;
    QVERIFY(m_model->getModelInfoById(QStringLiteral("a"), left));
    QCOMPARE(left.title, QStringLiteral("second"));
    QVERIFY(m_model->delModelInfoByKey(QStringLiteral("a")));
    QVERIFY(!m_model->delModelInfoByKey(QStringLiteral("a")));
    QCOMPARE(idsOf(*m_model), QStringList({QStringLiteral("b")}));
}

void TestFormatDetailModel::deletingAnUnknownIdKeepsTheList()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    SignalLog log(*m_model);
    QVERIFY(!m_model->delModelInfoByKey(QStringLiteral("A")));
    QVERIFY(!m_model->delModelInfoByKey(QString()));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(m_model->rowCount(), 1);
}

void TestFormatDetailModel::clearingDeletesRowByRowAndSetsTheCountOnceMore()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    SignalLog log(*m_model);
    m_model->clearModeInfo();
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeRemoved 0-0; rows 2, count 2"),
                          QStringLiteral("rowsRemoved 0-0; rows 1, count 2"),
                          QStringLiteral("countChanged 1; rows 1, count 1"),
                          QStringLiteral("rowsAboutToBeRemoved 0-0; rows 1, count 1"),
                          QStringLiteral("rowsRemoved 0-0; rows 0, count 1"),
                          QStringLiteral("countChanged 0; rows 0, count 0"),
                          QStringLiteral("countChanged 0; rows 0, count 0")}));
    QVERIFY(!m_model->containId(QStringLiteral("a")));
    QCOMPARE(m_model->count(), 0);
}

void TestFormatDetailModel::clearingAnEmptyModelSetsTheCountOnce()
{
    m_model->setCount(3);
    SignalLog log(*m_model);
    m_model->clearModeInfo();
    m_model->clearModeInfo();
    QCOMPARE(log.takeAll(), QStringList({QStringLiteral("countChanged 0; rows 0, count 0"),
                                         QStringLiteral("countChanged 0; rows 0, count 0")}));
}

void TestFormatDetailModel::theDestructorClears()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    SignalLog log(*m_model);
    m_model.reset();
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeRemoved 0-0; rows 1, count 1"),
                          QStringLiteral("rowsRemoved 0-0; rows 0, count 1"),
                          QStringLiteral("countChanged 0; rows 0, count 0"),
                          QStringLiteral("countChanged 0; rows 0, count 0")}));
}

void TestFormatDetailModel::settingTheCountAlwaysNotifies()
{
    SignalLog log(*m_model);
    m_model->setCount(5);
    m_model->setCount(5);
    m_model->setProperty("count", -1);
    QCOMPARE(log.takeAll(), QStringList({QStringLiteral("countChanged 5; rows 0, count 5"),
                                         QStringLiteral("countChanged 5; rows 0, count 5"),
                                         QStringLiteral("countChanged -1; rows 0, count -1")}));
}

void TestFormatDetailModel::theCountIsKeptUntilTheRowsChange()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->setCount(9);
    m_model->updateModeInfo(0, samplePreset());
    QCOMPARE(m_model->rowCount(), 1);
    QCOMPARE(m_model->count(), 9);
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    QCOMPARE(m_model->count(), 2);
    m_model->setCount(9);
    m_model->delModeInfo(0);
    QCOMPARE(m_model->count(), 1);
}

void TestFormatDetailModel::updatingOverwritesTheWholePreset()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    FormatDetailModelData preset = samplePreset();
    QVERIFY(m_model->updateModeInfo(1, preset));
    preset.title = QStringLiteral("changed later");

    FormatDetailModelData read;
    QVERIFY(m_model->getModelInfoByIndex(1, read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(samplePreset())));
    QCOMPARE(m_model->getId(0), QStringLiteral("a"));
}

void TestFormatDetailModel::updatingAnnouncesEveryRole()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    SignalLog log(*m_model);
    m_model->updateModeInfo(1, samplePreset());
    QStringList names;
    for (const Role &role : roles) {
        names.append(QString::fromLatin1(role.name));
    }
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("dataChanged 1:0 to 1:0 roles %1; rows 2, count 2")
                              .arg(names.join(QLatin1Char(' ')))}));
}

void TestFormatDetailModel::updatingOutsideTheRowsIsRefused_data()
{
    addRowsOutsideTwo();
}

void TestFormatDetailModel::updatingOutsideTheRowsIsRefused()
{
    QFETCH(int, row);
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    SignalLog log(*m_model);
    QVERIFY(!m_model->updateModeInfo(row, samplePreset()));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(idsOf(*m_model), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QVERIFY(!m_model->containId(samplePreset().id));
}

void TestFormatDetailModel::updatingFollowsAChangedId()
{
    for (const auto &id : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}) {
        m_model->addModeInfo(presetWithId(id));
    }
    m_model->updateModeInfo(0, presetWithId(QStringLiteral("c")));
    QVERIFY(!m_model->containId(QStringLiteral("a")));
    QCOMPARE(m_model->findModelInfoIndex(QStringLiteral("a")), -1);
    QCOMPARE(m_model->findModelInfoIndex(QStringLiteral("c")), 0);
    m_model->updateModeInfo(0, presetWithId(QStringLiteral("a")));
    QCOMPARE(m_model->findModelInfoIndex(QStringLiteral("c")), 2);
    QCOMPARE(m_model->findModelInfoIndex(QStringLiteral("a")), 0);
}

void TestFormatDetailModel::updatingLeavesTheHighestId()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->updateModeInfo(0, presetWithId(QStringLiteral("1005"), true));
    QCOMPARE(m_model->getIdIndex(), 1000);
}

void TestFormatDetailModel::idsAreComparedExactly_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("row");
    QTest::newRow("first") << QStringLiteral("Mp4_1") << 0;
    QTest::newRow("empty") << QString() << 1;
    QTest::newRow("last") << QStringLiteral("Mp4_10") << 2;
    QTest::newRow("other case") << QStringLiteral("MP4_1") << -1;
    QTest::newRow("beginning of an id") << QStringLiteral("Mp4") << -1;
    QTest::newRow("trailing blank") << QStringLiteral("Mp4_1 ") << -1;
}

void TestFormatDetailModel::idsAreComparedExactly()
{
    QFETCH(QString, id);
    QFETCH(int, row);
    for (const auto &known : {QStringLiteral("Mp4_1"), QString(), QStringLiteral("Mp4_10")}) {
        m_model->addModeInfo(presetWithId(known));
    }
    QCOMPARE(m_model->findModelInfoIndex(id), row);
    QCOMPARE(m_model->containId(id), row >= 0);
    QCOMPARE(m_model->isExist(id), row >= 0);
    FormatDetailModelData read;
    QCOMPARE(m_model->getModelInfoById(id, read), row >= 0);
}

void TestFormatDetailModel::theFirstRowOfAnIdIsFound()
{
    const auto add = [this](bool atHead, const QString &id, const QString &title) {
        FormatDetailModelData preset = presetWithId(id);
        preset.title = title;
        atHead ? m_model->addModeInfoAtHead(preset) : m_model->addModeInfo(preset);
    };
    const QString a = QStringLiteral("a");
    add(false, QStringLiteral("b"), QStringLiteral("other"));
    add(false, a, QStringLiteral("first"));
    add(false, a, QStringLiteral("second"));
    FormatDetailModelData read;
    QCOMPARE(m_model->findModelInfoIndex(a), 1);
    QVERIFY(m_model->getModelInfoById(a, read));
    QCOMPARE(read.title, QStringLiteral("first"));

    add(true, a, QStringLiteral("at the head"));
    QCOMPARE(m_model->findModelInfoIndex(a), 0);
    QVERIFY(m_model->getModelInfoById(a, read));
    QCOMPARE(read.title, QStringLiteral("at the head"));

    m_model->delModeInfo(0);
    m_model->delModeInfo(1);
    QCOMPARE(m_model->findModelInfoIndex(a), 1);
    QVERIFY(m_model->getModelInfoById(a, read));
    QCOMPARE(read.title, QStringLiteral("second"));
}

void TestFormatDetailModel::theIdOutsideTheRowsIsEmpty_data()
{
    addRowsOutsideTwo();
}

void TestFormatDetailModel::theIdOutsideTheRowsIsEmpty()
{
    QFETCH(int, row);
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    QCOMPARE(m_model->getId(row), QString());
    QCOMPARE(FormatDetailModel().getId(row), QString());
}

void TestFormatDetailModel::allPresetsAreAppendedToTheQueue()
{
    m_model->addModeInfo(samplePreset());
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    QQueue<FormatDetailModelData> queue;
    queue.enqueue(presetWithId(QStringLiteral("before")));

    QVERIFY(m_model->getModelInfo(queue));
    QCOMPARE(queue.size(), 3);
    QCOMPARE(queue.at(0).id, QStringLiteral("before"));
    QCOMPARE(asLines(fieldsOf(queue.at(1))), asLines(fieldsOf(samplePreset())));
    QCOMPARE(queue.at(2).id, QStringLiteral("b"));

    queue[1].id = QStringLiteral("changed");
    QCOMPARE(m_model->getId(0), samplePreset().id);
    QVERIFY(FormatDetailModel().getModelInfo(queue));
    QCOMPARE(queue.size(), 3);
}

void TestFormatDetailModel::aPresetIsReadByItsRow()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(samplePreset());
    FormatDetailModelData read;
    QVERIFY(m_model->getModelInfoByIndex(1, read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(samplePreset())));
    QVERIFY(m_model->getModelInfoByIndex(0, read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(presetWithId(QStringLiteral("a")))));
}

void TestFormatDetailModel::readingOutsideTheRowsLeavesTheOutput_data()
{
    addRowsOutsideTwo();
}

void TestFormatDetailModel::readingOutsideTheRowsLeavesTheOutput()
{
    QFETCH(int, row);
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(presetWithId(QStringLiteral("b")));
    FormatDetailModelData read = samplePreset();
    QVERIFY(!m_model->getModelInfoByIndex(row, read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(samplePreset())));
}

void TestFormatDetailModel::aPresetIsReadByItsId()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    m_model->addModeInfo(samplePreset());
    FormatDetailModelData read;
    QVERIFY(m_model->getModelInfoById(samplePreset().id, read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(samplePreset())));
    QVERIFY(!m_model->getModelInfoById(QStringLiteral("unknown"), read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(samplePreset())));
}

void TestFormatDetailModel::onlyUserDefinedPresetsAreCounted()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a"), true));
    m_model->addModeInfo(presetWithId(QStringLiteral("b"), false));
    m_model->addModeInfo(presetWithId(QStringLiteral("1003"), true));
    QCOMPARE(m_model->userDefineCount(), 2);
    m_model->updateModeInfo(1, presetWithId(QStringLiteral("b"), true));
    QCOMPARE(m_model->userDefineCount(), 3);
    m_model->delModeInfo(0);
    QCOMPARE(m_model->userDefineCount(), 2);
}

void TestFormatDetailModel::theExtensionIsWrittenByIdAndAnnounced()
{
    const QString a = QStringLiteral("a");
    for (const auto &id : {QStringLiteral("b"), a, a}) {
        m_model->addModeInfo(presetWithId(id));
    }
    SignalLog log(*m_model);
    QVERIFY(m_model->setRoleValue(FormatDetailModel::ExtensionRole, a, QStringLiteral("mkv")));
    QCOMPARE(
        log.takeAll(),
        QStringList({QStringLiteral("dataChanged 1:0 to 1:0 roles extension; rows 3, count 3")}));
    QCOMPARE(m_model->data(m_model->index(0), FormatDetailModel::ExtensionRole),
             QVariant(QString()));
    QCOMPARE(m_model->data(m_model->index(1), FormatDetailModel::ExtensionRole),
             QVariant(QStringLiteral("mkv")));
    QCOMPARE(m_model->data(m_model->index(2), FormatDetailModel::ExtensionRole),
             QVariant(QString()));

    QVERIFY(m_model->setRoleValue(FormatDetailModel::ExtensionRole, a, 264));
    const QVariant written = m_model->getRoleValue(FormatDetailModel::ExtensionRole, a);
    QCOMPARE(written.userType(), int(QMetaType::QString));
    QCOMPARE(written.toString(), QStringLiteral("264"));
}

void TestFormatDetailModel::otherRolesAreNotWritten_data()
{
    QTest::addColumn<int>("number");
    for (const Role &role : roles) {
        if (role.number != FormatDetailModel::ExtensionRole) {
            QTest::newRow(role.name) << role.number;
        }
    }
    QTest::newRow("below the first role") << FormatDetailModel::ExtensionRole - 1;
    QTest::newRow("above the last role") << FormatDetailModel::ParamRole + 1;
}

void TestFormatDetailModel::otherRolesAreNotWritten()
{
    QFETCH(int, number);
    m_model->addModeInfo(samplePreset());
    SignalLog log(*m_model);
    QVERIFY(m_model->setRoleValue(asRole(number), samplePreset().id, QStringLiteral("other")));
    QCOMPARE(log.takeAll(), QStringList());
    FormatDetailModelData read;
    QVERIFY(m_model->getModelInfoByIndex(0, read));
    QCOMPARE(asLines(fieldsOf(read)), asLines(fieldsOf(samplePreset())));
}

void TestFormatDetailModel::writingAnUnknownIdIsRefused()
{
    m_model->addModeInfo(samplePreset());
    SignalLog log(*m_model);
    QVERIFY(!m_model->setRoleValue(FormatDetailModel::ExtensionRole, QStringLiteral("unknown"),
                                   QStringLiteral("mkv")));
    QVERIFY(!m_model->setRoleValue(FormatDetailModel::IdRole, QString(), QStringLiteral("mkv")));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(m_model->data(m_model->index(0), FormatDetailModel::ExtensionRole),
             QVariant(samplePreset().extension));
}

void TestFormatDetailModel::onlyTheExtensionIsReadById()
{
    const QString id = samplePreset().id;
    FormatDetailModelData second = presetWithId(id);
    second.extension = QStringLiteral("second");
    m_model->addModeInfo(samplePreset());
    m_model->addModeInfo(second);

    QCOMPARE(m_model->getRoleValue(FormatDetailModel::ExtensionRole, id),
             QVariant(samplePreset().extension));
    QVERIFY(!m_model->getRoleValue(FormatDetailModel::ExtensionRole, QStringLiteral("unknown"))
                 .isValid());
    for (int number = FormatDetailModel::ExtensionRole - 1;
         number <= FormatDetailModel::ParamRole + 1; ++number) {
        QCOMPARE(m_model->getRoleValue(asRole(number), id).isValid(),
                 number == FormatDetailModel::ExtensionRole);
    }
}

void TestFormatDetailModel::theListsHoldUserDefinedPresetsOnly()
{
    FormatDetailModelData userDefined = samplePreset();
    userDefined.id = QStringLiteral("1001");
    m_model->addModeInfo(samplePreset());
    m_model->addModeInfo(presetWithId(QStringLiteral("of the catalogue")));
    m_model->addModeInfo(userDefined);

    QCOMPARE(asLines(m_model->toVariantList()),
             asLines(QVariantList{samplePreset().toVarMap(), userDefined.toVarMap()}));
    QCOMPARE(
        asLines(m_model->toVariantListForSave()),
        asLines(QVariantList{samplePreset().toVarMapForSave(), userDefined.toVarMapForSave()}));
}

void TestFormatDetailModel::theListsOfCataloguePresetsAreEmpty()
{
    m_model->addModeInfo(presetWithId(QStringLiteral("a")));
    QCOMPARE(m_model->toVariantList(), QVariantList());
    QCOMPARE(m_model->toVariantListForSave(), QVariantList());
    QCOMPARE(m_model->toVariantListForTest().size(), 1);
}

void TestFormatDetailModel::theTestListRenumbersEveryPreset()
{
    m_model->addModeInfo(samplePreset());
    m_model->addModeInfo(presetWithId(QStringLiteral("of the catalogue")));
    FormatDetailModel other;
    other.addModeInfo(samplePreset());
    const auto numbered = [](FormatDetailModelData preset, const QString &id) {
        preset.id = id;
        return preset.toVarMap();
    };
    const FormatDetailModelData ofCatalogue = presetWithId(QString());

    QCOMPARE(asLines(m_model->toVariantListForTest()),
             asLines(QVariantList{numbered(samplePreset(), QStringLiteral("1001")),
                                  numbered(ofCatalogue, QStringLiteral("1002"))}));
    QCOMPARE(asLines(other.toVariantListForTest()),
             asLines(QVariantList{numbered(samplePreset(), QStringLiteral("1003"))}));
    QCOMPARE(FormatDetailModel().toVariantListForTest(), QVariantList());
    QCOMPARE(FormatDetailModel::s_idForTest, 1004);
    QCOMPARE(m_model->getId(0), samplePreset().id);
}

QTEST_GUILESS_MAIN(TestFormatDetailModel)
#include "tst_formatdetailmodel.moc"

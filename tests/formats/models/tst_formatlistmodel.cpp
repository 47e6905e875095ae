#include "formats/models/formatlistmodel.h"
#include "tests/formats/models/modelobservers.h"
#include "tests/formats/models/presetsamples.h"
#include "tests/formats/models/randomwalk.h"
#include "tests/support/messagelog.h"

#include <QPointer>
#include <QtTest>

#include <climits>
#include <memory>
#include <optional>

using NestedList = QVariantList (FormatListModel::*)();
Q_DECLARE_METATYPE(NestedList)

namespace {

const QString mp4 = QStringLiteral("MP4");
const QString avi = QStringLiteral("AVI");
const QString mp3 = QStringLiteral("MP3");

FormatListModelData format(const QString &title, const QString &tag = QStringLiteral("video"))
{
    return {title, title.toLower() + QStringLiteral(".png"), tag};
}

QStringList titlesOf(const FormatListModel &model)
{
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row) {
        titles.append(model.getTitle(row));
    }
    return titles;
}

void deletePending()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

FormatListModel::InvitationRoles asRole(int number)
{
    return static_cast<FormatListModel::InvitationRoles>(number);
}

} // namespace

class TestFormatListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aNewModelIsEmpty();
    void theMetaObjectOffersTheseMethods();
    void theMetaObjectOffersTheCount();
    void qmlCallsTheInvokables();
    void theRolesAreNumberedFrom257();
    void everyRoleHasAName();
    void dataGivesTheFieldOfTheRole();
    void dataOfAnUnknownRoleIsInvalid_data();
    void dataOfAnUnknownRoleIsInvalid();
    void dataOutsideTheRowsIsInvalid();
    void rowCountIgnoresTheParent();

    void addingAppendsACopyWithItsOwnPresetList();
    void addingAtTheHeadPutsACopyFirst();
    void addingAnnouncesOneRowThenTheCount();
    void thePresetListIsThereOnceTheRowIs();
    void twoRowsOfOneTitleShareTheLaterPresetList();
    void aReplacedPresetListLivesOutOfReachUntilTheModelEnds();

    void deletingARowTakesItsPresetListAlong();
    void deletingAnnouncesOneRowThenTheCount();
    void thePresetListIsGoneOnceTheRowIs();
    void deletingOutsideTheRowsIsRefused_data();
    void deletingOutsideTheRowsIsRefused();
    void deletingEitherRowOfATitleTakesTheSharedPresetList_data();
    void deletingEitherRowOfATitleTakesTheSharedPresetList();
    void deletingByTitleRemovesTheFirstOfSeveral();
    void deletingAnUnknownTitleKeepsTheList();
    void releasedPresetListsAreDeletedLater();
    void deletingAPresetListKeepsTheRow();
    void clearingThePresetListsKeepsTheRows();
    void clearingDeletesRowByRowAndSetsTheCountOnceMore();
    void clearingAnEmptyModelSetsTheCountOnce();
    void clearingReleasesPresetListsWithoutARow();
    void theDestructorClears();

    void settingTheCountAlwaysNotifies();
    void theCountIsKeptUntilTheRowsChange();

    void anUnknownTitleHasNoPresetListAndGetsNone();
    void titlesAreComparedExactly_data();
    void titlesAreComparedExactly();
    void theFirstRowOfATitleIsFound();
    void theTitleOutsideTheRowsIsEmpty_data();
    void theTitleOutsideTheRowsIsEmpty();
    void allFormatsAreAppendedToTheQueue();
    void aFormatIsReadByRowAndByTitle();
    void readingOutsideTheRowsLeavesTheOutput_data();
    void readingOutsideTheRowsLeavesTheOutput();

    void anUnknownIdHasNoClassTagOrIcon();
    void theClassFollowsTheTitlesAndTheTagFollowsTheRows();
    void titlesAreOrderedByCodeUnit();
    void anIdOfAnUpdatedOrDeletedPresetIsNoLongerFound();
    void theIdsOfAReplacedPresetListAreNotFound();
    void theIdsOfAReleasedPresetListAreNotFound();
    void theSecondRowOfATitleGivesNoTag();

    void updatingOverwritesAndAnnouncesEveryRole();
    void updatingOutsideTheRowsIsRefused_data();
    void updatingOutsideTheRowsIsRefused();
    void renamingLeavesThePresetsUnderTheOldTitle_data();
    void renamingLeavesThePresetsUnderTheOldTitle();
    void renamingToATitleWithPresetsFindsThose();
    void aRoleIsWrittenByTitleAndAnnounced_data();
    void aRoleIsWrittenByTitleAndAnnounced();
    void otherRolesAreNeitherWrittenNorRead_data();
    void otherRolesAreNeitherWrittenNorRead();
    void writingAnUnknownTitleIsRefused();
    void aRoleIsReadByTitle();

    void theNestedListsHoldFormatsWithUserDefinedPresets();
    void theNestedListsOfACatalogueAreEmpty();
    void theNestedTestListCountsThroughAllFormats();
    void aRowWithoutPresetListIsLeftOutAndEnteredAsNull_data();
    void aRowWithoutPresetListIsLeftOutAndEnteredAsNull();
    void aFormatCanBeAddedUnderATitleEnteredAsNull();
    void formatsAreListedByTag();
    void videoTypesAreTitlesOfVideoFormatsInUpperCase_data();
    void videoTypesAreTitlesOfVideoFormatsInUpperCase();
    void withoutVideoFormatsNothingIsAVideoType();

    void draggingMovesTheRowSilently_data();
    void draggingMovesTheRowSilently();
    void draggingDecidesWhichRowIsFirst();

    void lookupsAgreeWithALinearSearch_data();
    void lookupsAgreeWithALinearSearch();

private:
    FormatDetailModel &add(const FormatListModelData &data, const QStringList &ids = {});

    std::optional<MessageLog> m_log;
    std::unique_ptr<FormatListModel> m_model;
};

void TestFormatListModel::init()
{
    FormatDetailModel::s_userDefineId = 1000;
    FormatDetailModel::s_idForTest = 1001;
    m_log.emplace();
    m_model = std::make_unique<FormatListModel>();
    guard(*m_model);
}

void TestFormatListModel::cleanup()
{
    m_model.reset();
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
}

// Numeric ids become user-defined presets.
FormatDetailModel &TestFormatListModel::add(const FormatListModelData &data, const QStringList &ids)
{
    m_model->addModeInfo(data);
    FormatDetailModel &presets = *m_model->formatDetailModel(data.title);
    guard(presets);
    for (const QString &id : ids) {
        presets.addModeInfo(presetWithId(id, id.toInt() > 0));
    }
    return presets;
}

void TestFormatListModel::aNewModelIsEmpty()
{
    QObject parent;
    const auto *model = new FormatListModel(&parent);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->count(), 0);
    QCOMPARE(model->children(), QObjectList());
}

void TestFormatListModel::theMetaObjectOffersTheseMethods()
{
    const QMetaObject &meta = FormatListModel::staticMetaObject;
    QCOMPARE(meta.superClass(), &QAbstractListModel::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             QStringList({
                 QStringLiteral("signal void countChanged(int count)"),
                 QStringLiteral("invokable FormatDetailModel* formatDetailModel(QString name)"),
                 QStringLiteral("invokable QString getTitle(int index)"),
                 QStringLiteral("invokable bool isExist(QString title)"),
             }));
}

void TestFormatListModel::theMetaObjectOffersTheCount()
{
    QCOMPARE(ownProperties(FormatListModel::staticMetaObject),
             QStringList({QStringLiteral("int count, written, notify countChanged")}));
    QVERIFY(m_model->setProperty("count", 7));
    QCOMPARE(m_model->count(), 7);
    QCOMPARE(m_model->property("count"), QVariant(7));
}

void TestFormatListModel::qmlCallsTheInvokables()
{
    add(format(mp4));
    FormatDetailModel *presets = nullptr;
    QVERIFY(QMetaObject::invokeMethod(m_model.get(), "formatDetailModel",
                                      Q_RETURN_ARG(FormatDetailModel *, presets),
                                      Q_ARG(QString, mp4)));
    QVERIFY(presets);
    QCOMPARE(presets, m_model->formatDetailModel(mp4));
    QString title;
    QVERIFY(QMetaObject::invokeMethod(m_model.get(), "getTitle", Q_RETURN_ARG(QString, title),
                                      Q_ARG(int, 0)));
    QCOMPARE(title, mp4);
    bool exists = false;
    QVERIFY(QMetaObject::invokeMethod(m_model.get(), "isExist", Q_RETURN_ARG(bool, exists),
                                      Q_ARG(QString, mp4)));
    QVERIFY(exists);
}

void TestFormatListModel::theRolesAreNumberedFrom257()
{
    QCOMPARE(int(FormatListModel::TitleRole), 257);
    QCOMPARE(int(FormatListModel::IconRole), 258);
    QCOMPARE(int(FormatListModel::TagRole), 259);
}

void TestFormatListModel::everyRoleHasAName()
{
    const QHash<int, QByteArray> names{{FormatListModel::TitleRole, "title"},
                                       {FormatListModel::IconRole, "icon"},
                                       {FormatListModel::TagRole, "tag"}};
    QCOMPARE(m_model->roleNames(), names);
}

void TestFormatListModel::dataGivesTheFieldOfTheRole()
{
    add(format(avi));
    add(format(mp4));
    const QModelIndex row = m_model->index(1);
    QCOMPARE(m_model->data(row, FormatListModel::TitleRole), QVariant(mp4));
    QCOMPARE(m_model->data(row, FormatListModel::IconRole), QVariant(QStringLiteral("mp4.png")));
    QCOMPARE(m_model->data(row, FormatListModel::TagRole), QVariant(QStringLiteral("video")));
}

void TestFormatListModel::dataOfAnUnknownRoleIsInvalid_data()
{
    QTest::addColumn<int>("role");
    QTest::newRow("below the first") << FormatListModel::TitleRole - 1;
    QTest::newRow("above the last") << FormatListModel::TagRole + 1;
    QTest::newRow("display role") << int(Qt::DisplayRole);
    QTest::newRow("negative") << -1;
}

void TestFormatListModel::dataOfAnUnknownRoleIsInvalid()
{
    QFETCH(int, role);
    add(format(mp4));
    QVERIFY(!m_model->data(m_model->index(0), role).isValid());
}

void TestFormatListModel::dataOutsideTheRowsIsInvalid()
{
    FormatListModel longer;
    longer.addModeInfo(format(avi));
    longer.addModeInfo(format(mp4));
    add(format(mp4));
    for (int role = FormatListModel::TitleRole; role <= FormatListModel::TagRole; ++role) {
        QVERIFY(!m_model->data(QModelIndex(), role).isValid());
        QVERIFY(!m_model->data(longer.index(1), role).isValid());
    }
}

void TestFormatListModel::rowCountIgnoresTheParent()
{
    add(format(mp4));
    add(format(avi));
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(m_model->rowCount(m_model->index(0)), 2);
}

void TestFormatListModel::addingAppendsACopyWithItsOwnPresetList()
{
    FormatListModelData data = format(mp4);
    QVERIFY(m_model->addModeInfo(format(avi)));
    QVERIFY(m_model->addModeInfo(data));
    data.title = QStringLiteral("changed later");
    QCOMPARE(titlesOf(*m_model), QStringList({avi, mp4}));

    const FormatDetailModel *presets = m_model->formatDetailModel(mp4);
    QVERIFY(presets);
    QVERIFY(presets != m_model->formatDetailModel(avi));
    QCOMPARE(presets->parent(), m_model.get());
    QCOMPARE(presets->rowCount(), 0);
}

void TestFormatListModel::addingAtTheHeadPutsACopyFirst()
{
    QVERIFY(m_model->addModeInfoAtHead(format(avi)));
    QVERIFY(m_model->addModeInfoAtHead(format(mp4)));
    QCOMPARE(titlesOf(*m_model), QStringList({mp4, avi}));
    QCOMPARE(m_model->findModelInfoIndex(avi), 1);
    QVERIFY(m_model->formatDetailModel(mp4));
    QCOMPARE(m_model->formatDetailModel(mp4)->parent(), m_model.get());
}

void TestFormatListModel::addingAnnouncesOneRowThenTheCount()
{
    SignalLog log(*m_model);
    m_model->addModeInfo(format(mp4));
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeInserted 0-0; rows 0, count 0"),
                          QStringLiteral("rowsInserted 0-0; rows 1, count 0"),
                          QStringLiteral("countChanged 1; rows 1, count 1")}));
    m_model->addModeInfo(format(avi));
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeInserted 1-1; rows 1, count 1"),
                          QStringLiteral("rowsInserted 1-1; rows 2, count 1"),
                          QStringLiteral("countChanged 2; rows 2, count 2")}));
    m_model->addModeInfoAtHead(format(mp3));
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeInserted 0-0; rows 2, count 2"),
                          QStringLiteral("rowsInserted 0-0; rows 3, count 2"),
                          QStringLiteral("countChanged 3; rows 3, count 3")}));
}

void TestFormatListModel::thePresetListIsThereOnceTheRowIs()
{
    bool atAnnouncement = true;
    bool atInsertion = false;
    connect(m_model.get(), &FormatListModel::rowsAboutToBeInserted, this,
            [&] { atAnnouncement = m_model->formatDetailModel(mp4); });
    connect(m_model.get(), &FormatListModel::rowsInserted, this,
            [&] { atInsertion = m_model->formatDetailModel(mp4); });
    m_model->addModeInfo(format(mp4));
    QVERIFY(!atAnnouncement);
    QVERIFY(atInsertion);
}

void TestFormatListModel::twoRowsOfOneTitleShareTheLaterPresetList()
{
    const FormatDetailModel &earlier = add(format(mp4), {QStringLiteral("a")});
    const FormatDetailModel &later = add(format(mp4), {QStringLiteral("b")});
    QCOMPARE(titlesOf(*m_model), QStringList({mp4, mp4}));
    QVERIFY(&later != &earlier);
    QCOMPARE(m_model->formatDetailModel(mp4), &later);
    QVERIFY(!later.containId(QStringLiteral("a")));
}

void TestFormatListModel::aReplacedPresetListLivesOutOfReachUntilTheModelEnds()
{
    const QPointer<FormatDetailModel> replaced = &add(format(mp4), {QStringLiteral("a")});
    m_model->addModeInfoAtHead(format(mp4));
    deletePending();
    QVERIFY(replaced);
    QCOMPARE(replaced->parent(), m_model.get());
    QVERIFY(replaced->containId(QStringLiteral("a")));

    m_model->clearModeInfo();
    deletePending();
    QVERIFY(replaced);
    m_model.reset();
    QVERIFY(!replaced);
}

void TestFormatListModel::deletingARowTakesItsPresetListAlong()
{
    for (const QString &title : {mp4, avi, mp3}) {
        add(format(title));
    }
    QVERIFY(m_model->delModeInfo(1));
    QCOMPARE(titlesOf(*m_model), QStringList({mp4, mp3}));
    QVERIFY(!m_model->isExist(avi));
    QCOMPARE(m_model->formatDetailModel(avi), nullptr);
    QVERIFY(m_model->formatDetailModel(mp4));
    QVERIFY(m_model->formatDetailModel(mp3));
}

void TestFormatListModel::deletingAnnouncesOneRowThenTheCount()
{
    for (const QString &title : {mp4, avi, mp3}) {
        add(format(title));
    }
    SignalLog log(*m_model);
    m_model->delModeInfo(1);
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeRemoved 1-1; rows 3, count 3"),
                          QStringLiteral("rowsRemoved 1-1; rows 2, count 3"),
                          QStringLiteral("countChanged 2; rows 2, count 2")}));
}

void TestFormatListModel::thePresetListIsGoneOnceTheRowIs()
{
    add(format(mp4), {QStringLiteral("a")});
    bool atAnnouncement = false;
    bool atRemoval = true;
    bool idAtRemoval = true;
    connect(m_model.get(), &FormatListModel::rowsAboutToBeRemoved, this,
            [&] { atAnnouncement = m_model->formatDetailModel(mp4); });
    connect(m_model.get(), &FormatListModel::rowsRemoved, this, [&] {
        atRemoval = m_model->formatDetailModel(mp4);
        idAtRemoval = m_model->containId(QStringLiteral("a"));
    });
    m_model->delModeInfo(0);
    QVERIFY(atAnnouncement);
    QVERIFY(!atRemoval);
    QVERIFY(!idAtRemoval);
}

void TestFormatListModel::deletingOutsideTheRowsIsRefused_data()
{
    addRowsOutsideTwo();
}

void TestFormatListModel::deletingOutsideTheRowsIsRefused()
{
    QFETCH(int, row);
    add(format(mp4));
    add(format(avi));
    SignalLog log(*m_model);
    QVERIFY(!m_model->delModeInfo(row));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(titlesOf(*m_model), QStringList({mp4, avi}));
    QVERIFY(m_model->formatDetailModel(avi));
}

void TestFormatListModel::deletingEitherRowOfATitleTakesTheSharedPresetList_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
}

void TestFormatListModel::deletingEitherRowOfATitleTakesTheSharedPresetList()
{
    QFETCH(int, row);
    add(format(mp4));
    add(format(mp4), {QStringLiteral("a")});
    QVERIFY(m_model->delModeInfo(row));
    QCOMPARE(titlesOf(*m_model), QStringList({mp4}));
    QCOMPARE(m_model->formatDetailModel(mp4), nullptr);
    QVERIFY(!m_model->containId(QStringLiteral("a")));
    QVERIFY(m_model->delModeInfo(0));
}

void TestFormatListModel::deletingByTitleRemovesTheFirstOfSeveral()
{
    m_model->addModeInfo(format(avi));
    m_model->addModeInfo(format(mp4, QStringLiteral("video")));
    m_model->addModeInfo(format(mp4, QStringLiteral("device")));
    SignalLog log(*m_model);
    QVERIFY(m_model->delModelInfoByKey(mp4));
    QCOMPARE(log.takeAll().constFirst(),
             QStringLiteral("rowsAboutToBeRemoved 1-1; rows 3, count 3"));
    QCOMPARE(m_model->getFormatList(QStringLiteral("device")), QStringList({mp4}));
    QVERIFY(m_model->delModelInfoByKey(mp4));
    QVERIFY(!m_model->delModelInfoByKey(mp4));
    QCOMPARE(titlesOf(*m_model), QStringList({avi}));
}

void TestFormatListModel::deletingAnUnknownTitleKeepsTheList()
{
    add(format(mp4));
    SignalLog log(*m_model);
    QVERIFY(!m_model->delModelInfoByKey(QStringLiteral("mp4")));
    QVERIFY(!m_model->delModelInfoByKey(QString()));
    QVERIFY(!m_model->delDetailModel(QStringLiteral("mp4")));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(titlesOf(*m_model), QStringList({mp4}));
    QVERIFY(m_model->formatDetailModel(mp4));
}

void TestFormatListModel::releasedPresetListsAreDeletedLater()
{
    const QPointer<FormatDetailModel> ofRow = &add(format(mp4), {QStringLiteral("a")});
    const QPointer<FormatDetailModel> ofTitle = &add(format(avi));
    const QPointer<FormatDetailModel> cleared = &add(format(mp3));
    m_model->delModeInfo(0);
    m_model->delDetailModel(avi);
    m_model->clearDetailModel();
    QVERIFY(ofRow && ofTitle && cleared);
    QVERIFY(ofRow->containId(QStringLiteral("a")));
    deletePending();
    QVERIFY(!ofRow && !ofTitle && !cleared);
}

void TestFormatListModel::deletingAPresetListKeepsTheRow()
{
    add(format(mp4), {QStringLiteral("a")});
    add(format(avi));
    SignalLog log(*m_model);
    QVERIFY(m_model->delDetailModel(mp4));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(titlesOf(*m_model), QStringList({mp4, avi}));
    QCOMPARE(m_model->formatDetailModel(mp4), nullptr);
    QVERIFY(m_model->formatDetailModel(avi));
    QVERIFY(!m_model->containId(QStringLiteral("a")));
    QVERIFY(!m_model->delDetailModel(mp4));
}

void TestFormatListModel::clearingThePresetListsKeepsTheRows()
{
    add(format(mp4), {QStringLiteral("a")});
    add(format(avi), {QStringLiteral("b")});
    m_model->delDetailModel(avi);
    m_model->toVariantList(); // inserts null for AVI
    SignalLog log(*m_model);
    m_model->clearDetailModel();
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(titlesOf(*m_model), QStringList({mp4, avi}));
    QVERIFY(!m_model->delDetailModel(mp4));
    QVERIFY(!m_model->delDetailModel(avi));
    QVERIFY(!m_model->containId(QStringLiteral("a")));
    QCOMPARE(m_model->getTagName(QStringLiteral("a")), QString());
}

void TestFormatListModel::clearingDeletesRowByRowAndSetsTheCountOnceMore()
{
    add(format(mp4));
    add(format(avi));
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
    QVERIFY(!m_model->isExist(mp4));
    QCOMPARE(m_model->formatDetailModel(mp4), nullptr);
}

void TestFormatListModel::clearingAnEmptyModelSetsTheCountOnce()
{
    m_model->setCount(3);
    SignalLog log(*m_model);
    m_model->clearModeInfo();
    m_model->clearModeInfo();
    QCOMPARE(log.takeAll(), QStringList({QStringLiteral("countChanged 0; rows 0, count 0"),
                                         QStringLiteral("countChanged 0; rows 0, count 0")}));
}

void TestFormatListModel::clearingReleasesPresetListsWithoutARow()
{
    const QPointer<FormatDetailModel> presets = &add(format(mp4));
    m_model->updateModeInfo(0, format(avi));
    m_model->delModeInfo(0);
    QCOMPARE(m_model->formatDetailModel(mp4), presets.data());
    m_model->clearModeInfo();
    QCOMPARE(m_model->formatDetailModel(mp4), nullptr);
    deletePending();
    QVERIFY(!presets);
}

void TestFormatListModel::theDestructorClears()
{
    const QPointer<FormatDetailModel> presets = &add(format(mp4), {QStringLiteral("a")});
    SignalLog log(*m_model);
    m_model.reset();
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("rowsAboutToBeRemoved 0-0; rows 1, count 1"),
                          QStringLiteral("rowsRemoved 0-0; rows 0, count 1"),
                          QStringLiteral("countChanged 0; rows 0, count 0"),
                          QStringLiteral("countChanged 0; rows 0, count 0")}));
    QVERIFY(!presets);
}

void TestFormatListModel::settingTheCountAlwaysNotifies()
{
    SignalLog log(*m_model);
    m_model->setCount(5);
    m_model->setCount(5);
    m_model->setProperty("count", -1);
    QCOMPARE(log.takeAll(), QStringList({QStringLiteral("countChanged 5; rows 0, count 5"),
                                         QStringLiteral("countChanged 5; rows 0, count 5"),
                                         QStringLiteral("countChanged -1; rows 0, count -1")}));
}

void TestFormatListModel::theCountIsKeptUntilTheRowsChange()
{
    add(format(mp4));
    m_model->setCount(9);
    m_model->updateModeInfo(0, format(avi));
    QCOMPARE(m_model->count(), 9);
    add(format(mp3));
    QCOMPARE(m_model->count(), 2);
    m_model->setCount(9);
    m_model->delModeInfo(0);
    QCOMPARE(m_model->count(), 1);
}

void TestFormatListModel::anUnknownTitleHasNoPresetListAndGetsNone()
{
    add(format(mp4));
    QCOMPARE(m_model->formatDetailModel(avi), nullptr);
    QCOMPARE(m_model->formatDetailModel(QString()), nullptr);
    QCOMPARE(m_model->formatDetailModel(QStringLiteral("")), nullptr);
    QVERIFY(!m_model->delDetailModel(avi));
    QVERIFY(!m_model->delDetailModel(QString()));
}

void TestFormatListModel::titlesAreComparedExactly_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("row");
    QTest::newRow("first") << QStringLiteral("Mp4") << 0;
    QTest::newRow("empty") << QString() << 1;
    QTest::newRow("last") << QStringLiteral("Mp4 HD") << 2;
    QTest::newRow("other case") << QStringLiteral("MP4") << -1;
    QTest::newRow("beginning of a title") << QStringLiteral("Mp") << -1;
    QTest::newRow("trailing blank") << QStringLiteral("Mp4 ") << -1;
}

void TestFormatListModel::titlesAreComparedExactly()
{
    QFETCH(QString, title);
    QFETCH(int, row);
    for (const auto &known : {QStringLiteral("Mp4"), QString(), QStringLiteral("Mp4 HD")}) {
        add(format(known));
    }
    QCOMPARE(m_model->findModelInfoIndex(title), row);
    QCOMPARE(m_model->isExist(title), row >= 0);
    QCOMPARE(m_model->formatDetailModel(title) != nullptr, row >= 0);
    FormatListModelData read;
    QCOMPARE(m_model->getModelInfoByTitle(title, read), row >= 0);
}

void TestFormatListModel::theFirstRowOfATitleIsFound()
{
    add(format(avi));
    add(format(mp4, QStringLiteral("first")));
    add(format(mp4, QStringLiteral("second")));
    FormatListModelData read;
    QCOMPARE(m_model->findModelInfoIndex(mp4), 1);
    QVERIFY(m_model->getModelInfoByTitle(mp4, read));
    QCOMPARE(read.tag, QStringLiteral("first"));

    m_model->addModeInfoAtHead(format(mp4, QStringLiteral("at the head")));
    QCOMPARE(m_model->findModelInfoIndex(mp4), 0);
    QVERIFY(m_model->getModelInfoByTitle(mp4, read));
    QCOMPARE(read.tag, QStringLiteral("at the head"));

    m_model->updateModeInfo(0, format(avi));
    QCOMPARE(m_model->findModelInfoIndex(mp4), 2);
    QCOMPARE(m_model->findModelInfoIndex(avi), 0);
}

void TestFormatListModel::theTitleOutsideTheRowsIsEmpty_data()
{
    addRowsOutsideTwo();
}

void TestFormatListModel::theTitleOutsideTheRowsIsEmpty()
{
    QFETCH(int, row);
    add(format(mp4));
    add(format(avi));
    QCOMPARE(m_model->getTitle(row), QString());
    QCOMPARE(FormatListModel().getTitle(row), QString());
}

void TestFormatListModel::allFormatsAreAppendedToTheQueue()
{
    add(format(mp4));
    add(format(mp3, QStringLiteral("audio")));
    QQueue<FormatListModelData> queue;
    queue.enqueue(format(QStringLiteral("before")));
    QVERIFY(m_model->getModelInfo(queue));
    QCOMPARE(queue.size(), 3);
    QCOMPARE(queue.at(0).title, QStringLiteral("before"));
    QCOMPARE(queue.at(1).toVarMap(), format(mp4).toVarMap());
    QCOMPARE(queue.at(2).toVarMap(), format(mp3, QStringLiteral("audio")).toVarMap());

    queue[1].title = QStringLiteral("changed");
    QCOMPARE(m_model->getTitle(0), mp4);
    QVERIFY(FormatListModel().getModelInfo(queue));
    QCOMPARE(queue.size(), 3);
}

void TestFormatListModel::aFormatIsReadByRowAndByTitle()
{
    add(format(mp4));
    add(format(mp3, QStringLiteral("audio")));
    FormatListModelData read;
    QVERIFY(m_model->getModelInfoByIndex(1, read));
    QCOMPARE(read.toVarMap(), format(mp3, QStringLiteral("audio")).toVarMap());
    QVERIFY(m_model->getModelInfoByTitle(mp4, read));
    QCOMPARE(read.toVarMap(), format(mp4).toVarMap());
}

void TestFormatListModel::readingOutsideTheRowsLeavesTheOutput_data()
{
    addRowsOutsideTwo();
}

void TestFormatListModel::readingOutsideTheRowsLeavesTheOutput()
{
    QFETCH(int, row);
    add(format(mp4));
    add(format(avi));
    FormatListModelData read = format(QStringLiteral("before"));
    QVERIFY(!m_model->getModelInfoByIndex(row, read));
    QVERIFY(!m_model->getModelInfoByTitle(QStringLiteral("unknown"), read));
    QCOMPARE(read.toVarMap(), format(QStringLiteral("before")).toVarMap());
}

void TestFormatListModel::anUnknownIdHasNoClassTagOrIcon()
{
    add(format(mp4), {QStringLiteral("a")});
    for (const auto &id : {QStringLiteral("A"), QStringLiteral("unknown"), QString()}) {
        QVERIFY(!m_model->containId(id));
        QCOMPARE(m_model->getGetClass(id), QString());
        QCOMPARE(m_model->getTagName(id), QString());
        QCOMPARE(m_model->getIcon(id), QString());
    }
}

void TestFormatListModel::theClassFollowsTheTitlesAndTheTagFollowsTheRows()
{
    const QString id = QStringLiteral("in both");
    add(format(mp4, QStringLiteral("video")), {id});
    add(format(avi, QStringLiteral("device")), {id, QStringLiteral("in one")});
    QVERIFY(m_model->containId(id));
    QCOMPARE(m_model->getGetClass(id), avi);
    QCOMPARE(m_model->getTagName(id), QStringLiteral("video"));
    QCOMPARE(m_model->getIcon(id), QStringLiteral("mp4.png"));

    QCOMPARE(m_model->getGetClass(QStringLiteral("in one")), avi);
    QCOMPARE(m_model->getTagName(QStringLiteral("in one")), QStringLiteral("device"));
    QCOMPARE(m_model->getIcon(QStringLiteral("in one")), QStringLiteral("avi.png"));
}

void TestFormatListModel::titlesAreOrderedByCodeUnit()
{
    const QString id = QStringLiteral("a");
    for (const auto &title : {QStringLiteral("ä"), QStringLiteral("avi"), QStringLiteral("ZZ")}) {
        add(format(title), {id});
        QCOMPARE(m_model->getGetClass(id), title);
    }
}

void TestFormatListModel::anIdOfAnUpdatedOrDeletedPresetIsNoLongerFound()
{
    FormatDetailModel &presets =
        add(format(mp4), {QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("b")});
    presets.updateModeInfo(0, presetWithId(QStringLiteral("c")));
    QVERIFY(m_model->containId(QStringLiteral("c")));
    QCOMPARE(m_model->getGetClass(QStringLiteral("a")), mp4);
    presets.delModeInfo(1);
    QVERIFY(!m_model->containId(QStringLiteral("a")));
    QCOMPARE(m_model->getTagName(QStringLiteral("a")), QString());
    presets.clearModeInfo();
    QVERIFY(!m_model->containId(QStringLiteral("b")));
    QVERIFY(!m_model->containId(QStringLiteral("c")));
}

void TestFormatListModel::theIdsOfAReplacedPresetListAreNotFound()
{
    FormatDetailModel &replaced = add(format(mp4), {QStringLiteral("a")});
    add(format(mp4), {QStringLiteral("b")});
    QVERIFY(!m_model->containId(QStringLiteral("a")));
    QCOMPARE(m_model->getGetClass(QStringLiteral("a")), QString());
    QCOMPARE(m_model->getIcon(QStringLiteral("a")), QString());

    replaced.addModeInfo(presetWithId(QStringLiteral("c")));
    QVERIFY(!m_model->containId(QStringLiteral("c")));
    replaced.addModeInfo(presetWithId(QStringLiteral("b")));
    replaced.delModelInfoByKey(QStringLiteral("b"));
    QVERIFY(m_model->containId(QStringLiteral("b")));
    QCOMPARE(m_model->getGetClass(QStringLiteral("b")), mp4);
}

void TestFormatListModel::theIdsOfAReleasedPresetListAreNotFound()
{
    FormatDetailModel &released = add(format(mp4), {QStringLiteral("a")});
    m_model->delDetailModel(mp4);
    released.addModeInfo(presetWithId(QStringLiteral("b")));
    QVERIFY(!m_model->containId(QStringLiteral("a")));
    QVERIFY(!m_model->containId(QStringLiteral("b")));
}

void TestFormatListModel::theSecondRowOfATitleGivesNoTag()
{
    add(format(mp4, QStringLiteral("video")));
    add(format(mp4, QStringLiteral("device")), {QStringLiteral("a")});
    QCOMPARE(m_model->getTagName(QStringLiteral("a")), QStringLiteral("video"));
}

void TestFormatListModel::updatingOverwritesAndAnnouncesEveryRole()
{
    add(format(avi));
    add(format(mp4));
    SignalLog log(*m_model);
    FormatListModelData data = format(mp3, QStringLiteral("audio"));
    QVERIFY(m_model->updateModeInfo(1, data));
    data.icon = QStringLiteral("changed later");
    QCOMPARE(log.takeAll(), QStringList({QStringLiteral(
                                "dataChanged 1:0 to 1:0 roles title icon tag; rows 2, count 2")}));
    FormatListModelData read;
    QVERIFY(m_model->getModelInfoByIndex(1, read));
    QCOMPARE(read.toVarMap(), format(mp3, QStringLiteral("audio")).toVarMap());
    QCOMPARE(m_model->getTitle(0), avi);
}

void TestFormatListModel::updatingOutsideTheRowsIsRefused_data()
{
    addRowsOutsideTwo();
}

void TestFormatListModel::updatingOutsideTheRowsIsRefused()
{
    QFETCH(int, row);
    add(format(mp4));
    add(format(avi));
    SignalLog log(*m_model);
    QVERIFY(!m_model->updateModeInfo(row, format(mp3)));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(titlesOf(*m_model), QStringList({mp4, avi}));
    QVERIFY(!m_model->isExist(mp3));
}

void TestFormatListModel::renamingLeavesThePresetsUnderTheOldTitle_data()
{
    QTest::addColumn<bool>("byRole");
    QTest::newRow("by update") << false;
    QTest::newRow("by role") << true;
}

void TestFormatListModel::renamingLeavesThePresetsUnderTheOldTitle()
{
    QFETCH(bool, byRole);
    const QString id = QStringLiteral("a");
    FormatDetailModel &presets = add(format(mp4), {id});
    if (byRole) {
        QVERIFY(m_model->setRoleValue(FormatListModel::TitleRole, mp4, avi));
    } else {
        QVERIFY(m_model->updateModeInfo(0, format(avi)));
    }
    QVERIFY(m_model->isExist(avi));
    QVERIFY(!m_model->isExist(mp4));
    QCOMPARE(m_model->findModelInfoIndex(avi), 0);
    QCOMPARE(m_model->formatDetailModel(avi), nullptr);
    QCOMPARE(m_model->formatDetailModel(mp4), &presets);

    QVERIFY(m_model->containId(id));
    QCOMPARE(m_model->getGetClass(id), mp4);
    QCOMPARE(m_model->getTagName(id), QString());
    QCOMPARE(m_model->getIcon(id), QString());

    presets.addModeInfo(presetWithId(QStringLiteral("b")));
    QCOMPARE(m_model->getGetClass(QStringLiteral("b")), mp4);
    m_model->delModeInfo(0);
    QCOMPARE(m_model->formatDetailModel(mp4), &presets);
}

void TestFormatListModel::renamingToATitleWithPresetsFindsThose()
{
    const QString id = QStringLiteral("a");
    add(format(avi, QStringLiteral("device")));
    add(format(mp4, QStringLiteral("video")), {id});
    QVERIFY(m_model->setRoleValue(FormatListModel::TitleRole, avi, mp4));
    QCOMPARE(m_model->findModelInfoIndex(mp4), 0);
    QCOMPARE(m_model->getTagName(id), QStringLiteral("device"));
    QCOMPARE(m_model->getIcon(id), QStringLiteral("avi.png"));
    QCOMPARE(m_model->getGetClass(id), mp4);
}

void TestFormatListModel::aRoleIsWrittenByTitleAndAnnounced_data()
{
    QTest::addColumn<int>("role");
    QTest::newRow("title") << int(FormatListModel::TitleRole);
    QTest::newRow("icon") << int(FormatListModel::IconRole);
    QTest::newRow("tag") << int(FormatListModel::TagRole);
}

void TestFormatListModel::aRoleIsWrittenByTitleAndAnnounced()
{
    QFETCH(int, role);
    for (const QString &title : {avi, mp4, mp4}) {
        add(format(title));
    }
    SignalLog log(*m_model);
    QVERIFY(m_model->setRoleValue(asRole(role), mp4, 264));
    QCOMPARE(log.takeAll(),
             QStringList({QStringLiteral("dataChanged 1:0 to 1:0 roles %1; rows 3, count 3")
                              .arg(QString::fromLatin1(m_model->roleNames().value(role)))}));
    for (int other = FormatListModel::TitleRole; other <= FormatListModel::TagRole; ++other) {
        const QVariant value = m_model->data(m_model->index(1), other);
        QCOMPARE(value.userType(), int(QMetaType::QString));
        QCOMPARE(value.toString(), other == role
                                       ? QStringLiteral("264")
                                       : m_model->data(m_model->index(2), other).toString());
    }
    QCOMPARE(m_model->data(m_model->index(2), role),
             format(mp4).toVarMap().value(QString::fromLatin1(m_model->roleNames().value(role))));
}

void TestFormatListModel::otherRolesAreNeitherWrittenNorRead_data()
{
    QTest::addColumn<int>("role");
    QTest::newRow("below the first") << FormatListModel::TitleRole - 1;
    QTest::newRow("above the last") << FormatListModel::TagRole + 1;
}

void TestFormatListModel::otherRolesAreNeitherWrittenNorRead()
{
    QFETCH(int, role);
    add(format(mp4));
    SignalLog log(*m_model);
    QVERIFY(m_model->setRoleValue(asRole(role), mp4, avi));
    QCOMPARE(log.takeAll(), QStringList());
    FormatListModelData read;
    QVERIFY(m_model->getModelInfoByIndex(0, read));
    QCOMPARE(read.toVarMap(), format(mp4).toVarMap());
    QVERIFY(!m_model->getRoleValue(asRole(role), mp4).isValid());
}

void TestFormatListModel::writingAnUnknownTitleIsRefused()
{
    add(format(mp4));
    SignalLog log(*m_model);
    QVERIFY(!m_model->setRoleValue(FormatListModel::TitleRole, QStringLiteral("mp4"), avi));
    QVERIFY(!m_model->setRoleValue(FormatListModel::TagRole, QString(), avi));
    QVERIFY(!m_model->setRoleValue(asRole(FormatListModel::TagRole + 1), avi, avi));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(titlesOf(*m_model), QStringList({mp4}));
}

void TestFormatListModel::aRoleIsReadByTitle()
{
    add(format(avi));
    add(format(mp4, QStringLiteral("first")));
    add(format(mp4, QStringLiteral("second")));
    QCOMPARE(m_model->getRoleValue(FormatListModel::TitleRole, mp4), QVariant(mp4));
    QCOMPARE(m_model->getRoleValue(FormatListModel::IconRole, mp4),
             QVariant(QStringLiteral("mp4.png")));
    QCOMPARE(m_model->getRoleValue(FormatListModel::TagRole, mp4),
             QVariant(QStringLiteral("first")));
    QVERIFY(!m_model->getRoleValue(FormatListModel::TagRole, mp3).isValid());
}

void TestFormatListModel::theNestedListsHoldFormatsWithUserDefinedPresets()
{
    const FormatDetailModelData preset = samplePreset();
    add(format(mp3, QStringLiteral("audio")), {QStringLiteral("of the catalogue")});
    add(format(mp4), {QStringLiteral("of the catalogue")}).addModeInfo(preset);
    add(format(avi)).addModeInfo(preset);
    const auto nested = [](const FormatListModelData &data, const QVariantMap &entry) {
        QVariantMap map = data.toVarMap();
        map.insert(QStringLiteral("group"), QVariantList{entry});
        return map;
    };
    QCOMPARE(asLines(m_model->toVariantList()),
             asLines(QVariantList{nested(format(mp4), preset.toVarMap()),
                                  nested(format(avi), preset.toVarMap())}));
    QCOMPARE(asLines(m_model->toVariantListForSave()),
             asLines(QVariantList{nested(format(mp4), preset.toVarMapForSave()),
                                  nested(format(avi), preset.toVarMapForSave())}));
}

void TestFormatListModel::theNestedListsOfACatalogueAreEmpty()
{
    add(format(mp4), {QStringLiteral("a"), QStringLiteral("b")});
    add(format(avi));
    QCOMPARE(m_model->toVariantList(), QVariantList());
    QCOMPARE(m_model->toVariantListForSave(), QVariantList());
}

void TestFormatListModel::theNestedTestListCountsThroughAllFormats()
{
    add(format(mp4), {QStringLiteral("a"), QStringLiteral("1001")});
    add(format(mp3));
    add(format(avi), {QStringLiteral("b")});
    QStringList seen;
    const QVariantList formats = m_model->toVariantListTest();
    for (const QVariant &element : formats) {
        const QVariantMap map = element.toMap();
        QCOMPARE(map.keys(), QStringList({QStringLiteral("group"), QStringLiteral("icon"),
                                          QStringLiteral("tag"), QStringLiteral("title")}));
        const QVariantList group = map.value(QStringLiteral("group")).toList();
        for (const QVariant &preset : group) {
            seen.append(map.value(QStringLiteral("title")).toString() + QLatin1Char(' ') +
                        preset.toMap().value(QStringLiteral("id")).toString());
        }
    }
    QCOMPARE(seen, QStringList({QStringLiteral("MP4 1001"), QStringLiteral("MP4 1002"),
                                QStringLiteral("AVI 1003")}));
    QCOMPARE(FormatDetailModel::s_idForTest, 1004);
}

void TestFormatListModel::aRowWithoutPresetListIsLeftOutAndEnteredAsNull_data()
{
    QTest::addColumn<NestedList>("nestedList");
    QTest::newRow("toVariantList") << &FormatListModel::toVariantList;
    QTest::newRow("toVariantListForSave") << &FormatListModel::toVariantListForSave;
    QTest::newRow("toVariantListTest") << &FormatListModel::toVariantListTest;
}

void TestFormatListModel::aRowWithoutPresetListIsLeftOutAndEnteredAsNull()
{
    QFETCH(NestedList, nestedList);
    add(format(mp4), {QStringLiteral("1001")});
    add(format(mp3), {QStringLiteral("1002")});
    m_model->updateModeInfo(0, format(avi));
    QVERIFY(!m_model->delDetailModel(avi));

    const QVariantList formats = (m_model.get()->*nestedList)();
    QCOMPARE(formats.size(), 1);
    QCOMPARE(formats.constFirst().toMap().value(QStringLiteral("title")), QVariant(mp3));
    QCOMPARE(m_model->formatDetailModel(avi), nullptr);
    QCOMPARE(m_model->getGetClass(QStringLiteral("1001")), mp4);
    QVERIFY(m_model->delDetailModel(avi));
    QVERIFY(!m_model->delDetailModel(avi));
}

void TestFormatListModel::aFormatCanBeAddedUnderATitleEnteredAsNull()
{
    add(format(mp4));
    m_model->updateModeInfo(0, format(avi));
    m_model->toVariantList();
    add(format(avi), {QStringLiteral("a")});
    QCOMPARE(m_model->getGetClass(QStringLiteral("a")), avi);
    QCOMPARE(m_model->getTagName(QStringLiteral("a")), QStringLiteral("video"));
}

void TestFormatListModel::formatsAreListedByTag()
{
    add(format(mp4, QStringLiteral("video")));
    add(format(QStringLiteral("phone"), QStringLiteral("device")));
    add(format(mp3, QStringLiteral("audio")));
    add(format(QStringLiteral("upper"), QStringLiteral("VIDEO")));
    add(format(avi, QStringLiteral("video")));
    add(format(QStringLiteral("untagged"), QString()));
    QCOMPARE(m_model->formatList(), QStringList({mp4, mp3, avi}));
    QCOMPARE(m_model->getFormatList(QStringLiteral("video")), QStringList({mp4, avi}));
    QCOMPARE(m_model->getFormatList(QStringLiteral("VIDEO")),
             QStringList({QStringLiteral("upper")}));
    QCOMPARE(m_model->getFormatList(QString()), QStringList({QStringLiteral("untagged")}));
    QCOMPARE(m_model->getFormatList(QStringLiteral("recently")), QStringList());
    QCOMPARE(FormatListModel().formatList(), QStringList());
}

void TestFormatListModel::videoTypesAreTitlesOfVideoFormatsInUpperCase_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("isVideo");
    QTest::newRow("title") << QStringLiteral("MP4") << true;
    QTest::newRow("title in lower case") << QStringLiteral("mp4") << true;
    QTest::newRow("title in mixed case") << QStringLiteral("Mp4") << true;
    QTest::newRow("format titled in lower case") << QStringLiteral("mkv") << false;
    QTest::newRow("that in upper case") << QStringLiteral("MKV") << false;
    QTest::newRow("audio format") << QStringLiteral("MP3") << false;
    QTest::newRow("tag in upper case") << QStringLiteral("AVI") << false;
    QTest::newRow("beginning of a title") << QStringLiteral("MP") << false;
    QTest::newRow("unknown") << QStringLiteral("WMV") << false;
    QTest::newRow("empty") << QString() << false;
}

void TestFormatListModel::videoTypesAreTitlesOfVideoFormatsInUpperCase()
{
    QFETCH(QString, type);
    QFETCH(bool, isVideo);
    add(format(mp4, QStringLiteral("video")));
    add(format(QStringLiteral("mkv"), QStringLiteral("video")));
    add(format(mp3, QStringLiteral("audio")));
    add(format(avi, QStringLiteral("VIDEO")));
    QCOMPARE(m_model->isVideoType(type), isVideo);
}

void TestFormatListModel::withoutVideoFormatsNothingIsAVideoType()
{
    add(format(mp4, QStringLiteral("device")));
    QVERIFY(!m_model->isVideoType(mp4));
    QVERIFY(!FormatListModel().isVideoType(mp4));
}

void TestFormatListModel::draggingMovesTheRowSilently_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("order");
    QTest::newRow("down") << 0 << 2 << QStringLiteral("BCAD");
    QTest::newRow("up") << 3 << 1 << QStringLiteral("ADBC");
    QTest::newRow("by one") << 1 << 2 << QStringLiteral("ACBD");
    QTest::newRow("first to last") << 0 << 3 << QStringLiteral("BCDA");
    QTest::newRow("to its own place") << 2 << 2 << QStringLiteral("ABCD");
    QTest::newRow("from before the first") << -1 << 2 << QStringLiteral("ABCD");
    QTest::newRow("to before the first") << 2 << -1 << QStringLiteral("ABCD");
    QTest::newRow("from past the end") << 4 << 2 << QStringLiteral("ABCD");
    QTest::newRow("to past the end") << 2 << 4 << QStringLiteral("ABCD");
    QTest::newRow("far outside") << INT_MIN << INT_MAX << QStringLiteral("ABCD");
}

void TestFormatListModel::draggingMovesTheRowSilently()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, order);
    for (const char *title : {"A", "B", "C", "D"}) {
        add(format(QString::fromLatin1(title)));
    }
    const FormatDetailModel *presets = m_model->formatDetailModel(QStringLiteral("A"));
    SignalLog log(*m_model);
    m_model->moveDrag(from, to);
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(titlesOf(*m_model).join(QString()), order);
    for (int row = 0; row < order.size(); ++row) {
        QCOMPARE(m_model->findModelInfoIndex(order.mid(row, 1)), row);
    }
    QCOMPARE(m_model->formatDetailModel(QStringLiteral("A")), presets);
    QCOMPARE(m_model->count(), 4);
}

void TestFormatListModel::draggingDecidesWhichRowIsFirst()
{
    const QString id = QStringLiteral("a");
    add(format(mp4, QStringLiteral("first")));
    add(format(mp4, QStringLiteral("second")), {id});
    add(format(avi, QStringLiteral("third")), {id});
    m_model->moveDrag(0, 1);
    QCOMPARE(m_model->getRoleValue(FormatListModel::TagRole, mp4),
             QVariant(QStringLiteral("second")));
    QCOMPARE(m_model->getTagName(id), QStringLiteral("second"));
    m_model->moveDrag(2, 0);
    QCOMPARE(m_model->getTagName(id), QStringLiteral("third"));
    QCOMPARE(m_model->getIcon(id), QStringLiteral("avi.png"));
}

void TestFormatListModel::lookupsAgreeWithALinearSearch_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 20240229U, 4242U}) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestFormatListModel::lookupsAgreeWithALinearSearch()
{
    QFETCH(unsigned, seed);
    RandomWalk walk(seed);
    for (int step = 0; step < 2000; ++step) {
        const QString operation = walk.step();
        const QString disagreement = walk.disagreement();
        QVERIFY2(
            disagreement.isEmpty(),
            qPrintable(
                QStringLiteral("after step %1, %2: %3").arg(step).arg(operation, disagreement)));
    }
}

QTEST_GUILESS_MAIN(TestFormatListModel)
#include "tst_formatlistmodel.moc"

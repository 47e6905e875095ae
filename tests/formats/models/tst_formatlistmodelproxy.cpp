#include "formats/models/formatlistmodel.h"
#include "formats/models/formatlistmodelproxy.h"
#include "tests/formats/models/modelobservers.h"
#include "tests/support/messagelog.h"

#include <QtTest>

#include <climits>
#include <memory>
#include <optional>

namespace {

const QString video = QStringLiteral("video");
const QString audio = QStringLiteral("audio");

class CountingProxy : public FormatListModelProxy
{
public:
    mutable int filteredRows = 0;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override
    {
        ++filteredRows;
        return FormatListModelProxy::filterAcceptsRow(sourceRow, sourceParent);
    }
};

/*! Two rows titled "MP4", tagged "audio" and "video". */
class OtherListModel : public QAbstractListModel
{
public:
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : 2;
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        switch (role) {
        case FormatListModel::TitleRole:
            return QStringLiteral("MP4");
        case FormatListModel::TagRole:
            return index.row() == 0 ? audio : video;
        default:
            return QVariant();
        }
    }
};

} // namespace

class TestFormatListModelProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aNewProxyHasEmptyKeysAndFiltersByItself();
    void theMetaObjectOffersTheseMethods();
    void theMetaObjectOffersTheKeys();
    void qmlCallsTheInvokables();

    void theFilterKeyIsTheWholeTagInAnyCase_data();
    void theFilterKeyIsTheWholeTagInAnyCase();
    void theSearchKeyIsAPartOfTheTitleInAnyCase_data();
    void theSearchKeyIsAPartOfTheTitleInAnyCase();
    void clearingTheSearchKeyBringsTheTagBack();
    void theRowsFollowTheSource();

    void aNewFilterKeyIsAnnouncedBeforeTheRowsChange();
    void aNewSearchKeyIsAnnouncedBeforeTheRowsChange();
    void anEqualKeyChangesNothing();

    void theCountIsThatOfTheShownRows();
    void onlyShownTitlesAreInTheProxy_data();
    void onlyShownTitlesAreInTheProxy();
    void theTitleIsThatOfTheShownRow();
    void theTitleOutsideTheShownRowsIsEmpty_data();
    void theTitleOutsideTheShownRowsIsEmpty();
    void anotherSourceModelIsFilteredButLookupsFindNothing();
    void withoutASourceNothingIsFound();
    void sortingAndDraggingDoNothing();

private:
    QStringList shown() const;

    std::optional<MessageLog> m_log;
    std::unique_ptr<FormatListModel> m_formats;
    std::unique_ptr<CountingProxy> m_proxy;
};

void TestFormatListModelProxy::init()
{
    m_log.emplace();
    m_formats = std::make_unique<FormatListModel>();
    guard(*m_formats);
    const QPair<QString, QString> formats[] = {
        {QStringLiteral("MP4"), video},
        {QStringLiteral("MP3"), audio},
        {QStringLiteral("Mkv"), QStringLiteral("Video")},
        {QStringLiteral("Übung"), QStringLiteral("videos")},
        {QStringLiteral("untagged"), QString()},
        {QStringLiteral("avi"), video},
    };
    for (const auto &[title, tag] : formats) {
        m_formats->addModeInfo({title, QString(), tag});
    }
    m_proxy = std::make_unique<CountingProxy>();
    m_proxy->setSourceModel(m_formats.get());
    guard(*m_proxy);
}

void TestFormatListModelProxy::cleanup()
{
    m_proxy.reset();
    m_formats.reset();
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
}

QStringList TestFormatListModelProxy::shown() const
{
    QStringList titles;
    for (int row = 0; row < m_proxy->rowCount(); ++row) {
        titles.append(m_proxy->index(row, 0).data(FormatListModel::TitleRole).toString());
    }
    return titles;
}

void TestFormatListModelProxy::aNewProxyHasEmptyKeysAndFiltersByItself()
{
    QObject parent;
    const auto *proxy = new FormatListModelProxy(&parent);
    QCOMPARE(proxy->parent(), &parent);
    QCOMPARE(proxy->filterKey(), QString());
    QCOMPARE(proxy->searchKey(), QString());
    QVERIFY(proxy->dynamicSortFilter());
    const QSortFilterProxyModel untouched;
    QCOMPARE(proxy->filterRole(), untouched.filterRole());
    QCOMPARE(proxy->sortRole(), untouched.sortRole());
    QCOMPARE(proxy->sortColumn(), -1);
    QCOMPARE(proxy->sourceModel(), nullptr);
}

void TestFormatListModelProxy::theMetaObjectOffersTheseMethods()
{
    const QMetaObject &meta = FormatListModelProxy::staticMetaObject;
    QCOMPARE(meta.superClass(), &QSortFilterProxyModel::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             QStringList({
                 QStringLiteral("signal void filterKeyChanged(QString filterKey)"),
                 QStringLiteral("signal void searchKeyChanged()"),
                 QStringLiteral("invokable int count()"),
                 QStringLiteral("invokable bool isInProxyModel(QString title)"),
                 QStringLiteral("invokable QString getTitle(int itemIndex)"),
                 QStringLiteral("invokable void setSort(QString roles, bool isUp)"),
                 QStringLiteral("invokable void moveDrag(int srcProxyIndex, int desProxyIndex)"),
             }));
}

void TestFormatListModelProxy::theMetaObjectOffersTheKeys()
{
    QCOMPARE(ownProperties(FormatListModelProxy::staticMetaObject),
             QStringList({
                 QStringLiteral("QString filterKey, written, notify filterKeyChanged"),
                 QStringLiteral("QString searchKey, written, notify searchKeyChanged"),
             }));
    QVERIFY(m_proxy->setProperty("filterKey", audio));
    QCOMPARE(m_proxy->filterKey(), audio);
    QCOMPARE(m_proxy->property("filterKey"), QVariant(audio));
    QVERIFY(m_proxy->setProperty("searchKey", QStringLiteral("mp")));
    QCOMPARE(m_proxy->searchKey(), QStringLiteral("mp"));
    QCOMPARE(m_proxy->property("searchKey"), QVariant(QStringLiteral("mp")));
}

void TestFormatListModelProxy::qmlCallsTheInvokables()
{
    m_proxy->setFilterKey(audio);
    int count = 0;
    QVERIFY(QMetaObject::invokeMethod(m_proxy.get(), "count", Q_RETURN_ARG(int, count)));
    QCOMPARE(count, 1);
    bool isIn = false;
    QVERIFY(QMetaObject::invokeMethod(m_proxy.get(), "isInProxyModel", Q_RETURN_ARG(bool, isIn),
                                      Q_ARG(QString, QStringLiteral("MP3"))));
    QVERIFY(isIn);
    QString title;
    QVERIFY(QMetaObject::invokeMethod(m_proxy.get(), "getTitle", Q_RETURN_ARG(QString, title),
                                      Q_ARG(int, 0)));
    QCOMPARE(title, QStringLiteral("MP3"));
    QVERIFY(QMetaObject::invokeMethod(m_proxy.get(), "setSort",
                                      Q_ARG(QString, QStringLiteral("title")), Q_ARG(bool, true)));
    QVERIFY(QMetaObject::invokeMethod(m_proxy.get(), "moveDrag", Q_ARG(int, 0), Q_ARG(int, 1)));
}

void TestFormatListModelProxy::theFilterKeyIsTheWholeTagInAnyCase_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("titles");
    const QStringList videos{QStringLiteral("MP4"), QStringLiteral("Mkv"), QStringLiteral("avi")};
    QTest::newRow("no key shows the untagged")
        << QString() << QStringList{QStringLiteral("untagged")};
    QTest::newRow("lower case") << video << videos;
    QTest::newRow("upper case") << QStringLiteral("VIDEO") << videos;
    QTest::newRow("longer tag") << QStringLiteral("videos") << QStringList{QStringLiteral("Übung")};
    QTest::newRow("part of a tag") << QStringLiteral("vide") << QStringList();
    QTest::newRow("no such tag") << QStringLiteral("device") << QStringList();
    QTest::newRow("a title is not a tag") << QStringLiteral("MP4") << QStringList();
    QTest::newRow("no pattern") << QStringLiteral(".*") << QStringList();
}

void TestFormatListModelProxy::theFilterKeyIsTheWholeTagInAnyCase()
{
    QFETCH(QString, key);
    QFETCH(QStringList, titles);
    m_proxy->setFilterKey(key);
    QCOMPARE(shown(), titles);
}

void TestFormatListModelProxy::theSearchKeyIsAPartOfTheTitleInAnyCase_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("titles");
    const QStringList mp{QStringLiteral("MP4"), QStringLiteral("MP3")};
    QTest::newRow("across all tags") << QStringLiteral("mp") << mp;
    QTest::newRow("upper case") << QStringLiteral("MP") << mp;
    QTest::newRow("in the middle") << QStringLiteral("KV") << QStringList{QStringLiteral("Mkv")};
    QTest::newRow("untagged too") << QStringLiteral("tag")
                                  << QStringList{QStringLiteral("untagged")};
    QTest::newRow("letters beyond ASCII")
        << QStringLiteral("üb") << QStringList{QStringLiteral("Übung")};
    QTest::newRow("a tag is not searched") << video << QStringList();
    QTest::newRow("no pattern") << QStringLiteral(".*") << QStringList();
    QTest::newRow("a blank is searched for") << QStringLiteral(" ") << QStringList();
}

void TestFormatListModelProxy::theSearchKeyIsAPartOfTheTitleInAnyCase()
{
    QFETCH(QString, key);
    QFETCH(QStringList, titles);
    m_proxy->setSearchKey(key);
    QCOMPARE(shown(), titles);
    m_proxy->setFilterKey(audio);
    QCOMPARE(shown(), titles);
}

void TestFormatListModelProxy::clearingTheSearchKeyBringsTheTagBack()
{
    m_proxy->setFilterKey(audio);
    m_proxy->setSearchKey(QStringLiteral("mp"));
    m_proxy->setSearchKey(QString());
    QCOMPARE(shown(), QStringList({QStringLiteral("MP3")}));
}

void TestFormatListModelProxy::theRowsFollowTheSource()
{
    m_proxy->setFilterKey(audio);
    m_formats->addModeInfo({QStringLiteral("FLAC"), QString(), audio});
    m_formats->addModeInfoAtHead({QStringLiteral("OGG"), QString(), audio});
    m_formats->addModeInfoAtHead({QStringLiteral("MOV"), QString(), video});
    QCOMPARE(shown(),
             QStringList({QStringLiteral("OGG"), QStringLiteral("MP3"), QStringLiteral("FLAC")}));

    m_formats->setRoleValue(FormatListModel::TagRole, QStringLiteral("MP3"), video);
    m_formats->setRoleValue(FormatListModel::TagRole, QStringLiteral("avi"), audio);
    m_formats->delModelInfoByKey(QStringLiteral("OGG"));
    QCOMPARE(shown(), QStringList({QStringLiteral("avi"), QStringLiteral("FLAC")}));

    m_proxy->setSearchKey(QStringLiteral("flac"));
    m_formats->updateModeInfo(0, {QStringLiteral("flac too"), QString(), video});
    QCOMPARE(shown(), QStringList({QStringLiteral("flac too"), QStringLiteral("FLAC")}));
    m_formats->clearModeInfo();
    QCOMPARE(shown(), QStringList());
}

void TestFormatListModelProxy::aNewFilterKeyIsAnnouncedBeforeTheRowsChange()
{
    QStringList seen;
    connect(m_proxy.get(), &FormatListModelProxy::filterKeyChanged, this, [&](const QString &key) {
        seen = QStringList{key, m_proxy->filterKey()} + shown();
    });
    QSignalSpy searchSpy(m_proxy.get(), &FormatListModelProxy::searchKeyChanged);
    QCOMPARE(shown(), QStringList({QStringLiteral("untagged")}));
    m_proxy->setFilterKey(audio);
    QCOMPARE(seen, QStringList({audio, audio, QStringLiteral("untagged")}));
    QCOMPARE(shown(), QStringList({QStringLiteral("MP3")}));
    QCOMPARE(searchSpy.count(), 0);
}

void TestFormatListModelProxy::aNewSearchKeyIsAnnouncedBeforeTheRowsChange()
{
    QStringList seen;
    connect(m_proxy.get(), &FormatListModelProxy::searchKeyChanged, this,
            [&] { seen = QStringList{m_proxy->searchKey()} + shown(); });
    QSignalSpy filterSpy(m_proxy.get(), &FormatListModelProxy::filterKeyChanged);
    QCOMPARE(shown(), QStringList({QStringLiteral("untagged")}));
    m_proxy->setSearchKey(QStringLiteral("avi"));
    QCOMPARE(seen, QStringList({QStringLiteral("avi"), QStringLiteral("untagged")}));
    QCOMPARE(shown(), QStringList({QStringLiteral("avi")}));
    QCOMPARE(filterSpy.count(), 0);
}

void TestFormatListModelProxy::anEqualKeyChangesNothing()
{
    m_proxy->setFilterKey(video);
    m_proxy->setSearchKey(QStringLiteral("mp"));
    QSignalSpy filterSpy(m_proxy.get(), &FormatListModelProxy::filterKeyChanged);
    QSignalSpy searchSpy(m_proxy.get(), &FormatListModelProxy::searchKeyChanged);
    m_proxy->filteredRows = 0;
    m_proxy->setFilterKey(video);
    m_proxy->setSearchKey(QStringLiteral("mp"));
    QCOMPARE(filterSpy.count(), 0);
    QCOMPARE(searchSpy.count(), 0);
    QCOMPARE(m_proxy->filteredRows, 0);

    m_proxy->setFilterKey(QStringLiteral("Video"));
    QCOMPARE(filterSpy, QList<QVariantList>({{QStringLiteral("Video")}}));
    QCOMPARE(m_proxy->filteredRows, m_formats->rowCount());
    m_proxy->setSearchKey(QStringLiteral("Mp"));
    QCOMPARE(searchSpy, QList<QVariantList>({QVariantList()}));
    QCOMPARE(m_proxy->filteredRows, 2 * m_formats->rowCount());
}

void TestFormatListModelProxy::theCountIsThatOfTheShownRows()
{
    QCOMPARE(m_proxy->count(), 1);
    m_proxy->setFilterKey(video);
    QCOMPARE(m_proxy->count(), 3);
    m_proxy->setSearchKey(QStringLiteral("nothing like that"));
    QCOMPARE(m_proxy->count(), 0);
    QCOMPARE(m_formats->count(), 6);
}

void TestFormatListModelProxy::onlyShownTitlesAreInTheProxy_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("isIn");
    QTest::newRow("first shown") << QStringLiteral("MP4") << true;
    QTest::newRow("last shown") << QStringLiteral("avi") << true;
    QTest::newRow("other case") << QStringLiteral("AVI") << true;
    QTest::newRow("part of a title") << QStringLiteral("MP") << false;
    QTest::newRow("filtered out") << QStringLiteral("MP3") << false;
    QTest::newRow("unknown") << QStringLiteral("WMV") << false;
    QTest::newRow("empty") << QString() << false;
}

void TestFormatListModelProxy::onlyShownTitlesAreInTheProxy()
{
    QFETCH(QString, title);
    QFETCH(bool, isIn);
    m_proxy->setFilterKey(video);
    QCOMPARE(m_proxy->isInProxyModel(title), isIn);
    m_proxy->setSearchKey(QStringLiteral("nothing like that"));
    QVERIFY(!m_proxy->isInProxyModel(title));
}

void TestFormatListModelProxy::theTitleIsThatOfTheShownRow()
{
    m_proxy->setFilterKey(video);
    QCOMPARE(m_proxy->getTitle(0), QStringLiteral("MP4"));
    QCOMPARE(m_proxy->getTitle(1), QStringLiteral("Mkv"));
    QCOMPARE(m_proxy->getTitle(2), QStringLiteral("avi"));
    m_proxy->setFilterKey(audio);
    QCOMPARE(m_proxy->getTitle(0), QStringLiteral("MP3"));
}

void TestFormatListModelProxy::theTitleOutsideTheShownRowsIsEmpty_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("negative") << -1;
    QTest::newRow("equal to the number of shown rows") << 3;
    QTest::newRow("a row of the source") << 5;
    QTest::newRow("lowest number") << INT_MIN;
    QTest::newRow("highest number") << INT_MAX;
}

void TestFormatListModelProxy::theTitleOutsideTheShownRowsIsEmpty()
{
    QFETCH(int, row);
    m_proxy->setFilterKey(video);
    QCOMPARE(m_proxy->getTitle(row), QString());
}

void TestFormatListModelProxy::anotherSourceModelIsFilteredButLookupsFindNothing()
{
    OtherListModel other;
    m_proxy->setSourceModel(&other);
    m_proxy->setFilterKey(video);
    QCOMPARE(shown(), QStringList({QStringLiteral("MP4")}));
    QCOMPARE(m_proxy->count(), 1);
    QVERIFY(!m_proxy->isInProxyModel(QStringLiteral("MP4")));
    QCOMPARE(m_proxy->getTitle(0), QString());
    m_proxy.reset();
}

void TestFormatListModelProxy::withoutASourceNothingIsFound()
{
    const FormatListModelProxy proxy;
    QCOMPARE(proxy.count(), 0);
    QVERIFY(!proxy.isInProxyModel(QString()));
    QCOMPARE(proxy.getTitle(0), QString());
}

void TestFormatListModelProxy::sortingAndDraggingDoNothing()
{
    m_proxy->setFilterKey(video);
    const QStringList before = shown();
    int emitted = 0;
    const auto count = [&emitted] { ++emitted; };
    connect(m_proxy.get(), &FormatListModelProxy::layoutChanged, this, count);
    connect(m_proxy.get(), &FormatListModelProxy::dataChanged, this, count);
    connect(m_proxy.get(), &FormatListModelProxy::rowsMoved, this, count);
    m_proxy->setSort(QStringLiteral("title"), true);
    m_proxy->setSort(QStringLiteral("title"), false);
    m_proxy->moveDrag(0, 1);
    m_proxy->moveDrag(-1, 99);
    QCOMPARE(shown(), before);
    QCOMPARE(m_proxy->sortColumn(), -1);
    QCOMPARE(m_formats->getTitle(0), QStringLiteral("MP4"));
    QCOMPARE(m_formats->getTitle(1), QStringLiteral("MP3"));
    QCOMPARE(emitted, 0);
}

QTEST_GUILESS_MAIN(TestFormatListModelProxy)
#include "tst_formatlistmodelproxy.moc"

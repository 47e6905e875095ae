#include "formats/parsers/widthformatidparser.h"
#include "tests/formats/proxy/facadetest.h"

#include <QPointer>

class TestFormatsProxyLifecycle : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewFacadeIsEmpty();
    void theModelsAndThenTheParserAreChildren();
    void theFilterModelWrapsTheCatalogueFromTheStart();
    void theModelsStayTheSame();
    void theTagsAreSetAndAnnouncedOnce();
    void onlyTagsThatDifferAreAnnounced_data();
    void onlyTagsThatDifferAreAnnounced();
    void theFormatTagIsTheFilterKeyAndNothingElse();
    void theCategoriesAreImportedInOrder();
    void theTagsAreSetFirstAndTheRecentlyUsedReadNext();
    void theUsersPresetsFollowTheCatalogues();
    void bothFilesHoldUserDefinedPresets();
    void missingFilesAreLoggedAndSkipped_data();
    void missingFilesAreLoggedAndSkipped();
    void unreadableFilesAreLoggedAndSkipped_data();
    void unreadableFilesAreLoggedAndSkipped();
    void withoutAFolderOnlyTheUsersPresetsAreLookedFor();
    void initAgainReadsTheFilesAgain();

private:
    QStringList titles()
    {
        QStringList list;
        for (int row = 0; row < m_facade->formatListModel()->rowCount(); ++row) {
            list.append(m_facade->formatListModel()->getTitle(row));
        }
        return list;
    }

    static QStringList openFailures(const QString &folder)
    {
        return {QStringLiteral("debug: parseRecently open formats file failed, path= \"%1\"")
                    .arg(folder + QStringLiteral("/recently.json")),
                userPresetsFailure(folder)};
    }

    static QString userPresetsFailure(const QString &folder)
    {
        return QStringLiteral("debug: parseVideo -->open formats file failed, path= \"%1\"")
            .arg(folder + QStringLiteral("/formatCache.json"));
    }
};

void TestFormatsProxyLifecycle::aNewFacadeIsEmpty()
{
    QCOMPARE(m_facade->formatTags(), QVariantList());
    QCOMPARE(m_facade->formatListModel()->rowCount(), 0);
    QCOMPARE(m_facade->formatListModelProxy()->rowCount(), 0);
    QCOMPARE(m_facade->recentlyFormatsModel()->rowCount(), 0);
    QCOMPARE(FakeCatalogue::served().calls, QStringList());
}

void TestFormatsProxyLifecycle::theModelsAndThenTheParserAreChildren()
{
    QObject parent;
    auto *facade = new FormatsProxy(&parent);
    QCOMPARE(facade->parent(), &parent);
    const QObjectList children = facade->children();
    QCOMPARE(children.size(), 4);
    QCOMPARE(children.at(0), facade->formatListModel());
    QCOMPARE(children.at(1), facade->formatListModelProxy());
    QCOMPARE(children.at(2), facade->recentlyFormatsModel());
    QVERIFY(dynamic_cast<WidthFormatIdParser *>(children.at(3)));

    QList<QPointer<QObject>> left;
    for (QObject *child : children) {
        left.append(child);
    }
    delete facade;
    for (const QPointer<QObject> &child : left) {
        QVERIFY(child.isNull());
    }
}

void TestFormatsProxyLifecycle::theFilterModelWrapsTheCatalogueFromTheStart()
{
    QCOMPARE(m_facade->formatListModelProxy()->sourceModel(), m_facade->formatListModel());
}

void TestFormatsProxyLifecycle::theModelsStayTheSame()
{
    const QTemporaryDir folder;
    const auto models = [this] {
        return QList<QAbstractItemModel *>{m_facade->formatListModel(),
                                           m_facade->formatListModelProxy(),
                                           m_facade->recentlyFormatsModel()};
    };
    const QList<QAbstractItemModel *> before = models();
    QVERIFY(!before.contains(nullptr));
    initOverSamples(folder.path());
    QCOMPARE(models(), before);
    m_facade->uninit();
    QCOMPARE(models(), before);
}

void TestFormatsProxyLifecycle::theTagsAreSetAndAnnouncedOnce()
{
    const QTemporaryDir folder;
    QSignalSpy changed(&*m_facade, &FormatsProxy::formatTagsChanged);
    initOverSamples(folder.path());

    QStringList tags;
    for (const QVariant &tag : m_facade->formatTags()) {
        QCOMPARE(tag.userType(), int(QMetaType::QString));
        tags.append(tag.toString());
    }
    QCOMPARE(tags, words("recently video audio device socialvideo"));
    QCOMPARE(changed.count(), 1);

    initOverSamples(folder.path());
    QCOMPARE(changed.count(), 1);
}

void TestFormatsProxyLifecycle::onlyTagsThatDifferAreAnnounced_data()
{
    QTest::addColumn<QVariantList>("tags");
    QTest::addColumn<int>("announcements");
    const QVariant one = QStringLiteral("1");
    const QVariant two = QStringLiteral("2");
    QTest::newRow("equal") << QVariantList{one, two} << 0;
    QTest::newRow("equal as variants") << QVariantList{1, 2} << 0;
    QTest::newRow("another order") << QVariantList{two, one} << 1;
    QTest::newRow("fewer") << QVariantList{one} << 1;
    QTest::newRow("more") << QVariantList{one, two, two} << 1;
    QTest::newRow("none") << QVariantList() << 1;
}

void TestFormatsProxyLifecycle::onlyTagsThatDifferAreAnnounced()
{
    QFETCH(const QVariantList, tags);
    QFETCH(const int, announcements);
    m_facade->setFormatTags({QStringLiteral("1"), QStringLiteral("2")});
    QSignalSpy changed(&*m_facade, &FormatsProxy::formatTagsChanged);
    QVariantList atSignal;
    connect(&*m_facade, &FormatsProxy::formatTagsChanged, this,
            [&] { atSignal = m_facade->formatTags(); });

    m_facade->setFormatTags(tags);
    QCOMPARE(changed.count(), announcements);
    QCOMPARE(m_facade->formatTags(), tags);
    if (announcements > 0) {
        QCOMPARE(atSignal, tags);
    }
}

void TestFormatsProxyLifecycle::theFormatTagIsTheFilterKeyAndNothingElse()
{
    addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    addFormat(QStringLiteral("MP3"), QStringLiteral("audio"));
    FormatListModelProxy &filter = *m_facade->formatListModelProxy();
    QSignalSpy keyChanged(&filter, &FormatListModelProxy::filterKeyChanged);
    QSignalSpy searchChanged(&filter, &FormatListModelProxy::searchKeyChanged);
    QSignalSpy tagsChanged(&*m_facade, &FormatsProxy::formatTagsChanged);

    m_facade->setFormatTag(QStringLiteral("audio"));
    m_facade->setFormatTag(QStringLiteral("audio"));
    QCOMPARE(filter.filterKey(), QStringLiteral("audio"));
    QCOMPARE(filter.count(), 1);
    QCOMPARE(filter.getTitle(0), QStringLiteral("MP3"));
    QCOMPARE(keyChanged.count(), 1);
    QCOMPARE(keyChanged.first(), QVariantList{QStringLiteral("audio")});
    QCOMPARE(searchChanged.count(), 0);
    QCOMPARE(tagsChanged.count(), 0);
    QCOMPARE(m_facade->formatTags(), QVariantList());
}

void TestFormatsProxyLifecycle::theCategoriesAreImportedInOrder()
{
    const QTemporaryDir folder;
    FakeCatalogue::served() = sampleCatalogue();
    // A category that isn't a string is converted to one.
    FakeCatalogue::served().categories.append(42);
    m_facade->init(folder.path());
    QCOMPARE(m_log->takeAll(), openFailures(folder.path()));

    QCOMPARE(FakeCatalogue::served().calls,
             (QStringList{QStringLiteral("categories"), QStringLiteral("groups Video"),
                          QStringLiteral("contents MP4"), QStringLiteral("contents AVI"),
                          QStringLiteral("groups Audio"), QStringLiteral("contents 音频"),
                          QStringLiteral("groups 42")}));
    QCOMPARE(titles(), words("MP4 AVI 音频"));
    QCOMPARE(idsOf(mp4()), words("video_mp4_source video_mp4_720p"));
    QCOMPARE(m_facade->getTagName(QStringLiteral("audio_yinpin_source")), QStringLiteral("audio"));
    QVERIFY(!presetAt(mp4(), 0).userDefine);
}

void TestFormatsProxyLifecycle::theTagsAreSetFirstAndTheRecentlyUsedReadNext()
{
    const QTemporaryDir folder;
    writeFile(recentlyFile(folder), R"([{"id": "recent", "outPutNode": {"id": "x_y_z"}}])");
    FakeCatalogue::served() = sampleCatalogue();

    QStringList steps;
    const auto step = [&steps](const char *name) {
        return [&steps, name] {
            const QStringList &calls = FakeCatalogue::served().calls;
            steps.append(QString::fromLatin1(name) + QStringLiteral(" after ") +
                         (calls.isEmpty() ? QStringLiteral("nothing") : calls.last()));
        };
    };
    connect(&*m_facade, &FormatsProxy::formatTagsChanged, this, step("tags"));
    connect(m_facade->recentlyFormatsModel(), &QAbstractItemModel::rowsInserted, this,
            step("recent"));
    connect(m_facade->formatListModel(), &QAbstractItemModel::rowsInserted, this, step("format"));

    m_facade->init(folder.path());
    QCOMPARE(m_log->takeAll(), QStringList(userPresetsFailure(folder.path())));
    QCOMPARE(steps, (QStringList{QStringLiteral("tags after nothing"),
                                 QStringLiteral("recent after nothing"),
                                 QStringLiteral("format after groups Video"),
                                 QStringLiteral("format after contents MP4"),
                                 QStringLiteral("format after groups Audio")}));
}

void TestFormatsProxyLifecycle::theUsersPresetsFollowTheCatalogues()
{
    const QTemporaryDir folder;
    writeFile(recentlyFile(folder), "[]");
    writeFile(userPresetsFile(folder), R"([
        {"title": "MP4", "icon": "other.png", "tag": "other",
         "group": [{"id": "1005", "outPutNode": {"id": "x_y_1005"}}]},
        {"title": "Mine", "icon": "mine.png", "tag": "device",
         "group": [{"id": "1003", "outPutNode": {"id": "x_y_1003"}}, {"id": "1009"}]}])");
    FakeCatalogue::served() = sampleCatalogue();
    m_facade->init(folder.path());
    QCOMPARE(m_log->takeAll(),
             QStringList(QStringLiteral("debug: parseRecently -->varJson is null!")));

    QCOMPARE(titles(), words("MP4 AVI 音频 Mine"));
    QCOMPARE(idsOf(mp4()), words("video_mp4_source video_mp4_720p 1005"));
    QCOMPARE(m_facade->getTagName(QStringLiteral("1005")), QStringLiteral("video"));
    QCOMPARE(m_facade->getClassIconById(QStringLiteral("1005")), QStringLiteral("mp4.png"));
    QCOMPARE(m_facade->getTagName(QStringLiteral("1003")), QStringLiteral("device"));
    QCOMPARE(m_facade->addUserDefineFormat(QString(), QStringLiteral("MP4"), QStringLiteral("1005"),
                                           QVariantMap()),
             QStringLiteral("1006"));
}

void TestFormatsProxyLifecycle::bothFilesHoldUserDefinedPresets()
{
    const QTemporaryDir folder;
    const QByteArray entry = R"({"id": "a", "userDefine": false, "outPutNode": {"id": "x_y_z"}})";
    writeFile(recentlyFile(folder), '[' + entry + ']');
    writeFile(userPresetsFile(folder),
              R"([{"title": "Mine", "tag": "video", "group": [)" + entry + "]}]");
    m_facade->init(folder.path());

    QCOMPARE(m_facade->recentlyFormatsModel()->rowCount(), 1);
    QCOMPARE(m_facade->recentlyFormatsModel()->userDefineCount(), 1);
    QCOMPARE(m_facade->getUserDefineCount(QStringLiteral("video"), QStringLiteral("Mine")), 1);
}

void TestFormatsProxyLifecycle::missingFilesAreLoggedAndSkipped_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::newRow("a folder without files") << QString();
    QTest::newRow("a folder that ends in a separator") << QStringLiteral("/");
    QTest::newRow("a missing folder") << QStringLiteral("/missing");
    QTest::newRow("a missing folder with a Chinese name") << QStringLiteral("/预设 1");
}

void TestFormatsProxyLifecycle::missingFilesAreLoggedAndSkipped()
{
    QFETCH(const QString, suffix);
    const QTemporaryDir folder;
    FakeCatalogue::served() = sampleCatalogue();
    m_facade->init(folder.path() + suffix);
    QCOMPARE(m_log->takeAll(), openFailures(folder.path() + suffix));
    QCOMPARE(m_facade->formatListModel()->rowCount(), 3);
    QCOMPARE(m_facade->recentlyFormatsModel()->rowCount(), 0);
}

void TestFormatsProxyLifecycle::unreadableFilesAreLoggedAndSkipped_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("complaint");
    const QString noText = QStringLiteral("-->strJson is empty!");
    const QString noList = QStringLiteral("-->varJson is null!");
    QTest::newRow("an empty file") << QByteArray() << noText;
    QTest::newRow("an empty list") << QByteArray("[\n]\n") << noList;
    QTest::newRow("no list") << QByteArray("{\"title\": \"MP4\"}") << noList;
    QTest::newRow("not JSON") << QByteArray("\xff\xfe[") << noList;
    QTest::newRow("a file cut short") << QByteArray("[{\"id\": \"a\", \"outPut") << noList;
}

void TestFormatsProxyLifecycle::unreadableFilesAreLoggedAndSkipped()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, complaint);
    const QTemporaryDir folder;
    writeFile(recentlyFile(folder), content);
    writeFile(userPresetsFile(folder), content);
    FakeCatalogue::served() = sampleCatalogue();
    m_facade->init(folder.path());

    QCOMPARE(m_log->takeAll(), (QStringList{QStringLiteral("debug: parseRecently ") + complaint,
                                            QStringLiteral("debug: parseVideo ") + complaint}));
    QCOMPARE(m_facade->formatListModel()->rowCount(), 3);
    QCOMPARE(m_facade->recentlyFormatsModel()->rowCount(), 0);
}

void TestFormatsProxyLifecycle::withoutAFolderOnlyTheUsersPresetsAreLookedFor()
{
    FakeCatalogue::served() = sampleCatalogue();
    m_facade->init(QString());
    QCOMPARE(m_log->takeAll(),
             QStringList(QStringLiteral(
                 "debug: parseVideo -->open formats file failed, path= \"/formatCache.json\"")));
    QCOMPARE(m_facade->formatTags().size(), 5);
    QCOMPARE(m_facade->formatListModel()->rowCount(), 3);
}

void TestFormatsProxyLifecycle::initAgainReadsTheFilesAgain()
{
    const QTemporaryDir folder;
    const QByteArray entry = R"({"id": "1001", "outPutNode": {"id": "x_y_1001"}})";
    writeFile(recentlyFile(folder), '[' + entry + ']');
    writeFile(userPresetsFile(folder), R"([{"title": "MP4", "group": [)" + entry + "]}]");
    FakeCatalogue::served() = sampleCatalogue();
    m_facade->init(folder.path());
    QCOMPARE(titles(), words("MP4 AVI 音频"));

    FakeCatalogue::served().calls.clear();
    m_facade->init(folder.path());
    // Every format exists already, so its presets are not requested.
    QCOMPARE(FakeCatalogue::served().calls,
             (QStringList{QStringLiteral("categories"), QStringLiteral("groups Video"),
                          QStringLiteral("groups Audio")}));
    QCOMPARE(titles(), words("MP4 AVI 音频"));
    QCOMPARE(idsOf(mp4()), words("video_mp4_source video_mp4_720p 1001 1001"));
    QCOMPARE(idsOf(*m_facade->recentlyFormatsModel()), words("1001 1001"));
}

QTEST_GUILESS_MAIN(TestFormatsProxyLifecycle)
#include "tst_formatsproxy_lifecycle.moc"

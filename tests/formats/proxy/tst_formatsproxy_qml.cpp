#include "tests/formats/proxy/facadetest.h"

#include <QJSValue>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

#include <memory>

/*! The facade as a QML scene of the host sees it. */
class TestFormatsProxyQml : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void theModuleHasTheThreeModelTypes_data();
    void theModuleHasTheThreeModelTypes();
    void theModuleHasOneVersion_data();
    void theModuleHasOneVersion();
    void aBindingFollowsTheTags();
    void theTagsAreWritable();
    void aModelBelongsToTheFacadeAlsoInQml_data();
    void aModelBelongsToTheFacadeAlsoInQml();
    void anOperationAnswers_data();
    void anOperationAnswers();
    void aFurtherArgumentIsIgnored();
    void theAudioBitratesAreAnArray();
    void theHostsOwnOperationsAreNotThere_data();
    void theHostsOwnOperationsAreNotThere();

private:
    void fill();
    QVariant evaluate(const QByteArray &expression);
};

namespace {

std::unique_ptr<QObject> create(QQmlEngine &engine, const QByteArray &qml)
{
    QQmlComponent component(&engine);
    component.setData(qml, QUrl());
    std::unique_ptr<QObject> object(component.isReady() ? component.create() : nullptr);
    if (!object) {
        qWarning("%s", qPrintable(component.errorString()));
    }
    return object;
}

QVariant plain(const QVariant &value)
{
    return value.userType() == qMetaTypeId<QJSValue>() ? value.value<QJSValue>().toVariant()
                                                       : value;
}

} // namespace

// A video format with a built-in and a user-defined preset, an audio format, one recently used.
void TestFormatsProxyQml::fill()
{
    FormatDetailModel &mp4 =
        addFormat(QStringLiteral("MP4"), QStringLiteral("video"), QStringLiteral("mp4.png"));
    Preset video = presetWithId(QStringLiteral("v"));
    video.extension = QStringLiteral("mp4");
    video.title = QStringLiteral("Same as source");
    video.videoEncoders = QVariantList{QStringLiteral("h264")};
    video.audioEncoders = QVariantList{QStringLiteral("aac")};
    video.outPutNode = {{QStringLiteral("id"), QStringLiteral("video_mp4_source")}};
    mp4.addModeInfo(video);
    Preset own = video;
    own.id = QStringLiteral("1001");
    own.userDefine = true;
    mp4.addModeInfo(own);

    Preset audio = presetWithId(QStringLiteral("a"));
    audio.audioEncoders = QVariantList{QStringLiteral("mp3")};
    audio.audioBitrates = QVariantList{QStringLiteral("0"), QStringLiteral("64"), 128};
    addFormat(QStringLiteral("OGG"), QStringLiteral("audio")).addModeInfo(audio);
    m_facade->recentlyFormatsModel()->addModeInfo(own);
}

QVariant TestFormatsProxyQml::evaluate(const QByteArray &expression)
{
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(QStringLiteral("O_FormatsProxy"), &*m_facade);
    const std::unique_ptr<QObject> object =
        create(engine, "import QtQml 2.0\nimport CVFormats 1.0\n"
                       "QtObject { property var result: " +
                           expression + " }");
    return object ? plain(object->property("result")) : QVariant();
}

void TestFormatsProxyQml::theModuleHasTheThreeModelTypes_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("formats") << QByteArray("FormatListModel { property int shown: count }")
                             << QByteArray("FormatListModel");
    QTest::newRow("filter") << QByteArray("FormatListModelProxy {"
                                          " filterKey: 'video'; property int shown: count() }")
                            << QByteArray("FormatListModelProxy");
    QTest::newRow("presets") << QByteArray("FormatDetailModel { property int shown: count }")
                             << QByteArray("FormatDetailModel");
}

void TestFormatsProxyQml::theModuleHasTheThreeModelTypes()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QByteArray, type);
    QQmlEngine engine;
    const std::unique_ptr<QObject> model = create(engine, "import CVFormats 1.0\n" + qml);
    QVERIFY(model);
    QVERIFY(model->inherits(type.constData()));
    QCOMPARE(model->property("shown"), QVariant(0));
}

void TestFormatsProxyQml::theModuleHasOneVersion_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<bool>("exists");
    QTest::newRow("0.9") << QByteArray("0.9") << false;
    QTest::newRow("1.0") << QByteArray("1.0") << true;
    QTest::newRow("1.1") << QByteArray("1.1") << false;
    QTest::newRow("2.0") << QByteArray("2.0") << false;
}

void TestFormatsProxyQml::theModuleHasOneVersion()
{
    QFETCH(const QByteArray, version);
    QFETCH(const bool, exists);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import CVFormats " + version + "\nFormatListModel {}", QUrl());
    QCOMPARE(component.isReady(), exists);
}

void TestFormatsProxyQml::aBindingFollowsTheTags()
{
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(QStringLiteral("O_FormatsProxy"), &*m_facade);
    const std::unique_ptr<QObject> object =
        create(engine, "import QtQml 2.0\n"
                       "QtObject { property string tags: O_FormatsProxy.formatTags.join() }");
    QVERIFY(object);
    QCOMPARE(object->property("tags").toString(), QString());
    m_facade->setFormatTags({QStringLiteral("recently"), QStringLiteral("video")});
    QCOMPARE(object->property("tags").toString(), QStringLiteral("recently,video"));
}

void TestFormatsProxyQml::theTagsAreWritable()
{
    QSignalSpy changed(&*m_facade, &FormatsProxy::formatTagsChanged);
    evaluate("O_FormatsProxy.formatTags = ['b', 'a']");
    QCOMPARE(m_facade->formatTags(), (QVariantList{QStringLiteral("b"), QStringLiteral("a")}));
    QCOMPARE(changed.count(), 1);
}

void TestFormatsProxyQml::aModelBelongsToTheFacadeAlsoInQml_data()
{
    QTest::addColumn<QByteArray>("expression");
    for (const char *expression :
         {"O_FormatsProxy.formatListModel()", "O_FormatsProxy.formatListModelProxy()",
          "O_FormatsProxy.recentlyFormatsModel()",
          "O_FormatsProxy.formatListModel().formatDetailModel('MP4')"}) {
        QTest::newRow(expression) << QByteArray(expression);
    }
}

void TestFormatsProxyQml::aModelBelongsToTheFacadeAlsoInQml()
{
    QFETCH(const QByteArray, expression);
    fill();
    // Destroying the engine after each call would delete a model that has no parent.
    auto *const model = evaluate(expression).value<QObject *>();
    QVERIFY(model);
    QVERIFY(m_facade->findChildren<QObject *>().contains(model));
    QCOMPARE(evaluate(expression).value<QObject *>(), model);
}

void TestFormatsProxyQml::anOperationAnswers_data()
{
    QTest::addColumn<QByteArray>("expression");
    QTest::addColumn<QVariant>("answer");
    const auto row = [](const char *expression, const QVariant &answer) {
        QTest::newRow(expression) << QByteArray(expression) << answer;
    };
    const auto text = [](const char *latin1) { return QVariant(QString::fromLatin1(latin1)); };

    row("O_FormatsProxy.getFormat('v').title", text("Same as source"));
    row("O_FormatsProxy.getFormat('v')['video']['encoders'][0]", text("h264"));
    row("O_FormatsProxy.getFormat('a').audio.encoders.length", 1);
    row("O_FormatsProxy.getFormat('nowhere').id", QVariant());
    row("O_FormatsProxy.getFormat('video', 'MP4', 'v').extension", text("mp4"));
    row("O_FormatsProxy.getFormat('recently', '', '1001').id", text("1001"));
    row("O_FormatsProxy.getUserDefineCount('video', 'MP4')", 1);
    row("O_FormatsProxy.isAudioFormat('a')", true);
    row("O_FormatsProxy.isVideoFormat('v')", true);
    row("O_FormatsProxy.isSupportMultiTrack('v')", true);
    row("O_FormatsProxy.getTagName('a')", text("audio"));
    row("O_FormatsProxy.getTagAndClassById('v').tag", text("video"));
    row("O_FormatsProxy.getTagAndClassById('v')['class']", text("MP4"));
    row("O_FormatsProxy.getClassIconById('v')", text("mp4.png"));
    row("O_FormatsProxy.isVideoType('mp4')", true);

    row("O_FormatsProxy.isFormatInRecently('1001')", true);
    row("[O_FormatsProxy.add2Recently('video', 'MP4', 'v'),"
        " O_FormatsProxy.recentlyFormatsModel().getId(0)]",
        QVariantList{true, text("v")});
    row("[O_FormatsProxy.delFromRecently('1001'), O_FormatsProxy.recentlyFormatsModel().count]",
        QVariantList{true, 0});

    row("O_FormatsProxy.addUserDefineFormat('video', 'MP4', 'v', {'title': 'Mine'})", text("1002"));
    row("O_FormatsProxy.getFormat(O_FormatsProxy.addUserDefineFormat("
        "'video', 'MP4', 'v', {'videoBitrateMid': 1500})).outPutNode.videoParam.bitrateKbps",
        1500);
    row("[O_FormatsProxy.changeUserDefineFormat('MP4', '1001', {'title': 'New'}),"
        " O_FormatsProxy.getFormat('1001').title]",
        QVariantList{true, text("New")});
    row("[O_FormatsProxy.delUserDefineFormat('video', 'MP4', '1001'),"
        " O_FormatsProxy.formatListModel().formatDetailModel('MP4').count]",
        QVariantList{true, 1});

    row("O_FormatsProxy.formatListModel().count", 2);
    row("O_FormatsProxy.formatListModel().getTitle(1)", text("OGG"));
    row("O_FormatsProxy.formatListModel().isExist('OGG')", true);
    row("O_FormatsProxy.formatListModel().formatDetailModel('nowhere')",
        QVariant::fromValue(nullptr));
    row("{ var m = O_FormatsProxy.formatListModel();"
        " m.data(m.index(1, 0), FormatListModel.TagRole) }",
        text("audio"));
    row("{ var m = O_FormatsProxy.recentlyFormatsModel();"
        " m.data(m.index(0, 0), FormatDetailModel.ExtensionRole) }",
        text("mp4"));
    row("O_FormatsProxy.recentlyFormatsModel().isExist('1001')", true);
    row("{ O_FormatsProxy.setFormatTag('audio'); var f = O_FormatsProxy.formatListModelProxy();"
        " [f.count(), f.getTitle(0), f.isInProxyModel('mp4'), f.filterKey] }",
        QVariantList{1, text("OGG"), false, text("audio")});
    row("{ var f = O_FormatsProxy.formatListModelProxy(); f.searchKey = 'p4'; f.getTitle(0) }",
        text("MP4"));
}

void TestFormatsProxyQml::anOperationAnswers()
{
    QFETCH(const QByteArray, expression);
    QFETCH(const QVariant, answer);
    fill();
    const QVariant result = evaluate(expression);
    QCOMPARE(result, answer);
    QCOMPARE(result.isValid(), answer.isValid());
}

void TestFormatsProxyQml::aFurtherArgumentIsIgnored()
{
    fill();
    QCOMPARE(evaluate("O_FormatsProxy.getUserDefineCount('video', 'MP4', '1002')"), QVariant(1));
    QCOMPARE(evaluate("O_FormatsProxy.getUserDefineCount('recently', 'MP4', '1002')"),
             QVariant(-1));
    // Qt 6 warns of each, with its place and its reason.
    QCOMPARE(m_log->takeAll().size(), QT_VERSION_MAJOR == 6 ? 4 : 0);
}

void TestFormatsProxyQml::theAudioBitratesAreAnArray()
{
    fill();
    QCOMPARE(evaluate("O_FormatsProxy.getSupportAudioLisrfromType('ogg').join()"),
             QVariant(QStringLiteral("128,64")));
    QCOMPARE(m_log->takeAll(),
             QStringList(QStringLiteral("info: getSupportAudioLisrfromType reverse tempList")));
}

void TestFormatsProxyQml::theHostsOwnOperationsAreNotThere_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"getFitAudioFormatByBitrate", "getFitVideoFormatByName", "getSupportFormat",
          "getConverterParameters", "init", "uninit", "getInstance"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestFormatsProxyQml::theHostsOwnOperationsAreNotThere()
{
    QFETCH(const QByteArray, name);
    QCOMPARE(evaluate("typeof O_FormatsProxy." + name), QVariant(QStringLiteral("undefined")));
}

QTEST_GUILESS_MAIN(TestFormatsProxyQml)
#include "tst_formatsproxy_qml.moc"

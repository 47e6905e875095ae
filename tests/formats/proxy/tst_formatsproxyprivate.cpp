#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/models/formatlistmodelproxy.h"
#include "formats/proxy/formatsproxy.h"
#include "formats/proxy/formatsproxyprivate.h"
#include "tests/support/messagelog.h"

#include <QPointer>
#include <QtTest>

#include <optional>

class TestFormatsProxyPrivate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itStartsWithEmptyModelsAndNoParser();
    void theModelsBelongToTheFacade();
    void theFilterModelWrapsTheCatalogue();
    void aTextIsWrittenAsUtf8_data();
    void aTextIsWrittenAsUtf8();
    void aLongerFileIsReplacedWhole();
    void aFileThatCannotBeOpenedIsAFailure_data();
    void aFileThatCannotBeOpenedIsAFailure();
    void whatAWriteReturnsIsNotChecked();

private:
    std::optional<MessageLog> m_log;
    std::optional<FormatsProxy> m_facade;
    std::optional<FormatsProxyPrivate> m_private;
    std::optional<QTemporaryDir> m_folder;
};

void TestFormatsProxyPrivate::init()
{
    m_log.emplace();
    m_folder.emplace();
    m_facade.emplace();
    m_private.emplace(&*m_facade);
}

void TestFormatsProxyPrivate::cleanup()
{
    m_private.reset();
    m_facade.reset();
    m_folder.reset();
    const QStringList unexpected = m_log->takeAll();
    m_log.reset();
    QCOMPARE(unexpected, QStringList());
}

void TestFormatsProxyPrivate::itStartsWithEmptyModelsAndNoParser()
{
    QCOMPARE(m_private->q, &*m_facade);
    QCOMPARE(m_private->formatTags, QVariantList());
    QVERIFY(m_private->modelMap.isEmpty());
    QCOMPARE(m_private->formatListModel->rowCount(), 0);
    QCOMPARE(m_private->formatListModelProxy->rowCount(), 0);
    QCOMPARE(m_private->recentlyModel->rowCount(), 0);
    QVERIFY(!m_private->parser);
    QCOMPARE(m_private->maxRecentlyCount, 10);
    QCOMPARE(m_private->configDir, QString());
}

void TestFormatsProxyPrivate::theModelsBelongToTheFacade()
{
    const QObjectList children = m_facade->children();
    const QList<QPointer<QObject>> models{
        m_private->formatListModel, m_private->formatListModelProxy, m_private->recentlyModel};
    // The facade's own models and parser come first.
    QCOMPARE(children.size(), 4 + models.size());
    for (int i = 0; i < models.size(); ++i) {
        QCOMPARE(children.at(4 + i), models.at(i).data());
    }

    m_private.reset();
    for (const QPointer<QObject> &model : models) {
        QVERIFY(model);
    }
    m_facade.reset();
    for (const QPointer<QObject> &model : models) {
        QVERIFY(!model);
    }
}

void TestFormatsProxyPrivate::theFilterModelWrapsTheCatalogue()
{
    QCOMPARE(m_private->formatListModelProxy->sourceModel(), m_private->formatListModel);
}

void TestFormatsProxyPrivate::aTextIsWrittenAsUtf8_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("plain") << QStringLiteral("[\n]\n") << QByteArray("[\n]\n");
    QTest::newRow("Chinese") << QStringLiteral("预设\n")
                             << QByteArray("\xe9\xa2\x84\xe8\xae\xbe\n");
    QTest::newRow("beyond the basic plane")
        << QStringLiteral("😀") << QByteArray("\xf0\x9f\x98\x80");
    QTest::newRow("a null character") << QString(QChar()) << QByteArray(1, '\0');
    QTest::newRow("carriage return") << QStringLiteral("a\r\nb") << QByteArray("a\r\nb");
}

void TestFormatsProxyPrivate::aTextIsWrittenAsUtf8()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, content);
    const QString path = m_folder->filePath(QStringLiteral("new.json"));
    QVERIFY(m_private->write2Local(path, text));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), content);
}

void TestFormatsProxyPrivate::aLongerFileIsReplacedWhole()
{
    const QString path = m_folder->filePath(QStringLiteral("old.json"));
    QVERIFY(m_private->write2Local(path, QString(100000, QLatin1Char('x'))));
    QVERIFY(m_private->write2Local(path, QStringLiteral("short")));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("short"));
}

void TestFormatsProxyPrivate::aFileThatCannotBeOpenedIsAFailure_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("in a missing folder") << QStringLiteral("missing/new.json");
    QTest::newRow("a folder") << QString();
}

void TestFormatsProxyPrivate::aFileThatCannotBeOpenedIsAFailure()
{
    QFETCH(const QString, name);
    const QString path = m_folder->filePath(name);
    QVERIFY(!m_private->write2Local(path, QStringLiteral("text")));
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void TestFormatsProxyPrivate::whatAWriteReturnsIsNotChecked()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFile::exists(full)) {
        QSKIP("needs the device /dev/full");
    }
    QVERIFY(m_private->write2Local(full, QStringLiteral("text")));
}

QTEST_GUILESS_MAIN(TestFormatsProxyPrivate)
#include "tst_formatsproxyprivate.moc"

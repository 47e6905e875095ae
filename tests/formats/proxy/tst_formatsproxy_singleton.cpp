#include "tests/formats/proxy/facadetest.h"

#include <QDir>
#include <QProcess>

#include <cstdio>

class TestFormatsProxySingleton : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyCallGivesTheSameInstance();
    void theInstanceDiesAtExitAndSavesNothing();
};

namespace {

constexpr QLatin1String useAndExit("--use-and-exit");

// A host that never calls uninit().
int useInstance(const QString &folder)
{
    FormatsProxy *instance = FormatsProxy::getInstance();
    QObject::connect(instance, &QObject::destroyed, [] {
        std::puts("destroyed");
        std::fflush(stdout);
    });
    instance->init(folder);
    std::puts("used");
    return 0;
}

} // namespace

void TestFormatsProxySingleton::everyCallGivesTheSameInstance()
{
    FormatsProxy *instance = FormatsProxy::getInstance();
    QVERIFY(instance);
    QVERIFY(instance != &*m_facade);
    QCOMPARE(instance->parent(), nullptr);
    QCOMPARE(instance->formatTags(), QVariantList());
    QCOMPARE(instance->formatListModel()->rowCount(), 0);

    instance->setFormatTags({QStringLiteral("kept")});
    QCOMPARE(FormatsProxy::getInstance(), instance);
    QCOMPARE(FormatsProxy::getInstance()->formatTags(), QVariantList{QStringLiteral("kept")});
    QCOMPARE(m_facade->formatTags(), QVariantList());
}

void TestFormatsProxySingleton::theInstanceDiesAtExitAndSavesNothing()
{
    const QTemporaryDir folder;
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {useAndExit, folder.path()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("used\ndestroyed\n"));
    QVERIFY(QDir(folder.path()).isEmpty());
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (app.arguments().value(1) == useAndExit) {
        return useInstance(app.arguments().value(2));
    }
    TestFormatsProxySingleton test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_formatsproxy_singleton.moc"

#include "host/queue/engines/sshhosts.h"

#include <QtTest>

/*! The machines that --hosts names; connections to them are tested in tst_parallelengine. */
class TestSshHosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutNamesThereIsThisMachine();
    void machinesAreTakenOnceEach();
    void aNameThatIsNoMachineIsRefused_data();
    void aNameThatIsNoMachineIsRefused();
};

void TestSshHosts::withoutNamesThereIsThisMachine()
{
    const SshHosts hosts;
    QCOMPARE(hosts.text(), QStringLiteral(":"));
    QCOMPARE(hosts.remote(), QStringList());
}

void TestSshHosts::machinesAreTakenOnceEach()
{
    SshHosts hosts;
    QVERIFY(hosts.setNames(QStringLiteral("alpha,:,me@beta.example,alpha")));
    QCOMPARE(hosts.text(), QStringLiteral("alpha,:,me@beta.example"));
    QCOMPARE(hosts.remote(),
             QStringList({QStringLiteral("alpha"), QStringLiteral("me@beta.example")}));
}

void TestSshHosts::aNameThatIsNoMachineIsRefused_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("refused");

    QTest::newRow("empty") << ""
                           << "\"\"";
    QTest::newRow("empty among others") << "alpha,,beta"
                                        << "\"\"";
    QTest::newRow("an option") << "-oProxyCommand=rm"
                               << "\"-oProxyCommand=rm\"";
    QTest::newRow("a command for a shell") << "alpha;rm"
                                           << "\"alpha;rm\"";
    QTest::newRow("GNU parallel's own words") << "4/alpha"
                                              << "\"4/alpha\"";
    QTest::newRow("a blank") << "alpha, beta"
                             << "\" beta\"";
    QTest::newRow("a user like an option") << "-l@alpha"
                                           << "\"-l@alpha\"";
}

void TestSshHosts::aNameThatIsNoMachineIsRefused()
{
    QFETCH(QString, names);
    QFETCH(QString, refused);

    const Result<> named = SshHosts().setNames(names);
    QVERIFY(!named);
    QCOMPARE(named.error().kind, Error::WrongUsage);
    QVERIFY2(named.error().text.contains(refused), qPrintable(named.error().text));
}

QTEST_GUILESS_MAIN(TestSshHosts)
#include "tst_sshhosts.moc"

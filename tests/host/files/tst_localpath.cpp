#include "host/files/localpath.h"

#include "host/files/filenamecodec.h"

#include <QFile>
#include <QSysInfo>
#include <QtTest>

class TestLocalPath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { installFileNameCodec(); }
    void aUrlKeepsItsBytesInThePath_data();
    void aUrlKeepsItsBytesInThePath();
    void aPathKeepsItsBytesInTheUrl_data();
    void aPathKeepsItsBytesInTheUrl();
    void onlyLocalUrlsHavePaths();
};

void TestLocalPath::aUrlKeepsItsBytesInThePath_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QByteArray>("name");
    const auto row = [](const char *title, const char *url, const char *name) {
        QTest::newRow(title) << QByteArray(url) << QByteArray(name);
    };
    row("plain", "file:///films/a.mp4", "/films/a.mp4");
    row("blank, percent, hash", "file:///a%20b%25c%23d%3Fe", "/a b%c#d?e");
    row("UTF-8", "file:///%C3%A4.mp4", "/\xc3\xa4.mp4");
    row("not UTF-8", "file:///%E4%FF.mp4", "/\xe4\xff.mp4");
    row("localhost", "file://localhost/a.mp4", "/a.mp4");
    const QByteArray here = QSysInfo::machineHostName().toLatin1();
    row("this machine", ("file://" + here + "/a.mp4").constData(), "/a.mp4");
}

void TestLocalPath::aUrlKeepsItsBytesInThePath()
{
    QFETCH(QByteArray, url);
    QFETCH(QByteArray, name);
    QCOMPARE(QFile::encodeName(localPath(QUrl::fromEncoded(url))), name);
}

void TestLocalPath::aPathKeepsItsBytesInTheUrl_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("plain") << QByteArray("/films/a.mp4");
    QTest::newRow("blank, percent, hash") << QByteArray("/a b%c#d?e");
    QTest::newRow("not UTF-8") << QByteArray("/\xe4\xff.mp4");
}

void TestLocalPath::aPathKeepsItsBytesInTheUrl()
{
    QFETCH(QByteArray, name);
    const QUrl url = localUrl(QFile::decodeName(name));
    QVERIFY(url.isLocalFile());
    QCOMPARE(QFile::encodeName(localPath(url)), name);
}

void TestLocalPath::onlyLocalUrlsHavePaths()
{
    const QStringList paths = localPaths({
        QUrl(QStringLiteral("https://example.org/a.mp4")),
        QUrl(QStringLiteral("file://elsewhere.example/a.mp4")),
        QUrl(),
        QUrl(QStringLiteral("file:///b.mp4")),
    });
    QCOMPARE(paths, QStringList{QStringLiteral("/b.mp4")});
}

QTEST_GUILESS_MAIN(TestLocalPath)
#include "tst_localpath.moc"

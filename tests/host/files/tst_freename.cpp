#include "host/files/freename.h"

#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

#include <optional>

class TestFreeName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
    }
    void cleanup() { m_folder.reset(); }

    void aDanglingLinkTakesTheName();
    void anOverlongNameIsShortened();
    void noNameIsTooLong_data();
    void noNameIsTooLong();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::optional<QTemporaryDir> m_folder;
};

void TestFreeName::aDanglingLinkTakesTheName()
{
    QVERIFY(QFile::link(path(QStringLiteral("nowhere")), path(QStringLiteral("clip.mp4"))));
    QCOMPARE(freeName(m_folder->path(), QStringLiteral("clip"), QStringLiteral("mp4")),
             path(QStringLiteral("clip (2).mp4")));
}

void TestFreeName::anOverlongNameIsShortened()
{
    const QString base(251, QLatin1Char('a'));
    QCOMPARE(QFileInfo(freeName(m_folder->path(), base, QStringLiteral("mp4"))).fileName().size(),
             255);
    const QString webm =
        QFileInfo(freeName(m_folder->path(), base, QStringLiteral("webm"))).fileName();
    QCOMPARE(webm, QString(250, QLatin1Char('a')) + QStringLiteral(".webm"));
}

void TestFreeName::noNameIsTooLong_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("extension");
    const QString longText(300, QLatin1Char('e'));
    QString faces; // each of two units and four bytes
    for (int i = 0; i < 100; ++i) {
        faces += QString::fromUtf8("\xf0\x9f\x98\x80");
    }
    const QString mp4 = QStringLiteral("mp4");
    QTest::newRow("extension") << QStringLiteral("clip") << longText;
    QTest::newRow("both") << longText << longText;
    QTest::newRow("characters of two units") << faces << mp4;
    QTest::newRow("of two units, an odd number of bytes before")
        << QStringLiteral("a") + faces << mp4;
    QTest::newRow("of two units in the extension") << QStringLiteral("clip") << faces;
    QTest::newRow("a million") << QString(1000000, QLatin1Char('a')) << mp4;
}

void TestFreeName::noNameIsTooLong()
{
    QFETCH(QString, base);
    QFETCH(QString, extension);
    for (int i = 0; i < 2; ++i) {
        const QString name = QFileInfo(freeName(m_folder->path(), base, extension)).fileName();
        const int bytes = name.toUtf8().size();
        QVERIFY2(bytes <= 255 && bytes > 251, qPrintable(QString::number(bytes)));
        QCOMPARE(QString::fromUtf8(name.toUtf8()), name); // no half character
        QCOMPARE(name.contains(QStringLiteral(" (2).")), i == 1);
        QVERIFY(writeFile(path(name), "taken"));
    }
}

QTEST_GUILESS_MAIN(TestFreeName)
#include "tst_freename.moc"

#include "host/files/visibletext.h"

#include <QtTest>

class TestVisibleText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void invisibleCharactersAreReplaced_data();
    void invisibleCharactersAreReplaced();
    void rightToLeftTextIsKeptTogether_data();
    void rightToLeftTextIsKeptTogether();
    void aNameIsVisibleAndKeptTogether();
    void aPathIsVisibleAndKeptTogether();
    void aLineKeepsItsNamesTogether_data();
    void aLineKeepsItsNamesTogether();
};

void TestVisibleText::invisibleCharactersAreReplaced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const QString &text, const QString &shown) {
        QTest::newRow(name) << text << shown;
    };
    row("nothing", QString(), QString());
    row("plain text", QStringLiteral("it's é 日本 \U0001F600.mp4"),
        QStringLiteral("it's é 日本 \U0001F600.mp4"));
    row("joined characters", QStringLiteral("\U0001F468\u200D\U0001F469"),
        QStringLiteral("\U0001F468\u200D\U0001F469"));
    row("escape sequence", QStringLiteral("a\x1b[31mb"), QStringLiteral("a\uFFFD[31mb"));
    row("line break", QStringLiteral("a\r\nb"), QStringLiteral("a\uFFFD\uFFFDb"));
    row("tabulator", QStringLiteral("a\tb"), QStringLiteral("a\uFFFDb"));
    row("delete", QStringLiteral("a\x7f"), QStringLiteral("a\uFFFD"));
    row("8-bit control", QString(QChar(0x9B)), QStringLiteral("\uFFFD"));
    row("line separators", QStringLiteral("\u2028\u2029"), QStringLiteral("\uFFFD\uFFFD"));
    for (const ushort code :
         {0x202A, 0x202B, 0x202C, 0x202D, 0x202E, 0x2066, 0x2067, 0x2068, 0x2069}) {
        row(qPrintable(QString::number(code, 16)), QString(QChar(code)), QStringLiteral("\uFFFD"));
    }
    row("byte that is no UTF-8", QString(QChar(0xDCE9)), QStringLiteral("\uFFFD"));
    row("byte behind a pair", QStringLiteral("\U0001F600") + QChar(0xDC80),
        QStringLiteral("\U0001F600\uFFFD"));
    row("half in front of a pair", QChar(0xD83D) + QStringLiteral("\U0001F600"),
        QStringLiteral("\uFFFD\U0001F600"));
}

void TestVisibleText::invisibleCharactersAreReplaced()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QCOMPARE(visibleText(text), shown);
}

void TestVisibleText::rightToLeftTextIsKeptTogether_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isMarked");
    QTest::newRow("Hebrew") << QStringLiteral("שלום.mp4") << true;
    QTest::newRow("Arabic") << QStringLiteral("مرحبا") << true;
    QTest::newRow("some in it") << QStringLiteral("film שלום") << true;
    QTest::newRow("Latin") << QStringLiteral("film (1).mp4") << false;
    QTest::newRow("Japanese") << QStringLiteral("映画") << false;
    QTest::newRow("nothing") << QString() << false;
}

void TestVisibleText::rightToLeftTextIsKeptTogether()
{
    QFETCH(QString, text);
    QFETCH(bool, isMarked);
    QCOMPARE(isolated(text), isMarked ? QChar(0x2068) + text + QChar(0x2069) : text);
}

void TestVisibleText::aNameIsVisibleAndKeptTogether()
{
    QCOMPARE(visibleName(QStringLiteral("/films/a\n.mp4")), QStringLiteral("a\uFFFD.mp4"));
    // A mark in the name itself can't end the unit.
    QCOMPARE(visibleName(QStringLiteral("/שלום/ש\u2069.mp4")),
             QStringLiteral("\u2068ש\uFFFD.mp4\u2069"));
}

void TestVisibleText::aPathIsVisibleAndKeptTogether()
{
    QCOMPARE(visiblePath(QStringLiteral("/films/a\n.mp4")), QStringLiteral("/films/a\uFFFD.mp4"));
    QCOMPARE(visiblePath(QStringLiteral("/שלום/a.mp4")), QStringLiteral("\u2068/שלום/a.mp4\u2069"));
}

void TestVisibleText::aLineKeepsItsNamesTogether_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("shown");
    const QString name = QStringLiteral("\u2068שלום\u2069");
    QTest::newRow("a name") << name + QStringLiteral(" is 2") << name + QStringLiteral(" is 2");
    QTest::newRow("a unit without end") << QStringLiteral("\u2068a") << QStringLiteral("\uFFFDa");
    QTest::newRow("an end without unit") << QStringLiteral("a\u2069") << QStringLiteral("a\uFFFD");
    QTest::newRow("another direction")
        << QStringLiteral("\u2068a\u202E\u2069") << QStringLiteral("\u2068a\uFFFD\u2069");
    QTest::newRow("a line break") << name + QStringLiteral("\n") << name + QStringLiteral("\uFFFD");
}

void TestVisibleText::aLineKeepsItsNamesTogether()
{
    QFETCH(QString, line);
    QTEST(visibleLine(line), "shown");
}

QTEST_APPLESS_MAIN(TestVisibleText)
#include "tst_visibletext.moc"

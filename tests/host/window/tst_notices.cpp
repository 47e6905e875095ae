#include "host/window/notices.h"

#include <QtTest>

class TestNotices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNameFromRightToLeftStaysTogether();
    void whatWouldTurnTheLineIsReplaced();
    void aLineIsShownOnce();
};

void TestNotices::aNameFromRightToLeftStaysTogether()
{
    Notices notices;
    const QString line = QStringLiteral("\u2068ים.jpg\u2069 is a picture");
    QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
    notices.add(line);
    QCOMPARE(notices.text(), line);
}

void TestNotices::whatWouldTurnTheLineIsReplaced()
{
    Notices notices;
    const QString shown = QStringLiteral("a\uFFFDb.jpg is a picture");
    QTest::ignoreMessage(QtWarningMsg, qPrintable(shown));
    notices.add(QStringLiteral("a\u202Eb.jpg is a picture"));
    QCOMPARE(notices.text(), shown);
}

void TestNotices::aLineIsShownOnce()
{
    Notices notices;
    QSignalSpy changed(&notices, &Notices::textChanged);
    for (const char *line : {"one", "two", "one"}) {
        if (changed.count() < 2) {
            QTest::ignoreMessage(QtWarningMsg, line);
        }
        notices.add(QString::fromLatin1(line));
    }
    QCOMPARE(notices.text(), QStringLiteral("one\ntwo"));
    QCOMPARE(changed.count(), 2);
    notices.dismiss();
    QCOMPARE(notices.text(), QString());
}

QTEST_APPLESS_MAIN(TestNotices)
#include "tst_notices.moc"

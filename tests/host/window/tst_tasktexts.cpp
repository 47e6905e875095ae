#include "host/app/languages.h"
#include "host/window/tasktexts.h"

#include <QtTest>

/*! What the list says of a task, in the user's language. */
class TestTaskTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Q_INIT_RESOURCE(translations); }
    void cleanup() { Languages::install(QStringLiteral("en")); }
    void numbersAreWrittenAsTheLanguageWritesThem_data();
    void numbersAreWrittenAsTheLanguageWritesThem();
    void whatIsUnknownOfTheProgressIsLeftOut();
    void aRightToLeftNameStaysInFrontOfItsSize();
};

void TestTaskTexts::numbersAreWrittenAsTheLanguageWritesThem_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("running");
    QTest::newRow("en") << QStringLiteral("1.5 GB") << QStringLiteral("10,000")
                        << QStringLiteral("45%  ·  2.5×  ·  0:22 left");
    QTest::newRow("de") << QStringLiteral("1,5 GB") << QStringLiteral("10.000")
                        << QStringLiteral("45 %  ·  2,5×  ·  noch 0:22");
    // Narrow spaces at which no line ends.
    QTest::newRow("fr") << QStringLiteral("1,5\u202FGo") << QStringLiteral("10\u202F000")
                        << QStringLiteral("45\u202F%  ·  2,5×  ·  reste 0:22");
    QTest::newRow("ja") << QStringLiteral("1.5 GB") << QStringLiteral("10,000")
                        << QStringLiteral("45%  ·  2.5×  ·  残り 0:22");
}

void TestTaskTexts::numbersAreWrittenAsTheLanguageWritesThem()
{
    Languages::install(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(sizeText(1.5e9), "size");
    QTEST(countText(10000), "count");
    Progress progress;
    progress.done = 45;
    progress.total = 100;
    progress.speed = 2.5;
    QTEST(runningText(progress), "running");
}

void TestTaskTexts::whatIsUnknownOfTheProgressIsLeftOut()
{
    QCOMPARE(runningText({}), QStringLiteral("Converting…"));
    Progress fast;
    fast.speed = 12.4;
    QCOMPARE(runningText(fast), QStringLiteral("Converting…  ·  12×"));
}

void TestTaskTexts::aRightToLeftNameStaysInFrontOfItsSize()
{
    Task task;
    task.target = QStringLiteral("/films/שלום.mp4");
    task.targetBytes = 2048;
    QCOMPARE(resultOf(task), QStringLiteral("\u2068שלום.mp4\u2069  ·  2.0 kB"));
}

QTEST_GUILESS_MAIN(TestTaskTexts)
#include "tst_tasktexts.moc"

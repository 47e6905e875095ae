#include "host/convert/trackchoice.h"

#include <QtTest>

class TestTrackChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyChoiceIsReadAsItIsWritten_data();
    void everyChoiceIsReadAsItIsWritten();
    void anythingElseIsNoChoice_data();
    void anythingElseIsNoChoice();
    void aLanguageHasSeveralCodes_data();
    void aLanguageHasSeveralCodes();
    void numbersTakeTheseTracksOnly();
    void theDefaultTrackIsTheSourcesUnlessOneIsNamed();
};

void TestTrackChoice::everyChoiceIsReadAsItIsWritten_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"all", "first", "none", "de", "pt-BR", "2", "1,3", "1,3/3", "1,12/0"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void TestTrackChoice::everyChoiceIsReadAsItIsWritten()
{
    QFETCH(QString, text);
    const std::optional<TrackChoice> choice = TrackChoice::fromText(text);
    QVERIFY(choice);
    QCOMPARE(choice->text(), text);
    QVERIFY(*TrackChoice::fromText(choice->text()) == *choice);
    QCOMPARE(*choice == TrackChoice(), text == QLatin1String("all"));
}

void TestTrackChoice::anythingElseIsNoChoice_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"", "german", "0", "1,", ",1", "1 3", "-1", "1,3/2", "/1", "1/", "99999", "1\n"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void TestTrackChoice::anythingElseIsNoChoice()
{
    QFETCH(QString, text);
    QVERIFY(!TrackChoice::fromText(text));
}

void TestTrackChoice::aLanguageHasSeveralCodes_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("two letters") << QStringLiteral("de") << QStringLiteral("ger") << true;
    QTest::newRow("the other three") << QStringLiteral("deu") << QStringLiteral("ger") << true;
    QTest::newRow("a region") << QStringLiteral("pt-BR") << QStringLiteral("por") << true;
    QTest::newRow("one without others") << QStringLiteral("tlh") << QStringLiteral("tlh") << true;
    QTest::newRow("another one") << QStringLiteral("de") << QStringLiteral("dut") << false;
    QTest::newRow("not told") << QStringLiteral("de") << QString() << false;
}

void TestTrackChoice::aLanguageHasSeveralCodes()
{
    QFETCH(QString, asked);
    QFETCH(QString, language);
    QFETCH(bool, isTaken);
    Track track;
    track.language = language;
    QCOMPARE(TrackChoice::fromText(asked)->takes(track), isTaken);
}

void TestTrackChoice::numbersTakeTheseTracksOnly()
{
    const TrackChoice choice = *TrackChoice::fromText(QStringLiteral("3,1,3"));
    QCOMPARE(choice.numbers, (QVector<int>{1, 3}));
    for (int number = 0; number < 5; ++number) {
        Track track;
        track.number = number;
        QCOMPARE(choice.takes(track), number == 1 || number == 3);
    }
}

void TestTrackChoice::theDefaultTrackIsTheSourcesUnlessOneIsNamed()
{
    Track first;
    first.number = 1;
    first.isDefault = true;
    Track second;
    second.number = 2;
    const auto defaults = [&](const char *text) {
        const TrackChoice choice = *TrackChoice::fromText(QString::fromLatin1(text));
        return qMakePair(choice.isDefault(first), choice.isDefault(second));
    };
    QCOMPARE(defaults("1,2"), qMakePair(true, false));
    QCOMPARE(defaults("1,2/2"), qMakePair(false, true));
    QCOMPARE(defaults("1,2/0"), qMakePair(false, false));
}

QTEST_GUILESS_MAIN(TestTrackChoice)
#include "tst_trackchoice.moc"

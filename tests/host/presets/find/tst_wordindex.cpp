#include "host/presets/find/wordindex.h"

#include <QtTest>

using Likenesses = QVector<WordIndex::Likeness>;
Q_DECLARE_METATYPE(Likenesses)

class TestWordIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsMatchWholeOrByTheirBeginning_data();
    void wordsMatchWholeOrByTheirBeginning();
    void aLongWordMayHaveOneTypingError_data();
    void aLongWordMayHaveOneTypingError();
    void aWordThatBeginsAnotherIsNoTypingError();
    void missingBlanksAreFound_data();
    void missingBlanksAreFound();
    void eachWordIsListedOnce();
    void anEmptyIndexFindsNothing();

private:
    const WordIndex m_index = WordIndex({{QStringLiteral("iphone"), 0},
                                         {QStringLiteral("ipad"), 1},
                                         {QStringLiteral("hd"), 0},
                                         {QStringLiteral("hd"), 2},
                                         {QStringLiteral("hdready"), 2},
                                         {QStringLiteral("playstation"), 3},
                                         {QStringLiteral("5"), 3},
                                         {QStringLiteral("无损"), 4},
                                         {QStringLiteral("音频"), 4},
                                         {QStringLiteral("x"), 5}},
                                        6);
};

void TestWordIndex::wordsMatchWholeOrByTheirBeginning_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Likenesses>("found");
    constexpr auto none = WordIndex::None;
    constexpr auto prefix = WordIndex::Prefix;
    constexpr auto exact = WordIndex::Exact;
    QTest::newRow("whole") << QStringLiteral("ipad")
                           << Likenesses{none, exact, none, none, none, none};
    QTest::newRow("beginning") << QStringLiteral("ip")
                               << Likenesses{prefix, prefix, none, none, none, none};
    QTest::newRow("whole before beginning")
        << QStringLiteral("hd") << Likenesses{exact, none, exact, none, none, none};
    QTest::newRow("first word") << QStringLiteral("5")
                                << Likenesses{none, none, none, exact, none, none};
    QTest::newRow("last word") << QStringLiteral("音频")
                               << Likenesses{none, none, none, none, exact, none};
    QTest::newRow("longer than the word") << QStringLiteral("ipads") << Likenesses{};
    QTest::newRow("before all words") << QStringLiteral("1") << Likenesses{};
    QTest::newRow("after all words") << QString(QChar(0xfffd)) << Likenesses{};
    QTest::newRow("empty") << QString() << Likenesses{};
    QTest::newRow("endless") << QString(1000000, QLatin1Char('i')) << Likenesses{};
}

void TestWordIndex::wordsMatchWholeOrByTheirBeginning()
{
    QFETCH(QString, typed);
    QTEST(m_index.find(typed, WordIndex::Accept::Prefixes), "found");
}

void TestWordIndex::aLongWordMayHaveOneTypingError_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const char *name, const char *typed, bool isFound) {
        QTest::newRow(name) << QString::fromLatin1(typed) << isFound;
    };
    row("changed", "iphane", true);
    row("added", "ipphone", true);
    row("left out", "iphne", true);
    row("swapped", "iphnoe", true);
    row("first letter changed", "uphone", true);
    row("first letters swapped", "pihone", true);
    row("last letter changed", "iphonr", true);
    row("one too many at the end", "iphonee", true);
    row("in the beginning of a word", "palyst", true);
    row("two errors", "ipnhoo", false);
    row("fewer than five letters", "ipjo", false);
}

void TestWordIndex::aLongWordMayHaveOneTypingError()
{
    QFETCH(QString, typed);
    QFETCH(bool, isFound);
    QVERIFY(m_index.find(typed, WordIndex::Accept::Prefixes).isEmpty());
    const Likenesses found = m_index.find(typed, WordIndex::Accept::Typos);
    QCOMPARE(!found.isEmpty(), isFound);
    QCOMPARE(found.count(WordIndex::Typo), isFound ? 1 : 0);
}

void TestWordIndex::aWordThatBeginsAnotherIsNoTypingError()
{
    const WordIndex index({{QStringLiteral("small"), 0},
                           {QStringLiteral("smaller"), 1},
                           {QStringLiteral("smell"), 2}},
                          3);
    QCOMPARE(index.find(QStringLiteral("small"), WordIndex::Accept::Typos),
             (Likenesses{WordIndex::Exact, WordIndex::Prefix, WordIndex::None}));
}

void TestWordIndex::missingBlanksAreFound_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("pieces");
    QTest::newRow("number") << QStringLiteral("playstation5")
                            << QStringList{QStringLiteral("playstation"), QStringLiteral("5")};
    QTest::newRow("Chinese") << QStringLiteral("无损音频")
                             << QStringList{QStringLiteral("无损"), QStringLiteral("音频")};
    QTest::newRow("unfinished last word")
        << QStringLiteral("hdipho") << QStringList{QStringLiteral("hd"), QStringLiteral("ipho")};
    QTest::newRow("longest word first")
        << QStringLiteral("hdready5")
        << QStringList{QStringLiteral("hdready"), QStringLiteral("5")};
    QTest::newRow("unknown rest") << QStringLiteral("iphonequ") << QStringList{};
    QTest::newRow("a single letter is no word here") << QStringLiteral("iphonex") << QStringList{};
    QTest::newRow("endless") << QString(1000000, QLatin1Char('5')) << QStringList{};
}

void TestWordIndex::missingBlanksAreFound()
{
    QFETCH(QString, typed);
    QTEST(m_index.split(typed), "pieces");
}

void TestWordIndex::eachWordIsListedOnce()
{
    QCOMPARE(
        m_index.words(),
        QStringLiteral("5 hd hdready ipad iphone playstation x 无损 音频").split(QLatin1Char(' ')));
}

void TestWordIndex::anEmptyIndexFindsNothing()
{
    QVERIFY(WordIndex().find(QStringLiteral("iphone"), WordIndex::Accept::Typos).isEmpty());
    QVERIFY(WordIndex({}, 0).find(QStringLiteral("iphone"), WordIndex::Accept::Typos).isEmpty());
    QVERIFY(!WordIndex().contains(QStringLiteral("iphone")));
}

QTEST_GUILESS_MAIN(TestWordIndex)
#include "tst_wordindex.moc"

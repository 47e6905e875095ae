#include "formats/models/keyindex_p.h"

#include <QtTest>

namespace {

const QString key = QStringLiteral("MP4");

} // namespace

class TestKeyIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anUnknownKeyHasNoValues();
    void anUnknownKeyGivesANullPointer();
    void theFirstValueIsTheOneAppendedFirst();
    void aPrependedValueComesBeforeTheOthers();
    void addingReturnsWhetherTheKeyIsNew();
    void aKeyWhoseValuesAreGoneIsNewAgain();
    void keysAreComparedExactly();
    void removingTheFirstValueMakesTheNextOneTheFirst();
    void removingReturnsWhetherTheKeyIsGone();
    void removingWhatIsNotThereChangesNothing();
    void removingTakesOneOfSeveralEqualValues();
    void sortingFollowsTheRows();
    void sortingLeavesOtherKeysAlone();
    void sortingAKeyWithOneValueOrNoneChangesNothing();
};

void TestKeyIndex::anUnknownKeyHasNoValues()
{
    const KeyIndex<QString> index;
    QVERIFY(!index.contains(key));
    QCOMPARE(index.first(key), QString());
    QCOMPARE(index.all(key), QList<QString>());
}

void TestKeyIndex::anUnknownKeyGivesANullPointer()
{
    const KeyIndex<int *> index;
    QCOMPARE(index.first(key), static_cast<int *>(nullptr));
}

void TestKeyIndex::theFirstValueIsTheOneAppendedFirst()
{
    KeyIndex<int> index;
    index.append(key, 5);
    index.append(key, 3);
    index.append(key, 4);
    QVERIFY(index.contains(key));
    QCOMPARE(index.first(key), 5);
    QCOMPARE(index.all(key), QList<int>({5, 3, 4}));
}

void TestKeyIndex::aPrependedValueComesBeforeTheOthers()
{
    KeyIndex<int> index;
    index.append(key, 5);
    index.prepend(key, 7);
    index.prepend(key, 6);
    QCOMPARE(index.first(key), 6);
    QCOMPARE(index.all(key), QList<int>({6, 7, 5}));
}

void TestKeyIndex::addingReturnsWhetherTheKeyIsNew()
{
    KeyIndex<int> index;
    QVERIFY(index.append(key, 1));
    QVERIFY(!index.append(key, 1));
    QVERIFY(!index.prepend(key, 2));
    QVERIFY(index.prepend(QStringLiteral("AVI"), 1));
    QVERIFY(!index.append(QStringLiteral("AVI"), 2));
}

void TestKeyIndex::aKeyWhoseValuesAreGoneIsNewAgain()
{
    KeyIndex<int> index;
    index.append(key, 1);
    index.remove(key, 1);
    QVERIFY(!index.contains(key));
    QCOMPARE(index.all(key), QList<int>());
    QVERIFY(index.append(key, 1));
}

void TestKeyIndex::keysAreComparedExactly()
{
    KeyIndex<int> index;
    index.append(key, 1);
    index.append(QString(), 2);
    QVERIFY(!index.contains(QStringLiteral("mp4")));
    QVERIFY(!index.contains(QStringLiteral("MP4 ")));
    QCOMPARE(index.first(QStringLiteral("MP")), 0);
    QCOMPARE(index.first(QStringLiteral("")), 2);
}

void TestKeyIndex::removingTheFirstValueMakesTheNextOneTheFirst()
{
    KeyIndex<int> index;
    index.append(key, 1);
    index.append(key, 2);
    index.remove(key, 1);
    QCOMPARE(index.first(key), 2);
}

void TestKeyIndex::removingReturnsWhetherTheKeyIsGone()
{
    KeyIndex<int> index;
    index.append(key, 1);
    index.append(key, 2);
    QVERIFY(!index.remove(key, 2));
    QVERIFY(index.contains(key));
    QVERIFY(index.remove(key, 1));
    QVERIFY(!index.contains(key));
}

void TestKeyIndex::removingWhatIsNotThereChangesNothing()
{
    KeyIndex<int> index;
    index.append(key, 1);
    QVERIFY(!index.remove(key, 2));
    QVERIFY(!index.remove(QStringLiteral("AVI"), 1));
    QCOMPARE(index.all(key), QList<int>({1}));
    QVERIFY(!index.contains(QStringLiteral("AVI")));
}

void TestKeyIndex::removingTakesOneOfSeveralEqualValues()
{
    KeyIndex<int> index;
    index.append(key, 1);
    index.append(key, 2);
    index.append(key, 1);
    index.append(key, 1);
    QVERIFY(!index.remove(key, 1));
    QCOMPARE(index.all(key), QList<int>({2, 1, 1}));
    QVERIFY(!index.remove(key, 1));
    QCOMPARE(index.all(key), QList<int>({2, 1}));
}

void TestKeyIndex::sortingFollowsTheRows()
{
    KeyIndex<int> index;
    index.append(key, 1);
    index.append(key, 2);
    index.append(key, 3);
    index.sort(key, QList<int>({9, 3, 8, 1, 2, 7}));
    QCOMPARE(index.all(key), QList<int>({3, 1, 2}));
    QCOMPARE(index.first(key), 3);
}

void TestKeyIndex::sortingLeavesOtherKeysAlone()
{
    KeyIndex<int> index;
    for (const int value : {1, 2}) {
        index.append(key, value);
        index.append(QStringLiteral("AVI"), value);
    }
    index.sort(key, QList<int>({2, 1}));
    QCOMPARE(index.all(key), QList<int>({2, 1}));
    QCOMPARE(index.all(QStringLiteral("AVI")), QList<int>({1, 2}));
}

void TestKeyIndex::sortingAKeyWithOneValueOrNoneChangesNothing()
{
    KeyIndex<int> index;
    index.append(key, 1);
    index.sort(key, QList<int>({2, 1}));
    index.sort(QStringLiteral("AVI"), QList<int>({2, 1}));
    QCOMPARE(index.all(key), QList<int>({1}));
    QVERIFY(!index.contains(QStringLiteral("AVI")));
}

QTEST_APPLESS_MAIN(TestKeyIndex)
#include "tst_keyindex.moc"

#include "host/queue/engines/submissionfolder.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

/*! The folder beside a plan. */
class TestSubmissionFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsNamedAfterThePlan();
    void eachPlanHasAPlainNameOfItsOwn();
    void onlyOneSubmissionHasItAtATime();
    void whatTheLastSubmissionLeftIsRemoved();
    void aFolderThatCantBeMadeIsNamed();

private:
    const QTemporaryDir m_folder;
};

void TestSubmissionFolder::itIsNamedAfterThePlan()
{
    QCOMPARE(SubmissionFolder(QStringLiteral("/x/my jobs.jsonl")).path(),
             QStringLiteral("/x/my jobs.jsonl.work"));
}

void TestSubmissionFolder::eachPlanHasAPlainNameOfItsOwn()
{
    const QString name = SubmissionFolder(QStringLiteral("/x/é b.jsonl")).plainName();
    QVERIFY(QRegularExpression(QStringLiteral("\\A[a-z0-9-]+\\z")).match(name).hasMatch());
    QCOMPARE(SubmissionFolder(QStringLiteral("/x/é b.jsonl")).plainName(), name);
    QVERIFY(SubmissionFolder(QStringLiteral("/y/é b.jsonl")).plainName() != name);
}

void TestSubmissionFolder::onlyOneSubmissionHasItAtATime()
{
    const QString plan = m_folder.filePath(QStringLiteral("jobs.jsonl"));
    SubmissionFolder second(plan);
    QVERIFY(!second.isInUse());
    {
        SubmissionFolder first(plan);
        QVERIFY(first.lock());
        QVERIFY(second.isInUse());
        const Result<> locked = second.lock();
        QVERIFY(!locked);
        QCOMPARE(locked.error().kind, Error::InUse);
    }
    QVERIFY(!second.isInUse());
    QVERIFY(second.lock());
}

void TestSubmissionFolder::whatTheLastSubmissionLeftIsRemoved()
{
    SubmissionFolder folder(m_folder.filePath(QStringLiteral("other.jsonl")));
    QVERIFY(folder.lock());
    QVERIFY(folder.clear());
    const QDir places[] = {folder.results(), folder.tasks(), folder.logs()};
    for (const QDir &place : places) {
        QVERIFY(writeFile(place.filePath(QStringLiteral("1.jsonl"))));
    }
    QVERIFY(folder.clear());
    for (const QDir &place : places) {
        QVERIFY(place.exists());
        QVERIFY(place.isEmpty());
    }
}

void TestSubmissionFolder::aFolderThatCantBeMadeIsNamed()
{
    QVERIFY(writeFile(m_folder.filePath(QStringLiteral("third.jsonl.work"))));
    SubmissionFolder folder(m_folder.filePath(QStringLiteral("third.jsonl")));
    const Result<> locked = folder.lock();
    QVERIFY(!locked);
    QVERIFY2(locked.error().text.contains(folder.path()), qPrintable(locked.error().text));
}

QTEST_GUILESS_MAIN(TestSubmissionFolder)
#include "tst_submissionfolder.moc"

#include "host/tools/encoderlist.h"
#include "tests/support/mediaclips.h"
#include "tests/support/messagelog.h"
#include "tests/support/patience.h"
#include "tests/support/runningprocess.h"
#include "tests/support/testfiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

using Encoders = Result<QSet<QString>>;

class TestEncoderList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void encodersAreListedBelowTheRule();
    void aListingWithoutARuleHasNoEncoders();
    void theFfmpegOnThePathIsQueried();
    void anFfmpegIsQueriedOnce();
    void thoseWhoAskAtTheSameTimeShareAQuery();
    void aSharedQueryGoesOnWhenOneStops();
    void aQueryEndsWithTheLastWhoAsked();
    void anotherFfmpegIsQueriedAgain();
    void aFailedListingIsAnError_data();
    void aFailedListingIsAnError();
    void aFailedListingIsNotCached();
    void aStoppedListIsCancelled_data();
    void aStoppedListIsCancelled();

private:
    /*! Puts a script in ffmpeg's place until the test ends. */
    void standIn(const QByteArray &script)
    {
        QFile::remove(m_folder->filePath(QStringLiteral("ffmpeg")));
        QFile file(m_folder->filePath(QStringLiteral("ffmpeg")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("#!/bin/sh\n" + script + '\n') > 0);
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        qputenv("PATH", MediaClips::pathWith(m_folder->path()));
    }
    /*! A script that lists \a encoder, and notes that it was asked. */
    static QByteArray listing(const QByteArray &encoder)
    {
        return "echo >> \"${0%/*}/asked\"; echo ' ------'; echo ' V....D " + encoder + " x'";
    }
    int timesAsked() const
    {
        QFile file(m_folder->filePath(QStringLiteral("asked")));
        return file.open(QIODevice::ReadOnly) ? file.readAll().size() : 0;
    }
    /*! What a list of its own answers. */
    static Encoders ask()
    {
        EncoderList list;
        std::optional<Encoders> answer;
        connect(&list, &EncoderList::finished, &list,
                [&answer](const Encoders &encoders) { answer = encoders; });
        list.start();
        if (answer || !QTest::qWaitFor([&answer] { return answer.has_value(); }, patience)) {
            return failed(QStringLiteral("(no answer from the event loop)"));
        }
        return *answer;
    }
    static QStringList namesOf(const Encoders &encoders)
    {
        return encoders ? QStringList(encoders->values()) : QStringList{encoders.error().text};
    }

    QByteArray m_path;
    std::optional<QTemporaryDir> m_folder;
    std::optional<MessageLog> m_log;
};

void TestEncoderList::init()
{
    m_path = qgetenv("PATH");
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_log.emplace();
}

void TestEncoderList::cleanup()
{
    qputenv("PATH", m_path);
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
    m_folder.reset();
}

void TestEncoderList::encodersAreListedBelowTheRule()
{
    const QByteArray listing = "Encoders:\n V..... = Video\n A..... = Audio\n ------\n"
                               " V....D libx264              H.264 (codec h264)\n"
                               " A....D aac                  AAC\n\n";
    QCOMPARE(encodersInListing(listing),
             (QSet<QString>{QStringLiteral("libx264"), QStringLiteral("aac")}));
}

void TestEncoderList::aListingWithoutARuleHasNoEncoders()
{
    QVERIFY(encodersInListing(" V....D libx264  H.264\n").isEmpty());
    QVERIFY(encodersInListing({}).isEmpty());
}

void TestEncoderList::theFfmpegOnThePathIsQueried()
{
    const Encoders encoders = ask();
    QVERIFY(encoders);
    QVERIFY(encoders->contains(QStringLiteral("libx264")));
    QVERIFY(encoders->contains(QStringLiteral("aac")));
}

void TestEncoderList::anFfmpegIsQueriedOnce()
{
    standIn(listing("one"));
    QCOMPARE(namesOf(ask()), QStringList{QStringLiteral("one")});
    QCOMPARE(namesOf(ask()), QStringList{QStringLiteral("one")});
    QCOMPARE(timesAsked(), 1);
}

void TestEncoderList::thoseWhoAskAtTheSameTimeShareAQuery()
{
    standIn("sleep 0.2; " + listing("one"));
    EncoderList lists[3];
    QVector<Encoders> answers;
    for (EncoderList &list : lists) {
        connect(&list, &EncoderList::finished, this,
                [&answers](const Encoders &encoders) { answers.append(encoders); });
        list.start();
    }
    QTRY_COMPARE_WITH_TIMEOUT(answers.size(), 3, patience);
    for (const Encoders &answer : qAsConst(answers)) {
        QCOMPARE(namesOf(answer), QStringList{QStringLiteral("one")});
    }
    QCOMPARE(timesAsked(), 1);
}

void TestEncoderList::aSharedQueryGoesOnWhenOneStops()
{
    standIn("sleep 0.2; " + listing("one"));
    EncoderList stopped;
    std::optional<Encoders> cancelled;
    connect(&stopped, &EncoderList::finished, this,
            [&cancelled](const Encoders &encoders) { cancelled = encoders; });
    stopped.start();
    EncoderList other;
    std::optional<Encoders> answer;
    connect(&other, &EncoderList::finished, this,
            [&answer](const Encoders &encoders) { answer = encoders; });
    other.start();
    stopped.stop();
    QTRY_VERIFY_WITH_TIMEOUT(cancelled && answer, patience);
    QCOMPARE(cancelled->error().kind, Error::Cancelled);
    QCOMPARE(namesOf(*answer), QStringList{QStringLiteral("one")});
    QCOMPARE(timesAsked(), 1);
}

void TestEncoderList::aQueryEndsWithTheLastWhoAsked()
{
    standIn("echo $$ > \"${0%/*}/id\"; exec sleep 600");
    std::optional<EncoderList> list;
    list.emplace().start();
    const auto process = [this] {
        return contentOf(m_folder->filePath(QStringLiteral("id"))).trimmed().toLongLong();
    };
    QTRY_VERIFY_WITH_TIMEOUT(process() != 0, patience);
    QVERIFY(isRunning(process()));
    list.reset();
    QVERIFY(!isRunning(process()));
}

void TestEncoderList::anotherFfmpegIsQueriedAgain()
{
    standIn(listing("one"));
    QCOMPARE(namesOf(ask()), QStringList{QStringLiteral("one")});
    standIn(listing("another"));
    QCOMPARE(namesOf(ask()), QStringList{QStringLiteral("another")});
    QCOMPARE(timesAsked(), 2);
}

void TestEncoderList::aFailedListingIsAnError_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("reason");
    QTest::newRow("exit code") << QByteArray("echo 'no such library' >&2; " + listing("one") +
                                             "; exit 1")
                               << QStringLiteral("no such library");
    QTest::newRow("empty list") << QByteArray("exit 0")
                                << QStringLiteral("ffmpeg stopped without saying why");
    QTest::newRow("without end") << QByteArray("exec yes")
                                 << QStringLiteral("ffmpeg printed too much");
}

void TestEncoderList::aFailedListingIsAnError()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, reason);
    standIn(script);
    const Encoders encoders = ask();
    QVERIFY(!encoders);
    QCOMPARE(encoders.error().kind, Error::Failed);
    QCOMPARE(
        encoders.error().text,
        QStringLiteral("ffmpeg doesn't list its encoders (%1); check that \"ffmpeg -encoders\" "
                       "works, or install another ffmpeg")
            .arg(reason));
}

void TestEncoderList::aFailedListingIsNotCached()
{
    standIn("echo >> \"${0%/*}/asked\"; exit 1");
    QVERIFY(!ask());
    QVERIFY(!ask());
    QCOMPARE(timesAsked(), 2);
}

void TestEncoderList::aStoppedListIsCancelled_data()
{
    QTest::addColumn<bool>("isKnown");
    QTest::newRow("while ffmpeg works") << false;
    QTest::newRow("before a cached answer is delivered") << true;
}

void TestEncoderList::aStoppedListIsCancelled()
{
    QFETCH(bool, isKnown);
    standIn(isKnown ? listing("one") : QByteArray("exec sleep 600"));
    QCOMPARE(isKnown && ask().has_value(), isKnown);
    EncoderList list;
    QVector<Encoders> answers;
    connect(&list, &EncoderList::finished, this,
            [&answers](const Encoders &encoders) { answers.append(encoders); });
    list.start();
    list.stop();
    QTRY_COMPARE_WITH_TIMEOUT(answers.size(), 1, patience);
    QVERIFY(!answers.constFirst());
    QCOMPARE(answers.constFirst().error().kind, Error::Cancelled);
    // The next question isn't stopped any more.
    standIn(listing("two"));
    list.start();
    QTRY_COMPARE_WITH_TIMEOUT(answers.size(), 2, patience);
    QCOMPARE(namesOf(answers.constLast()), QStringList{QStringLiteral("two")});
}

QTEST_GUILESS_MAIN(TestEncoderList)
#include "tst_encoderlist.moc"

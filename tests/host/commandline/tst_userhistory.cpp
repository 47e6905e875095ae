#include "tests/host/commandline/commandlinetest.h"

#include <QJsonDocument>
#include <QJsonObject>

/*! "vexconvert user undo", "history", "diff" and "reset", and the small changes. */
class TestUserHistory : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasDoneLastIsUndone();
    void theHistoryNamesEachStep();
    void aPresetIsComparedToItsBase();
    void settingsGoBackToTheBase();
    void aBaseThatChangedIsReported();
    void aPresetIsDuplicatedRenamedAndNoted();
    void presetsAreSorted();
    void aWrongActionSaysWhichThereAre();

private:
    QString idsListed() const
    {
        QStringList ids;
        for (const QString &line : run("user list").out.split(QLatin1Char('\n')).mid(1)) {
            ids << line.left(4);
        }
        return ids.join(QLatin1Char(' ')).trimmed();
    }
};

void TestUserHistory::whatWasDoneLastIsUndone()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine").exitCode, 0);
    QCOMPARE(run("user change 1001 --frame-rate 29.97").exitCode, 0);
    QCOMPARE(run("user delete 1001").exitCode, 0);
    QCOMPARE(run("user undo").out, QStringLiteral("undone: deleted \"Mine\" (1001)\n"));
    QVERIFY(run("show 1001").out.contains(QStringLiteral("29.97")));
    QCOMPARE(run("user undo").out, QStringLiteral("undone: changed \"Mine\" (1001)\n"));
    QCOMPARE(run("user undo").out, QStringLiteral("undone: added \"Mine\" (1001)\n"));
    const CommandRun nothing = run("user undo");
    QCOMPARE(nothing.exitCode, 2);
    QCOMPARE(nothing.err, QStringLiteral("vexconvert: there is nothing to undo\n"));
}

void TestUserHistory::theHistoryNamesEachStep()
{
    QCOMPARE(run("user history").out,
             QStringLiteral("Nothing has been done that could be undone.\n"));
    QCOMPARE(run("user add V_MP4_2 --title Mine").exitCode, 0);
    QCOMPARE(run("user rename 1001 Other").exitCode, 0);
    const QStringList lines = run("user history").out.split(QLatin1Char('\n'));
    QVERIFY(lines.at(0).endsWith(QStringLiteral("  changed \"Mine\" (1001)")));
    QVERIFY(lines.at(1).endsWith(QStringLiteral("  added \"Mine\" (1001)")));
}

void TestUserHistory::aPresetIsComparedToItsBase()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine").exitCode, 0);
    QCOMPARE(run("user diff 1001").out,
             QStringLiteral("Preset 1001 has the values of its base V_MP4_2.\n"));
    QCOMPARE(run("user change 1001 --frame-rate 29.97 --video-bitrate 4000").exitCode, 0);
    QCOMPARE(run("user diff 1001").out, QStringLiteral("Setting        V_MP4_2      1001\n"
                                                       "frame-rate     25           29.97\n"
                                                       "video-bitrate  at most 500  at most "
                                                       "4,000\n"));
    const QJsonObject json =
        QJsonDocument::fromJson(run("user diff 1001 --json").out.toUtf8()).object();
    QCOMPARE(json[QStringLiteral("base")].toString(), QStringLiteral("V_MP4_2"));
    const QJsonValue first = json[QStringLiteral("differences")][0];
    QCOMPARE(first[QStringLiteral("setting")].toString(), QStringLiteral("frame-rate"));
    QCOMPARE(first[QStringLiteral("base")].toString(), QStringLiteral("25"));
    QCOMPARE(first[QStringLiteral("own")].toString(), QStringLiteral("29.97"));
}

void TestUserHistory::settingsGoBackToTheBase()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine --frame-rate 29.97 --video-bitrate 4000").exitCode,
             0);
    QCOMPARE(run("user reset 1001 frame-rate").out,
             QStringLiteral("1001 has the frame-rate of V_MP4_2 again\n"));
    QVERIFY(run("user diff 1001").out.contains(QStringLiteral("at most 4,000")));
    QVERIFY(!run("user diff 1001").out.contains(QStringLiteral("29.97")));
    QCOMPARE(run("user reset 1001").exitCode, 0);
    QCOMPARE(run("user diff 1001").out,
             QStringLiteral("Preset 1001 has the values of its base V_MP4_2.\n"));
    const CommandRun refused = run("user reset 1001 framerate");
    QCOMPARE(refused.exitCode, 2);
    QVERIFY2(refused.err.contains(QStringLiteral("did you mean \"frame-rate\"?")),
             qPrintable(refused.err));
}

void TestUserHistory::aBaseThatChangedIsReported()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine").exitCode, 0);
    const QString catalogue = m_clips.filePath(QStringLiteral("catalogue/1.json"));
    const QString changed = path(QStringLiteral("changed.json"));
    QVERIFY(writeFile(changed, contentOf(catalogue).replace("\"resolution\": \"160x90\"",
                                                            "\"resolution\": \"1280x720\"")));
    m_environment.insert(QStringLiteral("VEX_EXPORT_CATALOGUE"), changed);
    const QString diff = run("user diff 1001").out;
    QVERIFY2(diff.contains(QStringLiteral("The base has changed since the preset was made:\n"
                                          "Setting     Then    Now\n"
                                          "resolution  160x90  1280x720\n")),
             qPrintable(diff));
    QVERIFY2(run("show 1001").out.contains(QStringLiteral("V_MP4_2, which has changed")),
             qPrintable(run("show 1001").out));

    QVERIFY(writeFile(changed, contentOf(catalogue).replace("V_MP4_2", "V_MP4_9")));
    QVERIFY(run("user diff 1001")
                .out.startsWith(QStringLiteral("The base V_MP4_2 is no longer in the catalogue")));
}

void TestUserHistory::aPresetIsDuplicatedRenamedAndNoted()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine --frame-rate 29.97").exitCode, 0);
    QCOMPARE(run("user duplicate 1001").exitCode, 0);
    QVERIFY(run("show 1002").out.contains(QStringLiteral("Mine (copy)")));
    QVERIFY(run("show 1002").out.contains(QStringLiteral("29.97")));
    QCOMPARE(run({QStringLiteral("user"), QStringLiteral("rename"), QStringLiteral("1002"),
                  QStringLiteral("Other one")})
                 .out,
             QStringLiteral("1002 is now \"Other one\"\n"));
    QCOMPARE(run("user rename V_MP4_2 x").exitCode, 2);
    QCOMPARE(run("user note 1002 trains").exitCode, 0);
    QCOMPARE(run("user note 1002").out, QStringLiteral("trains\n"));
    QVERIFY(run("show 1002").out.contains(QStringLiteral("trains")));
}

void TestUserHistory::presetsAreSorted()
{
    for (const char *title : {"One", "Two", "Three"}) {
        QCOMPARE(
            run(words("user add V_MP4_2 --title") + QStringList{QLatin1String(title)}).exitCode, 0);
    }
    QCOMPARE(run("user move 1003 --before 1001").exitCode, 0);
    QCOMPARE(idsListed(), QStringLiteral("1003 1001 1002"));
    QCOMPARE(run("user move 1003").exitCode, 0);
    QCOMPARE(idsListed(), QStringLiteral("1001 1002 1003"));
    QCOMPARE(run("user move 1001 --before V_MP4_2").exitCode, 2);
}

void TestUserHistory::aWrongActionSaysWhichThereAre()
{
    const CommandRun wrong = run("user imprt x");
    QCOMPARE(wrong.exitCode, 2);
    QVERIFY2(wrong.err.contains(QStringLiteral("did you mean \"import\"?")), qPrintable(wrong.err));
    const CommandRun incomplete = run("user rename 1001");
    QCOMPARE(incomplete.exitCode, 2);
    QVERIFY(incomplete.err.contains(QStringLiteral("use \"vexconvert user rename ID TITLE\"")));
}

QTEST_GUILESS_MAIN(TestUserHistory)
#include "tst_userhistory.moc"

#include "tests/host/commandline/commandlinetest.h"

/*! "vexconvert favorite" and "default", and what they change elsewhere. */
class TestFavoriteCommands : public CommandLineTest
{
    Q_OBJECT

private Q_SLOTS:
    void favoritesAreListedTheLatestFirst();
    void aFavoriteLeadsTheSearch();
    void aNoteIsFoundBySearch();
    void aDefaultIsTakenForFilesOfItsKind();
    void aDamagedFileOfFavoritesHurtsNothingElse();
};

void TestFavoriteCommands::favoritesAreListedTheLatestFirst()
{
    QVERIFY(run("favorite").out.startsWith(QStringLiteral("You have no favorites yet; ")));
    QCOMPARE(run("favorite add V_MP4_1").exitCode, 0);
    QCOMPARE(run("favorite add A_MP3_2").out, QStringLiteral("favorite: A_MP3_2\n"));
    const QString list = run("favorite list").out;
    QVERIFY(list.indexOf(QStringLiteral("A_MP3_2")) < list.indexOf(QStringLiteral("V_MP4_1")));
    QCOMPARE(run("favorite remove V_MP4_1").exitCode, 0);
    QVERIFY(!run("favorite list").out.contains(QStringLiteral("V_MP4_1")));
    for (const char *line : {"favorite add A_MP3_2", "favorite add nothing",
                             "favorite remove V_MP4_1", "favorite x"}) {
        QCOMPARE(run(line).exitCode, 2);
    }
}

void TestFavoriteCommands::aFavoriteLeadsTheSearch()
{
    const auto first = [this] { return run("search mp3").out.section(QLatin1Char('\n'), 4, 4); };
    QVERIFY2(first().startsWith(QStringLiteral("A_MP3_1")), qPrintable(first()));
    QCOMPARE(run("favorite add A_MP3_2").exitCode, 0);
    QVERIFY2(first().startsWith(QStringLiteral("A_MP3_2")), qPrintable(first()));
}

void TestFavoriteCommands::aNoteIsFoundBySearch()
{
    QCOMPARE(run("user add V_MP4_2 --title Mine").exitCode, 0);
    QVERIFY(run("search holidays").out.startsWith(QStringLiteral("No format or preset is known")));
    QCOMPARE(run("user note 1001 Holidays").exitCode, 0);
    QVERIFY(run("search holidays")
                .out.contains(QStringLiteral("1001  Mine   MP4     video  note "
                                             "Holidays")));
}

void TestFavoriteCommands::aDefaultIsTakenForFilesOfItsKind()
{
    const CommandRun without = run("convert film.mp4 --dry-run");
    QCOMPARE(without.exitCode, 2);
    QVERIFY(without.err.contains(QStringLiteral("\"vexconvert default\" chooses one")));
    QCOMPARE(run("default audio A_MP3_1").exitCode, 0);
    QCOMPARE(run("convert film.mp4 --dry-run").exitCode, 2);
    QCOMPARE(run("default video V_MKV_1").out, QStringLiteral("default for video: V_MKV_1\n"));
    QVERIFY(run("default").out.contains(QStringLiteral("video    V_MKV_1  Plain")));
    QCOMPARE(run("convert film.mp4").exitCode, 0);
    QVERIFY(QFile::exists(path(QStringLiteral("film.mkv"))));
    QCOMPARE(run("default video none").exitCode, 0);
    QCOMPARE(run("convert film.mp4 --dry-run").exitCode, 2);
    QCOMPARE(run("default film V_MKV_1").exitCode, 2);
    QCOMPARE(run("default video nothing").exitCode, 2);
}

void TestFavoriteCommands::aDamagedFileOfFavoritesHurtsNothingElse()
{
    QCOMPARE(run("favorite add V_MP4_1").exitCode, 0);
    const QString file = config() + QStringLiteral("/favorites.json");
    QVERIFY(writeFile(file, "{\"version\": 1"));
    const CommandRun list = run("favorite list");
    QCOMPARE(list.exitCode, 0);
    QVERIFY2(list.err.contains(QStringLiteral("favorites.json isn't used: ")),
             qPrintable(list.err));
    QCOMPARE(run("favorite add A_MP3_1").exitCode, 0);
    QCOMPARE(run("favorite list").err, QString());
    QCOMPARE(contentOf(file + QStringLiteral(".damaged")), QByteArray("{\"version\": 1"));
}

QTEST_GUILESS_MAIN(TestFavoriteCommands)
#include "tst_favoritecommands.moc"

#include "host/files/filenamecodec.h"

#include "tests/support/commandrun.h"
#include "tests/support/mediaclips.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <optional>

/*! The command itself, over files whose names hold anything but a slash. */
class TestOddNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aResultKeepsTheBytesOfTheName_data();
    void aResultKeepsTheBytesOfTheName();
    void aNameInUseIsNumbered();
    void aDryRunCanBePasted_data() { aResultKeepsTheBytesOfTheName_data(); }
    void aDryRunCanBePasted();
    void noNameCanMoveTheCursorOrForgeALine_data();
    void noNameCanMoveTheCursorOrForgeALine();
    void ffmpegsMessagesAboutNamesAreSafe();
    void aTitleIsSafeInTablesAndJson();
    void messagesAboutCataloguesAreSafe();

private:
    QString path(const QByteArray &name) const
    {
        return QDir(m_folder->path()).filePath(QFile::decodeName(name));
    }
    QByteArrayList names(const QString &folder = {}) const
    {
        QByteArrayList names;
        const QStringList all = QDir(QDir(m_folder->path()).filePath(folder))
                                    .entryList(QDir::Files | QDir::Hidden, QDir::Name);
        for (const QString &name : all) {
            names << QFile::encodeName(name);
        }
        return names;
    }
    CommandRun run(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(QStringLiteral(VEXCONVERT),
                      QStringList{QStringLiteral("--config"), m_config.path()} + arguments);
        return CommandRun::of(process);
    }
    CommandRun convert(const QByteArray &name, const QStringList &options = {}) const
    {
        return run(QStringList{QStringLiteral("convert"), QFile::decodeName(name),
                               QStringLiteral("--preset"), QStringLiteral("Video_MKV_001")} +
                   options);
    }
    /*! Nothing but lines of visible characters; what they say is the caller's matter. */
    static void verifyVisible(const QString &output)
    {
        static const QRegularExpression invisible(
            QStringLiteral("[\\x00-\\x09\\x0b-\\x1f\\x7f-\\x9f\\x{2028}-\\x{202e}\\x{2066}-"
                           "\\x{2069}]"));
        QVERIFY2(!output.contains(invisible), qPrintable(output));
    }

    QTemporaryDir m_clips;
    QTemporaryDir m_config;
    QProcessEnvironment m_environment;
    std::optional<QTemporaryDir> m_folder;
};

void TestOddNames::initTestCase()
{
    installFileNameCodec();
    QVERIFY(MediaClips::makeFilm(m_clips.filePath(QStringLiteral("film.mp4"))));
}

void TestOddNames::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_environment = QProcessEnvironment::systemEnvironment();
}

void TestOddNames::aResultKeepsTheBytesOfTheName_data()
{
    QTest::addColumn<QByteArray>("folder");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("target");
    const auto row = [](const char *title, const char *folder, const char *name,
                        const char *target) {
        QTest::newRow(title) << QByteArray(folder) << QByteArray(name) << QByteArray(target);
    };
    row("Latin-1", "", "caf\xe9.mp4", "caf\xe9.mkv");
    row("Latin-1 without an extension", "", "caf\xe9", "caf\xe9.mkv");
    row("in a folder", "m\xfcsik/", "caf\xe9.mp4", "caf\xe9.mkv");
    row("lone surrogate", "", "\xed\xb2\x80.mp4", "\xed\xb2\x80.mkv");
    row("byte order mark", "", "\xef\xbb\xbfx.mp4", "\xef\xbb\xbfx.mkv");
    row("both kinds of quotes", "", "it's \"\\\x1b[31m\xff\n.mp4", "it's \"\\\x1b[31m\xff\n.mkv");
    row("line break at the end", "", "film.mp4\n", "film.mkv");
}

void TestOddNames::aResultKeepsTheBytesOfTheName()
{
    QFETCH(QByteArray, folder);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, target);
    QVERIFY(QDir().mkpath(path(folder)));
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("film.mp4")), path(folder + name)));
    const CommandRun result = convert(folder + name);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.exitCode, 0);
    QByteArrayList both = {name, target};
    QByteArrayList found = names(QFile::decodeName(folder));
    std::sort(both.begin(), both.end());
    std::sort(found.begin(), found.end());
    QCOMPARE(found, both);
}

void TestOddNames::aNameInUseIsNumbered()
{
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("film.mp4")), path("caf\xe9.mp4")));
    QCOMPARE(convert("caf\xe9.mp4").exitCode, 0);
    QCOMPARE(convert("caf\xe9.mp4").exitCode, 0);
    QVERIFY(names().contains("caf\xe9.mkv"));
    QVERIFY(names().contains("caf\xe9 (2).mkv"));
}

void TestOddNames::aDryRunCanBePasted()
{
    QFETCH(QByteArray, folder);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, target);
    QVERIFY(QDir().mkpath(path(folder)));
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("film.mp4")), path(folder + name)));
    const CommandRun result = convert(folder + name, {QStringLiteral("--dry-run")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.out.count(QLatin1Char('\n')), result.out.count(QLatin1String("\n#")) + 1);
    verifyVisible(result.out);
    QVERIFY(!result.out.contains(QChar::ReplacementCharacter));
    QProcess shell;
    shell.start(QStringLiteral("bash"), {QStringLiteral("-c"), result.out});
    QCOMPARE(CommandRun::of(shell).exitCode, 0);
    QVERIFY(QFile::exists(path(folder + target)));
}

void TestOddNames::noNameCanMoveTheCursorOrForgeALine_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *title, const char *name, const char *shown) {
        QTest::newRow(title) << QByteArray(name) << QString::fromUtf8(shown);
    };
    row("escape sequence", "a\x1b[2Jb.mp4", "a�[2Jb.mp4");
    row("line break", "a\nvexconvert: b.mp4", "a�vexconvert: b.mp4");
    row("carriage return", "a\rb.mp4", "a�b.mp4");
    row("8-bit control",
        "a\xc2\x9b"
        "2Jb.mp4",
        "a�2Jb.mp4");
    row("8-bit control as a byte",
        "a\x9b"
        "2Jb.mp4",
        "a�2Jb.mp4");
    row("delete", "a\x7f.mp4", "a�.mp4");
    row("writing direction",
        "a\xe2\x80\xae"
        "b\xe2\x81\xa6.mp4",
        "a�b�.mp4");
}

void TestOddNames::noNameCanMoveTheCursorOrForgeALine()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, shown);
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("film.mp4")), path(name)));
    const CommandRun result = convert(name);
    QCOMPARE(result.exitCode, 0);
    verifyVisible(result.out);
    QVERIFY2(result.out.contains(shown + QStringLiteral(": 100%")), qPrintable(result.out));
    QVERIFY2(result.out.contains(shown + QStringLiteral(" -> ")), qPrintable(result.out));

    const CommandRun missing = convert("no " + name);
    QCOMPARE(missing.exitCode, 1);
    QCOMPARE(missing.err,
             QStringLiteral("vexconvert: no %1: no such file; check its name\n").arg(shown));
    const CommandRun unknown = run({QFile::decodeName("no " + name)});
    QCOMPARE(unknown.err.count(QLatin1Char('\n')), 1);
    verifyVisible(unknown.err);
}

void TestOddNames::ffmpegsMessagesAboutNamesAreSafe()
{
    const QTemporaryDir tools;
    QVERIFY(MediaClips::makeStandIn(
        tools.path(), QStringLiteral("printf 'a\\033[2Jb\\302\\233c\\351\\n' >&2; exit 1")));
    m_environment.insert(QStringLiteral("PATH"),
                         QString::fromLocal8Bit(MediaClips::pathWith(tools.path())));
    QVERIFY(QFile::copy(m_clips.filePath(QStringLiteral("film.mp4")), path("film.mp4")));
    const CommandRun result = convert("film.mp4");
    QCOMPARE(result.exitCode, 1);
    verifyVisible(result.err);
    QVERIFY2(result.err.contains(QString::fromUtf8("(a�[2Jb�c�)")), qPrintable(result.err));
}

void TestOddNames::aTitleIsSafeInTablesAndJson()
{
    const QByteArray title = "a\x1b[2J\nb\x7f\xc2\x9b\xe2\x80\xae\\u\xe9\xf0\x9f\x98\x80";
    QCOMPARE(run({QStringLiteral("user"), QStringLiteral("add"), QStringLiteral("Video_MKV_001"),
                  QStringLiteral("--title"), QFile::decodeName(title)})
                 .exitCode,
             0);
    const CommandRun table = run({QStringLiteral("user"), QStringLiteral("list")});
    verifyVisible(table.out);
    QCOMPARE(table.out.count(QLatin1Char('\n')), 2);
    QVERIFY2(table.out.contains(QString::fromUtf8("a�[2J�b���\\u�\U0001F600")),
             qPrintable(table.out));

    const CommandRun json =
        run({QStringLiteral("user"), QStringLiteral("list"), QStringLiteral("--json")});
    verifyVisible(json.out);
    const QJsonArray presets = QJsonDocument::fromJson(json.out.toUtf8()).array();
    QCOMPARE(presets.at(0)[QStringLiteral("title")].toString(),
             QString::fromUtf8("a\x1b[2J\nb\x7f\u009b\u202e\\u\uFFFD\U0001F600"));
}

void TestOddNames::messagesAboutCataloguesAreSafe()
{
    m_environment.insert(QStringLiteral("VEX_EXPORT_CATALOGUE"),
                         path("no\x1b[2J\n\xe2\x80\xae\xe9.json"));
    const CommandRun result = run({QStringLiteral("formats")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
    verifyVisible(result.err);

    const CommandRun json = run({QStringLiteral("check-catalogue"), QStringLiteral("--json")});
    verifyVisible(json.out);
    QVERIFY(!json.out.contains(QStringLiteral("\\ud")));
    const QJsonArray mistakes =
        QJsonDocument::fromJson(json.out.toUtf8()).object()[QStringLiteral("mistakes")].toArray();
    QVERIFY(mistakes.at(0)[QStringLiteral("file")].toString().endsWith(
        QString::fromUtf8("no\x1b[2J\n\u202e\uFFFD.json")));
}

QTEST_GUILESS_MAIN(TestOddNames)
#include "tst_oddnames.moc"

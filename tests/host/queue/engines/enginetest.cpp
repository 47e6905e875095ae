#include "tests/host/queue/engines/enginetest.h"

#include "tests/support/mediaclips.h"
#include "tests/support/testfiles.h"

#include "host/media/mediafacts.h"

#include <QStandardPaths>

namespace {

/*! Whatever a name can hold. */
const QStringList &oddNames()
{
    static const QStringList names = {
        QStringLiteral("it's"),        QStringLiteral("two  words"),  QStringLiteral("日本語 é"),
        QStringLiteral("\"quoted\""),  QStringLiteral("$HOME `ls`"),  QStringLiteral("-dash"),
        QStringLiteral("line\nbreak"), QStringLiteral("back\\slash"), QStringLiteral("a;b&c|d"),
        QStringLiteral("{1} 100%"),
    };
    return names;
}

} // namespace

EngineDaemons::~EngineDaemons()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished(patience);
}

QString EngineDaemons::start(const QString &script)
{
    m_process.setWorkingDirectory(m_folder.path());
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(ENGINE_SCRIPTS "/") + script, QStringList());
    m_process.waitForReadyRead(patience);
    return QFile::decodeName(m_process.readLine().trimmed());
}

QString EngineTest::lacking(const QList<QPair<QString, QString>> &programs)
{
    for (const auto &[program, package] : programs) {
        if (QStandardPaths::findExecutable(program).isEmpty() &&
            QStandardPaths::findExecutable(program, {QStringLiteral("/usr/sbin")}).isEmpty()) {
            return QStringLiteral("%1 isn't installed (Debian: apt-get install %2)")
                .arg(program, package);
        }
    }
    return {};
}

void EngineTest::initTestCase()
{
    QVERIFY(MediaClips::make(m_clips.filePath(QStringLiteral("song.wav")),
                             QStringLiteral("-f lavfi -i sine=duration=0.3")));
}

void EngineTest::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_environment = QProcessEnvironment::systemEnvironment();
    m_names.clear();
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("songs")));
    QVERIFY(writeFile(source(QStringLiteral("broken")), "this is no song"));
    QVERIFY(makeJobs(3));
}

void EngineTest::cleanup()
{
    m_folder.reset();
}

QString EngineTest::source(const QString &name) const
{
    return path(QStringLiteral("songs/%1.wav").arg(name));
}

bool EngineTest::makeSource(const QString &name) const
{
    QFile::remove(source(name));
    return QFile::copy(m_clips.filePath(QStringLiteral("song.wav")), source(name));
}

bool EngineTest::makeJobs(int count)
{
    bool isMade = true;
    for (int i = m_names.size(); i < count - 1; ++i) {
        m_names << (i < oddNames().size() ? oddNames().at(i) : QStringLiteral("song %1").arg(i));
        isMade = isMade && makeSource(m_names.constLast());
    }
    m_names.sort();
    const CommandRun planned = run("plan songs --preset Audio_MP3_001 --to results");
    return isMade && planned.exitCode == 0 &&
           writeFile(path(QStringLiteral("jobs.jsonl")), planned.out.toUtf8());
}

void EngineTest::start(QProcess &process, const QStringList &arguments) const
{
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(QStringLiteral(VEXCONVERT),
                  QStringList{QStringLiteral("--config"), path(QStringLiteral("config"))} +
                      arguments);
}

CommandRun EngineTest::run(const QStringList &arguments) const
{
    QProcess process;
    start(process, arguments);
    return CommandRun::of(process);
}

CommandRun EngineTest::run(const char *words) const
{
    return run(QString::fromUtf8(words).split(QLatin1Char(' ')));
}

bool EngineTest::makeFfmpeg(const QString &folder, const QString &script)
{
    QFile::remove(folder + QStringLiteral("/ffmpeg"));
    return MediaClips::makeStandIn(folder, script + QStringLiteral("\nexec $REAL \"$@\""));
}

QStringList EngineTest::results() const
{
    QStringList names;
    const QStringList files =
        QDir(path(QStringLiteral("results")))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &file : files) {
        names << (file.endsWith(QStringLiteral(".mp3")) ? file.chopped(4) : file);
    }
    names.sort();
    return names;
}

QStringList EngineTest::wholeResults() const
{
    QStringList names;
    const QStringList all = results();
    for (const QString &name : all) {
        const MediaFacts facts =
            MediaClips::factsOf(path(QStringLiteral("results/%1.mp3").arg(name)));
        if (facts.duration > 0.25) {
            names << name;
        }
    }
    return names;
}

QMap<QString, QDateTime> EngineTest::dates() const
{
    QMap<QString, QDateTime> dates;
    const QFileInfoList files = QDir(path(QStringLiteral("results"))).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files) {
        dates.insert(file.fileName(), file.lastModified());
    }
    return dates;
}

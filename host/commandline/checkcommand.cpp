#include "host/commandline/commandline.h"
#include "host/commandline/console.h"
#include "host/commandline/interrupt.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"
#include "host/check/cataloguelint.h"
#include "host/check/presetproof.h"
#include "utility/cataloguefiles.h"

#include <QDir>
#include <QEventLoop>
#include <QQueue>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <memory>

namespace {

const QLatin1String quickFlag("quick");
const QLatin1String jsonFlag("json");

const QSize usualSize(1920, 1080);
const QSize largeSize(3840, 2160);

/*! A preset to prove, and how it did. */
struct Candidate
{
    QString format;
    QString tag;
    QString id;
    OutputSettings settings;
    ProofOutcome outcome = {};

    /*! The size of the clip: it must fill the box. */
    [[nodiscard]] QSize clipSize() const
    {
        const QSize &box = settings.box;
        const bool isLarge = std::max(box.width(), box.height()) > usualSize.width() ||
                             std::min(box.width(), box.height()) > usualSize.height();
        return isLarge ? largeSize : usualSize;
    }
};

using Candidates = QVector<Candidate>;

/*! The presets that are served, or of each format only the last, which is a small one as a rule. */
Candidates candidates(bool isQuick)
{
    FormatsProxy formats;
    formats.init(QString());
    const FormatListModel &list = *formats.formatListModel();
    Candidates all;
    for (int row = 0; row < list.rowCount(); ++row) {
        const QModelIndex index = list.index(row);
        QQueue<FormatDetailModelData> records;
        list.formatDetailModel(list.getTitle(row))->getModelInfo(records);
        for (int i = isQuick ? records.size() - 1 : 0; i < records.size(); ++i) {
            all.append({list.getTitle(row), index.data(FormatListModel::TagRole).toString(),
                        records.at(i).id, OutputSettings::fromPreset(records.at(i).toVarMap())});
        }
    }
    return all;
}

/*! Proves candidates, as many at a time as the machine has processors, and those that ask for the
 *  same only once. */
class ProofRun
{
public:
    ProofRun(Candidates &candidates, bool showsProgress);

    /*! Returns why not all are proven, or an empty text. */
    QString run();

private:
    /*! The first candidate that asks for the same, which may be this one. */
    Candidate &firstLike(const Candidate &candidate);
    void proveWithClipOf(const QSize &size);
    void startNext();
    void note(Candidate &candidate, const ProofOutcome &outcome);

    Candidates &m_candidates;
    const bool m_showsProgress;
    QTemporaryDir m_folder;
    QEventLoop m_loop;
    QString m_error;
    ProofClip m_clip;
    QQueue<Candidate *> m_waiting;
    QObject m_running; //!< the parent of what runs
    int m_runningCount = 0;
};

ProofRun::ProofRun(Candidates &candidates, bool showsProgress)
    : m_candidates(candidates)
    , m_showsProgress(showsProgress)
{}

QString ProofRun::run()
{
    if (!m_folder.isValid()) {
        return CommandLine::tr("no temporary folder: %1").arg(m_folder.errorString());
    }
    Interrupt interrupt;
    QObject::connect(&interrupt, &Interrupt::caught, &m_loop, [this] {
        m_error = CommandLine::tr("interrupted");
        m_loop.quit();
    });
    for (const QSize &size : {usualSize, largeSize}) {
        for (Candidate &candidate : m_candidates) {
            if (candidate.clipSize() == size && &firstLike(candidate) == &candidate) {
                m_waiting.enqueue(&candidate);
            }
        }
        if (m_error.isEmpty() && !m_waiting.isEmpty()) {
            proveWithClipOf(size);
        }
    }
    for (Candidate &candidate : m_candidates) {
        candidate.outcome = firstLike(candidate).outcome;
    }
    if (m_showsProgress) {
        Console::overwriteLine(QString());
    }
    return m_error;
}

Candidate &ProofRun::firstLike(const Candidate &candidate)
{
    return *std::find_if(
        m_candidates.begin(), m_candidates.end(),
        [&candidate](const Candidate &other) { return other.settings == candidate.settings; });
}

void ProofRun::proveWithClipOf(const QSize &size)
{
    makeProofClip(size, m_folder.path(), &m_running,
                  [this](const ProofClip &clip, const QString &error) {
                      if (!error.isEmpty()) {
                          m_error = CommandLine::tr("no clip to convert: %1").arg(error);
                          m_loop.quit();
                          return;
                      }
                      m_clip = clip;
                      for (int i = 0; i < QThread::idealThreadCount(); ++i) {
                          startNext();
                      }
                  });
    m_loop.exec();
}

void ProofRun::startNext()
{
    if (m_waiting.isEmpty()) {
        return;
    }
    Candidate &candidate = *m_waiting.dequeue();
    auto *proof = new PresetProof(candidate.settings, m_clip, &m_running);
    ++m_runningCount;
    QObject::connect(proof, &PresetProof::finished, proof,
                     [this, proof, &candidate](const ProofOutcome &outcome) {
                         proof->deleteLater();
                         note(candidate, outcome);
                     });
    proof->start();
}

void ProofRun::note(Candidate &candidate, const ProofOutcome &outcome)
{
    candidate.outcome = outcome;
    --m_runningCount;
    if (m_showsProgress) {
        Console::overwriteLine(CommandLine::tr("%1, %2 conversions left")
                                   .arg(candidate.id)
                                   .arg(m_waiting.size() + m_runningCount));
    }
    startNext();
    if (m_runningCount == 0) {
        m_loop.quit();
    }
}

/*! The names of the library's pictures. */
QStringList pictures()
{
    QStringList names =
        QDir(QStringLiteral(":/formats/image")).entryList({QStringLiteral("*.svg")});
    names.replaceInStrings(QStringLiteral(".svg"), QString());
    return names;
}

QString resultText(ProofOutcome::Result result)
{
    switch (result) {
    case ProofOutcome::Passed:
        return QStringLiteral("converted");
    case ProofOutcome::LacksEncoder:
        return QStringLiteral("encoder missing");
    case ProofOutcome::Failed:
        break;
    }
    return QStringLiteral("failed");
}

int countOf(Candidates::ConstIterator first, Candidates::ConstIterator last,
            ProofOutcome::Result result)
{
    return int(std::count_if(first, last, [result](const Candidate &candidate) {
        return candidate.outcome.result == result;
    }));
}

void printMistakes(const QVector<CatalogueMistake> &mistakes)
{
    for (const CatalogueMistake &mistake : mistakes) {
        Console::print(mistake.isServed ? mistake.text()
                                        : CommandLine::tr("%1; left out").arg(mistake.text()));
    }
    Console::print(
        mistakes.isEmpty()
            ? CommandLine::tr("The catalogue's files have no mistakes.")
            : CommandLine::tr("Mistakes in the catalogue's files: %1").arg(mistakes.size()));
}

void printProofs(const Candidates &candidates)
{
    QVector<QStringList> table = {{CommandLine::tr("Format"), CommandLine::tr("Tag"),
                                   CommandLine::tr("Presets"), CommandLine::tr("Converted"),
                                   CommandLine::tr("Encoder missing"), CommandLine::tr("Failed")}};
    QVector<QStringList> reasons;
    for (auto first = candidates.begin(); first != candidates.end();) {
        const auto last = std::find_if(first, candidates.end(), [first](const Candidate &other) {
            return other.format != first->format;
        });
        QStringList row = {first->format, first->tag, QString::number(last - first)};
        for (const auto result :
             {ProofOutcome::Passed, ProofOutcome::LacksEncoder, ProofOutcome::Failed}) {
            row << QString::number(countOf(first, last, result));
        }
        table << row;
        for (; first != last; ++first) {
            if (first->outcome.result != ProofOutcome::Passed) {
                reasons << QStringList{first->id, first->outcome.reason};
            }
        }
    }
    Console::print(QString());
    Console::printTable(table);
    Console::print(QString());
    if (!reasons.isEmpty()) {
        Console::printTable(reasons);
        Console::print(QString());
    }
    const auto count = [&candidates](ProofOutcome::Result result) {
        return countOf(candidates.begin(), candidates.end(), result);
    };
    Console::print(
        CommandLine::tr("%1 of %2 presets convert as they say, %3 need an encoder that this ffmpeg "
                        "lacks, %4 failed.")
            .arg(count(ProofOutcome::Passed))
            .arg(candidates.size())
            .arg(count(ProofOutcome::LacksEncoder))
            .arg(count(ProofOutcome::Failed)));
}

void printAsJson(const QVector<CatalogueMistake> &mistakes, const Candidates &candidates)
{
    QVariantList mistakeMaps;
    for (const CatalogueMistake &mistake : mistakes) {
        mistakeMaps << QVariantMap{{QStringLiteral("file"), mistake.place.source},
                                   {QStringLiteral("position"), mistake.position},
                                   {QStringLiteral("path"), mistake.place.path},
                                   {QStringLiteral("reason"), mistake.reason},
                                   {QStringLiteral("leftOut"), !mistake.isServed}};
    }
    QVariantList presetMaps;
    for (const Candidate &candidate : candidates) {
        presetMaps << QVariantMap{{QStringLiteral("format"), candidate.format},
                                  {QStringLiteral("tag"), candidate.tag},
                                  {QStringLiteral("id"), candidate.id},
                                  {QStringLiteral("result"), resultText(candidate.outcome.result)},
                                  {QStringLiteral("reason"), candidate.outcome.reason}};
    }
    Console::printJson(QVariantMap{{QStringLiteral("mistakes"), mistakeMaps},
                                   {QStringLiteral("presets"), presetMaps}});
}

ExitCode runCheck(const Call &call)
{
    if (!call.arguments.isEmpty()) {
        return wrongUsage(CommandLine::tr("\"check-catalogue\" takes no arguments but options"));
    }
    const bool asJson = call.options.isSet(jsonFlag);
    const QString own = ownCataloguePath();
    const CatalogueResult catalogue = readCatalogueAt(own.isEmpty() ? builtInCataloguePath() : own);
    const QVector<CatalogueMistake> mistakes =
        catalogue.mistakes + lintCatalogue(catalogue, pictures());
    if (!asJson) {
        printMistakes(mistakes);
    }
    Candidates proven;
    // Without a preset of its own the built-in catalogue is served, which isn't what is checked.
    if (!catalogue.presetPlaces.isEmpty()) {
        proven = candidates(call.options.isSet(quickFlag));
        const QString problem = ProofRun(proven, !asJson && Console::isTerminal()).run();
        if (!problem.isEmpty()) {
            return failure(problem);
        }
    }
    if (asJson) {
        printAsJson(mistakes, proven);
    } else if (!proven.isEmpty()) {
        printProofs(proven);
    }
    const bool isSound =
        mistakes.isEmpty() && countOf(proven.begin(), proven.end(), ProofOutcome::Failed) == 0;
    return isSound ? Success : Failure;
}

} // namespace

QVector<Subcommand> checkCommands()
{
    return {
        {QStringLiteral("check-catalogue"),
         CommandLine::tr("[--quick] [--json]"),
         CommandLine::tr("Check the catalogue's files and convert a clip with every preset."),
         CommandLine::tr(
             "\nNames the mistakes in the files, then converts a clip of one second with every "
             "preset\nand "
             "holds the result against it. The catalogue is the built-in one, or what the "
             "variable\nVEX_EXPORT_CATALOGUE names. The exit code is 1 where anything is wrong; an "
             "encoder "
             "that this\nffmpeg lacks isn't.\n"),
         {{quickFlag, CommandLine::tr("Convert with one preset of each format only.")},
          jsonOption()},
         runCheck},
    };
}

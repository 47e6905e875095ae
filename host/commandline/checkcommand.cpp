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
    OutputSettings settings = {};
    bool isShown = false; //!< the library has it
    ProofOutcome outcome = {};

    /*! The size of the clip: it fills the box, unless that is larger still. */
    [[nodiscard]] QSize clipSize() const
    {
        const QSize &box = settings.box;
        const bool isUpright = box.height() > box.width();
        const QSize lying = isUpright ? box.transposed() : box;
        const bool isLarge =
            lying.width() > usualSize.width() || lying.height() > usualSize.height();
        const QSize size = isLarge ? largeSize : usualSize;
        return isUpright ? size.transposed() : size;
    }
};

using Candidates = QVector<Candidate>;

Candidate candidate(const FormatListModel &formats, const QVariantMap &group, const QString &id)
{
    const QString title = group.value(QStringLiteral("name")).toString();
    Candidate made{title, group.value(QStringLiteral("category")).toString().toLower(), id};
    const FormatDetailModel *presets = formats.formatDetailModel(title);
    FormatDetailModelData record;
    made.isShown = presets != nullptr && presets->getModelInfoById(id, record);
    if (made.isShown) {
        made.settings = OutputSettings::fromPreset(record.toVarMap());
    } else {
        made.outcome.reason = CommandLine::tr("the library shows no such preset in this format");
    }
    return made;
}

/*! All presets, or of each format only the last, which is a small one as a rule. */
Candidates candidates(const ExportCatalogue &catalogue, bool isQuick)
{
    FormatsProxy formats;
    formats.init(QString());
    Candidates all;
    for (const QVariant &category : catalogue.categories) {
        for (const QVariant &group : catalogue.groups.value(category.toString())) {
            const QString name = group.toMap().value(QStringLiteral("name")).toString();
            const QVariantList presets = catalogue.presets.value({category.toString(), name});
            for (const QVariant &preset : isQuick ? presets.mid(presets.size() - 1) : presets) {
                all.append(candidate(*formats.formatListModel(), group.toMap(),
                                     preset.toMap().value(QStringLiteral("id")).toString()));
            }
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
    Interrupt m_interrupt; // still caught while the rest is taken down
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
    QObject::connect(&m_interrupt, &Interrupt::caught, &m_loop, [this] {
        m_error = CommandLine::tr("interrupted");
        m_loop.quit();
    });
    for (const QSize &size :
         {usualSize, usualSize.transposed(), largeSize, largeSize.transposed()}) {
        for (Candidate &candidate : m_candidates) {
            if (candidate.isShown && candidate.clipSize() == size &&
                &firstLike(candidate) == &candidate) {
                m_waiting.enqueue(&candidate);
            }
        }
        if (m_error.isEmpty() && !m_waiting.isEmpty()) {
            proveWithClipOf(size);
        }
    }
    for (Candidate &candidate : m_candidates) {
        if (candidate.isShown) {
            candidate.outcome = firstLike(candidate).outcome;
        }
    }
    if (m_showsProgress) {
        Console::overwriteLine(QString());
    }
    return m_error;
}

Candidate &ProofRun::firstLike(const Candidate &candidate)
{
    return *std::find_if(m_candidates.begin(), m_candidates.end(),
                         [&candidate](const Candidate &other) {
                             return other.isShown && other.settings == candidate.settings;
                         });
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

/*! With an error, which is why the presets aren't proven, they are left out. */
void printAsJson(const QVector<CatalogueMistake> &mistakes, const Candidates &candidates,
                 const QString &error)
{
    QVariantList mistakeMaps;
    for (const CatalogueMistake &mistake : mistakes) {
        mistakeMaps << QVariantMap{{QStringLiteral("file"), mistake.place.source},
                                   {QStringLiteral("position"), mistake.place.position},
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
    QVariantMap json{{QStringLiteral("mistakes"), mistakeMaps},
                     {QStringLiteral("presets"), presetMaps}};
    if (!error.isEmpty()) {
        json.remove(QStringLiteral("presets"));
        json.insert(QStringLiteral("error"), error);
    }
    Console::printJson(json);
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
    QString problem;
    // Without a preset of its own the built-in catalogue is served, which isn't what is checked.
    if (!catalogue.presetPlaces.isEmpty()) {
        proven = candidates(catalogue.catalogue, call.options.isSet(quickFlag));
        problem = ProofRun(proven, !asJson && Console::isTerminal()).run();
    }
    if (asJson) {
        printAsJson(mistakes, proven, problem);
    } else if (!proven.isEmpty() && problem.isEmpty()) {
        printProofs(proven);
    }
    if (!problem.isEmpty()) {
        return failure(problem);
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
             "\nNames the mistakes in the files, then converts a clip of one second with every\n"
             "preset and holds the result against it; presets that ask for the same share a\n"
             "conversion. The catalogue is the built-in one, or what VEX_EXPORT_CATALOGUE names.\n"
             "The exit code is 1 where anything is wrong; an encoder that this ffmpeg lacks "
             "isn't.\n"),
         {{quickFlag, CommandLine::tr("Convert with one preset of each format only.")},
          jsonOption()},
         runCheck},
    };
}

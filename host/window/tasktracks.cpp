#include "host/window/tasktracks.h"

#include "host/convert/outputstreams.h"
#include "host/convert/subtitleplan.h"
#include "host/files/visibletext.h"
#include "host/window/toolfun.h"

#include <QLocale>

#include <algorithm>

namespace {

/*! "Deutsch" of "ger"; a code that names no known language as it is. */
QString languageName(const QString &language)
{
    if (language == QLatin1String("und")) {
        return {};
    }
    const QLocale::Language known = QLocale(usualLanguageCode(language)).language();
    const QList<QLocale> locales =
        known == QLocale::C
            ? QList<QLocale>()
            : QLocale::matchingLocales(known, QLocale::AnyScript, QLocale::AnyCountry);
    QString name;
    // The shortest one names no country: "English" instead of "American English".
    for (const QLocale &locale : locales) {
        const QString native = locale.nativeLanguageName();
        if (name.isEmpty() || (!native.isEmpty() && native.size() < name.size())) {
            name = native;
        }
    }
    name = name.isEmpty() ? language : name;
    return name.replace(0, 1, name.left(1).toUpper());
}

/*! "5.1" of "5.1(side)"; "6 channels" where there is no layout. */
QString channelsOf(const AudioTrack &track)
{
    const QString layout = track.layout.section(QLatin1Char('('), 0, 0);
    return !layout.isEmpty() || track.channels == 0
               ? ToolFun::text(layout)
               : ToolFun::text(QStringLiteral("%1 channels")).arg(track.channels);
}

QString lineText(const Track &track, const QString &kind)
{
    return QStringLiteral("%1.  %2")
        .arg(track.number)
        .arg(ToolFun::joined(
            {languageName(track.language), kind, isolated(visibleText(track.title))}));
}

QString textOf(const AudioTrack &track)
{
    return lineText(track, ToolFun::listed({track.codec, channelsOf(track)}));
}

QString textOf(const SubtitleTrack &track)
{
    const QString kind = track.isForced ? ToolFun::text(QStringLiteral("forced")) : QString();
    return lineText(track, ToolFun::listed({track.codec, kind}));
}

/*! The lines of \a tracks, of which those in \a written are in the result. */
template <typename AnyTrack>
QVariantList linesOf(const QVector<AnyTrack> &tracks, const TrackChoice &choice,
                     const QSet<int> &written, int burned, const OutputSettings &settings)
{
    QVariantList lines;
    for (const AnyTrack &track : tracks) {
        TrackLine line;
        line.number = track.number;
        line.text = textOf(track);
        line.isKept = choice.takes(track);
        line.isDefault = line.isKept && choice.isDefault(track);
        line.isBurned = track.number == burned;
        if ((line.isKept && !written.contains(track.number)) ||
            (line.isBurned && !settings.hasVideo)) {
            line.remark = ToolFun::text(QStringLiteral("not in .%1")).arg(settings.extension);
        }
        lines << QVariant::fromValue(line);
    }
    return lines;
}

/*! The choice as the numbers of the tracks that it takes. */
template <typename AnyTrack>
TrackChoice numbered(const TrackChoice &choice, const QVector<AnyTrack> &tracks)
{
    TrackChoice made{TrackChoice::Numbered};
    made.defaultNumber = choice.defaultNumber;
    for (const AnyTrack &track : tracks) {
        if (choice.takes(track)) {
            made.numbers << track.number;
        }
    }
    return made;
}

TrackChoice numbered(const ChosenTracks &chosen, TaskTracks::Kind kind, const MediaFacts &facts)
{
    return kind == TaskTracks::Audio ? numbered(chosen.audio, facts.audioTracks)
                                     : numbered(chosen.subtitles, facts.subtitleTracks);
}

void setKept(TrackChoice &choice, int number, bool isKept)
{
    choice.numbers.removeAll(number);
    if (isKept) {
        choice.numbers << number;
        std::sort(choice.numbers.begin(), choice.numbers.end());
    } else if (choice.defaultNumber == number) {
        choice.defaultNumber.reset();
    }
}

/*! Numbers in the shortest form that says the same. */
void take(TrackChoice &choice, const TrackChoice &numbered, int count)
{
    const bool areAll = numbered.numbers.size() == count && !numbered.defaultNumber;
    choice = numbered.numbers.isEmpty() ? TrackChoice{TrackChoice::None}
             : areAll                   ? TrackChoice()
                                        : numbered;
}

void take(ChosenTracks &chosen, TaskTracks::Kind kind, const TrackChoice &numbered,
          const MediaFacts &facts)
{
    if (kind == TaskTracks::Audio) {
        take(chosen.audio, numbered, facts.audioTracks.size());
    } else {
        take(chosen.subtitles, numbered, facts.subtitleTracks.size());
    }
}

} // namespace

TaskTracks::TaskTracks(TaskList &tasks, const SettingsMaker &settingsOf)
    : m_tasks(tasks)
    , m_settingsOf(settingsOf)
{}

QVariantList TaskTracks::lines(int taskId, Kind kind, const QString & /*details*/,
                               const QString & /*format*/, const QString & /*tracks*/) const
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr) {
        return {};
    }
    const OutputSettings settings = m_settingsOf(*task);
    const Container *container = Container::find(settings.extension);
    if (container == nullptr) {
        return {};
    }
    const QSet<QString> encoders;
    const StreamTarget target{settings, *container, encoders};
    QSet<int> written;
    if (kind == Audio) {
        for (const AudioTrack &track : chosenAudio(task->facts, target)) {
            written << track.number;
        }
        return linesOf(task->facts.audioTracks, settings.audioTracks, written, 0, settings);
    }
    for (const SubtitlePlan &plan : subtitlePlans(task->facts, target)) {
        written << plan.track.number;
    }
    return linesOf(task->facts.subtitleTracks, settings.subtitles, written,
                   settings.burnedSubtitles, settings);
}

void TaskTracks::keep(int taskId, Kind kind, int number, bool isKept)
{
    change(taskId, [kind, number, isKept](ChosenTracks &chosen, const MediaFacts &facts) {
        TrackChoice choice = numbered(chosen, kind, facts);
        setKept(choice, number, isKept);
        take(chosen, kind, choice, facts);
    });
}

void TaskTracks::setDefault(int taskId, Kind kind, int number)
{
    change(taskId, [kind, number](ChosenTracks &chosen, const MediaFacts &facts) {
        TrackChoice choice = numbered(chosen, kind, facts);
        choice.defaultNumber = number;
        if (number > 0) {
            setKept(choice, number, true);
        }
        take(chosen, kind, choice, facts);
    });
}

void TaskTracks::burn(int taskId, int number)
{
    change(taskId, [number](ChosenTracks &chosen, const MediaFacts &facts) {
        TrackChoice choice = numbered(chosen, Subtitles, facts);
        if (chosen.burnedSubtitles > 0) {
            setKept(choice, chosen.burnedSubtitles, true);
        }
        setKept(choice, number, false);
        chosen.burnedSubtitles = number;
        take(chosen, Subtitles, choice, facts);
    });
}

void TaskTracks::change(
    int taskId, const std::function<void(ChosenTracks &chosen, const MediaFacts &facts)> &change)
{
    const Task *task = m_tasks.find(taskId);
    if (task == nullptr || task->state == Task::Running || task->facts.isEmpty()) {
        return;
    }
    m_tasks.update(taskId, [&change](Task &changed) { change(changed.tracks, changed.facts); });
    m_tasks.reopen(taskId);
}

#include "host/window/presetexchange.h"

#include "host/files/atomicwrite.h"
#include "host/files/localpath.h"
#include "host/files/visibletext.h"
#include "host/presets/exchange/presetfile.h"
#include "host/presets/presetstore.h"
#include "host/window/presets.h"
#include "host/window/presetsummary.h"
#include "host/window/toolfun.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

/*! Whether it is named like a file of presets of ours, HandBrake or Kdenlive; one of Shotcut has no
 *  suffix. */
bool isPresetFile(const QUrl &url)
{
    const QString suffix = QFileInfo(url.path()).suffix().toLower();
    return suffix == QLatin1String("json") || suffix == QLatin1String("xml");
}

QString stateName(PlannedImport::State state)
{
    switch (state) {
    case PlannedImport::New:
        return QStringLiteral("new");
    case PlannedImport::Same:
        return QStringLiteral("same");
    case PlannedImport::Conflict:
        return QStringLiteral("conflict");
    case PlannedImport::Refused:
        break;
    }
    return QStringLiteral("refused");
}

/*! The settings that become something else, a line each. */
QStringList findingsOn(const PortablePreset &preset, Finding::Verdict verdict)
{
    constexpr int longestValue = 40;
    QStringList lines;
    for (const Finding &finding : preset.findings) {
        if (finding.verdict == verdict) {
            const QString asked = finding.value.isEmpty()
                                      ? finding.setting
                                      : labelled(finding.setting, finding.value.left(longestValue));
            lines << visibleText(QStringLiteral("%1  →  %2").arg(asked, finding.text));
        }
    }
    return lines;
}

bool isImportable(const PlannedImport &plan)
{
    return plan.state == PlannedImport::New || plan.state == PlannedImport::Conflict;
}

} // namespace

PresetExchange::PresetExchange(PresetStore &store, Presets &presets, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_presets(presets)
{}

QList<QUrl> PresetExchange::takePresetFiles(const QList<QUrl> &urls)
{
    QList<QUrl> presetFiles;
    QList<QUrl> others;
    std::partition_copy(urls.begin(), urls.end(), std::back_inserter(presetFiles),
                        std::back_inserter(others), isPresetFile);
    const QStringList paths = localPaths(presetFiles);
    if (!paths.isEmpty()) {
        preview(paths);
    }
    return others;
}

void PresetExchange::chooseTarget(const QStringList &ids)
{
    const QStringList wanted = ids.isEmpty() ? QStringList(m_store.own().all().keys()) : ids;
    if (wanted.isEmpty()) {
        Q_EMIT refused(ToolFun::text(QStringLiteral("You have no presets of your own yet.")));
        return;
    }
    const std::optional<FoundPreset> only =
        wanted.size() == 1 ? m_store.find(wanted.constFirst()) : std::nullopt;
    QString name =
        only ? only->map.value(QStringLiteral("title")).toString() : QStringLiteral("presets");
    Q_EMIT targetWanted(wanted,
                        name.replace(QLatin1Char('/'), QLatin1Char('-')) + QLatin1String(".json"));
}

void PresetExchange::preview(const QStringList &paths)
{
    PortablePresets presets;
    for (const QString &path : paths) {
        const Result<PortablePresets> read = readPresetFile(path);
        if (read) {
            presets.presets += read->presets;
            presets.refused += read->refused;
        } else {
            presets.refused.append({QFileInfo(path).fileName(), read.error().text});
        }
    }
    m_plan = planImport(m_store, presets);
    QVariantList list;
    for (const PlannedImport &plan : qAsConst(m_plan)) {
        list.append(QVariantMap{
            {QStringLiteral("title"), visibleText(plan.preset.title.left(200))},
            {QStringLiteral("format"), plan.className},
            {QStringLiteral("state"), stateName(plan.state)},
            {QStringLiteral("reason"), visibleText(plan.reason)},
            {QStringLiteral("approximated"), findingsOn(plan.preset, Finding::Approximated)},
            {QStringLiteral("lost"), findingsOn(plan.preset, Finding::Lost)}});
    }
    Q_EMIT previewed({{QStringLiteral("presets"), list},
                      {QStringLiteral("importable"),
                       int(std::count_if(m_plan.cbegin(), m_plan.cend(), isImportable))}});
}

void PresetExchange::importPresets(Conflict conflict)
{
    constexpr OnConflict meant[] = {OnConflict::KeepBoth, OnConflict::Replace, OnConflict::Skip};
    QVector<PlannedImport> wanted;
    std::copy_if(m_plan.cbegin(), m_plan.cend(), std::back_inserter(wanted), isImportable);
    m_plan.clear();
    const Result<QStringList> ids = ::importPresets(m_store, wanted, meant[conflict]);
    if (!ids) {
        Q_EMIT refused(ids.error().text);
    } else if (ids->isEmpty()) {
        Q_EMIT told(ToolFun::text(QStringLiteral("No preset was imported.")));
    } else {
        m_presets.saveSoon();
        Q_EMIT imported(ids->size());
    }
}

void PresetExchange::exportPresets(const QStringList &ids, const QString &path)
{
    QVector<PortablePreset> presets;
    for (const QString &id : ids) {
        const Result<PortablePreset> preset = portable(m_store, id);
        if (preset) {
            presets.append(*preset);
        }
    }
    const Result<> written = writeAtomically(path, presetFile(presets), {});
    if (written) {
        Q_EMIT told(ToolFun::text(QStringLiteral("Exported: %1"))
                        .arg(visibleText(QFileInfo(path).fileName())));
    } else {
        Q_EMIT refused(ToolFun::text(QStringLiteral("%1 can’t be written (%2); choose another "
                                                    "folder"))
                           .arg(visibleText(path), written.error().text));
    }
}

#include "host/window/presetexchange.h"

#include "host/files/atomicwrite.h"
#include "host/files/localpath.h"
#include "host/files/visibletext.h"
#include "host/presets/exchange/presetfile.h"
#include "host/presets/presetstore.h"
#include "host/window/presets.h"
#include "host/window/toolfun.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

bool isPresetFile(const QUrl &url)
{
    return url.path().endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
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

/*! What is to be known of the preset, one line each. */
QStringList remarksOn(const PlannedImport &plan)
{
    QStringList remarks;
    if (!plan.reason.isEmpty()) {
        remarks << plan.reason;
    }
    for (const Finding &finding : plan.preset.findings) {
        if (finding.verdict != Finding::Kept) {
            const QString form =
                finding.verdict == Finding::Lost
                    ? ToolFun::text(QStringLiteral("%1 is lost (%2); instead: %3"))
                    : ToolFun::text(QStringLiteral("%1 is approximated (%2); instead: %3"));
            remarks << form.arg(finding.setting, finding.value.left(40), finding.text);
        }
    }
    return remarks;
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
            {QStringLiteral("remarks"), visibleText(remarksOn(plan).join(QLatin1Char('\n')))}});
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
    } else if (!ids->isEmpty()) {
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

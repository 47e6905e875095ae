#include "host/check/catalogueproof.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <QFile>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace {

const QSize defaultSize(1920, 1080);
const QSize largeSize(3840, 2160);

ProvenPreset presetToProve(const FormatListModel &formats, const QVariantMap &group,
                           const QString &id)
{
    ProvenPreset preset{group.value(QStringLiteral("name")).toString(),
                        group.value(QStringLiteral("category")).toString().toLower(), id};
    const FormatDetailModel *presets = formats.formatDetailModel(preset.format);
    FormatDetailModelData record;
    preset.isShown = presets != nullptr && presets->getModelInfoById(id, record);
    if (preset.isShown) {
        preset.settings = OutputSettings::fromPreset(record.toVarMap());
    } else {
        preset.outcome =
            failed(CatalogueProof::tr("the library has no such preset in this format"));
    }
    return preset;
}

} // namespace

QSize ProvenPreset::clipSize() const
{
    const bool isPortrait = settings.box.height() > settings.box.width();
    const QSize box = isPortrait ? settings.box.transposed() : settings.box;
    const bool isLarge = box.width() > defaultSize.width() || box.height() > defaultSize.height();
    const QSize size = isLarge ? largeSize : defaultSize;
    return isPortrait ? size.transposed() : size;
}

QVector<ProvenPreset> presetsToProve(const ExportCatalogue &catalogue, bool isQuick)
{
    FormatsProxy formats;
    formats.init(QString());
    QVector<ProvenPreset> all;
    for (const QVariant &category : catalogue.categories) {
        for (const QVariant &group : catalogue.groups.value(category.toString())) {
            const QString name = group.toMap().value(QStringLiteral("name")).toString();
            const QVariantList presets = catalogue.presets.value({category.toString(), name});
            for (const QVariant &preset : isQuick ? presets.mid(presets.size() - 1) : presets) {
                all.append(presetToProve(*formats.formatListModel(), group.toMap(),
                                         preset.toMap().value(QStringLiteral("id")).toString()));
            }
        }
    }
    return all;
}

CatalogueProof::CatalogueProof(const QVector<ProvenPreset> &presets, QObject *parent)
    : QObject(parent)
    , m_presets(presets)
{
    for (const QSize &size : {defaultSize, largeSize}) {
        m_sizes << size << size.transposed();
    }
}

void CatalogueProof::start()
{
    QTimer::singleShot(0, this, [this] {
        if (m_folder) {
            proveNextSize();
        } else {
            Q_EMIT finished(
                failed(tr("couldn't create a temporary folder: %1").arg(m_folder.error().text)));
        }
    });
}

ProvenPreset &CatalogueProof::firstLike(const ProvenPreset &preset)
{
    return *std::find_if(m_presets.begin(), m_presets.end(), [&preset](const ProvenPreset &other) {
        return other.isShown && other.settings == preset.settings;
    });
}

void CatalogueProof::proveNextSize()
{
    if (!m_clip.path.isEmpty()) {
        QFile::remove(m_clip.path); // the large ones take hundreds of megabytes
    }
    while (m_waiting.isEmpty() && !m_sizes.isEmpty()) {
        const QSize size = m_sizes.dequeue();
        for (ProvenPreset &preset : m_presets) {
            if (preset.isShown && preset.clipSize() == size && &firstLike(preset) == &preset) {
                m_waiting.enqueue(&preset);
            }
        }
        if (!m_waiting.isEmpty()) {
            makeProofClip(
                size, m_folder->path(), &m_running, [this](const Result<ProofClip> &clip) {
                    if (clip) {
                        proveWaitingWith(*clip);
                    } else {
                        Q_EMIT finished(failed(
                            tr("couldn't make a clip to convert: %1").arg(clip.error().text)));
                    }
                });
            return;
        }
    }
    for (ProvenPreset &preset : m_presets) {
        if (preset.isShown) {
            preset.outcome = firstLike(preset).outcome;
        }
    }
    Q_EMIT finished({});
}

void CatalogueProof::proveWaitingWith(const ProofClip &clip)
{
    m_clip = clip;
    for (int i = 0; i < QThread::idealThreadCount(); ++i) {
        proveNext();
    }
}

void CatalogueProof::proveNext()
{
    if (m_waiting.isEmpty()) {
        return;
    }
    ProvenPreset *preset = m_waiting.dequeue();
    auto *proof = new PresetProof(preset->settings, m_clip, &m_running);
    ++m_runningCount;
    connect(proof, &PresetProof::finished, this, [this, proof, preset](const Result<> &outcome) {
        proof->deleteLater();
        note(*preset, outcome);
    });
    proof->start();
}

void CatalogueProof::note(ProvenPreset &preset, const Result<> &outcome)
{
    preset.outcome = outcome;
    --m_runningCount;
    Q_EMIT progressed(preset.id, m_waiting.size() + m_runningCount);
    proveNext();
    if (m_runningCount == 0) {
        proveNextSize();
    }
}

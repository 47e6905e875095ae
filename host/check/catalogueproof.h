#ifndef CHECK_CATALOGUEPROOF_H
#define CHECK_CATALOGUEPROOF_H

#include "host/check/presetproof.h"
#include "host/files/workfolder.h"
#include "utility/cataloguereader.h"

#include <QQueue>
#include <QVector>

/*! A preset of the catalogue, and whether it converts as expected. */
struct ProvenPreset
{
    QString format;
    QString tag;
    QString id;
    OutputSettings settings = {};
    bool isShown = false;  //!< the library has it
    Result<> outcome = {}; //!< see PresetProof::finished()

    /*! The size of the clip: large enough to fill the box, but at most 4K. */
    [[nodiscard]] QSize clipSize() const;
};

/*! The catalogue's presets as the library has them, unproven; with \a isQuick only the last one of
 *  each format, which is usually a small one. */
[[nodiscard]] QVector<ProvenPreset> presetsToProve(const ExportCatalogue &catalogue, bool isQuick);

/*!
 * Proves presets asynchronously, as many at a time as the machine has processors; presets with
 * equal settings share a conversion. Destroying it stops the conversions and leaves no files.
 */
class CatalogueProof : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(CatalogueProof)

public:
    explicit CatalogueProof(const QVector<ProvenPreset> &presets, QObject *parent = nullptr);

    /*! finished() follows from the event loop, even if nothing can be proven. */
    void start();
    [[nodiscard]] QVector<ProvenPreset> presets() const { return m_presets; }

Q_SIGNALS:
    void progressed(const QString &id, int conversionsLeft);
    /*! All presets are proven; an error if they couldn't be. */
    void finished(const Result<> &outcome);

private:
    /*! The first preset with equal settings, which can be \a preset itself. */
    ProvenPreset &firstLike(const ProvenPreset &preset);
    void proveNextSize();
    void proveWaitingWith(const ProofClip &clip);
    void proveNext();
    void note(ProvenPreset &preset, const Result<> &outcome);

    QVector<ProvenPreset> m_presets;
    const Result<WorkFolder> m_folder = WorkFolder::make();
    QQueue<QSize> m_sizes; //!< of the clips still to come
    ProofClip m_clip;
    QQueue<ProvenPreset *> m_waiting;
    QObject m_running; //!< the parent of the running proofs; destroyed before the folder
    int m_runningCount = 0;
};

#endif

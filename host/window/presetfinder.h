#ifndef WINDOW_PRESETFINDER_H
#define WINDOW_PRESETFINDER_H

#include "host/presets/find/presetindexbuilder.h"
#include "host/presets/fitness.h"
#include "host/tools/encoderlist.h"

#include <QAbstractListModel>
#include <QHash>
#include <QTimer>

#include <memory>
#include <optional>

class Page;
class Presets;

/*!
 * The presets that a search finds, the best first, as "vexconvert search" does. Without a search:
 * the favourites, those recently used, and the user's own.
 *
 * Only as many are listed as are looked at; what a row says is worked out when it comes into sight.
 */
class PresetFinder : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY found)
    Q_PROPERTY(QString remark READ remark NOTIFY found)

public:
    static constexpr int batch = 100; //!< of presets that are listed at a time

    static constexpr int usualPart = 1000;

    /*! The index is built from \a part presets or more at a time. Most catalogues are one part; all
     *  of a large one at once would keep the window from responding. */
    PresetFinder(PresetStore &store, Presets &presets, QObject *parent = nullptr,
                 int part = usualPart);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

    /*! How many are found, including those not listed yet. */
    [[nodiscard]] int count() const { return m_count; }
    /*! Why nothing is found; empty if something is. */
    [[nodiscard]] QString remark() const;

    /*! Begins anew with an empty search, for a file that is selected on the page; without one,
     *  only this ffmpeg limits what can be used. */
    Q_INVOKABLE void open(Page *page);
    /*! Lists what matches all of these; an empty one allows all. \a kind is "own", "video",
     *  "audio" or the tag of a format. */
    Q_INVOKABLE void search(const QString &text, const QString &kind, const QString &codec,
                            const QString &size);

    /*! The row of a preset; -1 if it isn't listed. */
    Q_INVOKABLE int rowOf(const QString &id) const;
    /*! The id of the preset in this row; empty if there is no such row. */
    Q_INVOKABLE QString idAt(int row) const { return m_rows.value(row).id; }
    /*! Why the preset can't be used; empty if it can, or if ffmpeg isn't there to be asked. */
    Q_INVOKABLE QString problemWith(const QString &id) const;
    /*! The id of the nearest preset that can be used instead; empty if there is none. */
    Q_INVOKABLE QString nearestTo(const QString &id) const;
    /*! The preset's format and title. */
    Q_INVOKABLE QString caption(const QString &id) const;

Q_SIGNALS:
    void found();

private:
    struct RoleRow
    {
        const char *name;
        QVariant (PresetFinder::*value)(int row) const;
    };
    static const QVector<RoleRow> &roles();

    [[nodiscard]] QVariant presetId(int row) const { return m_rows.at(row).id; }
    [[nodiscard]] QVariant title(int row) const;
    [[nodiscard]] QVariant format(int row) const { return m_rows.at(row).format; }
    [[nodiscard]] QVariant icon(int row) const;
    [[nodiscard]] QVariant details(int row) const;
    [[nodiscard]] QVariant why(int row) const;
    [[nodiscard]] QVariant isFavorite(int row) const;
    [[nodiscard]] QVariant isOwn(int row) const;
    [[nodiscard]] QVariant problem(int row) const { return problemWith(m_rows.at(row).id); }
    [[nodiscard]] QVariant group(int row) const { return m_groups.value(row); }

    void buildIndex();
    void preferFavorites();
    void list();
    void listUsual();
    void append(const QStringList &ids, const QString &group);
    void forgetIndex();
    void takeEncoders(const Result<QSet<QString>> &encoders);
    void renewFitness();
    void renewAll();

    PresetStore &m_store;
    Presets &m_presets;
    const int m_part;
    std::unique_ptr<PresetIndexBuilder> m_builder; // while the index isn't complete
    std::optional<PresetIndex> m_index;
    QTimer m_nextPart; // of the index
    PresetQuery m_query;
    QVector<PresetMatch> m_rows;
    QStringList m_groups; // the headings of the rows, without a search
    int m_count = 0;
    QString m_unknown; // a word that no preset has
    EncoderList m_list;
    QSet<QString> m_encoders;
    std::optional<FitnessSource> m_source;
    std::optional<Fitness> m_fitness;           // once the encoders are known
    mutable QHash<QString, QString> m_problems; // of the presets that were in sight
};

#endif

#ifndef PRESETS_FAVORITES_H
#define PRESETS_FAVORITES_H

#include "host/error.h"
#include "host/presets/configlist.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/*! What a source mainly is. */
enum class SourceKind { Video, Audio, Picture };

/*! "video", "audio" or "picture". */
[[nodiscard]] QString nameOf(SourceKind kind);
[[nodiscard]] std::optional<SourceKind> sourceKindNamed(const QString &name);
/*! What all of these files are by their names; nothing if they differ or don't say it. */
[[nodiscard]] std::optional<SourceKind> sourceKindOf(const QStringList &paths);

/*! The presets that the user likes best, and those that are taken where none is named. */
class Favorites
{
public:
    /*! Kept in the file at \a path. */
    explicit Favorites(const QString &path)
        : m_file(path)
    {}

    [[nodiscard]] Result<> read();
    /*! Only the process that holds the folder's lock may do this. */
    [[nodiscard]] Result<> save() const;

    /*! Gives each preset the id that \a idNow returns for it. */
    void renameIds(const std::function<QString(const QString &)> &idNow);

    /*! The latest first. */
    [[nodiscard]] const QStringList &ids() const { return m_ids; }
    /*! False if it was one already. */
    bool add(const QString &id);
    /*! False if it was none. */
    bool remove(const QString &id);

    /*! The id of a preset; empty if none is chosen. */
    [[nodiscard]] QString defaultFor(SourceKind kind) const { return m_defaults.value(kind); }
    /*! An empty \a id chooses none. */
    void setDefault(SourceKind kind, const QString &id) { m_defaults.insert(kind, id); }

private:
    ConfigList m_file;
    QStringList m_ids;
    QMap<SourceKind, QString> m_defaults;
};

#endif

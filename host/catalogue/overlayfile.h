#ifndef CATALOGUE_OVERLAYFILE_H
#define CATALOGUE_OVERLAYFILE_H

#include "utility/cataloguemistake.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/*! "hide" and "presets" make "hide.presets", "hide" and 2 make "hide[2]". */
[[nodiscard]] QString memberOf(const QString &path, const QString &key);
[[nodiscard]] QString elementOf(const QString &path, int index);

/*! The values of one overlay, whose mistakes are noted. */
class OverlayFile
{
public:
    using Note = std::function<void(const CatalogueMistake &mistake)>;

    /*! A text and its place in the file. */
    struct Text
    {
        QString text;
        QString path;
    };

    OverlayFile(const QString &name, const QJsonObject &json, const Note &note)
        : m_name(name)
        , m_json(json)
        , m_note(note)
    {}

    [[nodiscard]] const QString &name() const { return m_name; }
    /*! The values of some keys, as far as the file has them. */
    [[nodiscard]] QJsonObject part(const QStringList &keys) const;
    /*! The object under a key; empty if the file has none. */
    [[nodiscard]] QJsonObject object(const QString &key) const;
    /*! The texts of a list, such as "presets" in the object "hide"; empty if there is none. */
    [[nodiscard]] QVector<Text> texts(const QString &object, const QString &key) const;

    /*! Notes all keys but these, of the file or of the object under \a path. */
    void expectOnly(const QStringList &keys, const QString &path = {}) const;
    void note(const CatalogueMistake &mistake) const { m_note(mistake); }
    void refuse(const QString &path, const QString &reason) const;
    void refuseUnknown(const QString &path, const QString &presetId) const;

private:
    QString m_name;
    QJsonObject m_json;
    Note m_note;
};

#endif

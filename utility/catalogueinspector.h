#ifndef UTILITY_CATALOGUEINSPECTOR_H
#define UTILITY_CATALOGUEINSPECTOR_H

#include "utility/cataloguemistake.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QVector>

/*! "groups" and "name" make "groups.name", "groups" and 2 make "groups[2]". */
[[nodiscard]] QString memberPath(const QString &path, const QString &key);
[[nodiscard]] QString elementPath(const QString &path, int index);

/*! Checks the values of one source at a time and collects the mistakes. */
class CatalogueInspector
{
public:
    explicit CatalogueInspector(QVector<CatalogueMistake> &mistakes)
        : m_mistakes(mistakes)
    {}

    void setSource(const QString &name) { m_source = name; }
    [[nodiscard]] CataloguePlace placeOf(const QString &path) const { return {m_source, path}; }

    void expect(QJsonValue::Type type, const QJsonValue &value, const QString &path);
    void expectElements(QJsonValue::Type type, const QJsonArray &array, const QString &path);
    /*! The string, which must not be empty. */
    QString text(const QJsonValue &value, const QString &path);
    /*! The object under that key; empty if the file has none. */
    QJsonObject optionalObject(const QJsonObject &file, const QString &key);

    void refuse(const QString &path, const QString &reason) { refuse(placeOf(path), reason); }
    void refuse(const CataloguePlace &place, const QString &reason);
    /*! Refuses without a mistake of its own, as something it refers to was refused already. */
    void refuseSilently() { ++m_refusals; }
    void noteUnknownKey(const QString &path);

    /*! Everything checked since an earlier count is valid if the count is still the same. */
    [[nodiscard]] int refusals() const { return m_refusals; }

private:
    QVector<CatalogueMistake> &m_mistakes;
    QString m_source;
    int m_refusals = 0;
};

#endif

#include "utility/catalogueinspector.h"

namespace {

QString typeName(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return QStringLiteral("true or false");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a string");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("missing");
}

} // namespace

QString memberPath(const QString &path, const QString &key)
{
    return path + QLatin1Char('.') + key;
}

QString elementPath(const QString &path, int index)
{
    return path + QLatin1Char('[') + QString::number(index) + QLatin1Char(']');
}

void CatalogueInspector::expect(QJsonValue::Type type, const QJsonValue &value, const QString &path)
{
    if (value.type() != type) {
        refuse(path,
               QStringLiteral("must be %1 but is %2").arg(typeName(type), typeName(value.type())));
    }
}

void CatalogueInspector::expectElements(QJsonValue::Type type, const QJsonArray &array,
                                        const QString &path)
{
    for (int i = 0; i < array.size(); ++i) {
        expect(type, array.at(i), elementPath(path, i));
    }
}

QString CatalogueInspector::text(const QJsonValue &value, const QString &path)
{
    expect(QJsonValue::String, value, path);
    if (value.isString() && value.toString().isEmpty()) {
        refuse(path, QStringLiteral("must not be empty"));
    }
    return value.toString();
}

QJsonObject CatalogueInspector::optionalObject(const QJsonObject &file, const QString &key)
{
    if (file.contains(key)) {
        expect(QJsonValue::Object, file.value(key), key);
    }
    return file.value(key).toObject();
}

void CatalogueInspector::refuse(const CataloguePlace &place, const QString &reason)
{
    refuseSilently();
    m_mistakes.append({place, reason});
}

void CatalogueInspector::noteUnknownKey(const QString &path)
{
    m_mistakes.append({placeOf(path), QStringLiteral("is not a known key"), true});
}

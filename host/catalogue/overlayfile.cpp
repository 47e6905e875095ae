#include "host/catalogue/overlayfile.h"

#include <QJsonArray>

QString memberOf(const QString &path, const QString &key)
{
    return path + QLatin1Char('.') + key;
}

QString elementOf(const QString &path, int index)
{
    return path + QLatin1Char('[') + QString::number(index) + QLatin1Char(']');
}

QJsonObject OverlayFile::part(const QStringList &keys) const
{
    QJsonObject part;
    for (const QString &key : keys) {
        if (m_json.contains(key)) {
            part.insert(key, m_json.value(key));
        }
    }
    return part;
}

QJsonObject OverlayFile::object(const QString &key) const
{
    if (m_json.contains(key) && !m_json.value(key).isObject()) {
        refuse(key, QStringLiteral("must be an object"));
    }
    return m_json.value(key).toObject();
}

QVector<OverlayFile::Text> OverlayFile::texts(const QString &object, const QString &key) const
{
    const QString path = memberOf(object, key);
    const QJsonValue list = m_json.value(object).toObject().value(key);
    if (!list.isUndefined() && !list.isArray()) {
        refuse(path, QStringLiteral("must be a list"));
    }
    QVector<Text> texts;
    const QJsonArray values = list.toArray();
    for (int i = 0; i < values.size(); ++i) {
        if (values.at(i).isString()) {
            texts.append({values.at(i).toString(), elementOf(path, i)});
        } else {
            refuse(elementOf(path, i), QStringLiteral("must be a string"));
        }
    }
    return texts;
}

void OverlayFile::expectOnly(const QStringList &keys, const QString &path) const
{
    const QJsonObject object = path.isEmpty() ? m_json : m_json.value(path).toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!keys.contains(it.key())) {
            note({{m_name, path.isEmpty() ? it.key() : memberOf(path, it.key())},
                  QStringLiteral("is not a known key"),
                  true});
        }
    }
}

void OverlayFile::refuse(const QString &path, const QString &reason) const
{
    note({{m_name, path}, reason});
}

void OverlayFile::refuseUnknown(const QString &path, const QString &presetId) const
{
    refuse(path, QStringLiteral("no preset has the id \"%1\"; \"vexconvert presets\" lists the ids")
                     .arg(presetId));
}

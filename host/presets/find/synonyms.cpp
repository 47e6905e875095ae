#include "host/presets/find/synonyms.h"

#include "host/presets/find/foldedwords.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/*! A static library's resources need this call, which must not be in a namespace. */
static void initResource()
{
    Q_INIT_RESOURCE(find);
}

namespace {

QStringList phrasesIn(const QJsonValue &list)
{
    QStringList phrases = list.toString().split(QLatin1Char(','));
    for (QString &phrase : phrases) {
        phrase = phrase.trimmed();
    }
    return phrases;
}

Synonym synonymFrom(const QJsonObject &object)
{
    Synonym synonym;
    const QString field = object.value(QLatin1String("field")).toString();
    synonym.field = fieldNamed(field).value_or(Field::Purpose);
    synonym.name = object.value(QLatin1String("name")).toString();
    const QJsonArray fits = object.value(QLatin1String("fits")).toArray();
    for (const QJsonValue &facets : fits) {
        synonym.fits.append(facets.toString().split(QLatin1Char(' ')));
    }
    const QJsonObject words = object.value(QLatin1String("words")).toObject();
    for (auto language = words.begin(); language != words.end(); ++language) {
        synonym.phrases.insert(language.key(), phrasesIn(language.value()));
    }
    return synonym;
}

Synonyms read()
{
    initResource();
    QFile file(QStringLiteral(":/find/synonyms.json"));
    file.open(QIODevice::ReadOnly);
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    Synonyms synonyms;
    const QJsonArray all = root.value(QLatin1String("synonyms")).toArray();
    for (const QJsonValue &each : all) {
        synonyms.all.append(synonymFrom(each.toObject()));
    }
    const QJsonObject ignored = root.value(QLatin1String("ignored")).toObject();
    for (const QJsonValue &ofLanguage : ignored) {
        for (const QString &phrase : phrasesIn(ofLanguage)) {
            synonyms.ignored.insert(foldedWord(phrase));
        }
    }
    return synonyms;
}

} // namespace

const Synonyms &Synonyms::builtIn()
{
    static const Synonyms synonyms = read();
    return synonyms;
}

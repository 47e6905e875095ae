#include "host/app/languages.h"
#include "host/presets/find/facets.h"
#include "host/presets/find/foldedwords.h"
#include "host/presets/find/synonyms.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

/*! The file of synonyms, over the built-in catalogue. */
class TestSynonyms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyListOfFacetsMeansAPreset();
    void everyFieldIsKnown();
    void wordsOfOneLanguageExistInAll();
    void noWordIsGivenTwiceForTheSame();
    void noSynonymIsIgnored();
};

void TestSynonyms::initTestCase()
{
    qunsetenv("VEX_EXPORT_CATALOGUE");
}

void TestSynonyms::everyListOfFacetsMeansAPreset()
{
    FormatsProxy formats;
    const QTemporaryDir folder; // without presets of its own
    formats.init(folder.path());
    QVector<QSet<QString>> presets;
    const FormatListModel &list = *formats.formatListModel();
    for (int row = 0; row < list.rowCount(); ++row) {
        FormatListModelData format;
        QVERIFY(list.getModelInfoByIndex(row, format));
        QQueue<FormatDetailModelData> ofFormat;
        list.formatDetailModel(format.title)->getModelInfo(ofFormat);
        for (FormatDetailModelData &preset : ofFormat) {
            preset.userDefine = true; // the catalogue has none of these
            QSet<QString> keys;
            const QVector<Facet> facets = facetsOf(preset, format);
            for (const Facet &facet : facets) {
                keys.insert(facet.key);
            }
            const QStringList words = foldedWords(preset.title);
            for (const QString &word : words) {
                keys.insert(QStringLiteral("title/") + word);
            }
            presets.append(keys);
        }
    }
    QStringList missing;
    for (const Synonym &synonym : Synonyms::builtIn().all) {
        for (const QStringList &fit : synonym.fits) {
            const QSet<QString> needed(fit.begin(), fit.end());
            const bool isMeant =
                std::any_of(presets.cbegin(), presets.cend(),
                            [&needed](const QSet<QString> &keys) { return keys.contains(needed); });
            QVERIFY2(isMeant,
                     qPrintable(synonym.name + QStringLiteral(": ") + fit.join(QLatin1Char(' '))));
        }
    }
    QCOMPARE(missing, QStringList());
}

void TestSynonyms::everyFieldIsKnown()
{
    QVERIFY(!Synonyms::builtIn().all.isEmpty()); // also makes the resource known
    QFile file(QStringLiteral(":/find/synonyms.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(file.readAll(), &error).object();
    QCOMPARE(error.errorString(), QJsonParseError{}.errorString());
    const QJsonArray all = root.value(QLatin1String("synonyms")).toArray();
    for (const QJsonValue &each : all) {
        const QString field = each.toObject().value(QLatin1String("field")).toString();
        QVERIFY2(fieldNamed(field), qPrintable(field));
    }
}

void TestSynonyms::wordsOfOneLanguageExistInAll()
{
    const QStringList languages = Languages::all();
    QStringList missing;
    for (const Synonym &synonym : Synonyms::builtIn().all) {
        for (const QString &language : languages) {
            if (synonym.phrases.contains(QStringLiteral("en")) &&
                !synonym.phrases.contains(language)) {
                missing << synonym.name + QLatin1Char(' ') + language;
            }
        }
    }
    QCOMPARE(missing, QStringList());
}

void TestSynonyms::noWordIsGivenTwiceForTheSame()
{
    QStringList twice;
    for (const Synonym &synonym : Synonyms::builtIn().all) {
        for (auto phrases = synonym.phrases.begin(); phrases != synonym.phrases.end(); ++phrases) {
            QStringList words;
            std::transform(phrases->begin(), phrases->end(), std::back_inserter(words), foldedWord);
            QVERIFY2(!words.contains(QString()), qPrintable(synonym.name)); // would say nothing
            if (words.removeDuplicates() > 0) {
                twice << synonym.name + QLatin1Char(' ') + phrases.key();
            }
        }
    }
    QCOMPARE(twice, QStringList());
}

void TestSynonyms::noSynonymIsIgnored()
{
    QVERIFY(!Synonyms::builtIn().ignored.isEmpty());
    for (const Synonym &synonym : Synonyms::builtIn().all) {
        for (const QStringList &phrases : synonym.phrases) {
            for (const QString &phrase : phrases) {
                QVERIFY2(!Synonyms::builtIn().ignored.contains(foldedWord(phrase)),
                         qPrintable(phrase));
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestSynonyms)
#include "tst_synonyms.moc"

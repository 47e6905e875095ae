#include "host/presets/find/presetindexbuilder.h"

#include "host/presets/find/foldedwords.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <algorithm>
#include <limits>

namespace {

const QLatin1String titleKey("title/");

/*! Each phrase as one word: a part of it, such as the "ultra" of "ultra hd", means something else.
 */
QStringList wordsOf(const Synonym &synonym)
{
    QStringList words;
    for (const QStringList &phrases : synonym.phrases) {
        std::transform(phrases.begin(), phrases.end(), std::back_inserter(words), foldedWord);
    }
    return words;
}

} // namespace

PresetIndexBuilder::PresetIndexBuilder(FormatsProxy &formats, const PresetExtras &extras)
    : m_formats(formats)
    , m_extras(extras)
    , m_synonyms(Synonyms::builtIn())
{
    for (const Synonym &synonym : m_synonyms.all) {
        for (const QStringList &keys : synonym.fits) {
            for (const QString &key : keys) {
                if (key.startsWith(titleKey)) {
                    m_titleKeys.insert(key);
                }
            }
        }
    }
}

bool PresetIndexBuilder::addSome(int count)
{
    const int formats = m_formats.formatListModel()->rowCount();
    const qint64 enough = qint64(m_index.m_presets.size()) + count;
    while (m_nextFormat < formats && m_index.m_presets.size() < enough) {
        addFormat(m_nextFormat++);
    }
    return m_nextFormat < formats;
}

PresetIndex PresetIndexBuilder::finish()
{
    addSome(std::numeric_limits<int>::max());
    m_index.m_words = WordIndex(std::move(m_entries), m_index.m_terms.size());
    m_index.prefer(m_extras.favorites, m_formats);
    m_index.m_terms.squeeze();
    m_index.m_presets.squeeze();
    m_index.m_profileTerms.squeeze();
    m_index.m_profileStarts.squeeze();
    return std::move(m_index);
}

void PresetIndexBuilder::addFormat(int row)
{
    const FormatListModel &list = *m_formats.formatListModel();
    FormatListModelData format;
    list.getModelInfoByIndex(row, format);
    QQueue<FormatDetailModelData> presets;
    if (const FormatDetailModel *ofFormat = list.formatDetailModel(format.title)) {
        ofFormat->getModelInfo(presets);
    }
    for (const FormatDetailModelData &preset : qAsConst(presets)) {
        addPreset(preset, format);
    }
}

void PresetIndexBuilder::addPreset(const FormatDetailModelData &preset,
                                   const FormatListModelData &format)
{
    const Title ofPreset = title(preset.title);
    QVector<Facet> facets = facetsOf(preset, format);
    const QString note = m_extras.notes.value(preset.id);
    if (!note.isEmpty()) {
        facets.append({QStringLiteral("note/") + preset.id, Field::Note, note, foldedWords(note)});
    }
    m_index.m_presets.append({preset.id, ofPreset.term, profile(facets, ofPreset.keys)});
}

PresetIndexBuilder::Title PresetIndexBuilder::title(const QString &text)
{
    const auto known = m_titles.constFind(text);
    if (known != m_titles.constEnd()) {
        return *known;
    }
    Title made;
    const QStringList words = foldedWords(text);
    for (const QString &word : words) {
        const QString key = titleKey + word;
        if (m_titleKeys.contains(key)) {
            made.keys.append(key);
        }
    }
    made.term = addTerm(QStringLiteral("title|") + text, {text, Field::Title, 0}, words);
    m_titles.insert(text, made);
    return made;
}

/*! The profile with these facets and the synonyms that mean them. */
quint32 PresetIndexBuilder::profile(const QVector<Facet> &facets, const QStringList &titleKeys)
{
    QString all = titleKeys.join(QLatin1Char('|'));
    for (const Facet &facet : facets) {
        all += QLatin1Char('|') + facet.key + QLatin1Char('|') + facet.text;
    }
    const auto known = m_profiles.constFind(all);
    if (known != m_profiles.constEnd()) {
        return *known;
    }
    QSet<QString> keys(titleKeys.begin(), titleKeys.end());
    for (const Facet &facet : facets) {
        keys.insert(facet.key);
        m_index.m_profileTerms.append(addTerm(facet.key + QLatin1Char('|') + facet.text,
                                              {facet.text, facet.field, 0}, facet.words));
    }
    addSynonyms(keys);
    m_index.m_profileStarts.append(quint32(m_index.m_profileTerms.size()));
    const auto number = quint32(m_index.m_profileStarts.size() - 2);
    m_profiles.insert(all, number);
    return number;
}

void PresetIndexBuilder::addSynonyms(const QSet<QString> &keys)
{
    for (const Synonym &synonym : m_synonyms.all) {
        const auto fit = std::find_if(
            synonym.fits.begin(), synonym.fits.end(), [&keys](const QStringList &needed) {
                return std::all_of(needed.begin(), needed.end(),
                                   [&keys](const QString &key) { return keys.contains(key); });
            });
        if (fit != synonym.fits.end()) {
            const auto order = quint8(fit - synonym.fits.begin());
            m_index.m_profileTerms.append(
                addTerm(QStringLiteral("synonym|%1|%2").arg(synonym.name).arg(order),
                        {synonym.name, synonym.field, order}, wordsOf(synonym)));
        }
    }
}

quint32 PresetIndexBuilder::addTerm(const QString &key, const PresetIndex::Term &term,
                                    const QStringList &words)
{
    const auto known = m_terms.constFind(key);
    if (known != m_terms.constEnd()) {
        return *known;
    }
    const auto number = quint32(m_index.m_terms.size());
    m_index.m_terms.append(term);
    for (const QString &word : words) {
        if (!word.isEmpty()) { // a title can consist of signs alone
            m_entries.append({word, number});
        }
    }
    m_terms.insert(key, number);
    return number;
}

#include "host/convert/trackchoice.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

/*! Languages with several codes, the two-letter code first. */
const QVector<QStringList> &languageCodes()
{
    static const QVector<QStringList> codes = [] {
        const QStringList rows =
            QStringLiteral("ar ara|bg bul|ca cat|cs ces cze|da dan|de deu ger|el ell gre|"
                           "en eng|es spa|et est|eu eus baq|fa fas per|fi fin|fr fra fre|"
                           "he heb|hi hin|hr hrv|hu hun|id ind|is isl ice|it ita|ja jpn|"
                           "ko kor|lt lit|lv lav|ms msa may|nl nld dut|no nor|pl pol|"
                           "pt por|ro ron rum|ru rus|sk slk slo|sl slv|sr srp|sv swe|"
                           "th tha|tr tur|uk ukr|vi vie|zh zho chi")
                .split(QLatin1Char('|'));
        QVector<QStringList> split;
        for (const QString &row : rows) {
            split.append(row.split(QLatin1Char(' ')));
        }
        return split;
    }();
    return codes;
}

struct ChoiceWord
{
    TrackChoice::Kind kind;
    const char *text;
};

constexpr ChoiceWord choiceWords[] = {
    {TrackChoice::All, "all"}, {TrackChoice::First, "first"}, {TrackChoice::None, "none"}};

/*! All codes of the language, ignoring the region: for "de-CH" those of German. */
QStringList codesOf(const QString &language)
{
    const QString code =
        language.toLower().section(QRegularExpression(QStringLiteral("[-_]")), 0, 0);
    for (const QStringList &codes : languageCodes()) {
        if (codes.contains(code)) {
            return codes;
        }
    }
    return {code};
}

/*! Reads "1,3" and "1,3/3"; nullopt for anything else. */
std::optional<TrackChoice> numberedFromText(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A([1-9][0-9]{0,3}(?:,[1-9][0-9]{0,3})*)(?:/(0|[1-9][0-9]{0,3}))?\\z"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    TrackChoice choice{TrackChoice::Numbered};
    const QStringList numbers = match.captured(1).split(QLatin1Char(','));
    for (const QString &number : numbers) {
        if (!choice.numbers.contains(number.toInt())) {
            choice.numbers.append(number.toInt());
        }
    }
    std::sort(choice.numbers.begin(), choice.numbers.end());
    if (match.capturedLength(2) > 0) {
        choice.defaultNumber = match.captured(2).toInt();
    }
    const int number = choice.defaultNumber.value_or(0);
    return number == 0 || choice.numbers.contains(number) ? std::optional(choice) : std::nullopt;
}

} // namespace

std::optional<TrackChoice> TrackChoice::fromText(const QString &text)
{
    static const QRegularExpression code(QStringLiteral("\\A[A-Za-z]{2,3}([-_][A-Za-z0-9]+)*\\z"));
    for (const ChoiceWord &word : choiceWords) {
        if (text == QLatin1String(word.text)) {
            return TrackChoice{word.kind};
        }
    }
    return code.match(text).hasMatch() ? std::optional(TrackChoice{OfLanguage, text})
                                       : numberedFromText(text);
}

QString TrackChoice::text() const
{
    for (const ChoiceWord &word : choiceWords) {
        if (kind == word.kind) {
            return QLatin1String(word.text);
        }
    }
    if (kind == OfLanguage) {
        return language;
    }
    QStringList texts;
    for (const int number : numbers) {
        texts << QString::number(number);
    }
    const QString text = texts.join(QLatin1Char(','));
    return defaultNumber ? text + QLatin1Char('/') + QString::number(*defaultNumber) : text;
}

bool TrackChoice::takes(const Track &track) const
{
    switch (kind) {
    case None:
        return false;
    case OfLanguage:
        return codesOf(language).contains(codesOf(track.language).constFirst());
    case Numbered:
        return numbers.contains(track.number);
    case All:
    case First:
        break;
    }
    return true;
}

bool TrackChoice::isDefault(const Track &track) const
{
    return defaultNumber ? track.number == *defaultNumber : track.isDefault;
}

QString usualLanguageCode(const QString &language)
{
    return codesOf(language).constFirst();
}

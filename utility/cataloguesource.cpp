#include "utility/cataloguesource.h"

#include <QJsonDocument>

#include <algorithm>

namespace {

QString lineAndColumn(const QByteArray &json, int offset)
{
    const int lineStart = offset > 0 ? json.lastIndexOf('\n', offset - 1) + 1 : 0;
    return QStringLiteral("%1:%2")
        .arg(json.left(offset).count('\n') + 1)
        .arg(QString::fromUtf8(json.mid(lineStart, offset - lineStart)).toUcs4().size() + 1);
}

// Qt also says "unterminated" if a quote or a comma is missing.
QString reasonOf(const QJsonParseError &error)
{
    switch (error.error) {
    case QJsonParseError::UnterminatedObject:
        return QStringLiteral("expected a comma, a closing brace or a key in double quotes");
    case QJsonParseError::UnterminatedArray:
        return QStringLiteral("expected a comma or a closing bracket");
    default:
        return error.errorString();
    }
}

CatalogueMistake syntaxMistake(const CatalogueSource &source, const QJsonParseError &error)
{
    if (source.json.trimmed().isEmpty()) {
        return {{source.name, {}, QStringLiteral("1:1")}, QStringLiteral("the file is empty")};
    }
    // Qt has already read the byte that it rejects, except after the end of the document.
    const int offset =
        error.error == QJsonParseError::GarbageAtEnd ? error.offset : std::max(0, error.offset - 1);
    return {{source.name, {}, lineAndColumn(source.json, offset)}, reasonOf(error)};
}

} // namespace

std::optional<QJsonObject> parseSource(const CatalogueSource &source,
                                       QVector<CatalogueMistake> &mistakes)
{
    if (!source.unreadable.isEmpty()) {
        mistakes.append({{source.name, {}}, source.unreadable});
        return {};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(source.json, &error);
    if (error.error != QJsonParseError::NoError) {
        mistakes.append(syntaxMistake(source, error));
        return {};
    }
    if (!document.isObject()) {
        mistakes.append(
            {{source.name, {}}, QStringLiteral("the file must hold an object but holds a list")});
        return {};
    }
    return document.object();
}

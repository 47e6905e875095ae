#include "host/files/nametemplate.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

QRegularExpressionMatchIterator fieldsIn(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("\\{([^{}]*)\\}"));
    return pattern.globalMatch(text);
}

} // namespace

Result<NameTemplate> NameTemplate::fromText(const QString &text, const QStringList &fields)
{
    if (text.isEmpty() || text.contains(QLatin1Char('/'))) {
        return failed(tr("a name has at least one character and no \"/\"; choose the folder with "
                         "--to"));
    }
    const QString unknown = unknownField(text, fields);
    if (!unknown.isNull()) {
        return failed(tr("there is no field {%1}; the fields are: {%2}")
                          .arg(unknown, fields.join(QStringLiteral("}, {"))));
    }
    NameTemplate made;
    int read = 0;
    for (auto match = fieldsIn(text); match.hasNext();) {
        const QRegularExpressionMatch field = match.next();
        made.m_pieces.append({text.mid(read, field.capturedStart() - read)});
        made.m_pieces.append({field.captured(1), true});
        read = field.capturedEnd();
    }
    made.m_pieces.append({text.mid(read)});
    return made;
}

QString NameTemplate::unknownField(const QString &text, const QStringList &fields)
{
    for (auto match = fieldsIn(text); match.hasNext();) {
        const QString field = match.next().captured(1);
        if (!fields.contains(field)) {
            return field;
        }
    }
    return {};
}

NameTemplate NameTemplate::literal(const QString &name)
{
    NameTemplate made;
    made.m_pieces.append({name});
    return made;
}

void NameTemplate::fill(const QString &field, const QString &value)
{
    QString allowed = value;
    allowed.replace(QLatin1Char('/'), QLatin1Char('_'));
    for (Piece &piece : m_pieces) {
        if (piece.isField && piece.text == field) {
            piece = {allowed};
        }
    }
}

bool NameTemplate::isComplete() const
{
    return std::none_of(m_pieces.begin(), m_pieces.end(),
                        [](const Piece &piece) { return piece.isField; });
}

QString NameTemplate::text() const
{
    QString text;
    for (const Piece &piece : m_pieces) {
        text += piece.isField ? QStringLiteral("{%1}").arg(piece.text) : piece.text;
    }
    return text;
}

#include "host/files/nametemplate.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

Result<NameTemplate> NameTemplate::fromText(const QString &text, const QStringList &fields)
{
    if (text.isEmpty() || text.contains(QLatin1Char('/'))) {
        return failed(tr("a name has at least one character and no \"/\"; choose the folder with "
                         "--to"));
    }
    static const QRegularExpression pattern(QStringLiteral("\\{([^{}]*)\\}"));
    NameTemplate made;
    int read = 0;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch field = match.next();
        if (!fields.contains(field.captured(1))) {
            return failed(tr("there is no field {%1}; the fields are: {%2}")
                              .arg(field.captured(1), fields.join(QStringLiteral("}, {"))));
        }
        made.m_pieces.append({text.mid(read, field.capturedStart() - read)});
        made.m_pieces.append({field.captured(1), true});
        read = field.capturedEnd();
    }
    made.m_pieces.append({text.mid(read)});
    return made;
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

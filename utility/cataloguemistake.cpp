#include "utility/cataloguemistake.h"

#include <QVector>

QString CatalogueMistake::text() const
{
    QString line = place.source;
    if (!place.position.isEmpty()) {
        line += QLatin1Char(':') + place.position;
    }
    line += QStringLiteral(": ");
    if (!place.path.isEmpty()) {
        line += place.path + QStringLiteral(": ");
    }
    line += reason;
    // Names and keys may hold line breaks, what moves a terminal's cursor and what turns its text.
    static const QVector<QChar::Category> invisible = {QChar::Other_Control, QChar::Other_Format,
                                                       QChar::Separator_Line,
                                                       QChar::Separator_Paragraph};
    for (QChar &character : line) {
        character = invisible.contains(character.category()) ? QLatin1Char(' ') : character;
    }
    return line;
}

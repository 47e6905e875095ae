#include "host/media/clocktext.h"

#include "host/media/mediafacts.h"

#include <QRegularExpression>

#include <cmath>

namespace {

QString wholeText(qint64 seconds)
{
    const QLatin1Char zero('0');
    const QString hours = seconds < 3600 ? QString() : QStringLiteral("%1:").arg(seconds / 3600);
    return hours + QStringLiteral("%1:%2")
                       .arg(seconds / 60 % 60, hours.isEmpty() ? 1 : 2, 10, zero)
                       .arg(seconds % 60, 2, 10, zero);
}

} // namespace

QString clockText(double seconds)
{
    return wholeText(std::llround(plausibleSeconds(seconds)));
}

QString exactClockText(double seconds)
{
    const qint64 thousandths = std::llround(plausibleSeconds(seconds) * 1000);
    const QString text = wholeText(thousandths / 1000);
    const qint64 rest = thousandths % 1000;
    if (rest == 0) {
        return text;
    }
    QString fraction = QStringLiteral("%1").arg(rest, 3, 10, QLatin1Char('0'));
    while (fraction.endsWith(QLatin1Char('0'))) {
        fraction.chop(1);
    }
    return text + QLatin1Char('.') + fraction;
}

double secondsFromClockText(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral(
        "^(?:(?:(\\d{1,3}):)?(\\d{1,2}):)?(\\d{1,2}|(?<!:)\\d{1,6})([.,]\\d{1,3})?$"));
    const QRegularExpressionMatch match = pattern.match(text.trimmed());
    if (!match.hasMatch()) {
        return -1;
    }
    const QString fraction = match.captured(4).mid(1);
    const double minutes = match.captured(1).toInt() * 60 + match.captured(2).toInt();
    return minutes * 60 + match.captured(3).toInt() +
           fraction.toInt() / std::pow(10.0, fraction.size());
}

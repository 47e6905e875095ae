#include "host/window/clock.h"

#include "host/media/mediafacts.h"

#include <QRegularExpression>

#include <cmath>

double Clock::secondsOf(const QString &text)
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

QString Clock::textOf(double seconds)
{
    const qint64 hundredths = std::llround(plausibleSeconds(seconds) * 100);
    const qint64 whole = hundredths / 100;
    const QLatin1Char zero('0');
    const QString hours = whole < 3600 ? QString() : QStringLiteral("%1:").arg(whole / 3600);
    const QString text = hours + QStringLiteral("%1:%2")
                                     .arg(whole / 60 % 60, hours.isEmpty() ? 1 : 2, 10, zero)
                                     .arg(whole % 60, 2, 10, zero);
    const qint64 rest = hundredths % 100;
    if (rest == 0) {
        return text;
    }
    return rest % 10 == 0 ? QStringLiteral("%1.%2").arg(text).arg(rest / 10)
                          : QStringLiteral("%1.%2").arg(text).arg(rest, 2, 10, zero);
}

#include "host/media/sizetext.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString bytesText(double bytes)
{
    return QLocale::c().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeSIFormat);
}

std::optional<QSize> sizeFromText(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d+)x(\\d+)\\z"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const auto side = [&match](int number) {
        constexpr double longest = std::numeric_limits<int>::max();
        return int(std::min(match.captured(number).toDouble(), longest));
    };
    return QSize(side(1), side(2));
}

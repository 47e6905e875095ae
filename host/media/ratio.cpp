#include "host/media/ratio.h"

#include <QRegularExpression>

#include <cmath>
#include <numeric>

Ratio Ratio::fromText(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d+)(?:[/:](\\d+))?$"));
    const QRegularExpressionMatch match = form.match(text);
    Ratio ratio;
    ratio.numerator = match.captured(1).toInt();
    ratio.denominator = match.captured(2).isEmpty() ? 1 : match.captured(2).toInt();
    return ratio.isValid() ? ratio : Ratio();
}

Ratio Ratio::fromFrameRate(const QString &text)
{
    const double rate = text.toDouble();
    if (!(rate > 0 && rate < 1000)) {
        return fromText(text);
    }
    constexpr double ntscSlowdown = 1.001;
    constexpr double roundingOfTwoDecimals = 0.006;
    const double nominal = std::round(rate * ntscSlowdown);
    if (nominal > 0 && rate != std::round(rate) &&
        std::abs(rate - nominal / ntscSlowdown) < roundingOfTwoDecimals) {
        return {int(nominal) * 1000, 1001};
    }
    const int thousandths = int(std::lround(rate * 1000));
    const int divisor = std::gcd(thousandths, 1000);
    return {thousandths / divisor, 1000 / divisor};
}

QString Ratio::toText() const
{
    return denominator == 1 ? QString::number(numerator)
                            : QStringLiteral("%1/%2").arg(numerator).arg(denominator);
}

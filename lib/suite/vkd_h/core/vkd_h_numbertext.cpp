#include "vkd_h_numbertext.h"

#include <QRegularExpression>
#include <cmath>

bool vkd_h_parseUserNumber(const QString& text, double* value)
{
    // One separator at most, so "1,234.5" is refused instead of being read as 1.234 or 1234.5.
    static const QRegularExpression number(
        QStringLiteral("^[+-]?(\\d+([.,]\\d*)?|[.,]\\d+)([eE][+-]?\\d+)?$"));
    QString plain = text.trimmed();
    plain.replace(QChar(0x2212), QLatin1Char('-')); // the minus sign of typeset text
    if (!number.match(plain).hasMatch())
        return false;
    plain.replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    const double parsed = plain.toDouble(&ok); // QString::toDouble reads the C locale
    if (!ok || !std::isfinite(parsed))
        return false;
    *value = parsed;
    return true;
}

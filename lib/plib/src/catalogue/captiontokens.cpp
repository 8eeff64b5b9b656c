#include "captiontokens.h"

#include <vkd_q.h>

namespace vkd::plib::widgetgraphicaloutput {

namespace {

bool isTokenSign(QChar c)
{
    return c == QLatin1Char('&') || c == QLatin1Char('^') || c == QLatin1Char('$');
}

// What a qualifier character adds: the text of a token, a literal suffix, or both.
struct Qualifier
{
    QString token;
    QString suffix;
};

// Stands in front of the base text.
Qualifier thirdQualifier(QChar c)
{
    switch (c.unicode()) {
    case 'A': return {QStringLiteral("&25C"), {}};
    case 'C': return {QStringLiteral("&27W"), {}};
    case 'D': return {QStringLiteral("&271"), {}};
    case 'I': return {QStringLiteral("&20A"), {}};
    case 'R': return {QStringLiteral("&27Q"), {}};
    case 'S': return {QStringLiteral("&27E"), {}};
    default: return {};
    }
}

// Follows the base text.
Qualifier firstQualifier(QChar c)
{
    switch (c.unicode()) {
    case '1': return {{}, QStringLiteral("I")};
    case '2': return {{}, QStringLiteral("II")};
    case '3': return {{}, QStringLiteral("III")};
    case 'A':
    case 'B':
    case 'C': return {QStringLiteral("&0ZH"), {}};
    case 'O': return {QStringLiteral("^19O"), {}};
    case 'S': return {QStringLiteral("^1LN"), {}};
    case 'T': return {QStringLiteral("^1LT"), {}};
    case 'U': return {QStringLiteral("^19U"), {}};
    case 'V': return {QStringLiteral("&0Z1"), {}};
    case 'X':
    case 'Y':
    case 'Z': return {QStringLiteral("&0ZG"), QString(c)};
    case 'a':
    case 'b':
    case 'c': return {QStringLiteral("&0ZM"), QString(c)};
    case 's': return {QStringLiteral("^1LA"), {}};
    case 't': return {QStringLiteral("^1LB"), {}};
    case 'x':
    case 'y':
    case 'z': return {QStringLiteral("&0ZL"), QString(c)};
    default: return {};
    }
}

// Follows the text of the first qualifier.
Qualifier secondQualifier(QChar c)
{
    switch (c.unicode()) {
    case '+': return {QStringLiteral("^143"), QStringLiteral("1 + 2")};
    case '1': return {QStringLiteral("^143"), QStringLiteral("1")};
    case '2': return {QStringLiteral("^143"), QStringLiteral("2")};
    case 'h': return {QStringLiteral("&7ZH"), {}};
    case 's':
    case 't': return {QStringLiteral("&7ZT"), {}};
    default: return {};
    }
}

void expandQualifier(const Qualifier& q, QString& out, bool before)
{
    if (!q.token.isEmpty() || !q.suffix.isEmpty())
        expand(q.token, q.suffix, out, before);
}

} // namespace

bool isKeyText(QStringView text)
{
    if (text.size() >= 4 && (text.at(0) == QLatin1Char('@') || isTokenSign(text.at(0))))
        return true;
    return text.size() >= 7 && isTokenSign(text.at(3));
}

bool expand(const QString& token, const QString& suffix, QString& out, bool before)
{
    bool metToken = true;
    QString text;
    if (!token.isEmpty()) {
        const QChar sign = token.at(0);
        const QByteArray key = token.mid(1).toLatin1();
        const int language = vkd_lib_getvalue(102);
        if (sign == QLatin1Char('&')) {
            text = QString::fromStdString(vkd_lib_convtext(0, language, key.constData()));
            // Texts of class 0 may carry a short form in front of a ">".
            const int mark = text.indexOf(QLatin1Char('>'));
            if (mark > 0)
                text = text.mid(mark + 1);
        } else if (sign == QLatin1Char('^')) {
            text = QString::fromStdString(vkd_lib_convtext(1, language, key.constData()));
        } else if (sign == QLatin1Char('$')) {
            text = QString::fromStdString(vkd_lib_convtext(4, language, key.constData()));
        } else {
            text = token;
            metToken = false;
        }
    }
    if (!text.isEmpty()) {
        if (before)
            out = text + QLatin1Char(' ') + out;
        else
            out += QLatin1Char(' ') + text;
    }
    if (!suffix.isEmpty())
        out += QLatin1Char(' ') + suffix;
    return metToken;
}

QString captionText(const QString& field)
{
    const bool qualified = isKeyText(QStringView(field).mid(3, 4));
    QString out;
    if (!expand(qualified ? field.mid(3, 4) : field.left(4), QString(), out, false))
        return QString();
    if (!qualified)
        return out;
    // The text of the third character stands in front of the base text, so the base text's own
    // leading blank puts two blanks between them.
    expandQualifier(thirdQualifier(field.at(2)), out, true);
    expandQualifier(firstQualifier(field.at(0)), out, false);
    expandQualifier(secondQualifier(field.at(1)), out, false);
    return out;
}

} // namespace vkd::plib::widgetgraphicaloutput

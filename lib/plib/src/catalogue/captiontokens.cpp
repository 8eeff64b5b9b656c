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
    char character;
    const char* token;
    const char* suffix;
};

// Stands in front of the base text.
constexpr Qualifier thirdPlace[] = {{'A', "&25C", ""}, {'C', "&27W", ""}, {'D', "&271", ""},
                                    {'I', "&20A", ""}, {'R', "&27Q", ""}, {'S', "&27E", ""}};

// Follows the base text.
constexpr Qualifier firstPlace[] = {
    {'1', "", "I"},     {'2', "", "II"},    {'3', "", "III"},   {'A', "&0ZH", ""},  {'B', "&0ZH", ""},
    {'C', "&0ZH", ""},  {'O', "^19O", ""},  {'S', "^1LN", ""},  {'T', "^1LT", ""},  {'U', "^19U", ""},
    {'V', "&0Z1", ""},  {'X', "&0ZG", "X"}, {'Y', "&0ZG", "Y"}, {'Z', "&0ZG", "Z"}, {'a', "&0ZM", "a"},
    {'b', "&0ZM", "b"}, {'c', "&0ZM", "c"}, {'s', "^1LA", ""},  {'t', "^1LB", ""},  {'x', "&0ZL", "x"},
    {'y', "&0ZL", "y"}, {'z', "&0ZL", "z"}};

// Follows the text of the first place.
constexpr Qualifier secondPlace[] = {{'+', "^143", "1 + 2"}, {'1', "^143", "1"}, {'2', "^143", "2"},
                                     {'h', "&7ZH", ""},      {'s', "&7ZT", ""},  {'t', "&7ZT", ""}};

// Any other character, a blank or a dash for instance, adds nothing.
template <size_t N>
void expandQualifier(const Qualifier (&table)[N], QChar c, QString& out, bool before, TokenTexts* texts)
{
    for (const Qualifier& q : table) {
        if (c == QLatin1Char(q.character)) {
            expand(QString::fromLatin1(q.token), QString::fromLatin1(q.suffix), out, before, texts);
            return;
        }
    }
}

// The text of a token whose first character is a token sign, from the text service.
QString lookUp(const QString& token)
{
    const QChar sign = token.at(0);
    const QByteArray key = token.mid(1).toLatin1();
    const int language = vkd_lib_getvalue(kSettingLanguage);
    if (sign == QLatin1Char('&')) {
        QString text = QString::fromStdString(vkd_lib_convtext(0, language, key.constData()));
        // Texts of class 0 may carry a short form in front of a ">".
        const int mark = text.indexOf(QLatin1Char('>'));
        return mark > 0 ? text.mid(mark + 1) : text;
    }
    return QString::fromStdString(
        vkd_lib_convtext(sign == QLatin1Char('^') ? 1 : 4, language, key.constData()));
}

} // namespace

const QString& TokenTexts::text(const QString& token)
{
    auto found = m_texts.find(token);
    if (found == m_texts.end())
        found = m_texts.insert(token, lookUp(token));
    return *found;
}

bool isKeyText(QStringView text)
{
    if (text.size() >= 4 && (text.at(0) == QLatin1Char('@') || isTokenSign(text.at(0))))
        return true;
    return text.size() >= 7 && isTokenSign(text.at(3));
}

bool expand(const QString& token, const QString& suffix, QString& out, bool before, TokenTexts* texts)
{
    bool metToken = true;
    QString text;
    if (!token.isEmpty()) {
        if (!isTokenSign(token.at(0))) {
            text = token;
            metToken = false;
        } else {
            text = texts ? texts->text(token) : lookUp(token);
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

QString captionText(const QString& field, TokenTexts* texts)
{
    const bool qualified = isKeyText(QStringView(field).mid(3, 4));
    QString out;
    if (!expand(qualified ? field.mid(3, 4) : field.left(4), QString(), out, false, texts))
        return QString();
    if (!qualified)
        return out;
    // The text of the third character stands in front of the base text, so the base text's own
    // leading blank puts two blanks between them.
    expandQualifier(thirdPlace, field.at(2), out, true, texts);
    expandQualifier(firstPlace, field.at(0), out, false, texts);
    expandQualifier(secondPlace, field.at(1), out, false, texts);
    return out;
}

} // namespace vkd::plib::widgetgraphicaloutput

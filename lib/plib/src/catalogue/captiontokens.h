#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

namespace vkd::plib::widgetgraphicaloutput {

// A caption field that names its caption by a token: four characters or more beginning with
// "@", "&", "^" or "$", or seven or more with "&", "^" or "$" in the fourth place, behind three
// qualifier characters.
bool isKeyText(QStringView text);

// The texts of tokens once looked up, for one pass over many captions in one language: the same
// few tokens recur in caption after caption, and a lookup costs several strings.
class TokenTexts
{
public:
    // The text of a token, "&", "^" or "$" and a three-character key, as expand() adds it.
    const QString& text(const QString& token);

private:
    QHash<QString, QString> m_texts;
};

// Adds the text of a token ("&", "^" or "$" and a three-character key) and a suffix to out,
// behind it or, with before, in front of it. Returns false if token is no such token.
bool expand(const QString& token, const QString& suffix, QString& out, bool before,
            TokenTexts* texts = nullptr);

// The caption that a key text stands for in the language of the desktop, untrimmed, or a null
// string for the "@" form, whose caption is literal.
QString captionText(const QString& field, TokenTexts* texts = nullptr);

} // namespace vkd::plib::widgetgraphicaloutput

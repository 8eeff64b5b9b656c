#include "vkd_qt_xmlpart.h"

namespace {

QString escaped(const QString& text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        if (c == QLatin1Char('&'))
            out += QLatin1String("&amp;");
        else if (c == QLatin1Char('<'))
            out += QLatin1String("&lt;");
        else if (c == QLatin1Char('>'))
            out += QLatin1String("&gt;");
        else
            out += c;
    }
    return out;
}

// The writer makes only the three entities; anything else that looks like one is kept as text,
// so a value damaged by hand still reads as what it shows.
QString unescaped(const QStringRef& text)
{
    static const struct
    {
        QLatin1String entity;
        QChar character;
    } entities[] = {{QLatin1String("&amp;"), QLatin1Char('&')},
                    {QLatin1String("&lt;"), QLatin1Char('<')},
                    {QLatin1String("&gt;"), QLatin1Char('>')}};
    QString out;
    out.reserve(text.size());
    for (int i = 0; i < text.size();) {
        bool replaced = false;
        if (text.at(i) == QLatin1Char('&')) {
            for (const auto& e : entities) {
                if (text.mid(i, e.entity.size()) == e.entity) {
                    out += e.character;
                    i += e.entity.size();
                    replaced = true;
                    break;
                }
            }
        }
        if (!replaced)
            out += text.at(i++);
    }
    // Not null even when empty: an empty part is a value.
    return out.isNull() ? QStringLiteral("") : out;
}

} // namespace

QString vkd_qt_writeXMLpart(const QString& value, const QString& tag)
{
    const QString name = escaped(tag);
    return QLatin1Char('<') + name + QLatin1Char('>') + escaped(value) + QLatin1String("</") + name +
           QLatin1Char('>');
}

QString vkd_qt_readXMLpart(const QString& xml, int from, const QString& tag, int* next)
{
    if (next)
        *next = -1;
    const QString name = escaped(tag);
    const QString open = QLatin1Char('<') + name + QLatin1Char('>');
    const QString close = QLatin1String("</") + name + QLatin1Char('>');
    const int start = xml.indexOf(open, qMax(from, 0));
    if (start < 0)
        return QString();
    const int valueStart = start + open.size();
    // A value holds no "<" of its own, so the first closing tag behind it is its end.
    const int end = xml.indexOf(close, valueStart);
    if (end < 0)
        return QString();
    if (next)
        *next = end + close.size();
    return unescaped(xml.midRef(valueStart, end - valueStart));
}

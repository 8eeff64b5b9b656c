#include "vkd_q.h"

#include <QFile>
#include <QHash>
#include <QTextStream>

namespace {

struct Catalogue
{
    QString program;
    bool loaded = false;
    // key: class and three-character key; value: German and English text
    QHash<QString, QPair<QString, QString>> texts;
};

Catalogue& current()
{
    static Catalogue c;
    return c;
}

QString textKey(int textClass, const QString& key)
{
    return QString::number(textClass) + QLatin1Char('|') + key;
}

// Lines "class|key|German|English"; "#" starts a comment line. Bars inside a text are
// written as "\|".
QStringList splitFields(const QString& line)
{
    QStringList fields;
    QString field;
    for (int i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (c == QLatin1Char('\\') && i + 1 < line.size() && line.at(i + 1) == QLatin1Char('|')) {
            field += QLatin1Char('|');
            ++i;
        } else if (c == QLatin1Char('|')) {
            fields << field;
            field.clear();
        } else {
            field += c;
        }
    }
    fields << field;
    return fields;
}

void load(Catalogue& c)
{
    c.loaded = true;
    c.texts.clear();
    const std::string path = vkd_lib_searchpath((c.program + QStringLiteral(".msg")).toUtf8().constData(), 3);
    if (path.empty())
        return;
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qWarning("%s: cannot be read (%s); its texts are missing", path.c_str(),
                 qPrintable(file.errorString()));
        return;
    }
    QTextStream in(&file);
    in.setCodec("UTF-8");
    // One warning per file, at the first line that is no text; the good lines still count.
    int lineNumber = 0;
    int firstBad = 0;
    int bad = 0;
    while (!in.atEnd()) {
        const QString line = in.readLine();
        ++lineNumber;
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList f = splitFields(line);
        bool ok = false;
        const int textClass = f.value(0).trimmed().toInt(&ok);
        if (f.size() != 4 || !ok || line.contains(QChar::ReplacementCharacter)) {
            if (bad++ == 0)
                firstBad = lineNumber;
            continue;
        }
        c.texts.insert(textKey(textClass, f.at(1).trimmed()), qMakePair(f.at(2), f.at(3)));
    }
    if (bad > 0)
        qWarning("%s:%d: not a text line \"class|key|German|English\" in UTF-8; %d such line(s) skipped",
                 path.c_str(), firstBad, bad);
}

} // namespace

void vkd_lib_opentext(const char* program)
{
    Catalogue& c = current();
    const QString name = QString::fromUtf8(program ? program : "").toLower();
    if (name != c.program || !c.loaded) {
        c.program = name;
        load(c);
    }
}

std::string vkd_lib_convtext(int textClass, int language, const char* key)
{
    Catalogue& c = current();
    if (!key || c.program.isEmpty())
        return {};
    const auto it = c.texts.constFind(textKey(textClass, QString::fromLatin1(key)));
    if (it == c.texts.constEnd())
        return {};
    return (language == 0 ? it->first : it->second).toStdString();
}

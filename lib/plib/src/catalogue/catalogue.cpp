#include "catalogue.h"

#include "captiontokens.h"

#include <vkd_q.h>

#include <QIODevice>
#include <QStringView>

#include <cstring>
#include <unordered_map>

namespace vkd::plib::widgetgraphicaloutput {

int catalogueLanguage = -1;

std::vector<GraphicalOutputRecord>& catalogueList()
{
    static std::vector<GraphicalOutputRecord> records;
    return records;
}

namespace {

// readLine gives at most 1023 bytes; a longer physical line arrives in pieces.
constexpr int lineBufferSize = 1024;
constexpr int minimumParts = 14;
constexpr int lastColumn = 14;
constexpr int captionColumns = 3;
constexpr int firstCaptionColumn = 3;

// The parts of a line between its bars up to the last column read; empty parts are dropped, so
// adjacent bars are one separator, and the line feed behind a final bar is a part of its own.
struct Parts
{
    QStringView at[lastColumn + 1];
    int count = 0;
};

void split(QStringView line, Parts& parts)
{
    parts.count = 0;
    const QChar* start = line.begin();
    const QChar* const end = line.end();
    while (parts.count <= lastColumn) {
        const QChar* bar = start;
        while (bar != end && *bar != QLatin1Char('|'))
            ++bar;
        if (bar != start)
            parts.at[parts.count++] = QStringView(start, bar - start);
        if (bar == end)
            return;
        start = bar + 1;
    }
}

// Equal texts, compared as the raw characters they are.
bool same(QStringView a, QStringView b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), size_t(a.size()) * sizeof(QChar)) == 0;
}

bool isAscii(const char* bytes, int length)
{
    constexpr quint64 highBits = 0x8080808080808080ULL;
    int i = 0;
    for (; i + 8 <= length; i += 8) {
        quint64 eight;
        std::memcpy(&eight, bytes + i, sizeof eight);
        if (eight & highBits)
            return false;
    }
    for (; i < length; ++i)
        if (uchar(bytes[i]) >= 0x80)
            return false;
    return true;
}

// Decodes a line into a buffer that is reused from line to line; most lines are plain ASCII.
void decode(const char* bytes, int length, QString& line)
{
    if (!isAscii(bytes, length)) {
        line = QString::fromUtf8(bytes, length);
        return;
    }
    line.resize(0);
    line.append(QLatin1String(bytes, length));
}

// The number of a trimmed field as QString::toInt() reads it; plain digits are read directly.
int number(QStringView field)
{
    constexpr int digitsThatFit = 9;
    if (field.isEmpty() || field.size() > digitsThatFit)
        return field.toInt();
    int value = 0;
    for (const QChar c : field) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return field.toInt();
        value = value * 10 + (c.unicode() - '0');
    }
    return value;
}

void storeCaption(QStringView part, int column, QString& caption, QString& id, TokenTexts& texts)
{
    // Every plain caption of a column shares one identifier.
    static const QString plainIds[captionColumns] = {QStringLiteral("    001"), QStringLiteral("    002"),
                                                     QStringLiteral("    003")};
    id = plainIds[column];
    if (!isKeyText(part)) {
        caption = part.toString();
        return;
    }
    const QString field = part.toString();
    int prefixLength = 4;
    if (isKeyText(QStringView(field).mid(3, 4))) {
        id = field.left(7);
        prefixLength = 7;
    } else {
        id = QStringLiteral("   ") + field.left(4);
    }
    const QString text = captionText(field, &texts);
    caption = text.isEmpty() ? field.mid(prefixLength).trimmed() : text.trimmed();
}

// The captions of one column, each distinct field resolved once a parse: a caption recurs all
// over a catalogue, and resolving one means text lookups and several strings.
class Captions
{
public:
    Captions(int column, TokenTexts& texts) : m_column(column), m_texts(texts) {}

    void store(QStringView field, QString& caption, QString& id)
    {
        auto found = m_byField.find(field);
        if (found == m_byField.end()) {
            Resolved resolved;
            resolved.field = field.toString();
            storeCaption(field, m_column, resolved.caption, resolved.id, m_texts);
            // The key views the text of the stored field, which a move leaves where it is.
            const QStringView key(resolved.field);
            found = m_byField.emplace(key, std::move(resolved)).first;
        }
        caption = found->second.caption;
        id = found->second.id;
    }

private:
    struct Resolved
    {
        QString field;
        QString caption;
        QString id;
    };
    struct Hash
    {
        size_t operator()(QStringView text) const noexcept { return qHash(text); }
    };

    int m_column;
    TokenTexts& m_texts;
    std::unordered_map<QStringView, Resolved, Hash> m_byField;
};

int ctrlOfWord(const QStringRef& word)
{
    if (word == QLatin1String("last"))
        return CaseControlLast;
    if (word == QLatin1String("sngl") || word == QLatin1String("nonl") || word == QLatin1String("supp") ||
        word == QLatin1String("eige") || word == QLatin1String("zrt1") || word == QLatin1String("zrt2"))
        return CaseControlOther;
    if (word == QLatin1String("desi"))
        return CaseControlDesign;
    if (word == QLatin1String("beam") || word == QLatin1String("dsln"))
        return CaseControlBeams;
    return CaseControlNoCases;
}

// caseWord is "word" or "word-suffix"; the suffix names the kind of load case rows.
void bindToCases(GraphicalOutputRecord& r)
{
    const QString lower = r.caseWord.toLower();
    QStringRef word(&lower);
    r.rowClass = RowClassNone;
    const int dash = lower.indexOf(QLatin1Char('-'));
    if (dash >= 0) {
        const QStringRef suffix = lower.midRef(dash + 1);
        if (suffix == QLatin1String("l"))
            r.rowClass = RowClassL;
        else if (suffix == QLatin1String("c"))
            r.rowClass = RowClassC;
        else if (suffix == QLatin1String("e"))
            r.rowClass = RowClassE;
        word = lower.leftRef(dash);
    }
    r.ctrl = ctrlOfWord(word);
    r.rowMark = r.rowClass == RowClassE
                    ? (r.ctrl == CaseControlDesign ? RowMarkDesignExtreme : RowMarkExtreme)
                    : RowMarkCase;
}

} // namespace

void parseCatalogue(QIODevice& device)
{
    parseCatalogue(device, catalogueList());
}

void parseCatalogue(QIODevice& device, std::vector<GraphicalOutputRecord>& records)
{
    vkd_lib_opentext("grav");
    // Not reset between lines: a line of exactly 14 parts keeps the English script of the line
    // before it.
    GraphicalOutputRecord work;
    TokenTexts texts;
    Captions captions[captionColumns] = {Captions(0, texts), Captions(1, texts), Captions(2, texts)};
    // Neighbouring lines mostly share their fields: a part equal to the one of the last line
    // read keeps what was made of it. The two lines take turns in two buffers.
    QString lines[2];
    Parts parts[2];
    int current = 0;
    bool havePrevious = false;
    char buffer[lineBufferSize];
    qint64 length;
    while ((length = device.readLine(buffer, lineBufferSize)) > 0) {
        // A comment needs its slashes in the first column. Blank lines fall below the part count.
        if (length >= 2 && buffer[0] == '/' && buffer[1] == '/')
            continue;
        decode(buffer, int(length), lines[current]);
        const Parts& now = parts[current];
        split(lines[current], parts[current]);
        if (now.count < minimumParts)
            continue;
        const Parts& before = parts[1 - current];
        auto changed = [&](int column) {
            return !havePrevious || column >= before.count || !same(now.at[column], before.at[column]);
        };
        auto field = [&](int column) { return now.at[column].trimmed(); };
        auto assign = [&](int column, QString& target) {
            if (changed(column))
                target = field(column).toString();
        };
        if (changed(0))
            work.prog1 = number(field(0));
        if (changed(1))
            work.prog2 = number(field(1));
        if (changed(2))
            work.prog3 = number(field(2));
        QString* titles[captionColumns] = {&work.title1, &work.title2, &work.title3};
        QString* ids[captionColumns] = {&work.id1, &work.id2, &work.id3};
        for (int c = 0; c < captionColumns; ++c)
            if (changed(firstCaptionColumn + c))
                captions[c].store(field(firstCaptionColumn + c), *titles[c], *ids[c]);
        assign(6, work.contentTag);
        if (changed(7))
            work.number7 = number(field(7));
        if (changed(8)) {
            work.caseWord = field(8).toString();
            bindToCases(work);
        }
        if (changed(9))
            work.preselect = number(field(9));
        if (changed(10))
            work.viewKind = number(field(10));
        assign(11, work.text11);
        if (changed(12))
            work.systemMask = number(field(12));
        assign(13, work.scriptGerman);
        if (now.count > lastColumn)
            assign(lastColumn, work.scriptEnglish);
        havePrevious = true;
        current = 1 - current;
        if (work.scriptGerman.isEmpty() || work.scriptEnglish.isEmpty())
            continue;
        records.push_back(work);
    }
}

} // namespace vkd::plib::widgetgraphicaloutput

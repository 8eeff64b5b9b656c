#include "catalogue.h"

#include "captiontokens.h"

#include <vkd_q.h>

#include <QIODevice>
#include <QVector>

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

void storeCaption(const QStringRef& part, int column, QString& caption, QString& id)
{
    // Every plain caption of a column shares one identifier.
    static const QString plainIds[3] = {QStringLiteral("    001"), QStringLiteral("    002"),
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
    const QString text = captionText(field);
    caption = text.isEmpty() ? field.mid(prefixLength).trimmed() : text.trimmed();
}

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

// Gives target the text of field unless it holds it already; true if it changed.
bool assignChanged(QString& target, const QStringRef& field)
{
    if (field == target && !target.isNull())
        return false;
    target = field.toString();
    return true;
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
    // Neighbouring lines mostly share their captions and words: a field equal to the one of the
    // line before keeps what was made of it, which spares the allocations and the text lookups
    // that dominate parsing.
    QString captionFields[3];
    char buffer[lineBufferSize];
    qint64 length;
    while ((length = device.readLine(buffer, lineBufferSize)) > 0) {
        // A comment needs its slashes in the first column. Blank lines fall below the part count.
        if (length >= 2 && buffer[0] == '/' && buffer[1] == '/')
            continue;
        const QString line = QString::fromUtf8(buffer, int(length));
        // Empty parts are dropped, so adjacent bars are one separator; the line feed behind a
        // final bar is a part of its own.
        const QVector<QStringRef> parts = line.splitRef(QLatin1Char('|'), Qt::SkipEmptyParts);
        if (parts.size() < minimumParts)
            continue;
        work.prog1 = parts.at(0).trimmed().toInt();
        work.prog2 = parts.at(1).trimmed().toInt();
        work.prog3 = parts.at(2).trimmed().toInt();
        QString* titles[3] = {&work.title1, &work.title2, &work.title3};
        QString* ids[3] = {&work.id1, &work.id2, &work.id3};
        for (int column = 0; column < 3; ++column) {
            const QStringRef field = parts.at(3 + column).trimmed();
            if (captionFields[column].isNull() || field != captionFields[column]) {
                captionFields[column] = field.toString();
                storeCaption(field, column, *titles[column], *ids[column]);
            }
        }
        assignChanged(work.contentTag, parts.at(6).trimmed());
        work.number7 = parts.at(7).trimmed().toInt();
        if (assignChanged(work.caseWord, parts.at(8).trimmed()))
            bindToCases(work);
        work.preselect = parts.at(9).trimmed().toInt();
        work.viewKind = parts.at(10).trimmed().toInt();
        assignChanged(work.text11, parts.at(11).trimmed());
        work.systemMask = parts.at(12).trimmed().toInt();
        work.scriptGerman = parts.at(13).trimmed().toString();
        if (parts.size() > lastColumn)
            work.scriptEnglish = parts.at(lastColumn).trimmed().toString();
        if (work.scriptGerman.isEmpty() || work.scriptEnglish.isEmpty())
            continue;
        records.push_back(work);
    }
}

} // namespace vkd::plib::widgetgraphicaloutput

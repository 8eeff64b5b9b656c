// The catalogue and the output tree's logic, without widgets: the parser and its captions; which
// records the page and the model offer, and the script lines of checked plots and rows.
#include "catalogue.h"
#include "modelfilter.h"
#include "scriptlines.h"
#include "testsupport.h"

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// The record as a catalogue line, then its identifiers, ctrl, rowClass and rowMark.
QString described(const GraphicalOutputRecord& r)
{
    const QVariantList fields{r.prog1,    r.prog2,      r.prog3,      r.title1,       r.title2,
                              r.title3,   r.contentTag, r.number7,    r.caseWord,     r.preselect,
                              r.viewKind, r.text11,     r.systemMask, r.scriptGerman, r.scriptEnglish};
    QStringList out;
    for (const QVariant& f : fields)
        out << f.toString();
    return out.join(QLatin1Char('|')) + QStringLiteral("\n  [%1|%2|%3] %4 %5 %6\n")
                                            .arg(r.id1, r.id2, r.id3)
                                            .arg(r.ctrl)
                                            .arg(r.rowClass)
                                            .arg(r.rowMark);
}

QStringList describedAll(const std::vector<GraphicalOutputRecord>& records)
{
    QStringList out;
    for (const GraphicalOutputRecord& r : records)
        out << described(r);
    return out;
}

// A model that holds everything but one content and counts the questions about its kind.
class FakeModel : public ModelAnswers
{
public:
    FakeModel(int absent, int kind) : m_absent(absent), m_kind(kind) {}
    bool holds(ModelContent content) const override { return int(content) != m_absent; }
    int kindOfSystem() const override { return ++kindAsked, m_kind; }
    mutable int kindAsked = 0;

private:
    int m_absent;
    int m_kind;
};

// A checked plot or row: the view of its plot, its load case, its text and the name in its
// script ("PICT name" in English, "BILD name" in German).
struct Entry
{
    int viewKind;
    int number;
    const char* label;
    const char* name;
};

struct Scenario
{
    const char* title;
    int progname;
    int kindOfSystem;
    std::vector<Entry> entries;
};

const std::vector<Scenario> scenarios = {
    {"stand-alone plot first, without view", 1, 0, {{0, 0, "", "A"}}},
    {"view by kind of system 0", 1, 0, {{1, 0, "", "A"}, {3, 0, "", "B"}, {2, 0, "", "C"}}},
    {"view by kind of system 20", 1, 20, {{1, 0, "", "A"}, {2, 0, "", "B"}}},
    {"row 0 and negative rows", 1, 0, {{0, 0, "0 ", "A"}, {2, -1, "-1 ", "B"}, {0, -1, "-1 ", "C"}}},
    {"split page", 122, 0, {{0, 12, "12+14: x", "A $(LFNR) $(LFNR) $(lfnr)"}, {0, 12, "12 : x", "B"}}},
    {"double picture", 1, 0, {{3, 7, "7+9: x", "A"}, {0, 9, "9 : y", "B"}}},
};

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The text service reads its catalogue at the first opentext; it must find the test texts.
        qputenv("VKD_SEARCHPATH", TEST_DATA_DIR "/textservice");
    }

    // Every form of line and caption of data/sample.data, as records, on each desktop.
    void sampleCatalogue()
    {
        for (const int language : {1, 0}) {
            QFile file(QStringLiteral(TEST_DATA_DIR "/sample.data"));
            QVERIFY(file.open(QIODevice::ReadOnly));
            LanguageScope scope(language);
            std::vector<GraphicalOutputRecord> records;
            parseCatalogue(file, records);
            QVERIFY(matchesReference(describedAll(records).join(QString()),
                                     language ? "sample_en.txt" : "sample_de.txt"));
        }
    }

    // A physical line of 1100 bytes is read as two: its first 1023 bytes, which here end in the
    // English script, and the rest, which here is a record of its own.
    void longLine()
    {
        const QByteArray head = "3|0|0|T|C|P|Node|7|last-l|1|1|" + QByteArray(976, '.') + "|0|KNOT|NODE DISP";
        const QByteArray tail =
            "122|0|0|T|C|P|Node|7|last-l|1|1|" + QByteArray(26, '.') + "|0|STAB|BEAM FORC\n";
        QCOMPARE(head.size(), 1023);
        const std::vector<GraphicalOutputRecord> records = parseText(head + tail);
        QCOMPARE(records.size(), size_t(2));
        QCOMPARE(records[0].scriptEnglish, QStringLiteral("NODE DISP"));
        QCOMPARE(records[1].prog1, 122);
        QCOMPARE(records[1].scriptEnglish, QStringLiteral("BEAM FORC"));
    }

    // The parser reuses what it made of a field equal to the line before's and resolves each
    // caption once a parse: a line's record must not depend on its neighbours, nor on a dropped
    // line. A plain caption's identifier is its column's.
    void togetherAsAlone_data()
    {
        QTest::addColumn<QByteArrayList>("lines");
        QTest::addColumn<QStringList>("ids");
        const QString plain = QStringLiteral("    001    002    003");
        QTest::newRow("only the third program changes")
            << QByteArrayList{"1|0|0|A|B|C|All|0|last|0|0| |0|G1|E1\n",
                              "1|0|5|A|B|C|All|0|last|0|0| |0|G2|E2\n"}
            << QStringList{plain, plain};
        QTest::newRow("key captions come back after others")
            << QByteArrayList{"1|0|0|&ABC|@X01 one|A|All|0|last|0|0| |0|G1|E1\n",
                              "1|0|0|@X01 one|&ABC|&ABC|All|0|last|0|0| |0|G2|E2\n",
                              "1|0|0|&ABC|@X01 one|A|All|0|last|0|0| |0|G3|E3\n"}
            << QStringList{"   &ABC   @X01    003", "   @X01   &ABC   &ABC", "   &ABC   @X01    003"};
        QTest::newRow("UTF-8 and ASCII lines with the same fields")
            << QByteArrayList{"1|0|0|Ergebnis ü|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1 ä|E1\n",
                              "1|0|0|Ergebnis|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1|E1\n",
                              "1|0|0|Ergebnis ü|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1 ä|E1\n"}
            << QStringList{plain, plain, plain};
        QTest::newRow("blanks around equal fields")
            << QByteArrayList{"2|0|0|A|B|C|All|3|desi-e|1|1|x|4|G1|E1\n",
                              " 2 |0|0| A |B|C |All| 3|desi-e |1|1|x |4|G1|E1\n",
                              "2|0|0|A|B|C|All|3|DESI-E|1|1|x|4|G1|E1\n"}
            << QStringList{plain, plain, plain};
        QTest::newRow("a dropped line between")
            << QByteArrayList{"3|0|0|Results|Nodes|Displacement|Quad|8|desi-e|2|0|x|0|G2|E2\n",
                              "3|0|0|Other|Beams|Moments|Beam|9|beam| 0 |0|y|0| |dropped\n",
                              "3|0|0|Results|Beams|@AB1 Shown|Beam|9|beam|0|0|y|0|G3|E3\n"}
            << QStringList{plain, "    001    002   @AB1"};
    }

    void togetherAsAlone()
    {
        QFETCH(QByteArrayList, lines);
        QStringList idsRead;
        for (const GraphicalOutputRecord& r : parseText(lines.join()))
            idsRead << r.id1 + r.id2 + r.id3;
        QTEST(idsRead, "ids");
        QStringList alone;
        for (const QByteArray& line : lines)
            alone += describedAll(parseText(line));
        QCOMPARE(describedAll(parseText(lines.join())), alone);
    }

    // Short fields of digits are read directly, longer ones and others as QString::toInt() reads
    // them; data/sample.data has signs, letters and blanks.
    void numbers()
    {
        const std::pair<QByteArray, int> fields[] = {
            {"-3", -3}, {"123456789", 123456789}, {"2147483647", 2147483647}, {"2147483648", 0}};
        for (const auto& [field, value] : fields) {
            const QByteArray f = field + '|';
            const std::vector<GraphicalOutputRecord> records =
                parseText(f + f + f + "A|B|C|All|" + f + "last|" + f + f + " |" + f + "G|E\n");
            QCOMPARE(records.size(), size_t(1));
            const GraphicalOutputRecord& r = records.front();
            const QVector<int> read{r.prog1,     r.prog2,    r.prog3,     r.number7,
                                    r.preselect, r.viewKind, r.systemMask};
            QCOMPARE(read, QVector<int>(read.size(), value));
        }
    }

    // Plane stress systems are 10, 11, 14 and 15; kinds count by tens, towards zero.
    void systemBit()
    {
        const std::pair<int, int> table[] = {{-9, 8}, {10, 1}, {13, 2},  {14, 1},  {25, 8},
                                             {35, 4}, {45, 0}, {50, 15}, {-10, 15}};
        for (const auto& [kind, bit] : table)
            QVERIFY2(vkd::plib::widgetgraphicaloutput::systemBit(kind) == bit,
                     qPrintable(QString::number(kind)));
    }

    // Whether a record of the programs 3, 0 and 5 is offered to a page, and whether the kind of
    // system was asked for; the model holds everything but quads (data/offered.txt).
    void isRecordOffered()
    {
        QVERIFY(matchesTranscript(QStringLiteral("offered.txt"), [](const QString& line) {
            const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            GraphicalOutputRecord record;
            record.prog1 = 3;
            record.prog3 = 5;
            record.systemMask = words.value(1).toInt();
            record.contentTag = words.value(3);
            record.title1 = record.title2 = record.title3 = QStringLiteral("x");
            const FakeModel model(int(ModelContent::Quads), words.value(2).toInt());
            const std::list<QString> tags(words.begin() + qMin(4, int(words.size())), words.end());
            const bool offered = vkd::plib::widgetgraphicaloutput::isRecordOffered(
                record, words.value(0).toInt(), model, tags);
            return QString(offered ? "offered" : "not offered") + (model.kindAsked > 0 ? ", kind asked" : "");
        }));
    }

    // The lines of the scenarios, each under its title, with English and German keywords.
    void scriptLines()
    {
        for (const bool english : {true, false}) {
            QString text;
            for (const Scenario& scenario : scenarios) {
                ScriptContext context(english, scenario.progname,
                                      [&scenario] { return scenario.kindOfSystem; });
                std::vector<QString> lines;
                GraphicalOutputRecord caption;
                caption.scriptEnglish = caption.scriptGerman = QStringLiteral("STRU");
                for (const Entry& e : scenario.entries) {
                    GraphicalOutputRecord record;
                    record.viewKind = e.viewKind;
                    record.scriptEnglish = QStringLiteral("PICT ") + QLatin1String(e.name);
                    record.scriptGerman = QStringLiteral("BILD ") + QLatin1String(e.name);
                    appendScriptLines(context,
                                      ScriptEntry{record, e.number, QLatin1String(e.label), &caption}, lines);
                }
                text += QStringLiteral("== %1\n").arg(QLatin1String(scenario.title));
                for (const QString& line : lines)
                    text += line + QLatin1Char('\n');
            }
            QVERIFY(matchesReference(text, english ? "scriptlines-en.txt" : "scriptlines-de.txt"));
        }
    }

    // The second load case of a row's label: none without a colon or with the plus behind it.
    void secondCase()
    {
        using vkd::plib::widgetgraphicaloutput::secondCase;
        int found = 0;
        QVERIFY(!secondCase("123456+8", &found) && !secondCase("3: 4+5", &found));
        QVERIFY(secondCase("5+x: y", &found));
        QCOMPARE(found, -1);
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"

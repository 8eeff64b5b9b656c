// The logic of the output tree without widgets: which records the page and the model offer, and
// the script lines of checked plots and rows.
#include "modelfilter.h"
#include "scriptlines.h"
#include "testsupport.h"

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

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

class TestTreeLogic : public QObject
{
    Q_OBJECT

private slots:

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

QTEST_GUILESS_MAIN(TestTreeLogic)
#include "tst_treelogic.moc"

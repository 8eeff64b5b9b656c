#include "scriptlines.h"
#include "testsupport.h"

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// A checked plot or row: the view of its plot, its load case, its text and the name in its
// script ("PICT name" in English, "BILD name" in German).
struct Entry
{
    int viewKind;
    int number;
    const char* label;
    const char* name;
    bool captionWithUnit = false;
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
    {"rows 3 and 4, then row 4 of the next plot",
     1,
     0,
     {{0, 3, "3 : x", "A"}, {0, 4, "4 : y", "A"}, {0, 4, "4 : y", "B"}}},
    {"a view, then none", 1, 0, {{2, 0, "", "A"}, {0, 0, "", "B"}}},
    {"view by kind of system 0", 1, 0, {{1, 0, "", "A"}, {3, 0, "", "B"}, {2, 0, "", "C"}}},
    {"view by kind of system 20", 1, 20, {{1, 0, "", "A"}, {2, 0, "", "B"}}},
    {"row 0 and negative rows", 1, 0, {{0, 0, "0 ", "A"}, {2, -1, "-1 ", "B"}, {0, -1, "-1 ", "C"}}},
    {"split page", 122, 0, {{0, 12, "12+14: x", "A $(LFNR) $(LFNR) $(lfnr)"}, {0, 12, "12 : x", "B"}}},
    {"double picture", 1, 0, {{3, 7, "7+9: x", "A"}, {0, 9, "9 : y", "B"}}},
    {"double picture under a caption with UNIT", 1, 0, {{0, 7, "7+9: x", "A", true}, {0, 7, "7 : x", "B"}}},
};

QString run(const Scenario& scenario, bool english)
{
    ScriptContext context(english, scenario.progname, [&scenario] { return scenario.kindOfSystem; });
    std::vector<QString> lines;
    for (const Entry& e : scenario.entries) {
        GraphicalOutputRecord record;
        record.viewKind = e.viewKind;
        record.scriptEnglish = QStringLiteral("PICT ") + QLatin1String(e.name);
        record.scriptGerman = QStringLiteral("BILD ") + QLatin1String(e.name);
        GraphicalOutputRecord caption;
        caption.scriptEnglish = caption.scriptGerman =
            e.captionWithUnit ? QStringLiteral("STRU UNIT 1") : QStringLiteral("STRU");
        const QString label = QLatin1String(e.label);
        appendScriptLines(context, ScriptEntry{record, e.number, label, &caption}, lines);
    }
    QString out = QStringLiteral("== %1\n").arg(QLatin1String(scenario.title));
    for (const QString& line : lines)
        out += line + QLatin1Char('\n');
    return out;
}

} // namespace

class TestScriptLines : public QObject
{
    Q_OBJECT
private slots:
    void lines_data();
    void lines();
    void secondCase_data();
    void secondCase();
};

void TestScriptLines::lines_data()
{
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("reference");
    QTest::newRow("English keywords") << true << "scriptlines-en.txt";
    QTest::newRow("German keywords") << false << "scriptlines-de.txt";
}

void TestScriptLines::lines()
{
    QFETCH(bool, english);
    QFETCH(QString, reference);
    QString text;
    for (const Scenario& s : scenarios)
        text += run(s, english);
    QVERIFY(matchesReference(text, reference));
}

void TestScriptLines::secondCase_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("asks");
    QTest::addColumn<int>("second");
    QTest::newRow("two cases and a title") << "12+14: Wind" << true << 14;
    QTest::newRow("one case and a title") << "12 : Wind" << false << 0;
    QTest::newRow("exponent of a large number") << "1e+06 " << true << 6;
    QTest::newRow("no colon: first five characters") << "123456+8" << false << 0;
    QTest::newRow("plus in the title") << "3: 4+5" << false << 0;
    QTest::newRow("second case no number") << "5+x: y" << true << -1;
    QTest::newRow("nothing behind the plus") << "12+: a" << true << -1;
}

void TestScriptLines::secondCase()
{
    QFETCH(QString, label);
    QFETCH(bool, asks);
    QFETCH(int, second);
    int found = 0;
    QCOMPARE(vkd::plib::widgetgraphicaloutput::secondCase(label, &found), asks);
    if (asks)
        QCOMPARE(found, second);
}

QTEST_GUILESS_MAIN(TestScriptLines)
#include "tst_scriptlines.moc"

// The catalogue's loader with its message boxes, and the output tree that hangs on the catalogue:
// its shape, choice, script lines and icons.
#include "GraphicalOutputTreeWidget.h"
#include "catalogue.h"
#include "loadcatalogue.h"
#include "modal.h"
#include "testsupport.h"

#include <VKD_H_PluginParameter.h>

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

const QByteArray twoPlots =
    "// two plots\n"
    "1|0|0|&ABC Results|@ND1 Nodes|X--&ABC Displacement|Node|0|last-l|1|1| |0|KNOT VERS UX|NODE DISP UX\n"
    "1|0|0|&ABC Results|@ND1 Nodes|^CAR|Node|0|none|0|0| |0|KNOT NUMM|NODE NUMB\n";

// Puts a catalogue with the text into a folder of the search path, beside the test texts.
void offer(const QTemporaryDir& dir, const QByteArray& text)
{
    QFile file(dir.filePath(QStringLiteral("graphicaloutput.data")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    qputenv("VKD_SEARCHPATH", (dir.path() + QStringLiteral(":" TEST_DATA_DIR "/textservice")).toUtf8());
}

// An item and all below it in one line: its text, its state (+ checked, ~ partially,
// - unchecked, nothing without a check box) and its children in brackets.
inline QString shape(const QTreeWidgetItem* item)
{
    QString out = item->text(0);
    if (item->data(0, Qt::CheckStateRole).isValid())
        out += QLatin1String("-~+").at(item->checkState(0));
    QStringList children;
    for (int i = 0; i < item->childCount(); ++i)
        children << shape(item->child(i));
    return children.isEmpty() ? out
                              : out + QLatin1Char('(') + children.join(QLatin1Char(' ')) + QLatin1Char(')');
}

// A catalogue line offered on pages 1 and 122 whatever the model holds. A caption "@Xnn text"
// shows text and has the identifier @Xnn; the script "EMPTY" stands for none.
QByteArray rec(const QString& title1, const QString& title2, const QString& title3,
               const QString& cases = "none", int preselect = 0, int view = 0, const QString& tag = "All",
               const QString& script = "S")
{
    return QStringLiteral("1|122|0|%1|%2|%3|%4|0|%5|%6|%7| |0|BILD %8|PICT %8\n")
        .arg(title1, title2, title3, tag, cases, QString::number(preselect), QString::number(view), script)
        .toUtf8();
}

const std::vector<LoadcaseInformation> threeRows = {{1, 1, "r1"}, {1, 2, "r2"}, {1, 3, "r3"}, {2, 11, "e1"}};

// A tree of page progname on the given catalogue, fed with rows.
struct Tree
{
    explicit Tree(const QByteArray& catalogue, int progname = 1,
                  const std::vector<LoadcaseInformation>& rows = threeRows)
    {
        std::vector<GraphicalOutputRecord> records = parseText(catalogue);
        for (GraphicalOutputRecord& r : records)
            if (r.scriptEnglish == QLatin1String("PICT EMPTY"))
                r.scriptGerman = r.scriptEnglish = QString();
        catalogueList() = records;
        catalogueLanguage = vkd_lib_getvalue(kSettingLanguage);
        view = std::make_unique<GraphicalOutputTreeWidget>(nullptr, progname, &parameter, "m_list");
        view->setUsedNumbersAndNames(rows);
    }
    QTreeWidgetItem* at(std::initializer_list<int> path) const
    {
        QTreeWidgetItem* item = nullptr;
        for (int i : path)
            item = item ? item->child(i) : view->topLevelItem(i);
        return item;
    }
    QString shape() const
    {
        QStringList tops;
        for (int i = 0; i < view->topLevelItemCount(); ++i)
            tops << ::shape(view->topLevelItem(i));
        return tops.join(QLatin1Char(' '));
    }

    VKD_H_PluginParameter parameter;
    std::unique_ptr<GraphicalOutputTreeWidget> view;
};

// The plots of T4 have plain captions and share one identifier; g has a colon in its identifier.
const QByteArray choiceCatalogue =
    rec("@T01 T1", "@C01 C1", "@P01 a") + rec("@T01 T1", "@C01 C1", "@P02 b", "last-l") +
    rec("@T01 T1", "@C01 C1", "@P03 c", "last-l", 2) + rec("@T01 T1", "@C04 C4", "@P06 f") +
    rec("@T02 T2", "@C02 C2", "@P04 d") + rec("@T02 T2", "@C02 C2", "@X:1 g") +
    rec("@T03 T3", "@C03 C3", "@P05 e") + rec("@T04 T4", "@C05 C5", "p") + rec("@T04 T4", "@C05 C5", "q");

// Row 1 twice, so that a number names two rows; b picks its first row by default.
const QByteArray twiceCatalogue = rec("@T01 T1", "@C01 C1", "@P01 a") +
                                  rec("@T01 T1", "@C01 C1", "@P02 b", "last-l", 1) +
                                  rec("@T01 T1", "@C01 C1", "@P03 c", "last-l") +
                                  rec("@T01 T1", "@C02 C2", "@P04 d") + rec("@T02 T2", "@C03 C3", "@P05 e");
const std::vector<LoadcaseInformation> rowOneTwice = {{1, 1, "r1"}, {1, 1, "s1"}, {1, 2, "r2"}};

QString scriptText(GraphicalOutputTreeWidget& view)
{
    std::vector<QString> lines;
    const int count = view.collectScriptLines(lines, true);
    QString text;
    for (const QString& line : lines)
        text += line + QLatin1Char('\n');
    return count == int(lines.size()) ? text : QStringLiteral("count %1 for:\n").arg(count) + text;
}

} // namespace

class TestOutputTree : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        catalogueList().clear();
        catalogueLanguage = -1;
    }

    // A failed load leaves the list of an earlier one and its language, and the next load tries
    // again.
    void failure()
    {
        QTemporaryDir good;
        offer(good, twoPlots);
        QVERIFY(loadCatalogue(nullptr, 0));
        QCOMPARE(catalogueList().size(), size_t(2));
        QVERIFY(QFile::remove(good.filePath(QStringLiteral("graphicaloutput.data"))));
        if (!vkd_lib_searchpath("graphicaloutput.data", 3).empty())
            QSKIP("an installed catalogue is on the search path");
        QWidget parent;
        BoxWatcher boxes;
        QVERIFY(!loadCatalogue(&parent, 1) && !loadCatalogue(&parent, 1));
        const QString box = QStringLiteral("File not found: File graphicaloutput.data not found");
        QCOMPARE(boxes.seen, (QStringList{box, box}));
        QCOMPARE(boxes.icon, QMessageBox::Critical);
        QCOMPARE(boxes.parents, (QList<QWidget*>{&parent, &parent}));
        QCOMPARE(catalogueList().size(), size_t(2));
        QCOMPARE(catalogueLanguage, 0);
    }

    // A catalogue of comments only loads as an empty list. The file is read once per language,
    // and each new language appends to the list.
    void readsOncePerLanguage()
    {
        QTemporaryDir dir;
        BoxWatcher boxes;
        offer(dir, "// nothing but comments\n//1|0|0|a|b|c|Node|0|last|1|1| |0|G|E\n");
        QVERIFY(loadCatalogue(nullptr, 1));
        QCOMPARE(catalogueLanguage, 1);
        offer(dir, twoPlots);
        QVERIFY(loadCatalogue(nullptr, 1));
        QVERIFY(catalogueList().empty());

        for (int language : {0, 1}) {
            LanguageScope desktop(language);
            QVERIFY(loadCatalogue(nullptr, language));
        }
        QStringList captions;
        for (const GraphicalOutputRecord& r : catalogueList())
            captions << r.title3;
        QCOMPARE(captions, (QStringList{"Basis global X", "Dach", "Base global X", "Caret"}));
        QCOMPARE(catalogueLanguage, 1);
        QCOMPARE(boxes.seen, QStringList());
    }

    // The tree that a catalogue makes (data/shapes.txt).
    void shapes()
    {
        QVERIFY(matchesTranscript(QStringLiteral("shapes.txt"), [](const QString& line) {
            QByteArray catalogue;
            for (const QString& record : line.split(QLatin1Char(';'))) {
                const QStringList w = record.split(QLatin1Char(' '), Qt::SkipEmptyParts);
                catalogue += rec(w.value(0), w.value(1), w.value(2), w.value(3, "none"), w.value(4).toInt(),
                                 w.value(5).toInt(), w.value(6, "All"), w.value(7, "S"));
            }
            return Tree(catalogue).shape();
        }));
    }

    // Declared tags bring their plots in, as often as declared, and go all at once; such a rebuild
    // keeps the choice only after a selection was applied. The same rows change nothing, others
    // bring the defaults back.
    void choiceThroughRebuilds()
    {
        Tree t(rec("@T01 T", "@C01 C", "@P01 a") + rec("@T01 T", "@C01 C", "@P02 b", "last-l") +
               rec("@T01 T", "@C01 C", "@P03 q", "none", 0, 0, "Quad"));
        t.at({0, 0, 0})->setCheckState(0, Qt::Unchecked);
        t.view->additionalData(QStringLiteral("Quad"), true);
        t.view->additionalData(QStringLiteral("Quad"), true);
        QCOMPARE(t.shape(), QStringLiteral("T~(C~(a+ b-(r1- r2- r3-) q+))"));
        t.view->applySelection(t.view->selectionText());
        t.at({0, 0, 0})->setCheckState(0, Qt::Unchecked);
        t.at({0, 0, 1, 1})->setCheckState(0, Qt::Checked);
        t.view->additionalData(QStringLiteral("Quad"), false);
        const QString chosen = QStringLiteral("T~(C~(a- b~(r1- r2+ r3-)))");
        QCOMPARE(t.shape(), chosen);
        t.view->setUsedNumbersAndNames(threeRows);
        QCOMPARE(t.shape(), chosen);
        t.view->setUsedNumbersAndNames({{1, 1, "r1"}});
        QCOMPARE(t.shape(), QStringLiteral("T~(C~(a+ b-(r1-)))"));
        // Unchecked from the top, a row checked and unchecked again: all above it is unchecked. The
        // first plot is found by its identifier.
        t.at({0})->setCheckState(0, Qt::Unchecked);
        t.at({0, 0, 1, 0})->setCheckState(0, Qt::Checked);
        t.at({0, 0, 1, 0})->setCheckState(0, Qt::Unchecked);
        QCOMPARE(t.shape(), QStringLiteral("T-(C-(a- b-(r1-)))"));
        QCOMPARE(static_cast<QTreeWidgetItem*>(t.view->findItem(QStringLiteral("@T01   @C01   @P01"))),
                 t.at({0, 0, 0}));
    }

    // Depth first; unchecked items and items without a script of their own make no line; the caption
    // above a plot decides on UNIT: its first record, d, also for e. On the results page and the
    // split page.
    void scriptLines()
    {
        for (const int progname : {1, 122}) {
            Tree t(rec("T", "C", "a", "none", 0, 2, "All", "A") +
                       rec("T", "C", "b", "last-l", 0, 0, "All", "B $(LFNR)") +
                       rec("T", "C", "c", "last", 0, 0, "All", "C") +
                       rec("U", "D", "d", "last-l", 2, 0, "All", "D UNIT 1") +
                       rec("U", "D", "e", "last-l", 2, 0, "All", "E") +
                       rec("V", "E", "f", "none", 0, 0, "All", "F"),
                   progname, {{1, 3, "3 : r3"}, {1, 5, "5+3: r5"}});
            t.at({0, 0, 1, 1})->setCheckState(0, Qt::Checked); // b, row 5
            t.at({0, 0, 2})->setCheckState(0, Qt::Checked);    // c has no rows and no line
            t.at({2, 0, 0})->setCheckState(0, Qt::Unchecked);  // f
            QVERIFY(
                matchesReference(scriptText(*t.view), progname == 1 ? "treelines.txt" : "treelines-122.txt"));
        }
    }

    void scriptLinesByHand_data()
    {
        QTest::addColumn<QStringList>("checked");
        QTest::addColumn<QString>("expected");
        // Paths are plot.row below the one caption.
        QTest::newRow("a row under an unchecked plot") << QStringList{"1.1"} << "LC 2 DESI 2\nPICT B\n";
        QTest::newRow("a plot checked, one of its rows not")
            << QStringList{"0", "0.1"} << "LC 2 DESI 2\nPICT A\n";
        QTest::newRow("the plot without rows under an unchecked caption") << QStringList{"2"} << "PICT C\n";
    }

    // States set without the automatic update: a plot's or caption's own state then says nothing
    // about the items below it.
    void scriptLinesByHand()
    {
        QFETCH(QStringList, checked);
        Tree t(rec("T", "C", "a", "last-l", 0, 0, "All", "A") +
                   rec("T", "C", "b", "last-l", 0, 0, "All", "B") +
                   rec("T", "C", "c", "none", 0, 0, "All", "C"),
               1, {{1, 1, "1: r1"}, {1, 2, "2: r2"}});
        for (int plot : {0, 1, 2})
            t.at({0, 0, plot})->setCheckState(0, Qt::Unchecked);
        t.view->setAutomaticCheckStateUpdate(false);
        for (const QString& path : checked) {
            const int plot = path.section('.', 0, 0).toInt();
            QTreeWidgetItem* item =
                path.contains('.') ? t.at({0, 0, plot, path.section('.', 1).toInt()}) : t.at({0, 0, plot});
            item->setCheckState(0, Qt::Checked);
        }
        QTEST(scriptText(*t.view), "expected");
    }

    // The choice goes to text and comes back; a plot stored as checked takes new rows checked, one
    // stored by numbers takes them unchecked.
    void selectionRoundTrip()
    {
        Tree t(choiceCatalogue);
        t.at({0, 0, 1, 0})->setCheckState(0, Qt::Checked);
        t.at({0, 0, 1, 2})->setCheckState(0, Qt::Checked);
        t.at({1, 0})->setCheckState(0, Qt::Unchecked);
        t.at({2, 0, 0})->setCheckState(0, Qt::PartiallyChecked);
        QVERIFY(matchesReference(t.view->selectionText(), QStringLiteral("selection.txt")));

        t.at({2, 0, 0})->setCheckState(0, Qt::Checked);
        const QString chosen = t.shape();
        const QString text = t.view->selectionText();
        t.view->rebuild(true);
        t.view->applySelection(text);
        QCOMPARE(t.shape(), chosen);
        std::vector<LoadcaseInformation> fourRows = threeRows;
        fourRows.push_back({1, 4, "r4"});
        t.view->setUsedNumbersAndNames(fourRows);
        t.view->applySelection(text);
        QCOMPARE(shape(t.at({0, 0})), QStringLiteral("C1~(a+ b~(r1+ r2- r3+ r4-) c+(r1+ r2+ r3+ r4+))"));
    }

    // A stored choice applied to a tree of the choice catalogue (data/applyselection.txt).
    void applySelection()
    {
        QVERIFY(matchesTranscript(QStringLiteral("applyselection.txt"), [](QString text) {
            Tree t(choiceCatalogue);
            t.view->applySelection(text.replace(QLatin1Char('/'), QLatin1Char('\n')));
            return t.shape();
        }));
    }

    void choiceOnRowsOfOneNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shape");
        const QString rest = QStringLiteral(" C2-(d-)) T2-(C3-(e-))");
        QTest::newRow("of two rows of a number the last counts")
            << "Partially:@T01   @C01   @P02 : 1,\n"
            << "T1~(C1~(a- b~(r1- s1+ r2-) c-(r1- s1- r2-))" + rest;
        QTest::newRow("a later line clears what an earlier one checked")
            << "Partially:@T01   @C01   @P02 : 1,2,\nUnchecked:@T01\nPartially:@T01   @C01   @P03 : 2,\n"
            << "T1~(C1~(a- b-(r1- s1- r2-) c~(r1- s1- r2+))" + rest;
        QTest::newRow("a caption by numbers takes its last plot of number 0 with all rows")
            << "Partially:@T01   @C01 : 0,\n"
            << "T1~(C1~(a- b-(r1- s1- r2-) c+(r1+ s1+ r2+))" + rest;
    }

    // The same choice whether applied in the view or carried through a rebuild before the items
    // enter it, which starts again from the defaults (b's first row).
    void choiceOnRowsOfOneNumber()
    {
        QFETCH(QString, text);
        QFETCH(QString, shape);
        Tree t(twiceCatalogue, 1, rowOneTwice);
        t.view->applySelection(text);
        QCOMPARE(t.shape(), shape);
        t.view->rebuild(false);
        QCOMPARE(t.shape(), shape);
    }

    // Rows show LF on a German desktop and LC on any other.
    void rowIcons()
    {
        for (int language : {0, 1}) {
            LanguageScope scope(language);
            Tree t(rec("T", "C", "a", "last-l"));
            const QImage letters(
                QStringLiteral(TEST_DATA_DIR "/row-%1.png").arg(language == 0 ? "de" : "en"));
            QCOMPARE(
                t.at({0, 0, 0, 0})->icon(0).pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32),
                letters.convertToFormat(QImage::Format_ARGB32));
        }
    }
};

QTEST_MAIN(TestOutputTree)
#include "tst_outputtree.moc"

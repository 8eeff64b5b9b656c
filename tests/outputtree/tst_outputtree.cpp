#include "GraphicalOutputTreeWidget.h"
#include "catalogue.h"
#include "outputtreeicons.h"
#include "testsupport.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_QT_Menu.h>

#include <QApplication>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// A catalogue line offered on page 1 whatever the model holds. Captions "@Xnn text" keep their
// text and give the identifier @Xnn; a script "EMPTY" stands for none.
QByteArray rec(const char* title1, const char* title2, const char* title3, const char* cases = "none",
               int preselect = 0, int view = 0, const char* tag = "All", const char* script = "S")
{
    return QStringLiteral("1|122|0|%1|%2|%3|%4|0|%5|%6|%7| |0|BILD %8|PICT %8\n")
        .arg(QLatin1String(title1), QLatin1String(title2), QLatin1String(title3), QLatin1String(tag),
             QLatin1String(cases), QString::number(preselect), QString::number(view), QLatin1String(script))
        .toUtf8();
}

// The tree's list as the next tree will find it, loaded for the desktop's language.
void installCatalogue(const QByteArray& text)
{
    std::vector<GraphicalOutputRecord> records = parseText(text);
    for (GraphicalOutputRecord& r : records)
        if (r.scriptEnglish == QLatin1String("PICT EMPTY"))
            r.scriptGerman = r.scriptEnglish = QString();
    catalogueList() = records;
    catalogueLanguage = vkd_lib_getvalue(102);
}

std::vector<LoadcaseInformation> threeRows()
{
    return {{1, 1, "r1"}, {1, 2, "r2"}, {1, 3, "r3"}, {2, 11, "e1"}};
}

// The tree in one line: each item's text, its state (+ checked, ~ partially, - unchecked, nothing
// without a check box) and its children in brackets.
QString shape(QTreeWidgetItem* item)
{
    QString out = item->text(0);
    if (item->data(0, Qt::CheckStateRole).isValid())
        out += QLatin1String("-~+").at(item->checkState(0));
    if (item->childCount() > 0) {
        QStringList children;
        for (int i = 0; i < item->childCount(); ++i)
            children << shape(item->child(i));
        out += QLatin1Char('(') + children.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return out;
}

QString shape(const QTreeWidget& tree)
{
    QStringList tops;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        tops << shape(tree.topLevelItem(i));
    return tops.join(QLatin1Char(' '));
}

QTreeWidgetItem* itemAt(const QTreeWidget& tree, std::initializer_list<int> path)
{
    QTreeWidgetItem* item = nullptr;
    for (int i : path)
        item = item ? item->child(i) : tree.topLevelItem(i);
    return item;
}

// Four top levels; the plots of T4 have plain captions and so share one identifier, the plot
// g has a colon in its identifier.
const QByteArray choiceCatalogue = rec("@T01 T1", "@C01 C1", "@P01 a") + rec("@T01 T1", "@C01 C1", "@P02 b", "last-l") +
                                   rec("@T01 T1", "@C01 C1", "@P03 c", "last-l", 2) +
                                   rec("@T01 T1", "@C04 C4", "@P06 f") + rec("@T02 T2", "@C02 C2", "@P04 d") +
                                   rec("@T02 T2", "@C02 C2", "@X:1 g") + rec("@T03 T3", "@C03 C3", "@P05 e") +
                                   rec("@T04 T4", "@C05 C5", "p") + rec("@T04 T4", "@C05 C5", "q");

const char* const choiceDefaults = "T1~(C1~(a+ b-(r1- r2- r3-) c+(r1+ r2+ r3+)) C4+(f+)) T2+(C2+(d+ g+)) "
                                   "T3+(C3+(e+)) T4+(C5+(p+ q+))";

} // namespace

class TestOutputTree : public QObject
{
    Q_OBJECT
private slots:
    void shapes_data();
    void shapes();
    void contentDeclaredPresent();
    void choiceThroughRebuilds();
    void scriptLines_data();
    void scriptLines();
    void nothingToCollect();
    void selectionRoundTrip();
    void applySelection_data();
    void applySelection();
    void menuEntries_data();
    void menuEntries();
    void expandAndClose();
    void contextMenuShows();
    void icons();
    void dump();
    void germanTexts();
};

void TestOutputTree::shapes_data()
{
    QTest::addColumn<QByteArray>("catalogue");
    QTest::addColumn<QString>("shape");
    QTest::newRow("shared captions") << rec("T", "C", "a") + rec("T", "C", "b") << "T+(C+(a+ b+))";
    QTest::newRow("same three captions make two plots") << rec("T", "C", "a") + rec("T", "C", "a") << "T+(C+(a+ a+))";
    QTest::newRow("plot with its parent's caption takes later records")
        << rec("T", "C", "C", "last-l") + rec("T", "C", "b", "last-l", 1)
        << "T~(C~(C~(r1+ r2- r3- r1- r2- r3-)))";
    QTest::newRow("captions in order of first appearance")
        << rec("T", "C", "a") + rec("U", "D", "b") + rec("T", "E", "c") + rec("T", "C", "d")
        << "T+(C+(a+ d+) E+(c+)) U+(D+(b+))";
    QTest::newRow("first row by default") << rec("T", "C", "a", "last-l", 1) << "T~(C~(a~(r1+ r2- r3-)))";
    QTest::newRow("all rows by default, 2") << rec("T", "C", "a", "last-l", 2) << "T+(C+(a+(r1+ r2+ r3+)))";
    QTest::newRow("all rows by default, 3") << rec("T", "C", "a", "last-l", 3) << "T+(C+(a+(r1+ r2+ r3+)))";
    QTest::newRow("no row by default") << rec("T", "C", "a", "last-l", 0) << "T-(C-(a-(r1- r2- r3-)))";
    QTest::newRow("combinations take the load case rows") << rec("T", "C", "a", "supp-c") << "T-(C-(a-(r1- r2- r3-)))";
    QTest::newRow("design cases take the rows of kind 2") << rec("T", "C", "a", "desi-e", 2) << "T+(C+(a+(e1+)))";
    QTest::newRow("a word without suffix takes no row") << rec("T", "C", "a", "last", 2) << "T-(C-(a-))";
    QTest::newRow("plot without cases beside one with rows")
        << rec("T", "C", "a") + rec("T", "C", "b", "last-l") << "T~(C~(a+ b-(r1- r2- r3-)))";
    QTest::newRow("plot without script goes") << rec("T", "C", "a", "none", 0, 0, "All", "EMPTY") << "T-(C-)";
    QTest::newRow("records of other pages") << QByteArray("2|0|0|T|C|a|All|0|none|0|0| |0|BILD|PICT\n")
                                            << "No Entries in database!";
}

void TestOutputTree::shapes()
{
    QFETCH(QByteArray, catalogue);
    QFETCH(QString, shape);
    installCatalogue(catalogue);
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(threeRows());
    QCOMPARE(::shape(tree), shape);
}

// Tags that the page declares present bring their plots in, as often as declared, and all
// declarations go at once.
void TestOutputTree::contentDeclaredPresent()
{
    installCatalogue(rec("T", "C", "a", "none", 0, 0, "Quad") + rec("T", "C", "b"));
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    QCOMPARE(shape(tree), QStringLiteral("T+(C+(b+))"));
    tree.additionalData(QStringLiteral("Quad"), true);
    tree.additionalData(QStringLiteral("Quad"), true);
    QCOMPARE(shape(tree), QStringLiteral("T+(C+(a+ b+))"));
    tree.additionalData(QStringLiteral("Quad"), false);
    QCOMPARE(shape(tree), QStringLiteral("T+(C+(b+))"));
}

// A rebuild for a declared tag keeps the choice only once a selection was applied; new rows bring
// the defaults back, the same rows leave the choice alone.
void TestOutputTree::choiceThroughRebuilds()
{
    installCatalogue(rec("T", "C", "a") + rec("T", "C", "b", "last-l"));
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(threeRows());
    QTreeWidgetItem* a = itemAt(tree, {0, 0, 0});
    a->setCheckState(0, Qt::Unchecked);
    tree.additionalData(QStringLiteral("Foo"), true);
    QCOMPARE(shape(tree), QStringLiteral("T~(C~(a+ b-(r1- r2- r3-)))"));

    tree.applySelection(tree.selectionText());
    itemAt(tree, {0, 0, 0})->setCheckState(0, Qt::Unchecked);
    itemAt(tree, {0, 0, 1, 1})->setCheckState(0, Qt::Checked);
    const QString chosen = QStringLiteral("T~(C~(a- b~(r1- r2+ r3-)))");
    tree.additionalData(QStringLiteral("Foo"), false);
    QCOMPARE(shape(tree), chosen);
    tree.setUsedNumbersAndNames(threeRows());
    QCOMPARE(shape(tree), chosen);
    tree.setUsedNumbersAndNames({{1, 1, "r1"}, {1, 2, "r2"}});
    QCOMPARE(shape(tree), QStringLiteral("T~(C~(a+ b-(r1- r2-)))"));
}

void TestOutputTree::scriptLines_data()
{
    QTest::addColumn<int>("progname");
    QTest::addColumn<QString>("reference");
    QTest::newRow("results page") << 1 << "treelines.txt";
    QTest::newRow("split page") << 122 << "treelines-122.txt";
}

// The walk: depth first, unchecked items and items without a script of their own skipped, the
// caption above the plot asked for UNIT.
void TestOutputTree::scriptLines()
{
    QFETCH(int, progname);
    QFETCH(QString, reference);
    installCatalogue(rec("T", "C", "a", "none", 0, 2, "All", "A") + rec("T", "C", "b", "last-l", 0, 0, "All", "B $(LFNR)") +
                     rec("T", "C", "c", "last", 0, 0, "All", "C") +
                     rec("U", "D", "d", "last-l", 2, 0, "All", "D UNIT 1") +
                     rec("U", "D", "e", "last-l", 1, 0, "All", "E") + rec("V", "E", "f", "none", 0, 0, "All", "F"));
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, progname, &parameter, "m_list");
    tree.setUsedNumbersAndNames({{1, 3, "3 : r3"}, {1, 5, "5+3: r5"}});
    itemAt(tree, {0, 0, 1, 1})->setCheckState(0, Qt::Checked); // b, row 5
    itemAt(tree, {0, 0, 2})->setCheckState(0, Qt::Checked);    // c has no rows and no line
    itemAt(tree, {2, 0, 0})->setCheckState(0, Qt::Unchecked);  // f
    std::vector<QString> lines{QStringLiteral("stale")};
    const int n = tree.collectScriptLines(lines, true);
    QCOMPARE(n, int(lines.size()));
    QString text;
    for (const QString& line : lines)
        text += line + QLatin1Char('\n');
    QVERIFY(matchesReference(text, reference));
}

void TestOutputTree::nothingToCollect()
{
    installCatalogue(QByteArray());
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    std::vector<QString> lines{QStringLiteral("stale")};
    QCOMPARE(tree.collectScriptLines(lines, false), 0);
    QVERIFY(lines.empty());
    QCOMPARE(tree.selectionText(), QStringLiteral("\n"));
    tree.clear();
    QCOMPARE(tree.collectScriptLines(lines, true), 0);
}

// The choice goes to text and comes back; a plot stored as checked takes new rows checked, one
// stored by numbers takes them unchecked.
void TestOutputTree::selectionRoundTrip()
{
    installCatalogue(choiceCatalogue);
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(threeRows());
    itemAt(tree, {0, 0, 1, 0})->setCheckState(0, Qt::Checked);
    itemAt(tree, {0, 0, 1, 2})->setCheckState(0, Qt::Checked);
    itemAt(tree, {1, 0, 0})->setCheckState(0, Qt::Unchecked);
    itemAt(tree, {1, 0, 1})->setCheckState(0, Qt::Unchecked);
    itemAt(tree, {2, 0, 0})->setCheckState(0, Qt::PartiallyChecked);
    QVERIFY(matchesReference(tree.selectionText(), QStringLiteral("selection.txt")));

    itemAt(tree, {2, 0, 0})->setCheckState(0, Qt::Checked);
    const QString chosen = shape(tree);
    const QString text = tree.selectionText();
    tree.rebuild(true);
    tree.applySelection(text);
    QCOMPARE(shape(tree), chosen);

    std::vector<LoadcaseInformation> fourRows = threeRows();
    fourRows.push_back({1, 4, "r4"});
    tree.setUsedNumbersAndNames(fourRows);
    tree.applySelection(text);
    QCOMPARE(shape(itemAt(tree, {0, 0})), QStringLiteral("C1~(a+ b~(r1+ r2- r3+ r4-) c+(r1+ r2+ r3+ r4+))"));
}

void TestOutputTree::applySelection_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shape");
    const QString none = "T1-(C1-(a- b-(r1- r2- r3-) c-(r1- r2- r3-)) C4-(f-)) T2-(C2-(d- g-)) T3-(C3-(e-)) T4-(C5-(p- q-))";
    QTest::newRow("empty text keeps the choice") << "\n\n" << choiceDefaults;
    QTest::newRow("a word alone still clears the choice") << "Checked\n" << none;
    QTest::newRow("unknown identifier") << "Checked:@T09\n" << none;
    QTest::newRow("unknown word") << "Selected:@T01\n" << none;
    QTest::newRow("identifier with a colon is lost") << "Checked:@T02   @C02   @X:1\n" << none;
    QTest::newRow("top level carries down")
        << "Checked:@T02\n" << "T1-(C1-(a- b-(r1- r2- r3-) c-(r1- r2- r3-)) C4-(f-)) T2+(C2+(d+ g+)) T3-(C3-(e-)) T4-(C5-(p- q-))";
    QTest::newRow("plot, then one of its captions unchecked")
        << "Checked:@T01\nUnchecked:@T01   @C04\n"
        << "T1~(C1+(a+ b+(r1+ r2+ r3+) c+(r1+ r2+ r3+)) C4-(f-)) T2-(C2-(d- g-)) T3-(C3-(e-)) T4-(C5-(p- q-))";
    QTest::newRow("rows by number, one unknown")
        << "Partially:@T01   @C01   @P02 : 3,7,\n"
        << "T1~(C1~(a- b~(r1- r2- r3+) c-(r1- r2- r3-)) C4-(f-)) T2-(C2-(d- g-)) T3-(C3-(e-)) T4-(C5-(p- q-))";
    QTest::newRow("only numbers no row has") << "Partially:@T01   @C01   @P02 : 7,\n" << none;
    QTest::newRow("plain captions find the last plot")
        << "Checked:@T04   @C05    003\n"
        << "T1-(C1-(a- b-(r1- r2- r3-) c-(r1- r2- r3-)) C4-(f-)) T2-(C2-(d- g-)) T3-(C3-(e-)) T4~(C5~(p- q+))";
}

void TestOutputTree::applySelection()
{
    QFETCH(QString, text);
    QFETCH(QString, shape);
    installCatalogue(choiceCatalogue);
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(threeRows());
    QCOMPARE(::shape(tree), QString::fromLatin1(choiceDefaults));
    tree.applySelection(text);
    QCOMPARE(::shape(tree), shape);
}

void TestOutputTree::menuEntries_data()
{
    QTest::addColumn<bool>("withCloseAll");
    QTest::addColumn<QString>("entries");
    QTest::newRow("the tree's menu") << false
                                     << "Expand all|Collapse all|Expand plots|-|Expand loadcases|-|Close loadcases";
    QTest::newRow("with the closing entry")
        << true << "Expand all|Collapse all|Expand plots|-|Expand loadcases|-|Close loadcases|-|Close all entries";
}

void TestOutputTree::menuEntries()
{
    QFETCH(bool, withCloseAll);
    QFETCH(QString, entries);
    installCatalogue(rec("T", "C", "a"));
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    PopupHandler other;
    if (withCloseAll)
        other.createMenu(&tree, true);
    const VKD_QT_Menu* menu = withCloseAll ? other.menu() : tree.popupHandler().menu();
    QVERIFY(menu);
    QStringList texts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
    QCOMPARE(texts.join(QLatin1Char('|')), entries);
    QCOMPARE(tree.contextMenuPolicy(), Qt::CustomContextMenu);
}

// The menu opens and closes levels and leaves the choice alone.
void TestOutputTree::expandAndClose()
{
    installCatalogue(rec("T", "C", "a", "last-l", 1));
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(threeRows());
    const QString chosen = shape(tree);
    QTreeWidgetItem* top = itemAt(tree, {0});
    QTreeWidgetItem* caption = itemAt(tree, {0, 0});
    QTreeWidgetItem* plot = itemAt(tree, {0, 0, 0});
    auto expanded = [&] {
        return QString::number(top->isExpanded()) + QString::number(caption->isExpanded()) +
               QString::number(plot->isExpanded());
    };
    auto trigger = [&tree](const char* name) {
        auto* action = tree.popupHandler().menu()->findChild<QAction*>(QLatin1String(name));
        QVERIFY2(action, name);
        action->trigger();
    };
    QCOMPARE(expanded(), QStringLiteral("110"));
    trigger("Expand loadcases");
    QCOMPARE(expanded(), QStringLiteral("111"));
    trigger("Close loadcases");
    QCOMPARE(expanded(), QStringLiteral("110"));
    trigger("Collapse all");
    QCOMPARE(expanded(), QStringLiteral("000"));
    trigger("Expand plots");
    QCOMPARE(expanded(), QStringLiteral("110"));
    QCOMPARE(shape(tree), chosen);
}

void TestOutputTree::contextMenuShows()
{
    installCatalogue(rec("T", "C", "a"));
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.show();
    QWidget* shown = nullptr;
    QTimer::singleShot(0, [&shown] {
        shown = QApplication::activePopupWidget();
        if (shown)
            shown->close();
    });
    emit tree.customContextMenuRequested(QPoint(5, 5));
    QCOMPARE(shown, static_cast<QWidget*>(tree.popupHandler().menu()));
}

// Rows show LF on a German desktop and LC on any other; plots their card.
void TestOutputTree::icons()
{
    QCOMPARE(plotIcon().availableSizes(), QList<QSize>{QSize(16, 15)});
    QCOMPARE(closeIcon().availableSizes(), QList<QSize>{QSize(16, 16)});
    const QImage german = rowIcon(0).pixmap(16, 16).toImage();
    const QImage english = rowIcon(1).pixmap(16, 16).toImage();
    QVERIFY(german != english);
    for (int language : {0, 1}) {
        LanguageScope scope(language);
        installCatalogue(rec("T", "C", "a", "last-l") + rec("T", "C", "b"));
        VKD_H_PluginParameter parameter;
        GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
        tree.setUsedNumbersAndNames(threeRows());
        QCOMPARE(itemAt(tree, {0, 0, 0, 0})->icon(0).pixmap(16, 16).toImage(), language == 0 ? german : english);
        for (int plot : {0, 1})
            QCOMPARE(itemAt(tree, {0, 0, plot})->icon(0).pixmap(16, 15).toImage(),
                     plotIcon().pixmap(16, 15).toImage());
    }
}

void TestOutputTree::dump()
{
    installCatalogue(rec("@T01 T", "C", "a", "last-l") + rec("@T01 T", "C", "b"));
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    tree.setUsedNumbersAndNames(threeRows());
    QVERIFY(matchesReference(tree.dumpText(), QStringLiteral("dump.txt")));
}

void TestOutputTree::germanTexts()
{
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(TRANSLATIONS)));
    QCoreApplication::installTranslator(&translator);
    installCatalogue(QByteArray());
    VKD_H_PluginParameter parameter;
    GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(shape(tree), QStringLiteral("Keine Einträge in der Datenbank!"));
    QStringList texts;
    const QList<QAction*> actions = tree.popupHandler().menu()->actions();
    for (const QAction* action : actions)
        if (!action->isSeparator())
            texts << action->text();
    QCOMPARE(texts.mid(2), (QStringList{"Bilder aufklappen", "Lastfälle aufklappen", "Lastfälle zuklappen"}));
}

QTEST_MAIN(TestOutputTree)
#include "tst_outputtree.moc"

#include "GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"
#include "catalogue.h"
#include "demomodel.h"
#include "pagespliticons.h"
#include "testsupport.h"

#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_TableWidget.h>
#include <VKD_H_TwSimpleItems.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_CheckBox.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <vkd_dbo.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <memory>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// A catalogue line of the standard and split pages: captions, content tag, load case binding,
// preselection; the script "BILD x" / "PICT x".
QByteArray rec(const char* title3, const char* tag = "All", const char* cases = "none", int preselect = 0)
{
    return QStringLiteral("1|122|0|T|C|%1|%2|0|%3|%4|3| |0|BILD %1|PICT %1\n")
        .arg(QLatin1String(title3), QLatin1String(tag), QLatin1String(cases), QString::number(preselect))
        .toUtf8();
}

void useCatalogue(const QByteArray& text)
{
    catalogueList() = parseText(text);
    catalogueLanguage = vkd_lib_getvalue(102);
}

enum class Model
{
    None,
    Quads,
    Brics,
    Demo
};

// A project in a temporary folder, empty or with a model.
struct Project
{
    explicit Project(Model model = Model::None)
        : doc(std::make_unique<VKD_H_ZOBDoc>(dir.filePath(QStringLiteral("demo.vkd")))), parameter(doc.get())
    {
        const vkd::dbo::ElementRecord element{1, 1, {1, 2, 3, 4}};
        if (model == Model::Quads)
            vkd::dbo::writeAll<vkd::dbo::ElementRecord>(doc->index(), vkd::dbo::KeyQuads, {element});
        if (model == Model::Brics)
            vkd::dbo::writeAll<vkd::dbo::ElementRecord>(doc->index(), vkd::dbo::KeyBricks, {element});
        if (model == Model::Demo)
            writeDemoModel(doc->index());
    }
    QTemporaryDir dir;
    std::unique_ptr<VKD_H_ZOBDoc> doc;
    VKD_H_PluginParameter parameter;
};

template <typename T> T* child(QWidget& page, const char* name)
{
    return page.findChild<T*>(QString::fromLatin1(name));
}

GraphicalOutputTreeWidget* treeOf(QWidget& page)
{
    return child<GraphicalOutputTreeWidget>(page, "m_list");
}

// "row+ row-": the rows of the first plot with their check states.
QString rowStates(QWidget& page)
{
    QTreeWidgetItem* plot = treeOf(page)->topLevelItem(0)->child(0)->child(0);
    QStringList out;
    for (int i = 0; i < plot->childCount(); ++i)
        out << plot->child(i)->text(0) +
                   QLatin1Char(plot->child(i)->checkState(0) == Qt::Checked ? '+' : '-');
    return out.join(QLatin1Char(' '));
}

// "number=label;...": the rows under the first plot as the tree holds them.
QString rowRecords(QWidget& page)
{
    QTreeWidgetItem* plot = treeOf(page)->topLevelItem(0)->child(0)->child(0);
    QStringList out;
    for (int i = 0; i < plot->childCount(); ++i) {
        auto* row = static_cast<GraphicalOutputTreeWidgetItem*>(plot->child(i));
        out << QStringLiteral("%1=%2").arg(row->number).arg(row->text(0));
    }
    return out.join(QLatin1Char(';'));
}

QString position(QWidget* widget)
{
    auto* grid = qobject_cast<QGridLayout*>(widget->parentWidget()->layout());
    const int index = grid ? grid->indexOf(widget) : -1;
    if (index < 0)
        return QStringLiteral("outside a grid");
    int row, column, rows, columns;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    return QStringLiteral("in \"%1\" at %2,%3 span %4x%5")
        .arg(widget->parentWidget()->objectName())
        .arg(row)
        .arg(column)
        .arg(rows)
        .arg(columns);
}

QString state(QWidget* w)
{
    return w->isEnabled() ? QString() : QStringLiteral(" greyed");
}

// The widgets of a page as a user meets them: names, texts, tooltips, choices and places.
QString describe(QWidget& page)
{
    QString out = QStringLiteral("page \"%1\"\n").arg(page.objectName());
    auto* box = child<QGroupBox>(page, "Standard box");
    out += QStringLiteral("box \"%1\" %2\n").arg(box->title(), position(box));
    for (const char* name :
         {"ScaleGroup", "FormatGroup", "BLATTTEILUNG", "PicturesGroup", "PerspectiveGroup"}) {
        auto* group = child<QGroupBox>(page, name);
        if (!group) {
            out += QStringLiteral("%1: none\n").arg(QLatin1String(name));
            continue;
        }
        out += QStringLiteral("%1 \"%2\" %3\n").arg(QLatin1String(name), group->title(), position(group));
        if (auto* radio = qobject_cast<VKD_QT_RadioButtonGroup*>(group))
            for (int i = 0; radio->getRadioButton(i); ++i) {
                QRadioButton* b = radio->getRadioButton(i);
                auto* grid = static_cast<QGridLayout*>(radio->layout());
                int row = -1, column = -1, rows, columns;
                for (int k = 0; k < grid->count(); ++k) {
                    QLayoutItem* item = grid->itemAt(k);
                    if (item->widget() == b || (item->layout() && item->layout()->indexOf(b) >= 0))
                        grid->getItemPosition(k, &row, &column, &rows, &columns);
                }
                out += QStringLiteral("  %1 \"%2\" at %3,%4%5%6\n")
                           .arg(i)
                           .arg(b->text())
                           .arg(row)
                           .arg(column)
                           .arg(b->isChecked() ? QStringLiteral(" checked") : QString(), state(b));
            }
    }
    auto* scale = child<VKD_QT4_ComboBox>(page, "box_scale");
    out += QStringLiteral("box_scale in \"%1\"%2, row %3 of")
               .arg(scale->parentWidget()->objectName(), state(scale))
               .arg(scale->currentIndex());
    for (int i = 0; i < scale->count(); ++i)
        out += QStringLiteral(" \"%1\"").arg(scale->itemText(i));
    out += QLatin1Char('\n');
    if (auto* split = child<VKD_QT4_ComboBox>(page, "COMBO_PAGESPLITTING")) {
        out += QStringLiteral("COMBO_PAGESPLITTING minimum height %1, ids").arg(split->minimumHeight());
        for (int i = 0; i < split->count(); ++i)
            out += QStringLiteral(" %1\"%2\"").arg(split->idAt(i)).arg(split->itemText(i));
        out += QLatin1Char('\n');
    }
    auto* font = child<VKD_H_BoxedLineEdit>(page, "m_boxedEdit");
    out += QStringLiteral("m_boxedEdit \"%1\" tip \"%2\" text \"%3\" %4\n")
               .arg(font->findChild<QLabel*>()->text(), font->findChild<QLabel*>()->toolTip(),
                    font->getText(), position(font));
    if (auto* fill = child<VKD_QT_CheckBox>(page, "Check: Filled Isolines"))
        out += QStringLiteral("fill \"%1\" tip \"%2\"%3 %4\n")
                   .arg(fill->text(), fill->toolTip(), state(fill), position(fill));
    else
        out += QStringLiteral("fill: none\n");
    auto* button = child<QPushButton>(page, "Button: Default settings");
    out += QStringLiteral("button \"%1\" tip \"%2\" %3\n")
               .arg(button->text(), button->toolTip(), position(button));
    auto* tree = treeOf(page);
    out +=
        QStringLiteral("tree \"%1\" in \"%2\"\n").arg(tree->objectName(), tree->parentWidget()->objectName());
    return out;
}

const QByteArray smallCatalogue = rec("a", "All", "last-l", 1) + rec("b") + rec("iso", "Quad");

} // namespace

Q_DECLARE_METATYPE(Model)

class TestOutputPage : public QObject
{
    Q_OBJECT
private slots:
    void init() { useCatalogue(smallCatalogue); }
    void widgets_data();
    void widgets();
    void isoAreas_data();
    void isoAreas();
    void formatCouplesPictures();
    void defaultSettings();
    void splitVariant();
    void pageSplitIcons_data();
    void pageSplitIcons();
    void settingsReachScript_data();
    void settingsReachScript();
    void emptySelection();
    void tableRows_data();
    void tableRows();
    void tableChanges();
    void additionalTag();
    void demoProject();
};

void TestOutputPage::widgets_data()
{
    QTest::addColumn<int>("progname");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("reference");
    QTest::newRow("standard, English") << 1 << 1 << "page-standard-en.txt";
    QTest::newRow("standard, German") << 1 << 0 << "page-standard-de.txt";
    QTest::newRow("split, English") << 122 << 1 << "page-split-en.txt";
    QTest::newRow("split, German") << 122 << 0 << "page-split-de.txt";
    QTest::newRow("prefix, as standard") << 222 << 1 << "page-standard-en.txt";
}

void TestOutputPage::widgets()
{
    QFETCH(int, progname);
    QFETCH(int, language);
    QFETCH(QString, reference);
    LanguageScope scope(language);
    useCatalogue(smallCatalogue);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(TRANSLATIONS)));
    if (language == 0)
        QCoreApplication::installTranslator(&translator);
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, static_cast<VKD_P_WidgetGraphicalOutput_Progname>(progname),
                                     &project.parameter, nullptr);
    QCoreApplication::removeTranslator(&translator);
    QVERIFY(matchesReference(describe(page), reference));
    QVERIFY(page.checkVals());
}

void TestOutputPage::isoAreas_data()
{
    QTest::addColumn<Model>("model");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("neither quads nor brics") << Model::None << false;
    QTest::newRow("quads") << Model::Quads << true;
    QTest::newRow("brics only") << Model::Brics << true;
}

void TestOutputPage::isoAreas()
{
    QFETCH(Model, model);
    QFETCH(bool, enabled);
    Project project(model);
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    QCOMPARE(child<VKD_QT_CheckBox>(page, "Check: Filled Isolines")->isEnabled(), enabled);
}

// Landscape takes one picture and greys the choice; portrait gives it back with two.
void TestOutputPage::formatCouplesPictures()
{
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    auto* format = child<VKD_QT_RadioButtonGroup>(page, "FormatGroup");
    auto* pictures = child<VKD_QT_RadioButtonGroup>(page, "PicturesGroup");
    QCOMPARE(pictures->selectedButton(), 1);
    format->getRadioButton(1)->click();
    QVERIFY(!pictures->isEnabled());
    QCOMPARE(pictures->selectedButton(), 0);
    QCOMPARE(page.getTORVAL_SIZE(true), QStringLiteral("SIZE URS SC 0 MARG NO FORM STAN"));
    format->getRadioButton(0)->click();
    QVERIFY(pictures->isEnabled());
    QCOMPARE(pictures->selectedButton(), 1);
    pictures->getRadioButton(0)->click();
    format->getRadioButton(0)->click();
    QCOMPARE(pictures->selectedButton(), 1);
}

// The defaults come back everywhere but in the scale list, and the tree takes its default choice.
void TestOutputPage::defaultSettings()
{
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    page.setUsedNumbersAndNames({{1, 1, "r1"}, {1, 2, "r2"}});
    auto* scaleGroup = child<VKD_QT_RadioButtonGroup>(page, "ScaleGroup");
    auto* scale = child<VKD_QT4_ComboBox>(page, "box_scale");
    auto* view = child<VKD_QT_RadioButtonGroup>(page, "PerspectiveGroup");
    auto* fill = child<VKD_QT_CheckBox>(page, "Check: Filled Isolines");
    auto* font = child<VKD_H_BoxedLineEdit>(page, "m_boxedEdit");
    QCOMPARE(view->selectedButton(), -1);
    QVERIFY(!scale->isEnabled());
    scaleGroup->getRadioButton(0)->click();
    QVERIFY(scale->isEnabled());
    scale->setCurrentIndex(scale->findText(QStringLiteral("1:100"), Qt::MatchExactly));
    child<VKD_QT_RadioButtonGroup>(page, "FormatGroup")->getRadioButton(1)->click();
    fill->setChecked(true);
    font->setText(QStringLiteral("4"));
    view->setButton(0);
    QTreeWidgetItem* plot = treeOf(page)->topLevelItem(0)->child(0)->child(0);
    plot->child(1)->setCheckState(0, Qt::Checked);
    QCOMPARE(rowStates(page), QStringLiteral("r1+ r2+"));

    child<QPushButton>(page, "Button: Default settings")->click();
    QCOMPARE(scale->currentText(), QStringLiteral("1:100"));
    QCOMPARE(scaleGroup->selectedButton(), 1);
    QCOMPARE(child<VKD_QT_RadioButtonGroup>(page, "FormatGroup")->selectedButton(), 0);
    QCOMPARE(child<VKD_QT_RadioButtonGroup>(page, "PicturesGroup")->selectedButton(), 1);
    QVERIFY(child<VKD_QT_RadioButtonGroup>(page, "PicturesGroup")->isEnabled());
    QVERIFY(!fill->isChecked());
    QCOMPARE(font->getText(), QStringLiteral("2"));
    QCOMPARE(view->selectedButton(), 3);
    QCOMPARE(rowStates(page), QStringLiteral("r1+ r2-"));
}

// The split page passes over the widgets it lacks, keeps its sheet division through the
// defaults, and its script is the pair of SIZE statements with or without plots.
void TestOutputPage::splitVariant()
{
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputSplit, &project.parameter, nullptr);
    auto* split = child<VKD_QT4_ComboBox>(page, "COMBO_PAGESPLITTING");
    auto* scale = child<VKD_QT4_ComboBox>(page, "box_scale");
    split->setCurrentIndex(1);
    child<VKD_QT_RadioButtonGroup>(page, "ScaleGroup")->getRadioButton(0)->click();
    scale->setCurrentIndex(scale->findText(QStringLiteral("1:100")));
    const QString german =
        QStringLiteral("SIZE DINA \"-URS\" M 100 TEIL 2X1|SIZE DINA \"-URS\" $(XYZ) TEIL 2X1");
    QCOMPARE(page.getTORVAL(false), german);
    QCOMPARE(page.getTORVAL(QStringLiteral("+ADD"), true),
             QStringLiteral("SIZE TYPE \"-URS\" SC 100 SPLI 2X1|SIZE TYPE \"-URS\" $(XYZ) SPLI 2X1+ADD\n"));
    QCOMPARE(page.getTORVAL_SCHR(true), QStringLiteral("0.2"));
    QCOMPARE(page.getTORVAL_SIZE(true), QStringLiteral("SIZE URS SC 100*1.e+10 MARG NO FORM STAN"));
    for (int i = 0; i < treeOf(page)->topLevelItemCount(); ++i)
        treeOf(page)->topLevelItem(i)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(page.getTORVAL(false), german);

    QVERIFY(QMetaObject::invokeMethod(&page, "slotQuerFormat"));
    page.slotDefaultSettings();
    QCOMPARE(split->currentIndex(), 1);
    QCOMPARE(scale->currentText(), QStringLiteral("1:100"));
    QCOMPARE(page.getTORVAL(false),
             QStringLiteral("SIZE DINA \"-URS\" M 0 TEIL 2X1|SIZE DINA \"-URS\" $(XYZ) TEIL 2X1"));
    QVERIFY(treeOf(page)->minimumWidth() > 0);
}

void TestOutputPage::pageSplitIcons_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QRect>("sheet");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QList<int>>("columns");
    const QRect portrait(QPoint(5, 3), QPoint(25, 29));
    const QRect landscape(QPoint(2, 6), QPoint(28, 26));
    QTest::newRow("0 portrait, one picture") << 0 << portrait << QList<int>{} << QList<int>{};
    QTest::newRow("1 portrait, two rows") << 1 << portrait << QList<int>{16} << QList<int>{};
    QTest::newRow("2 portrait, two by two") << 2 << portrait << QList<int>{16} << QList<int>{15};
    QTest::newRow("3 portrait, three rows, two columns")
        << 3 << portrait << QList<int>{12, 20} << QList<int>{15};
    QTest::newRow("4 landscape, one picture") << 4 << landscape << QList<int>{} << QList<int>{};
    QTest::newRow("5 landscape, two by two") << 5 << landscape << QList<int>{16} << QList<int>{15};
}

// Every pixel: blue on the outline and division lines, dark blue on the shadow above and right,
// white elsewhere.
void TestOutputPage::pageSplitIcons()
{
    QFETCH(int, id);
    QFETCH(QRect, sheet);
    QFETCH(QList<int>, rows);
    QFETCH(QList<int>, columns);
    const QImage icon = pageSplitIcon(id);
    QCOMPARE(icon.size(), QSize(32, 32));
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            const bool inside = sheet.contains(x, y);
            const bool line = inside && (x == sheet.left() || x == sheet.right() || y == sheet.top() ||
                                         y == sheet.bottom() || rows.contains(y) || columns.contains(x));
            const bool shadow = (y == sheet.top() - 1 && x > sheet.left() && x <= sheet.right() + 1) ||
                                (x == sheet.right() + 1 && y >= sheet.top() - 1 && y < sheet.bottom());
            const QRgb expected = line ? 0xff0000ff : shadow ? 0xff000080 : 0xffffffff;
            if (icon.pixel(x, y) != expected)
                QFAIL(qPrintable(
                    QStringLiteral("pixel %1,%2 is %3").arg(x).arg(y).arg(icon.pixel(x, y), 0, 16)));
        }
    QVERIFY(pageSplitIcon(6).isNull());
}

void TestOutputPage::settingsReachScript_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("font");
    QTest::addColumn<QString>("view");
    const QString twoPerPage = QStringLiteral("SIZ2 SPLI PICT\nSIZE -URS SC %1 SPLI  2x1 MARG NO FORM STAN");
    QTest::newRow("as built, no view chosen") << "" << twoPerPage.arg("0") << "SCHH H6 0.2"
                                              << "TYPE ";
    QTest::newRow("engineering scale on Auto") << "scale 0" << twoPerPage.arg("-") << "SCHH H6 0.2"
                                               << "TYPE ";
    QTest::newRow("engineering scale 1:100")
        << "scale 0;row 8" << twoPerPage.arg("100*1.e+10") << "SCHH H6 0.2"
        << "TYPE ";
    QTest::newRow("a row without engineering scale") << "row 8" << twoPerPage.arg("0") << "SCHH H6 0.2"
                                                     << "TYPE ";
    QTest::newRow("portrait, one picture") << "pictures 0"
                                           << "SIZE -URS SC 0 MARG NO FORM STAN"
                                           << "SCHH H6 0.2"
                                           << "TYPE ";
    QTest::newRow("landscape") << "format 1"
                               << "SIZE URS SC 0 MARG NO FORM STAN"
                               << "SCHH H6 0.2"
                               << "TYPE ";
    QTest::newRow("typed font with a comma") << "type 3,5" << twoPerPage.arg("0") << "SCHH H6 0.35"
                                             << "TYPE ";
    QTest::newRow("font that is no number keeps the last")
        << "type 3;type abc" << twoPerPage.arg("0") << "SCHH H6 0.3"
        << "TYPE ";
    QTest::newRow("font below its limit keeps the last") << "type 0.5" << twoPerPage.arg("0") << "SCHH H6 0.2"
                                                         << "TYPE ";
    QTest::newRow("X/Y") << "view 0" << twoPerPage.arg("0") << "SCHH H6 0.2"
                         << "TYPE EGXY ; PERS INFI";
    QTest::newRow("Y/Z") << "view 2" << twoPerPage.arg("0") << "SCHH H6 0.2"
                         << "TYPE EGYZ ; PERS INFI";
    QTest::newRow("3D") << "view 3" << twoPerPage.arg("0") << "SCHH H6 0.2"
                        << "TYPE EG3";
}

// Each widget of the page reaches its part of the script.
void TestOutputPage::settingsReachScript()
{
    QFETCH(QString, steps);
    QFETCH(QString, size);
    QFETCH(QString, font);
    QFETCH(QString, view);
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    auto* edit = child<VKD_H_BoxedLineEdit>(page, "m_boxedEdit")->findChild<QLineEdit*>();
    for (const QString& step : steps.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString word = step.section(QLatin1Char(' '), 0, 0);
        const QString value = step.section(QLatin1Char(' '), 1);
        if (word == QLatin1String("type")) {
            edit->selectAll();
            QTest::keyClicks(edit, value);
            emit edit->editingFinished();
        } else if (word == QLatin1String("row")) {
            child<VKD_QT4_ComboBox>(page, "box_scale")->setCurrentIndex(value.toInt());
        } else {
            const char* group = word == QLatin1String("scale")    ? "ScaleGroup"
                                : word == QLatin1String("format") ? "FormatGroup"
                                : word == QLatin1String("view")   ? "PerspectiveGroup"
                                                                  : "PicturesGroup";
            child<VKD_QT_RadioButtonGroup>(page, group)->getRadioButton(value.toInt())->click();
        }
    }
    QCOMPARE(page.getTORVAL_SIZE(true), size);
    QCOMPARE(page.getTORVAL_SCHR(true), font);
    QCOMPARE(page.getTORVAL_BEOB(true), view);
    QVERIFY(page.getTORVAL(true).contains(QStringLiteral("\n%1\n").arg(size)));
}

// No plot chosen: no script, whatever is added; the vector form still appends one element.
void TestOutputPage::emptySelection()
{
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    std::vector<QString> scripts{QStringLiteral("kept")};
    QCOMPARE(page.getTORVAL(scripts, true), 1);
    QCOMPARE(scripts.size(), std::size_t(2));
    QVERIFY(scripts[1].startsWith(QStringLiteral("+PROG GRAV")));
    treeOf(page)->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(page.getTORVAL(QStringLiteral("+ADD\n"), true), QString());
    QCOMPARE(page.getTORVAL(scripts, false), 1);
    QCOMPARE(scripts.size(), std::size_t(3));
    QCOMPARE(scripts[2], QString());
    std::vector<QString> lines{QStringLiteral("old")};
    page.getTORVAL_LFs(lines, true);
    QVERIFY(lines.empty());
}

void TestOutputPage::tableRows_data()
{
    // A row: check cell ("x" checked, "o" unchecked, "?" a plain cell), number cell ("#" before
    // the text makes it a plain cell), title.
    QTest::addColumn<QStringList>("table");
    QTest::addColumn<int>("checkColumn");
    QTest::addColumn<int>("titleColumn");
    QTest::addColumn<QString>("rows");
    QTest::newRow("with title") << QStringList{"x|12|Dead load"} << 0 << 2 << "12=12 : Dead load";
    QTest::newRow("empty title") << QStringList{"x|3.9|"} << 0 << 2 << "3=3.9 ";
    QTest::newRow("no title column") << QStringList{"x|12|Dead load"} << 0 << -1 << "12=12 ";
    QTest::newRow("same key, the later label") << QStringList{"x|3.2|a", "x|3.9|"} << 0 << 2 << "3=3.9 ";
    QTest::newRow("negative cut towards zero") << QStringList{"x|-1.5|"} << 0 << 2 << "-1=-1.5 ";
    QTest::newRow("sorted by number")
        << QStringList{"x|20|b", "x|4|a", "x|7,5|c"} << 0 << 2 << "4=4 : a;7=7.5 : c;20=20 : b";
    QTest::newRow("a million") << QStringList{"x|1000000|"} << 0 << 2 << "1000000=1e+06 ";
    QTest::newRow("large number exact") << QStringList{"x|123456789|"} << 0 << 2 << "123456789=1.23457e+08 ";
    QTest::newRow("unchecked skipped") << QStringList{"o|5|a", "x|6|b"} << 0 << 2 << "6=6 : b";
    QTest::newRow("no check column: all count")
        << QStringList{"o|5|a", "x|6|b"} << -1 << 2 << "5=5 : a;6=6 : b";
    QTest::newRow("plain check cell skipped") << QStringList{"?|5|a"} << 0 << 2 << "";
    QTest::newRow("plain number cell skipped") << QStringList{"x|#7|a", "x|8|b"} << 0 << 2 << "8=8 : b";
    QTest::newRow("text that is no number") << QStringList{"x|abc|a"} << 0 << 2 << "0=0 : a";
    QTest::newRow("no rows") << QStringList{} << 0 << 2 << "";
}

// The rows a host's table gives the tree: labels, keys, order, and what is skipped.
void TestOutputPage::tableRows()
{
    QFETCH(QStringList, table);
    QFETCH(int, checkColumn);
    QFETCH(int, titleColumn);
    QFETCH(QString, rows);
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    page.setUsedNumbersAndNames({{1, 99, "old"}});
    VKD_H_TableWidget widget(table.size(), 3);
    for (int r = 0; r < table.size(); ++r) {
        const QStringList cells = table[r].split(QLatin1Char('|'));
        if (cells[0] == QLatin1String("?"))
            widget.setItem(r, 0, new QTableWidgetItem(QStringLiteral("x")));
        else
            widget.setItem(r, 0, new VKD_H_TwSimpleCheckBoxItem(cells[0] == QLatin1String("x")));
        if (cells[1].startsWith(QLatin1Char('#')))
            widget.setItem(r, 1, new QTableWidgetItem(cells[1].mid(1)));
        else
            widget.setItem(r, 1, new VKD_H_TwSimpleLineEditItem(cells[1]));
        widget.setItem(r, 2, new QTableWidgetItem(cells[2]));
    }
    VKD_P_WidgetGraphicalOutput_TableWidgetData binding;
    binding.reset();
    binding.setWidgets(&page, &widget, 1, checkColumn, titleColumn);
    QCOMPARE(rowRecords(page), QStringLiteral("99=old"));
    binding.reset();
    QCOMPARE(rowRecords(page), rows);
}

// A change that leaves the rows as they are costs no rebuild and keeps the choice; a real one
// rebuilds with the defaults.
void TestOutputPage::tableChanges()
{
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    VKD_H_TableWidget widget(2, 4);
    for (int r = 0; r < 2; ++r) {
        widget.setItem(r, 0, new VKD_H_TwSimpleCheckBoxItem(true));
        widget.setItem(r, 1, new VKD_H_TwSimpleLineEditItem(QString::number(r + 1)));
        widget.setItem(r, 2, new QTableWidgetItem(QStringLiteral("t%1").arg(r + 1)));
        widget.setItem(r, 3, new QTableWidgetItem(QStringLiteral("other")));
    }
    VKD_P_WidgetGraphicalOutput_TableWidgetData binding;
    binding.setWidgets(&page, &widget, 1, 0, 2);
    QSignalSpy rebuilds(treeOf(page)->model(), &QAbstractItemModel::modelReset);
    binding.reset();
    QCOMPARE(rebuilds.count(), 1);
    QCOMPARE(rowStates(page), QStringLiteral("1 : t1+ 2 : t2-"));
    treeOf(page)->topLevelItem(0)->child(0)->child(0)->child(1)->setCheckState(0, Qt::Checked);
    widget.item(1, 3)->setText(QStringLiteral("changed elsewhere"));
    widget.item(1, 1)->setText(QStringLiteral("2.0"));
    binding.reset();
    QCOMPARE(rebuilds.count(), 1);
    QCOMPARE(rowStates(page), QStringLiteral("1 : t1+ 2 : t2+"));
    static_cast<VKD_H_TwSimpleCheckBoxItem*>(widget.item(0, 0))->setChecked(false);
    QCOMPARE(rebuilds.count(), 2);
    QCOMPARE(rowStates(page), QStringLiteral("2 : t2+"));
    widget.removeRow(0);
    QCOMPARE(rebuilds.count(), 2);
    widget.item(0, 2)->setText(QStringLiteral("Wind load"));
    QCOMPARE(rowStates(page), QStringLiteral("2 : Wind load+"));
    widget.insertRow(0);
    widget.setItem(0, 1, new VKD_H_TwSimpleLineEditItem(QStringLiteral("1")));
    QCOMPARE(rowStates(page), QStringLiteral("2 : Wind load+"));
    widget.removeRow(1);
    QCOMPARE(rowRecords(page), QString());
    QCOMPARE(rebuilds.count(), 4);
}

// Each click on the tag's button declares it once more; a click on another withdraws it.
void TestOutputPage::additionalTag()
{
    Project project;
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    const std::vector<StructRadioButtonGrup> entries(3);
    VKD_QT_RadioButtonGroup group(QStringLiteral("host"), entries, nullptr, "host", Qt::Vertical, -1);
    VKD_P_WidgetGraphicalOutput_AdditionalData tag;
    group.getRadioButton(1)->click();
    tag.setWidget(&page, &group, QStringLiteral("Quad"), 1);
    auto plots = [&page] {
        QStringList out;
        QTreeWidgetItem* caption = treeOf(page)->topLevelItem(0)->child(0);
        for (int i = 0; i < caption->childCount(); ++i)
            out << caption->child(i)->text(0);
        return out.join(QLatin1Char(' '));
    };
    QCOMPARE(plots(), QStringLiteral("a b"));
    group.getRadioButton(1)->click();
    QCOMPARE(plots(), QStringLiteral("a b iso"));
    group.getRadioButton(1)->click();
    QCOMPARE(plots(), QStringLiteral("a b iso"));
    group.getRadioButton(2)->click();
    QCOMPARE(plots(), QStringLiteral("a b"));
    tag.clicked(1);
    QCOMPARE(plots(), QStringLiteral("a b iso"));
    tag.clicked(0);
    QCOMPARE(plots(), QStringLiteral("a b"));
}

// The whole script of a page on the demo project with the shipped catalogue and the project's
// load cases, in both keyword languages.
void TestOutputPage::demoProject()
{
    catalogueList().clear();
    catalogueLanguage = -1;
    Project project(Model::Demo);
    VKD_P_WidgetGraphicalOutput page(nullptr, GraphicalOutputStandard, &project.parameter, nullptr);
    std::vector<LoadcaseInformation> rows;
    for (const auto& lc :
         vkd::dbo::readAll<vkd::dbo::LoadCaseRecord>(project.doc->index(), vkd::dbo::KeyLoadCases))
        rows.push_back({lc.kind == 4 ? 2 : 1, lc.number,
                        QStringLiteral("%1 : %2").arg(lc.number).arg(QString::fromUtf8(lc.title))});
    page.setUsedNumbersAndNames(rows);
    page.slotDefaultSettings();
    QVERIFY(matchesReference(page.getTORVAL(true), QStringLiteral("page-demo-en.txt")));
    QVERIFY(matchesReference(page.getTORVAL(QStringLiteral("$ more"), false),
                             QStringLiteral("page-demo-de.txt")));
}

QTEST_MAIN(TestOutputPage)
#include "tst_outputpage.moc"

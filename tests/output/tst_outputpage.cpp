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

// A catalogue line of the standard and split pages with the script "BILD x" / "PICT x".
QByteArray rec(const char* title3, const char* tag = "All", const char* cases = "none", int preselect = 0)
{
    return QStringLiteral("1|122|0|T|C|%1|%2|0|%3|%4|3| |0|BILD %1|PICT %1\n")
        .arg(QLatin1String(title3), QLatin1String(tag), QLatin1String(cases), QString::number(preselect))
        .toUtf8();
}

void useCatalogue()
{
    catalogueList() = parseText(rec("a", "All", "last-l", 1) + rec("b") + rec("iso", "Quad"));
    catalogueLanguage = vkd_lib_getvalue(kSettingLanguage);
}

// Models of a page's project: none, one bric, the demo project.
enum Model : int
{
    NoModel = 0,
    OneBric = vkd::dbo::KeyBricks,
    Demo = -1
};

// A page on a project in a temporary folder, empty or with a model.
struct Page
{
    explicit Page(int progname = GraphicalOutputStandard, int model = NoModel)
        : doc(dir.filePath(QStringLiteral("demo.vkd"))), parameter(&doc)
    {
        if (model > 0)
            vkd::dbo::writeAll<vkd::dbo::ElementRecord>(doc.index(), model, {{1, 1, {1, 2, 3, 4}}});
        if (model == Demo)
            writeDemoModel(doc.index());
        page = std::make_unique<VKD_P_WidgetGraphicalOutput>(
            nullptr, static_cast<VKD_P_WidgetGraphicalOutput_Progname>(progname), &parameter, nullptr);
    }
    template <typename T> T* get(const char* name) const
    {
        return page->findChild<T*>(QString::fromLatin1(name));
    }
    VKD_QT_RadioButtonGroup* group(const char* name) const { return get<VKD_QT_RadioButtonGroup>(name); }
    GraphicalOutputTreeWidget* tree() const { return get<GraphicalOutputTreeWidget>("m_list"); }
    QTreeWidgetItem* plot() const { return tree()->topLevelItem(0)->child(0)->child(0); }
    // "number=label+;...": the rows of the first plot as the tree holds them, "+" if checked.
    QString rows() const
    {
        QStringList out;
        for (int i = 0; i < plot()->childCount(); ++i) {
            auto* row = static_cast<GraphicalOutputTreeWidgetItem*>(plot()->child(i));
            out << QStringLiteral("%1=%2%3")
                       .arg(row->number)
                       .arg(row->text(0), row->checkState(0) ? "+" : "");
        }
        return out.join(QLatin1Char(';'));
    }

    QTemporaryDir dir;
    VKD_H_ZOBDoc doc;
    VKD_H_PluginParameter parameter;
    std::unique_ptr<VKD_P_WidgetGraphicalOutput> page;
};

// The cell of a widget in its parent's grid (also inside a layout of a cell), and greyed.
QString where(QWidget* w)
{
    auto* grid = qobject_cast<QGridLayout*>(w->parentWidget()->layout());
    QString out = QStringLiteral(" in \"%1\"").arg(w->parentWidget()->objectName());
    for (int k = 0; grid && k < grid->count(); ++k) {
        QLayoutItem* item = grid->itemAt(k);
        if (item->widget() == w || (item->layout() && item->layout()->indexOf(w) >= 0)) {
            int row, column, rows, columns;
            grid->getItemPosition(k, &row, &column, &rows, &columns);
            out += QStringLiteral(" at %1,%2 span %3x%4").arg(row).arg(column).arg(rows).arg(columns);
        }
    }
    return out + (w->isEnabled() ? "" : " greyed");
}

// The widgets of a page as a user meets them: names, texts, tooltips, choices and places.
QString describe(const Page& p)
{
    QString out;
    for (const char* name :
         {"Standard box", "ScaleGroup", "FormatGroup", "BLATTTEILUNG", "PicturesGroup", "PerspectiveGroup"}) {
        auto* group = p.get<QGroupBox>(name);
        out += group ? QStringLiteral("%1 \"%2\"%3\n").arg(QLatin1String(name), group->title(), where(group))
                     : QStringLiteral("%1: none\n").arg(QLatin1String(name));
        auto* radio = qobject_cast<VKD_QT_RadioButtonGroup*>(group);
        for (int i = 0; radio && radio->getRadioButton(i); ++i)
            out += QStringLiteral("  %1 \"%2\"%3%4\n")
                       .arg(i)
                       .arg(radio->getRadioButton(i)->text(), where(radio->getRadioButton(i)))
                       .arg(radio->selectedButton() == i ? " checked" : "");
    }
    auto* scale = p.get<VKD_QT4_ComboBox>("box_scale");
    out += QStringLiteral("box_scale%1, row %2 of").arg(where(scale)).arg(scale->currentIndex());
    for (int i = 0; i < scale->count(); ++i)
        out += QStringLiteral(" \"%1\"").arg(scale->itemText(i));
    if (auto* split = p.get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING")) {
        out += QStringLiteral("\nCOMBO_PAGESPLITTING minimum height %1, ids").arg(split->minimumHeight());
        for (int i = 0; i < split->count(); ++i)
            out += QStringLiteral(" %1\"%2\"").arg(split->idAt(i)).arg(split->itemText(i));
    }
    auto* font = p.get<VKD_H_BoxedLineEdit>("m_boxedEdit");
    auto* label = font->findChild<QLabel*>();
    out += QStringLiteral("\nm_boxedEdit \"%1\" tip \"%2\" text \"%3\"%4\n")
               .arg(label->text(), label->toolTip(), font->getText(), where(font));
    for (QAbstractButton* b :
         {static_cast<QAbstractButton*>(p.get<VKD_QT_CheckBox>("Check: Filled Isolines")),
          static_cast<QAbstractButton*>(p.get<QPushButton>("Button: Default settings"))})
        out += b ? QStringLiteral("%1 \"%2\" tip \"%3\"%4\n")
                       .arg(b->objectName(), b->text(), b->toolTip(), where(b))
                 : QStringLiteral("no check box\n");
    return out + QStringLiteral("m_list%1\n").arg(where(p.tree()));
}

// The cases of a transcript file: the text before " => " on each line that is no comment. The
// comments go to out as they stand, so that out, with each case and its result, can be compared
// with the file.
QStringList transcriptCases(const QString& fileName, QString& out)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + fileName);
    file.open(QIODevice::ReadOnly);
    QStringList cases;
    for (const QString& line :
         QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line.startsWith(QLatin1Char('#')))
            out += line + QLatin1Char('\n');
        else
            cases << line.section(QStringLiteral(" => "), 0, 0);
    }
    return cases;
}

} // namespace

class TestOutputPage : public QObject
{
    Q_OBJECT
private slots:
    void init() { useCatalogue(); }
    void widgets_data();
    void widgets();
    void defaultSettings();
    void splitVariant();
    void pageSplitIcons_data();
    void pageSplitIcons();
    void settingsReachScript();
    void emptySelection();
    void tableRows();
    void tableChanges();
    void unchangedTableAfterOtherRows();
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
    useCatalogue();
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(TRANSLATIONS)));
    if (language == 0)
        QCoreApplication::installTranslator(&translator);
    Page p(progname);
    QCoreApplication::removeTranslator(&translator);
    QVERIFY(matchesReference(describe(p), reference));
    QVERIFY(p.page->checkVals());
}

// Iso areas with brics but no quads. The defaults come back everywhere but in the scale list, and
// the tree takes its default choice.
void TestOutputPage::defaultSettings()
{
    Page p(GraphicalOutputStandard, OneBric);
    QVERIFY(p.get<VKD_QT_CheckBox>("Check: Filled Isolines")->isEnabled());
    p.page->setUsedNumbersAndNames({{1, 1, "r1"}, {1, 2, "r2"}});
    auto* scale = p.get<VKD_QT4_ComboBox>("box_scale");
    p.group("ScaleGroup")->getRadioButton(0)->click();
    scale->setCurrentIndex(scale->findText(QStringLiteral("1:100")));
    p.group("FormatGroup")->getRadioButton(1)->click();
    p.get<VKD_QT_CheckBox>("Check: Filled Isolines")->setChecked(true);
    p.get<VKD_H_BoxedLineEdit>("m_boxedEdit")->setText(QStringLiteral("4"));
    p.group("PerspectiveGroup")->setButton(0);
    p.plot()->child(1)->setCheckState(0, Qt::Checked);
    QCOMPARE(p.rows(), QStringLiteral("1=r1+;2=r2+"));

    p.get<QPushButton>("Button: Default settings")->click();
    QCOMPARE(scale->currentText(), QStringLiteral("1:100"));
    QCOMPARE(p.group("ScaleGroup")->selectedButton(), 1);
    QCOMPARE(p.group("FormatGroup")->selectedButton(), 0);
    QCOMPARE(p.group("PicturesGroup")->selectedButton(), 1);
    QVERIFY(p.group("PicturesGroup")->isEnabled());
    QVERIFY(!p.get<VKD_QT_CheckBox>("Check: Filled Isolines")->isChecked());
    QCOMPARE(p.page->getTORVAL_SCHR(true), QStringLiteral("SCHH H6 0.2"));
    QCOMPARE(p.group("PerspectiveGroup")->selectedButton(), 3);
    QCOMPARE(p.rows(), QStringLiteral("1=r1+;2=r2"));
}

// The split page passes over the widgets it lacks, keeps its sheet division through the
// defaults, and its script is the pair of SIZE statements with or without plots.
void TestOutputPage::splitVariant()
{
    Page p(GraphicalOutputSplit);
    auto* scale = p.get<VKD_QT4_ComboBox>("box_scale");
    p.get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING")->setCurrentIndex(1);
    p.group("ScaleGroup")->getRadioButton(0)->click();
    scale->setCurrentIndex(scale->findText(QStringLiteral("1:100")));
    const QString german =
        QStringLiteral("SIZE DINA \"-URS\" M 100 TEIL 2X1|SIZE DINA \"-URS\" $(XYZ) TEIL 2X1");
    QCOMPARE(p.page->getTORVAL(false), german);
    QCOMPARE(p.page->getTORVAL(QStringLiteral("+ADD"), true),
             QStringLiteral("SIZE TYPE \"-URS\" SC 100 SPLI 2X1|SIZE TYPE \"-URS\" $(XYZ) SPLI 2X1+ADD\n"));
    QCOMPARE(p.page->getTORVAL_SIZE(true), QStringLiteral("SIZE URS SC 100*1.e+10 MARG NO FORM STAN"));
    p.tree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(p.page->getTORVAL(false), german);

    QVERIFY(QMetaObject::invokeMethod(p.page.get(), "slotQuerFormat"));
    p.page->slotDefaultSettings();
    QCOMPARE(p.get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING")->currentIndex(), 1);
    QCOMPARE(p.page->getTORVAL(false),
             QString(german).replace(QStringLiteral("M 100"), QStringLiteral("M 0")));
    QCOMPARE(p.tree()->minimumWidth(), int(p.tree()->sizeHint().width() * 1.5));
    QCOMPARE(p.tree()->minimumHeight(), p.tree()->sizeHint().height());
}

void TestOutputPage::pageSplitIcons_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QRect>("sheet");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QList<int>>("columns");
    const QRect portrait(QPoint(5, 3), QPoint(25, 29));
    const QRect landscape(QPoint(2, 6), QPoint(28, 26));
    QTest::newRow("0 portrait") << 0 << portrait << QList<int>{} << QList<int>{};
    QTest::newRow("1 portrait, two rows") << 1 << portrait << QList<int>{16} << QList<int>{};
    QTest::newRow("2 portrait, two by two") << 2 << portrait << QList<int>{16} << QList<int>{15};
    QTest::newRow("3 portrait, three by two") << 3 << portrait << QList<int>{12, 20} << QList<int>{15};
    QTest::newRow("4 landscape") << 4 << landscape << QList<int>{} << QList<int>{};
    QTest::newRow("5 landscape, two by two") << 5 << landscape << QList<int>{16} << QList<int>{15};
}

// Every pixel: blue on the outline and division lines, dark blue on the shadow above and right.
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
            const bool line =
                sheet.contains(x, y) && (x == sheet.left() || x == sheet.right() || y == sheet.top() ||
                                         y == sheet.bottom() || rows.contains(y) || columns.contains(x));
            const bool shadow = (y == sheet.top() - 1 && x > sheet.left() && x <= sheet.right() + 1) ||
                                (x == sheet.right() + 1 && y >= sheet.top() - 1 && y < sheet.bottom());
            if (icon.pixel(x, y) != (line ? 0xff0000ff : shadow ? 0xff000080 : 0xffffffff))
                QFAIL(qPrintable(
                    QStringLiteral("pixel %1,%2 is %3").arg(x).arg(y).arg(icon.pixel(x, y), 0, 16)));
        }
    QVERIFY(pageSplitIcon(6).isNull());
}

// Steps on the widgets of a standard page and what the script then says (data/settings.txt).
void TestOutputPage::settingsReachScript()
{
    QString out;
    for (const QString& line : transcriptCases(QStringLiteral("settings.txt"), out)) {
        Page p;
        auto* edit = p.get<VKD_H_BoxedLineEdit>("m_boxedEdit")->findChild<QLineEdit*>();
        for (const QString& step : line.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const QString word = step.section(QLatin1Char(' '), 0, 0);
            const QString value = step.section(QLatin1Char(' '), 1);
            if (word == QLatin1String("type")) {
                edit->selectAll();
                QTest::keyClicks(edit, value);
                emit edit->editingFinished();
            } else if (word == QLatin1String("row")) {
                p.get<VKD_QT4_ComboBox>("box_scale")->setCurrentIndex(value.toInt());
            } else if (auto* group = p.group(qPrintable(word))) {
                group->getRadioButton(value.toInt())->click();
            }
        }
        auto* pictures = p.group("PicturesGroup");
        const QString script = p.page->getTORVAL(true);
        out +=
            QStringLiteral("%1 => %2%3 | %4 | %5 | %6 | %7\n")
                .arg(line)
                .arg(pictures->selectedButton())
                .arg(pictures->isEnabled() ? "" : " greyed", p.page->getTORVAL_SIZE(true).replace('\n', '/'),
                     p.page->getTORVAL_SCHR(true), p.page->getTORVAL_BEOB(true),
                     script.section(QStringLiteral("#define SCHR="), 1).section('\n', 0, 0));
    }
    QVERIFY(matchesReference(out, QStringLiteral("settings.txt")));
}

// No plot chosen: no script, whatever is added; the vector form still appends one element.
void TestOutputPage::emptySelection()
{
    Page p;
    std::vector<QString> scripts{QStringLiteral("kept")};
    QCOMPARE(p.page->getTORVAL(scripts, true), 1);
    QVERIFY(scripts.size() == 2 && scripts[1].endsWith(QStringLiteral("PICT b\nEND\n")));
    p.tree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(p.page->getTORVAL(QStringLiteral("+ADD\n"), true), QString());
    QCOMPARE(p.page->getTORVAL(scripts, false), 1);
    QVERIFY(scripts.size() == 3 && scripts[2].isEmpty());
}

// The rows that a host's table gives the tree: labels, keys, order, what is skipped
// (data/tablerows.txt).
void TestOutputPage::tableRows()
{
    QString out;
    for (const QString& line : transcriptCases(QStringLiteral("tablerows.txt"), out)) {
        QStringList table = line.split(QLatin1Char(';'), Qt::SkipEmptyParts);
        const int checkColumn = table.removeAll(QStringLiteral("no check column")) ? -1 : 0;
        const int titleColumn = table.removeAll(QStringLiteral("no title column")) ? -1 : 2;
        Page p;
        p.page->setUsedNumbersAndNames({{1, 99, "old"}});
        VKD_H_TableWidget widget(table.size(), 3);
        for (int r = 0; r < table.size(); ++r) {
            const QStringList cells = table[r].split(QLatin1Char('|'));
            widget.setItem(r, 0,
                           cells[0] == "?" ? new QTableWidgetItem
                                           : new VKD_H_TwSimpleCheckBoxItem(cells[0] == "x"));
            widget.setItem(r, 1,
                           cells[1].startsWith('#') ? new QTableWidgetItem(cells[1])
                                                    : new VKD_H_TwSimpleLineEditItem(cells[1]));
            widget.setItem(r, 2, new QTableWidgetItem(cells[2]));
        }
        VKD_P_WidgetGraphicalOutput_TableWidgetData binding;
        binding.reset();
        binding.setWidgets(p.page.get(), &widget, 1, checkColumn, titleColumn);
        const QString before = p.rows();
        binding.reset();
        out += QStringLiteral("%1 => %2%3\n")
                   .arg(line, before == "99=old+" ? "" : "rows before reset! ", p.rows());
    }
    QVERIFY(matchesReference(out, QStringLiteral("tablerows.txt")));
}

// A change that leaves the rows as they are costs no rebuild and keeps the choice; a real one
// rebuilds with the defaults. Titles never reach the script.
void TestOutputPage::tableChanges()
{
    Page p;
    VKD_H_TableWidget widget(2, 4);
    for (int r = 0; r < 2; ++r) {
        widget.setItem(r, 0, new VKD_H_TwSimpleCheckBoxItem(true));
        widget.setItem(r, 1, new VKD_H_TwSimpleLineEditItem(QString::number(r + 1)));
        widget.setItem(r, 2, new QTableWidgetItem(QStringLiteral("t%1").arg(r + 1)));
        widget.setItem(r, 3, new QTableWidgetItem(QStringLiteral("other")));
    }
    VKD_P_WidgetGraphicalOutput_TableWidgetData binding;
    binding.setWidgets(p.page.get(), &widget, 1, 0, 2);
    QSignalSpy rebuilds(p.tree()->model(), &QAbstractItemModel::modelReset);
    binding.reset();
    QCOMPARE(p.rows(), QStringLiteral("1=1 : t1+;2=2 : t2"));
    p.plot()->child(1)->setCheckState(0, Qt::Checked);
    widget.item(1, 3)->setText(QStringLiteral("changed elsewhere"));
    widget.item(1, 1)->setText(QStringLiteral("2.0"));
    QCOMPARE(rebuilds.count(), 1);
    QCOMPARE(p.rows(), QStringLiteral("1=1 : t1+;2=2 : t2+"));
    static_cast<VKD_H_TwSimpleCheckBoxItem*>(widget.item(0, 0))->setChecked(false);
    QCOMPARE(p.rows(), QStringLiteral("2=2 : t2+"));
    widget.removeRow(0);
    widget.insertRow(0);
    QCOMPARE(rebuilds.count(), 2);
    widget.item(1, 2)->setText(QStringLiteral("Wind\n\"gust\" | 7+8: $"));
    QCOMPARE(p.page->getTORVAL(true).section(QStringLiteral("FORM STAN\n"), 1),
             QStringLiteral("VIEW TYPE \nLC 2 DESI 2\nPICT a\nPICT b\nEND\n"));
    widget.removeRow(1);
    QCOMPARE(p.rows(), QString());
    QCOMPARE(rebuilds.count(), 4);
}

// Each click on the tag's button declares it once more; a click on another withdraws it.
void TestOutputPage::additionalTag()
{
    Page p;
    VKD_QT_RadioButtonGroup group(QStringLiteral("host"), std::vector<StructRadioButtonGrup>(3), nullptr,
                                  "host", Qt::Vertical, -1);
    VKD_P_WidgetGraphicalOutput_AdditionalData tag;
    group.getRadioButton(1)->click();
    tag.setWidget(p.page.get(), &group, QStringLiteral("Quad"), 1);
    QStringList plots{QString::number(p.plot()->parent()->childCount())};
    for (int click : {1, 1, 2, 1, 0}) {
        group.getRadioButton(click)->click();
        plots << QString::number(p.plot()->parent()->childCount());
    }
    tag.clicked(1);
    plots << QString::number(p.plot()->parent()->childCount());
    tag.clicked(1);
    tag.clicked(0);
    plots << QString::number(p.plot()->parent()->childCount());
    QCOMPARE(plots.join(QLatin1Char(' ')), QStringLiteral("2 3 3 2 3 2 3 2"));
}

// The whole script of a page on the demo project with the shipped catalogue and the project's
// load cases, in both keyword languages.
void TestOutputPage::demoProject()
{
    catalogueList().clear();
    catalogueLanguage = -1;
    Page p(GraphicalOutputStandard, Demo);
    QVERIFY(p.get<VKD_QT_CheckBox>("Check: Filled Isolines")->isEnabled());
    std::vector<LoadcaseInformation> rows;
    for (const auto& lc : vkd::dbo::readAll<vkd::dbo::LoadCaseRecord>(p.doc.index(), vkd::dbo::KeyLoadCases))
        rows.push_back({lc.kind == 4 ? 2 : 1, lc.number,
                        QStringLiteral("%1 : %2").arg(lc.number).arg(QString::fromUtf8(lc.title))});
    p.page->setUsedNumbersAndNames(rows);
    p.page->slotDefaultSettings();
    QVERIFY(matchesReference(p.page->getTORVAL(true), QStringLiteral("page-demo-en.txt")));
    QVERIFY(matchesReference(p.page->getTORVAL(QStringLiteral("$ more"), false),
                             QStringLiteral("page-demo-de.txt")));
}

// Rows given to the page by other means do not survive a reset of an unchanged table.
void TestOutputPage::unchangedTableAfterOtherRows()
{
    Page p;
    VKD_H_TableWidget widget(1, 3);
    widget.setItem(0, 0, new VKD_H_TwSimpleCheckBoxItem(true));
    widget.setItem(0, 1, new VKD_H_TwSimpleLineEditItem(QStringLiteral("4")));
    widget.setItem(0, 2, new QTableWidgetItem(QStringLiteral("Snow")));
    VKD_P_WidgetGraphicalOutput_TableWidgetData binding;
    binding.setWidgets(p.page.get(), &widget, 1, 0, 2);
    binding.reset();
    p.page->setUsedNumbersAndNames({{1, 7, "other"}});
    binding.reset();
    QCOMPARE(p.rows(), QStringLiteral("4=4 : Snow+"));
    widget.item(0, 2)->setText(QStringLiteral("Ice"));
    QCOMPARE(p.rows(), QStringLiteral("4=4 : Ice+"));
}

QTEST_MAIN(TestOutputPage)
#include "tst_outputpage.moc"

#include "GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"
#include "testsupport.h"

#include <AnimatorView.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_CheckBox.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <VKD_QT_TabDialog.h>
#include <vkd_dbo.h>

#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

QByteArray rec(int id, const char* cases = "none", int preselect = 0)
{
    return QStringLiteral("1|122|0|@T01 T|@C01 C|@P0%1 P%1|All|0|%2|%3|3| |0|BILD %1|PICT %1\n")
        .arg(QString::number(id), QLatin1String(cases), QString::number(preselect))
        .toUtf8();
}

// A page on a fresh project, with a preview if asked; the commands that reach the preview are
// kept in order.
struct Page
{
    explicit Page(int progname = GraphicalOutputStandard, bool preview = false, QWidget* parent = nullptr)
        : doc(dir.filePath(QStringLiteral("state.vkd"))), parameter(&doc)
    {
        catalogueList() = parseText(rec(1, "last-l", 1) + rec(2) + rec(3));
        catalogueLanguage = vkd_lib_getvalue(102);
        if (preview)
            animator = new AnimatorView(doc.index());
        page = new VKD_P_WidgetGraphicalOutput(
            parent, static_cast<VKD_P_WidgetGraphicalOutput_Progname>(progname), &parameter, animator);
        owner.reset(parent ? nullptr : page);
        QObject::connect(page, &VKD_P_WidgetGraphicalOutput::signalBeobXY, page,
                         [this](AnimatorViewControl c, double) { commands << int(c); });
    }
    VKD_QT_RadioButtonGroup* group(const char* name) const
    {
        return page->findChild<VKD_QT_RadioButtonGroup*>(QLatin1String(name));
    }
    VKD_QT4_ComboBox* combo(const char* name) const
    {
        return page->findChild<VKD_QT4_ComboBox*>(QLatin1String(name));
    }
    VKD_QT_CheckBox* fill() const { return page->findChild<VKD_QT_CheckBox*>(); }
    VKD_H_BoxedLineEdit* font() const { return page->findChild<VKD_H_BoxedLineEdit*>(); }
    GraphicalOutputTreeWidget* tree() const { return page->findChild<GraphicalOutputTreeWidget*>(); }
    // The settings a read may change, in one line; "-" for a widget the page lacks.
    QString state() const
    {
        auto choice = [this](const char* name) {
            const VKD_QT_RadioButtonGroup* g = group(name);
            return g ? QString::number(g->selectedButton()) + (g->isEnabled() ? "" : " greyed")
                     : QStringLiteral("-");
        };
        const VKD_QT4_ComboBox* split = combo("COMBO_PAGESPLITTING");
        return QStringLiteral("scale %1 %2, font %3, fill %4, format %5, pictures %6, view %7, split %8")
            .arg(choice("ScaleGroup"), combo("box_scale")->currentText(), font()->getText(),
                 fill() ? QString::number(fill()->isChecked()) : QStringLiteral("-"), choice("FormatGroup"),
                 choice("PicturesGroup"), choice("PerspectiveGroup"),
                 split ? QString::number(split->getCurrentId()) : QStringLiteral("-"));
    }

    QTemporaryDir dir;
    VKD_H_ZOBDoc doc;
    VKD_H_PluginParameter parameter;
    AnimatorView* animator = nullptr;
    VKD_P_WidgetGraphicalOutput* page;
    std::unique_ptr<VKD_P_WidgetGraphicalOutput> owner;
    QList<int> commands;
};

// A state that no default has: engineering scale on 1:100, landscape, fill, font 3, view X/Z.
void setDistinctState(Page& p)
{
    p.group("ScaleGroup")->setButton(0);
    p.combo("box_scale")->setCurrentText(QStringLiteral("1:100"));
    p.font()->setText(QStringLiteral("3"));
    if (p.group("FormatGroup")) {
        p.group("FormatGroup")->getRadioButton(1)->click();
        p.fill()->setChecked(true);
        p.group("PerspectiveGroup")->setButton(1);
    } else {
        p.combo("COMBO_PAGESPLITTING")->setCurrentIndex(3);
    }
}

const QString kDistinct =
    QStringLiteral("scale 0 1:100, font 3, fill 1, format 1, pictures 0 greyed, view 1, split -");
const QString kDistinctSplit =
    QStringLiteral("scale 0 1:100, font 3, fill -, format -, pictures -, view -, split 3");

} // namespace

class TestOutputState : public QObject
{
    Q_OBJECT
private slots:
    void roundTrip_data();
    void roundTrip();
    void readRules_data();
    void readRules();
    void cameraPart();
    void viewCommands_data();
    void viewCommands();
    void firstShow();
};

// The string of a page, and a new page that reads it writes the same string: tree choice included.
void TestOutputState::roundTrip_data()
{
    QTest::addColumn<int>("progname");
    QTest::addColumn<bool>("distinct");
    QTest::addColumn<QString>("reference");
    QTest::newRow("standard, defaults")
        << int(GraphicalOutputStandard) << false << "state-standard-defaults.txt";
    QTest::newRow("standard, set") << int(GraphicalOutputStandard) << true << "state-standard-set.txt";
    QTest::newRow("split, set") << int(GraphicalOutputSplit) << true << "state-split-set.txt";
}

void TestOutputState::roundTrip()
{
    QFETCH(int, progname);
    QFETCH(bool, distinct);
    QFETCH(QString, reference);
    Page written(progname);
    if (distinct) {
        setDistinctState(written);
        written.font()->setText(QStringLiteral("2,5"));
        written.tree()->topLevelItem(0)->child(0)->child(0)->setCheckState(0, Qt::Checked);
        written.tree()->topLevelItem(0)->child(0)->child(2)->setCheckState(0, Qt::Unchecked);
    }
    const QString xml = written.page->writeXMLstring();
    QVERIFY(matchesReference(xml + QLatin1Char('\n'), reference));
    Page read(progname);
    read.page->readXMLstring(xml);
    QCOMPARE(read.state(), written.state());
    QCOMPARE(read.tree()->selectionText(), written.tree()->selectionText());
    QCOMPARE(read.page->writeXMLstring(), xml);
}

// Each rule of reading, from a state that no default has.
void TestOutputState::readRules_data()
{
    QTest::addColumn<int>("progname");
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("expected");
    const int standard = GraphicalOutputStandard, split = GraphicalOutputSplit;
    QTest::newRow("empty string") << standard << "" << kDistinct;
    QTest::newRow("no known part") << standard << "<Other>1</Other>" << kDistinct;
    QTest::newRow("truncated in a tag") << standard << "<Scale>1:50</Sca" << kDistinct;
    QTest::newRow("scale 0") << standard << "<Scale>0</Scale>"
                             << "scale 1 1:100, font 3, fill 1, format 1, pictures 0 greyed, view 1, split -";
    QTest::newRow("scale - anywhere")
        << standard << "<Scale>1:5-</Scale>"
        << "scale 0 Auto, font 3, fill 1, format 1, pictures 0 greyed, view 1, split -";
    QTest::newRow("scale 1:50")
        << standard << "<Scale>1:50</Scale>"
        << "scale 0 1:50, font 3, fill 1, format 1, pictures 0 greyed, view 1, split -";
    QTest::newRow("scale 1:7")
        << standard << "<Scale>1:7</Scale>"
        << "scale 1 1:100, font 3, fill 1, format 1, pictures 0 greyed, view 1, split -";
    QTest::newRow("scale in other case")
        << standard << "<Scale>auto</Scale>"
        << "scale 1 1:100, font 3, fill 1, format 1, pictures 0 greyed, view 1, split -";
    QTest::newRow("font as typed, repeated part")
        << standard << "<Font>2,5</Font><Font>7</Font>"
        << "scale 0 1:100, font 2,5, fill 1, format 1, pictures 0 greyed, view 1, split -";
    QTest::newRow("fill 1 anywhere") << standard << "<Fill>x1</Fill>" << kDistinct;
    QTest::newRow("fill empty")
        << standard << "<Fill></Fill>"
        << "scale 0 1:100, font 3, fill 0, format 1, pictures 0 greyed, view 1, split -";
    QTest::newRow("format 0 couples pictures")
        << standard << "<Format>0</Format>"
        << "scale 0 1:100, font 3, fill 1, format 0, pictures 1, view 1, split -";
    QTest::newRow("format not a number")
        << standard << "<Format>x</Format>"
        << "scale 0 1:100, font 3, fill 1, format 0, pictures 1, view 1, split -";
    QTest::newRow("format 1, part 1 wins")
        << standard << "<Format>1</Format><Part>1</Part>"
        << "scale 0 1:100, font 3, fill 1, format 1, pictures 1 greyed, view 1, split -";
    QTest::newRow("view out of range") << standard << "<View>9</View>" << kDistinct;
    QTest::newRow("view 4") << standard << "<View>4</View>"
                            << "scale 0 1:100, font 3, fill 1, format 1, pictures 0 greyed, view 4, split -";
    QTest::newRow("split string on a standard page")
        << standard
        << "<Scale>1:20</Scale><Font>5</Font><Fill>0</Fill><COMBO_PAGESPLITTING>2</COMBO_PAGESPLITTING>"
        << "scale 0 1:20, font 5, fill 0, format 1, pictures 0 greyed, view 1, split -";
    QTest::newRow("standard string on a split page")
        << split
        << "<Scale>0</Scale><Font>4</Font><Fill>1</Fill><Format>0</Format><Part>1</Part><View>0</View>"
        << "scale 1 1:100, font 4, fill -, format -, pictures -, view -, split 3";
    QTest::newRow("split division") << split << "<COMBO_PAGESPLITTING>5</COMBO_PAGESPLITTING>"
                                    << "scale 0 1:100, font 3, fill -, format -, pictures -, view -, split 5";
    QTest::newRow("split division unknown")
        << split << "<COMBO_PAGESPLITTING>8</COMBO_PAGESPLITTING>" << kDistinctSplit;
}

void TestOutputState::readRules()
{
    QFETCH(int, progname);
    QFETCH(QString, xml);
    QFETCH(QString, expected);
    Page p(progname);
    setDistinctState(p);
    p.tree()->topLevelItem(0)->child(0)->child(1)->setCheckState(0, Qt::Unchecked);
    const QString checked = p.tree()->selectionText();
    p.page->readXMLstring(xml);
    QCOMPARE(p.state(), expected);
    // Without "List_4" the tree keeps its checks.
    QCOMPARE(p.tree()->selectionText(), checked);
}

// The camera goes to the store and then to the preview, with or without a part of its own.
void TestOutputState::cameraPart()
{
    Page p(GraphicalOutputStandard, true);
    vkd::dbo::setAnimatorPerspektive(0, QStringLiteral("10 20 2 0 0"));
    p.page->readXMLstring(QStringLiteral("<View>4</View>"));
    QCOMPARE(p.commands, (QList<int>{7, 7}));
    QCOMPARE(p.animator->cameraText(vkd::dbo::CameraPersistentForm), QStringLiteral("10 20 2 0 0"));
    p.commands.clear();
    p.page->readXMLstring(QStringLiteral("<Camera>40 10 1 0.25 0</Camera>"));
    QCOMPARE(p.commands, QList<int>{7});
    QCOMPARE(p.animator->cameraText(vkd::dbo::CameraPersistentForm), QStringLiteral("40 10 1 0.25 0"));
    p.commands.clear();
    p.page->readXMLstring(QStringLiteral("<Camera>not a camera</Camera>"));
    QCOMPARE(p.commands, QList<int>{7});
    QCOMPARE(p.animator->cameraText(vkd::dbo::CameraPersistentForm), QStringLiteral("40 10 1 0.25 0"));
    // Writing stores what the preview shows first.
    p.animator->setCamera({5, 6, 1.5, 0, 0});
    p.commands.clear();
    QVERIFY(p.page->writeXMLstring().contains(
        QLatin1String("<View>4</View><Camera>5 6 1.5 0 0</Camera><List_4>")));
    QCOMPARE(p.commands, QList<int>{6});
}

// The commands for each change of the view group, and whether the preview ends locked.
void TestOutputState::viewCommands_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QList<int>>("commands");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("user defined to 3D standard") << 4 << 3 << QList<int>{6, 0} << false;
    QTest::newRow("3D standard to user defined") << 3 << 4 << QList<int>{7} << true;
    QTest::newRow("3D standard to X/Y") << 3 << 0 << QList<int>{3} << false;
    QTest::newRow("X/Y to X/Z") << 0 << 1 << QList<int>{4} << false;
    QTest::newRow("user defined to Y/Z") << 4 << 2 << QList<int>{6, 5} << false;
}

void TestOutputState::viewCommands()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QList<int>, commands);
    QFETCH(bool, enabled);
    Page p(GraphicalOutputStandard, true);
    QVERIFY(p.commands.isEmpty());
    QCOMPARE(p.group("PerspectiveGroup")->selectedButton(), 3);
    p.group("PerspectiveGroup")->setButton(from);
    p.commands.clear();
    p.group("PerspectiveGroup")->getRadioButton(to)->click();
    QCOMPARE(p.commands, commands);
    QCOMPARE(p.animator->isEnabled(), enabled);
    p.commands.clear();
    QMetaObject::invokeMethod(p.page, "slotBeobXZ", Q_ARG(bool, false));
    QVERIFY(p.commands.isEmpty());
    QCOMPARE(p.animator->isEnabled(), enabled);
}

// The chosen view reaches the preview when the page's tab first comes up, once.
void TestOutputState::firstShow()
{
    VKD_QT_TabDialog dialog;
    auto* other = new QWidget;
    dialog.addTab(other, QStringLiteral("Other"));
    Page p(GraphicalOutputStandard, true, &dialog);
    dialog.addTab(p.page, QStringLiteral("Output"));
    p.group("PerspectiveGroup")->setButton(0);
    p.commands.clear();
    p.animator->setEnabled(true);
    dialog.tabWidget()->setCurrentWidget(other);
    QCoreApplication::processEvents();
    QVERIFY(p.commands.isEmpty());
    dialog.tabWidget()->setCurrentWidget(p.page);
    QVERIFY(p.commands.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(p.commands, QList<int>{3});
    QVERIFY(!p.animator->isEnabled());
    dialog.tabWidget()->setCurrentWidget(other);
    dialog.tabWidget()->setCurrentWidget(p.page);
    QCoreApplication::processEvents();
    QCOMPARE(p.commands, QList<int>{3});

    // "User defined" posts nothing and still ends the first show.
    Page user(GraphicalOutputStandard, true, &dialog);
    dialog.addTab(user.page, QStringLiteral("User"));
    user.group("PerspectiveGroup")->setButton(4);
    user.commands.clear();
    dialog.tabWidget()->setCurrentWidget(user.page);
    QCoreApplication::processEvents();
    QVERIFY(user.commands.isEmpty());
    user.group("PerspectiveGroup")->setButton(0);
    user.commands.clear();
    dialog.tabWidget()->setCurrentWidget(other);
    dialog.tabWidget()->setCurrentWidget(user.page);
    QCoreApplication::processEvents();
    QVERIFY(user.commands.isEmpty());
}

QTEST_MAIN(TestOutputState)
#include "tst_outputstate.moc"

// The output page: its widgets in both languages, the sheet division icons, the settings in the
// script, the load case rows from a host's table, its persistent string and the traffic between its view
// group and the 3D preview.
#include "GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"
#include "pagespliticons.h"
#include "testsupport.h"

#include <AnimatorView.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_TableWidget.h>
#include <VKD_H_TwSimpleItems.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_CheckBox.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <VKD_QT_TabDialog.h>
#include <vkd_dbo.h>

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// Below one caption the plots a (rows of load cases, the first checked by default), b, and iso
// where the model holds quads (with one bric if asked); "BILD a" / "PICT a" and so on their scripts. With a
// preview if asked; the commands that reach the preview are kept in order.
struct Page
{
    explicit Page(int progname = GraphicalOutputStandard, bool oneBric = false, bool preview = false,
                  QWidget* parent = nullptr)
        : doc(dir.filePath(QStringLiteral("demo.vkd"))), parameter(&doc)
    {
        catalogueList() = parseText("1|122|0|@T01 T|@C01 C|@P01 a|All|0|last-l|1|3| |0|BILD a|PICT a\n"
                                    "1|122|0|@T01 T|@C01 C|@P02 b|All|0|none|0|3| |0|BILD b|PICT b\n"
                                    "1|122|0|@T01 T|@C01 C|@P03 iso|Quad|0|none|0|3| |0|BILD iso|PICT iso\n");
        catalogueLanguage = vkd_lib_getvalue(kSettingLanguage);
        if (oneBric)
            vkd::dbo::writeAll<vkd::dbo::ElementRecord>(doc.index(), vkd::dbo::KeyBricks,
                                                        {{1, 1, {1, 2, 3, 4}}});
        animator = preview ? new AnimatorView(doc.index()) : nullptr;
        page = new VKD_P_WidgetGraphicalOutput(
            parent ? parent : &holder, VKD_P_WidgetGraphicalOutput_Progname(progname), &parameter, animator);
        QObject::connect(page, &VKD_P_WidgetGraphicalOutput::signalBeobXY, page,
                         [this](AnimatorViewControl c, double) { commands << int(c); });
    }
    template <typename T = VKD_QT_RadioButtonGroup> T* get(const char* name = nullptr) const
    {
        return name ? page->findChild<T*>(QLatin1String(name)) : page->findChild<T*>();
    }
    GraphicalOutputTreeWidget* tree() const { return get<GraphicalOutputTreeWidget>("m_list"); }
    QTreeWidgetItem* plot(int i = 0) const { return tree()->topLevelItem(0)->child(0)->child(i); }
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
    // Scale entry and row, font, fill, format, pictures, view, division; "-" for a widget the page
    // lacks, "~" for a greyed group.
    QString state() const
    {
        auto group = [this](const char* name) {
            const VKD_QT_RadioButtonGroup* g = get(name);
            return g ? QString::number(g->selectedButton()) + (g->isEnabled() ? "" : "~")
                     : QStringLiteral("-");
        };
        const auto* fill = get<VKD_QT_CheckBox>();
        const auto* split = get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING");
        return QStringList{group("ScaleGroup"),
                           get<VKD_QT4_ComboBox>("box_scale")->currentText(),
                           get<VKD_H_BoxedLineEdit>()->getText(),
                           fill ? QString::number(fill->isChecked()) : "-",
                           group("FormatGroup"),
                           group("PicturesGroup"),
                           group("PerspectiveGroup"),
                           split ? QString::number(split->getCurrentId()) : "-"}
            .join(' ');
    }
    // Engineering scale on 1:100, font 3, fill, landscape, view X/Z, or division 3 on a split page.
    void setDistinct() const
    {
        get("ScaleGroup")->setButton(0);
        get<VKD_QT4_ComboBox>("box_scale")->setCurrentText(QStringLiteral("1:100"));
        get<VKD_H_BoxedLineEdit>()->setText(QStringLiteral("3"));
        if (get("FormatGroup")) {
            get("FormatGroup")->getRadioButton(1)->click();
            get<VKD_QT_CheckBox>()->setChecked(true);
            get("PerspectiveGroup")->setButton(1);
        } else {
            get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING")->setCurrentIndex(3);
        }
    }

    QTemporaryDir dir;
    VKD_H_ZOBDoc doc;
    VKD_H_PluginParameter parameter;
    QWidget holder;
    AnimatorView* animator;
    VKD_P_WidgetGraphicalOutput* page;
    QList<int> commands;
};

QString greyed(const QWidget* w)
{
    return w->isEnabled() ? QString() : QStringLiteral(" greyed");
}

// The widgets of a page as a user meets them: names, texts, tooltips and choices.
QString describe(const Page& p)
{
    QString out;
    for (const char* name :
         {"Standard box", "ScaleGroup", "FormatGroup", "BLATTTEILUNG", "PicturesGroup", "PerspectiveGroup"}) {
        auto* group = p.get<QGroupBox>(name);
        out += group ? QStringLiteral("%1 \"%2\"%3\n").arg(QLatin1String(name), group->title(), greyed(group))
                     : QStringLiteral("%1: none\n").arg(QLatin1String(name));
        auto* radio = qobject_cast<VKD_QT_RadioButtonGroup*>(group);
        for (int i = 0; radio && radio->getRadioButton(i); ++i)
            out += QStringLiteral("  %1 \"%2\"%3%4\n")
                       .arg(i)
                       .arg(radio->getRadioButton(i)->text(), greyed(radio->getRadioButton(i)))
                       .arg(radio->selectedButton() == i ? " checked" : "");
    }
    auto* scale = p.get<VKD_QT4_ComboBox>("box_scale");
    out += QStringLiteral("box_scale%1, row %2 of").arg(greyed(scale)).arg(scale->currentIndex());
    for (int i = 0; i < scale->count(); ++i)
        out += QStringLiteral(" \"%1\"").arg(scale->itemText(i));
    if (auto* split = p.get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING")) {
        out += QStringLiteral("\nCOMBO_PAGESPLITTING ids");
        for (int i = 0; i < split->count(); ++i)
            out += QStringLiteral(" %1\"%2\"").arg(split->idAt(i)).arg(split->itemText(i));
    }
    auto* font = p.get<VKD_H_BoxedLineEdit>("m_boxedEdit");
    auto* label = font->findChild<QLabel*>();
    out += QStringLiteral("\nm_boxedEdit \"%1\" tip \"%2\" text \"%3\"%4\n")
               .arg(label->text(), label->toolTip(), font->getText(), greyed(font));
    for (QAbstractButton* b :
         {static_cast<QAbstractButton*>(p.get<VKD_QT_CheckBox>("Check: Filled Isolines")),
          static_cast<QAbstractButton*>(p.get<QPushButton>("Button: Default settings"))})
        out += b ? QStringLiteral("%1 \"%2\" tip \"%3\"%4\n")
                       .arg(b->objectName(), b->text(), b->toolTip(), greyed(b))
                 : QStringLiteral("no check box\n");
    return out;
}

} // namespace

class TestOutputPage : public QObject
{
    Q_OBJECT
private slots:
    // The widgets of the standard and the split page on an English and a German desktop.
    void widgets()
    {
        for (const auto& [progname, language, reference] : {std::tuple{1, 1, "page-standard-en.txt"},
                                                            {1, 0, "page-standard-de.txt"},
                                                            {122, 1, "page-split-en.txt"},
                                                            {122, 0, "page-split-de.txt"}}) {
            LanguageScope scope(language);
            QTranslator translator;
            QVERIFY(translator.load(QStringLiteral(TRANSLATIONS)));
            if (language == 0)
                QCoreApplication::installTranslator(&translator);
            Page p(progname);
            QCoreApplication::removeTranslator(&translator);
            QVERIFY(matchesReference(describe(p), QLatin1String(reference)));
            QVERIFY(p.page->checkVals());
            // As laid out: the settings and the view column reach the box's right edge, and the default
            // button stands under the box at that edge.
            p.holder.resize(900, 700);
            p.holder.show();
            QVERIFY(QTest::qWaitForWindowExposed(&p.holder));
            const QRect box = p.get<QGroupBox>("Standard box")->geometry();
            const QRect button = p.get<QPushButton>("Button: Default settings")->geometry();
            QVERIFY(button.right() == box.right() && button.top() > box.bottom());
            QCOMPARE(p.page->findChild<QLayout*>(QStringLiteral("view column"))->geometry().right(),
                     p.get<QWidget>("GroupBox attribs")->geometry().right());
        }
    }

    // Iso areas with brics but no quads. The defaults come back everywhere but in the scale list, and
    // the tree takes its default choice.
    void defaultSettings()
    {
        Page p(GraphicalOutputStandard, true);
        QVERIFY(p.get<VKD_QT_CheckBox>("Check: Filled Isolines")->isEnabled());
        p.page->setUsedNumbersAndNames({{1, 1, "r1"}, {1, 2, "r2"}});
        p.setDistinct();
        p.plot()->child(1)->setCheckState(0, Qt::Checked);
        QCOMPARE(p.state() + ' ' + p.rows(), QStringLiteral("0 1:100 3 1 1 0~ 1 - 1=r1+;2=r2+"));
        p.get<QPushButton>("Button: Default settings")->click();
        QCOMPARE(p.state() + ' ' + p.rows(), QStringLiteral("1 1:100 2 0 0 1 3 - 1=r1+;2=r2"));
        QCOMPARE(p.page->getTORVAL_SCHR(true), QStringLiteral("SCHH H6 0.2"));
        // No plot chosen: no script, whatever is added.
        p.tree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QCOMPARE(p.page->getTORVAL(QStringLiteral("+ADD\n"), true), QString());
    }

    // The split page passes over the widgets it lacks, keeps its sheet division through the
    // defaults, and its script is the pair of SIZE statements with or without plots.
    void splitVariant()
    {
        Page p(GraphicalOutputSplit);
        auto* scale = p.get<VKD_QT4_ComboBox>("box_scale");
        p.get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING")->setCurrentIndex(1);
        p.get("ScaleGroup")->getRadioButton(0)->click();
        scale->setCurrentIndex(scale->findText(QStringLiteral("1:100")));
        QCOMPARE(
            p.page->getTORVAL(QStringLiteral("+ADD"), true),
            QStringLiteral("SIZE TYPE \"-URS\" SC 100 SPLI 2X1|SIZE TYPE \"-URS\" $(XYZ) SPLI 2X1+ADD\n"));
        QCOMPARE(p.page->getTORVAL_SIZE(true), QStringLiteral("SIZE URS SC 100*1.e+10 MARG NO FORM STAN"));
        p.tree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QVERIFY(QMetaObject::invokeMethod(p.page, "slotQuerFormat"));
        p.page->slotDefaultSettings();
        QCOMPARE(p.page->getTORVAL(false),
                 QStringLiteral("SIZE DINA \"-URS\" M 0 TEIL 2X1|SIZE DINA \"-URS\" $(XYZ) TEIL 2X1"));
        // The tree is made wide enough for the plots' captions; the standard page's is not.
        const QSize hint = p.tree()->sizeHint();
        QCOMPARE(p.tree()->minimumSize(), QSize(int(hint.width() * 1.5), hint.height()));
        QCOMPARE(Page().tree()->minimumSize(), QSize(0, 0));
        // The division list has six icons.
        QVERIFY(!pageSplitIcon(5).isNull() && pageSplitIcon(6).isNull() && pageSplitIcon(-1).isNull());
    }

    // Steps on the widgets of a standard page and what the script then says (data/settings.txt).
    void settingsReachScript()
    {
        QVERIFY(matchesTranscript(QStringLiteral("settings.txt"), [](const QString& line) {
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
                } else if (auto* group = p.get(qPrintable(word))) {
                    group->getRadioButton(value.toInt())->click();
                }
            }
            auto* pictures = p.get("PicturesGroup");
            const QString script = p.page->getTORVAL(true);
            return QStringLiteral("%1%2 | %3 | %4 | %5 | %6")
                .arg(pictures->selectedButton())
                .arg(pictures->isEnabled() ? "" : " greyed", p.page->getTORVAL_SIZE(true).replace('\n', '/'),
                     p.page->getTORVAL_SCHR(true), p.page->getTORVAL_BEOB(true),
                     script.section(QStringLiteral("#define SCHR="), 1).section('\n', 0, 0));
        }));
    }

    // The rows that a host's table gives the tree: labels, keys, order, what is skipped
    // (data/tablerows.txt).
    void tableRows()
    {
        QVERIFY(matchesTranscript(QStringLiteral("tablerows.txt"), [](const QString& line) {
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
            binding.setWidgets(p.page, &widget, 1, checkColumn, titleColumn);
            const QString before = p.rows();
            binding.reset();
            return (before == "99=old+" ? "" : "rows before reset! ") + p.rows();
        }));
    }

    // A change that leaves the rows as they are keeps the choice, also after rows given by other
    // means; a real one rebuilds with the defaults. Titles never reach the script.
    void tableChanges()
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
        binding.setWidgets(p.page, &widget, 1, 0, 2);
        binding.reset();
        p.page->setUsedNumbersAndNames({{1, 7, "other"}});
        binding.reset();
        QCOMPARE(p.rows(), QStringLiteral("1=1 : t1+;2=2 : t2"));
        p.plot()->child(1)->setCheckState(0, Qt::Checked);
        widget.item(1, 3)->setText(QStringLiteral("changed elsewhere"));
        widget.item(1, 1)->setText(QStringLiteral("2.0"));
        QCOMPARE(p.rows(), QStringLiteral("1=1 : t1+;2=2 : t2+"));
        static_cast<VKD_H_TwSimpleCheckBoxItem*>(widget.item(0, 0))->setChecked(false);
        QCOMPARE(p.rows(), QStringLiteral("2=2 : t2+"));
        widget.removeRow(0);
        widget.insertRow(0);
        widget.item(1, 2)->setText(QStringLiteral("Wind\n\"gust\" | 7+8: $"));
        QCOMPARE(p.page->getTORVAL(true).section(QStringLiteral("FORM STAN\n"), 1),
                 QStringLiteral("VIEW TYPE \nLC 2 DESI 2\nPICT a\nPICT b\nEND\n"));
        widget.removeRow(1);
        QCOMPARE(p.rows(), QString());
    }

    // The string of a page, tree choice included; a new page that reads it writes it again.
    void roundTrip()
    {
        const std::pair<int, const char*> cases[] = {{GraphicalOutputStandard, "standard-defaults"},
                                                     {GraphicalOutputStandard, "standard-set"},
                                                     {GraphicalOutputSplit, "split-set"}};
        for (const auto& [progname, name] : cases) {
            Page written(progname);
            if (QByteArray(name).endsWith("set")) {
                written.setDistinct();
                written.get<VKD_H_BoxedLineEdit>()->setText(QStringLiteral("2,5"));
                written.plot(0)->setCheckState(0, Qt::Checked);
                written.plot(1)->setCheckState(0, Qt::Unchecked);
            }
            const QString xml = written.page->writeXMLstring();
            QVERIFY(matchesReference(xml + '\n', QStringLiteral("state-%1.txt").arg(name)));
            Page read(progname);
            read.page->readXMLstring(xml);
            QCOMPARE(read.state(), written.state());
            QCOMPARE(read.page->writeXMLstring(), xml);
        }
    }

    // Each rule of reading; see the reference file. The tree's choice stays when the string has
    // no part for it.
    void readRules()
    {
        QVERIFY(matchesTranscript(QStringLiteral("readrules.txt"), [](QString xml) {
            const bool split = xml.startsWith(QLatin1String("split:"));
            Page p(split ? GraphicalOutputSplit : GraphicalOutputStandard);
            p.setDistinct();
            p.plot(1)->setCheckState(0, Qt::Unchecked);
            const QString checked = p.get<GraphicalOutputTreeWidget>()->selectionText();
            p.page->readXMLstring(xml.remove(QStringLiteral("split:")));
            return p.state() +
                   (p.get<GraphicalOutputTreeWidget>()->selectionText() == checked ? "" : " tree changed!");
        }));
    }

    // The camera goes to the store and then to the preview, with or without a part of its own; one
    // that does not parse leaves the view as it was. Writing stores the preview's camera first.
    void cameraPart()
    {
        Page p(GraphicalOutputStandard, false, true);
        vkd::dbo::setAnimatorPerspektive(0, QStringLiteral("10 20 2 0 0"));
        for (const char* xml :
             {"<View>4</View>", "<Camera>40 10 1 0.25 0</Camera>", "<Camera>40 x</Camera>"}) {
            p.commands.clear();
            p.page->readXMLstring(QLatin1String(xml));
            QCOMPARE(p.commands.last(), 7);
        }
        QCOMPARE(p.animator->cameraText(vkd::dbo::CameraPersistentForm), QStringLiteral("40 10 1 0.25 0"));
        p.animator->setCamera({5, 6, 1.5, 0, 0});
        p.commands.clear();
        QVERIFY(p.page->writeXMLstring().contains(
            QLatin1String("<View>4</View><Camera>5 6 1.5 0 0</Camera><List_4>")));
        QCOMPARE(p.commands, QList<int>{6});
    }

    // The commands for each change of the view group, and whether the preview ends locked; the
    // slots do nothing for a button that is switched off.
    void viewCommands()
    {
        Page p(GraphicalOutputStandard, false, true);
        QVERIFY(p.commands.isEmpty());
        const struct
        {
            int to;
            QList<int> commands;
            bool enabled;
        } steps[] = {{4, {7}, true},  {3, {6, 0}, false}, {0, {3}, false},
                     {1, {4}, false}, {4, {7}, true},     {2, {6, 5}, false}};
        for (const auto& step : steps) {
            p.commands.clear();
            p.get("PerspectiveGroup")->getRadioButton(step.to)->click();
            QMetaObject::invokeMethod(p.page, "slotBeobXZ", Q_ARG(bool, false));
            QCOMPARE(p.commands, step.commands);
            QCOMPARE(p.animator->isEnabled(), step.enabled);
        }
    }

    // The chosen view reaches the preview once the page's tab first comes up, after the event
    // loop ran, and once only.
    void firstShow()
    {
        VKD_QT_TabDialog dialog;
        auto* other = new QWidget;
        dialog.addTab(other, QStringLiteral("Other"));
        Page p(GraphicalOutputStandard, false, true, &dialog);
        dialog.addTab(p.page, QStringLiteral("Output"));
        p.get("PerspectiveGroup")->setButton(0);
        p.commands.clear();
        p.animator->setEnabled(true);
        for (QWidget* tab : std::initializer_list<QWidget*>{other, p.page, other, p.page}) {
            const int before = p.commands.size();
            dialog.tabWidget()->setCurrentWidget(tab);
            QCOMPARE(p.commands.size(), before);
            QCoreApplication::processEvents();
        }
        QCOMPARE(p.commands, QList<int>{3});
        QVERIFY(!p.animator->isEnabled());
    }
};

QTEST_MAIN(TestOutputPage)
#include "tst_outputpage.moc"

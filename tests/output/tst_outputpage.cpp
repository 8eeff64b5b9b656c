#include "pagefixture.h"
#include "pagespliticons.h"

#include <VKD_H_TableWidget.h>
#include <VKD_H_TwSimpleItems.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

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
    void widgets_data();
    void widgets();
    void defaultSettings();
    void splitVariant();
    void pageSplitIcons();
    void settingsReachScript();
    void emptySelection();
    void tableRows();
    void tableChanges();
    void additionalTag();
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
    p.setDistinct();
    p.plot()->child(1)->setCheckState(0, Qt::Checked);
    QCOMPARE(p.state() + ' ' + p.rows(), QStringLiteral("0 1:100 3 1 1 0~ 1 - 1=r1+;2=r2+"));
    p.get<QPushButton>("Button: Default settings")->click();
    QCOMPARE(p.state() + ' ' + p.rows(), QStringLiteral("1 1:100 2 0 0 1 3 - 1=r1+;2=r2"));
    QCOMPARE(p.page->getTORVAL_SCHR(true), QStringLiteral("SCHH H6 0.2"));
}

// The split page passes over the widgets it lacks, keeps its sheet division through the
// defaults, and its script is the pair of SIZE statements with or without plots.
void TestOutputPage::splitVariant()
{
    Page p(GraphicalOutputSplit);
    auto* scale = p.get<VKD_QT4_ComboBox>("box_scale");
    p.get<VKD_QT4_ComboBox>("COMBO_PAGESPLITTING")->setCurrentIndex(1);
    p.get("ScaleGroup")->getRadioButton(0)->click();
    scale->setCurrentIndex(scale->findText(QStringLiteral("1:100")));
    QCOMPARE(p.page->getTORVAL(QStringLiteral("+ADD"), true),
             QStringLiteral("SIZE TYPE \"-URS\" SC 100 SPLI 2X1|SIZE TYPE \"-URS\" $(XYZ) SPLI 2X1+ADD\n"));
    QCOMPARE(p.page->getTORVAL_SIZE(true), QStringLiteral("SIZE URS SC 100*1.e+10 MARG NO FORM STAN"));
    p.tree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QVERIFY(QMetaObject::invokeMethod(p.page, "slotQuerFormat"));
    p.page->slotDefaultSettings();
    QCOMPARE(p.page->getTORVAL(false),
             QStringLiteral("SIZE DINA \"-URS\" M 0 TEIL 2X1|SIZE DINA \"-URS\" $(XYZ) TEIL 2X1"));
}

// The icons of the sheet divisions: "#" the outline and division lines, "o" the shadow, "."
// paper, "?" any other colour.
void TestOutputPage::pageSplitIcons()
{
    QString out;
    for (int id = 0; id < 6; ++id) {
        const QImage icon = pageSplitIcon(id);
        out += QStringLiteral("== %1, %2x%3\n").arg(id).arg(icon.width()).arg(icon.height());
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = 0; x < icon.width(); ++x) {
                const QRgb pixel = icon.pixel(x, y);
                out += pixel == 0xff0000ff   ? '#'
                       : pixel == 0xff000080 ? 'o'
                       : pixel == 0xffffffff ? '.'
                                             : '?';
            }
            out += '\n';
        }
    }
    QVERIFY(matchesReference(out, QStringLiteral("spliticons.txt")));
    QVERIFY(pageSplitIcon(6).isNull());
    QVERIFY(pageSplitIcon(-1).isNull());
}

// Steps on the widgets of a standard page and what the script then says (data/settings.txt).
void TestOutputPage::settingsReachScript()
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

// A change that leaves the rows as they are costs no rebuild and keeps the choice, also after
// rows given by other means; a real one rebuilds with the defaults. Titles never reach the script.
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
    binding.setWidgets(p.page, &widget, 1, 0, 2);
    QSignalSpy rebuilds(p.tree()->model(), &QAbstractItemModel::modelReset);
    binding.reset();
    p.page->setUsedNumbersAndNames({{1, 7, "other"}});
    binding.reset();
    QCOMPARE(p.rows(), QStringLiteral("1=1 : t1+;2=2 : t2"));
    QCOMPARE(rebuilds.count(), 3);
    p.plot()->child(1)->setCheckState(0, Qt::Checked);
    widget.item(1, 3)->setText(QStringLiteral("changed elsewhere"));
    widget.item(1, 1)->setText(QStringLiteral("2.0"));
    QCOMPARE(rebuilds.count(), 3);
    QCOMPARE(p.rows(), QStringLiteral("1=1 : t1+;2=2 : t2+"));
    static_cast<VKD_H_TwSimpleCheckBoxItem*>(widget.item(0, 0))->setChecked(false);
    QCOMPARE(p.rows(), QStringLiteral("2=2 : t2+"));
    widget.removeRow(0);
    widget.insertRow(0);
    QCOMPARE(rebuilds.count(), 4);
    widget.item(1, 2)->setText(QStringLiteral("Wind\n\"gust\" | 7+8: $"));
    QCOMPARE(p.page->getTORVAL(true).section(QStringLiteral("FORM STAN\n"), 1),
             QStringLiteral("VIEW TYPE \nLC 2 DESI 2\nPICT a\nPICT b\nEND\n"));
    widget.removeRow(1);
    QCOMPARE(p.rows(), QString());
    QCOMPARE(rebuilds.count(), 6);
}

// Each click on the tag's button declares it once more; a click on another withdraws it.
void TestOutputPage::additionalTag()
{
    Page p;
    VKD_QT_RadioButtonGroup group(QStringLiteral("host"), std::vector<StructRadioButtonGrup>(3), nullptr,
                                  "host", Qt::Vertical, -1);
    VKD_P_WidgetGraphicalOutput_AdditionalData tag;
    group.getRadioButton(1)->click();
    tag.setWidget(p.page, &group, QStringLiteral("Quad"), 1);
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

QTEST_MAIN(TestOutputPage)
#include "tst_outputpage.moc"

// The reinforcement and crack control dialogs, and the page buttons that open them, driven as
// a user would: typing, choosing, pressing OK and Cancel, answering the boxes that come up.
#include "DesignParameterTable.h"
#include "designrecord.h"
#include "dlgCrackControl.h"
#include "dlgReinforcement.h"
#include "reference.h"
#include "rowtext.h"

#include <VKD_A_BarDiameterCombo.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_InfoText.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_TableWidgetButton.h>
#include <vkd_q.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

using namespace vkd::plib::design;

namespace {

tagZOB_QUAD_RIM makeRecord(int type, const QString& setup)
{
    tagZOB_QUAD_RIM record = getDefaultMerPara(false);
    record.type = type;
    for (const QString& assignment : setup.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        for (const RealField& f : kRealFields)
            if (assignment.section(QLatin1Char('='), 0, 0) == QLatin1String(f.name))
                record.*f.member = assignment.section(QLatin1Char('='), 1).toFloat();
    return record;
}

// The real fields that differ, "name=value" in the order of the record; the integer words must
// not differ at all.
QString changes(const tagZOB_QUAD_RIM& before, const tagZOB_QUAD_RIM& after)
{
    QStringList out;
    if (before.group != after.group || before.subId != after.subId || before.type != after.type ||
        before.mode != after.mode || before.mark != after.mark)
        out << QStringLiteral("integer words changed");
    for (const RealField& f : kRealFields)
        if (before.*f.member != after.*f.member)
            out << QStringLiteral("%1=%2").arg(QLatin1String(f.name)).arg(double(after.*f.member), 0, 'g', 7);
    return out.join(QLatin1Char(' '));
}

QString describe(QWidget* w)
{
    auto edit = [](QWidget* e) {
        auto* le = qobject_cast<VKD_H_LineEdit*>(e);
        return le ? QStringLiteral("edit %1 code %2 \"%3\"")
                        .arg(le->objectName())
                        .arg(le->description().dimensionCode)
                        .arg(le->toolTip())
                  : QStringLiteral("<no edit>");
    };
    if (auto* label = qobject_cast<QLabel*>(w))
        return QStringLiteral("label \"%1\"").arg(label->text());
    if (qobject_cast<VKD_A_BarDiameterCombo*>(w))
        return QStringLiteral("bars ") + w->objectName();
    if (auto* combo = qobject_cast<VKD_QT4_ComboBox*>(w)) {
        QStringList presets;
        for (int i = 0; i < combo->count(); ++i)
            presets << combo->itemText(i);
        return QStringLiteral("combo %1 editable %2 %3 presets %4")
            .arg(combo->objectName())
            .arg(combo->isEditable())
            .arg(edit(combo->lineEdit()), presets.join(QLatin1Char(' ')));
    }
    if (qobject_cast<VKD_H_LineEdit*>(w))
        return edit(w);
    if (auto* button = qobject_cast<QPushButton*>(w))
        return QStringLiteral("button %1 \"%2\" icon %3")
            .arg(button->objectName(), button->text())
            .arg(!button->icon().isNull());
    if (auto* info = qobject_cast<VKD_QT_InfoText*>(w))
        return QStringLiteral("info %1 \"%2\"").arg(info->objectName(), info->text());
    return QStringLiteral("%1 %2").arg(QLatin1String(w->metaObject()->className()), w->objectName());
}

// The dialog as the user meets it: title, then the items of its layout, a group box with the
// cells of its grid.
QString describeDialog(QDialog* dialog)
{
    QStringList out{QStringLiteral("title \"%1\"").arg(dialog->windowTitle())};
    out << QStringLiteral("white background: %1")
               .arg(dialog->autoFillBackground() && dialog->palette().color(QPalette::Window) == Qt::white);
    QLayout* layout = dialog->layout();
    for (int i = 0; layout && i < layout->count(); ++i) {
        QWidget* w = layout->itemAt(i)->widget();
        auto* group = qobject_cast<QGroupBox*>(w);
        if (!group) {
            out << (w ? describe(w) : QStringLiteral("<not a widget>"));
            continue;
        }
        out << QStringLiteral("group %1 \"%2\"").arg(group->objectName(), group->title());
        auto* grid = qobject_cast<QGridLayout*>(group->layout());
        for (int r = 0; grid && r < grid->rowCount(); ++r)
            for (int c = 0; c < grid->columnCount(); ++c)
                if (QLayoutItem* item = grid->itemAtPosition(r, c); item && item->widget())
                    out << QStringLiteral("  %1,%2 %3").arg(r).arg(c).arg(describe(item->widget()));
    }
    return out.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

// Runs `act` on the first modal widget that `match` takes, as soon as it is up.
void onModal(const std::function<bool(QWidget*)>& match, const std::function<void(QWidget*)>& act)
{
    auto* timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, match, act] {
        QWidget* w = QApplication::activeModalWidget();
        if (!w || !match(w))
            return;
        timer->stop();
        timer->deleteLater();
        act(w);
    });
    timer->start();
}

bool isCalculator(QWidget* w)
{
    return w->objectName() == QLatin1String("reinforcementCalculation");
}

// Answers every message box while it lives, and keeps what each said.
class BoxWatcher
{
public:
    BoxWatcher()
    {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                seen << box->windowTitle() + QStringLiteral(": ") + box->text();
                box->buttons().value(0)->click();
            }
        });
        m_timer.start();
    }
    QStringList seen;

private:
    QTimer m_timer;
};

QPushButton* button(QWidget* dialog, bool ok)
{
    auto* row = dialog->findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"));
    return ok ? row->cmdOk() : row->cmdCancel();
}

void type(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

// "name=text" per field: an edit or crack combo gets the text typed, a bar combo the bar
// value; "name=#i" chooses preset i of a crack combo.
void enter(QWidget* dialog, const QString& input)
{
    for (const QString& assignment : input.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString name = assignment.section(QLatin1Char('='), 0, 0);
        const QString text = assignment.section(QLatin1Char('='), 1);
        if (auto* bars = dialog->findChild<VKD_A_BarDiameterCombo*>(name))
            bars->setCurrent(text.toFloat());
        else if (auto* combo = dialog->findChild<VKD_QT4_ComboBox*>(name))
            text.startsWith(QLatin1Char('#')) ? combo->setCurrentIndex(text.mid(1).toInt())
                                              : type(combo->lineEdit(), text);
        else if (auto* edit = dialog->findChild<VKD_H_LineEdit*>(name))
            type(edit, text);
        else
            QFAIL(qPrintable(QStringLiteral("no field ") + name));
    }
}

QWidget* gridWidget(QWidget* dialog, const QString& group, int row, int column)
{
    auto* box = dialog->findChild<QGroupBox*>(group);
    QLayoutItem* item = box ? static_cast<QGridLayout*>(box->layout())->itemAtPosition(row, column) : nullptr;
    return item ? item->widget() : nullptr;
}

} // namespace

class TestDesignDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { vkd_lib_setvalue(102, 1); }

    void layout_data()
    {
        QTest::addColumn<bool>("crack");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("reference");
        for (int type : {1, 2, 3, 4}) {
            const QString layers = type == 3 ? QStringLiteral("three-layers") : QStringLiteral("two-layers");
            QTest::addRow("reinforcement, type %d", type)
                << false << type << QStringLiteral("reinforcement-%1.txt").arg(layers);
            QTest::addRow("crack control, type %d", type)
                << true << type << QStringLiteral("crack-%1.txt").arg(layers);
        }
    }

    // Which widgets each type has, where they stand and what they say.
    void layout()
    {
        QFETCH(bool, crack);
        QFETCH(int, type);
        QFETCH(QString, reference);
        tagZOB_QUAD_RIM record = makeRecord(type, QString());
        std::unique_ptr<QDialog> dialog;
        if (crack)
            dialog = std::make_unique<dlgCrackControl>(&record, nullptr);
        else
            dialog = std::make_unique<dlgReinforcement>(0, &record, nullptr);
        QVERIFY(matchesReference(describeDialog(dialog.get()), reference));
    }

    void okWrites_data()
    {
        QTest::addColumn<bool>("crack");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("setup"); // record fields, base units
        QTest::addColumn<QString>("input"); // see enter()
        QTest::addColumn<QString>("written");
        // clang-format off
        QTest::newRow("reinforcement 1: third layer cleared") << false << 1
            << "dioi=12 asoi=0.0002 amoi=0.0007 amui=0.0009" << ""
            << "dioi=-99999 diui=-99999 asoi=-99999 amoi=-99999 amui=-99999";
        QTest::newRow("reinforcement 3: amoi opens with amui") << false << 3 << "amoi=0.0007 amui=0.0009" << ""
            << "amoi=0.0009";
        QTest::newRow("reinforcement 3: typed and chosen") << false << 3 << "" << "aso=5 asui=1,5 amoi=20 m_pDIU=16"
            << "diu=16 aso=0.0005 asui=0.00015 amoi=0.002";
        QTest::newRow("reinforcement 2: bar not in the table kept, stored values exact") << false << 2
            << "dio=11 aso=0.000123456" << "" << "dioi=-99999 diui=-99999";
        QTest::newRow("reinforcement 1: equal and one-sided pairs pass") << false << 1
            << "aso=0.0005 amo=0.0005 asu=0.0009 amoq=0.0001" << "" << "dioi=-99999 diui=-99999";
        QTest::newRow("reinforcement 4: emptied is not set") << false << 4 << "aso=0.0003" << "aso="
            << "dioi=-99999 diui=-99999 aso=-99999";
        QTest::newRow("crack 1: third layer cleared") << true << 1 << "wkoi=0.0002 sigui=300000 wko=0.0003" << ""
            << "wkoi=-99999 sigui=-99999";
        QTest::newRow("crack 3: value not in the list kept") << true << 3 << "wko=0.00025" << "" << "";
        QTest::newRow("crack 3: choosing 450.00 and 0.40") << true << 3 << "" << "m_pSIGU=#7 m_pWKUI=#2"
            << "wkui=0.0004 sigu=450000";
        QTest::newRow("crack 2: typed and emptied") << true << 2 << "wku=0.0003" << "m_pWKU= m_pSIGOQ=300"
            << "wku=-99999 sigoq=300000";
        // clang-format on
    }

    // What an OK stores: the fields of the dialog, and not set for those it has no widget for.
    void okWrites()
    {
        QFETCH(bool, crack);
        QFETCH(int, type);
        QFETCH(QString, setup);
        QFETCH(QString, input);
        QFETCH(QString, written);
        const tagZOB_QUAD_RIM before = makeRecord(type, setup);
        tagZOB_QUAD_RIM record = before;
        std::unique_ptr<VKD_QT_Dialog> dialog;
        if (crack)
            dialog = std::make_unique<dlgCrackControl>(&record, nullptr);
        else
            dialog = std::make_unique<dlgReinforcement>(0, &record, nullptr);
        dialog->show();
        enter(dialog.get(), input);
        BoxWatcher boxes;
        button(dialog.get(), true)->click();
        QCOMPARE(boxes.seen, QStringList());
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QCOMPARE(changes(before, record), QString()); // the dialog alone writes nothing
        if (crack)
            static_cast<dlgCrackControl*>(dialog.get())->writeToRecord(&record);
        else
            static_cast<dlgReinforcement*>(dialog.get())->writeToRecord(&record);
        QCOMPARE(changes(before, record), written);
    }

    // Stored values show as they are; the lists stay as they are, also after Return.
    void crackShown()
    {
        tagZOB_QUAD_RIM record = makeRecord(1, QStringLiteral("wko=0.00025 sigu=450000"));
        dlgCrackControl dialog(&record, nullptr);
        QStringList shown;
        for (const char* name : {"m_pWKO", "m_pWKOQ", "m_pSIGU"}) {
            auto* combo = dialog.findChild<VKD_QT4_ComboBox*>(QLatin1String(name));
            QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
            shown << QStringLiteral("%1 \"%2\" %3")
                         .arg(QLatin1String(name), combo->lineEdit()->text())
                         .arg(combo->count());
        }
        QCOMPARE(shown, (QStringList{"m_pWKO \"0.25\" 3", "m_pWKOQ \"\" 3", "m_pSIGU \"450.0\" 8"}));
    }

    // Two wrong pairs: each press gives one warning and leaves the dialog open, until both are
    // right. Text the field refuses gives no warning and does not close either.
    void oneWarningPerOk()
    {
        tagZOB_QUAD_RIM record = makeRecord(3, QString());
        dlgReinforcement dialog(0, &record, nullptr);
        dialog.show();
        QStringList log;
        for (const char* input : {"aso=5 amo=4 asui=3 amui=2", "amui=3", "amo=abc", "amo=5"}) {
            enter(&dialog, QLatin1String(input));
            BoxWatcher boxes;
            QTest::mouseClick(button(&dialog, true), Qt::LeftButton);
            log << QStringLiteral("%1 %2")
                       .arg(boxes.seen.join(QLatin1Char('|')))
                       .arg(dialog.isVisible() ? "open" : "closed");
        }
        const QString warning = QStringLiteral("Warning: Min greater than Max is not allowed!");
        QCOMPARE(log, (QStringList{warning + " open", warning + " open", " open", " closed"}));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    // Each calculator button works with the bar of its row and writes into its own edit; the
    // calculator's 15 cm give pi * d² / 4 / 0.15 per metre. Cancel writes back what stood.
    void calculatorButtons()
    {
        tagZOB_QUAD_RIM record = makeRecord(3, QString());
        dlgReinforcement dialog(0, &record, nullptr);
        enter(&dialog,
              QStringLiteral("m_pDIO=6 m_pDIU=8 m_pDIOQ=10 m_pDIUQ=12 m_pDIOI=14 m_pDIUI=16 amui=1"));
        QStringList filled;
        for (const char* group : {"upper", "Lower"})
            for (int row = 1; row <= 3; ++row)
                for (int column : {6, 10}) {
                    auto* calc =
                        qobject_cast<QPushButton*>(gridWidget(&dialog, QLatin1String(group), row, column));
                    QVERIFY(calc && calc->objectName() == QLatin1String("Calc"));
                    const bool ok = column == 6 || row != 3;
                    onModal(isCalculator, [ok](QWidget* c) { button(c, ok)->click(); });
                    calc->click();
                }
        for (VKD_H_LineEdit* edit : dialog.findChildren<VKD_H_LineEdit*>())
            filled << edit->objectName() + QLatin1Char(' ') + edit->text();
        QCOMPARE(filled.join(QLatin1Char(',')),
                 QStringLiteral("aso 1.88,amo 1.88,asoq 5.24,amoq 5.24,asoi 10.26,amoi ,"
                                "asu 3.35,amu 3.35,asuq 7.54,amuq 7.54,asui 13.40,amui 1.00"));
    }

    void pageButtons_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("calculator");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("written");
        // The row for the remaining groups of a new project: type 1, bars of 10 in all layers.
        // clang-format off
        QTest::newRow("reinforcement, OK") << int(ColumnReinforcement) << "aso=5" << false << true
            << "dioi=-99999 diui=-99999 aso=0.0005";
        QTest::newRow("reinforcement, calculator, OK") << int(ColumnReinforcement) << "m_pDIO=12" << true << true
            << "dio=12 dioi=-99999 diui=-99999 aso=0.0007539822";
        QTest::newRow("reinforcement, calculator, Cancel") << int(ColumnReinforcement) << "aso=5" << true << false << "";
        QTest::newRow("crack control, OK") << int(ColumnCrackControl) << "m_pSIGU=#7 m_pWKU=#1" << false << true
            << "wku=0.0003 sigu=450000";
        QTest::newRow("crack control, Cancel") << int(ColumnCrackControl) << "m_pWKO=0.3" << false << false << "";
        // clang-format on
    }

    // The table's buttons open the dialogs on the current row; only OK reaches the record.
    void pageButtons()
    {
        QFETCH(int, column);
        QFETCH(QString, input);
        QFETCH(bool, calculator);
        QFETCH(bool, ok);
        QFETCH(QString, written);
        QTemporaryDir dir;
        VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("p.vkd")));
        VKD_P_DesignParameter::checkAndCreateZobDefault(doc.index());
        tagZOB_QUAD_RIM before{}, after{};
        int length = sizeof before;
        QCOMPARE(int(vkd_zob_get(doc.index(), 200, 6, &before, &length, 0)), 0);
        QString cellBefore, cellAfter;
        {
            VKD_P_DesignParameter page(&doc, &doc, nullptr, false, false);
            page.init();
            page.readZob();
            page.show();
            auto* table = page.findChild<DesignParameterTable*>();
            QVERIFY(table);
            int col = 0;
            while (col < table->columnCount() && table->getColumnId(col) != column)
                ++col;
            cellBefore = table->item(0, col)->text();
            table->setCurrentCell(0, col);
            auto* cell = qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(0, col));
            QVERIFY(cell);
            onModal([](QWidget* w) { return qobject_cast<VKD_QT_Dialog*>(w) != nullptr; },
                    [&](QWidget* dialog) {
                        enter(dialog, input);
                        if (calculator) {
                            onModal(isCalculator, [](QWidget* c) { button(c, true)->click(); });
                            qobject_cast<QPushButton*>(gridWidget(dialog, QStringLiteral("upper"), 1, 6))
                                ->click();
                        }
                        button(dialog, ok)->click();
                    });
            cell->button()->click();
            cellAfter = table->item(0, col)->text();
            page.writeToZob();
        }
        length = sizeof after;
        QCOMPARE(int(vkd_zob_get(doc.index(), 200, 6, &after, &length, 0)), 0);
        QCOMPARE(changes(before, after), written);
        QCOMPARE(cellAfter != cellBefore, !written.isEmpty());
    }
};

QTEST_MAIN(TestDesignDialogs)
#include "tst_designdialogs.moc"

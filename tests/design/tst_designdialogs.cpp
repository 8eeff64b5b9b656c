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

#include <QDoubleSpinBox>
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
    if (auto* label = qobject_cast<QLabel*>(w))
        return QStringLiteral("label \"%1\"").arg(label->text());
    if (auto* combo = qobject_cast<VKD_A_BarDiameterCombo*>(w))
        return QStringLiteral("bars %1").arg(combo->objectName());
    if (auto* combo = qobject_cast<VKD_QT4_ComboBox*>(w)) {
        auto* edit = qobject_cast<VKD_H_LineEdit*>(combo->lineEdit());
        QStringList presets;
        for (int i = 0; i < combo->count(); ++i)
            presets << combo->itemText(i);
        return QStringLiteral("combo %1%2 edit %3 code %4 \"%5\" presets %6")
            .arg(combo->objectName(), combo->isEditable() ? QString() : QStringLiteral(" (not editable)"),
                 edit ? edit->objectName() : QStringLiteral("<none>"))
            .arg(edit ? edit->description().dimensionCode : 0)
            .arg(edit ? edit->toolTip() : QString(), presets.join(QLatin1Char(' ')));
    }
    if (auto* edit = qobject_cast<VKD_H_LineEdit*>(w))
        return QStringLiteral("edit %1 code %2 \"%3\"")
            .arg(edit->objectName())
            .arg(edit->description().dimensionCode)
            .arg(edit->toolTip());
    if (auto* button = qobject_cast<QPushButton*>(w))
        return QStringLiteral("button %1 \"%2\"%3")
            .arg(button->objectName(), button->text(),
                 button->icon().isNull() ? QString() : QStringLiteral(" calculator icon"));
    if (auto* info = qobject_cast<VKD_QT_InfoText*>(w))
        return QStringLiteral("info %1 \"%2\"").arg(info->objectName(), info->text());
    if (qobject_cast<VKD_QT_Ok*>(w))
        return QStringLiteral("buttons %1").arg(w->objectName());
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

QPushButton* okButton(QWidget* dialog)
{
    return dialog->findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"))->cmdOk();
}

QPushButton* cancelButton(QWidget* dialog)
{
    return dialog->findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"))->cmdCancel();
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
        QTest::newRow("reinforcement 1: the third layer is cleared") << false << 1
            << "dioi=12 asoi=0.0002 amoi=0.0007 amui=0.0009" << ""
            << "dioi=-99999 diui=-99999 asoi=-99999 amoi=-99999 amui=-99999";
        QTest::newRow("reinforcement 3: amoi opens with amui") << false << 3
            << "amoi=0.0007 amui=0.0009" << "" << "amoi=0.0009";
        QTest::newRow("reinforcement 3: typed and chosen") << false << 3
            << "" << "aso=5 asuq=2.5 asui=1,5 amoi=20 m_pDIU=16"
            << "diu=16 aso=0.0005 asuq=0.00025 asui=0.00015 amoi=0.002";
        QTest::newRow("reinforcement 2: bar not in the table kept") << false << 2
            << "dio=11 dioq=-99999" << "" << "dioi=-99999 diui=-99999";
        QTest::newRow("reinforcement 4: emptied field is not set") << false << 4
            << "aso=0.0003 amu=0.0011" << "aso=" << "dioi=-99999 diui=-99999 aso=-99999";
        QTest::newRow("reinforcement 3: stored values exactly back") << false << 3
            << "aso=0.000123456 amu=0.0011 dioi=28" << "" << "";
        QTest::newRow("crack 1: the third layer is cleared") << true << 1
            << "wkoi=0.0002 sigui=300000 wko=0.0003" << "" << "wkoi=-99999 sigui=-99999";
        QTest::newRow("crack 3: nothing set, nothing typed") << true << 3 << "" << "" << "";
        QTest::newRow("crack 3: a value not in the list kept") << true << 3 << "wko=0.00025 sigoi=255000" << "" << "";
        QTest::newRow("crack 3: choosing 450.00") << true << 3 << "" << "m_pSIGU=#7" << "sigu=450000";
        QTest::newRow("crack 3: choosing 0.40 and 160.00") << true << 3 << "" << "m_pWKUI=#2 m_pSIGOI=#0"
            << "wkui=0.0004 sigoi=160000";
        QTest::newRow("crack 1: typed") << true << 1 << "" << "m_pWKO=0.15 m_pSIGOQ=300" << "wko=0.00015 sigoq=300000";
        QTest::newRow("crack 2: emptied") << true << 2 << "wku=0.0003" << "m_pWKU=" << "wku=-99999";
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
        okButton(dialog.get())->click();
        QCOMPARE(boxes.seen, QStringList());
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QCOMPARE(changes(before, record), QString()); // the dialog alone writes nothing
        if (crack)
            static_cast<dlgCrackControl*>(dialog.get())->writeToRecord(&record);
        else
            static_cast<dlgReinforcement*>(dialog.get())->writeToRecord(&record);
        QCOMPARE(changes(before, record), written);
    }

    // What the crack combos show for stored values, and that the lists stay as they are.
    void crackShown()
    {
        tagZOB_QUAD_RIM record = makeRecord(1, QStringLiteral("wko=0.00025 sigu=450000"));
        dlgCrackControl dialog(&record, nullptr);
        QStringList shown;
        for (const char* name : {"m_pWKO", "m_pWKOQ", "m_pSIGU", "m_pWKUQ"}) {
            auto* combo = dialog.findChild<VKD_QT4_ComboBox*>(QLatin1String(name));
            shown << QStringLiteral("%1 \"%2\" %3")
                         .arg(QLatin1String(name), combo->lineEdit()->text())
                         .arg(combo->count());
        }
        QCOMPARE(shown, (QStringList{"m_pWKO \"0.25\" 3", "m_pWKOQ \"\" 3", "m_pSIGU \"450.0\" 8",
                                     "m_pWKUQ \"\" 3"}));
        // A typed value confirmed with Return is a value, not a new preset.
        auto* combo = dialog.findChild<VKD_QT4_ComboBox*>(QStringLiteral("m_pWKO"));
        type(combo->lineEdit(), QStringLiteral("0.35"));
        QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
        QCOMPARE(combo->count(), 3);
    }

    void checkMinMax_data()
    {
        QTest::addColumn<float>("minimum");
        QTest::addColumn<float>("maximum");
        QTest::addColumn<bool>("holds");
        QTest::newRow("equal") << 5.0f << 5.0f << true;
        QTest::newRow("minimum above maximum") << 5.0f << 4.0f << false;
        QTest::newRow("one float step above") << std::nextafter(5.0f, 6.0f) << 5.0f << false;
        QTest::newRow("no maximum") << 5.0f << -99999.0f << true;
        QTest::newRow("no minimum") << -99999.0f << 4.0f << true;
        QTest::newRow("zero maximum") << 5.0f << 0.0f << false;
    }

    void checkMinMax()
    {
        QFETCH(float, minimum);
        QFETCH(float, maximum);
        QFETCH(bool, holds);
        tagZOB_QUAD_RIM record = makeRecord(1, QString());
        dlgReinforcement dialog(0, &record, nullptr);
        BoxWatcher boxes;
        QCOMPARE(dialog.checkMinMax(minimum, maximum), holds);
        QCOMPARE(boxes.seen,
                 holds ? QStringList() : QStringList{"Warning: Min greater than Max is not allowed!"});
    }

    // Two wrong pairs: each press gives one warning and leaves the dialog open, until both are
    // right. Text the field refuses gives no warning and does not close either.
    void oneWarningPerOk()
    {
        tagZOB_QUAD_RIM record = makeRecord(3, QString());
        dlgReinforcement dialog(0, &record, nullptr);
        dialog.show();
        enter(&dialog, QStringLiteral("aso=5 amo=4 asui=3 amui=2"));
        QStringList log;
        auto press = [&] {
            BoxWatcher boxes;
            QTest::mouseClick(okButton(&dialog), Qt::LeftButton);
            log << QStringLiteral("%1 warning(s), %2")
                       .arg(boxes.seen.size())
                       .arg(dialog.isVisible() ? "open" : "closed");
        };
        press();
        enter(&dialog, QStringLiteral("amui=3"));
        press();
        enter(&dialog, QStringLiteral("amo=abc"));
        press();
        enter(&dialog, QStringLiteral("amo=5"));
        press();
        QCOMPARE(log, (QStringList{"1 warning(s), open", "1 warning(s), open", "0 warning(s), open",
                                   "0 warning(s), closed"}));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void calculatorButtons_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("changed");
        // Bars 6, 8, 10, 12, 14, 16 in m_pDIO, m_pDIU, m_pDIOQ, m_pDIUQ, m_pDIOI, m_pDIUI; the
        // calculator's 15 cm give pi * d² / 4 / 0.15 m per metre.
        // clang-format off
        QTest::newRow("calcO") << "upper" << 1 << 6 << true << "aso 1.88";
        QTest::newRow("calcMaxO") << "upper" << 1 << 10 << true << "amo 1.88";
        QTest::newRow("calcOQ") << "upper" << 2 << 6 << true << "asoq 5.24";
        QTest::newRow("calcMaxOQ") << "upper" << 2 << 10 << true << "amoq 5.24";
        QTest::newRow("calcOI") << "upper" << 3 << 6 << true << "asoi 10.26";
        QTest::newRow("calcMaxOI") << "upper" << 3 << 10 << true << "amoi 10.26";
        QTest::newRow("calcU") << "Lower" << 1 << 6 << true << "asu 3.35";
        QTest::newRow("calcMaxU") << "Lower" << 1 << 10 << true << "amu 3.35";
        QTest::newRow("calcUQ") << "Lower" << 2 << 6 << true << "asuq 7.54";
        QTest::newRow("calcMaxUQ") << "Lower" << 2 << 10 << true << "amuq 7.54";
        QTest::newRow("calcUI") << "Lower" << 3 << 6 << true << "asui 13.40";
        QTest::newRow("calcMaxUI") << "Lower" << 3 << 10 << true << "amui 13.40";
        QTest::newRow("calcO cancelled") << "upper" << 1 << 6 << false << "";
        // clang-format on
    }

    // Each calculator button works with the bar of its row and writes into its own edit.
    void calculatorButtons()
    {
        QFETCH(QString, group);
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(bool, ok);
        QFETCH(QString, changed);
        tagZOB_QUAD_RIM record = makeRecord(3, QString());
        dlgReinforcement dialog(0, &record, nullptr);
        enter(&dialog, QStringLiteral("m_pDIO=6 m_pDIU=8 m_pDIOQ=10 m_pDIUQ=12 m_pDIOI=14 m_pDIUI=16"));
        auto* button = qobject_cast<QPushButton*>(gridWidget(&dialog, group, row, column));
        QVERIFY(button);
        QCOMPARE(button->objectName(), QStringLiteral("Calc"));
        onModal(isCalculator, [ok](QWidget* calculator) {
            (ok ? okButton(calculator) : cancelButton(calculator))->click();
        });
        button->click();
        QStringList filled;
        for (VKD_H_LineEdit* edit : dialog.findChildren<VKD_H_LineEdit*>())
            if (!edit->text().isEmpty())
                filled << edit->objectName() + QLatin1Char(' ') + edit->text();
        QCOMPARE(filled.join(QLatin1Char(',')), changed);
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
                            onModal(isCalculator, [](QWidget* c) {
                                c->findChild<QDoubleSpinBox*>(QStringLiteral("spacing"))->setValue(15.0);
                                okButton(c)->click();
                            });
                            qobject_cast<QPushButton*>(gridWidget(dialog, QStringLiteral("upper"), 1, 6))
                                ->click();
                        }
                        (ok ? okButton(dialog) : cancelButton(dialog))->click();
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

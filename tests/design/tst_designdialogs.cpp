// The direction and distance, reinforcement and crack control dialogs, and the table buttons that
// open them, driven as a user would: typing, choosing, pressing OK and Cancel, answering the
// boxes that come up.
#include "designrecord.h"
#include "designtest.h"
#include "dlgCrackControl.h"
#include "dlgDistanceDirection.h"
#include "dlgReinforcement.h"
#include "reference.h"
#include "rowtext.h"

#include <VKD_A_BarDiameterCombo.h>
#include <VKD_H_LineEdit.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_InfoText.h>

#include <QGroupBox>

#include <cmath>
#include <cstring>

using namespace vkd::plib::design;
using R = tagZOB_QUAD_RIM;

namespace {

// Every field of the direction and distance dialog with a value of its own, so that a field the
// dialog clears or rounds shows.
const char* const kDirectionSetup =
    "rio=0.1 rioq=1.6 rioi=0.7 riu=-0.2 riuq=1.4 riui=0.9 xref=12.5 yref=-3.25 "
    "zref=0 hio=0.0351234 hioq=0.012 hioi=0 hiu=0.04 hiuq=0.01 hiui=0.015";

float& field(R& record, const QString& name)
{
    static float none;
    for (const RealField& f : kRealFields)
        if (name == QLatin1String(f.name))
            return record.*f.member;
    qWarning("no field %s", qPrintable(name));
    return none;
}

R makeRecord(int type, const QString& setup)
{
    R record = getDefaultMerPara(false);
    record.type = type;
    for (const QString& assignment : setup.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        field(record, assignment.section(QLatin1Char('='), 0, 0)) =
            assignment.section(QLatin1Char('='), 1).toFloat();
    return record;
}

// The real fields that differ, "name=value" in the order of the record; the integer words must
// not differ at all.
QString changes(const R& before, const R& after)
{
    QStringList out;
    if (std::memcmp(&before, &after, 5 * sizeof(int32_t)) != 0)
        out << QStringLiteral("integer words changed");
    for (const RealField& f : kRealFields)
        if (std::memcmp(&(before.*f.member), &(after.*f.member), sizeof(float)) != 0)
            out << QStringLiteral("%1=%2").arg(QLatin1String(f.name)).arg(double(after.*f.member), 0, 'g', 7);
    return out.join(QLatin1Char(' '));
}

std::unique_ptr<VKD_QT_Dialog> makeDialog(const QString& kind, R* record)
{
    if (kind == QLatin1String("crack"))
        return std::make_unique<dlgCrackControl>(record, nullptr);
    if (kind == QLatin1String("direction"))
        return std::make_unique<dlgDistanceDirection>(record, nullptr);
    return std::make_unique<dlgReinforcement>(0, record, nullptr);
}

void writeToRecord(VKD_QT_Dialog* dialog, R* record)
{
    if (auto* crack = qobject_cast<dlgCrackControl*>(dialog))
        crack->writeToRecord(record);
    else if (auto* direction = qobject_cast<dlgDistanceDirection*>(dialog))
        direction->writeToRecord(record);
    else
        qobject_cast<dlgReinforcement*>(dialog)->writeToRecord(record);
}

// Each widget of the dialog in the order it was made, and what it says: the dialog as its user
// reads it, whatever its layout.
QString describeDialog(QDialog* dialog)
{
    QStringList out{
        QStringLiteral("title \"%1\", white %2")
            .arg(dialog->windowTitle())
            .arg(dialog->autoFillBackground() && dialog->palette().color(QPalette::Window) == Qt::white)};
    for (QWidget* w : dialog->findChildren<QWidget*>()) {
        const QString name = w->objectName();
        if (auto* edit = qobject_cast<VKD_H_LineEdit*>(w)) {
            out << QStringLiteral("edit %1 \"%2\" code %3 \"%4\"")
                       .arg(name, edit->text())
                       .arg(edit->description().dimensionCode)
                       .arg(edit->toolTip());
        } else if (auto* bars = qobject_cast<VKD_A_BarDiameterCombo*>(w)) {
            out << QStringLiteral("bars %1 \"%2\"").arg(name, bars->currentText());
        } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
            QStringList items;
            for (int i = 0; i < combo->count(); ++i)
                items << combo->itemText(i);
            out << QStringLiteral("combo %1 editable %2: %3")
                       .arg(name)
                       .arg(combo->isEditable())
                       .arg(items.join(' '));
        } else if (auto* label = qobject_cast<QLabel*>(w)) {
            const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
            QString text = pixmap.isNull() ? QStringLiteral("label \"%1\"").arg(label->text()) : "picture";
            for (const char* file :
                 {":/neq_merpara_rich_0.png", ":/neq_merpara_rich_1.png", ":/betondeckung_1.png"})
                if (!pixmap.isNull() && pixmap.cacheKey() == QPixmap(QLatin1String(file)).cacheKey())
                    text = QStringLiteral("picture ") + QLatin1String(file);
            out << text;
        } else if (auto* group = qobject_cast<QGroupBox*>(w)) {
            out << QStringLiteral("group %1 \"%2\"").arg(name, group->title());
        } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
            out << QStringLiteral("button %1 \"%2\" icon %3")
                       .arg(name, button->text())
                       .arg(!button->icon().isNull());
        }
    }
    // Widgets laid over each other are a fault that no text shows.
    dialog->show();
    const QList<QWidget*> all = dialog->findChildren<QWidget*>();
    for (QWidget* a : all)
        for (QWidget* b : all)
            if (a < b && a->parentWidget() == b->parentWidget() && a->isVisible() && b->isVisible() &&
                a->geometry().intersects(b->geometry()))
                out << QStringLiteral("overlap %1 %2").arg(a->objectName(), b->objectName());
    return out.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

bool isCalculator(QWidget* w)
{
    return w->objectName() == QLatin1String("reinforcementCalculation");
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

// The lines of b that differ from the line at the same place in a, each after its record.
QString changedLines(const QString& a, const QString& b)
{
    const QStringList before = a.split(QLatin1Char('\n')), after = b.split(QLatin1Char('\n'));
    QString out, record;
    for (int i = 0; i < after.size(); ++i) {
        if (after[i].startsWith(QLatin1String("record")))
            record = after[i];
        if (before.value(i) != after[i])
            out += record + QStringLiteral(" |") + after[i] + QLatin1Char('\n');
    }
    return out;
}

} // namespace

class TestDesignDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init() { vkd_lib_setvalue(kSettingLanguage, 1); }

    // Which widgets each type has and what they say; the German desktop changes
    // the figure of the directions only. Types 2 and 4 of the reinforcement and crack control
    // dialogs have the widgets of type 1 (okWrites).
    void faces()
    {
        QString out;
        const std::tuple<const char*, int, int> cases[] = {
            {"reinforcement", 1, 1}, {"reinforcement", 3, 1}, {"crack", 1, 1},     {"crack", 3, 1},
            {"direction", 0, 1},     {"direction", 1, 1},     {"direction", 2, 1}, {"direction", 3, 1},
            {"direction", 4, 1},     {"direction", 4, 0}};
        for (const auto& [kind, type, language] : cases) {
            vkd_lib_setvalue(kSettingLanguage, language);
            R record = makeRecord(type, QLatin1String(kDirectionSetup));
            out += QStringLiteral("== %1, type %2, language %3\n")
                       .arg(QLatin1String(kind))
                       .arg(type)
                       .arg(language);
            out += describeDialog(makeDialog(QLatin1String(kind), &record).get());
        }
        QVERIFY(matchesReference(out, QStringLiteral("faces.txt")));
    }

    void okWrites_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("setup");   // record fields, base units
        QTest::addColumn<QString>("input");   // see enter()
        QTest::addColumn<QString>("written"); // a name alone: written as not set
        const QString direction = QLatin1String(kDirectionSetup);
        // clang-format off
        QTest::newRow("reinforcement 1: third layer cleared") << "reinforcement" << 1
            << "dioi=12 asoi=0.0002 amoi=0.0007 amui=0.0009" << "" << "dioi diui asoi amoi amui";
        QTest::newRow("reinforcement 3: amoi opens with amui") << "reinforcement" << 3 << "amoi=0.0007 amui=0.0009"
            << "" << "amoi=0.0009";
        QTest::newRow("reinforcement 3: typed and chosen") << "reinforcement" << 3 << ""
            << "aso=5 asui=1,5 amoi=20 m_pDIU=16" << "diu=16 aso=0.0005 asui=0.00015 amoi=0.002";
        QTest::newRow("reinforcement 2: bar not in the table kept, stored values exact") << "reinforcement" << 2
            << "dio=11 aso=0.000123456" << "" << "dioi diui";
        QTest::newRow("reinforcement 1: equal and one-sided pairs pass") << "reinforcement" << 1
            << "aso=0.0005 amo=0.0005 asu=0.0009 amoq=0.0001" << "" << "dioi diui";
        QTest::newRow("reinforcement 4: emptied is not set") << "reinforcement" << 4 << "aso=0.0003" << "aso="
            << "dioi diui aso";
        QTest::newRow("crack 1: third layer cleared") << "crack" << 1 << "wkoi=0.0002 sigui=300000 wko=0.0003" << ""
            << "wkoi sigui";
        QTest::newRow("crack 3: value not in the list kept") << "crack" << 3 << "wko=0.00025" << "" << "";
        QTest::newRow("crack 3: choosing 450.00 and 0.40") << "crack" << 3 << "" << "m_pSIGU=#7 m_pWKUI=#2"
            << "wkui=0.0004 sigu=450000";
        QTest::newRow("crack 2: typed and emptied") << "crack" << 2 << "wku=0.0003" << "m_pWKU= m_pSIGOQ=300"
            << "wku sigoq=300000";
        // What an edit shows stands for the exact stored value; fields of no edit are cleared.
        QTest::newRow("direction 1: two layers orthogonal") << "direction" << 1 << direction << ""
            << "rioq rioi riuq riui xref yref zref hioi hiui";
        QTest::newRow("direction 2: two layers") << "direction" << 2 << direction << "" << "rioi riui xref yref zref hioi hiui";
        QTest::newRow("direction 3: three layers") << "direction" << 3 << direction << "" << "xref yref zref";
        QTest::newRow("direction 4: circular") << "direction" << 4 << direction << "" << "rioq rioi riuq riui hioi hiui";
        QTest::newRow("direction 0: no design") << "direction" << 0 << direction << ""
            << "rio rioq rioi riu riuq riui xref yref zref hio hioq hioi hiu hiuq hiui";
        QTest::newRow("direction 4: typed") << "direction" << 4 << direction << "hio=5 xref=-1 rio=30"
            << "rio=0.5235988 rioq rioi riuq riui xref=-1 hio=0.05 hioi hiui";
        // clang-format on
    }

    // What an OK stores: the fields of the dialog, and not set for those it has no widget for.
    void okWrites()
    {
        QFETCH(QString, kind);
        QFETCH(int, type);
        QFETCH(QString, setup);
        QFETCH(QString, input);
        QFETCH(QString, written);
        const R before = makeRecord(type, setup);
        R record = before;
        std::unique_ptr<VKD_QT_Dialog> dialog = makeDialog(kind, &record);
        dialog->show();
        enter(dialog.get(), input);
        BoxWatcher boxes;
        dialogButton(dialog.get())->click();
        QCOMPARE(boxes.seen, QStringList());
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QCOMPARE(changes(before, record), QString()); // the dialog alone writes nothing
        writeToRecord(dialog.get(), &record);
        QStringList expected = written.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (QString& field : expected)
            if (!field.contains(QLatin1Char('=')) || field.endsWith(QLatin1Char('=')))
                field = field.section(QLatin1Char('='), 0, 0) + QStringLiteral("=-99999");
        QCOMPARE(changes(before, record), expected.join(QLatin1Char(' ')));
    }

    // The field is marked, and OK stays refused with the focus in it until it is emptied; then the
    // field is written as not set.
    void badValueInRecord()
    {
        const std::tuple<int, const char*, float, const char*> cases[] = {
            {1, "hio", float(NAN),
             "The stored value \"nan\" is not a number. Enter a value or empty the field."},
            {4, "yref", 2.0e5f, "The value must lie between -99999.000 m and 99999.000 m."}};
        for (const auto& [type, name, value, problem] : cases) {
            R record = makeRecord(type, QLatin1String(kDirectionSetup));
            ::field(record, QLatin1String(name)) = value;
            dlgDistanceDirection dialog(&record, nullptr);
            dialog.show();
            QApplication::setActiveWindow(&dialog);
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            auto* edit = dialog.findChild<VKD_H_LineEdit*>(QLatin1String(name));
            QCOMPARE(edit->problemText(), QLatin1String(problem));
            QVERIFY(edit->toolTip().startsWith(QLatin1String(problem)));
            // Until the user fixes it, the edit gives back what it was given, never a zero.
            QCOMPARE(QByteArray::number(edit->getVal()), QByteArray::number(double(value)));
            dialogButton(&dialog)->click();
            QVERIFY(dialog.isVisible());
            QVERIFY(edit->hasFocus());
            edit->clear();
            dialogButton(&dialog)->click();
            QVERIFY(!dialog.isVisible());
            dialog.writeToRecord(&record);
            QCOMPARE(::field(record, QLatin1String(name)), kNotSet);
        }
    }

    // Stored values show as they are; the lists stay as they are, also after Return.
    void crackShown()
    {
        R record = makeRecord(1, QStringLiteral("wko=0.00025 sigu=450000"));
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
        QVERIFY(dialog.findChild<VKD_QT_InfoText*>(QStringLiteral("infoCrack")));
    }

    // Two wrong pairs: each press gives one warning and leaves the dialog open, until both are
    // right. Text the field refuses gives no warning and does not close either.
    void oneWarningPerOk()
    {
        R record = makeRecord(3, QString());
        dlgReinforcement dialog(0, &record, nullptr);
        dialog.show();
        QStringList log;
        for (const char* input : {"aso=5 amo=4 asui=3 amui=2", "amui=3", "amo=abc", "amo=5"}) {
            enter(&dialog, QLatin1String(input));
            BoxWatcher boxes;
            QTest::mouseClick(dialogButton(&dialog), Qt::LeftButton);
            log << boxes.seen.join(QLatin1Char('|')) + (dialog.isVisible() ? " open" : " closed");
        }
        const QString warning = QStringLiteral("Warning: Min greater than Max is not allowed!");
        QCOMPARE(log, (QStringList{warning + " open", warning + " open", " open", " closed"}));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    // Each calculator button, upper then lower side, minimum then maximum, works with the bar of
    // its row and writes into its own edit; the calculator's 15 cm give pi * d² / 4 / 0.15 per
    // metre. Cancel writes back what stood.
    void calculatorButtons()
    {
        R record = makeRecord(3, QString());
        dlgReinforcement dialog(0, &record, nullptr);
        enter(&dialog,
              QStringLiteral("m_pDIO=6 m_pDIU=8 m_pDIOQ=10 m_pDIUQ=12 m_pDIOI=14 m_pDIUI=16 amui=1"));
        const QList<QPushButton*> calculators = dialog.findChildren<QPushButton*>(QStringLiteral("Calc"));
        QCOMPARE(calculators.size(), 12);
        for (int i = 0; i < 12; ++i) {
            const bool ok = i != 5 && i != 11; // the maximum of the third layers
            onModal(isCalculator, [ok](QWidget* c) { dialogButton(c, ok)->click(); });
            calculators[i]->click();
        }
        QStringList filled;
        for (VKD_H_LineEdit* edit : dialog.findChildren<VKD_H_LineEdit*>())
            filled << edit->objectName() + QLatin1Char(' ') + edit->text();
        QCOMPARE(filled.join(QLatin1Char(',')),
                 QStringLiteral("aso 1.88,amo 1.88,asoq 5.24,amoq 5.24,asoi 10.26,amoi ,"
                                "asu 3.35,amu 3.35,asuq 7.54,amuq 7.54,asui 13.40,amui 1.00"));
    }

    void tableButtons_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("input");   // see enter()
        QTest::addColumn<bool>("calculator"); // the first calculator button pressed, and its OK
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("reference"); // the changed lines of the written records
        const int direction = ColumnDirection, reinforcement = ColumnReinforcement,
                  crack = ColumnCrackControl;
        // clang-format off
        QTest::newRow("direction, OK on the remaining groups") << direction << 0 << "hiu=4" << false << true
            << "buttons-direction-row0.txt";
        QTest::newRow("direction, OK on groups 1 and 2") << direction << 1 << "hio=5" << false << true
            << "buttons-direction-row1.txt";
        QTest::newRow("direction, OK on three layers") << direction << 3 << "rio=30" << false << true
            << "buttons-direction-row3.txt";
        QTest::newRow("reinforcement, OK") << reinforcement << 2 << "aso=5" << false << true
            << "buttons-reinforcement.txt";
        QTest::newRow("reinforcement, calculator, OK") << reinforcement << 0 << "m_pDIO=12" << true << true
            << "buttons-calculator.txt";
        QTest::newRow("reinforcement, calculator, Cancel") << reinforcement << 0 << "aso=5" << true << false << "";
        QTest::newRow("crack control, OK") << crack << 3 << "m_pSIGU=#7 m_pWKU=#1" << false << true
            << "buttons-crack.txt";
        // clang-format on
    }

    // The button of a summary cell opens its dialog on the row of the demo project; OK redraws
    // that row alone and the values reach the store; Cancel leaves the table and the store.
    void tableButtons()
    {
        QFETCH(int, column);
        QFETCH(int, row);
        QFETCH(QString, input);
        QFETCH(bool, calculator);
        QFETCH(bool, ok);
        QFETCH(QString, reference);
        auto written = [](Project& project, VKD_P_DesignParameter& page) {
            page.writeToZob();
            return dumpDesignRecords(project.index());
        };
        Project untouched(QStringLiteral("demo")), demo(QStringLiteral("demo"));
        const QString baseline = written(untouched, *untouched.page());
        const auto page = demo.page();
        DesignParameterTable* table = tableOf(page.get());
        const int col = table->getColumnNumber(column);
        table->setCurrentCell(row, col);
        auto* button = qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(row, col));
        QVERIFY(button);
        const QString summary = table->item(row, col)->text();
        for (int r = 0; r < table->rowCount(); ++r)
            table->item(r, col)->setText(QStringLiteral("stale"));
        onModal([](QWidget* w) { return qobject_cast<VKD_QT_Dialog*>(w) != nullptr; },
                [&](QWidget* dialog) {
                    enter(dialog, input);
                    if (calculator) {
                        onModal(isCalculator, [](QWidget* c) { dialogButton(c)->click(); });
                        dialog->findChild<QPushButton*>(QStringLiteral("Calc"))->click();
                    }
                    dialogButton(dialog, ok)->click();
                });
        button->button()->click();
        for (int r = 0; r < table->rowCount(); ++r)
            QCOMPARE(table->item(r, col)->text() == QLatin1String("stale"), r != row || !ok);
        if (!ok) {
            QCOMPARE(written(demo, *page), baseline);
            return;
        }
        QVERIFY(table->item(row, col)->text() != summary);
        // The open button follows.
        QCOMPARE(buttonText(button), table->item(row, col)->text());
        QVERIFY(matchesReference(changedLines(baseline, written(demo, *page)), reference));
    }
};

QTEST_MAIN(TestDesignDialogs)
#include "tst_designdialogs.moc"

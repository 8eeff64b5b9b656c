// The unit-aware input field of the project layer, the bar combo and the reinforcement
// calculator, driven as a user would.
#include <VKD_A_BarDiameterCombo.h>
#include <VKD_A_ReinforcementCalculation.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_h_numbertext.h>

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>
#include <cmath>

namespace {
const QString kHelp = QStringLiteral("Axial Distance");

struct Field
{
    explicit Field(int code)
        : description(VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(code)),
          edit(nullptr, &description, "field", kHelp, QString(), true)
    {
    }
    StructLineEdit description;
    VKD_H_LineEdit edit;
};

constexpr float kNotSet = -99999.0f;

template <typename T> T* child(QWidget* w, const char* name)
{
    return w->findChild<T*>(QLatin1String(name));
}
} // namespace

class TestLineEdit : public QObject
{
    Q_OBJECT
    QTemporaryDir m_dir;

private slots:
    void parseUserNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value"); // NaN: refused
        QTest::newRow("blanks around, sign") << "  -1,5 " << -1.5;
        QTest::newRow("typeset minus") << QString::fromUtf8("\u22122.5") << -2.5;
        QTest::newRow("bare separators") << ",5" << 0.5;
        QTest::newRow("plus and exponent") << "+1,5e3" << 1500.0;
        for (const char* refused :
             {"abc", "1e999", "nan", "inf", "1,234.5", "1.2.3", "1 000", "0x10", "3.5 cm", ""})
            QTest::newRow(qPrintable(QStringLiteral("refused \"%1\"").arg(refused)))
                << refused << double(NAN);
    }

    void parseUserNumber()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        double parsed = -7.0;
        QCOMPARE(vkd_h_parseUserNumber(text, &parsed), !std::isnan(value));
        QCOMPARE(parsed, std::isnan(value) ? -7.0 : value);
    }

    void showsValueInUserUnit_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("unit");
        // clang-format off
        QTest::newRow("direction") << 5 << qDegreesToRadians(90.0) << "90.00" << QString::fromUtf8("\u00B0");
        QTest::newRow("reinforcement") << 1021 << 1.88e-4 << "1.88" << QString::fromUtf8("cm\u00B2/m");
        QTest::newRow("crack width") << 1026 << 0.0003 << "0.30" << "mm";
        QTest::newRow("steel stress") << 1092 << 347800.0 << "347.8" << "MPa";
        QTest::newRow("not set") << 1024 << -99999.0 << "" << "cm";
        // clang-format on
    }

    void showsValueInUserUnit()
    {
        QFETCH(int, code);
        QFETCH(double, value);
        Field f(code);
        f.edit.setVal(value);
        QTEST(f.edit.text(), "text");
        QCOMPARE(f.edit.cursorPosition(), 0); // a long number shows its start
        QVERIFY(f.edit.hasAcceptableInput());
        QCOMPARE(f.edit.toolTip(), kHelp);
        QTEST(f.edit.findChild<QLabel*>(QStringLiteral("unit"))->text(), "unit");
    }

    // Limits of docs/units.md, typed in the user's unit at and beyond their ends.
    void readsTypedText_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value"); // base units; for refused text the value given before
        QTest::addColumn<QString>("problem");
        const QString cm = QStringLiteral("The value must lie between 0.0 cm and 1000.0 cm.");
        // clang-format off
        QTest::newRow("cm to m, comma") << 1024 << "3,5" << 0.035 << "";
        QTest::newRow("MPa to kN/m2") << 1092 << "435" << 435000.0 << "";
        QTest::newRow("empty is not set") << 1024 << "   " << -99999.0 << "";
        QTest::newRow("word") << 1024 << "abc" << 0.02 << "\"abc\" is not a number.";
        QTest::newRow("distance zero") << 1024 << "0" << 0.0 << "";
        QTest::newRow("distance negative") << 1024 << "-0.1" << 0.02 << cm;
        QTest::newRow("distance at maximum") << 1024 << "1000" << 10.0 << "";
        QTest::newRow("distance beyond maximum") << 1024 << "1000.1" << 0.02 << cm;
        QTest::newRow("direction at -360") << 5 << "-360" << qDegreesToRadians(-360.0) << "";
        QTest::newRow("direction beyond 360") << 5 << "360.01" << 0.02 << QString::fromUtf8("The value must lie between -360.00\u00B0 and 360.00\u00B0.");
        // clang-format on
    }

    void readsTypedText()
    {
        QFETCH(int, code);
        QFETCH(QString, text);
        QFETCH(double, value);
        QFETCH(QString, problem);
        Field f(code);
        f.edit.setVal(0.02);
        f.edit.selectAll();
        f.edit.insert(text); // as pasted: through the validator, in one step
        QCOMPARE(f.edit.text(), text);
        QCOMPARE(f.edit.hasAcceptableInput(), problem.isEmpty());
        QCOMPARE(f.edit.problemText(), problem);
        QVERIFY(qAbs(f.edit.getVal() - value) <= 1e-12 * qMax(1.0, qAbs(value)));
        QCOMPARE(f.edit.styleSheet().contains(QLatin1String("border")), !problem.isEmpty());
        QCOMPARE(f.edit.toolTip(), problem.isEmpty() ? kHelp : problem + QLatin1Char('\n') + kHelp);
    }

    // The shown digits stand for the exact value given, so opening and confirming rounds nothing.
    void givenValueComesBackExactly()
    {
        Field f(1024);
        const double stored = double(0.0351234f);
        f.edit.setVal(stored);
        QCOMPARE(f.edit.text(), QStringLiteral("3.5"));
        QCOMPARE(f.edit.getVal(), stored);
        f.edit.setText(QStringLiteral("3.50"));
        QCOMPARE(f.edit.getVal(), 0.035);
        f.edit.setText(QStringLiteral("3.5"));
        QCOMPARE(f.edit.getVal(), stored);
        f.edit.setVal(0.035); // the same digits, another value
        QCOMPARE(f.edit.getVal(), 0.035);
    }

    void integerFieldWithoutNotSet()
    {
        StructLineEdit count{
            VKD_H_LE_KIND_INTEGER, -1, 3.0, 10.0, 1.0, -99998.0, 0, QString(), QString(), QString(), {}};
        VKD_H_LineEdit edit(nullptr, &count, "count", QStringLiteral("Layers"), QStringLiteral("How many"),
                            false);
        QCOMPARE(edit.text(), QStringLiteral("3"));
        QCOMPARE(edit.whatsThis(), QStringLiteral("How many"));
        QVERIFY(!edit.findChild<QLabel*>(QStringLiteral("unit")));
        edit.setText(QStringLiteral("2,5"));
        QCOMPARE(edit.problemText(), QStringLiteral("\"2,5\" is not a whole number."));
        edit.setVal(-99999.0);
        QCOMPARE(edit.problemText(), QStringLiteral("A value is required."));
    }

    void combo_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("shown"); // current text
        QTest::addColumn<float>("current");
        QTest::addColumn<QString>("entries");
        const QString table = QString::fromUtf8("#3 Ø10 #4");
        // clang-format off
        QTest::newRow("not set") << kNotSet << "" << kNotSet << table;
        QTest::newRow("zero is no bar") << 0.0f << "" << kNotSet << table;
        QTest::newRow("bar of the table, float noise") << 12.7004f << "#4" << 12.7f << table;
        QTest::newRow("not in the table: kept, in order") << 11.0f << QString::fromUtf8("Ø11") << 11.0f << QString::fromUtf8("#3 Ø10 Ø11 #4");
        QTest::newRow("beyond the largest") << 50.0f << QString::fromUtf8("Ø50") << 50.0f << QString::fromUtf8("#3 Ø10 #4 Ø50");
        // clang-format on
    }

    // The project's bars; a value the table lacks is shown and kept, once.
    void combo()
    {
        QFETCH(float, value);
        QFETCH(float, current);
        VKD_H_ZOBDoc doc(m_dir.filePath(QStringLiteral("combo.vkd")));
        VKD_A_BarDiameterData table;
        table.setBars({{9.5f, QStringLiteral("#3")}, {10.0f, QString()}, {12.7f, QStringLiteral("#4")}});
        table.save(doc.index());
        VKD_A_BarDiameterCombo combo(nullptr, "bar");
        QVERIFY(combo.load(doc.index()));
        combo.setCurrent(value);
        combo.setCurrent(value);
        QTEST(combo.currentText(), "shown");
        QCOMPARE(combo.getCurrent(), current);
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i)
            texts << combo.itemText(i);
        QTEST(texts.join(' '), "entries");
        // Without a project the 11 bars of the standard series, and the selection stays.
        QVERIFY(!combo.load(-1));
        QCOMPARE(combo.count(), current == kNotSet ? 11 : 12);
        QCOMPARE(combo.getCurrent(), current);
    }

    void calculator_data()
    {
        QTest::addColumn<float>("bar");
        QTest::addColumn<double>("spacing"); // cm; 0: bars per metre instead
        QTest::addColumn<double>("count");
        QTest::addColumn<int>("layers");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("shown"); // cross section of a bar | result | bars per metre
        QTest::addColumn<double>("value");  // m²/m, by hand: n * pi * d² / 4
        // clang-format off
        QTest::newRow("10/15") << 10.0f << 15.0 << 0.0 << 1 << true << QString::fromUtf8("0.785 cm²|5.24 cm²/m|6.67 /m") << 5.235988e-4;
        QTest::newRow("8, 5 per metre") << 8.0f << 0.0 << 5.0 << 1 << true << QString::fromUtf8("0.503 cm²|2.51 cm²/m|5.00 /m") << 2.513274e-4;
        QTest::newRow("20/10, two layers") << 20.0f << 10.0 << 0.0 << 2 << true << QString::fromUtf8("3.142 cm²|62.83 cm²/m|10.00 /m") << 6.2831853e-3;
        QTest::newRow("no layers count as one") << 10.0f << 15.0 << 0.0 << 0 << true << QString::fromUtf8("0.785 cm²|5.24 cm²/m|6.67 /m") << 5.235988e-4;
        QTest::newRow("Cancel") << 12.0f << 20.0 << 0.0 << 1 << false << QString::fromUtf8("1.131 cm²|5.65 cm²/m|5.00 /m") << 3.5e-4;
        QTest::newRow("no bar: OK refused") << kNotSet << 20.0 << 0.0 << 1 << true << "no bar chosen|-|5.00 /m" << 3.5e-4;
        // clang-format on
    }

    // What the user reads, and what OK (or Cancel) hands back from a start of 3.50 cm²/m.
    void calculator()
    {
        QFETCH(float, bar);
        QFETCH(double, spacing);
        QFETCH(double, count);
        QFETCH(int, layers);
        QFETCH(bool, ok);
        QFETCH(double, value);
        QStringList seen;
        QTimer::singleShot(0, [&] {
            QWidget* d = QApplication::activeModalWidget();
            QCOMPARE(child<QLabel>(d, "present")->text(), QString::fromUtf8("3.50 cm²/m"));
            child<VKD_A_BarDiameterCombo>(d, "bar")->setCurrent(bar);
            if (spacing > 0.0) {
                child<QDoubleSpinBox>(d, "spacing")->setValue(spacing);
            } else {
                child<QRadioButton>(d, "byCount")->setChecked(true);
                child<QDoubleSpinBox>(d, "count")->setValue(count);
            }
            seen << child<QLabel>(d, "barArea")->text() << child<QLabel>(d, "result")->text()
                 << child<QDoubleSpinBox>(d, "count")->text();
            child<QPushButton>(d, ok ? "ok" : "cancel")->click();
            if (d->isVisible()) // a disabled OK does nothing
                child<QPushButton>(d, "cancel")->click();
        });
        float result = 3.5e-4f;
        vkd_a_ReinforcementCalculation(nullptr, 0, layers, result, 10.0f);
        QTEST(seen.join(QLatin1Char('|')), "shown");
        QVERIFY2(qAbs(result - value) < 1e-9, qPrintable(QString::number(result, 'g', 9)));
    }
};

QTEST_MAIN(TestLineEdit)
#include "tst_lineedit.moc"

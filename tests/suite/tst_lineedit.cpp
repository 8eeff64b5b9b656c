#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <vkd_h_numbertext.h>

#include <QLabel>
#include <QtTest>
#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;

struct Field
{
    explicit Field(int code, const QString& help = QStringLiteral("Axial Distance"))
        : description(VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(code)),
          edit(nullptr, &description, "field", help, QString(), true)
    {
    }
    StructLineEdit description;
    VKD_H_LineEdit edit;
};

} // namespace

class TestLineEdit : public QObject
{
    Q_OBJECT
private slots:
    void parseUserNumber_data();
    void parseUserNumber();
    void showsValueInUserUnit_data();
    void showsValueInUserUnit();
    void readsTypedText_data();
    void readsTypedText();
    void refusesStoredValue_data();
    void refusesStoredValue();
    void givenValueComesBackExactly();
    void refusedTextKeepsLastValue();
    void fieldDescriptionsInPlace();
    void dialogRefusesOkUntilFixed();
};

void TestLineEdit::parseUserNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("value");
    QTest::newRow("decimal point") << "0.25" << true << 0.25;
    QTest::newRow("decimal comma") << "0,25" << true << 0.25;
    QTest::newRow("blanks around, sign") << "  -1,5 " << true << -1.5;
    QTest::newRow("typeset minus") << QString::fromUtf8("\u22122.5") << true << -2.5;
    QTest::newRow("leading separator") << ",5" << true << 0.5;
    QTest::newRow("trailing separator") << "5." << true << 5.0;
    QTest::newRow("plus and exponent") << "+1,5e3" << true << 1500.0;
    QTest::newRow("word") << "abc" << false << 0.0;
    QTest::newRow("too large") << "1e999" << false << 0.0;
    QTest::newRow("nan") << "nan" << false << 0.0;
    QTest::newRow("inf") << "inf" << false << 0.0;
    QTest::newRow("group and decimal separator") << "1,234.5" << false << 0.0;
    QTest::newRow("two points") << "1.2.3" << false << 0.0;
    QTest::newRow("blank inside") << "1 000" << false << 0.0;
    QTest::newRow("hex") << "0x10" << false << 0.0;
    QTest::newRow("unit typed along") << "3.5 cm" << false << 0.0;
    QTest::newRow("empty") << "" << false << 0.0;
}

void TestLineEdit::parseUserNumber()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(double, value);
    double parsed = -7.0;
    QCOMPARE(vkd_h_parseUserNumber(text, &parsed), ok);
    QCOMPARE(parsed, ok ? value : -7.0);
}

void TestLineEdit::showsValueInUserUnit_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unit");
    QTest::newRow("direction") << 5 << kPi / 2 << "90.00" << QString::fromUtf8("\u00B0");
    QTest::newRow("coordinate") << 1001 << 4.5 << "4.500"
                                << "m";
    QTest::newRow("reinforcement") << 1021 << 1.88e-4 << "1.88" << QString::fromUtf8("cm\u00B2/m");
    QTest::newRow("bar diameter") << 1023 << 12.0 << "12.0"
                                  << "mm";
    QTest::newRow("distance") << 1024 << 0.035 << "3.5"
                              << "cm";
    QTest::newRow("crack width") << 1026 << 0.0003 << "0.30"
                                 << "mm";
    QTest::newRow("steel stress") << 1092 << 347800.0 << "347.8"
                                  << "MPa";
    QTest::newRow("distance not set") << 1024 << -99999.0 << ""
                                      << "cm";
    QTest::newRow("direction not set") << 5 << -99999.0 << "" << QString::fromUtf8("\u00B0");
}

void TestLineEdit::showsValueInUserUnit()
{
    QFETCH(int, code);
    QFETCH(double, value);
    QFETCH(QString, text);
    QFETCH(QString, unit);
    Field f(code);
    f.edit.setVal(value);
    QCOMPARE(f.edit.text(), text);
    QVERIFY(f.edit.isInputAccepted());
    QVERIFY(f.edit.hasAcceptableInput());
    QCOMPARE(f.edit.toolTip(), QStringLiteral("Axial Distance"));
    QVERIFY(f.edit.styleSheet().isEmpty());
    auto* label = f.edit.findChild<QLabel*>(QStringLiteral("unit"));
    QVERIFY(label);
    QCOMPARE(label->text(), unit);
}

// Limits are the ones of docs/units.md, typed in the user's unit at and beyond each end.
void TestLineEdit::readsTypedText_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value"); // base units; for refused text the one set before
    QTest::addColumn<QString>("problem");
    const QString cmRange = QStringLiteral("The value must lie between 0.0 cm and 1000.0 cm.");
    QTest::newRow("cm to m, comma") << 1024 << "3,5" << 0.035 << "";
    QTest::newRow("cm to m, point") << 1024 << "3.5" << 0.035 << "";
    QTest::newRow("degrees to radians") << 5 << "90" << kPi / 2 << "";
    QTest::newRow("MPa to kN/m2") << 1092 << "435" << 435000.0 << "";
    QTest::newRow("mm to m") << 1026 << "0,2" << 0.0002 << "";
    QTest::newRow("empty is not set") << 1024 << "" << -99999.0 << "";
    QTest::newRow("blanks are empty") << 1024 << "   " << -99999.0 << "";
    QTest::newRow("word") << 1024 << "abc" << 0.02 << "\"abc\" is not a number.";
    QTest::newRow("infinite") << 1024 << "1e999" << 0.02 << "\"1e999\" is not a number.";
    QTest::newRow("distance zero") << 1024 << "0" << 0.0 << "";
    QTest::newRow("distance negative") << 1024 << "-0.1" << 0.02 << cmRange;
    QTest::newRow("distance at maximum") << 1024 << "1000" << 10.0 << "";
    QTest::newRow("distance beyond maximum") << 1024 << "1000.1" << 0.02 << cmRange;
    QTest::newRow("direction at -360") << 5 << "-360" << -2 * kPi << "";
    QTest::newRow("direction beyond 360")
        << 5 << "360.01" << 0.02
        << QString::fromUtf8("The value must lie between -360.00\u00B0 and 360.00\u00B0.");
    QTest::newRow("crack width beyond 10 mm")
        << 1026 << "10.5" << 0.02 << "The value must lie between 0.00 mm and 10.00 mm.";
    QTest::newRow("reinforcement negative")
        << 1021 << "-1" << 0.02
        << QString::fromUtf8("The value must lie between 0.00 cm\u00B2/m and 1000.00 cm\u00B2/m.");
    QTest::newRow("stress beyond 2000 MPa")
        << 1092 << "2000.5" << 0.02 << "The value must lie between 0.0 MPa and 2000.0 MPa.";
    QTest::newRow("coordinate far out")
        << 1001 << "100000" << 0.02 << "The value must lie between -99999.000 m and 99999.000 m.";
}

void TestLineEdit::readsTypedText()
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
    QCOMPARE(f.edit.isInputAccepted(), problem.isEmpty());
    QCOMPARE(f.edit.hasAcceptableInput(), problem.isEmpty());
    QCOMPARE(f.edit.problemText(), problem);
    QVERIFY(qAbs(f.edit.getVal() - value) <= 1e-12 * qMax(1.0, qAbs(value)));
    QCOMPARE(f.edit.styleSheet().contains(QLatin1String("border")), !problem.isEmpty());
    QCOMPARE(f.edit.toolTip(),
             problem.isEmpty() ? QStringLiteral("Axial Distance") : problem + "\nAxial Distance");
}

void TestLineEdit::refusesStoredValue_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    QTest::newRow("NaN") << 1024 << double(NAN) << "nan"
                         << "The stored value \"nan\" is not a number. Enter a value or empty the field.";
    QTest::newRow("infinity")
        << 5 << double(INFINITY) << "inf"
        << "The stored value \"inf\" is not a number. Enter a value or empty the field.";
    QTest::newRow("negative distance") << 1024 << -0.05 << "-5.0"
                                       << "The value must lie between 0.0 cm and 1000.0 cm.";
    QTest::newRow("distance of 11 m") << 1024 << 11.0 << "1100.0"
                                      << "The value must lie between 0.0 cm and 1000.0 cm.";
}

void TestLineEdit::refusesStoredValue()
{
    QFETCH(int, code);
    QFETCH(double, value);
    QFETCH(QString, text);
    QFETCH(QString, problem);
    Field f(code);
    f.edit.setVal(value);
    QCOMPARE(f.edit.text(), text);
    QVERIFY(!f.edit.isInputAccepted());
    QVERIFY(!f.edit.hasAcceptableInput());
    QCOMPARE(f.edit.problemText(), problem);
    // Until the user fixes it, the field gives back what it was given, never a zero.
    const double back = f.edit.getVal();
    QVERIFY(std::isnan(value) ? std::isnan(back) : back == value);
    f.edit.clear();
    QVERIFY(f.edit.isInputAccepted());
    QCOMPARE(f.edit.getVal(), -99999.0);
}

void TestLineEdit::givenValueComesBackExactly()
{
    Field f(1024);
    const double stored = double(0.0351234f); // shows as 3.5 cm
    f.edit.setVal(stored);
    QCOMPARE(f.edit.text(), QStringLiteral("3.5"));
    QCOMPARE(f.edit.getVal(), stored);
    QTest::keyClicks(&f.edit, "0"); // 3.50: now a typed value
    QCOMPARE(f.edit.getVal(), 0.035);
    f.edit.setText(QStringLiteral("3.5")); // back to the shown text: the exact value again
    QCOMPARE(f.edit.getVal(), stored);
    // The direction π/2 survives the way through 90.00° as the same float.
    Field direction(5);
    direction.edit.setVal(double(float(kPi / 2)));
    QCOMPARE(float(direction.edit.getVal()), float(kPi / 2));
    direction.edit.setText(QStringLiteral("90,00"));
    QCOMPARE(float(direction.edit.getVal()), float(kPi / 2));
}

void TestLineEdit::refusedTextKeepsLastValue()
{
    Field f(1024);
    f.edit.setVal(0.035);
    f.edit.setText(QStringLiteral("4"));
    f.edit.setText(QStringLiteral("4x"));
    QCOMPARE(f.edit.getVal(), 0.04);
    QCOMPARE(f.edit.text(), QStringLiteral("4x")); // what the user typed stays for fixing
}

void TestLineEdit::fieldDescriptionsInPlace()
{
    // An integer field without not set, the second text as help, no unit shown.
    StructLineEdit count{
        VKD_H_LE_KIND_INTEGER, -1, 3.0, 10.0, 1.0, -99998.0, 0, QString(), QString(), QString(), {}};
    VKD_H_LineEdit edit(nullptr, &count, "count", QStringLiteral("Layers"), QStringLiteral("How many"),
                        false);
    QCOMPARE(edit.objectName(), QStringLiteral("count"));
    QCOMPARE(edit.text(), QStringLiteral("3"));
    QCOMPARE(edit.whatsThis(), QStringLiteral("How many"));
    QVERIFY(!edit.findChild<QLabel*>(QStringLiteral("unit")));
    edit.setText(QStringLiteral("2,5"));
    QCOMPARE(edit.problemText(), QStringLiteral("\"2,5\" is not a whole number."));
    edit.setText(QString());
    QCOMPARE(edit.problemText(), QStringLiteral("A value is required."));
    edit.setVal(-99999.0);
    QCOMPARE(edit.text(), QString());
    QCOMPARE(edit.problemText(), QStringLiteral("A value is required."));
    edit.setText(QStringLiteral("10"));
    QCOMPARE(edit.getVal(), 10.0);
    // The unit text of a description replaces the unit of its code.
    StructLineEdit own = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(1024);
    own.unitText = QStringLiteral("cm (A)");
    VKD_H_LineEdit withUnit(nullptr, &own, "own", QString(), QString(), true);
    QCOMPARE(withUnit.findChild<QLabel*>(QStringLiteral("unit"))->text(), QStringLiteral("cm (A)"));
}

void TestLineEdit::dialogRefusesOkUntilFixed()
{
    VKD_QT_Dialog dialog;
    auto* layout = new VKD_QT_VBoxLayout(&dialog);
    StructLineEdit d = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(1024);
    auto* good = new VKD_H_LineEdit(&dialog, &d, "good", QString(), QString(), true);
    auto* bad = new VKD_H_LineEdit(&dialog, &d, "bad", QString(), QString(), true);
    layout->addWidget(good);
    layout->addWidget(bad);
    good->setVal(0.03);
    bad->setVal(double(NAN));
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    good->setFocus();
    dialog.accept();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(bad->hasFocus());
    // Emptying the field makes it not set, which the field allows.
    bad->clear();
    dialog.accept();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(bad->getVal(), -99999.0);
}

QTEST_MAIN(TestLineEdit)
#include "tst_lineedit.moc"

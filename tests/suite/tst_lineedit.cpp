#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <vkd_h_numbertext.h>

#include <QLabel>
#include <QtTest>
#include <cmath>

namespace {
constexpr double kPi = 3.14159265358979323846;
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
} // namespace

class TestLineEdit : public QObject
{
    Q_OBJECT
private slots:
    void parseUserNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value"); // NaN: refused
        QTest::newRow("decimal point") << "0.25" << 0.25;
        QTest::newRow("decimal comma") << "0,25" << 0.25;
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
    QTest::newRow("direction") << 5 << kPi / 2 << "90.00" << QString::fromUtf8("\u00B0");
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
        QFETCH(QString, text);
        QFETCH(QString, unit);
        Field f(code);
        f.edit.setVal(value);
        QCOMPARE(f.edit.text(), text);
        QCOMPARE(f.edit.cursorPosition(), 0); // a long number shows its start
        QVERIFY(f.edit.hasAcceptableInput());
        QCOMPARE(f.edit.toolTip(), kHelp);
        QCOMPARE(f.edit.findChild<QLabel*>(QStringLiteral("unit"))->text(), unit);
    }

    // Limits of docs/units.md, typed in the user's unit at and beyond their ends.
    void readsTypedText_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value"); // base units; for refused text the value given before
        QTest::addColumn<QString>("problem");
        const QString cm = QStringLiteral("The value must lie between 0.0 cm and 1000.0 cm.");
        QTest::newRow("cm to m, comma") << 1024 << "3,5" << 0.035 << "";
        QTest::newRow("degrees to radians") << 5 << "90" << kPi / 2 << "";
        QTest::newRow("MPa to kN/m2") << 1092 << "435" << 435000.0 << "";
        QTest::newRow("empty is not set") << 1024 << "   " << -99999.0 << "";
        QTest::newRow("word") << 1024 << "abc" << 0.02 << "\"abc\" is not a number.";
        QTest::newRow("distance zero") << 1024 << "0" << 0.0 << "";
        QTest::newRow("distance negative") << 1024 << "-0.1" << 0.02 << cm;
        QTest::newRow("distance at maximum") << 1024 << "1000" << 10.0 << "";
        QTest::newRow("distance beyond maximum") << 1024 << "1000.1" << 0.02 << cm;
        QTest::newRow("direction at -360") << 5 << "-360" << -2 * kPi << "";
        QTest::newRow("direction beyond 360")
            << 5 << "360.01" << 0.02
            << QString::fromUtf8("The value must lie between -360.00\u00B0 and 360.00\u00B0.");
        QTest::newRow("crack width beyond 10 mm")
            << 1026 << "10.5" << 0.02 << "The value must lie between 0.00 mm and 10.00 mm.";
        QTest::newRow("stress beyond 2000 MPa")
            << 1092 << "2000.5" << 0.02 << "The value must lie between 0.0 MPa and 2000.0 MPa.";
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
};

QTEST_MAIN(TestLineEdit)
#include "tst_lineedit.moc"

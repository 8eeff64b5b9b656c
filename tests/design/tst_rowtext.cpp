#include "textdiff.h"

#include <VKD_A_BarDiameterData.h>
#include <designrecord.h>
#include <rowtext.h>

#include <QTranslator>
#include <QtTest>

#include <cmath>

using namespace vkd::plib::design;

Q_DECLARE_METATYPE(std::vector<int32_t>)

namespace {

int32_t packed(char a, char b, char c, char d)
{
    return int32_t(quint32(quint8(a)) | quint32(quint8(b)) << 8 | quint32(quint8(c)) << 16 |
                   quint32(quint8(d)) << 24);
}

float degrees(float d)
{
    return float(double(d) * M_PI / 180.0);
}

// A record with every value set and each value different, in the edited form.
tagZOB_QUAD_RIM fullRecord(int type)
{
    tagZOB_QUAD_RIM r = getDefaultMerPara(false);
    r.type = type;
    // clang-format off
    r.rio = degrees(30); r.rioq = degrees(120); r.rioi = degrees(75);
    r.riu = degrees(-15); r.riuq = degrees(90); r.riui = degrees(45);
    r.xref = 4.5f; r.yref = -2.0f; r.zref = 0.25f;
    r.hio = 0.03f; r.hioq = 0.012f; r.hioi = 0.014f;
    r.hiu = 0.04f; r.hiuq = 0.016f; r.hiui = 0.02f;
    r.dio = 12.0f; r.dioq = 10.0f; r.dioi = 8.0f; r.diu = 16.0f; r.diuq = 14.0f; r.diui = 6.0f;
    r.aso = 1.88e-4f; r.asoq = 1.31e-4f; r.asoi = 0.5e-4f; r.asu = 2.57e-4f; r.asuq = 1.88e-4f; r.asui = 0.0f;
    r.amo = 25e-4f; r.amoq = 20e-4f; r.amoi = 10e-4f; r.amu = 30e-4f; r.amuq = 22e-4f; r.amui = 12e-4f;
    r.wko = 0.0003f; r.wkoq = 0.0002f; r.wkoi = 0.0004f; r.wku = 0.00025f; r.wkuq = 0.0001f; r.wkui = 0.0f;
    r.sigo = 280000.0f; r.sigoq = 300000.0f; r.sigoi = 347800.0f;
    r.sigu = 250000.0f; r.siguq = 240000.0f; r.sigui = 0.0f;
    // clang-format on
    return r;
}

} // namespace

class TestRowText : public QObject
{
    Q_OBJECT
private slots:
    void groupList_data();
    void groupList();
    void typeName_data();
    void typeName();
    void summaries();
    void summaryDetails_data();
    void summaryDetails();
    void valueText_data();
    void valueText();
    void germanTexts();

private:
    VKD_A_BarDiameterData m_bars;
    DesignParameterRow row(const tagZOB_QUAD_RIM& record, std::vector<int32_t> groups = {}) const
    {
        return {const_cast<VKD_A_BarDiameterData*>(&m_bars), record, std::move(groups)};
    }

public:
    TestRowText() { m_bars.setBars(VKD_A_BarDiameterData::standardSeries()); }
};

void TestRowText::groupList_data()
{
    QTest::addColumn<std::vector<int32_t>>("groups");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << std::vector<int32_t>{} << "None";
    QTest::newRow("remaining groups") << std::vector<int32_t>{-1} << "Remaining Groups";
    QTest::newRow("three groups") << std::vector<int32_t>{3, 4, 7} << "3;4;7";
    QTest::newRow("list order kept") << std::vector<int32_t>{7, 3} << "7;3";
    QTest::newRow("-1 among others") << std::vector<int32_t>{-1, 4} << "-1;4";
    QTest::newRow("another negative alone") << std::vector<int32_t>{-5} << "-5";
    QTest::newRow("group 0") << std::vector<int32_t>{0} << "0";
    QTest::newRow("999999 is a number") << std::vector<int32_t>{999999} << "999999";
    QTest::newRow("1000000 is a name") << std::vector<int32_t>{1000000} << QString::fromLatin1("@B\x0F");
    QTest::newRow("trailing blanks go") << std::vector<int32_t>{packed('A', 'B', ' ', ' ')} << "AB";
    QTest::newRow("zero byte ends the name") << std::vector<int32_t>{packed('A', 'B', 0, 'C')} << "AB";
    QTest::newRow("four characters") << std::vector<int32_t>{packed('W', 'A', 'L', 'L')} << "WALL";
    QTest::newRow("leading blank goes") << std::vector<int32_t>{packed(' ', 'S', '1', ' ')} << "S1";
    QTest::newRow("numbers and names")
        << std::vector<int32_t>{2, packed('S', '1', ' ', ' '), 12} << "2;S1;12";
}

void TestRowText::groupList()
{
    QFETCH(std::vector<int32_t>, groups);
    QFETCH(QString, text);
    QCOMPARE(rowText(row(getDefaultMerPara(false), groups), ColumnSelection), text);
}

void TestRowText::typeName_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << "No design";
    QTest::newRow("1") << 1 << "Two Layers (orthogonal)";
    QTest::newRow("2") << 2 << "Two Layers";
    QTest::newRow("3") << 3 << "Three Layers";
    QTest::newRow("4") << 4 << "Circular";
    QTest::newRow("5 has no name") << 5 << "";
    QTest::newRow("13 reads as 3") << 13 << "Three Layers";
    QTest::newRow("negative") << -1 << "";
}

void TestRowText::typeName()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    tagZOB_QUAD_RIM r = getDefaultMerPara(false);
    r.type = type;
    QCOMPARE(rowText(row(r, {1}), ColumnType), text);
}

void TestRowText::summaries()
{
    // Every column of rows of every type, default and fully set, as the table shows them.
    QString out;
    auto add = [&](const QString& title, const DesignParameterRow& r) {
        out += QStringLiteral("== %1\n").arg(title);
        for (int column = -1; column <= 5; ++column) {
            QString text = rowText(r, column);
            text.replace(QLatin1Char('\n'), QStringLiteral("\n    "));
            out += QStringLiteral("[%1] %2\n").arg(column).arg(text);
        }
    };
    for (int type = -1; type <= 6; ++type) {
        tagZOB_QUAD_RIM r = getDefaultMerPara(false);
        r.type = type;
        vkd::plib::design::toEditedForm(r, 0);
        add(QStringLiteral("type %1, defaults").arg(type), row(r, {1, 2}));
    }
    for (int type = 1; type <= 5; ++type)
        add(QStringLiteral("type %1, every value set").arg(type), row(fullRecord(type), {-1}));
    tagZOB_QUAD_RIM remaining = getDefaultMerPara(true);
    vkd::plib::design::toEditedForm(remaining, 0);
    add(QStringLiteral("remaining groups, defaults"), row(remaining, {-1}));
    QVERIFY(compareWithReference(out, QStringLiteral("rowtexts.txt")));
}

void TestRowText::summaryDetails_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    const QString deg = QStringLiteral("\u00B0");
    QTest::newRow("type 1, only rio unset")
        << 1 << "rio" << 2 << QStringLiteral(" -  ;-15.00%1\n3.0 cm ;4.0 cm ;1.2 cm ;1.6 cm ;").arg(deg);
    QTest::newRow("diameter not set") << 2 << "dio" << 3
                                      << QStringLiteral(" -  ;1.88 cm\u00B2/m ;25.00 cm\u00B2/m\n"
                                                        "\u00D816 ;2.57 cm\u00B2/m ;30.00 cm\u00B2/m");
    QTest::newRow("stress not set has no unit")
        << 2 << "sigo" << 4 << QStringLiteral(" -  ;300.0 MPa ;347.8 MPa\n250.0 MPa ;240.0 MPa ;0.0 MPa ;");
    QTest::newRow("type 4 shows stresses, not crack widths")
        << 4 << "wko" << 4
        << QStringLiteral("280.0 MPa ;300.0 MPa ;347.8 MPa\n250.0 MPa ;240.0 MPa ;0.0 MPa ;");
}

void TestRowText::summaryDetails()
{
    QFETCH(int, type);
    QFETCH(QString, field);
    QFETCH(int, column);
    QFETCH(QString, text);
    tagZOB_QUAD_RIM r = fullRecord(type);
    if (field == QLatin1String("rio"))
        r.rio = kNotSet;
    else if (field == QLatin1String("dio"))
        r.dio = kNotSet;
    else if (field == QLatin1String("sigo"))
        r.sigo = kNotSet;
    else if (field == QLatin1String("wko"))
        r.wko = kNotSet;
    QCOMPARE(rowText(row(r, {3}), column), text);
}

void TestRowText::valueText_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("withBars");
    QTest::addColumn<QString>("text");
    QTest::newRow("not set") << kNotSet << 1024 << "cm" << true << " - ";
    QTest::newRow("not set diameter asks no bar table") << kNotSet << 1023 << "" << false << " - ";
    QTest::newRow("unit directly behind") << 0.035f << 1024 << "X" << true << "3.5X";
    QTest::newRow("no unit") << 0.035f << 1024 << "" << true << "3.5";
    QTest::newRow("diameter from the bar table, no unit") << 12.0f << 1023 << "mm" << true << "\u00D812";
    QTest::newRow("99999 is a value") << 99999.0f << 1024 << "" << true << "9999900.0";
    QTest::newRow("direction") << degrees(90) << 5 << "" << true << "90.00";
}

void TestRowText::valueText()
{
    QFETCH(float, value);
    QFETCH(int, code);
    QFETCH(QString, unit);
    QFETCH(bool, withBars);
    QFETCH(QString, text);
    DesignParameterRow r = row(getDefaultMerPara(false));
    if (!withBars)
        r.barData = nullptr;
    QCOMPARE(vkd::plib::design::valueText(r, value, code, unit), text);
}

void TestRowText::germanTexts()
{
    QTranslator german;
    QVERIFY(german.load(QCoreApplication::applicationDirPath() + QStringLiteral("/data/vkd_p_dll_de.qm")));
    QCoreApplication::installTranslator(&german);
    tagZOB_QUAD_RIM r = getDefaultMerPara(true);
    const QString none = rowText(row(r), ColumnSelection);
    const QString remaining = rowText(row(r, {-1}), ColumnSelection);
    const QString type = rowText(row(r, {-1}), ColumnType);
    QCoreApplication::removeTranslator(&german);
    QCOMPARE(none, QStringLiteral("Keine"));
    QCOMPARE(remaining, QStringLiteral("Restliche Gruppen"));
    QCOMPARE(type, QStringLiteral("Zwei Lagen (orthogonal)"));
}

QTEST_GUILESS_MAIN(TestRowText)
#include "tst_rowtext.moc"

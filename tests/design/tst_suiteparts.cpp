// The suite parts that the design parameters stand on: units, bar table, project pages.
#include <VKD_A_BarDiameterData.h>
#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_UnitLabel.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_h_units.h>
#include <vkd_q.h>

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

class TestSuiteParts : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void dimString_data();
    void dimString();
    void valueInUserUnits_data();
    void valueInUserUnits();
    void minBarType_data();
    void minBarType();
    void barTable_data();
    void barTable();
    void barTableOfNoProject();
    void barText_data();
    void barText();
    void projectPageInTheProject_data();
    void projectPageInTheProject();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
};

void TestSuiteParts::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_doc = std::make_unique<VKD_H_ZOBDoc>(m_dir->filePath(QStringLiteral("project.vkd")));
    QVERIFY2(m_doc->isValid(), qPrintable(m_doc->errorString()));
}

void TestSuiteParts::cleanup()
{
    m_doc.reset();
    m_dir.reset();
}

void TestSuiteParts::dimString_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("behindNumber");
    QTest::addColumn<QString>("bare");
    QTest::newRow("direction") << 5 << "\u00B0"
                               << "\u00B0";
    QTest::newRow("coordinate") << 1001 << " m"
                                << "m";
    QTest::newRow("reinforcement") << 1021 << " cm\u00B2/m"
                                   << "cm\u00B2/m";
    QTest::newRow("bar diameter") << 1023 << " mm"
                                  << "mm";
    QTest::newRow("distance") << 1024 << " cm"
                              << "cm";
    QTest::newRow("crack width") << 1026 << " mm"
                                 << "mm";
    QTest::newRow("steel stress") << 1092 << " MPa"
                                  << "MPa";
    QTest::newRow("none") << -1 << ""
                          << "";
    QTest::newRow("unknown") << 4711 << ""
                             << "";
}

void TestSuiteParts::dimString()
{
    QFETCH(int, code);
    QFETCH(QString, behindNumber);
    QFETCH(QString, bare);
    QCOMPARE(VKD_H_UnitLabel::dimString(code, VKD_H_UnitLabel::BehindNumber), behindNumber);
    QCOMPARE(VKD_H_UnitLabel::dimString(code, VKD_H_UnitLabel::Bare), bare);
}

void TestSuiteParts::valueInUserUnits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::newRow("right angle") << M_PI / 2 << 5 << -1 << "90.00";
    QTest::newRow("negative angle") << -M_PI / 12 << 5 << -1 << "-15.00";
    QTest::newRow("coordinate") << 12.3456 << 1001 << -1 << "12.346";
    QTest::newRow("reinforcement") << 1.88e-4 << 1021 << -1 << "1.88";
    QTest::newRow("bar diameter unconverted") << 12.0 << 1023 << -1 << "12.0";
    QTest::newRow("cover") << 0.035 << 1024 << -1 << "3.5";
    QTest::newRow("spacing") << double(0.045f - 0.035f) << 1024 << -1 << "1.0";
    QTest::newRow("crack width") << 0.0003 << 1026 << -1 << "0.30";
    QTest::newRow("stress in kN/m2") << 347800.0 << 1092 << -1 << "347.8";
    QTest::newRow("given decimals") << 0.035 << 1024 << 3 << "3.500";
    QTest::newRow("rounds to zero: no sign") << -0.0001 << 1024 << -1 << "0.0";
    QTest::newRow("small negative keeps its sign") << -0.001 << 1024 << -1 << "-0.1";
    QTest::newRow("unknown code, base value") << 0.035 << 4711 << -1 << "0.035";
    QTest::newRow("no code, decimals given") << 2.5 << -1 << 2 << "2.50";
}

void TestSuiteParts::valueInUserUnits()
{
    QFETCH(double, value);
    QFETCH(int, code);
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QCOMPARE(vkd_h_getDimStringFromVal(value, code, decimals), text);
}

void TestSuiteParts::minBarType_data()
{
    QTest::addColumn<int>("barClass");
    QTest::addColumn<float>("value");
    QTest::newRow("lower side") << 5 << 10.0f;
    QTest::newRow("upper side") << 6 << 10.0f;
    QTest::newRow("class 4 has none") << 4 << -99999.0f;
    QTest::newRow("negative class") << -1 << -99999.0f;
}

void TestSuiteParts::minBarType()
{
    QFETCH(int, barClass);
    QFETCH(float, value);
    QCOMPARE(vkd_a_get_min_bar_type(barClass), value);
    // The default bar is always one that the standard series offers.
    if (value > 0) {
        VKD_A_BarDiameterData bars;
        bars.setBars(VKD_A_BarDiameterData::standardSeries());
        QVERIFY(bars.find(value) >= 0);
    }
}

void TestSuiteParts::barTable_data()
{
    QTest::addColumn<QString>("stored"); // "never", or diameter:name records separated by blanks
    QTest::addColumn<QString>("loaded");
    const QString standard = QString::fromUtf8("Ø6 Ø8 Ø10 Ø12 Ø14 Ø16 Ø20 Ø25 Ø28 Ø32 Ø40");
    QTest::newRow("never stored") << "never" << standard;
    QTest::newRow("emptied") << "" << standard;
    QTest::newRow("names of the project") << "9.5:#3 12.7:#4 15.9:#5"
                                          << "#3 #4 #5";
    QTest::newRow("order of the project") << "20: 8: 12:" << QString::fromUtf8("Ø20 Ø8 Ø12");
    QTest::newRow("bad diameters skipped") << "0:zero -6:neg 10:ten nan:x"
                                           << "ten";
    QTest::newRow("only bad diameters") << "0:zero" << standard;
}

void TestSuiteParts::barTable()
{
    QFETCH(QString, stored);
    QFETCH(QString, loaded);
    if (stored != QLatin1String("never")) {
        std::vector<VKD_A_BarDiameterData::Bar> bars;
        for (const QString& b : stored.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            bars.push_back({b.section(QLatin1Char(':'), 0, 0) == QLatin1String("nan")
                                ? std::numeric_limits<float>::quiet_NaN()
                                : b.section(QLatin1Char(':'), 0, 0).toFloat(),
                            b.section(QLatin1Char(':'), 1)});
        VKD_A_BarDiameterData table;
        table.setBars(bars);
        table.save(m_doc->index());
    }
    VKD_A_BarDiameterData table;
    QVERIFY(table.load(m_doc->index()));
    QStringList names;
    for (const VKD_A_BarDiameterData::Bar& b : table.bars())
        names << b.name;
    QCOMPARE(names.join(QLatin1Char(' ')), loaded);
}

void TestSuiteParts::barTableOfNoProject()
{
    VKD_A_BarDiameterData table;
    table.setBars(VKD_A_BarDiameterData::standardSeries());
    QVERIFY(!table.load(-1));
    QVERIFY(table.isEmpty());
    // An empty table still names a bar by its diameter.
    QCOMPARE(table.getString(12.0f), QString::fromUtf8("Ø12"));
}

void TestSuiteParts::barText_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::newRow("named bar") << 12.7f << "#4" << 1;
    QTest::newRow("bar without a name") << 10.0f << QString::fromUtf8("Ø10") << 2;
    QTest::newRow("value the table lacks") << 14.0f << QString::fromUtf8("Ø14") << -1;
    QTest::newRow("odd value the table lacks") << 6.5f << QString::fromUtf8("Ø6.5") << -1;
    QTest::newRow("zero names no bar") << 0.0f << "" << -1;
    QTest::newRow("not set") << -99999.0f << "" << -1;
    QTest::newRow("NaN") << std::numeric_limits<float>::quiet_NaN() << "" << -1;
}

void TestSuiteParts::barText()
{
    QFETCH(float, value);
    QFETCH(QString, text);
    QFETCH(int, position);
    VKD_A_BarDiameterData table;
    table.setBars(
        {{9.5f, QStringLiteral("#3")}, {12.7f, QStringLiteral("#4")}, {10.0f, QString::fromUtf8("Ø10")}});
    table.save(m_doc->index());
    VKD_A_BarDiameterData loaded;
    QVERIFY(loaded.load(m_doc->index()));
    QCOMPARE(loaded.getString(value), text);
    QCOMPARE(loaded.find(value), position);
}

void TestSuiteParts::projectPageInTheProject_data()
{
    QTest::addColumn<QStringList>("entries"); // key=value
    QTest::newRow("none") << QStringList{};
    QTest::newRow("several") << QStringList{"MerPara1=1; | 0", "MerPara2=x", "Other="};
    QTest::newRow("long value") << QStringList{QStringLiteral("Long=") + QString(5000, QLatin1Char('y'))};
    QTest::newRow("non-ASCII") << QStringList{QString::fromUtf8("Stäbe=Ø10 | ß")};
}

void TestSuiteParts::projectPageInTheProject()
{
    QFETCH(QStringList, entries);
    VKD_H_ProjectDialogPage page(3);
    for (const QString& e : entries)
        page.setEntry(e.section(QLatin1Char('='), 0, 0), e.section(QLatin1Char('='), 1));
    page.save(m_doc->index());

    VKD_H_ProjectDialogPage other(4);
    other.setEntry(QStringLiteral("kept apart"), QStringLiteral("1"));
    other.save(m_doc->index());

    VKD_H_ProjectDialogPage back(3);
    back.setEntry(QStringLiteral("stale"), QStringLiteral("gone after load"));
    QVERIFY(back.load(m_doc->index()));
    QStringList got;
    for (const QString& key : back.keys())
        got << key + QLatin1Char('=') + back.getEntry(key, QString());
    entries.sort();
    QCOMPARE(got, entries);

    VKD_H_ProjectDialogPage never(9);
    QVERIFY(never.load(m_doc->index()));
    QVERIFY(never.keys().isEmpty());
    QVERIFY(!never.load(-1));
}

QTEST_GUILESS_MAIN(TestSuiteParts)
#include "tst_suiteparts.moc"

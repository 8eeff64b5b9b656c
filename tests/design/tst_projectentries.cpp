#include "recordtable.h"

#include <VKD_A_BarDiameterData.h>
#include <VKD_H_ProjectDialogPage.h>
#include <designrecord.h>
#include <projectentries.h>

#include <QtTest>

using namespace vkd::plib::design;

namespace {

const QString kDefaultEntry = QStringLiteral(
    "1; | 0;1.5708;-99999;0;1.5708;-99999; | 0.035;0.045;0.045;0.035;0.045;0.045; | 0;0;0; | "
    "10;10;10;10;10;10; | "
    "-99999;-99999;-99999;-99999;-99999;-99999;-99999;-99999;-99999;-99999;-99999;-99999; | 11;");

QStringList entries(const VKD_H_ProjectDialogPage& page)
{
    QStringList out;
    for (const QString& key : page.keys())
        out << key + QLatin1Char('=') + page.getEntry(key, QString());
    return out;
}

DesignParameterRow rowWithType(int type, std::vector<int32_t> groups)
{
    DesignParameterRow row;
    row.record = getDefaultMerPara(false);
    row.record.type = type;
    row.groups = std::move(groups);
    return row;
}

} // namespace

class TestProjectEntries : public QObject
{
    Q_OBJECT
private slots:
    void defaultEntry();
    void roundTrip_data();
    void roundTrip();
    void parseEntry_data();
    void parseEntry();
    void writeRowsToEntries_data();
    void writeRowsToEntries();
    void readRowsFromEntries();
    void readStopsAtTheFirstGap();
};

void TestProjectEntries::defaultEntry()
{
    QCOMPARE(entryText(getDefaultMerPara(true)), kDefaultEntry);

    // The same line through the writer, from a row without groups.
    DesignParameterData data;
    data.rows.push_back({nullptr, getDefaultMerPara(true), {}});
    VKD_H_ProjectDialogPage page;
    vkd::plib::design::writeRowsToEntries(data, page);
    QCOMPARE(entries(page), QStringList{QStringLiteral("MerPara1=") + kDefaultEntry});
}

void TestProjectEntries::roundTrip_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<float>("written");
    QTest::addColumn<float>("read");
    QTest::newRow("whole stress") << "sigo" << 347000.0f << 347000.0f;
    QTest::newRow("stress with decimals reads zero") << "sigoq" << 347.8f << 0.0f;
    QTest::newRow("seven-digit stress reads zero") << "sigu" << 1234567.0f << 0.0f;
    QTest::newRow("six-digit stress") << "sigui" << 999999.0f << 999999.0f;
    QTest::newRow("stress not set") << "siguq" << kNotSet << kNotSet;
    QTest::newRow("crack width keeps six digits") << "wko" << 0.000312345678f << 0.000312346f;
    QTest::newRow("direction keeps six digits") << "rioq" << 1.5707964f << 1.5708f;
    QTest::newRow("seven-digit coordinate") << "xref" << 1234567.0f << 1234570.0f;
    QTest::newRow("third-layer diameter") << "dioi" << 12.0f << 12.0f;
    QTest::newRow("lower diameter") << "diu" << 16.0f << 16.0f;
    QTest::newRow("minimum reinforcement is lost") << "aso" << 1.88e-4f << 0.0f;
    QTest::newRow("maximum reinforcement is lost") << "amui" << kNotSet << 0.0f;
    QTest::newRow("reservedD is lost") << "reservedD" << kNotSet << 0.0f;
    QTest::newRow("reservedM is lost") << "reservedM" << 3.0f << 0.0f;
}

void TestProjectEntries::roundTrip()
{
    QFETCH(QString, field);
    QFETCH(float, written);
    QFETCH(float, read);
    tagZOB_QUAD_RIM r = getDefaultMerPara(true);
    setRealAt(r, offsetOf(field), written);
    DesignParameterRow row;
    vkd::plib::design::parseEntry(entryText(r), row);
    QCOMPARE(exact(realAt(row.record, offsetOf(field))), exact(read));
    // The words the entry has no place for come back as zero.
    QCOMPARE(row.record.group, 0);
    QCOMPARE(row.record.subId, 0);
    QCOMPARE(row.record.mode, 0);
    QCOMPARE(row.record.type, 1);
    QCOMPARE(row.record.mark, 11);
}

void TestProjectEntries::parseEntry_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected"); // name=value of the fields that are not zero, in record order
    QTest::newRow("empty text") << ""
                                << "";
    QTest::newRow("two parts") << "2; | 0"
                               << "";
    QTest::newRow("six parts") << "2; | 1; | 1; | 1; | 1; | 1;"
                               << "";
    QTest::newRow("seven empty parts") << "||||||"
                                       << "";
    QTest::newRow("short diameter field")
        << "3; | 0;0;0;0;0;0; | 0;0;0;0;0;0; | 0;0;0; | 12; | 0;0;0;0;0;0;0;0;0;0;0;0; | 11;"
        << "type=3 mark=11 dio=12";
    QTest::newRow("diameter field of six elements")
        << "3; | ; | ; | ; | 12;14;16;20;25; | ; | 0;"
        << "type=3 dio=12 dioq=16 dioi=25 diu=14 diuq=20"; // upper and lower side in turn
    QTest::newRow("diameter field of five elements") << "3; | ; | ; | ; | 12;14;16;20; | ; | 0;"
                                                     << "type=3 dio=12";
    QTest::newRow("short direction field") << "1; | 0.5;0.25 | ; | ; | ; | ; | 11;"
                                           << "type=1 mark=11 rio=0.5 rioq=0.25";
    QTest::newRow("no separators at all") << "1 | 0.5 | 0.04 | 1 | 10 | 0.0003 | 11"
                                          << "type=1 mark=11 rio=0.5 xref=1 hio=0.04 dio=10 wko=0.0003";
    QTest::newRow("text that is no number") << "x; | a;b;c;d;e;f; | ; | ; | ; | ; | eleven;"
                                            << "";
    QTest::newRow("blanks around numbers") << "  2 ; |   0.5  ; | ; | ; | ; | ; |  11 ;  "
                                           << "type=2 mark=11 rio=0.5";
    QTest::newRow("eighth part ignored") << "1; | ; | ; | ; | ; | ; | 11; | 99;"
                                         << "type=1 mark=11";
    QTest::newRow("stresses by position")
        << "1; | ; | ; | ; | ; | 0;0;0;0;0;0;100;200;300;400;500;600; | 11;"
        << "type=1 mark=11 sigo=100 sigoq=200 sigoi=300 sigu=400 siguq=500 sigui=600";
    QTest::newRow("stress with a point") << "1; | ; | ; | ; | ; | 0;0;0;0;0;0;100.5;2e5; | 0;"
                                         << "type=1";
    QTest::newRow("type kept whole") << "4.5; | ; | ; | ; | ; | ; | 11;"
                                     << "mark=11";
}

void TestProjectEntries::parseEntry()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    DesignParameterRow row;
    std::memset(&row.record, 0, sizeof row.record);
    vkd::plib::design::parseEntry(text, row);
    QStringList nonZero;
    for (const FieldLayout& f : kLayout) {
        qint32 word;
        std::memcpy(&word, reinterpret_cast<const char*>(&row.record) + f.offset, 4);
        if (word == 0)
            continue;
        nonZero << QStringLiteral("%1=%2").arg(
            QLatin1String(f.name), f.integer ? QString::number(word)
                                             : QString::number(double(realAt(row.record, f.offset)), 'g', 6));
    }
    QCOMPARE(nonZero.join(QLatin1Char(' ')), expected);
}

void TestProjectEntries::writeRowsToEntries_data()
{
    QTest::addColumn<QString>("before");   // keys present on the page
    QTest::addColumn<QString>("rowTypes"); // per row: type, then g for groups [1], r for [-1]
    QTest::addColumn<QString>("after");    // keys and types of the entries
    QTest::newRow("rows 2 and 5 without groups") << ""
                                                 << "1g 2 3g 4g 3 1g"
                                                 << "MerPara1:2 MerPara2:3";
    QTest::newRow("remaining groups count as groups") << ""
                                                      << "1r 2"
                                                      << "MerPara1:2";
    QTest::newRow("longer list left behind") << "MerPara1 MerPara2 MerPara3 MerPara4"
                                             << "1g 2"
                                             << "MerPara1:2";
    QTest::newRow("no row without groups deletes all") << "MerPara1 MerPara2 Other"
                                                       << "1g"
                                                       << "Other:0";
    QTest::newRow("cleanup stops at the first gap") << "MerPara1 MerPara3"
                                                    << "2"
                                                    << "MerPara1:2 MerPara3:0";
    QTest::newRow("gap right behind the written ones") << "MerPara2 MerPara4"
                                                       << "2"
                                                       << "MerPara1:2 MerPara4:0";
}

void TestProjectEntries::writeRowsToEntries()
{
    QFETCH(QString, before);
    QFETCH(QString, rowTypes);
    QFETCH(QString, after);
    VKD_H_ProjectDialogPage page;
    for (const QString& key : before.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        page.setEntry(key, QStringLiteral("0; | ; | ; | ; | ; | ; | 0;"));
    DesignParameterData data;
    for (const QString& t : rowTypes.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        std::vector<int32_t> groups;
        if (t.endsWith(QLatin1Char('g')))
            groups = {1};
        else if (t.endsWith(QLatin1Char('r')))
            groups = {-1};
        data.rows.push_back(rowWithType(t.left(1).toInt(), groups));
    }
    vkd::plib::design::writeRowsToEntries(data, page);
    QStringList got;
    for (const QString& key : page.keys())
        got << QStringLiteral("%1:%2").arg(key,
                                           page.getEntry(key, QString()).section(QLatin1Char(';'), 0, 0));
    QCOMPARE(got.join(QLatin1Char(' ')), after);
}

void TestProjectEntries::readRowsFromEntries()
{
    VKD_A_BarDiameterData bars;
    DesignParameterData data;
    data.barData = &bars;
    data.rows.push_back(rowWithType(1, {-1}));
    tagZOB_QUAD_RIM stored = getDefaultMerPara(false);
    stored.type = 2;
    stored.aso = 1.0e-4f;
    VKD_H_ProjectDialogPage page;
    page.setEntry(QStringLiteral("MerPara1"), entryText(stored));
    page.setEntry(QStringLiteral("MerPara2"), QStringLiteral("3; | 0"));

    for (int kind : {0, 10}) {
        data.rows.resize(1);
        data.kindOfSystem = kind;
        vkd::plib::design::readRowsFromEntries(data, page);
        QCOMPARE(int(data.rows.size()), 3);
        const DesignParameterRow& first = data.rows[1];
        QCOMPARE(first.barData, &bars);
        QVERIFY(first.groups.empty());
        QCOMPARE(first.record.type, 2);
        // Turned into the edited form; not cleaned, so the lost limit stays zero.
        if (kind == 0) {
            QCOMPARE(exact(first.record.hioq), exact(0.045f - 0.035f));
            QCOMPARE(exact(first.record.hioi), exact(0.0f));
        } else {
            QCOMPARE(exact(first.record.hio), exact(kNotSet));
        }
        QCOMPARE(exact(first.record.aso), exact(0.0f));
        QCOMPARE(data.rows[2].record.type, 0);
        QVERIFY(data.rows[2].groups.empty());
    }
}

void TestProjectEntries::readStopsAtTheFirstGap()
{
    DesignParameterData data;
    VKD_H_ProjectDialogPage page;
    page.setEntry(QStringLiteral("MerPara1"), kDefaultEntry);
    page.setEntry(QStringLiteral("MerPara3"), kDefaultEntry);
    vkd::plib::design::readRowsFromEntries(data, page);
    QCOMPARE(int(data.rows.size()), 1);

    // An entry with an empty text ends the list as well.
    page.setEntry(QStringLiteral("MerPara1"), QString());
    data.rows.clear();
    vkd::plib::design::readRowsFromEntries(data, page);
    QCOMPARE(int(data.rows.size()), 0);
}

QTEST_GUILESS_MAIN(TestProjectEntries)
#include "tst_projectentries.moc"

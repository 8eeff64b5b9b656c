#include "recordtable.h"

#include <VKD_A_BarDiameterData.h>
#include <VKD_H_ZOBDoc.h>
#include <designrecord.h>
#include <designstore.h>
#include <vkd_q.h>

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace vkd::plib::design;

namespace {

// Parameter sets told apart by their type: A two layers (orthogonal), B two layers, C three.
tagZOB_QUAD_RIM variant(QChar letter, int group)
{
    tagZOB_QUAD_RIM r = getDefaultMerPara(false);
    r.type = letter.unicode() - 'A' + 1;
    r.rio = 0.1f * float(r.type);
    r.group = group;
    return r;
}

QChar letterOf(const tagZOB_QUAD_RIM& r)
{
    return QChar('A' + r.type - 1);
}

// "1A 2A/m5 -1B/s1": group, parameter set, and optionally another mark or subId.
std::vector<tagZOB_QUAD_RIM> parseRecords(const QString& text)
{
    std::vector<tagZOB_QUAD_RIM> out;
    const QRegularExpression token(QStringLiteral("^(-?\\d+)([A-Z])(?:/([ms])(\\d+))?$"));
    for (const QString& t : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch m = token.match(t);
        if (!m.hasMatch())
            qFatal("bad record token %s", qPrintable(t));
        tagZOB_QUAD_RIM r = variant(m.captured(2).at(0), m.captured(1).toInt());
        if (m.captured(3) == QLatin1String("m"))
            r.mark = m.captured(4).toInt();
        else if (m.captured(3) == QLatin1String("s"))
            r.subId = m.captured(4).toInt();
        out.push_back(r);
    }
    return out;
}

// "A:1,2,3 B:-1": each row's parameter set and its group list.
QString describeRows(const std::vector<DesignParameterRow>& rows)
{
    QStringList out;
    for (const DesignParameterRow& row : rows) {
        QStringList groups;
        for (int g : row.groups)
            groups << QString::number(g);
        out << QStringLiteral("%1:%2").arg(letterOf(row.record)).arg(groups.join(QLatin1Char(',')));
    }
    return out.join(QLatin1Char(' '));
}

// "-1A 3A": the records of a key pair by group and parameter set, and the marks of others.
QString describeRecords(const std::vector<tagZOB_QUAD_RIM>& records)
{
    QStringList out;
    for (const tagZOB_QUAD_RIM& r : records) {
        QString t = QStringLiteral("%1%2").arg(r.group).arg(letterOf(r));
        if (r.mark != 11)
            t += QStringLiteral("/m%1").arg(r.mark);
        if (r.subId != 0)
            t += QStringLiteral("/s%1").arg(r.subId);
        out << t;
    }
    return out.join(QLatin1Char(' '));
}

void putRecords(int index, int key1, int key2, const std::vector<tagZOB_QUAD_RIM>& records)
{
    int length = 0;
    vkd_zob_put(index, key1, key2, nullptr, &length, 0);
    for (const tagZOB_QUAD_RIM& r : records) {
        length = int(sizeof r);
        QCOMPARE(vkd_zob_put(index, key1, key2, &r, &length, 1), int(ZOB_OK));
    }
}

std::vector<tagZOB_QUAD_RIM> getRecords(int index, int key1 = kDesignKey1, int key2 = kDesignKey2)
{
    std::vector<tagZOB_QUAD_RIM> out;
    for (int position = 0;; ++position) {
        tagZOB_QUAD_RIM r;
        int length = int(sizeof r);
        if (vkd_zob_get(index, key1, key2, &r, &length, position) >= ZOB_END)
            break;
        out.push_back(r);
    }
    return out;
}

QByteArray bytesOf(const tagZOB_QUAD_RIM& r)
{
    return QByteArray(reinterpret_cast<const char*>(&r), int(sizeof r));
}

DesignParameterRow makeRow(QChar letter, std::vector<int32_t> groups)
{
    DesignParameterRow row;
    row.record = variant(letter, 0);
    vkd::plib::design::toEditedForm(row.record, 0);
    row.groups = std::move(groups);
    return row;
}

} // namespace

class TestDesignStore : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void checkAndCreateZobDefault_data();
    void checkAndCreateZobDefault();
    void readFolds_data();
    void readFolds();
    void readAppendsAndPutsRemainingFirst();
    void readConvertsAndCleans_data();
    void readConvertsAndCleans();
    void readFoldsAcrossTheIgnoredReservedWords();
    void readTakesShortRecordsAsTheyCome();
    void writeUnfolds_data();
    void writeUnfolds();
    void writeDropsForeignRecordsIntoTheScratchKey();
    void writeConvertsOnce();
    void writeAndReadFoldNeighbours();
    void newProjectRoundTrip();
    void addDefaultRow_data();
    void addDefaultRow();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
    VKD_A_BarDiameterData m_barTable;
    VKD_A_BarDiameterData* const m_bars = &m_barTable;
    DesignParameterData m_data;
    int index() const { return m_doc->index(); }
};

void TestDesignStore::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_doc = std::make_unique<VKD_H_ZOBDoc>(m_dir->filePath(QStringLiteral("project.vkd")));
    QVERIFY2(m_doc->isValid(), qPrintable(m_doc->errorString()));
    m_data = DesignParameterData();
    m_data.designDoc = m_doc.get();
    m_data.doc = m_doc.get();
    m_data.barData = m_bars;
}

void TestDesignStore::cleanup()
{
    m_doc.reset();
    m_dir.reset();
}

void TestDesignStore::checkAndCreateZobDefault_data()
{
    QTest::addColumn<QString>("before"); // "never" or the records
    QTest::addColumn<QString>("after");
    QTest::newRow("never written") << "never"
                                   << "-1A";
    QTest::newRow("emptied") << ""
                             << "";
    QTest::newRow("filled") << "3B 4C"
                            << "3B 4C";
    QTest::newRow("foreign records only") << "5B/m3"
                                          << "5B/m3";
}

void TestDesignStore::checkAndCreateZobDefault()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    if (before != QLatin1String("never"))
        putRecords(index(), kDesignKey1, kDesignKey2, parseRecords(before));
    vkd::plib::design::checkAndCreateZobDefault(index());
    const std::vector<tagZOB_QUAD_RIM> records = getRecords(index());
    QCOMPARE(describeRecords(records), after);
    if (before == QLatin1String("never"))
        QCOMPARE(bytesOf(records.front()), bytesOf(getDefaultMerPara(true)));
    // Calling it again changes nothing.
    vkd::plib::design::checkAndCreateZobDefault(index());
    QCOMPARE(describeRecords(getRecords(index())), after);
}

void TestDesignStore::readFolds_data()
{
    QTest::addColumn<QString>("records");
    QTest::addColumn<QString>("rows");
    QTest::newRow("nothing stored") << ""
                                    << "";
    QTest::newRow("equal neighbours fold") << "1A 2A 3A"
                                           << "A:1,2,3";
    QTest::newRow("only neighbours fold") << "1A 2B 1A"
                                          << "A:1 B:2 A:1";
    QTest::newRow("order of reading kept") << "7A 3A 5B"
                                           << "A:7,3 B:5";
    QTest::newRow("remaining groups read last") << "1A 2A -1B"
                                                << "B:-1 A:1,2";
    QTest::newRow("remaining groups between equal records") << "1A -1B 2A"
                                                            << "B:-1 A:1,2";
    QTest::newRow("two remaining records, the later first") << "-1A 1A -1B"
                                                            << "B:-1 A:-1 A:1";
    QTest::newRow("group 0 is a group") << "0A 1A"
                                        << "A:0,1";
    QTest::newRow("other mark skipped") << "1A 2A/m5 3A"
                                        << "A:1,3";
    QTest::newRow("other subId skipped") << "1A 2A/s1 3A"
                                         << "A:1,3";
    QTest::newRow("skipped remaining record") << "-1A/s2 1B"
                                              << "B:1";
    QTest::newRow("mark 0 is ours") << "1A/m0 2A/m0"
                                    << "A:1,2";
    QTest::newRow("marks 0 and 11 differ") << "1A/m0 2A"
                                           << "A:1 A:2";
    QTest::newRow("secondary groups") << "1094795585A 1094795586A"
                                      << "A:1094795585,1094795586";
}

void TestDesignStore::readFolds()
{
    QFETCH(QString, records);
    QFETCH(QString, rows);
    if (!records.isEmpty())
        putRecords(index(), kDesignKey1, kDesignKey2, parseRecords(records));
    readRowsFromZob(m_data);
    QCOMPARE(describeRows(m_data.rows), rows);
    for (const DesignParameterRow& row : m_data.rows) {
        QCOMPARE(row.barData, m_bars);
        // The group word keeps the number of the record that opened the row.
        QCOMPARE(row.record.group, row.groups.front());
    }
}

void TestDesignStore::readAppendsAndPutsRemainingFirst()
{
    m_data.rows.push_back(makeRow('C', {}));
    putRecords(index(), kDesignKey1, kDesignKey2, parseRecords(QStringLiteral("1A -1B 2B")));
    readRowsFromZob(m_data);
    QCOMPARE(describeRows(m_data.rows), QStringLiteral("B:-1 C: A:1 B:2"));
}

void TestDesignStore::readConvertsAndCleans_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("field");
    QTest::addColumn<float>("stored");
    QTest::addColumn<float>("read");
    QTest::newRow("first distance") << 0 << "hio" << 0.035f << 0.035f;
    QTest::newRow("second distance becomes a spacing") << 0 << "hioq" << 0.045f << 0.045f - 0.035f;
    QTest::newRow("third distance becomes a spacing") << 0 << "hioi" << 0.045f << 0.0f;
    QTest::newRow("lower second distance") << 0 << "hiuq" << 0.045f << 0.045f - 0.035f;
    QTest::newRow("second below first") << 0 << "hioq" << 0.02f << kNotSet;
    QTest::newRow("plane system") << 12 << "hio" << 0.035f << kNotSet;
    QTest::newRow("zero diameter") << 0 << "diu" << 0.0f << kNotSet;
    QTest::newRow("99999 crack width") << 0 << "wko" << 99999.0f << kNotSet;
    QTest::newRow("negative limit") << 0 << "amo" << -1.0f << kNotSet;
    QTest::newRow("zero limit is a value") << 0 << "aso" << 0.0f << 0.0f;
}

void TestDesignStore::readConvertsAndCleans()
{
    QFETCH(int, kind);
    QFETCH(QString, field);
    QFETCH(float, stored);
    QFETCH(float, read);
    tagZOB_QUAD_RIM r = getDefaultMerPara(true);
    setRealAt(r, offsetOf(field), stored);
    putRecords(index(), kDesignKey1, kDesignKey2, {r});
    m_data.kindOfSystem = kind;
    readRowsFromZob(m_data);
    QCOMPARE(int(m_data.rows.size()), 1);
    QCOMPARE(exact(realAt(m_data.rows[0].record, offsetOf(field))), exact(read));
}

void TestDesignStore::readFoldsAcrossTheIgnoredReservedWords()
{
    std::vector<tagZOB_QUAD_RIM> records = parseRecords(QStringLiteral("1A 2A 3A 4A"));
    records[1].reservedD = 5.0f;
    records[2].reservedS = 6.0f;
    records[3].reservedM = 7.0f;
    putRecords(index(), kDesignKey1, kDesignKey2, records);
    readRowsFromZob(m_data);
    QCOMPARE(describeRows(m_data.rows), QStringLiteral("A:1,2,3 A:4"));
    // The row keeps the reserved words of the record that opened it.
    QCOMPARE(exact(m_data.rows[0].record.reservedD), exact(kNotSet));
}

void TestDesignStore::readTakesShortRecordsAsTheyCome()
{
    const tagZOB_QUAD_RIM full = variant('A', 1);
    tagZOB_QUAD_RIM other = variant('B', 2);
    other.wko = 0.0003f;
    int length = int(sizeof full);
    vkd_zob_put(index(), kDesignKey1, kDesignKey2, &full, &length, 0);
    length = 100; // up to diuq: the words from diui on are missing
    vkd_zob_put(index(), kDesignKey1, kDesignKey2, &other, &length, 1);
    readRowsFromZob(m_data);
    QCOMPARE(describeRows(m_data.rows), QStringLiteral("A:1 B:2"));
    // The missing words are those of the record before.
    QCOMPARE(exact(m_data.rows[1].record.wko), exact(m_data.rows[0].record.wko));
    QCOMPARE(exact(m_data.rows[1].record.diuq), exact(other.diuq));
}

void TestDesignStore::writeUnfolds_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    // Rows are given as in describeRows; a row without groups is "C:".
    QTest::addColumn<QString>("rows");
    QTest::newRow("remaining groups first") << ""
                                            << "-1B 3A 4A 5A"
                                            << "A:3,4 B:-1 C: A:5";
    QTest::newRow("list order kept") << ""
                                     << "9A 2A 7A"
                                     << "A:9,2,7";
    QTest::newRow("remaining in a longer list is a group") << ""
                                                           << "-1A 4A"
                                                           << "A:-1,4";
    QTest::newRow("rows without groups write nothing") << "1A 2B"
                                                       << ""
                                                       << "A: B:";
    QTest::newRow("no rows empty the key pair") << "1A 2B"
                                                << ""
                                                << "";
    QTest::newRow("two remaining rows") << ""
                                        << "-1A -1B 1C"
                                        << "A:-1 C:1 B:-1";
}

void TestDesignStore::writeUnfolds()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, rows);
    putRecords(index(), kDesignKey1, kDesignKey2, parseRecords(before));
    for (const QString& r : rows.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        std::vector<int32_t> groups;
        for (const QString& g : r.mid(2).split(QLatin1Char(','), Qt::SkipEmptyParts))
            groups.push_back(g.toInt());
        m_data.rows.push_back(makeRow(r.at(0), groups));
    }
    bool converted = false;
    writeRowsToZob(m_data, converted);
    QVERIFY(converted);
    QCOMPARE(describeRecords(getRecords(index())), after);
    int length = 212;
    tagZOB_QUAD_RIM r;
    QCOMPARE(vkd_zob_get(index(), kDesignKey1, kDesignKey2, &r, &length, 0),
             after.isEmpty() ? int(ZOB_END) : int(ZOB_OK));
}

void TestDesignStore::writeDropsForeignRecordsIntoTheScratchKey()
{
    putRecords(index(), kDesignKey1, kDesignKey2, parseRecords(QStringLiteral("1A 2B/m5 3A/m0 4C/s1 -1A")));
    m_data.rows.push_back(makeRow('B', {8}));
    bool converted = false;
    writeRowsToZob(m_data, converted);
    QCOMPARE(describeRecords(getRecords(index())), QStringLiteral("8B"));
    QCOMPARE(describeRecords(getRecords(kScratchIndex, kScratchKey1, kScratchKey2)),
             QStringLiteral("2B/m5 4C/s1"));

    // The next write empties the scratch key pair: what it held is gone for good.
    writeRowsToZob(m_data, converted);
    QCOMPARE(describeRecords(getRecords(kScratchIndex, kScratchKey1, kScratchKey2)), QString());
    QCOMPARE(describeRecords(getRecords(index())), QStringLiteral("8B"));
}

void TestDesignStore::writeConvertsOnce()
{
    m_data.rows.push_back(makeRow('A', {1}));
    DesignParameterRow& row = m_data.rows.back();
    row.record.hio = 0.03f;
    row.record.hioq = 0.02f;
    row.record.hioi = 0.01f;
    bool converted = false;
    writeRowsToZob(m_data, converted);
    QCOMPARE(exact(m_data.rows[0].record.hioq), exact(0.03f + 0.02f));
    const QByteArray first = bytesOf(getRecords(index()).at(0));
    QCOMPARE(exact(getRecords(index()).at(0).hioi), exact((0.03f + 0.02f) + 0.01f));

    // A second write does not convert again and writes the same record.
    writeRowsToZob(m_data, converted);
    QCOMPARE(bytesOf(getRecords(index()).at(0)), first);
    QCOMPARE(exact(m_data.rows[0].record.hioq), exact(0.03f + 0.02f));

    // A page that converted already writes its rows as they stand.
    m_data.rows[0].record.hioq = 0.07f;
    writeRowsToZob(m_data, converted);
    QCOMPARE(exact(getRecords(index()).at(0).hioq), exact(0.07f));
}

void TestDesignStore::writeAndReadFoldNeighbours()
{
    m_data.rows.push_back(makeRow('A', {-1}));
    m_data.rows.push_back(makeRow('B', {2}));
    m_data.rows.push_back(makeRow('B', {5, 6}));
    m_data.rows.push_back(makeRow('A', {3}));
    bool converted = false;
    writeRowsToZob(m_data, converted);
    DesignParameterData again;
    again.designDoc = m_doc.get();
    readRowsFromZob(again);
    QCOMPARE(describeRows(again.rows), QStringLiteral("A:-1 B:2,5,6 A:3"));
}

void TestDesignStore::newProjectRoundTrip()
{
    vkd::plib::design::checkAndCreateZobDefault(index());
    readRowsFromZob(m_data);
    QCOMPARE(describeRows(m_data.rows), QStringLiteral("A:-1"));
    QCOMPARE(exact(m_data.rows[0].record.hioq), exact(0.045f - 0.035f));
    bool converted = false;
    writeRowsToZob(m_data, converted);
    const std::vector<tagZOB_QUAD_RIM> records = getRecords(index());
    QCOMPARE(int(records.size()), 1);
    QCOMPARE(bytesOf(records[0]), bytesOf(getDefaultMerPara(true)));
}

void TestDesignStore::addDefaultRow_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<float>("hioq");
    QTest::newRow("spatial system: edited form") << 0 << 0.045f - 0.035f;
    QTest::newRow("undefined kind: stored form") << kUndefinedInteger << 0.045f;
    QTest::newRow("plane system: no distances") << 11 << kNotSet;
}

void TestDesignStore::addDefaultRow()
{
    QFETCH(int, kind);
    QFETCH(float, hioq);
    m_data.kindOfSystem = kind;
    m_data.rows.push_back(makeRow('C', {4}));
    DesignParameterRow& row = vkd::plib::design::addDefaultRow(m_data);
    QCOMPARE(int(m_data.rows.size()), 2);
    QCOMPARE(&row, &m_data.rows.back());
    QVERIFY(row.groups.empty());
    QCOMPARE(row.barData, m_bars);
    QCOMPARE(row.record.type, 0);
    QCOMPARE(row.record.group, 0);
    QCOMPARE(exact(row.record.hioq), exact(hioq));
}

QTEST_GUILESS_MAIN(TestDesignStore)
#include "tst_designstore.moc"

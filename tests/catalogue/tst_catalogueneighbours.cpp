#include "captiontokens.h"
#include "catalogue.h"
#include "testsupport.h"

#include <QtTest>

// The parser reuses what it made of a field for an equal field of the line before and resolves
// each caption once a parse; neither may make a line's record depend on its neighbours.

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

QString described(const GraphicalOutputRecord& r)
{
    return QStringList{QString::number(r.prog1),
                       QString::number(r.prog2),
                       QString::number(r.prog3),
                       r.title1,
                       r.id1,
                       r.title2,
                       r.id2,
                       r.title3,
                       r.id3,
                       r.contentTag,
                       QString::number(r.number7),
                       r.caseWord,
                       QString::number(r.ctrl),
                       QString::number(r.rowClass),
                       QString::number(r.preselect),
                       QString::number(r.viewKind),
                       r.text11,
                       QString::number(r.systemMask),
                       r.scriptGerman,
                       r.scriptEnglish}
        .join(QLatin1Char('|'));
}

QStringList describedAll(const std::vector<GraphicalOutputRecord>& records)
{
    QStringList out;
    for (const GraphicalOutputRecord& r : records)
        out << described(r);
    return out;
}

} // namespace

class TestCatalogueNeighbours : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void togetherAsAlone_data();
    void togetherAsAlone();
    void numbers_data();
    void numbers();
    void captionsWithKeptTokenTexts();
};

void TestCatalogueNeighbours::initTestCase()
{
    // Key captions resolve from the test texts.
    qputenv("VKD_SEARCHPATH", TEST_DATA_DIR "/textservice");
}

void TestCatalogueNeighbours::togetherAsAlone_data()
{
    QTest::addColumn<QByteArrayList>("lines");
    // The caption identifiers of each line: a plain caption's is its column's.
    QTest::addColumn<QStringList>("ids");
    QTest::newRow("plain captions change columns")
        << QByteArrayList{"1|0|0|A|B|C|All|0|last|0|0| |0|G1|E1\n", "1|0|0|B|C|A|All|0|last|0|0| |0|G2|E2\n",
                          "1|0|0|C|A|B|All|0|last|0|0| |0|G3|E3\n"}
        << QStringList{"    001    002    003", "    001    002    003", "    001    002    003"};
    QTest::newRow("key captions come back after others")
        << QByteArrayList{"1|0|0|&ABC|@X01 one|A|All|0|last|0|0| |0|G1|E1\n",
                          "1|0|0|@X01 one|&ABC|&ABC|All|0|last|0|0| |0|G2|E2\n",
                          "1|0|0|&ABC|@X01 one|A|All|0|last|0|0| |0|G3|E3\n"}
        << QStringList{"   &ABC   @X01    003", "   @X01   &ABC   &ABC", "   &ABC   @X01    003"};
    QTest::newRow("UTF-8 and ASCII lines with the same fields")
        << QByteArrayList{"1|0|0|Ergebnis ü|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1 ä|E1\n",
                          "1|0|0|Ergebnis|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1|E1\n",
                          "1|0|0|Ergebnis ü|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1 ä|E1\n"}
        << QStringList{"    001    002    003", "    001    002    003", "    001    002    003"};
    QTest::newRow("blanks around equal fields")
        << QByteArrayList{"2|0|0|A|B|C|All|3|desi-e|1|1|x|4|G1|E1\n",
                          " 2 |0|0| A |B|C |All| 3|desi-e |1|1|x |4|G1|E1\n",
                          "2|0|0|A|B|C|All|3|DESI-E|1|1|x|4|G1|E1\n"}
        << QStringList{"    001    002    003", "    001    002    003", "    001    002    003"};
}

void TestCatalogueNeighbours::togetherAsAlone()
{
    QFETCH(QByteArrayList, lines);
    QFETCH(QStringList, ids);
    QStringList idsRead;
    for (const GraphicalOutputRecord& r : parseText(lines.join()))
        idsRead << r.id1 + r.id2 + r.id3;
    QCOMPARE(idsRead, ids);
    QStringList alone;
    for (const QByteArray& line : lines)
        alone += describedAll(parseText(line));
    QCOMPARE(alone.size(), lines.size());
    QCOMPARE(describedAll(parseText(lines.join())), alone);
}

void TestCatalogueNeighbours::numbers_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<int>("value");
    QTest::newRow("leading zeros") << QByteArray("007") << 7;
    QTest::newRow("plus sign") << QByteArray("+5") << 5;
    QTest::newRow("minus sign") << QByteArray("-3") << -3;
    QTest::newRow("nine digits") << QByteArray("123456789") << 123456789;
    QTest::newRow("largest int") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("beyond int") << QByteArray("2147483648") << 0;
    QTest::newRow("digits and a letter") << QByteArray("12a") << 0;
    QTest::newRow("tab around") << QByteArray("\t4\t") << 4;
}

// Every number column reads as QString::toInt() reads the trimmed field.
void TestCatalogueNeighbours::numbers()
{
    QFETCH(QByteArray, field);
    QFETCH(int, value);
    const QByteArray line = field + "|" + field + "|" + field + "|A|B|C|All|" + field + "|last|" + field +
                            "|" + field + "| |" + field + "|G|E\n";
    const std::vector<GraphicalOutputRecord> records = parseText(line);
    QCOMPARE(records.size(), size_t(1));
    const GraphicalOutputRecord& r = records.front();
    const QVector<int> read{r.prog1, r.prog2, r.prog3, r.number7, r.preselect, r.viewKind, r.systemMask};
    QCOMPARE(read, QVector<int>(read.size(), value));
}

// Token texts kept over a run of captions give what a lookup of each gives; the same key under
// another sign is another text.
void TestCatalogueNeighbours::captionsWithKeptTokenTexts()
{
    const QStringList fields{
        "&GTK",    "^GTK",    "&GT0",    "&ABC Fallback",   "^CAR Caret?",  "$DOL",    "1 A&ABC", "U2R&ABC",
        "2hC&ABC", "B+I&ABC", "O1S&ABC", "&XYZ  Fallback ", "@ND1   Nodes", "U2R&ABC", "^GTK",    "&GTK"};
    TokenTexts texts;
    QStringList kept;
    QStringList alone;
    for (const QString& field : fields) {
        kept << captionText(field, &texts);
        alone << captionText(field);
    }
    QCOMPARE(kept, alone);
    QCOMPARE(alone.at(0), QStringLiteral(" Long"));
    QCOMPARE(alone.at(1), QStringLiteral(" c>d"));
}

QTEST_MAIN(TestCatalogueNeighbours)
#include "tst_catalogueneighbours.moc"

#include "catalogue.h"
#include "testsupport.h"

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// The record as a catalogue line, then its identifiers, ctrl, rowClass and rowMark.
QString described(const GraphicalOutputRecord& r)
{
    const QVariantList fields{r.prog1,    r.prog2,      r.prog3,      r.title1,       r.title2,
                              r.title3,   r.contentTag, r.number7,    r.caseWord,     r.preselect,
                              r.viewKind, r.text11,     r.systemMask, r.scriptGerman, r.scriptEnglish};
    QStringList out;
    for (const QVariant& f : fields)
        out << f.toString();
    return out.join(QLatin1Char('|')) + QStringLiteral("\n  [%1|%2|%3] %4 %5 %6\n")
                                            .arg(r.id1, r.id2, r.id3)
                                            .arg(r.ctrl)
                                            .arg(r.rowClass)
                                            .arg(r.rowMark);
}

QStringList describedAll(const std::vector<GraphicalOutputRecord>& records)
{
    QStringList out;
    for (const GraphicalOutputRecord& r : records)
        out << described(r);
    return out;
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:

    void initTestCase()
    {
        // The text service reads its catalogue at the first opentext; it must find the test texts.
        qputenv("VKD_SEARCHPATH", TEST_DATA_DIR "/textservice");
    }

    // Every form of line and caption of data/sample.data, as records, on each desktop.
    void sampleCatalogue()
    {
        for (const int language : {1, 0}) {
            QFile file(QStringLiteral(TEST_DATA_DIR "/sample.data"));
            QVERIFY(file.open(QIODevice::ReadOnly));
            LanguageScope scope(language);
            std::vector<GraphicalOutputRecord> records;
            parseCatalogue(file, records);
            QVERIFY(matchesReference(describedAll(records).join(QString()),
                                     language ? "sample_en.txt" : "sample_de.txt"));
        }
    }

    // A physical line of 1100 bytes is read as two: its first 1023 bytes, which here end in the
    // English script, and the rest, which here is a record of its own.
    void longLine()
    {
        const QByteArray head = "3|0|0|T|C|P|Node|7|last-l|1|1|" + QByteArray(976, '.') + "|0|KNOT|NODE DISP";
        const QByteArray tail =
            "122|0|0|T|C|P|Node|7|last-l|1|1|" + QByteArray(26, '.') + "|0|STAB|BEAM FORC\n";
        QCOMPARE(head.size(), 1023);
        const std::vector<GraphicalOutputRecord> records = parseText(head + tail);
        QCOMPARE(records.size(), size_t(2));
        QCOMPARE(records[0].scriptEnglish, QStringLiteral("NODE DISP"));
        QCOMPARE(records[1].prog1, 122);
        QCOMPARE(records[1].scriptEnglish, QStringLiteral("BEAM FORC"));
    }

    // The parser reuses what it made of a field equal to the line before's and resolves each
    // caption once a parse: a line's record must not depend on its neighbours, nor on a dropped
    // line. A plain caption's identifier is its column's.
    void togetherAsAlone_data()
    {
        QTest::addColumn<QByteArrayList>("lines");
        QTest::addColumn<QStringList>("ids");
        const QString plain = QStringLiteral("    001    002    003");
        QTest::newRow("only the third program changes")
            << QByteArrayList{"1|0|0|A|B|C|All|0|last|0|0| |0|G1|E1\n",
                              "1|0|5|A|B|C|All|0|last|0|0| |0|G2|E2\n"}
            << QStringList{plain, plain};
        QTest::newRow("key captions come back after others")
            << QByteArrayList{"1|0|0|&ABC|@X01 one|A|All|0|last|0|0| |0|G1|E1\n",
                              "1|0|0|@X01 one|&ABC|&ABC|All|0|last|0|0| |0|G2|E2\n",
                              "1|0|0|&ABC|@X01 one|A|All|0|last|0|0| |0|G3|E3\n"}
            << QStringList{"   &ABC   @X01    003", "   @X01   &ABC   &ABC", "   &ABC   @X01    003"};
        QTest::newRow("UTF-8 and ASCII lines with the same fields")
            << QByteArrayList{"1|0|0|Ergebnis ü|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1 ä|E1\n",
                              "1|0|0|Ergebnis|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1|E1\n",
                              "1|0|0|Ergebnis ü|Knoten|Verschiebung|All|7|last-l|1|1| |0|G1 ä|E1\n"}
            << QStringList{plain, plain, plain};
        QTest::newRow("blanks around equal fields")
            << QByteArrayList{"2|0|0|A|B|C|All|3|desi-e|1|1|x|4|G1|E1\n",
                              " 2 |0|0| A |B|C |All| 3|desi-e |1|1|x |4|G1|E1\n",
                              "2|0|0|A|B|C|All|3|DESI-E|1|1|x|4|G1|E1\n"}
            << QStringList{plain, plain, plain};
        QTest::newRow("a dropped line between")
            << QByteArrayList{"3|0|0|Results|Nodes|Displacement|Quad|8|desi-e|2|0|x|0|G2|E2\n",
                              "3|0|0|Other|Beams|Moments|Beam|9|beam| 0 |0|y|0| |dropped\n",
                              "3|0|0|Results|Beams|@AB1 Shown|Beam|9|beam|0|0|y|0|G3|E3\n"}
            << QStringList{plain, "    001    002   @AB1"};
    }

    void togetherAsAlone()
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
        QCOMPARE(describedAll(parseText(lines.join())), alone);
    }

    // Short fields of digits are read directly, longer ones and others as QString::toInt() reads
    // them; data/sample.data has signs, letters and blanks.
    void numbers()
    {
        const std::pair<QByteArray, int> fields[] = {
            {"-3", -3}, {"123456789", 123456789}, {"2147483647", 2147483647}, {"2147483648", 0}};
        for (const auto& [field, value] : fields) {
            const QByteArray f = field + '|';
            const std::vector<GraphicalOutputRecord> records =
                parseText(f + f + f + "A|B|C|All|" + f + "last|" + f + f + " |" + f + "G|E\n");
            QCOMPARE(records.size(), size_t(1));
            const GraphicalOutputRecord& r = records.front();
            const QVector<int> read{r.prog1,     r.prog2,    r.prog3,     r.number7,
                                    r.preselect, r.viewKind, r.systemMask};
            QCOMPARE(read, QVector<int>(read.size(), value));
        }
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"

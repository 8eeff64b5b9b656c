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

    void sampleCatalogue_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("reference");
        QTest::newRow("English") << 1 << "sample_en.txt";
        QTest::newRow("German") << 0 << "sample_de.txt";
    }

    // Every form of line and caption of data/sample.data, as records.
    void sampleCatalogue()
    {
        QFETCH(int, language);
        QFETCH(QString, reference);
        QFile file(QStringLiteral(TEST_DATA_DIR "/sample.data"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        LanguageScope scope(language);
        std::vector<GraphicalOutputRecord> records;
        parseCatalogue(file, records);
        QVERIFY(matchesReference(describedAll(records).join(QString()), reference));
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

    // A line's record does not depend on the lines before it (all lines here have 15 columns), also
    // where it repeats fields of its neighbours or of a dropped line.
    void linesReadTogetherAsAlone()
    {
        const QList<QByteArray> lines{
            "3|0|0|Results|Nodes|Displacement|Node|7|last-l|1|1|x|0|G1|E1\n",
            "3|0|0|Results|Nodes|Displacement|Quad|8|desi-e|2|0|x|0|G2|E2\n",
            "3|0|0|Other|Beams|Moments|Beam|9|beam| 0 |0|y|0| |dropped\n",
            "3|0|0|Results|Beams|@AB1 Shown|Beam|9|beam|0|0|y|0|G3|E3\n",
            "3|0|0| |Beams|Displacement|All|9|other|0|0| |0|G5|E5\n",
        };
        QStringList alone;
        for (const QByteArray& l : lines)
            alone += describedAll(parseText(l));
        QCOMPARE(alone.size(), 4);
        QCOMPARE(describedAll(parseText(lines.join())), alone);
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"

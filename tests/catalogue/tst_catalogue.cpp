#include "catalogue.h"
#include "testsupport.h"

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// The record written back as a catalogue line, column for column.
QString columns(const GraphicalOutputRecord& r)
{
    const QVariantList fields{r.prog1,    r.prog2,      r.prog3,      r.title1,       r.title2,
                              r.title3,   r.contentTag, r.number7,    r.caseWord,     r.preselect,
                              r.viewKind, r.text11,     r.systemMask, r.scriptGerman, r.scriptEnglish};
    QStringList out;
    for (const QVariant& f : fields)
        out << f.toString();
    return out.join(QLatin1Char('|'));
}

QStringList columnsOf(const std::vector<GraphicalOutputRecord>& records)
{
    QStringList out;
    for (const GraphicalOutputRecord& r : records)
        out << columns(r);
    return out;
}

// A valid line of fifteen columns; the captions are plain so that a line reads back as written.
QStringList plot(const QString& german = QStringLiteral("KNOT VERS"),
                 const QString& english = QStringLiteral("NODE DISP"))
{
    return {"3",      "0", "0", "Results", "Nodes", "Displacement", "Node", "7",
            "last-l", "1", "1", "x",       "0",     german,         english};
}

QByteArray line(const QStringList& cols, const char* end = "\n")
{
    return cols.join(QLatin1Char('|')).toUtf8() + end;
}

QString joined(const QStringList& cols)
{
    return cols.join(QLatin1Char('|'));
}

// The identifier of a caption: one per column for plain captions, else the key text with three
// blanks in front, or the qualifiers and the key text.
constexpr int Plain = 0, Key = 1, Qualified = 2;

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

    void lines_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("records");

        const QStringList good = plot();
        const QString firstZero = joined(good).replace(0, 1, QStringLiteral("0"));
        QStringList fourteen = plot(QStringLiteral("STAB SCHN"));
        fourteen.removeLast();
        QStringList thirteen = fourteen;
        thirteen.removeLast();
        const QStringList blankGerman = plot(QStringLiteral(" "), QStringLiteral("DROPPED EN"));

        QTest::newRow("valid line") << line(good) << QStringList{joined(good)};
        QTest::newRow("comment line") << "//" + line(good) << QStringList{};
        QTest::newRow("indented comment with all columns is a record")
            << " //" + line(good) << QStringList{firstZero};
        QTest::newRow("13 parts") << line(thirteen) << QStringList{};
        QTest::newRow("14 parts take the English script of the line before")
            << line(good) + line(fourteen) << QStringList{joined(good), joined(fourteen) + "|NODE DISP"};
        QTest::newRow("14 parts take it from a line that was dropped")
            << line(blankGerman) + line(fourteen) << QStringList{joined(fourteen) + "|DROPPED EN"};
        // The line feed behind the bar is column 14, blank after trimming.
        QTest::newRow("trailing bar behind 14 columns wipes the carried script")
            << line(good) + line(fourteen, "|\n") + line(fourteen) << QStringList{joined(good)};
        QTest::newRow("blank German script") << line(blankGerman) << QStringList{};
        QTest::newRow("numbers that are no numbers read 0")
            << QByteArray("x|1e3| +5 |Results|Nodes|Displacement|Node|seven|last|one|2.5|x|0x8|KNOT "
                          "VERS|NODE DISP\n")
            << QStringList{"0|0|5|Results|Nodes|Displacement|Node|0|last|0|0|x|0|KNOT VERS|NODE DISP"};
        QTest::newRow("fields are trimmed")
            << QByteArray(
                   " 3 |\t122\t| 222|  Results |Nodes|Displacement| Node |7| LAST-L |2|3| x | 9 | KNOT "
                   "VERS |  NODE DISP  \n")
            << QStringList{"3|122|222|Results|Nodes|Displacement|Node|7|LAST-L|2|3|x|9|KNOT VERS|NODE DISP"};
        QTest::newRow("UTF-8 text")
            << QByteArray(
                   "3|0|0|Ergebnisse|Knoten|Verschiebung ü|Node|0|last|1|1| |0|KNOT VERS ä|NODE DISP\n")
            << QStringList{"3|0|0|Ergebnisse|Knoten|Verschiebung ü|Node|0|last|1|1||0|KNOT VERS ä|NODE DISP"};
    }

    void lines()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, records);
        QCOMPARE(columnsOf(parseText(text)), records);
    }

    // A physical line of 1100 bytes is read as two: its first 1023 bytes, which here end in the
    // English script, and the rest, which here is a record of its own.
    void longLine()
    {
        QStringList head = plot();
        head[11] = QString(1023 - line(head, "").size() + 1, QLatin1Char('.'));
        QStringList tail = plot(QStringLiteral("STAB SCHN"), QStringLiteral("BEAM FORC"));
        tail[0] = QStringLiteral("122");
        tail[11] = QString(1100 - 1023 - line(tail).size() + 1, QLatin1Char('.'));
        const QByteArray text = line(head, "") + line(tail);
        QCOMPARE(text.indexOf("NODE DISP") + 9, 1023);
        QCOMPARE(text.size(), 1100);
        QCOMPARE(columnsOf(parseText(text)), (QStringList{joined(head), joined(tail)}));
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
            "3|0|0|Results|Beams|Displacement|Beam|9|beam|0|0|y|0|G4|E4\n",
            "3|0|0| |Beams|Displacement|All|9|other|0|0| |0|G5|E5\n",
        };
        auto described = [](const std::vector<GraphicalOutputRecord>& records) {
            QStringList out;
            for (const GraphicalOutputRecord& r : records)
                out << columns(r) + QStringLiteral(" ids '%1' '%2' '%3' ctrl %4 class %5 mark %6")
                                        .arg(r.id1, r.id2, r.id3)
                                        .arg(r.ctrl)
                                        .arg(r.rowClass)
                                        .arg(r.rowMark);
            return out;
        };
        QStringList alone;
        for (const QByteArray& l : lines)
            alone += described(parseText(l));
        QCOMPARE(alone.size(), 5);
        QCOMPARE(described(parseText(lines.join())), alone);
    }

    void captions_data()
    {
        // The field stands in all three caption columns; the texts of the keys are those of
        // data/textservice/grav.msg.
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("id");

        QTest::newRow("plain") << "abc" << 1 << "abc" << Plain;
        QTest::newRow("key text with fallback") << "&ABC Fallback" << 1 << "Base" << Key;
        QTest::newRow("key text, German") << "&ABC Fallback" << 0 << "Basis" << Key;
        QTest::newRow("token without text takes the fallback") << "&XYZ  Fallback " << 1 << "Fallback" << Key;
        QTest::newRow("class 1, German") << "^CAR Caret?" << 0 << "Dach" << Key;
        QTest::newRow("short form before > dropped") << "&GTK" << 1 << "Long" << Key;
        QTest::newRow("> at the start kept") << "&GT0" << 0 << ">Anfang" << Key;
        QTest::newRow("@ form") << "@ND1   Nodes" << 1 << "Nodes" << Key;
        QTest::newRow("@ behind qualifiers is plain") << "12 @ND1 Nodes" << 1 << "12 @ND1 Nodes" << Plain;
        QTest::newRow("sign in fourth place needs seven characters") << "abc&AB" << 1 << "abc&AB" << Plain;
        // Qualified: the text of the third character, two blanks, the base text, then the texts of
        // the first and of the second character.
        QTest::newRow("example") << "1 A&ABC" << 1 << "Prefix  Base I" << Qualified;
        QTest::newRow("example with fallback, German")
            << "1 A&ABC Fallback" << 0 << "Vorsatz  Basis I" << Qualified;
        QTest::newRow("base without text keeps qualifiers")
            << "1 A&XYZ Fallback" << 1 << "Prefix  I" << Qualified;
        QTest::newRow("no text at all takes the fallback")
            << "---&XYZ Fallback" << 1 << "Fallback" << Qualified;
        QTest::newRow("U2R") << "U2R&ABC" << 1 << "Rare  Base bottom layer 2" << Qualified;
        QTest::newRow("3tD, German") << "3tD&ABC" << 0 << "Bemessung  Basis III im Schnitt" << Qualified;
        QTest::newRow("z--, German") << "z--&ABC" << 0 << "Basis lokal z" << Qualified;
        QTest::newRow("a+- on a class 4 base")
            << "a+-$DOL" << 1 << "Dollar text direction a layer 1 + 2" << Qualified;
    }

    void captions()
    {
        QFETCH(QString, field);
        QFETCH(int, language);
        QFETCH(QString, caption);
        QFETCH(int, id);
        QStringList cols = plot();
        cols[3] = cols[4] = cols[5] = field;
        LanguageScope scope(language);
        const std::vector<GraphicalOutputRecord> records = parseText(line(cols));
        QCOMPARE(records.size(), size_t(1));
        const GraphicalOutputRecord& r = records[0];
        QCOMPARE((QStringList{r.title1, r.title2, r.title3}), (QStringList{caption, caption, caption}));
        const QString key = id == Key ? QStringLiteral("   ") + field.left(4) : field.left(7);
        const QStringList ids =
            id == Plain ? QStringList{"    001", "    002", "    003"} : QStringList{key, key, key};
        QCOMPARE((QStringList{r.id1, r.id2, r.id3}), ids);
    }

    void sampleCatalogue_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("reference");
        QTest::newRow("English") << 1 << "sample_en.txt";
        QTest::newRow("German") << 0 << "sample_de.txt";
    }

    // Each record as its columns, then its identifiers and ctrl, rowClass, rowMark.
    void sampleCatalogue()
    {
        QFETCH(int, language);
        QFETCH(QString, reference);
        QFile file(QStringLiteral(TEST_DATA_DIR "/sample.data"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        LanguageScope scope(language);
        std::vector<GraphicalOutputRecord> records;
        parseCatalogue(file, records);
        QString text;
        for (const GraphicalOutputRecord& r : records)
            text += QStringLiteral("%1\n  [%2|%3|%4] %5 %6 %7\n")
                        .arg(columns(r), r.id1, r.id2, r.id3)
                        .arg(r.ctrl)
                        .arg(r.rowClass)
                        .arg(r.rowMark);
        QVERIFY(matchesReference(text, reference));
    }
};

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"

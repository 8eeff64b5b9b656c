#include "captiontokens.h"
#include "catalogue.h"
#include "testsupport.h"

#include <vkd_q.h>

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// The record written back as a catalogue line, column for column.
QString columns(const GraphicalOutputRecord& r)
{
    return QStringList{QString::number(r.prog1),
                       QString::number(r.prog2),
                       QString::number(r.prog3),
                       r.title1,
                       r.title2,
                       r.title3,
                       r.contentTag,
                       QString::number(r.number7),
                       r.caseWord,
                       QString::number(r.preselect),
                       QString::number(r.viewKind),
                       r.text11,
                       QString::number(r.systemMask),
                       r.scriptGerman,
                       r.scriptEnglish}
        .join(QLatin1Char('|'));
}

QStringList columnsOf(const std::vector<GraphicalOutputRecord>& records)
{
    QStringList out;
    for (const GraphicalOutputRecord& r : records)
        out << columns(r);
    return out;
}

QString quoted(const QString& s)
{
    return QLatin1Char('"') + s + QLatin1Char('"');
}

QString dump(const std::vector<GraphicalOutputRecord>& records)
{
    QString out;
    int n = 0;
    for (const GraphicalOutputRecord& r : records) {
        out += QStringLiteral("record %1\n").arg(++n);
        out += QStringLiteral("  programs %1 %2 %3\n").arg(r.prog1).arg(r.prog2).arg(r.prog3);
        out +=
            QStringLiteral("  captions %1 %2 %3\n").arg(quoted(r.title1), quoted(r.title2), quoted(r.title3));
        out += QStringLiteral("  ids %1 %2 %3\n").arg(quoted(r.id1), quoted(r.id2), quoted(r.id3));
        out += QStringLiteral("  content %1 number7 %2 text11 %3\n")
                   .arg(quoted(r.contentTag))
                   .arg(r.number7)
                   .arg(quoted(r.text11));
        out += QStringLiteral("  cases %1 ctrl %2 rowClass %3 rowMark %4 preselect %5\n")
                   .arg(quoted(r.caseWord))
                   .arg(r.ctrl)
                   .arg(r.rowClass)
                   .arg(r.rowMark)
                   .arg(r.preselect);
        out += QStringLiteral("  view %1 mask %2\n").arg(r.viewKind).arg(r.systemMask);
        out += QStringLiteral("  German %1\n  English %2\n")
                   .arg(quoted(r.scriptGerman), quoted(r.scriptEnglish));
    }
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

// The columns with text11 filled with dots so that their line, end included, has length bytes.
QStringList padded(QStringList cols, int length, const char* end)
{
    cols[11] = QString();
    cols[11] = QString(length - line(cols, end).size(), QLatin1Char('.'));
    return cols;
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void lines_data();
    void lines();
    void longLines_data();
    void longLines();
    void caseWord_data();
    void caseWord();
    void captionColumn_data();
    void captionColumn();
    void captionText_data();
    void captionText();
    void expand_data();
    void expand();
    void sampleCatalogue_data();
    void sampleCatalogue();
    void appendsToTheSharedList();
};

void TestCatalogue::initTestCase()
{
    // The text service reads its catalogue at the first opentext; it must find the test texts.
    qputenv("VKD_SEARCHPATH", TEST_DATA_DIR "/textservice");
}

void TestCatalogue::lines_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("records");

    const QStringList good = plot();
    QStringList fourteen = plot(QStringLiteral("STAB SCHN"));
    fourteen.removeLast();
    QStringList thirteen = fourteen;
    thirteen.removeLast();
    QStringList sixteen = plot();
    sixteen << "ignored";
    QStringList blankGerman = plot(QStringLiteral(" "), QStringLiteral("DROPPED EN"));
    QStringList blankEnglish = plot(QStringLiteral("DE"), QStringLiteral(" "));

    QTest::newRow("valid line") << line(good) << QStringList{joined(good)};
    QTest::newRow("comment line") << "//" + line(good) << QStringList{};
    QTest::newRow("comment with a blank behind the slashes") << "// " + line(good) << QStringList{};
    QTest::newRow("single slash is no comment")
        << "/" + line(good) << QStringList{joined(good).replace(0, 1, QStringLiteral("0"))};
    QTest::newRow("indented comment is dropped for its parts")
        << QByteArray("  // a note\n") << QStringList{};
    QTest::newRow("indented comment with all columns is a record")
        << " //" + line(good) << QStringList{joined(good).replace(0, 1, QStringLiteral("0"))};
    QTest::newRow("blank line") << QByteArray(" \t  \n") << QStringList{};
    QTest::newRow("empty line") << QByteArray("\n") << QStringList{};
    QTest::newRow("blank lines around a record") << "\n  \n" + line(good) + "\n" << QStringList{joined(good)};
    QTest::newRow("13 parts") << line(thirteen) << QStringList{};
    QTest::newRow("14 parts as the first record") << line(fourteen) << QStringList{};
    QTest::newRow("14 parts take the English script of the line before")
        << line(good) + line(fourteen)
        << QStringList{joined(good), joined(fourteen) + QStringLiteral("|NODE DISP")};
    QTest::newRow("14 parts after a comment still take it")
        << line(good) + "// note\n" + line(fourteen)
        << QStringList{joined(good), joined(fourteen) + QStringLiteral("|NODE DISP")};
    QTest::newRow("14 parts take it from a line that was dropped")
        << line(blankGerman) + line(fourteen)
        << QStringList{joined(fourteen) + QStringLiteral("|DROPPED EN")};
    QTest::newRow("16 parts") << line(sixteen) << QStringList{joined(good)};
    QTest::newRow("blank German script") << line(blankGerman) << QStringList{};
    QTest::newRow("blank English script") << line(blankEnglish) << QStringList{};
    QTest::newRow("adjacent bars are one separator")
        << QByteArray("3|0||Results|Nodes|Displacement|Node|7|last-l|1|1|x|0|KNOT VERS|NODE DISP|EXTRA\n")
        << QStringList{"3|0|0|Nodes|Displacement|Node|7|0|1|1|0|0|0|NODE DISP|EXTRA"};
    QTest::newRow("adjacent bars leave 14 parts")
        << QByteArray("3|0||Results|Nodes|Displacement|Node|7|last-l|1|1|x|0|KNOT VERS|NODE DISP\n")
        << QStringList{};
    QTest::newRow("trailing bar behind 14 columns") << line(fourteen, "|\n") << QStringList{};
    QTest::newRow("trailing bar behind 14 columns wipes the carried script")
        << line(good) + line(fourteen, "|\n") + line(fourteen) << QStringList{joined(good)};
    QTest::newRow("trailing bar behind 15 columns") << line(good, "|\n") << QStringList{joined(good)};
    QTest::newRow("blank columns hold a space")
        << QByteArray("3|0|0|Results|Nodes|Displacement| | | | | | | |KNOT VERS|NODE DISP\n")
        << QStringList{"3|0|0|Results|Nodes|Displacement||0||0|0||0|KNOT VERS|NODE DISP"};
    QTest::newRow("numbers that are no numbers read 0")
        << QByteArray(
               "x|1e3| +5 |Results|Nodes|Displacement|Node|seven|last|one|2.5|x|0x8|KNOT VERS|NODE DISP\n")
        << QStringList{"0|0|5|Results|Nodes|Displacement|Node|0|last|0|0|x|0|KNOT VERS|NODE DISP"};
    QTest::newRow("fields are trimmed")
        << QByteArray(" 3 |\t122\t| 222|  Results |Nodes|Displacement| Node |7| LAST-L |2|3| x | 9 | KNOT "
                      "VERS |  NODE DISP  \n")
        << QStringList{"3|122|222|Results|Nodes|Displacement|Node|7|LAST-L|2|3|x|9|KNOT VERS|NODE DISP"};
    QTest::newRow("carriage return before the line feed") << line(good, "\r\n") << QStringList{joined(good)};
    QTest::newRow("no line feed at the end") << line(good, "") << QStringList{joined(good)};
    QTest::newRow("UTF-8 text")
        << QByteArray("3|0|0|Ergebnisse|Knoten|Verschiebung ü|Node|0|last|1|1| |0|KNOT VERS ä|NODE DISP\n")
        << QStringList{QStringLiteral(
               "3|0|0|Ergebnisse|Knoten|Verschiebung ü|Node|0|last|1|1||0|KNOT VERS ä|NODE DISP")};
}

void TestCatalogue::lines()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, records);
    QCOMPARE(columnsOf(parseText(text)), records);
}

void TestCatalogue::longLines_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("physicalLength");
    QTest::addColumn<QStringList>("records");

    const QStringList first = plot(QStringLiteral("KNOT VERS"), QStringLiteral("NODE DISP"));
    QStringList second = plot(QStringLiteral("STAB SCHN"), QStringLiteral("BEAM FORC"));
    second[0] = QStringLiteral("122");

    // The first 1023 bytes end in a bar, so that the rest of the 1100 bytes is a record of its own.
    const QStringList head = padded(first, 1023, "|");
    const QStringList tail = padded(second, 1100 - 1023, "\n");
    QTest::newRow("1100 bytes cut between two records")
        << line(head, "|") + line(tail) << 1100 << QStringList{joined(head), joined(tail)};

    // The cut falls behind "NODE" of the English script: the first piece is a record with what it
    // has of the script; the rest, " DISP" and blanks, has too few parts.
    QStringList cut = first;
    cut[11] = QString();
    const int englishStart = line(cut).size() - int(qstrlen("NODE DISP\n"));
    cut[11] = QString(1023 - 4 - englishStart, QLatin1Char('.'));
    QByteArray cutLine = line(cut, "");
    cutLine += QByteArray(1099 - cutLine.size(), ' ') + "\n";
    QStringList cutRecord = cut;
    cutRecord[14] = QStringLiteral("NODE");
    QTest::newRow("1100 bytes cut inside the English script")
        << cutLine + line(second) << 1100 << QStringList{joined(cutRecord), joined(second)};

    // 1023 bytes and then the line feed, which comes as an empty line of its own.
    const QStringList full = padded(first, 1024, "\n");
    QTest::newRow("1023 bytes before the line feed")
        << line(full) + line(second) << 1024 << QStringList{joined(full), joined(second)};
}

void TestCatalogue::longLines()
{
    QFETCH(QByteArray, text);
    QFETCH(int, physicalLength);
    QFETCH(QStringList, records);
    QCOMPARE(text.indexOf('\n') + 1, physicalLength);
    QCOMPARE(columnsOf(parseText(text)), records);
}

void TestCatalogue::caseWord_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("ctrl");
    QTest::addColumn<int>("rowClass");
    QTest::addColumn<int>("rowMark");

    QTest::newRow("last") << "last" << 1 << 0 << 1;
    QTest::newRow("last-l") << "last-l" << 1 << 1 << 1;
    QTest::newRow("upper case LAST-L") << "LAST-L" << 1 << 1 << 1;
    QTest::newRow("last-c") << "last-c" << 1 << 2 << 1;
    QTest::newRow("last-e") << "last-e" << 1 << 3 << 2;
    QTest::newRow("unknown suffix") << "last-x" << 1 << 0 << 1;
    QTest::newRow("empty suffix") << "last-" << 1 << 0 << 1;
    QTest::newRow("suffix must match in full") << "last-ll" << 1 << 0 << 1;
    QTest::newRow("suffix behind the first dash only") << "supp-e-l" << 0 << 0 << 1;
    QTest::newRow("sngl") << "sngl" << 0 << 0 << 1;
    QTest::newRow("nonl-E") << "nonl-E" << 0 << 3 << 2;
    QTest::newRow("supp-c") << "supp-c" << 0 << 2 << 1;
    QTest::newRow("eige-l") << "eige-l" << 0 << 1 << 1;
    QTest::newRow("zrt1") << "zrt1" << 0 << 0 << 1;
    QTest::newRow("zrt2-l") << "Zrt2-l" << 0 << 1 << 1;
    QTest::newRow("desi") << "desi" << 8 << 0 << 1;
    QTest::newRow("desi-e") << "desi-e" << 8 << 3 << 3;
    QTest::newRow("desi-l") << "desi-l" << 8 << 1 << 1;
    QTest::newRow("beam-l") << "beam-l" << -10 << 1 << 1;
    QTest::newRow("dsln-e") << "dsln-e" << -10 << 3 << 2;
    QTest::newRow("none") << "none" << -1 << 0 << 1;
    QTest::newRow("none-e") << "none-e" << -1 << 3 << 2;
    QTest::newRow("blank") << " " << -1 << 0 << 1;
    QTest::newRow("word with a blank") << "la st" << -1 << 0 << 1;
    QTest::newRow("dash alone") << "-l" << -1 << 1 << 1;
    QTest::newRow("longer word") << "lastx-l" << -1 << 1 << 1;
}

void TestCatalogue::caseWord()
{
    QFETCH(QString, word);
    QFETCH(int, ctrl);
    QFETCH(int, rowClass);
    QFETCH(int, rowMark);
    QStringList cols = plot();
    cols[8] = word;
    const std::vector<GraphicalOutputRecord> records = parseText(line(cols));
    QCOMPARE(records.size(), size_t(1));
    QCOMPARE(records[0].caseWord, word.trimmed());
    QCOMPARE(records[0].ctrl, ctrl);
    QCOMPARE(records[0].rowClass, rowClass);
    QCOMPARE(records[0].rowMark, rowMark);
}

void TestCatalogue::captionColumn_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("id");

    QTest::newRow("plain, first column") << "abc" << 3 << 1 << "abc"
                                         << "    001";
    QTest::newRow("plain, second column") << "abc" << 4 << 1 << "abc"
                                          << "    002";
    QTest::newRow("plain, third column") << "Top  view" << 5 << 1 << "Top  view"
                                         << "    003";
    QTest::newRow("key text with fallback") << "&ABC Fallback" << 4 << 1 << "Base"
                                            << "   &ABC";
    QTest::newRow("key text, German") << "&ABC Fallback" << 4 << 0 << "Basis"
                                      << "   &ABC";
    QTest::newRow("key text alone") << "&ABC" << 5 << 1 << "Base"
                                    << "   &ABC";
    QTest::newRow("token without text takes the fallback") << "&XYZ  Fallback " << 5 << 1 << "Fallback"
                                                           << "   &XYZ";
    QTest::newRow("token without text or fallback") << "&XYZ" << 3 << 1 << ""
                                                    << "   &XYZ";
    QTest::newRow("key glued to its fallback") << "&XYZFallback" << 3 << 1 << "Fallback"
                                               << "   &XYZ";
    QTest::newRow("class 1") << "^CAR Caret?" << 3 << 0 << "Dach"
                             << "   ^CAR";
    QTest::newRow("class 4") << "$DOL" << 3 << 1 << "Dollar text"
                             << "   $DOL";
    QTest::newRow("the sign picks the class") << "^ABC other class" << 3 << 1 << "other class"
                                              << "   ^ABC";
    QTest::newRow("short form before > dropped") << "&GTK" << 3 << 1 << "Long"
                                                 << "   &GTK";
    QTest::newRow("> at the start kept") << "&GT0" << 3 << 0 << ">Anfang"
                                         << "   &GT0";
    QTest::newRow("> kept outside class 0") << "^GTK" << 3 << 1 << "c>d"
                                            << "   ^GTK";
    QTest::newRow("qualified example") << "1 A&ABC" << 3 << 1 << "Prefix  Base I"
                                       << "1 A&ABC";
    QTest::newRow("qualified with fallback") << "1 A&ABC Fallback" << 4 << 0 << "Vorsatz  Basis I"
                                             << "1 A&ABC";
    QTest::newRow("qualified token without text keeps the qualifiers")
        << "1 A&XYZ Fallback" << 4 << 1 << "Prefix  I"
        << "1 A&XYZ";
    QTest::newRow("qualifiers without any text take the fallback")
        << "---&XYZ Fallback" << 5 << 1 << "Fallback"
        << "---&XYZ";
    QTest::newRow("dashes add nothing") << "---&ABC" << 5 << 1 << "Base"
                                        << "---&ABC";
    QTest::newRow("leading blank of a qualifier is trimmed away") << "  A&ABC" << 5 << 1 << "A&ABC"
                                                                  << "    003";
    QTest::newRow("@ form") << "@ND1 Nodes" << 4 << 1 << "Nodes"
                            << "   @ND1";
    QTest::newRow("@ form is literal in German") << "@ND1 Nodes" << 4 << 0 << "Nodes"
                                                 << "   @ND1";
    QTest::newRow("@ form alone") << "@ND1" << 4 << 1 << ""
                                  << "   @ND1";
    QTest::newRow("@ form with blanks") << "@ND1    Nodes of the model" << 3 << 1 << "Nodes of the model"
                                        << "   @ND1";
    QTest::newRow("@ form of a key with text") << "@ABC Literal" << 3 << 1 << "Literal"
                                               << "   @ABC";
    QTest::newRow("@ counts in the first place only") << "abc@efg" << 3 << 1 << "abc@efg"
                                                      << "    001";
    QTest::newRow("@ behind qualifiers is plain") << "12 @ND1 Nodes" << 3 << 1 << "12 @ND1 Nodes"
                                                  << "    001";
    QTest::newRow("sign in fourth place needs seven characters") << "abc&AB" << 3 << 1 << "abc&AB"
                                                                 << "    001";
    QTest::newRow("three characters are no key text") << "&AB" << 4 << 1 << "&AB"
                                                      << "    002";
    QTest::newRow("other sign") << "#ABC Text" << 5 << 1 << "#ABC Text"
                                << "    003";
}

void TestCatalogue::captionColumn()
{
    QFETCH(QString, field);
    QFETCH(int, column);
    QFETCH(int, language);
    QFETCH(QString, caption);
    QFETCH(QString, id);
    QStringList cols = plot();
    cols[column] = field;
    LanguageScope scope(language);
    const std::vector<GraphicalOutputRecord> records = parseText(line(cols));
    QCOMPARE(records.size(), size_t(1));
    const GraphicalOutputRecord& r = records[0];
    const QString titles[3] = {r.title1, r.title2, r.title3};
    const QString ids[3] = {r.id1, r.id2, r.id3};
    QCOMPARE(titles[column - 3], caption);
    QCOMPARE(ids[column - 3], id);
    // The other two columns keep their plain captions.
    for (int other = 3; other <= 5; ++other) {
        if (other == column)
            continue;
        QCOMPARE(titles[other - 3], cols[other]);
        QCOMPARE(ids[other - 3], QStringLiteral("    00%1").arg(other - 2));
    }
}

void TestCatalogue::captionText_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("language");
    QTest::addColumn<bool>("null");
    QTest::addColumn<QString>("text");

    QTest::newRow("base text starts with a blank") << "&ABC" << 1 << false << " Base";
    QTest::newRow("example: two blanks behind the prefix") << "1 A&ABC" << 1 << false << "Prefix  Base I";
    QTest::newRow("@ form gives null") << "@ND1 Nodes" << 1 << true << "";
    QTest::newRow("@ as base behind qualifiers gives null") << "1 A@ND1" << 1 << true << "";
    QTest::newRow("no token gives null") << "#ABC" << 1 << true << "";
    QTest::newRow("blank and dash add nothing") << " -\t&ABC" << 1 << false << " Base";
    QTest::newRow("third C") << "--C&ABC" << 1 << false << "Characteristic  Base";
    QTest::newRow("third D") << "--D&ABC" << 0 << false << "Bemessung  Basis";
    QTest::newRow("third I") << "--I&ABC" << 1 << false << "Initial  Base";
    QTest::newRow("third R") << "--R&ABC" << 1 << false << "Rare  Base";
    QTest::newRow("third S") << "--S&ABC" << 1 << false << "Quasi-permanent  Base";
    QTest::newRow("third is a first-place letter only") << "--O&ABC" << 1 << false << " Base";
    QTest::newRow("first 2") << "2--&ABC" << 1 << false << " Base II";
    QTest::newRow("first 3") << "3--&ABC" << 1 << false << " Base III";
    QTest::newRow("first B") << "B--&ABC" << 1 << false << " Base envelope";
    QTest::newRow("first O") << "O--&ABC" << 0 << false << " Basis oben";
    QTest::newRow("first S") << "S--&ABC" << 1 << false << " Base longitudinal";
    QTest::newRow("first T") << "T--&ABC" << 1 << false << " Base transverse";
    QTest::newRow("first U") << "U--&ABC" << 1 << false << " Base bottom";
    QTest::newRow("first V") << "V--&ABC" << 1 << false << " Base resultant";
    QTest::newRow("first Y with its letter") << "Y--&ABC" << 1 << false << " Base global Y";
    QTest::newRow("first c with its letter") << "c--&ABC" << 1 << false << " Base direction c";
    QTest::newRow("first s") << "s--&ABC" << 1 << false << " Base first layer";
    QTest::newRow("first t") << "t--&ABC" << 1 << false << " Base second layer";
    QTest::newRow("first z with its letter") << "z--&ABC" << 0 << false << " Basis lokal z";
    QTest::newRow("first lower-case o adds nothing") << "o--&ABC" << 1 << false << " Base";
    QTest::newRow("second +") << "-+-&ABC" << 1 << false << " Base layer 1 + 2";
    QTest::newRow("second 1") << "-1-&ABC" << 1 << false << " Base layer 1";
    QTest::newRow("second h") << "-h-&ABC" << 1 << false << " Base hatched";
    QTest::newRow("second t") << "-t-&ABC" << 0 << false << " Basis im Schnitt";
    QTest::newRow("second 3 adds nothing") << "-3-&ABC" << 1 << false << " Base";
    QTest::newRow("order: third, base, first, second")
        << "U2R&ABC" << 1 << false << "Rare  Base bottom layer 2";
    QTest::newRow("qualified class 1 base") << "X-A^CAR" << 1 << false << "Prefix  Caret global X";
    QTest::newRow("qualified class 4 base")
        << "a+-$DOL" << 1 << false << " Dollar text direction a layer 1 + 2";
    QTest::newRow("base without text keeps qualifiers") << "X-A&XYZ" << 1 << false << "Prefix  global X";
}

void TestCatalogue::captionText()
{
    QFETCH(QString, field);
    QFETCH(int, language);
    QFETCH(bool, null);
    QFETCH(QString, text);
    vkd_lib_opentext("grav");
    LanguageScope scope(language);
    const QString result = vkd::plib::widgetgraphicaloutput::captionText(field);
    QCOMPARE(result.isNull(), null);
    if (!null)
        QCOMPARE(result, text);
}

void TestCatalogue::expand_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("out");
    QTest::addColumn<bool>("before");
    QTest::addColumn<QString>("result");
    QTest::addColumn<bool>("metToken");

    QTest::newRow("behind") << "&ABC"
                            << ""
                            << "x" << false << "x Base" << true;
    QTest::newRow("before") << "&ABC"
                            << ""
                            << "x" << true << "Base x" << true;
    QTest::newRow("before an empty text") << "&ABC"
                                          << ""
                                          << "" << true << "Base " << true;
    QTest::newRow("token and suffix") << "&0ZG"
                                      << "X"
                                      << "Base" << false << "Base global X" << true;
    QTest::newRow("suffix goes behind also with before") << "&ABC"
                                                         << "I"
                                                         << "x" << true << "Base x I" << true;
    QTest::newRow("suffix alone") << ""
                                  << "II"
                                  << "x" << false << "x II" << true;
    QTest::newRow("nothing") << ""
                             << ""
                             << "x" << false << "x" << true;
    QTest::newRow("token without text") << "&XYZ"
                                        << ""
                                        << "x" << false << "x" << true;
    QTest::newRow("no token is taken as text") << "@ND1"
                                               << ""
                                               << "x" << false << "x @ND1" << false;
}

void TestCatalogue::expand()
{
    QFETCH(QString, token);
    QFETCH(QString, suffix);
    QFETCH(QString, out);
    QFETCH(bool, before);
    QFETCH(QString, result);
    QFETCH(bool, metToken);
    vkd_lib_opentext("grav");
    LanguageScope scope(1);
    QCOMPARE(vkd::plib::widgetgraphicaloutput::expand(token, suffix, out, before), metToken);
    QCOMPARE(out, result);
}

void TestCatalogue::sampleCatalogue_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("reference");
    QTest::newRow("English") << 1 << "sample_en.txt";
    QTest::newRow("German") << 0 << "sample_de.txt";
}

void TestCatalogue::sampleCatalogue()
{
    QFETCH(int, language);
    QFETCH(QString, reference);
    QFile file(QStringLiteral(TEST_DATA_DIR "/sample.data"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    LanguageScope scope(language);
    std::vector<GraphicalOutputRecord> records;
    parseCatalogue(file, records);
    QVERIFY(matchesReference(dump(records), reference));
}

void TestCatalogue::appendsToTheSharedList()
{
    catalogueList().clear();
    const QByteArray text =
        line(plot()) + line(plot(QStringLiteral("STAB SCHN"), QStringLiteral("BEAM FORC")));
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    parseCatalogue(buffer);
    buffer.seek(0);
    parseCatalogue(buffer);
    QCOMPARE(columnsOf(catalogueList()),
             (QStringList{joined(plot()), joined(plot("STAB SCHN", "BEAM FORC")), joined(plot()),
                          joined(plot("STAB SCHN", "BEAM FORC"))}));
    QCOMPARE(catalogueLanguage, -1);
}

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"

#include "captiontokens.h"
#include "catalogue.h"
#include "testsupport.h"

#include <vkd_q.h>

#include <QFile>
#include <QHash>
#include <QSet>
#include <QtTest>

#include <set>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

struct DataLine
{
    int number; // in the file, from 1
    QByteArray text;
};

QString plotId(const GraphicalOutputRecord& r)
{
    return (r.id1 + r.id2 + r.id3).trimmed();
}

bool offeredOn(const GraphicalOutputRecord& r, int program)
{
    return r.prog1 == program || r.prog2 == program || r.prog3 == program;
}

} // namespace

// The catalogue and the message catalogue that the system ships, found on the search path as the
// library finds them.
class TestShippedCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void everyLineIsARecord_data();
    void everyLineIsARecord();
    void captionsResolve_data();
    void captionsResolve();
    void qualifierTokensHaveTexts_data();
    void qualifierTokensHaveTexts();
    void storedChoicesTellPlotsApart_data();
    void storedChoicesTellPlotsApart();
    void splitPageTokensOnlyOnTheSplitPage();
    void coversEveryBinding();

private:
    QByteArray m_text;
    QList<DataLine> m_lines;
};

void TestShippedCatalogue::initTestCase()
{
    const std::string path = vkd_lib_searchpath("graphicaloutput.data", 3);
    QVERIFY2(!path.empty(), "graphicaloutput.data is not on the search path");
    QVERIFY2(!vkd_lib_searchpath("grav.msg", 3).empty(), "grav.msg is not on the search path");
    QFile file(QFile::decodeName(path.c_str()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_text = file.readAll();
    int number = 0;
    for (const QByteArray& line : m_text.split('\n')) {
        ++number;
        if (!line.startsWith("//") && !line.trimmed().isEmpty())
            m_lines << DataLine{number, line + '\n'};
    }
    QVERIFY2(m_lines.size() >= 120, qPrintable(QString::number(m_lines.size())));
    vkd_lib_opentext("grav");
}

void TestShippedCatalogue::everyLineIsARecord_data()
{
    QTest::addColumn<int>("language");
    QTest::newRow("German desktop") << 0;
    QTest::newRow("English desktop") << 1;
}

// Each line on its own makes one record: none leans on the line before it for its English
// script, none is cut at 1023 bytes, none is dropped.
void TestShippedCatalogue::everyLineIsARecord()
{
    QFETCH(int, language);
    LanguageScope scope(language);
    for (const DataLine& line : qAsConst(m_lines)) {
        QVERIFY2(line.text.size() < 1023, qPrintable(QStringLiteral("line %1 is too long").arg(line.number)));
        QVERIFY2(parseText(line.text).size() == 1,
                 qPrintable(QStringLiteral("line %1 is dropped").arg(line.number)));
    }
    QCOMPARE(parseText(m_text).size(), size_t(m_lines.size()));
}

void TestShippedCatalogue::captionsResolve_data()
{
    everyLineIsARecord_data();
}

// Every caption is a readable text, and every key in a caption has its text in grav.msg, so
// that no caption falls back to the text written behind its key.
void TestShippedCatalogue::captionsResolve()
{
    QFETCH(int, language);
    LanguageScope scope(language);
    for (const DataLine& line : qAsConst(m_lines)) {
        const QStringList parts = QString::fromUtf8(line.text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        const std::vector<GraphicalOutputRecord> records = parseText(line.text);
        QCOMPARE(records.size(), size_t(1));
        const QString titles[3] = {records[0].title1, records[0].title2, records[0].title3};
        for (int column = 3; column <= 5; ++column) {
            const QString field = parts.at(column).trimmed();
            const QString where =
                QStringLiteral("line %1, column %2: %3").arg(line.number).arg(column).arg(field);
            const QString title = titles[column - 3];
            QVERIFY2(!title.isEmpty(), qPrintable(where));
            QVERIFY2(!title.contains(QLatin1Char('>')), qPrintable(where));
            if (isKeyText(field) && !field.startsWith(QLatin1Char('@'))) {
                const QString text = captionText(field).trimmed();
                QCOMPARE(title, text);
                const bool qualified = isKeyText(QStringView(field).mid(3, 4));
                QVERIFY2(!captionText(qualified ? field.mid(3) : field).trimmed().isEmpty(),
                         qPrintable(where));
                // Every qualifier other than "-" adds a text: none of them is a slip.
                if (qualified) {
                    for (int i = 0; i < 3; ++i) {
                        QString without = field;
                        without[i] = QLatin1Char('-');
                        if (field.at(i) != QLatin1Char('-'))
                            QVERIFY2(captionText(without).trimmed().length() < text.length(),
                                     qPrintable(where));
                    }
                }
            }
        }
    }
}

void TestShippedCatalogue::qualifierTokensHaveTexts_data()
{
    QTest::addColumn<QString>("token");
    for (const char* token : {"&25C", "&27W", "&271", "&20A", "&27Q", "&27E", "&0ZH", "^19O", "^1LN", "^1LT",
                              "^19U", "&0Z1", "&0ZG", "&0ZM", "^1LA", "^1LB", "&0ZL", "^143", "&7ZH", "&7ZT"})
        QTest::newRow(token) << token;
}

void TestShippedCatalogue::qualifierTokensHaveTexts()
{
    QFETCH(QString, token);
    const int textClass = token.startsWith(QLatin1Char('&')) ? 0 : 1;
    const QByteArray key = token.mid(1).toLatin1();
    const QString german = QString::fromStdString(vkd_lib_convtext(textClass, 0, key.constData()));
    const QString english = QString::fromStdString(vkd_lib_convtext(textClass, 1, key.constData()));
    QVERIFY(!german.trimmed().isEmpty());
    QVERIFY(!english.trimmed().isEmpty());
}

void TestShippedCatalogue::storedChoicesTellPlotsApart_data()
{
    everyLineIsARecord_data();
}

// A stored choice names items by their identifiers: on one page no two plots may share one, and
// an identifier of the upper levels always stands for the same caption. A plot whose caption is
// that of its parent would take in the plots that follow it.
void TestShippedCatalogue::storedChoicesTellPlotsApart()
{
    QFETCH(int, language);
    LanguageScope scope(language);
    const std::vector<GraphicalOutputRecord> records = parseText(m_text);
    std::set<int> programs;
    for (const GraphicalOutputRecord& r : records)
        programs.insert({r.prog1, r.prog2, r.prog3});
    programs.erase(0);
    for (int program : programs) {
        QHash<QString, QString> plots;
        QHash<QString, QString> tops;
        QHash<QString, QString> middles;
        for (const GraphicalOutputRecord& r : records) {
            if (!offeredOn(r, program))
                continue;
            const QString plot = r.title1 + QLatin1Char('/') + r.title2 + QLatin1Char('/') + r.title3;
            QVERIFY2(
                !plots.contains(plotId(r)),
                qPrintable(
                    QStringLiteral("page %1: %2 and %3").arg(program).arg(plots.value(plotId(r)), plot)));
            plots.insert(plotId(r), plot);
            QCOMPARE(tops.value(r.id1, r.title1), r.title1);
            tops.insert(r.id1, r.title1);
            QCOMPARE(middles.value(r.id1 + r.id2, r.title2), r.title2);
            middles.insert(r.id1 + r.id2, r.title2);
            QVERIFY2(r.title3 != r.title2, qPrintable(plot));
        }
    }
}

void TestShippedCatalogue::splitPageTokensOnlyOnTheSplitPage()
{
    const std::vector<GraphicalOutputRecord> records = parseText(m_text);
    int split = 0;
    for (const GraphicalOutputRecord& r : records) {
        const bool token = r.scriptGerman.contains(QLatin1String("$(LFNR)"));
        QCOMPARE(r.scriptEnglish.contains(QLatin1String("$(LFNR)")), token);
        if (token) {
            ++split;
            QVERIFY2(r.prog1 == 122 && r.prog2 == 0 && r.prog3 == 0, qPrintable(r.scriptEnglish));
        }
    }
    QVERIFY(split > 0);
}

// The shipped catalogue is also the sample that hosts and their testers see: it uses every kind
// of binding, default choice and view.
void TestShippedCatalogue::coversEveryBinding()
{
    const std::vector<GraphicalOutputRecord> records = parseText(m_text);
    std::set<int> ctrl, rowClass, rowMark, preselect, viewKind, programs;
    QSet<QString> words;
    int eg3 = 0;
    int unit = 0;
    for (const GraphicalOutputRecord& r : records) {
        ctrl.insert(r.ctrl);
        rowClass.insert(r.rowClass);
        rowMark.insert(r.rowMark);
        preselect.insert(r.preselect);
        viewKind.insert(r.viewKind);
        programs.insert({r.prog1, r.prog2, r.prog3});
        words.insert(r.caseWord.toLower().section(QLatin1Char('-'), 0, 0));
        eg3 +=
            r.scriptGerman.contains(QLatin1String("EG3")) && r.scriptEnglish.contains(QLatin1String("EG3"));
        unit +=
            r.scriptGerman.contains(QLatin1String("UNIT")) && r.scriptEnglish.contains(QLatin1String("UNIT"));
    }
    QCOMPARE(ctrl, (std::set<int>{-10, -1, 0, 1, 8}));
    QCOMPARE(rowClass, (std::set<int>{0, 1, 2, 3}));
    QCOMPARE(rowMark, (std::set<int>{1, 2, 3}));
    QCOMPARE(preselect, (std::set<int>{0, 1, 2, 3}));
    QCOMPARE(viewKind, (std::set<int>{0, 1, 2, 3}));
    QVERIFY(programs.count(122) && programs.count(222));
    for (const char* word : {"last", "sngl", "nonl", "supp", "eige", "zrt1", "zrt2", "desi", "beam", "dsln"})
        QVERIFY2(words.contains(QLatin1String(word)), word);
    QVERIFY(eg3 > 0);
    QVERIFY(unit > 0);
}

QTEST_GUILESS_MAIN(TestShippedCatalogue)
#include "tst_shippedcatalogue.moc"

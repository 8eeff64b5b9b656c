#include "captiontokens.h"
#include "catalogue.h"
#include "testsupport.h"

#include <QHash>
#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

// The catalogue and the message catalogue that the system ships, found on the search path as the
// library finds them.
class TestShippedCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void everyLineIsAPlot_data();
    void everyLineIsAPlot();
    void coversEveryBinding();

private:
    QByteArray m_text;
};

void TestShippedCatalogue::initTestCase()
{
    const std::string path = vkd_lib_searchpath("graphicaloutput.data", 3);
    QVERIFY2(!path.empty() && !vkd_lib_searchpath("grav.msg", 3).empty(), "shipped files not found");
    QFile file(QFile::decodeName(path.c_str()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_text = file.readAll();
    vkd_lib_opentext("grav");
}

void TestShippedCatalogue::everyLineIsAPlot_data()
{
    QTest::addColumn<int>("language");
    QTest::newRow("German desktop") << 0;
    QTest::newRow("English desktop") << 1;
}

// Each line makes a record on its own (none leans on the line before for its English script, none
// is cut at 1023 bytes), every caption is a text of grav.msg where it names a key, every qualifier
// adds a text, and a stored choice tells the plots of a page apart.
void TestShippedCatalogue::everyLineIsAPlot()
{
    QFETCH(int, language);
    LanguageScope scope(language);
    QHash<QString, QString> plots;
    QHash<QString, QString> captions;
    int number = 0;
    int count = 0;
    for (const QByteArray& line : m_text.split('\n')) {
        ++number;
        if (line.startsWith("//") || line.trimmed().isEmpty())
            continue;
        ++count;
        const QString where = QStringLiteral("line %1").arg(number);
        const std::vector<GraphicalOutputRecord> records = parseText(line + '\n');
        QVERIFY2(line.size() < 1023 && records.size() == 1, qPrintable(where));
        const GraphicalOutputRecord& r = records[0];
        const QStringList fields =
            QString::fromUtf8(line).split(QLatin1Char('|'), Qt::SkipEmptyParts).mid(3, 3);
        const QStringList titles{r.title1, r.title2, r.title3};
        for (int i = 0; i < 3; ++i) {
            const QString field = fields.at(i).trimmed();
            QVERIFY2(!titles[i].isEmpty() && !titles[i].contains(QLatin1Char('>')), qPrintable(where));
            if (!isKeyText(field) || field.startsWith(QLatin1Char('@')))
                continue;
            QCOMPARE(titles[i], captionText(field).trimmed());
            const bool qualified = isKeyText(QStringView(field).mid(3, 4));
            QVERIFY2(!captionText(qualified ? field.mid(3) : field).trimmed().isEmpty(), qPrintable(where));
            for (int q = 0; qualified && q < 3; ++q) {
                QString without = field;
                without[q] = QLatin1Char('-');
                QVERIFY2(field[q] == QLatin1Char('-') ||
                             captionText(without).trimmed().size() < titles[i].size(),
                         qPrintable(where + QStringLiteral(", qualifier %1").arg(q + 1)));
            }
        }
        QVERIFY2(r.title3 != r.title2, qPrintable(where));
        QCOMPARE(r.scriptEnglish.contains(QLatin1String("$(LFNR)")),
                 r.scriptGerman.contains(QLatin1String("$(LFNR)")));
        if (r.scriptGerman.contains(QLatin1String("$(LFNR)")))
            QVERIFY2(r.prog1 == 122 && r.prog2 == 0 && r.prog3 == 0, qPrintable(where));
        // An identifier stands for one caption, and one plot on each page.
        for (int program : {r.prog1, r.prog2, r.prog3}) {
            if (program == 0)
                continue;
            const QString page = QString::number(program) + QLatin1Char(' ');
            const QString id = page + (r.id1 + r.id2 + r.id3).trimmed();
            QVERIFY2(!plots.contains(id), qPrintable(where + QStringLiteral(" and ") + plots.value(id)));
            plots.insert(id, where);
            QCOMPARE(captions.value(page + r.id1, r.title1), r.title1);
            QCOMPARE(captions.value(page + r.id1 + r.id2, r.title2), r.title2);
            captions.insert(page + r.id1, r.title1);
            captions.insert(page + r.id1 + r.id2, r.title2);
        }
    }
    QVERIFY2(count >= 120, qPrintable(QString::number(count)));
    QCOMPARE(parseText(m_text).size(), size_t(count));
}

// The shipped catalogue is also the sample that hosts and their testers see: it uses every kind
// of binding, default choice and view, and both page variants.
void TestShippedCatalogue::coversEveryBinding()
{
    // The case words stand for their kind of binding: last 1, desi 8, beam -10, none -1, others 0.
    QSet<QString> seen;
    for (const GraphicalOutputRecord& r : parseText(m_text)) {
        seen << QStringLiteral("rowClass %1").arg(r.rowClass) << QStringLiteral("rowMark %1").arg(r.rowMark)
             << QStringLiteral("preselect %1").arg(r.preselect) << QStringLiteral("view %1").arg(r.viewKind)
             << r.caseWord.toLower().section(QLatin1Char('-'), 0, 0);
        for (int program : {r.prog1, r.prog2, r.prog3})
            seen << QStringLiteral("page %1").arg(program);
        for (const char* word : {"EG3", "UNIT"})
            if (r.scriptGerman.contains(QLatin1String(word)) && r.scriptEnglish.contains(QLatin1String(word)))
                seen << QLatin1String(word);
    }
    for (const char* fact :
         {"rowClass 1",  "rowClass 2",  "rowClass 3", "rowMark 2", "rowMark 3", "preselect 0", "preselect 1",
          "preselect 2", "preselect 3", "view 0",     "view 1",    "view 2",    "view 3",      "page 122",
          "page 222",    "EG3",         "UNIT",       "last",      "sngl",      "nonl",        "supp",
          "eige",        "zrt1",        "zrt2",       "desi",      "beam",      "dsln",        "none"})
        QVERIFY2(seen.contains(QLatin1String(fact)), fact);
}

QTEST_GUILESS_MAIN(TestShippedCatalogue)
#include "tst_shippedcatalogue.moc"

// The design parameters without widgets: the record, its entries on a project page, its store
// access, the texts of the table, and the records as the project tool shows them.
#include "reference.h"

#include <VKD_A_BarDiameterData.h>
#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_ZOBDoc.h>
#include <designrecord.h>
#include <designstore.h>
#include <projectentries.h>
#include <rowtext.h>
#include <vkd_dbo.h>
#include <vkd_q.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

using namespace vkd::plib::design;
using R = tagZOB_QUAD_RIM;
using Floats = std::vector<float>;
using Groups = std::vector<int32_t>;
Q_DECLARE_METATYPE(Groups)

namespace {

constexpr float N = kNotSet;
const std::pair<const char*, int32_t R::*> kIntegers[] = {
    {"group", &R::group}, {"subId", &R::subId}, {"type", &R::type}, {"mode", &R::mode}, {"mark", &R::mark}};
constexpr float R::*kDistances[] = {&R::hio, &R::hioq, &R::hioi, &R::hiu, &R::hiuq, &R::hiui};

// The shortest text that reads back as the same float, so that comparisons are exact.
QString number(float v)
{
    int digits = 6;
    while (digits < 9 && QString::number(double(v), 'g', digits).toFloat() != v)
        ++digits;
    return QString::number(double(v), 'g', digits);
}

// Each word of a record as "offset name value", in the order of the library's names.
QStringList words(const R& r)
{
    QStringList out;
    auto add = [&](const char* name, const void* field, const QString& value) {
        const auto offset = static_cast<const char*>(field) - reinterpret_cast<const char*>(&r);
        out << QStringLiteral("%1 %2 %3").arg(offset).arg(QLatin1String(name), value);
    };
    for (const auto& [name, member] : kIntegers)
        add(name, &(r.*member), QString::number(r.*member));
    for (const RealField& f : kRealFields)
        add(f.name, &(r.*f.member), number(r.*f.member));
    return out;
}

// Parameter sets told apart by their type: A is type 1, B type 2, C type 3.
R variant(QChar set, int group)
{
    R r = getDefaultMerPara(false);
    r.type = set.unicode() - 'A' + 1;
    r.group = group;
    return r;
}

// "1A 2A/m5 -1B/s1 3A/d5 4A/l100": group and parameter set, then optionally another mark,
// subId or reservedD, or the record cut to a length.
void putRecords(int index, const QString& text)
{
    int length = 0;
    vkd_zob_put(index, kDesignKey1, kDesignKey2, nullptr, &length, 0);
    for (const QString& t : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString record = t.section('/', 0, 0), modifier = t.section('/', 1, 1).left(1);
        const int value = t.section('/', 1, 1).mid(1).toInt();
        R r = variant(record.back(), record.chopped(1).toInt());
        length = modifier == "l" ? value : int(sizeof r);
        if (modifier == "m")
            r.mark = value;
        else if (modifier == "s")
            r.subId = value;
        else if (modifier == "d")
            r.reservedD = float(value);
        vkd_zob_put(index, kDesignKey1, kDesignKey2, &r, &length, 1);
    }
}

// The records of a key pair in the form of putRecords.
QString records(int index, int key1 = kDesignKey1, int key2 = kDesignKey2)
{
    QStringList out;
    R r;
    int length = int(sizeof r);
    for (int position = 0; vkd_zob_get(index, key1, key2, &r, &length, position) < ZOB_END; ++position) {
        out << QStringLiteral("%1%2").arg(r.group).arg(QChar('A' + r.type - 1));
        if (r.mark != 11)
            out.last() += QStringLiteral("/m%1").arg(r.mark);
        if (r.subId != 0)
            out.last() += QStringLiteral("/s%1").arg(r.subId);
        length = int(sizeof r);
    }
    return out.join(QLatin1Char(' '));
}

// "A:1,2,3 B:-1 C:": each row's parameter set and its groups; type 0 shows as "@".
QString rowsText(const std::vector<DesignParameterRow>& rows)
{
    QStringList out;
    for (const DesignParameterRow& row : rows) {
        QStringList groups;
        for (int g : row.groups)
            groups << QString::number(g);
        out << QChar('A' + row.record.type - 1) + QStringLiteral(":") + groups.join(QLatin1Char(','));
    }
    return out.join(QLatin1Char(' '));
}

// Rows in the form of rowsText, in the edited form.
void addRows(std::vector<DesignParameterRow>& rows, const QString& text)
{
    for (const QString& r : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        DesignParameterRow& row = rows.emplace_back();
        row.record = variant(r.at(0), 0);
        toEditedForm(row.record, 0);
        for (const QString& g : r.mid(2).split(QLatin1Char(','), Qt::SkipEmptyParts))
            row.groups.push_back(g.toInt());
    }
}

int32_t packed(char a, char b, char c, char d)
{
    return int32_t(quint8(a) | quint32(quint8(b)) << 8 | quint32(quint8(c)) << 16 | quint32(quint8(d)) << 24);
}

// A record of the edited form with every value set and each value different, in the order of
// the record; angles in degrees.
R fullRecord(int type)
{
    R r = getDefaultMerPara(false);
    r.type = type;
    // clang-format off
    const float values[48] = {30, 120, 75, -15, 90, 45, 4.5f, -2, 0.25f, 0.03f, 0.012f, 0.014f, 0.04f, 0.016f,
                              0.02f, 12, 10, 8, 16, 14, 6, N, 1.88e-4f, 1.31e-4f, 0.5e-4f, 2.57e-4f, 1.88e-4f,
                              0, N, 25e-4f, 20e-4f, 10e-4f, 30e-4f, 22e-4f, 12e-4f, 0, 0.0003f, 0.0002f,
                              0.0004f, 0.00025f, 0.0001f, 0, 280000, 300000, 347800, 250000, 240000, 0};
    // clang-format on
    for (int i = 0; i < 48; ++i)
        r.*kRealFields[i].member = i < 6 ? float(double(values[i]) * M_PI / 180.0) : values[i];
    return r;
}

QString runTool(const QString& command, const QString& path)
{
    QProcess tool;
    tool.start(QStringLiteral(PROJECT_TOOL), {command, path});
    if (!tool.waitForFinished(30000) || tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0)
        return QStringLiteral("plib-project failed: ") + QString::fromUtf8(tool.readAllStandardError());
    return QString::fromUtf8(tool.readAllStandardOutput());
}

} // namespace

class TestDesign : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_projects = 0;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
    VKD_A_BarDiameterData m_bars;
    DesignParameterData m_data;

    int index() const { return m_doc->index(); }
    DesignParameterRow row(const R& record, Groups groups = {})
    {
        return {&m_bars, record, std::move(groups)};
    }

private slots:
    void init()
    {
        m_doc = std::make_unique<VKD_H_ZOBDoc>(m_dir.filePath(QStringLiteral("%1.vkd").arg(++m_projects)));
        QVERIFY2(m_doc->isValid(), qPrintable(m_doc->errorString()));
        m_data = DesignParameterData();
        m_data.designDoc = m_doc.get();
        m_data.barData = &m_bars;
    }

    void cleanup() { m_doc.reset(); }

    // Every word of the record: offset, name, both defaults, whether records are compared on it,
    // whether records with the same NaN in it are equal, and what cleaning makes of the probe
    // values, changing no other word; for subId, what cleaning makes of 7 in each group.
    void fields()
    {
        QCOMPARE(int(sizeof(R)), 212);
        const float nan = std::numeric_limits<float>::quiet_NaN(),
                    probes[] = {-0.5f, 0, 0.125f, 99999, N, nan};
        const R base = getDefaultMerPara(false);
        const QStringList remaining = words(getDefaultMerPara(true)), newRow = words(base);
        QStringList lines;
        for (int i = 0; i < 53; ++i)
            lines << remaining[i] + QLatin1Char(' ') + newRow[i].section(' ', 2);
        auto compared = [&base](const R& changed) {
            return QLatin1String(!recordsEqual(base, changed) && !recordsEqual(changed, base) ? " compared"
                                                                                              : " ignored");
        };
        for (int i = 0; i < 5; ++i) {
            R changed = base;
            changed.*kIntegers[i].second += 3;
            lines[i] += compared(changed) + QStringLiteral(" -");
        }
        for (int group : {-5, -1, 0, 3}) {
            R r = base;
            r.group = group;
            r.subId = 7;
            cleanRecord(r);
            lines[1] += QStringLiteral(" %1:%2").arg(group).arg(r.subId);
        }
        for (int i = 0; i < 48; ++i) {
            const auto field = kRealFields[i].member;
            R changed = base, withNan = base;
            changed.*field += 1;
            withNan.*field = nan;
            lines[i + 5] += compared(changed) + (recordsEqual(withNan, withNan) ? " equal" : " unequal");
            for (float p : probes) {
                R r = base;
                r.*field = p;
                cleanRecord(r);
                lines[i + 5] += QLatin1Char(' ') + number(r.*field);
                r.*field = base.*field;
                if (words(r) != words(base))
                    lines[i + 5] += QStringLiteral(" (other words changed)");
            }
        }
        lines.prepend(QStringLiteral(
            "offset name remaining new-row comparison same-nan -0.5 0 0.125 99999 -99999 nan"));
        QString out;
        for (const QString& line : lines) {
            for (const QString& cell : line.split(QLatin1Char(' ')))
                out += cell.leftJustified(11);
            out = out.trimmed() + QLatin1Char('\n');
        }
        QVERIFY(matchesReference(out, QStringLiteral("record.txt")));
    }

    // Both conversions of each triple of distances, by kind of system. The lower side holds the
    // doubled values, to catch a mix-up of the sides; doubling is exact.
    void distances()
    {
        const float a = 0.035f, b = 0.045f;
        const Floats triples[] = {{3, 5, 8}, {a, b, b}, {a, b - a, 0}, {5, 4, 6},  {3, 5, 4},
                                  {N, 5, 6}, {3, N, 6}, {3, 2, N},     {-1, 2, 3}, {0, 0, 0}};
        auto convert = [](const Floats& t, int kind, bool toStored) {
            R r = getDefaultMerPara(false);
            for (int i = 0; i < 6; ++i)
                r.*kDistances[i] = i < 3 || t[i % 3] == N ? t[i % 3] : 2 * t[i % 3];
            const R before = r;
            toStored ? toStoredForm(r, kind) : toEditedForm(r, kind);
            QString text;
            for (int i = 0; i < 3; ++i) {
                text += QLatin1Char(' ') + number(r.*kDistances[i]);
                if (r.*kDistances[i + 3] != (r.*kDistances[i] == N ? N : 2 * r.*kDistances[i]))
                    text += QStringLiteral(" (lower side differs)");
            }
            for (auto field : kDistances)
                r.*field = before.*field;
            return words(r) == words(before) ? text : text + QStringLiteral(" (other words changed)");
        };
        QString out;
        auto add = [&](int kind, const Floats& t) {
            out += QStringLiteral("kind %1: %2 %3 %4 -> edited%5, stored%6\n")
                       .arg(kind)
                       .arg(number(t[0]), number(t[1]), number(t[2]), convert(t, kind, false),
                            convert(t, kind, true));
        };
        for (const Floats& t : triples)
            add(0, t);
        for (int kind : {9, 10, 19, 20})
            add(kind, triples[0]);
        QVERIFY(matchesReference(out, QStringLiteral("distances.txt")));
    }

    // The entry of the default record, what a trip through an entry changes in a record, and
    // what odd entries give.
    void entries()
    {
        QString out = QStringLiteral("== the default record\n") + entryText(getDefaultMerPara(true));
        R r = getDefaultMerPara(true);
        // clang-format off
        r.sigo = 347000; r.sigoq = 347.8f; r.sigu = 1234567; r.sigui = 999999; r.wko = 0.000312345678f;
        r.xref = 1234567; r.dioi = 12; r.diu = 16; r.diuq = 14; r.aso = 1.88e-4f; r.reservedM = 3;
        // clang-format on
        DesignParameterRow back;
        parseEntry(entryText(r), back);
        out += QStringLiteral("\n== a trip through an entry changes\n") + entryText(r);
        const QStringList before = words(r), after = words(back.record);
        for (int i = 0; i < before.size(); ++i)
            if (before[i] != after[i])
                out += QLatin1Char('\n') + before[i] + QStringLiteral(" -> ") + after[i].section(' ', 2);
        out += QStringLiteral("\n== odd entries give the words that are not zero");
        // clang-format off
        const char* const odd[][2] = {
            {"empty text", ""},
            {"six parts: no type", "2; | 1; | 1; | 1; | 1; | 1;"},
            {"diameter field of one value", "3; | ; | ; | ; | 12; | ; | 11;"},
            {"diameters alternate the sides", "3; | ; | ; | ; | 12;14;16;20;25; | ; | 0;"},
            {"short direction field", "1; | 0.5;0.25 | ; | ; | ; | ; | 11;"},
            {"blanks around numbers", "  2 ; |   0.5  ; | ; | ; | ; | ; |  11 ;  "},
            {"stresses by position", "1; | ; | ; | ; | ; | 0;0;0;0;0;0;100;200;300;400;500;600; | 11;"},
            {"type with a point", "4.5; | ; | ; | ; | ; | ; | 11;"}};
        // clang-format on
        for (const auto& [name, text] : odd) {
            DesignParameterRow row;
            parseEntry(QString::fromLatin1(text), row);
            out += QStringLiteral("\n%1: \"%2\" ->").arg(QLatin1String(name), QLatin1String(text));
            for (const QString& w : words(row.record))
                if (w.section(' ', 2) != QLatin1String("0"))
                    out += QLatin1Char(' ') + w.section(' ', 1, 1) + QLatin1Char('=') + w.section(' ', 2);
        }
        QVERIFY(matchesReference(out + QLatin1Char('\n'), QStringLiteral("entries.txt")));
    }

    void writeEntries_data()
    {
        QTest::addColumn<QString>("before"); // keys on the page
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("after"); // keys and the types of their entries
        // clang-format off
        QTest::newRow("rows 2 and 5 without groups")
            << "" << "A:1 B: C:1 D:1 C: A:1" << "MerPara1:2 MerPara2:3";
        QTest::newRow("remaining groups count as groups") << "" << "A:-1 B:" << "MerPara1:2";
        QTest::newRow("longer list left behind") << "MerPara1 MerPara2 MerPara3" << "A:1 B:" << "MerPara1:2";
        QTest::newRow("no row without groups deletes all") << "MerPara1 MerPara2 Other" << "A:1" << "Other:0";
        QTest::newRow("cleanup stops at the first gap")
            << "MerPara1 MerPara3" << "B:" << "MerPara1:2 MerPara3:0";
        QTest::newRow("gap right behind the written ones")
            << "MerPara2 MerPara4" << "B:" << "MerPara1:2 MerPara4:0";
        // clang-format on
    }

    void writeEntries()
    {
        QFETCH(QString, before);
        QFETCH(QString, rows);
        VKD_H_ProjectDialogPage page;
        for (const QString& key : before.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            page.setEntry(key, QStringLiteral("0; | ; | ; | ; | ; | ; | 0;"));
        addRows(m_data.rows, rows);
        writeRowsToEntries(m_data, page);
        QStringList got;
        for (const QString& key : page.keys())
            got << key + QLatin1Char(':') + page.getEntry(key, QString()).section(QLatin1Char(';'), 0, 0);
        QTEST(got.join(QLatin1Char(' ')), "after");
    }

    void read_data()
    {
        QTest::addColumn<QString>("before"); // rows already there
        QTest::addColumn<QString>("records");
        QTest::addColumn<QString>("rows");
        // clang-format off
        QTest::newRow("nothing stored") << "" << "" << "";
        QTest::newRow("equal neighbours fold") << "" << "1A 2A 3A" << "A:1,2,3";
        QTest::newRow("only neighbours fold") << "" << "1A 2B 1A" << "A:1 B:2 A:1";
        QTest::newRow("remaining groups read last") << "" << "1A 2A -1B" << "B:-1 A:1,2";
        QTest::newRow("two remaining records, the later first") << "" << "-1A 1A -1B" << "B:-1 A:-1 A:1";
        QTest::newRow("rows already there stay between") << "C:" << "1A -1B 2B" << "B:-1 C: A:1 B:2";
        QTest::newRow("other mark skipped") << "" << "1A 2A/m5 3A" << "A:1,3";
        QTest::newRow("skipped before the remaining groups") << "" << "-1A/s2 1B" << "B:1";
        QTest::newRow("mark 0 is ours, and compared") << "" << "1A/m0 2A/m0 3A" << "A:1,2 A:3";
        // The words beyond a short record's end keep those of the record before.
        QTest::newRow("short record") << "" << "1A 2A/l100" << "A:1,2";
        // clang-format on
    }

    void read()
    {
        QFETCH(QString, before);
        QFETCH(QString, records);
        QFETCH(QString, rows);
        addRows(m_data.rows, before);
        putRecords(index(), records);
        DesignParameterData again = m_data;
        readRowsFromZob(m_data);
        readRowsFromZob(again); // as when the page reads the store again
        QCOMPARE(rowsText(m_data.rows), rows);
        QCOMPARE(rowsText(again.rows), rows);
        for (const DesignParameterRow& row : m_data.rows) {
            QVERIFY(row.groups.empty() || row.barData == &m_bars);
            // The group word keeps the number of the record that opened the row.
            QVERIFY(row.groups.empty() || row.record.group == row.groups.front());
        }
    }

    void write_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("scratch");
        QTest::addColumn<QString>("reread");
        // clang-format off
        QTest::newRow("remaining groups first")
            << "" << "A:3,4 B:-1 C: A:5" << "-1B 3A 4A 5A" << "" << "B:-1 A:3,4,5";
        QTest::newRow("list order kept") << "" << "A:9,2,7" << "9A 2A 7A" << "" << "A:9,2,7";
        QTest::newRow("remaining in a longer list is a group")
            << "" << "A:-1,4" << "-1A 4A" << "" << "A:-1 A:4";
        QTest::newRow("two remaining rows") << "" << "A:-1 C:1 B:-1" << "-1A -1B 1C" << "" << "B:-1 A:-1 C:1";
        QTest::newRow("equal rows fold when they meet")
            << "" << "A:-1 B:2 B:5,6 A:3" << "-1A 2B 5B 6B 3A" << "" << "A:-1 B:2,5,6 A:3";
        QTest::newRow("rows without groups write nothing") << "1A 2B" << "A: B:" << "" << "" << "";
        QTest::newRow("foreign records dropped into the scratch key")
            << "1A 2B/m5 3A/m0 4C/s1 -1A" << "B:8" << "8B" << "2B/m5 4C/s1" << "B:8";
        // clang-format on
    }

    void write()
    {
        QFETCH(QString, before);
        QFETCH(QString, rows);
        QFETCH(QString, after);
        QFETCH(QString, scratch);
        putRecords(index(), before);
        addRows(m_data.rows, rows);
        bool converted = false;
        writeRowsToZob(m_data, converted);
        QVERIFY(converted);
        QCOMPARE(records(index()), after);
        QCOMPARE(records(kScratchIndex, kScratchKey1, kScratchKey2), scratch);
        DesignParameterData again;
        again.designDoc = m_doc.get();
        readRowsFromZob(again);
        QTEST(rowsText(again.rows), "reread");
        // The next write writes the same and empties the scratch key: what it held is gone.
        writeRowsToZob(m_data, converted);
        QCOMPARE(records(index()), after);
        QCOMPARE(records(kScratchIndex, kScratchKey1, kScratchKey2), QString());
    }

    // Every column of rows of every type, with defaults and fully set, as the table shows them;
    // the selection of odd group lists: -1 among others, the first secondary group, names with
    // blanks and a zero byte.
    void summaries()
    {
        QString out = QStringLiteral("== groups\n");
        for (const Groups& groups :
             {Groups{}, Groups{-1}, Groups{-1, 4}, Groups{vkd::dbo::kFirstSecondaryGroup},
              Groups{packed(' ', 'S', ' ', ' '), 2}, Groups{packed('A', 'B', 0, 'C')},
              Groups{packed('W', 'A', 'L', 'L')}})
            out += rowText(row(getDefaultMerPara(false), groups), ColumnSelection) + QLatin1Char('\n');
        auto add = [&](const QString& title, const DesignParameterRow& r) {
            out += QStringLiteral("== %1\n").arg(title);
            for (int column = -1; column <= 5; ++column)
                out +=
                    QStringLiteral("[%1] %2\n").arg(column).arg(rowText(r, column).replace('\n', "\n    "));
        };
        for (int type : {-1, 0, 1, 2, 3, 4, 5, 6, 13}) {
            R r = getDefaultMerPara(false);
            r.type = type;
            toEditedForm(r, 0);
            add(QStringLiteral("type %1, defaults").arg(type), row(r, {1, 2}));
        }
        for (int type = 1; type <= 5; ++type)
            add(QStringLiteral("type %1, every value set").arg(type), row(fullRecord(type), {-1}));
        QVERIFY(matchesReference(out, QStringLiteral("rowtexts.txt")));
    }

    // The project tool's view of the demo project.
    void projectTool()
    {
        const QString demo = m_dir.filePath(QStringLiteral("demo.vkd"));
        QCOMPARE(runTool(QStringLiteral("create"), demo), QStringLiteral("created %1\n").arg(demo));
        QVERIFY(matchesReference(runTool(QStringLiteral("design"), demo), QStringLiteral("demo-design.txt")));
        QVERIFY(matchesReference(runTool(QStringLiteral("model"), demo), QStringLiteral("demo-model.txt")));
    }
};

QTEST_GUILESS_MAIN(TestDesign)
#include "tst_design.moc"

#include "recordtable.h"

#include <designrecord.h>

#include <QtTest>

#include <cmath>
#include <limits>

using namespace vkd::plib::design;

Q_DECLARE_METATYPE(std::vector<float>)

namespace {

constexpr float N = kNotSet;

// Every field set by its name to a value that tells its offset: integers offset + 1000000,
// reals offset + 0.25.
tagZOB_QUAD_RIM recordNamingItsOffsets()
{
    tagZOB_QUAD_RIM r;
    // clang-format off
    r.group = 1000000; r.subId = 1000004; r.type = 1000008; r.mode = 1000012; r.mark = 1000016;
    r.rio = 20.25f; r.rioq = 24.25f; r.rioi = 28.25f; r.riu = 32.25f; r.riuq = 36.25f; r.riui = 40.25f;
    r.xref = 44.25f; r.yref = 48.25f; r.zref = 52.25f;
    r.hio = 56.25f; r.hioq = 60.25f; r.hioi = 64.25f; r.hiu = 68.25f; r.hiuq = 72.25f; r.hiui = 76.25f;
    r.dio = 80.25f; r.dioq = 84.25f; r.dioi = 88.25f; r.diu = 92.25f; r.diuq = 96.25f; r.diui = 100.25f;
    r.reservedD = 104.25f;
    r.aso = 108.25f; r.asoq = 112.25f; r.asoi = 116.25f; r.asu = 120.25f; r.asuq = 124.25f; r.asui = 128.25f;
    r.reservedS = 132.25f;
    r.amo = 136.25f; r.amoq = 140.25f; r.amoi = 144.25f; r.amu = 148.25f; r.amuq = 152.25f; r.amui = 156.25f;
    r.reservedM = 160.25f;
    r.wko = 164.25f; r.wkoq = 168.25f; r.wkoi = 172.25f; r.wku = 176.25f; r.wkuq = 180.25f; r.wkui = 184.25f;
    r.sigo = 188.25f; r.sigoq = 192.25f; r.sigoi = 196.25f; r.sigu = 200.25f; r.siguq = 204.25f; r.sigui = 208.25f;
    // clang-format on
    return r;
}

// The default record word by word, as bits, written out from the table of defaults.
std::vector<quint32> expectedDefaultWords(bool forRemainingGroups)
{
    const quint32 notSet = 0xC7C34F80, halfPi = 0x3FC90FDB, d35 = 0x3D0F5C29, d45 = 0x3D3851EC;
    const quint32 bar10 = 0x41200000;
    // clang-format off
    std::vector<quint32> w = {
        forRemainingGroups ? 0xFFFFFFFFu : 0u, 0, forRemainingGroups ? 1u : 0u, 1, 11, // group .. mark
        0, halfPi, notSet, 0, halfPi, notSet,                                          // rio .. riui
        0, 0, 0,                                                                       // xref .. zref
        d35, d45, d45, d35, d45, d45,                                                  // hio .. hiui
        bar10, bar10, bar10, bar10, bar10, bar10, notSet,                              // dio .. reservedD
        notSet, notSet, notSet, notSet, notSet, notSet, notSet,                        // aso .. reservedS
        notSet, notSet, notSet, notSet, notSet, notSet, 0,                             // amo .. reservedM
    };
    // clang-format on
    w.insert(w.end(), 12, notSet); // wko .. sigui
    return w;
}

QString exactTriple(const std::vector<float>& v)
{
    QStringList out;
    for (float f : v)
        out << exact(f);
    return out.join(QStringLiteral(", "));
}

QString upperDistances(const tagZOB_QUAD_RIM& r)
{
    return exactTriple({r.hio, r.hioq, r.hioi});
}

QString lowerDistances(const tagZOB_QUAD_RIM& r)
{
    return exactTriple({r.hiu, r.hiuq, r.hiui});
}

void setDistances(tagZOB_QUAD_RIM& r, const std::vector<float>& upper, const std::vector<float>& lower)
{
    r.hio = upper[0];
    r.hioq = upper[1];
    r.hioi = upper[2];
    r.hiu = lower[0];
    r.hiuq = lower[1];
    r.hiui = lower[2];
}

} // namespace

class TestDesignRecord : public QObject
{
    Q_OBJECT
private slots:
    void layout_data();
    void layout();
    void fieldNamesOfTheLibrary();
    void defaultRecord_data();
    void defaultRecord();
    void toEditedForm_data();
    void toEditedForm();
    void toStoredForm_data();
    void toStoredForm();
    void cleanRecord_data();
    void cleanRecord();
    void cleanRecordSubId_data();
    void cleanRecordSubId();
    void recordsEqual_data();
    void recordsEqual();
};

void TestDesignRecord::layout_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<bool>("integer");
    for (const FieldLayout& f : kLayout)
        QTest::newRow(f.name) << f.offset << f.integer;
}

void TestDesignRecord::layout()
{
    QFETCH(int, offset);
    QFETCH(bool, integer);
    const tagZOB_QUAD_RIM r = recordNamingItsOffsets();
    const QByteArray bytes(reinterpret_cast<const char*>(&r), int(sizeof r));
    QCOMPARE(bytes.size(), 212);
    // Little-endian words, read byte by byte.
    quint32 word = 0;
    for (int i = 3; i >= 0; --i)
        word = (word << 8) | quint8(bytes.at(offset + i));
    if (integer)
        QCOMPARE(qint32(word), 1000000 + offset);
    else
        QCOMPARE(exact(fromBits(word)), exact(float(offset) + 0.25f));
}

void TestDesignRecord::fieldNamesOfTheLibrary()
{
    // The project tool prints fields through this table: each name must reach its own word.
    const tagZOB_QUAD_RIM r = recordNamingItsOffsets();
    for (const RealField& f : kRealFields) {
        const int offset = offsetOf(QString::fromLatin1(f.name));
        QVERIFY2(r.*f.member == float(offset) + 0.25f, f.name);
    }
}

void TestDesignRecord::defaultRecord_data()
{
    QTest::addColumn<bool>("forRemainingGroups");
    QTest::newRow("remaining groups") << true;
    QTest::newRow("new row") << false;
}

void TestDesignRecord::defaultRecord()
{
    QFETCH(bool, forRemainingGroups);
    const tagZOB_QUAD_RIM r = getDefaultMerPara(forRemainingGroups);
    const std::vector<quint32> expected = expectedDefaultWords(forRemainingGroups);
    QCOMPARE(int(expected.size()), 53);
    for (const FieldLayout& f : kLayout) {
        quint32 word;
        std::memcpy(&word, reinterpret_cast<const char*>(&r) + f.offset, 4);
        const quint32 want = expected[size_t(f.offset / 4)];
        QVERIFY2(word == want, qPrintable(QStringLiteral("%1: 0x%2, expected 0x%3")
                                              .arg(QLatin1String(f.name))
                                              .arg(word, 8, 16, QLatin1Char('0'))
                                              .arg(want, 8, 16, QLatin1Char('0'))));
    }
}

void TestDesignRecord::toEditedForm_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<std::vector<float>>("stored");
    QTest::addColumn<std::vector<float>>("edited");

    const float a = 0.035f, b = 0.045f;
    QTest::newRow("defaults") << 0 << std::vector<float>{a, b, b} << std::vector<float>{a, b - a, 0.0f};
    QTest::newRow("three distinct layers") << 0 << std::vector<float>{0.03f, 0.05f, 0.08f}
                                           << std::vector<float>{0.03f, 0.05f - 0.03f, 0.08f - 0.05f};
    QTest::newRow("second above first")
        << 0 << std::vector<float>{0.05f, 0.04f, 0.06f} << std::vector<float>{0.05f, N, 0.06f - 0.04f};
    QTest::newRow("third above second")
        << 0 << std::vector<float>{0.03f, 0.05f, 0.04f} << std::vector<float>{0.03f, 0.05f - 0.03f, N};
    QTest::newRow("first not set") << 0 << std::vector<float>{N, 0.05f, 0.06f}
                                   << std::vector<float>{N, N, 0.06f - 0.05f};
    QTest::newRow("second not set") << 0 << std::vector<float>{0.03f, N, 0.06f}
                                    << std::vector<float>{0.03f, N, N};
    QTest::newRow("zeros") << 0 << std::vector<float>{0.0f, 0.0f, 0.0f}
                           << std::vector<float>{0.0f, 0.0f, 0.0f};
    QTest::newRow("kind 9 is spatial")
        << 9 << std::vector<float>{a, b, b} << std::vector<float>{a, b - a, 0.0f};
    QTest::newRow("kind 10 is plane") << 10 << std::vector<float>{a, b, b} << std::vector<float>{N, N, N};
    QTest::newRow("kind 19 is plane") << 19 << std::vector<float>{a, b, b} << std::vector<float>{N, N, N};
    QTest::newRow("kind 20 is a plate")
        << 20 << std::vector<float>{a, b, b} << std::vector<float>{a, b - a, 0.0f};
}

void TestDesignRecord::toEditedForm()
{
    QFETCH(int, kind);
    QFETCH(std::vector<float>, stored);
    QFETCH(std::vector<float>, edited);
    tagZOB_QUAD_RIM r = getDefaultMerPara(false);
    // The lower side holds other values, to catch a mix-up of the two sides.
    setDistances(r, stored, {0.04f, 0.05f, 0.07f});
    const tagZOB_QUAD_RIM before = r;
    vkd::plib::design::toEditedForm(r, kind);
    QCOMPARE(upperDistances(r), exactTriple(edited));
    if (kind >= 10 && kind <= 19)
        QCOMPARE(lowerDistances(r), exactTriple({N, N, N}));
    else
        QCOMPARE(lowerDistances(r), exactTriple({0.04f, 0.05f - 0.04f, 0.07f - 0.05f}));
    // Nothing but the distances changes.
    QCOMPARE(std::memcmp(&r, &before, 56), 0);
    QCOMPARE(std::memcmp(reinterpret_cast<char*>(&r) + 80, reinterpret_cast<const char*>(&before) + 80, 132),
             0);
}

void TestDesignRecord::toStoredForm_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<std::vector<float>>("edited");
    QTest::addColumn<std::vector<float>>("stored");

    QTest::newRow("defaults") << 0 << std::vector<float>{0.035f, 0.01f, 0.0f}
                              << std::vector<float>{0.035f, 0.035f + 0.01f, 0.035f + 0.01f};
    QTest::newRow("three layers") << 0 << std::vector<float>{0.03f, 0.02f, 0.03f}
                                  << std::vector<float>{0.03f, 0.03f + 0.02f, (0.03f + 0.02f) + 0.03f};
    QTest::newRow("first not set") << 0 << std::vector<float>{N, 0.02f, 0.03f} << std::vector<float>{N, N, N};
    QTest::newRow("spacing not set") << 0 << std::vector<float>{0.03f, N, 0.03f}
                                     << std::vector<float>{0.03f, N, N};
    QTest::newRow("negative first") << 0 << std::vector<float>{-0.01f, 0.02f, 0.03f}
                                    << std::vector<float>{-0.01f, N, N};
    QTest::newRow("third spacing not set")
        << 0 << std::vector<float>{0.03f, 0.02f, N} << std::vector<float>{0.03f, 0.03f + 0.02f, N};
    QTest::newRow("kind 10 clears all six")
        << 10 << std::vector<float>{0.03f, 0.02f, 0.03f} << std::vector<float>{N, N, N};
    QTest::newRow("kind 19 clears all six")
        << 19 << std::vector<float>{0.03f, 0.02f, 0.03f} << std::vector<float>{N, N, N};
}

void TestDesignRecord::toStoredForm()
{
    QFETCH(int, kind);
    QFETCH(std::vector<float>, edited);
    QFETCH(std::vector<float>, stored);
    tagZOB_QUAD_RIM r = getDefaultMerPara(false);
    setDistances(r, edited, {0.04f, 0.01f, 0.02f});
    vkd::plib::design::toStoredForm(r, kind);
    QCOMPARE(upperDistances(r), exactTriple(stored));
    if (kind >= 10 && kind <= 19)
        QCOMPARE(lowerDistances(r), exactTriple({N, N, N}));
    else
        QCOMPARE(lowerDistances(r), exactTriple({0.04f, 0.04f + 0.01f, 0.04f + 0.01f + 0.02f}));
}

void TestDesignRecord::cleanRecord_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("expected");

    const float nan = std::numeric_limits<float>::quiet_NaN();
    const struct
    {
        const char* field;
        bool zeroIsValue; // zero is a value here; otherwise it means not set
    } kinds[] = {{"wko", true},       {"sigui", true}, {"hio", true},        {"hiui", true},
                 {"dioq", false},     {"diui", false}, {"reservedD", false}, {"aso", true},
                 {"reservedS", true}, {"amui", true},  {"reservedM", true}};
    for (const auto& k : kinds) {
        const QByteArray f(k.field);
        QTest::newRow(f + ", negative") << QString::fromLatin1(f) << -0.5f << N;
        QTest::newRow(f + ", 99999") << QString::fromLatin1(f) << 99999.0f << N;
        QTest::newRow(f + ", zero") << QString::fromLatin1(f) << 0.0f << (k.zeroIsValue ? 0.0f : N);
        QTest::newRow(f + ", positive") << QString::fromLatin1(f) << 0.125f << 0.125f;
        QTest::newRow(f + ", not set") << QString::fromLatin1(f) << N << N;
    }
    QTest::newRow("dio, 99999 survives") << "dio" << 99999.0f << 99999.0f;
    QTest::newRow("dio, zero") << "dio" << 0.0f << N;
    QTest::newRow("dio, negative") << "dio" << -12.0f << N;
    QTest::newRow("dio, bar") << "dio" << 12.0f << 12.0f;
    QTest::newRow("99998 is a value") << "amo" << 99998.0f << 99998.0f;
    QTest::newRow("NaN stays") << "wko" << nan << nan;
    QTest::newRow("direction untouched") << "rio" << -1.0f << -1.0f;
    QTest::newRow("reference point untouched") << "xref" << 99999.0f << 99999.0f;
}

void TestDesignRecord::cleanRecord()
{
    QFETCH(QString, field);
    QFETCH(float, value);
    QFETCH(float, expected);
    tagZOB_QUAD_RIM r = getDefaultMerPara(false);
    setRealAt(r, offsetOf(field), value);
    tagZOB_QUAD_RIM want = r;
    setRealAt(want, offsetOf(field), expected);
    vkd::plib::design::cleanRecord(r);
    QCOMPARE(exact(realAt(r, offsetOf(field))), exact(expected));
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(&r), 212),
             QByteArray(reinterpret_cast<const char*>(&want), 212));
}

void TestDesignRecord::cleanRecordSubId_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("subId");
    QTest::addColumn<int>("expected");
    QTest::newRow("remaining groups") << -1 << 7 << 0;
    QTest::newRow("other negative group") << -5 << 7 << 0;
    QTest::newRow("group 0 keeps it") << 0 << 7 << 7;
    QTest::newRow("group 3 keeps it") << 3 << 7 << 7;
}

void TestDesignRecord::cleanRecordSubId()
{
    QFETCH(int, group);
    QFETCH(int, subId);
    QFETCH(int, expected);
    tagZOB_QUAD_RIM r = getDefaultMerPara(false);
    r.group = group;
    r.subId = subId;
    vkd::plib::design::cleanRecord(r);
    QCOMPARE(r.subId, expected);
    QCOMPARE(r.group, group);
}

void TestDesignRecord::recordsEqual_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("equal");
    QTest::newRow("group") << "group" << true;
    QTest::newRow("subId") << "subId" << true;
    QTest::newRow("type") << "type" << false;
    QTest::newRow("mode") << "mode" << false;
    QTest::newRow("mark") << "mark" << false;
    for (const FieldLayout& f : kLayout) {
        if (f.integer)
            continue;
        const bool ignored = QByteArray(f.name) == "reservedD" || QByteArray(f.name) == "reservedS";
        QTest::newRow(f.name) << QString::fromLatin1(f.name) << ignored;
    }
}

void TestDesignRecord::recordsEqual()
{
    QFETCH(QString, field);
    QFETCH(bool, equal);
    const tagZOB_QUAD_RIM a = getDefaultMerPara(false);
    const int offset = offsetOf(field);
    const bool integer = offset < 20;

    tagZOB_QUAD_RIM b = a;
    if (integer) {
        qint32 v;
        std::memcpy(&v, reinterpret_cast<char*>(&b) + offset, 4);
        v += 3;
        std::memcpy(reinterpret_cast<char*>(&b) + offset, &v, 4);
    } else {
        setRealAt(b, offset, realAt(a, offset) + 1.0f);
    }
    QCOMPARE(vkd::plib::design::recordsEqual(a, b), equal);
    QCOMPARE(vkd::plib::design::recordsEqual(b, a), equal);
    QVERIFY(vkd::plib::design::recordsEqual(a, a));

    if (integer)
        return;
    // The same NaN in both records: equal only where the field takes no part.
    tagZOB_QUAD_RIM n = a;
    setRealAt(n, offset, std::numeric_limits<float>::quiet_NaN());
    QCOMPARE(vkd::plib::design::recordsEqual(n, n), equal);
    // Reals compare as numbers, not as bits.
    tagZOB_QUAD_RIM z1 = a, z2 = a;
    setRealAt(z1, offset, 0.0f);
    setRealAt(z2, offset, -0.0f);
    QVERIFY(vkd::plib::design::recordsEqual(z1, z2));
}

QTEST_GUILESS_MAIN(TestDesignRecord)
#include "tst_designrecord.moc"

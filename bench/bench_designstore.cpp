// The design parameter records in a project file: writing the rows as one record per group and
// reading them back, beside bare SQLite doing the same to the same file.
// Usage: bench_designstore [--quick] [--json] [--runs N]

#include "benchharness.h"
#include "designrecord.h"
#include "designstore.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_q.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <cstdio>
#include <cstring>

using namespace vkd::plib::design;

namespace {

// The baseline's records lie beside ours, in the same table of the same file.
constexpr int kBareKey1 = 201;

std::vector<DesignParameterRow> designRows(int rows, int groupsPerRow)
{
    std::vector<DesignParameterRow> out;
    int group = 1;
    for (int r = 0; r < rows; ++r) {
        DesignParameterRow row;
        row.record = getDefaultMerPara(false);
        row.record.type = 1;
        // Neighbouring rows differ, so that reading does not fold them into one.
        row.record.aso = float(r % 100) / 10.0f;
        row.record.asu = float(r / 100) / 10.0f;
        for (int g = 0; g < groupsPerRow; ++g)
            row.groups.push_back(group++);
        out.push_back(row);
    }
    return out;
}

// One connection of its own on the project file, with statements prepared once.
class BareStore
{
public:
    explicit BareStore(const QString& path)
    {
        sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_busy_timeout(m_db, 30000);
        sqlite3_prepare_v2(m_db, "DELETE FROM zob_record WHERE key1=?1 AND key2=?2", -1, &m_delete, nullptr);
        sqlite3_prepare_v2(m_db, "INSERT INTO zob_record(key1, key2, pos, data) VALUES(?1, ?2, ?3, ?4)", -1,
                           &m_insert, nullptr);
        sqlite3_prepare_v2(m_db, "SELECT data FROM zob_record WHERE key1=?1 AND key2=?2 ORDER BY pos", -1,
                           &m_select, nullptr);
    }
    ~BareStore()
    {
        sqlite3_finalize(m_delete);
        sqlite3_finalize(m_insert);
        sqlite3_finalize(m_select);
        sqlite3_close(m_db);
    }
    bool isValid() const { return m_delete && m_insert && m_select; }

    // Replaces the records at key1, key2 by these, in one transaction.
    void write(int key1, int key2, const std::vector<tagZOB_QUAD_RIM>& records)
    {
        sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        sqlite3_bind_int(m_delete, 1, key1);
        sqlite3_bind_int(m_delete, 2, key2);
        sqlite3_step(m_delete);
        sqlite3_reset(m_delete);
        int pos = 0;
        for (const tagZOB_QUAD_RIM& r : records) {
            sqlite3_bind_int(m_insert, 1, key1);
            sqlite3_bind_int(m_insert, 2, key2);
            sqlite3_bind_int(m_insert, 3, pos++);
            sqlite3_bind_blob(m_insert, 4, &r, int(sizeof r), SQLITE_STATIC);
            sqlite3_step(m_insert);
            sqlite3_reset(m_insert);
        }
        sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
    }

    std::vector<tagZOB_QUAD_RIM> read(int key1, int key2)
    {
        std::vector<tagZOB_QUAD_RIM> records;
        sqlite3_bind_int(m_select, 1, key1);
        sqlite3_bind_int(m_select, 2, key2);
        while (sqlite3_step(m_select) == SQLITE_ROW) {
            tagZOB_QUAD_RIM r;
            std::memcpy(&r, sqlite3_column_blob(m_select, 0), sizeof r);
            records.push_back(r);
        }
        sqlite3_reset(m_select);
        return records;
    }

private:
    sqlite3* m_db = nullptr;
    sqlite3_stmt* m_delete = nullptr;
    sqlite3_stmt* m_insert = nullptr;
    sqlite3_stmt* m_select = nullptr;
};

// The records that writing these rows stores, in order.
std::vector<tagZOB_QUAD_RIM> recordsOf(const std::vector<DesignParameterRow>& rows)
{
    std::vector<tagZOB_QUAD_RIM> records;
    for (const DesignParameterRow& row : rows) {
        tagZOB_QUAD_RIM r = row.record;
        for (int32_t group : row.groups) {
            r.group = group;
            records.push_back(r);
        }
    }
    return records;
}

void measure(bench::Harness& harness, VKD_H_ZOBDoc& doc, BareStore& bare, int rowCount, int groupsPerRow)
{
    DesignParameterData data;
    data.designDoc = &doc;
    data.kindOfSystem = 10;
    data.rows = designRows(rowCount, groupsPerRow);
    bool converted = false;
    writeRowsToZob(data, converted); // converts the rows once, as the page's first write does
    const std::vector<tagZOB_QUAD_RIM> records = recordsOf(data.rows);
    bare.write(kBareKey1, kDesignKey2, records);

    const QString size = rowCount == 1
                             ? QStringLiteral("%1 groups in one row").arg(groupsPerRow)
                             : QStringLiteral("%1 rows of %2 groups").arg(rowCount).arg(groupsPerRow);
    harness.compare({QStringLiteral("writeRowsToZob"), size,
                     QStringLiteral("SQLite inserts, one transaction, prepared"),
                     [&] { writeRowsToZob(data, converted); },
                     [&] { bare.write(kBareKey1, kDesignKey2, records); }, 1.25});

    DesignParameterData readBack;
    readBack.designDoc = &doc;
    readBack.kindOfSystem = 10;
    size_t bareCount = 0;
    harness.compare({QStringLiteral("readRowsFromZob"), QStringLiteral("%1 records").arg(records.size()),
                     QStringLiteral("SQLite select in order"), [&] { readRowsFromZob(readBack); },
                     [&] { bareCount = bare.read(kBareKey1, kDesignKey2).size(); }, 1.0,
                     [&] { readBack.rows.clear(); }});
    if (bareCount != records.size() || readBack.rows.size() != size_t(rowCount))
        std::fprintf(stderr, "read back %zu records in %zu rows, not %zu in %d\n", bareCount,
                     readBack.rows.size(), records.size(), rowCount);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    bench::Harness harness("design store", argc, argv);
    QTemporaryDir dir;
    VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("bench.vkd")));
    if (!doc.isValid()) {
        std::fprintf(stderr, "no project file: %s\n", qPrintable(doc.errorString()));
        return 1;
    }
    checkAndCreateZobDefault(doc.index());
    BareStore bare(vkd_zob_path(doc.index()));
    if (!bare.isValid()) {
        std::fprintf(stderr, "the project file cannot be read by SQLite\n");
        return 1;
    }
    measure(harness, doc, bare, 1, harness.size(100000, 1000));
    measure(harness, doc, bare, harness.size(10000, 100), 10);
    return harness.finish();
}

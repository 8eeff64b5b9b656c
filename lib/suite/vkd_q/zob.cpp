#include "vkd_q.h"

#include <QCoreApplication>

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <sqlite3.h>

#include <cstring>
#include <memory>
#include <unordered_map>
#include <vector>

namespace {

// Written into the file's application_id so that a project can be told from any other
// SQLite file before anything is written to it ("VKDZ").
constexpr int kApplicationId = 0x564B445A;
// Opening waits less than a write: a project that another program holds exclusively is
// reported soon instead of freezing the caller.
constexpr int kOpenBusyTimeoutMs = 2000;
constexpr int kHeaderSize = 100;
constexpr int kHeaderApplicationId = 68;
constexpr int kHeaderUserVersion = 60;

const char* const kSchema = "CREATE TABLE zob_key(key1 INTEGER NOT NULL, key2 INTEGER NOT NULL,"
                            " PRIMARY KEY(key1, key2)) WITHOUT ROWID;"
                            "CREATE TABLE zob_record(key1 INTEGER NOT NULL, key2 INTEGER NOT NULL,"
                            " pos INTEGER NOT NULL, data BLOB NOT NULL,"
                            " PRIMARY KEY(key1, key2, pos)) WITHOUT ROWID;";

struct Statement
{
    sqlite3_stmt* stmt = nullptr;
    ~Statement() { sqlite3_finalize(stmt); }
};

bool execScript(sqlite3* db, const char* sql)
{
    return sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

class Database
{
public:
    Database(sqlite3* db, const QString& path) : path(path), m_db(db) {}
    ~Database()
    {
        m_statements.clear();
        // A write that was never freed did not finish: it must not land half.
        if (!sqlite3_get_autocommit(m_db))
            execScript(m_db, "ROLLBACK");
        sqlite3_close(m_db);
    }
    sqlite3* handle() const { return m_db; }

    const QString path;
    QString readOnlyReason; // empty when the project may be written
    int busyTimeoutMs = kZobBusyTimeoutMs;
    // The present write: from a lock to the free of the same key pair, or one put outside.
    bool writeOpen = false;
    int writeKey1 = 0;
    int writeKey2 = 0;
    zob_status_t writeStatus = ZOB_OK;
    QString writeError;

    // Statements are prepared once per connection and reset after each use.
    sqlite3_stmt* statement(const char* sql)
    {
        auto& slot = m_statements[sql];
        if (!slot)
            slot = std::make_unique<Statement>();
        if (!slot->stmt &&
            sqlite3_prepare_v3(m_db, sql, -1, SQLITE_PREPARE_PERSISTENT, &slot->stmt, nullptr) != SQLITE_OK)
            return nullptr;
        sqlite3_reset(slot->stmt);
        sqlite3_clear_bindings(slot->stmt);
        return slot->stmt;
    }

    void beginWrite(int key1, int key2)
    {
        forgetAppend();
        writeOpen = true;
        writeKey1 = key1;
        writeKey2 = key2;
        writeStatus = ZOB_OK;
        writeError.clear();
    }

    // Only the first failure is kept: it is the cause, the later ones follow from it.
    zob_status_t fail(zob_status_t status)
    {
        if (writeStatus != ZOB_OK)
            return status;
        writeStatus = status;
        if (status == ZOB_READ_ONLY)
            writeError =
                QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 is open for reading only: %2.").arg(path, readOnlyReason);
        else if (status == ZOB_BUSY)
            writeError =
                QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 is in use by another program, which still held it "
                               "after %2 seconds.")
                    .arg(path)
                    .arg(busyTimeoutMs / 1000.0);
        else
            writeError = QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 could not be written: %2.")
                             .arg(path, QString::fromUtf8(sqlite3_errmsg(m_db)));
        return status;
    }

    zob_status_t failFromDatabase()
    {
        return fail(sqlite3_errcode(m_db) == SQLITE_BUSY ? ZOB_BUSY : ZOB_FAILED);
    }

    zob_status_t takeLock()
    {
        if (!readOnlyReason.isEmpty())
            return fail(ZOB_READ_ONLY);
        return execScript(m_db, "BEGIN IMMEDIATE") ? ZOB_OK : failFromDatabase();
    }

    // Lands the write whole if nothing in it failed, and not at all otherwise.
    void endWrite()
    {
        endWalk();
        forgetAppend();
        writeOpen = false;
        if (sqlite3_get_autocommit(m_db))
            return; // the lock was never taken
        if (writeStatus == ZOB_OK && execScript(m_db, "COMMIT"))
            return;
        if (writeStatus == ZOB_OK)
            failFromDatabase();
        execScript(m_db, "ROLLBACK");
    }

    // Readers walk a key pair position by position. After its first two steps a walk is served
    // from batches of records read in position order, instead of a lookup per position. No
    // statement stays open between calls: an open read would hold the file's shared lock and
    // keep other programs from writing. A walk sees the records of a batch as they stood when
    // the batch was read; any other call on the database ends the walk, so that it never
    // misses a change of this connection.
    struct Buffered
    {
        int position;
        QByteArray data;
    };
    struct Walk
    {
        int key1 = 0;
        int key2 = 0;
        int lastPosition = -1; // -1: no walk
        std::vector<Buffered> batch;
        size_t next = 0;
    };
    Walk walk;
    void endWalk() { walk = Walk(); }

    // Inside a write no one else writes, so the next free position of the key pair last
    // appended to holds until the write ends.
    struct Append
    {
        int key1 = 0;
        int key2 = 0;
        int nextPos = -1; // -1: not known
    };
    Append append;
    void forgetAppend() { append = Append(); }

private:
    sqlite3* m_db;
    std::unordered_map<const char*, std::unique_ptr<Statement>> m_statements;
};

struct Registry
{
    QHash<int, std::shared_ptr<Database>> open;
    int nextIndex = 1;
};

Registry& registry()
{
    static Registry r;
    return r;
}

std::shared_ptr<Database> openScratch()
{
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(":memory:", &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK ||
        !execScript(db, kSchema)) {
        sqlite3_close(db);
        return nullptr;
    }
    return std::make_shared<Database>(db, QStringLiteral(":memory:"));
}

Database* database(int index)
{
    auto& r = registry();
    if (index == 0 && !r.open.contains(0)) {
        auto scratch = openScratch();
        if (!scratch)
            return nullptr;
        r.open.insert(0, scratch);
    }
    auto it = r.open.constFind(index);
    return it == r.open.constEnd() ? nullptr : it->get();
}

// Why SQLite could not read a file that looked like a project.
QString readProblem(sqlite3* db, int rc, const QString& path)
{
    const QString detail = QString::fromUtf8(sqlite3_errmsg(db));
    switch (rc) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 is in use by another program.").arg(path);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 is damaged: %2.").arg(path, detail);
    case SQLITE_READONLY:
        // A hot journal that only a writer may roll back.
        return QCoreApplication::translate(
                   "VKD_H_ZOBDoc", "The project file %1 was left in the middle of a write; open it once for editing "
                   "so that the unfinished write is undone.")
            .arg(path);
    default:
        return QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 cannot be read: %2.").arg(path, detail);
    }
}

// Runs a one-row query; the SQLite result of the first thing that failed, or SQLITE_ROW.
int queryText(sqlite3* db, const char* sql, QByteArray* value)
{
    sqlite3_stmt* st = nullptr;
    int rc = sqlite3_prepare_v2(db, sql, -1, &st, nullptr);
    if (rc == SQLITE_OK) {
        rc = sqlite3_step(st);
        if (rc == SQLITE_ROW)
            *value = QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    }
    sqlite3_finalize(st);
    return rc;
}

// Empty if the open file is a sound project.
QString checkProject(sqlite3* db, const QString& path)
{
    QByteArray tables;
    int rc = queryText(
        db, "SELECT count(*) FROM sqlite_master WHERE type='table' AND name IN ('zob_key','zob_record')",
        &tables);
    if (rc != SQLITE_ROW)
        return readProblem(db, rc, path);
    if (tables != "2")
        return QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 is damaged: its record tables are missing.").arg(path);
    QByteArray check;
    rc = queryText(db, "PRAGMA quick_check", &check);
    if (rc != SQLITE_ROW)
        return readProblem(db, rc, path);
    if (check != "ok")
        return QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 is damaged: the integrity check failed.").arg(path);
    return QString();
}

quint32 bigEndianWord(const QByteArray& head, int offset)
{
    const auto* b = reinterpret_cast<const unsigned char*>(head.constData() + offset);
    return (quint32(b[0]) << 24) | (quint32(b[1]) << 16) | (quint32(b[2]) << 8) | quint32(b[3]);
}

// Reads the header with plain file I/O, so that a file that is refused here is never touched
// by SQLite. Empty if the header is that of a project this program reads.
QString checkHeader(const QByteArray& head, const QString& path)
{
    if (head.size() < kHeaderSize || !head.startsWith("SQLite format 3"))
        return QCoreApplication::translate("VKD_H_ZOBDoc", "%1 is not a project file.").arg(path);
    if (bigEndianWord(head, kHeaderApplicationId) != quint32(kApplicationId))
        return QCoreApplication::translate("VKD_H_ZOBDoc", "%1 is an SQLite database, but not a project file.").arg(path);
    const quint32 version = bigEndianWord(head, kHeaderUserVersion);
    if (version != quint32(kZobFormatVersion))
        return QCoreApplication::translate(
                   "VKD_H_ZOBDoc", "The project file %1 has format version %2; this program reads version %3 only.")
            .arg(path)
            .arg(version)
            .arg(kZobFormatVersion);
    return QString();
}

zob_status_t stepStatus(int rc)
{
    if (rc == SQLITE_DONE || rc == SQLITE_ROW)
        return ZOB_OK;
    return rc == SQLITE_BUSY ? ZOB_BUSY : ZOB_FAILED;
}

zob_status_t markKey(Database* d, int key1, int key2)
{
    sqlite3_stmt* st = d->statement("INSERT OR IGNORE INTO zob_key(key1, key2) VALUES(?1, ?2)");
    if (!st)
        return ZOB_FAILED;
    sqlite3_bind_int(st, 1, key1);
    sqlite3_bind_int(st, 2, key2);
    const zob_status_t status = stepStatus(sqlite3_step(st));
    sqlite3_reset(st);
    return status;
}

// Records a walk serves from one read.
constexpr int kWalkBatch = 512;

// The next batch of a walk: the records from position on, in position order.
void readBatch(Database* d, int key1, int key2, int position)
{
    Database::Walk& walk = d->walk;
    walk.batch.clear();
    walk.next = 0;
    sqlite3_stmt* st = d->statement("SELECT pos, data FROM zob_record WHERE key1=?1 AND key2=?2 AND pos>=?3"
                                    " ORDER BY pos LIMIT ?4");
    if (!st)
        return;
    sqlite3_bind_int(st, 1, key1);
    sqlite3_bind_int(st, 2, key2);
    sqlite3_bind_int(st, 3, position);
    sqlite3_bind_int(st, 4, kWalkBatch);
    int rc;
    while ((rc = sqlite3_step(st)) == SQLITE_ROW)
        walk.batch.push_back(
            {sqlite3_column_int(st, 0),
             QByteArray(static_cast<const char*>(sqlite3_column_blob(st, 1)), sqlite3_column_bytes(st, 1))});
    sqlite3_reset(st);
    if (rc != SQLITE_DONE)
        walk.batch.clear(); // the lookup of the position reports the error
}

bool keyKnown(Database* d, int key1, int key2)
{
    sqlite3_stmt* st = d->statement("SELECT 1 FROM zob_key WHERE key1=?1 AND key2=?2");
    if (!st)
        return false;
    sqlite3_bind_int(st, 1, key1);
    sqlite3_bind_int(st, 2, key2);
    const bool known = sqlite3_step(st) == SQLITE_ROW;
    sqlite3_reset(st); // an unfinished read would pin this connection's snapshot
    return known;
}

} // namespace

int vkd_zob_open(const QString& path, ZobOpenMode mode, QString* error)
{
    auto fail = [error](const QString& message) {
        if (error)
            *error = message;
        return -1;
    };
    const QFileInfo info(path);
    bool create = !info.exists();
    if (create && mode != ZOB_OPEN_OR_CREATE)
        return fail(QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 does not exist.").arg(path));
    if (info.isDir())
        return fail(QCoreApplication::translate("VKD_H_ZOBDoc", "%1 is a folder, not a project file.").arg(path));
    if (!create) {
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly))
            return fail(QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 cannot be read: %2.").arg(path, f.errorString()));
        const QByteArray head = f.read(kHeaderSize);
        if (head.isEmpty() && f.atEnd()) {
            if (mode != ZOB_OPEN_OR_CREATE)
                return fail(QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 is empty; it is not a project.").arg(path));
            create = true;
        } else {
            const QString problem = checkHeader(head, path);
            if (!problem.isEmpty())
                return fail(problem);
        }
    }

    QString readOnlyReason;
    if (mode == ZOB_OPEN_READ_ONLY || mode == ZOB_OPEN_MEMORY_COPY)
        readOnlyReason = QCoreApplication::translate("VKD_H_ZOBDoc", "it was opened for reading only");
    else if (!create && !info.isWritable())
        readOnlyReason = QCoreApplication::translate("VKD_H_ZOBDoc", "the file is write-protected");
    else if (!create && !QFileInfo(info.absolutePath()).isWritable())
        readOnlyReason = QCoreApplication::translate("VKD_H_ZOBDoc", "its folder is write-protected, so no journal can be kept beside it");

    sqlite3* db = nullptr;
    const int flags = readOnlyReason.isEmpty() ? SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0)
                                               : SQLITE_OPEN_READONLY;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, flags, nullptr) != SQLITE_OK) {
        const QString msg = db ? QString::fromUtf8(sqlite3_errmsg(db)) : QStringLiteral("out of memory");
        sqlite3_close(db);
        return fail(QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 cannot be opened: %2.").arg(path, msg));
    }
    sqlite3_busy_timeout(db, kOpenBusyTimeoutMs);
    sqlite3_extended_result_codes(db, 0);

    if (create) {
        // The header words and the tables land in one transaction: a file is a whole project or
        // none. The rollback journal keeps readers from writing anything beside the file.
        const QByteArray init =
            "BEGIN IMMEDIATE;PRAGMA application_id=" + QByteArray::number(kApplicationId) +
            ";PRAGMA user_version=" + QByteArray::number(kZobFormatVersion) + ";" + kSchema + "COMMIT;";
        if (!execScript(db, init.constData())) {
            const QString msg = QString::fromUtf8(sqlite3_errmsg(db));
            sqlite3_close(db);
            return fail(QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 cannot be created: %2.").arg(path, msg));
        }
    } else {
        const QString problem = checkProject(db, path);
        if (!problem.isEmpty()) {
            sqlite3_close(db);
            return fail(problem);
        }
    }

    if (mode == ZOB_OPEN_MEMORY_COPY) {
        sqlite3* copy = nullptr;
        sqlite3_open_v2(":memory:", &copy, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
        sqlite3_backup* backup = copy ? sqlite3_backup_init(copy, "main", db, "main") : nullptr;
        const bool copied = backup && sqlite3_backup_step(backup, -1) == SQLITE_DONE;
        sqlite3_backup_finish(backup);
        sqlite3_close(db);
        if (!copied) {
            sqlite3_close(copy);
            return fail(QCoreApplication::translate("VKD_H_ZOBDoc", "The project file %1 cannot be copied into memory.").arg(path));
        }
        db = copy;
        readOnlyReason.clear(); // the copy takes every write and forgets it
    }
    sqlite3_busy_timeout(db, kZobBusyTimeoutMs);

    auto d = std::make_shared<Database>(db, info.absoluteFilePath());
    d->readOnlyReason = readOnlyReason;
    auto& r = registry();
    const int index = r.nextIndex++;
    r.open.insert(index, d);
    return index;
}

void vkd_zob_close(int index)
{
    if (index > 0)
        registry().open.remove(index);
}

QString vkd_zob_path(int index)
{
    Database* d = database(index);
    return d ? d->path : QString();
}

bool vkd_zob_read_only(int index)
{
    Database* d = database(index);
    return d && !d->readOnlyReason.isEmpty();
}

void vkd_zob_set_busy_timeout(int index, int milliseconds)
{
    if (Database* d = database(index)) {
        d->busyTimeoutMs = milliseconds;
        sqlite3_busy_timeout(d->handle(), milliseconds);
    }
}

zob_status_t vkd_zob_write_status(int index)
{
    Database* d = database(index);
    return d ? d->writeStatus : ZOB_NO_DATABASE;
}

QString vkd_zob_write_error(int index)
{
    Database* d = database(index);
    return d ? d->writeError : QString();
}

zob_status_t vkd_zob_get(int index, int key1, int key2, void* record, int* length, int position)
{
    if (!length || *length < 0 || position < 0 || (!record && *length > 0))
        return ZOB_BAD_ARGUMENT;
    Database* d = database(index);
    if (!d)
        return ZOB_NO_DATABASE;
    Database::Walk& walk = d->walk;
    const bool continues =
        walk.lastPosition >= 0 && walk.key1 == key1 && walk.key2 == key2 && position == walk.lastPosition + 1;
    if (!continues)
        d->endWalk();
    if (continues && walk.next >= walk.batch.size())
        readBatch(d, key1, key2, position);
    if (continues && walk.next < walk.batch.size() && walk.batch[walk.next].position == position) {
        const QByteArray& data = walk.batch[walk.next++].data;
        const int copied = qMin(data.size(), *length);
        if (copied > 0)
            std::memcpy(record, data.constData(), size_t(copied));
        *length = copied;
        walk.lastPosition = position;
        return data.size() > copied ? ZOB_TRUNCATED : ZOB_OK;
    }
    if (continues)
        d->endWalk(); // the end, a gap or an error: the lookup below tells which
    sqlite3_stmt* st = d->statement("SELECT data FROM zob_record WHERE key1=?1 AND key2=?2 AND pos=?3");
    if (!st)
        return ZOB_FAILED;
    sqlite3_bind_int(st, 1, key1);
    sqlite3_bind_int(st, 2, key2);
    sqlite3_bind_int(st, 3, position);
    const int rc = sqlite3_step(st);
    if (rc == SQLITE_ROW) {
        const int size = sqlite3_column_bytes(st, 0);
        const int copied = qMin(size, *length);
        if (copied > 0)
            std::memcpy(record, sqlite3_column_blob(st, 0), size_t(copied));
        *length = copied;
        sqlite3_reset(st);
        walk.key1 = key1;
        walk.key2 = key2;
        walk.lastPosition = position;
        return size > copied ? ZOB_TRUNCATED : ZOB_OK;
    }
    sqlite3_reset(st);
    if (rc != SQLITE_DONE)
        return stepStatus(rc);
    return keyKnown(d, key1, key2) ? ZOB_END : ZOB_NO_KEY;
}

zob_status_t vkd_zob_put(int index, int key1, int key2, const void* record, const int* length, int position)
{
    if (!length || *length < 0 || (!record && *length > 0) || (position != 0 && position != 1))
        return ZOB_BAD_ARGUMENT;
    Database* d = database(index);
    if (!d)
        return ZOB_NO_DATABASE;
    d->endWalk();
    // Outside a lock the put is a write of its own, whose statements land together. Inside a
    // write that has failed already it is refused, so that nothing of that write lands.
    const bool single = !d->writeOpen;
    if (single) {
        d->beginWrite(key1, key2);
        const zob_status_t locked = d->takeLock();
        if (locked != ZOB_OK) {
            d->writeOpen = false;
            return locked;
        }
    } else if (d->writeStatus != ZOB_OK) {
        return d->writeStatus;
    }

    Database::Append& append = d->append;
    const bool appendKnown =
        position == 1 && append.nextPos >= 0 && append.key1 == key1 && append.key2 == key2;
    zob_status_t status = appendKnown ? ZOB_OK : markKey(d, key1, key2);
    int nextPos = 0;
    if (appendKnown) {
        nextPos = append.nextPos; // the key pair was marked by the append before
    } else if (status == ZOB_OK && position == 0) {
        sqlite3_stmt* del = d->statement("DELETE FROM zob_record WHERE key1=?1 AND key2=?2");
        if (!del) {
            status = ZOB_FAILED;
        } else {
            sqlite3_bind_int(del, 1, key1);
            sqlite3_bind_int(del, 2, key2);
            status = stepStatus(sqlite3_step(del));
            sqlite3_reset(del);
        }
    } else if (status == ZOB_OK) {
        sqlite3_stmt* last = d->statement("SELECT max(pos) FROM zob_record WHERE key1=?1 AND key2=?2");
        if (!last) {
            status = ZOB_FAILED;
        } else {
            sqlite3_bind_int(last, 1, key1);
            sqlite3_bind_int(last, 2, key2);
            if (sqlite3_step(last) == SQLITE_ROW && sqlite3_column_type(last, 0) != SQLITE_NULL)
                nextPos = sqlite3_column_int(last, 0) + 1;
            sqlite3_reset(last);
        }
    }
    if (status == ZOB_OK && (*length > 0 || position == 1)) {
        sqlite3_stmt* ins =
            d->statement("INSERT INTO zob_record(key1, key2, pos, data) VALUES(?1, ?2, ?3, ?4)");
        if (!ins) {
            status = ZOB_FAILED;
        } else {
            sqlite3_bind_int(ins, 1, key1);
            sqlite3_bind_int(ins, 2, key2);
            sqlite3_bind_int(ins, 3, nextPos);
            sqlite3_bind_blob(ins, 4, record ? record : "", *length, SQLITE_TRANSIENT);
            status = stepStatus(sqlite3_step(ins));
            sqlite3_reset(ins);
        }
        if (status == ZOB_OK)
            ++nextPos;
    }
    if (status == ZOB_OK && !single) {
        append.key1 = key1;
        append.key2 = key2;
        append.nextPos = nextPos;
    } else {
        d->forgetAppend();
    }
    if (status != ZOB_OK)
        d->fail(status);
    if (single)
        d->endWrite();
    return single ? d->writeStatus : status;
}

zob_status_t vkd_zob_lock_ex(int index, int key1, int key2)
{
    Database* d = database(index);
    if (!d)
        return ZOB_NO_DATABASE;
    d->endWalk();
    if (d->writeOpen)
        return d->writeStatus; // a lock inside the present write joins it
    d->beginWrite(key1, key2);
    return d->takeLock();
}

void vkd_zob_free_ex(int index, int key1, int key2)
{
    // Only the free of the key pair that began the write ends it; readers free their own key
    // pair whether they locked it or not.
    Database* d = database(index);
    if (!d)
        return;
    d->endWalk();
    if (d->writeOpen && key1 == d->writeKey1 && key2 == d->writeKey2)
        d->endWrite();
}

void vkd_zob_kenq_ex(int index, int* key1, int* key2, int mode)
{
    if (!key1 || !key2)
        return;
    Database* d = database(index);
    sqlite3_stmt* st = nullptr;
    if (d) {
        d->endWalk();
        st =
            d->statement(mode == 1 ? "SELECT key1, key2 FROM zob_record WHERE key1=?1 AND key2>=?2 AND pos=0"
                                     " ORDER BY key2 LIMIT 1"
                                   : "SELECT key1, key2 FROM zob_record WHERE key1=?1 AND key2=?2 AND pos=0");
    }
    if (st) {
        sqlite3_bind_int(st, 1, *key1);
        sqlite3_bind_int(st, 2, *key2);
        if (sqlite3_step(st) == SQLITE_ROW) {
            *key1 = sqlite3_column_int(st, 0);
            *key2 = sqlite3_column_int(st, 1);
            sqlite3_reset(st);
            return;
        }
        sqlite3_reset(st);
    }
    *key1 = -1;
    *key2 = -1;
}

int vkd_zob_count(int index, int key1, int key2)
{
    Database* d = database(index);
    if (!d)
        return 0;
    d->endWalk();
    sqlite3_stmt* st = d->statement("SELECT count(*) FROM zob_record WHERE key1=?1 AND key2=?2");
    if (!st)
        return 0;
    sqlite3_bind_int(st, 1, key1);
    sqlite3_bind_int(st, 2, key2);
    const int n = sqlite3_step(st) == SQLITE_ROW ? sqlite3_column_int(st, 0) : 0;
    sqlite3_reset(st);
    return n;
}

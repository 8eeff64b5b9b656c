#include "vkd_q.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <sqlite3.h>

#include <cstring>
#include <memory>

namespace {

// Written into the file's application_id so that a project can be told from any other
// SQLite file before anything is written to it ("VKDZ").
constexpr int kApplicationId = 0x564B445A;
constexpr int kBusyTimeoutMs = 30000;

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

class Database
{
public:
    explicit Database(sqlite3* db) : m_db(db) {}
    ~Database()
    {
        endWalk();
        m_statements.clear();
        if (!sqlite3_get_autocommit(m_db))
            sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
        sqlite3_close(m_db);
    }
    sqlite3* handle() const { return m_db; }
    QString path;

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

    // Readers walk a key pair position by position. The walk after its first two steps is
    // served by one cursor in position order instead of a lookup per position. Any other
    // call on the database ends the walk first, so that an open cursor never sees a change of
    // this connection nor keeps its snapshot beyond the walk.
    struct Walk
    {
        int key1 = 0;
        int key2 = 0;
        int lastPosition = -1; // -1: no walk
        sqlite3_stmt* cursor = nullptr;
    };
    Walk walk;
    void endWalk()
    {
        if (walk.cursor)
            sqlite3_reset(walk.cursor);
        walk = Walk();
    }

    // Inside a transaction of this connection no one else writes, so the next free position of
    // the key pair last appended to holds until the transaction ends.
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

bool execScript(sqlite3* db, const char* sql)
{
    return sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::shared_ptr<Database> openScratch()
{
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(":memory:", &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK ||
        !execScript(db, kSchema)) {
        sqlite3_close(db);
        return nullptr;
    }
    auto d = std::make_shared<Database>(db);
    d->path = QStringLiteral(":memory:");
    return d;
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

int queryInt(sqlite3* db, const char* sql, int fallback)
{
    sqlite3_stmt* st = nullptr;
    int value = fallback;
    if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) == SQLITE_OK && sqlite3_step(st) == SQLITE_ROW)
        value = sqlite3_column_int(st, 0);
    sqlite3_finalize(st);
    return value;
}

bool hasProjectTables(sqlite3* db)
{
    return queryInt(
               db,
               "SELECT count(*) FROM sqlite_master WHERE type='table' AND name IN ('zob_key','zob_record')",
               0) == 2;
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

int vkd_zob_open(const QString& path, bool create, QString* error)
{
    auto fail = [error](const QString& message) {
        if (error)
            *error = message;
        return -1;
    };
    const QFileInfo info(path);
    const bool exists = info.exists();
    if (!exists && !create)
        return fail(QStringLiteral("The project file %1 does not exist.").arg(path));
    if (exists && info.isDir())
        return fail(QStringLiteral("%1 is a folder, not a project file.").arg(path));
    if (exists && info.size() > 0) {
        // Check the header before SQLite sees the file, so that a foreign file is never touched.
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly))
            return fail(QStringLiteral("The project file %1 cannot be read.").arg(path));
        const QByteArray head = f.read(100);
        if (head.size() < 100 || !head.startsWith("SQLite format 3"))
            return fail(QStringLiteral("%1 is not a project file.").arg(path));
        const auto* b = reinterpret_cast<const unsigned char*>(head.constData());
        const int appId = (b[68] << 24) | (b[69] << 16) | (b[70] << 8) | b[71];
        if (appId != kApplicationId)
            return fail(QStringLiteral("%1 is an SQLite database, but not a project file.").arg(path));
    }

    sqlite3* db = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0);
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, flags, nullptr) != SQLITE_OK) {
        const QString msg = db ? QString::fromUtf8(sqlite3_errmsg(db)) : QStringLiteral("out of memory");
        sqlite3_close(db);
        return fail(QStringLiteral("The project file %1 cannot be opened: %2").arg(path, msg));
    }
    sqlite3_busy_timeout(db, kBusyTimeoutMs);
    sqlite3_extended_result_codes(db, 0);

    if (exists && info.size() > 0) {
        QString problem;
        if (!hasProjectTables(db)) {
            problem = QStringLiteral("its record tables are missing");
        } else {
            sqlite3_stmt* st = nullptr;
            if (sqlite3_prepare_v2(db, "PRAGMA quick_check", -1, &st, nullptr) != SQLITE_OK)
                problem = QString::fromUtf8(sqlite3_errmsg(db));
            else if (sqlite3_step(st) != SQLITE_ROW ||
                     qstrcmp(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)), "ok") != 0)
                problem = QStringLiteral("the integrity check failed");
            sqlite3_finalize(st);
        }
        if (!problem.isEmpty()) {
            sqlite3_close(db);
            return fail(QStringLiteral("The project file %1 is damaged: %2.").arg(path, problem));
        }
    } else {
        const QByteArray init = QByteArray("PRAGMA application_id=") + QByteArray::number(kApplicationId) +
                                ";PRAGMA journal_mode=WAL;BEGIN;" + kSchema + "COMMIT;";
        if (!execScript(db, init.constData())) {
            const QString msg = QString::fromUtf8(sqlite3_errmsg(db));
            sqlite3_close(db);
            return fail(QStringLiteral("The project file %1 cannot be created: %2").arg(path, msg));
        }
    }

    auto d = std::make_shared<Database>(db);
    d->path = info.absoluteFilePath();
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
    if (continues && !walk.cursor) {
        walk.cursor = d->statement("SELECT pos, data FROM zob_record WHERE key1=?1 AND key2=?2 AND pos>=?3"
                                   " ORDER BY pos");
        if (walk.cursor) {
            sqlite3_bind_int(walk.cursor, 1, key1);
            sqlite3_bind_int(walk.cursor, 2, key2);
            sqlite3_bind_int(walk.cursor, 3, position);
        }
    }
    if (continues && walk.cursor) {
        if (sqlite3_step(walk.cursor) == SQLITE_ROW && sqlite3_column_int(walk.cursor, 0) == position) {
            const int size = sqlite3_column_bytes(walk.cursor, 1);
            const int copied = qMin(size, *length);
            if (copied > 0)
                std::memcpy(record, sqlite3_column_blob(walk.cursor, 1), size_t(copied));
            *length = copied;
            walk.lastPosition = position;
            return size > copied ? ZOB_TRUNCATED : ZOB_OK;
        }
        d->endWalk(); // the end, a gap or an error: the lookup below tells which
    }
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
    // Several statements: outside a lock they still have to land together.
    sqlite3* db = d->handle();
    const bool ownTransaction = sqlite3_get_autocommit(db);
    if (ownTransaction) {
        d->forgetAppend();
        if (!execScript(db, "BEGIN IMMEDIATE"))
            return sqlite3_errcode(db) == SQLITE_BUSY ? ZOB_BUSY : ZOB_FAILED;
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
    if (ownTransaction || status != ZOB_OK || sqlite3_get_autocommit(db)) {
        d->forgetAppend();
    } else {
        append.key1 = key1;
        append.key2 = key2;
        append.nextPos = nextPos;
    }
    if (ownTransaction)
        execScript(db, status == ZOB_OK ? "COMMIT" : "ROLLBACK");
    return status;
}

zob_status_t vkd_zob_lock_ex(int index, int, int)
{
    Database* d = database(index);
    if (!d)
        return ZOB_NO_DATABASE;
    d->endWalk();
    if (!sqlite3_get_autocommit(d->handle()))
        return ZOB_OK; // already inside this program's own write transaction
    d->forgetAppend();
    if (execScript(d->handle(), "BEGIN IMMEDIATE"))
        return ZOB_OK;
    return sqlite3_errcode(d->handle()) == SQLITE_BUSY ? ZOB_BUSY : ZOB_FAILED;
}

void vkd_zob_free_ex(int index, int, int)
{
    Database* d = database(index);
    if (!d)
        return;
    d->endWalk();
    d->forgetAppend();
    if (!sqlite3_get_autocommit(d->handle()))
        execScript(d->handle(), "COMMIT");
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

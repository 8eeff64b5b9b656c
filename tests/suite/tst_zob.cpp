// The record store, and projects when things go wrong: failed writes, files that cannot be used as
// they are, commands that only read, programs in each other's way or killed; checked on disk.
#include <VKD_H_ZOBDoc.h>
#include <vkd_q.h>

#include <QtTest>
#include <sqlite3.h>

#include <memory>
#include <sys/stat.h>

namespace {

using Snapshot = QMap<QString, QByteArray>;

// Every file of a folder with the hash of its contents: a journal left behind shows too.
Snapshot snapshot(const QString& folder)
{
    Snapshot files;
    for (const QFileInfo& info : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        QFile f(info.filePath());
        files.insert(info.fileName(), f.open(QIODevice::ReadOnly)
                                          ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256)
                                          : QByteArray("unreadable"));
    }
    return files;
}

// The status of a get at a position, and what it delivered.
QByteArray get(int index, int pos, int size = 64, int key2 = 6)
{
    char buffer[256] = {};
    int length = size;
    const int status = vkd_zob_get(index, 200, key2, buffer, &length, pos);
    return QByteArray::number(status) + (status <= ZOB_TRUNCATED ? " " + QByteArray(buffer, length) : "");
}

QByteArrayList readAll(int index, int key2 = 6)
{
    QByteArrayList out;
    for (QByteArray r; (r = get(index, out.size(), 256, key2)).startsWith("0 ");)
        out << r.mid(2);
    return out;
}

int put(int index, const QByteArray& data, int position = 1)
{
    const int length = data.size();
    return vkd_zob_put(index, 200, 6, data.constData(), &length, position);
}

QByteArray record(int i)
{
    return "record-" + QByteArray::number(i);
}

bool sqlite(const QString& file, const char* sql)
{
    sqlite3* db = nullptr;
    const bool ok = sqlite3_open(QFile::encodeName(file).constData(), &db) == SQLITE_OK &&
                    sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(db);
    return ok;
}

bool makeProject(const QString& file, const QByteArrayList& records)
{
    VKD_H_ZOBDoc doc(file);
    for (const QByteArray& r : records)
        put(doc.index(), r);
    return doc.isValid() && doc.lastWriteError().isEmpty();
}

// What a program said on both channels, then "exit <code>" (-1 if it did not end normally).
QString run(const QString& program, const QStringList& arguments, const QString& folder = QString())
{
    QProcess p;
    p.setWorkingDirectory(folder);
    p.start(program, arguments);
    const bool ended = p.waitForFinished(60000) && p.exitStatus() == QProcess::NormalExit;
    return QString::fromLocal8Bit(p.readAllStandardOutput() + p.readAllStandardError()) +
           QStringLiteral("exit %1").arg(ended ? p.exitCode() : -1);
}

// The probe, started and waited for until it says it holds the project; killed when dropped.
struct Holder : QProcess
{
    Holder(const QString& how, const QString& file, int ms)
    {
        start(QStringLiteral(ZOB_PROBE), {how, file, QString::number(ms)});
        locked = waitForReadyRead(20000) && readLine().trimmed() == "locked";
    }
    ~Holder() override
    {
        kill();
        waitForFinished();
    }
    bool locked = false;
};

} // namespace

class TestZob : public QObject
{
    Q_OBJECT
    QString path() const { return m_dir->filePath(QStringLiteral("project.vkd")); }
    std::unique_ptr<QTemporaryDir> m_dir;

private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    // Position 0 starts a key pair's sequence anew, 1 appends; a key pair never written is told
    // from one at its end; a short buffer gets the start of the record.
    void putAndGet()
    {
        VKD_H_ZOBDoc doc(path());
        const int index = doc.index();
        QCOMPARE(get(index, 0), QByteArray::number(ZOB_NO_KEY));
        QCOMPARE(put(index, QByteArray(), 0), ZOB_OK);
        QCOMPARE(get(index, 0), QByteArray::number(ZOB_END));
        for (int i = 0; i < 4; ++i)
            QCOMPARE(put(index, record(i)), ZOB_OK);
        QCOMPARE(get(index, 3), "0 " + record(3));
        QCOMPARE(get(index, 4), QByteArray::number(ZOB_END));
        QCOMPARE(get(index, 2, 1), QByteArray("1 r"));
        QCOMPARE(get(index, 1, 0), QByteArray("1 "));
        QCOMPARE(put(index, "9", 0), ZOB_OK);
        put(index, record(10));
        QCOMPARE(readAll(index), (QByteArrayList{"9", record(10)}));
        QCOMPARE(put(index, QByteArray(), 0), ZOB_OK);
        QVERIFY(readAll(index).isEmpty());
        QCOMPARE(put(index, "abcd", 2), ZOB_BAD_ARGUMENT);
    }

    // A reader that walks a key pair position by position sees every change made between two of
    // its steps, by this connection or by another one; appends inside a lock go on behind
    // whatever the other connection appended before the lock.
    void walkSeesEveryChange()
    {
        VKD_H_ZOBDoc doc(path());
        const int index = doc.index();
        VKD_H_ZOBDoc other(path(), VKD_H_ZOBDoc::OpenExisting);
        for (int i = 0; i < 3; ++i)
            put(index, record(i));
        QByteArrayList seen{get(index, 0), get(index, 1)};
        QCOMPARE(readAll(index, 7), QByteArrayList());
        seen << get(index, 2);
        put(index, record(3));
        seen << get(index, 3);
        put(other.index(), record(4));
        seen << get(index, 4) << get(index, 5) << get(index, 0);
        put(index, record(7), 0);
        seen << get(index, 1);
        QCOMPARE(seen.join('|'), "0 record-0|0 record-1|0 record-2|0 record-3|0 record-4|2|0 record-0|2");

        QCOMPARE(vkd_zob_lock_ex(index, 200, 6), ZOB_OK);
        put(index, record(8));
        vkd_zob_free_ex(index, 200, 6);
        put(other.index(), record(9));
        QCOMPARE(vkd_zob_lock_ex(index, 200, 6), ZOB_OK);
        put(index, record(10));
        vkd_zob_free_ex(index, 200, 6);
        put(index, record(11));
        QCOMPARE(readAll(other.index()),
                 (QByteArrayList{record(7), record(8), record(9), record(10), record(11)}));
    }

    void opening_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("message"); // empty: the project opens

        const int edit = VKD_H_ZOBDoc::OpenExisting;
        const int read = VKD_H_ZOBDoc::ReadOnly;
        const int create = VKD_H_ZOBDoc::OpenOrCreate;
        // clang-format off
        QTest::newRow("missing file") << "missing" << edit << "does not exist.";
        QTest::newRow("folder") << "folder" << edit << "is a folder, not a project file.";
        QTest::newRow("empty file, for editing") << "empty" << edit << "is empty; it is not a project.";
        QTest::newRow("empty file, to create") << "empty" << create << "";
        QTest::newRow("text file, to create") << "text" << create << "is not a project file.";
        QTest::newRow("foreign SQLite database, to create") << "foreign" << create << "is an SQLite database, but not a project file.";
        QTest::newRow("format version 2") << "version 2" << edit << "has format version 2; this program reads version 1 only.";
        QTest::newRow("format version 0") << "version 0" << read << "has format version 0; this program reads version 1 only.";
        QTest::newRow("record tables missing") << "no tables" << edit << "is damaged: its record tables are missing.";
        QTest::newRow("smashed page") << "smashed" << read << "is damaged: ";
        QTest::newRow("cut in half, to create") << "cut" << create << "is damaged: ";
        QTest::newRow("held exclusively by another program") << "exclusive" << edit << "is in use by another program.";
        QTest::newRow("writer killed mid-write, for reading") << "die" << read << "was left in the middle of a write; open it once for editing so that the unfinished write is undone.";
        QTest::newRow("writer killed mid-write, for editing: the write is undone") << "die" << edit << "";
        QTest::newRow("sound project, copied into memory") << "sound" << int(VKD_H_ZOBDoc::MemoryCopy) << "";
        // clang-format on
    }

    void opening()
    {
        QFETCH(QString, kind);
        QFETCH(int, mode);
        QFETCH(QString, message);
        const QString file = path();
        std::unique_ptr<Holder> holder;
        if (kind == QLatin1String("folder")) {
            QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("project.vkd")));
        } else if (kind == QLatin1String("empty") || kind == QLatin1String("text")) {
            QFile f(file);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(kind == QLatin1String("text") ? "TORVAL input\nPROG GRAV\n" : "");
        } else if (kind == QLatin1String("foreign")) {
            QVERIFY(sqlite(file, "CREATE TABLE t(x); INSERT INTO t VALUES(1)"));
        } else if (kind == QLatin1String("no tables")) {
            QVERIFY(
                sqlite(file, "PRAGMA application_id=1447773274; PRAGMA user_version=1; CREATE TABLE t(x)"));
        } else if (kind != QLatin1String("missing")) {
            QByteArrayList records;
            for (int i = 0; i < 300; ++i)
                records << QByteArray(212, char('a' + i % 26));
            QVERIFY(makeProject(file, records));
            if (kind.startsWith(QLatin1String("version")))
                QVERIFY(sqlite(file, qPrintable("PRAGMA user_version=" + kind.mid(8))));
            QFile f(file);
            QVERIFY(f.open(QIODevice::ReadWrite));
            if (kind == QLatin1String("smashed")) {
                f.seek(f.size() - 3000);
                f.write(QByteArray(1500, '\xff'));
            } else if (kind == QLatin1String("cut")) {
                QVERIFY(f.resize(f.size() / 2));
            } else if (kind == QLatin1String("exclusive") || kind == QLatin1String("die")) {
                holder = std::make_unique<Holder>(kind, file, 60000);
                QVERIFY(holder->locked);
            }
            if (kind == QLatin1String("die")) {
                holder.reset(); // SIGKILL: the journal stays beside the file
                QVERIFY(QFile::exists(file + QStringLiteral("-journal")));
            }
        }
        const Snapshot before = snapshot(m_dir->path());
        VKD_H_ZOBDoc doc(file, VKD_H_ZOBDoc::OpenMode(mode));
        if (message.isEmpty()) {
            QVERIFY2(doc.isValid(), qPrintable(doc.errorString()));
            QCOMPARE(doc.isReadOnly(), mode == VKD_H_ZOBDoc::ReadOnly);
            QCOMPARE(readAll(doc.index()).size(), kind == QLatin1String("empty") ? 0 : 300);
            return;
        }
        QVERIFY(!doc.isValid());
        QVERIFY2(doc.errorString().contains(file) && doc.errorString().contains(message),
                 qPrintable(doc.errorString()));
        QCOMPARE(snapshot(m_dir->path()), before);
    }

    void permissions_data()
    {
        QTest::addColumn<int>("fileMode");
        QTest::addColumn<int>("folderMode");
        QTest::addColumn<QString>("expected"); // "@" stands for the file
        const QString readOnly =
            QStringLiteral("opened read-only\nThe project file @ is open for reading only: ");
        // clang-format off
        QTest::newRow("write-protected file") << 0444 << 0755 << readOnly + "the file is write-protected.\n";
        QTest::newRow("write-protected folder") << 0666 << 0555 << readOnly + "its folder is write-protected, so no journal can be kept beside it.\n";
        QTest::newRow("unreadable file") << 0000 << 0755 << "refused: The project file @ cannot be read: Permission denied.\n";
        QTest::newRow("writable project") << 0666 << 0777 << "opened\nwritten\n";
        // clang-format on
    }

    // Run as a second program, which drops root's rights so that the file modes count.
    void permissions()
    {
        QFETCH(int, fileMode);
        QFETCH(int, folderMode);
        QFETCH(QString, expected);
        const QString folder = m_dir->filePath(QStringLiteral("project"));
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("project")));
        const QString file = folder + QStringLiteral("/p.vkd");
        QVERIFY(makeProject(file, {"old"}));
        QVERIFY(::chmod(QFile::encodeName(m_dir->path()).constData(), 0755) == 0);
        QVERIFY(::chmod(QFile::encodeName(file).constData(), mode_t(fileMode)) == 0);
        QVERIFY(::chmod(QFile::encodeName(folder).constData(), mode_t(folderMode)) == 0);
        const Snapshot before = snapshot(folder);
        const QString said =
            run(QStringLiteral(ZOB_PROBE), {QStringLiteral("open"), file, QStringLiteral("nobody")});
        ::chmod(QFile::encodeName(folder).constData(), 0755);
        QCOMPARE(said, expected.replace(QLatin1Char('@'), file) + QStringLiteral("exit 0"));
        if (!said.endsWith(QLatin1String("written\nexit 0")))
            QCOMPARE(snapshot(folder), before);
    }

    void writeWhileHeld_data()
    {
        QTest::addColumn<int>("heldMs"); // 0: opened for reading instead
        QTest::addColumn<int>("timeoutMs");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message"); // empty: written
        // clang-format off
        QTest::newRow("project opened for reading") << 0 << 300 << int(ZOB_READ_ONLY) << "is open for reading only: it was opened for reading only.";
        QTest::newRow("held past the busy timeout") << 1000 << 300 << int(ZOB_BUSY) << "is in use by another program, which still held it after 0.3 seconds.";
        QTest::newRow("held within the busy timeout: waited for") << 300 << 20000 << int(ZOB_OK) << "";
        // clang-format on
    }

    // A write of a key pair as the pages make it: lock, empty, append, free. A lock held for a while
    // is waited for; when the lock cannot be had, every put of the write is refused, even once the other
    // program has let go (an append that landed then would double the records), the records stay as they
    // were, and the reason waits for the host.
    void writeWhileHeld()
    {
        QFETCH(int, heldMs);
        QFETCH(int, timeoutMs);
        QFETCH(int, status);
        QFETCH(QString, message);
        const QString file = path();
        const QByteArrayList old{"old 1", "old 2"};
        QVERIFY(makeProject(file, old));
        std::unique_ptr<Holder> holder;
        if (heldMs > 0) {
            holder = std::make_unique<Holder>(QStringLiteral("hold"), file, heldMs);
            QVERIFY(holder->locked);
        }
        VKD_H_ZOBDoc doc(file, holder ? VKD_H_ZOBDoc::OpenExisting : VKD_H_ZOBDoc::ReadOnly);
        doc.setBusyTimeout(timeoutMs);
        const int index = doc.index();
        QCOMPARE(vkd_zob_lock_ex(index, 200, 6), status);
        if (holder)
            QVERIFY(holder->waitForFinished(20000));
        QCOMPARE(put(index, QByteArray(), 0), status);
        QCOMPARE(put(index, "new"), status);
        vkd_zob_free_ex(index, 200, 6);
        QCOMPARE(doc.lastWriteStatus(), status);
        QCOMPARE(readAll(index), message.isEmpty() ? QByteArrayList{"new"} : old);
        QCOMPARE(doc.lastWriteError(),
                 message.isEmpty()
                     ? message
                     : "The project file " + QFileInfo(file).absoluteFilePath() + ' ' + message);
        if (holder && status != ZOB_OK) {
            // The next write goes through, and the reason is gone.
            put(index, "new");
            QCOMPARE(doc.lastWriteError(), QString());
            QCOMPARE(readAll(index), old + QByteArrayList{"new"});
        }
    }

    void writeBoundaries_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<QByteArrayList>("seenByOthers");
        QTest::newRow("freed") << "free" << QByteArrayList{"old", "new"};
        QTest::newRow("another key pair freed inside the write") << "free other" << QByteArrayList{"old"};
        QTest::newRow("a lock inside the write, then its free") << "inner lock" << QByteArrayList{"old"};
        QTest::newRow("document closed before the free") << "close" << QByteArrayList{"old"};
    }

    void writeBoundaries()
    {
        QFETCH(QString, end);
        QVERIFY(makeProject(path(), {"old"}));
        auto doc = std::make_unique<VKD_H_ZOBDoc>(path(), VKD_H_ZOBDoc::OpenExisting);
        QCOMPARE(vkd_zob_lock_ex(doc->index(), 200, 6), ZOB_OK);
        put(doc->index(), "new");
        if (end == QLatin1String("free")) {
            vkd_zob_free_ex(doc->index(), 200, 6);
        } else if (end == QLatin1String("free other")) {
            vkd_zob_free_ex(doc->index(), 95, 1);
        } else if (end == QLatin1String("inner lock")) {
            QCOMPARE(vkd_zob_lock_ex(doc->index(), 90, 1), ZOB_OK);
            vkd_zob_free_ex(doc->index(), 90, 1);
        } else {
            doc.reset();
        }
        VKD_H_ZOBDoc other(path(), VKD_H_ZOBDoc::ReadOnly);
        QTEST(readAll(other.index()), "seenByOthers");
    }

    void readingWritesNothing_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("arguments"); // "@" stands for the file
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("said");
        const QString empty = QStringLiteral("empty.vkd");
        const QString bare = QStringLiteral("bare.vkd");
        const QStringList shot{"--screenshots", "../pictures", "@"};
        // clang-format off
        QTest::newRow("model of an empty file") << empty << QStringList{"model", "@"} << 3 << "is empty; it is not a project.";
        QTest::newRow("design of a project without records") << bare << QStringList{"design", "@"} << 0 << "key pair 200, 6 was never written";
        QTest::newRow("host picture of an empty file") << empty << (QStringList{"host"} + shot) << 3 << "is empty";
        QTest::newRow("host picture of a project without design records") << bare << (QStringList{"host"} + shot) << 0 << "saved pictures of the pages";
        // clang-format on
    }

    // Commands that only read or show leave the project and its folder exactly as they were,
    // even where the design page writes the default record into a project that has none.
    void readingWritesNothing()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, said);
        const QString folder = m_dir->filePath(QStringLiteral("project"));
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("project")));
        const QString project = folder + QLatin1Char('/') + file;
        if (file == QLatin1String("bare.vkd"))
            QVERIFY(makeProject(project, {}));
        else
            QVERIFY(QFile(project).open(QIODevice::WriteOnly));
        const Snapshot before = snapshot(folder);
        const bool host = arguments.first() == QLatin1String("host");
        arguments.replaceInStrings(QStringLiteral("@"), file);
        const QString output =
            run(QString::fromUtf8(host ? PLIB_HOST : PROJECT_TOOL), arguments.mid(int(host)), folder);
        QVERIFY2(output.contains(said) && output.endsWith(QStringLiteral("exit %1").arg(exitCode)),
                 qPrintable(output));
        QCOMPARE(snapshot(folder), before);
    }
};

QTEST_GUILESS_MAIN(TestZob)
#include "tst_zob.moc"

// What happens to a project when things go wrong: a write that cannot be made, a file that
// cannot be used as it is, commands that only read, and programs that are killed or get in
// each other's way. Every case checks what is on disk afterwards.
#include <VKD_H_ZOBDoc.h>
#include <vkd_q.h>

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <sqlite3.h>

#include <csignal>
#include <cstring>
#include <memory>
#include <sys/stat.h>

namespace {

using Snapshot = QMap<QString, QByteArray>;

// Every file of a folder with the hash of its contents: a journal left behind shows too.
Snapshot snapshot(const QString& folder)
{
    Snapshot files;
    const QDir dir(folder);
    for (const QFileInfo& info : dir.entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        QFile f(info.filePath());
        files.insert(info.fileName(), f.open(QIODevice::ReadOnly)
                                          ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256)
                                          : QByteArray("unreadable"));
    }
    return files;
}

QByteArrayList readAll(int index)
{
    QByteArrayList out;
    for (int pos = 0;; ++pos) {
        char buffer[256];
        int length = sizeof buffer;
        if (vkd_zob_get(index, 200, 6, buffer, &length, pos) >= ZOB_END)
            return out;
        out << QByteArray(buffer, length);
    }
}

void append(int index, const QByteArray& data)
{
    const int length = data.size();
    vkd_zob_put(index, 200, 6, data.constData(), &length, 1);
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
        append(doc.index(), r);
    return doc.isValid() && doc.lastWriteError().isEmpty();
}

struct Run
{
    int exitCode = -1;
    QString output;
};

Run run(const QString& program, const QStringList& arguments, const QString& folder = QString())
{
    QProcess p;
    p.setWorkingDirectory(folder);
    p.start(program, arguments);
    Run r;
    if (p.waitForFinished(60000) && p.exitStatus() == QProcess::NormalExit)
        r.exitCode = p.exitCode();
    r.output = QString::fromLocal8Bit(p.readAllStandardOutput() + p.readAllStandardError());
    return r;
}

// A program started and waited for until it says it holds the project.
std::unique_ptr<QProcess> startHolder(const QString& how, const QString& file, int ms)
{
    auto p = std::make_unique<QProcess>();
    p->start(QStringLiteral(ZOB_PROBE), {how, file, QString::number(ms)});
    if (!p->waitForReadyRead(20000) || p->readLine().trimmed() != "locked")
        return nullptr;
    return p;
}

// Trials of the kill tests: 10 in a normal run, more with PLIB_FAULT_TRIALS; the seed is
// printed so that a failing run can be repeated with PLIB_FAULT_SEED.
struct Trials
{
    Trials(const char* what)
    {
        count = qEnvironmentVariableIsSet("PLIB_FAULT_TRIALS")
                    ? qEnvironmentVariableIntValue("PLIB_FAULT_TRIALS")
                    : 10;
        const quint32 seed = qEnvironmentVariableIsSet("PLIB_FAULT_SEED")
                                 ? quint32(qEnvironmentVariableIntValue("PLIB_FAULT_SEED"))
                                 : QRandomGenerator::global()->generate() % 1000000;
        random.seed(seed);
        qInfo("%s: %d trials, PLIB_FAULT_SEED=%u", what, count, seed);
    }
    int count;
    QRandomGenerator random;
};

// Starts a program and kills it at a random point of the time a whole run takes, or a little
// after, so that some runs finish.
void killSomewhereIn(const QString& program, const QStringList& arguments, qint64 wholeRunUs,
                     QRandomGenerator& random)
{
    QProcess p;
    p.start(program, arguments);
    p.waitForStarted();
    QThread::usleep(ulong(random.bounded(1.2 * double(wholeRunUs))));
    ::kill(pid_t(p.processId()), SIGKILL);
    p.waitForFinished(20000);
}

qint64 wholeRunUs(const QString& program, const QStringList& arguments)
{
    QElapsedTimer timer;
    timer.start();
    QProcess p;
    p.start(program, arguments);
    p.waitForFinished(60000);
    return qMax<qint64>(timer.nsecsElapsed() / 1000, 1000);
}

} // namespace

class TestZobFaults : public QObject
{
    Q_OBJECT
private slots:
    void opening_data();
    void opening();
    void permissions_data();
    void permissions();
    void failedWriteChangesNothing_data();
    void failedWriteChangesNothing();
    void writeBoundaries_data();
    void writeBoundaries();
    void readingWritesNothing_data();
    void readingWritesNothing();
    void killedCreate();
    void killedDesignWrite();
    void twoWritersInTurn();

private:
    QTemporaryDir m_dir;
};

void TestZobFaults::opening_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("message"); // empty: the project opens

    const int edit = VKD_H_ZOBDoc::OpenExisting;
    const int read = VKD_H_ZOBDoc::ReadOnly;
    QTest::newRow("missing file") << "missing" << edit << "does not exist.";
    QTest::newRow("folder") << "folder" << edit << "is a folder, not a project file.";
    QTest::newRow("empty file, for editing") << "empty" << edit << "is empty; it is not a project.";
    QTest::newRow("empty file, for reading") << "empty" << read << "is empty; it is not a project.";
    QTest::newRow("empty file, to create") << "empty" << int(VKD_H_ZOBDoc::OpenOrCreate) << "";
    QTest::newRow("text file") << "text" << edit << "is not a project file.";
    QTest::newRow("foreign SQLite database")
        << "foreign" << edit << "is an SQLite database, but not a project file.";
    QTest::newRow("format version 2")
        << "version 2" << edit << "has format version 2; this program reads version 1 only.";
    QTest::newRow("format version 0")
        << "version 0" << read << "has format version 0; this program reads version 1 only.";
    QTest::newRow("record tables missing")
        << "no tables" << edit << "is damaged: its record tables are missing.";
    QTest::newRow("smashed page") << "smashed" << read << "is damaged: ";
    QTest::newRow("held exclusively by another program")
        << "exclusive" << edit << "is in use by another program.";
    QTest::newRow("sound project, for editing") << "sound" << edit << "";
    QTest::newRow("sound project, for reading") << "sound" << read << "";
    QTest::newRow("sound project, copied into memory") << "sound" << int(VKD_H_ZOBDoc::MemoryCopy) << "";
}

void TestZobFaults::opening()
{
    QFETCH(QString, kind);
    QFETCH(int, mode);
    QFETCH(QString, message);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("p.vkd"));
    std::unique_ptr<QProcess> holder;
    if (kind == QLatin1String("folder")) {
        QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("p.vkd")));
    } else if (kind == QLatin1String("empty") || kind == QLatin1String("text")) {
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(kind == QLatin1String("text") ? "TORVAL input\nPROG GRAV\n" : "");
    } else if (kind == QLatin1String("foreign")) {
        QVERIFY(sqlite(file, "CREATE TABLE t(x)"));
    } else if (kind == QLatin1String("no tables")) {
        QVERIFY(sqlite(file, "PRAGMA application_id=1447773274; PRAGMA user_version=1; CREATE TABLE t(x)"));
    } else if (kind != QLatin1String("missing")) {
        QByteArrayList records;
        for (int i = 0; i < 300; ++i)
            records << QByteArray(212, char('a' + i % 26));
        QVERIFY(makeProject(file, records));
        if (kind.startsWith(QLatin1String("version")))
            QVERIFY(sqlite(file, kind.endsWith(QLatin1Char('2')) ? "PRAGMA user_version=2"
                                                                 : "PRAGMA user_version=0"));
        if (kind == QLatin1String("smashed")) {
            QFile f(file);
            QVERIFY(f.open(QIODevice::ReadWrite));
            f.seek(f.size() - 3000);
            f.write(QByteArray(1500, '\xff'));
        }
        if (kind == QLatin1String("exclusive")) {
            holder = startHolder(QStringLiteral("exclusive"), file, 20000);
            QVERIFY(holder);
        }
    }
    const Snapshot before = snapshot(dir.path());
    VKD_H_ZOBDoc doc(file, VKD_H_ZOBDoc::OpenMode(mode));
    if (message.isEmpty()) {
        QVERIFY2(doc.isValid(), qPrintable(doc.errorString()));
        QCOMPARE(doc.isReadOnly(), mode == VKD_H_ZOBDoc::ReadOnly);
        if (kind != QLatin1String("missing") && kind != QLatin1String("empty"))
            QCOMPARE(readAll(doc.index()).size(), 300);
        return;
    }
    QVERIFY(!doc.isValid());
    QVERIFY2(doc.errorString().contains(file) && doc.errorString().contains(message),
             qPrintable(doc.errorString()));
    QCOMPARE(snapshot(dir.path()), before);
    if (holder) {
        holder->kill();
        holder->waitForFinished();
    }
}

void TestZobFaults::permissions_data()
{
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<int>("folderMode");
    QTest::addColumn<QStringList>("said");
    QTest::newRow("write-protected file")
        << 0444 << 0755
        << QStringList{"opened read-only", "is open for reading only: the file is write-protected."};
    QTest::newRow("write-protected folder")
        << 0666 << 0555
        << QStringList{"opened read-only", "is open for reading only: its folder is write-protected, so no "
                                           "journal can be kept beside it."};
    QTest::newRow("unreadable file") << 0000 << 0755 << QStringList{"cannot be read: Permission denied."};
    QTest::newRow("writable project") << 0666 << 0777 << QStringList{"opened", "written"};
}

// Run as a second program, which drops root's rights so that the file modes count.
void TestZobFaults::permissions()
{
    QFETCH(int, fileMode);
    QFETCH(int, folderMode);
    QFETCH(QStringList, said);
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("project"));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("project")));
    const QString file = folder + QStringLiteral("/p.vkd");
    QVERIFY(makeProject(file, {"old"}));
    QVERIFY(::chmod(QFile::encodeName(dir.path()).constData(), 0755) == 0);
    QVERIFY(::chmod(QFile::encodeName(file).constData(), mode_t(fileMode)) == 0);
    QVERIFY(::chmod(QFile::encodeName(folder).constData(), mode_t(folderMode)) == 0);
    const Snapshot before = snapshot(folder);

    const Run r = run(QStringLiteral(ZOB_PROBE), {QStringLiteral("open"), file, QStringLiteral("nobody")});
    ::chmod(QFile::encodeName(folder).constData(), 0755);
    ::chmod(QFile::encodeName(file).constData(), 0644);
    const QStringList lines = r.output.trimmed().split(QLatin1Char('\n'));
    QCOMPARE(r.exitCode, 0);
    QCOMPARE(lines.size(), said.size());
    for (int i = 0; i < said.size(); ++i) {
        QVERIFY2(lines.at(i).startsWith(said.at(i)) || lines.at(i).endsWith(said.at(i)),
                 qPrintable(lines.at(i)));
        if (lines.at(i).contains(QLatin1String("The project file")))
            QVERIFY2(lines.at(i).contains(file), qPrintable(lines.at(i)));
    }
    if (said.last() != QLatin1String("written"))
        QCOMPARE(snapshot(folder), before);
}

void TestZobFaults::failedWriteChangesNothing_data()
{
    QTest::addColumn<QString>("cause");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message");
    QTest::newRow("project opened for reading")
        << "read-only" << int(ZOB_READ_ONLY) << "is open for reading only: it was opened for reading only.";
    QTest::newRow("another program holds the project")
        << "held" << int(ZOB_BUSY) << "is in use by another program, which still held it after 0.3 seconds.";
}

// A write of a key pair as the pages make it: lock, empty, append, free. When the lock
// cannot be had, every put of the write is refused, even once the other program has let go
// (an append that landed then would double the records), the records stay as they were, and
// the reason waits for the host.
void TestZobFaults::failedWriteChangesNothing()
{
    QFETCH(QString, cause);
    QFETCH(int, status);
    QFETCH(QString, message);
    const QString file = m_dir.filePath(cause + QStringLiteral(".vkd"));
    const QByteArrayList old{"old 1", "old 2"};
    QVERIFY(makeProject(file, old));
    std::unique_ptr<QProcess> holder;
    if (cause == QLatin1String("held")) {
        holder = startHolder(QStringLiteral("hold"), file, 1000);
        QVERIFY(holder);
    }
    VKD_H_ZOBDoc doc(file,
                     cause == QLatin1String("held") ? VKD_H_ZOBDoc::OpenExisting : VKD_H_ZOBDoc::ReadOnly);
    doc.setBusyTimeout(300);
    const int index = doc.index();
    QCOMPARE(vkd_zob_lock_ex(index, 200, 6), status);
    if (holder)
        QVERIFY(holder->waitForFinished(20000));
    const int zero = 0;
    QCOMPARE(vkd_zob_put(index, 200, 6, nullptr, &zero, 0), status);
    const int length = 3;
    QCOMPARE(vkd_zob_put(index, 200, 6, "new", &length, 1), status);
    vkd_zob_free_ex(index, 200, 6);
    QCOMPARE(doc.lastWriteStatus(), status);
    QCOMPARE(doc.lastWriteError(),
             QStringLiteral("The project file %1 %2").arg(QFileInfo(file).absoluteFilePath(), message));
    QCOMPARE(readAll(index), old);
    if (holder) {
        // The next write goes through, and the reason is gone.
        append(index, "new");
        QCOMPARE(doc.lastWriteError(), QString());
        QCOMPARE(readAll(index), old + QByteArrayList{"new"});
    }
}

void TestZobFaults::writeBoundaries_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<QByteArrayList>("seenByOthers");
    QTest::newRow("freed") << "free" << QByteArrayList{"old", "new"};
    QTest::newRow("another key pair freed inside the write") << "free other" << QByteArrayList{"old"};
    QTest::newRow("a lock inside the write, then its free") << "inner lock" << QByteArrayList{"old"};
    QTest::newRow("document closed before the free") << "close" << QByteArrayList{"old"};
}

void TestZobFaults::writeBoundaries()
{
    QFETCH(QString, end);
    QFETCH(QByteArrayList, seenByOthers);
    const QString file = m_dir.filePath(QStringLiteral("boundaries.vkd"));
    QFile::remove(file);
    QVERIFY(makeProject(file, {"old"}));
    auto doc = std::make_unique<VKD_H_ZOBDoc>(file, VKD_H_ZOBDoc::OpenExisting);
    QCOMPARE(vkd_zob_lock_ex(doc->index(), 200, 6), ZOB_OK);
    append(doc->index(), "new");
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
    VKD_H_ZOBDoc other(file, VKD_H_ZOBDoc::ReadOnly);
    QCOMPARE(readAll(other.index()), seenByOthers);
}

void TestZobFaults::readingWritesNothing_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("arguments"); // "@" stands for the file
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("said");
    const QString empty = QStringLiteral("empty.vkd");
    const QString bare = QStringLiteral("bare.vkd");
    const QStringList shot{"--screenshots", "../pictures", "@"};
    QTest::newRow("model of an empty file")
        << empty << QStringList{"model", "@"} << 3 << "is empty; it is not a project.";
    QTest::newRow("design of an empty file") << empty << QStringList{"design", "@"} << 3 << "is empty";
    QTest::newRow("dump of an empty file")
        << empty << QStringList{"dump", "@", "200", "6"} << 3 << "is empty";
    QTest::newRow("unknown command on an empty file") << empty << QStringList{"show", "@"} << 2 << "usage:";
    QTest::newRow("design of a project without records")
        << bare << QStringList{"design", "@"} << 0 << "key pair 200, 6 was never written";
    QTest::newRow("model of a project") << bare << QStringList{"model", "@"} << 0 << "nodes: 0";
    QTest::newRow("host picture of an empty file")
        << empty << (QStringList{"host"} + shot) << 3 << "is empty";
    QTest::newRow("host picture of a project without design records")
        << bare << (QStringList{"host"} + shot) << 0 << "saved pictures of the pages";
}

// Commands that only read or show leave the project and its folder exactly as they were,
// even where the design page writes the default record into a project that has none.
void TestZobFaults::readingWritesNothing()
{
    QFETCH(QString, file);
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, said);
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("project"));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("project")));
    const QString path = folder + QLatin1Char('/') + file;
    if (file == QLatin1String("bare.vkd")) {
        QVERIFY(makeProject(path, {}));
    } else {
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
    const Snapshot before = snapshot(folder);
    QString program = QStringLiteral(PROJECT_TOOL);
    if (arguments.first() == QLatin1String("host")) {
        program = QStringLiteral(PLIB_HOST);
        arguments.removeFirst();
    }
    arguments.replaceInStrings(QStringLiteral("@"), file);
    const Run r = run(program, arguments, folder);
    QCOMPARE(r.exitCode, exitCode);
    QVERIFY2(r.output.contains(said), qPrintable(r.output));
    QCOMPARE(snapshot(folder), before);
}

// A create killed at any point leaves no project, or a whole one that equals an undisturbed
// one; never a part, and never a file that blocks the next create.
void TestZobFaults::killedCreate()
{
    const QString tool = QStringLiteral(PROJECT_TOOL);
    const QString reference = m_dir.filePath(QStringLiteral("reference.vkd"));
    const qint64 wholeUs = wholeRunUs(tool, {QStringLiteral("create"), reference});
    const Run model = run(tool, {QStringLiteral("model"), reference});
    const Run design = run(tool, {QStringLiteral("design"), reference});
    QCOMPARE(design.exitCode, 0);
    Trials trials("killed create");
    int whole = 0;
    int building = 0;
    for (int trial = 0; trial < trials.count; ++trial) {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("new.vkd"));
        killSomewhereIn(tool, {QStringLiteral("create"), file}, wholeUs, trials.random);
        building += !QDir(dir.path()).entryList({QStringLiteral("new.vkd.new-*")}, QDir::Files).isEmpty();
        if (QFile::exists(file)) {
            ++whole;
            QCOMPARE(run(tool, {QStringLiteral("model"), file}).output, model.output);
            QCOMPARE(run(tool, {QStringLiteral("design"), file}).output, design.output);
        } else {
            QCOMPARE(run(tool, {QStringLiteral("create"), file}).exitCode, 0);
        }
    }
    qInfo("killed create: %d of %d runs had finished, %d were killed while building, none left a part", whole,
          trials.count, building);
}

// A write of the design records killed at any point leaves the old set or the new one.
void TestZobFaults::killedDesignWrite()
{
    const QString tool = QStringLiteral(PROJECT_TOOL);
    const QString original = m_dir.filePath(QStringLiteral("original.vkd"));
    QCOMPARE(run(tool, {QStringLiteral("create"), original}).exitCode, 0);
    const QString written = m_dir.filePath(QStringLiteral("written.vkd"));
    QVERIFY(QFile::copy(original, written));
    const QStringList write{QStringLiteral("design"), written, QStringLiteral("2"), QStringLiteral("400"),
                            QStringLiteral("1")};
    const qint64 wholeUs = wholeRunUs(QStringLiteral(ZOB_PROBE), write);
    const QString oldSet = run(tool, {QStringLiteral("design"), original}).output;
    const QString newSet = run(tool, {QStringLiteral("design"), written}).output;
    QVERIFY(oldSet != newSet && newSet.contains(QLatin1String("400 records")));

    Trials trials("killed design write");
    int newOnes = 0;
    for (int trial = 0; trial < trials.count; ++trial) {
        const QString file = m_dir.filePath(QStringLiteral("killed.vkd"));
        QFile::remove(file);
        QFile::remove(file + QStringLiteral("-journal"));
        QVERIFY(QFile::copy(original, file));
        QStringList arguments = write;
        arguments[1] = file;
        killSomewhereIn(QStringLiteral(ZOB_PROBE), arguments, wholeUs, trials.random);
        // A reader may not undo the dead writer's journal; the next editor does.
        {
            VKD_H_ZOBDoc repair(file, VKD_H_ZOBDoc::OpenExisting);
            QVERIFY2(repair.isValid(), qPrintable(repair.errorString()));
        }
        const QString found = run(tool, {QStringLiteral("design"), file}).output;
        QVERIFY2(found == oldSet || found == newSet, qPrintable(found.left(200)));
        newOnes += found == newSet;
    }
    qInfo("killed design write: %d of %d kills came after the write had landed", newOnes, trials.count);
}

// Two programs write different design records to one project in turn, while a third reads:
// each read sees one complete set, and every write lands.
void TestZobFaults::twoWritersInTurn()
{
    const QString file = m_dir.filePath(QStringLiteral("shared.vkd"));
    QVERIFY(makeProject(file, {}));
    constexpr int kGroups = 200;
    Trials trials("two writers (a trial is three writes of each)");
    const int writes = 3 * trials.count;
    QProcess first, second;
    for (QProcess* p : {&first, &second})
        p->start(QStringLiteral(ZOB_PROBE),
                 {QStringLiteral("design"), file, QString::number(p == &first ? 1 : 2),
                  QString::number(kGroups), QString::number(writes)});
    sqlite3* db = nullptr;
    QCOMPARE(sqlite3_open_v2(QFile::encodeName(file).constData(), &db, SQLITE_OPEN_READONLY, nullptr),
             SQLITE_OK);
    sqlite3_busy_timeout(db, 30000);
    QMap<QString, int> seen;
    while (first.state() != QProcess::NotRunning || second.state() != QProcess::NotRunning) {
        // One snapshot of the key pair: the type of each record and whether the groups run 1, 2, ...
        sqlite3_stmt* st = nullptr;
        QCOMPARE(sqlite3_prepare_v2(db, "SELECT data FROM zob_record WHERE key1=200 AND key2=6 ORDER BY pos",
                                    -1, &st, nullptr),
                 SQLITE_OK);
        QSet<int> types;
        int count = 0;
        bool inOrder = true;
        int rc;
        while ((rc = sqlite3_step(st)) == SQLITE_ROW) {
            int32_t words[3];
            std::memcpy(words, sqlite3_column_blob(st, 0), sizeof words);
            types << words[2];
            inOrder = inOrder && words[0] == ++count;
        }
        sqlite3_finalize(st);
        QCOMPARE(rc, SQLITE_DONE);
        const QString set = count == 0 ? QStringLiteral("none")
                            : inOrder && count == kGroups && types.size() == 1
                                ? QStringLiteral("type %1").arg(*types.begin())
                                : QStringLiteral("%1 records, %2 types").arg(count).arg(types.size());
        ++seen[set];
        QThread::msleep(1);
        QCoreApplication::processEvents();
    }
    sqlite3_close(db);
    first.waitForFinished(60000);
    second.waitForFinished(60000);
    QCOMPARE(first.readAllStandardOutput().count("wrote"), writes);
    QCOMPARE(second.readAllStandardOutput().count("wrote"), writes);
    QCOMPARE(first.exitCode(), 0);
    QCOMPARE(second.exitCode(), 0);
    qInfo("two writers: %d writes each; %d reads saw the first writer's set, %d the second's, %d none yet",
          writes, seen.value("type 1"), seen.value("type 2"), seen.value("none"));
    seen.remove(QStringLiteral("none"));
    seen.remove(QStringLiteral("type 1"));
    seen.remove(QStringLiteral("type 2"));
    QCOMPARE(seen, (QMap<QString, int>()));
}

QTEST_GUILESS_MAIN(TestZobFaults)
#include "tst_zobfaults.moc"

#include <VKD_H_ZOBDoc.h>
#include <vkd_q.h>

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <sqlite3.h>

#include <csignal>

namespace {

QByteArray record(int i)
{
    return QByteArray("record-") + QByteArray::number(i);
}

void put(int index, const QByteArray& data, int position)
{
    const int length = data.size();
    QCOMPARE(vkd_zob_put(index, 200, 6, data.constData(), &length, position), ZOB_OK);
}

QByteArrayList readAll(int index, int key1 = 200, int key2 = 6)
{
    QByteArrayList out;
    for (int pos = 0;; ++pos) {
        char buffer[256];
        int length = sizeof buffer;
        if (vkd_zob_get(index, key1, key2, buffer, &length, pos) >= ZOB_END)
            break;
        out << QByteArray(buffer, length);
    }
    return out;
}

QByteArray fileHash(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256);
}

} // namespace

class TestZob : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void getResults_data();
    void getResults();
    void shortBuffer();
    void putPositionZeroStartsTheSequenceAnew();
    void scratchDatabaseIsSeparate();
    void kenq_data();
    void kenq();
    void lockIsHiddenFromOtherConnectionsUntilFree();
    void freeWithoutLockIsHarmless();
    void secondProgramWaitsForTheLock();
    void killedWriterLeavesRecordsIntact();
    void rejectedFilesStayUntouched_data();
    void rejectedFilesStayUntouched();
    void reopenKeepsRecords();
    void walkSeesEveryChange_data();
    void walkSeesEveryChange();
    void appendAfterAnotherWriter();

private:
    QTemporaryDir* m_dir = nullptr;
    VKD_H_ZOBDoc* m_doc = nullptr;
    QString path() const { return m_dir->filePath(QStringLiteral("project.vkd")); }
};

void TestZob::init()
{
    m_dir = new QTemporaryDir;
    m_doc = new VKD_H_ZOBDoc(path());
    QVERIFY2(m_doc->isValid(), qPrintable(m_doc->errorString()));
}

void TestZob::cleanup()
{
    delete m_doc;
    m_doc = nullptr;
    delete m_dir;
}

void TestZob::getResults_data()
{
    QTest::addColumn<int>("stored"); // -1: never written, otherwise records appended
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("result");

    QTest::newRow("never written") << -1 << 0 << int(ZOB_NO_KEY);
    QTest::newRow("never written, later position") << -1 << 3 << int(ZOB_NO_KEY);
    QTest::newRow("emptied key pair") << 0 << 0 << int(ZOB_END);
    QTest::newRow("first of three") << 3 << 0 << int(ZOB_OK);
    QTest::newRow("second of three") << 3 << 1 << int(ZOB_OK);
    QTest::newRow("third of three") << 3 << 2 << int(ZOB_OK);
    QTest::newRow("behind the last") << 3 << 3 << int(ZOB_END);
    QTest::newRow("far behind the last") << 3 << 1000 << int(ZOB_END);
}

void TestZob::getResults()
{
    QFETCH(int, stored);
    QFETCH(int, position);
    QFETCH(int, result);
    const int index = m_doc->index();
    if (stored >= 0) {
        const int zero = 0;
        QCOMPARE(vkd_zob_put(index, 200, 6, nullptr, &zero, 0), ZOB_OK);
        for (int i = 0; i < stored; ++i)
            put(index, record(i), 1);
    }
    char buffer[64] = {};
    int length = sizeof buffer;
    QCOMPARE(vkd_zob_get(index, 200, 6, buffer, &length, position), result);
    if (result <= ZOB_TRUNCATED)
        QCOMPARE(QByteArray(buffer, length), record(position));
}

void TestZob::shortBuffer()
{
    put(m_doc->index(), QByteArray(212, 'x'), 0);
    char buffer[100];
    int length = sizeof buffer;
    QCOMPARE(vkd_zob_get(m_doc->index(), 200, 6, buffer, &length, 0), ZOB_TRUNCATED);
    QCOMPARE(length, 100);
}

void TestZob::putPositionZeroStartsTheSequenceAnew()
{
    const int index = m_doc->index();
    for (int i = 0; i < 4; ++i)
        put(index, record(i), 1);
    put(index, record(9), 0);
    QCOMPARE(readAll(index), QByteArrayList{record(9)});
    put(index, record(10), 1);
    QCOMPARE(readAll(index), (QByteArrayList{record(9), record(10)}));
    const int zero = 0;
    QCOMPARE(vkd_zob_put(index, 200, 6, nullptr, &zero, 0), ZOB_OK);
    QVERIFY(readAll(index).isEmpty());
    put(index, record(11), 1);
    QCOMPARE(readAll(index), QByteArrayList{record(11)});
    const int length = 4;
    QCOMPARE(vkd_zob_put(index, 200, 6, "abcd", &length, 2), ZOB_BAD_ARGUMENT);
}

void TestZob::scratchDatabaseIsSeparate()
{
    const QByteArray data("scratch");
    const int length = data.size();
    QCOMPARE(vkd_zob_put(0, 0, 12979, data.constData(), &length, 1), ZOB_OK);
    QCOMPARE(readAll(0, 0, 12979), QByteArrayList{data});
    QVERIFY(readAll(m_doc->index(), 0, 12979).isEmpty());
    const int zero = 0;
    vkd_zob_put(0, 0, 12979, nullptr, &zero, 0);
    QVERIFY(readAll(0, 0, 12979).isEmpty());
    char buffer[8];
    int size = sizeof buffer;
    QCOMPARE(vkd_zob_get(42, 200, 6, buffer, &size, 0), ZOB_NO_DATABASE);
}

void TestZob::kenq_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("askKey2");
    QTest::addColumn<int>("foundKey1");
    QTest::addColumn<int>("foundKey2");
    QTest::newRow("exact pair present") << 0 << 7 << 35 << 7;
    QTest::newRow("exact pair absent") << 0 << 0 << -1 << -1;
    QTest::newRow("any key2 from 0") << 1 << 0 << 35 << 7;
    QTest::newRow("any key2 above the stored one") << 1 << 8 << -1 << -1;
}

void TestZob::kenq()
{
    QFETCH(int, mode);
    QFETCH(int, askKey2);
    QFETCH(int, foundKey1);
    QFETCH(int, foundKey2);
    const int length = 4;
    vkd_zob_put(m_doc->index(), 35, 7, "line", &length, 0);
    const int zero = 0;
    vkd_zob_put(m_doc->index(), 35, 3, nullptr, &zero, 0); // known, but holds nothing
    int key1 = 35, key2 = askKey2;
    vkd_zob_kenq_ex(m_doc->index(), &key1, &key2, mode);
    QCOMPARE(key1, foundKey1);
    QCOMPARE(key2, foundKey2);
}

void TestZob::lockIsHiddenFromOtherConnectionsUntilFree()
{
    const int index = m_doc->index();
    put(index, record(1), 0);
    VKD_H_ZOBDoc reader(path(), VKD_H_ZOBDoc::OpenExisting);
    QVERIFY(reader.isValid());
    QCOMPARE(vkd_zob_lock_ex(index, 200, 6), ZOB_OK);
    put(index, record(2), 1);
    QCOMPARE(readAll(index), (QByteArrayList{record(1), record(2)}));
    QCOMPARE(readAll(reader.index()), QByteArrayList{record(1)});
    vkd_zob_free_ex(index, 200, 6);
    QCOMPARE(readAll(reader.index()), (QByteArrayList{record(1), record(2)}));
}

void TestZob::freeWithoutLockIsHarmless()
{
    vkd_zob_free_ex(m_doc->index(), 200, 6);
    vkd_zob_free_ex(m_doc->index(), 200, 6);
    put(m_doc->index(), record(1), 0);
    vkd_zob_free_ex(m_doc->index(), 200, 6);
    QCOMPARE(readAll(m_doc->index()), QByteArrayList{record(1)});
}

void TestZob::secondProgramWaitsForTheLock()
{
    put(m_doc->index(), record(0), 0);
    QCOMPARE(vkd_zob_lock_ex(m_doc->index(), 200, 6), ZOB_OK);
    put(m_doc->index(), record(1), 1);

    QProcess second;
    second.start(QStringLiteral(ZOB_WRITER), {QStringLiteral("append"), path()});
    QVERIFY(second.waitForStarted());
    // While this program holds the lock the other one must wait, not fail.
    QVERIFY(!second.waitForFinished(1500));
    vkd_zob_free_ex(m_doc->index(), 200, 6);
    QVERIFY(second.waitForFinished(20000));
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(readAll(m_doc->index()),
             (QByteArrayList{record(0), record(1), QByteArray("second program", 15)}));
}

void TestZob::killedWriterLeavesRecordsIntact()
{
    put(m_doc->index(), record(0), 0);
    put(m_doc->index(), record(1), 1);
    QProcess writer;
    writer.start(QStringLiteral(ZOB_WRITER), {QStringLiteral("die"), path()});
    QVERIFY(writer.waitForReadyRead(20000));
    QCOMPARE(writer.readAll().trimmed(), QByteArray("ready"));
    ::kill(pid_t(writer.processId()), SIGKILL);
    QVERIFY(writer.waitForFinished(20000));
    QCOMPARE(writer.exitStatus(), QProcess::CrashExit);

    delete m_doc;
    m_doc = new VKD_H_ZOBDoc(path(), VKD_H_ZOBDoc::OpenExisting);
    QVERIFY2(m_doc->isValid(), qPrintable(m_doc->errorString()));
    QCOMPARE(readAll(m_doc->index()), (QByteArrayList{record(0), record(1)}));
    // and the lock the dead writer held is gone
    QCOMPARE(vkd_zob_lock_ex(m_doc->index(), 200, 6), ZOB_OK);
    vkd_zob_free_ex(m_doc->index(), 200, 6);
}

void TestZob::rejectedFilesStayUntouched_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("text file") << "text";
    QTest::newRow("short binary file") << "short";
    QTest::newRow("foreign SQLite database") << "foreign";
    QTest::newRow("project cut in half") << "truncated";
    QTest::newRow("project with a smashed page") << "smashed";
}

void TestZob::rejectedFilesStayUntouched()
{
    QFETCH(QString, kind);
    const QString file = m_dir->filePath(QStringLiteral("victim"));
    if (kind == QLatin1String("text") || kind == QLatin1String("short")) {
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(kind == QLatin1String("text") ? QByteArray("TORVAL input\nPROG GRAV\n").repeated(40)
                                              : QByteArray("SQLite format 3"));
    } else if (kind == QLatin1String("foreign")) {
        sqlite3* db = nullptr;
        QCOMPARE(sqlite3_open(QFile::encodeName(file).constData(), &db), SQLITE_OK);
        QCOMPARE(sqlite3_exec(db, "CREATE TABLE t(x); INSERT INTO t VALUES(1);", nullptr, nullptr, nullptr),
                 SQLITE_OK);
        sqlite3_close(db);
    } else {
        {
            VKD_H_ZOBDoc project(file);
            QVERIFY(project.isValid());
            for (int i = 0; i < 400; ++i) {
                const QByteArray data(212, char('a' + i % 26));
                const int length = data.size();
                vkd_zob_put(project.index(), 200, 6, data.constData(), &length, 1);
            }
        }
        QFile f(file);
        QVERIFY(f.open(QIODevice::ReadWrite));
        const QByteArray whole = f.readAll();
        if (kind == QLatin1String("truncated")) {
            QVERIFY(f.resize(whole.size() / 2));
        } else {
            f.seek(whole.size() - 3000);
            f.write(QByteArray(1500, '\xff'));
        }
    }
    const QByteArray before = fileHash(file);
    QVERIFY(!before.isEmpty());
    VKD_H_ZOBDoc doc(file, VKD_H_ZOBDoc::OpenOrCreate);
    QVERIFY(!doc.isValid());
    QVERIFY(!doc.errorString().isEmpty());
    QVERIFY2(doc.errorString().contains(file), qPrintable(doc.errorString()));
    QCOMPARE(fileHash(file), before);
}

void TestZob::reopenKeepsRecords()
{
    for (int i = 0; i < 5; ++i)
        put(m_doc->index(), record(i), i == 0 ? 0 : 1);
    delete m_doc;
    m_doc = new VKD_H_ZOBDoc(path(), VKD_H_ZOBDoc::OpenExisting);
    QVERIFY(m_doc->isValid());
    QCOMPARE(readAll(m_doc->index()).size(), 5);
    QCOMPARE(readAll(m_doc->index()).last(), record(4));
}

// A reader that walks a key pair position by position sees every change made between two of its
// steps, by this connection or by another one.
void TestZob::walkSeesEveryChange_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QByteArrayList>("expected");
    const QByteArrayList three{record(0), record(1), record(2)};
    QTest::newRow("none") << QString() << three;
    QTest::newRow("append") << QStringLiteral("append") << (three + QByteArrayList{record(9)});
    QTest::newRow("replace by one") << QStringLiteral("replace") << QByteArrayList{record(0), record(1)};
    QTest::newRow("append by another connection")
        << QStringLiteral("other") << (three + QByteArrayList{record(9)});
    QTest::newRow("another key pair read") << QStringLiteral("other key") << three;
}

void TestZob::walkSeesEveryChange()
{
    QFETCH(QString, change);
    QFETCH(QByteArrayList, expected);
    const int index = m_doc->index();
    put(index, record(0), 0);
    put(index, record(1), 1);
    put(index, record(2), 1);
    VKD_H_ZOBDoc other(path(), VKD_H_ZOBDoc::OpenExisting);
    QByteArrayList seen;
    for (int pos = 0;; ++pos) {
        char buffer[64];
        int length = sizeof buffer;
        if (vkd_zob_get(index, 200, 6, buffer, &length, pos) >= ZOB_END)
            break;
        seen << QByteArray(buffer, length);
        if (pos != 1)
            continue;
        if (change == QLatin1String("append"))
            put(index, record(9), 1);
        else if (change == QLatin1String("replace"))
            put(index, record(7), 0);
        else if (change == QLatin1String("other"))
            put(other.index(), record(9), 1);
        else if (change == QLatin1String("other key"))
            QCOMPARE(readAll(index, 200, 7), QByteArrayList());
    }
    QCOMPARE(seen, expected);
}

// Appends inside a lock go on behind whatever another connection appended before the lock.
void TestZob::appendAfterAnotherWriter()
{
    const int index = m_doc->index();
    VKD_H_ZOBDoc other(path(), VKD_H_ZOBDoc::OpenExisting);
    QCOMPARE(vkd_zob_lock_ex(index, 200, 6), ZOB_OK);
    put(index, record(0), 0);
    put(index, record(1), 1);
    vkd_zob_free_ex(index, 200, 6);
    put(other.index(), record(2), 1);
    QCOMPARE(vkd_zob_lock_ex(index, 200, 6), ZOB_OK);
    put(index, record(3), 1);
    vkd_zob_free_ex(index, 200, 6);
    put(index, record(4), 1);
    QCOMPARE(readAll(other.index()), (QByteArrayList{record(0), record(1), record(2), record(3), record(4)}));
}

QTEST_GUILESS_MAIN(TestZob)
#include "tst_zob.moc"

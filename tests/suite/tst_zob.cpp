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

private:
    QTemporaryDir* m_dir = nullptr;
    VKD_H_ZOBDoc* m_doc = nullptr;
    QString path() const { return m_dir->filePath(QStringLiteral("project.vkd")); }

private slots:

    void init()
    {
        m_dir = new QTemporaryDir;
        m_doc = new VKD_H_ZOBDoc(path());
        QVERIFY2(m_doc->isValid(), qPrintable(m_doc->errorString()));
    }

    void cleanup()
    {
        delete m_doc;
        m_doc = nullptr;
        delete m_dir;
    }

    void getResults_data()
    {
        QTest::addColumn<int>("stored"); // -1: never written, otherwise records appended
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("result");

        QTest::newRow("never written") << -1 << 0 << int(ZOB_NO_KEY);
        QTest::newRow("emptied key pair") << 0 << 0 << int(ZOB_END);
        QTest::newRow("first of three") << 3 << 0 << int(ZOB_OK);
        QTest::newRow("third of three") << 3 << 2 << int(ZOB_OK);
        QTest::newRow("behind the last") << 3 << 3 << int(ZOB_END);
        QTest::newRow("far behind the last") << 3 << 1000 << int(ZOB_END);
    }

    void getResults()
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

    void putPositionZeroStartsTheSequenceAnew()
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

    void secondProgramWaitsForTheLock()
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

    void killedWriterLeavesRecordsIntact()
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

    void rejectedFilesStayUntouched_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("text file") << "text";
        QTest::newRow("foreign SQLite database") << "foreign";
        QTest::newRow("project cut in half") << "truncated";
    }

    void rejectedFilesStayUntouched()
    {
        QFETCH(QString, kind);
        const QString file = m_dir->filePath(QStringLiteral("victim"));
        if (kind == QLatin1String("text")) {
            QFile f(file);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(QByteArray("TORVAL input\nPROG GRAV\n").repeated(40));
        } else if (kind == QLatin1String("foreign")) {
            sqlite3* db = nullptr;
            QCOMPARE(sqlite3_open(QFile::encodeName(file).constData(), &db), SQLITE_OK);
            QCOMPARE(
                sqlite3_exec(db, "CREATE TABLE t(x); INSERT INTO t VALUES(1);", nullptr, nullptr, nullptr),
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
            QVERIFY(f.resize(f.size() / 2));
        }
        const QByteArray before = fileHash(file);
        QVERIFY(!before.isEmpty());
        VKD_H_ZOBDoc doc(file, VKD_H_ZOBDoc::OpenOrCreate);
        QVERIFY(!doc.isValid());
        QVERIFY(!doc.errorString().isEmpty());
        QVERIFY2(doc.errorString().contains(file), qPrintable(doc.errorString()));
        QCOMPARE(fileHash(file), before);
    }

    // A reader that walks a key pair position by position sees every change made between two of its
    // steps, by this connection or by another one.
    void walkSeesEveryChange_data()
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

    void walkSeesEveryChange()
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
    void appendAfterAnotherWriter()
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
        QCOMPARE(readAll(other.index()),
                 (QByteArrayList{record(0), record(1), record(2), record(3), record(4)}));
    }
};

QTEST_GUILESS_MAIN(TestZob)
#include "tst_zob.moc"

// Runs the host program that uses the group through libvkd_p_fea.so on a desktop of each
// language and compares what it prints with a reference file.
#include "reference.h"

#include <QProcess>
#include <QtTest>

class TestRadioGroupHost : public QObject
{
    Q_OBJECT
private slots:
    void transcript_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("reference");
        // clang-format off
        QTest::newRow("English desktop") << "1" << "host_en.txt";
        QTest::newRow("German desktop") << "0" << "host_de.txt";
        // clang-format on
    }

    void transcript()
    {
        QFETCH(QString, language);
        QFETCH(QString, reference);
        QProcess host;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("VKD_LANGUAGE"), language);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        host.setProcessEnvironment(env);
        host.start(QStringLiteral(RADIOGROUP_HOST), QStringList());
        QVERIFY(host.waitForFinished(60000));
        QCOMPARE(host.exitCode(), 0);
        QVERIFY(matchesReference(QString::fromUtf8(host.readAllStandardOutput()), reference));
    }
};

QTEST_MAIN(TestRadioGroupHost)
#include "tst_radiogroup_host.moc"

#include <QFile>
#include <QProcess>
#include <QtTest>

// Runs the host program that uses the group through libvkd_p_fea.so and compares what it prints
// with a reference file.
class TestRadioGroupHost : public QObject
{
    Q_OBJECT
private slots:
    void transcript_data();
    void transcript();
};

void TestRadioGroupHost::transcript_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("reference");
    QTest::newRow("English desktop") << "1"
                                     << "host_en.txt";
    QTest::newRow("German desktop") << "0"
                                    << "host_de.txt";
}

void TestRadioGroupHost::transcript()
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
    const QStringList actual = QString::fromUtf8(host.readAllStandardOutput()).split(QLatin1Char('\n'));

    QFile file(QStringLiteral(TEST_DATA_DIR "/") + reference);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList expected = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));

    QString difference;
    for (int i = 0; i < std::max(actual.size(), expected.size()); ++i) {
        const QString a = actual.value(i, QStringLiteral("<none>"));
        const QString e = expected.value(i, QStringLiteral("<none>"));
        if (a != e)
            difference += QStringLiteral("line %1\n  expected: %2\n  actual:   %3\n").arg(i + 1).arg(e, a);
    }
    QVERIFY2(difference.isEmpty(), qPrintable(QLatin1Char('\n') + difference));
}

QTEST_MAIN(TestRadioGroupHost)
#include "tst_radiogroup_host.moc"

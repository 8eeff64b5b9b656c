// Data files of the suite that cannot be used as they are: one warning that names the file
// and the line, and what can be used still is.
#include <VKD_QT_InitTranslator.h>
#include <vkd_q.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestDataFiles : public QObject
{
    Q_OBJECT
    QString write(const QString& name, const QByteArray& contents)
    {
        QFile f(m_dir->filePath(name));
        f.open(QIODevice::WriteOnly);
        f.write(contents);
        return QFileInfo(f).absoluteFilePath();
    }
    std::unique_ptr<QTemporaryDir> m_dir;

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        qputenv("VKD_SEARCHPATH", QFile::encodeName(m_dir->path()));
    }

    void messageCatalogue_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("warning"); // after "<file>:"; empty for none
        const QByteArray good = "# texts of a test program\n1|ABC|Ansicht|View\n";
        QTest::newRow("sound file") << good << "";
        QTest::newRow("three fields on line 3")
            << good + "1|ABD|Schnitt\n"
            << "3: not a text line \"class|key|German|English\" in UTF-8; 1 "
               "such line(s) skipped";
        QTest::newRow("class not a number, twice")
            << good + "\nx|ABD|Schnitt|Section\ny|ABE|a|b\n"
            << "4: not a text line \"class|key|German|English\" in UTF-8; 2 such line(s) skipped";
        QTest::newRow("Latin-1 instead of UTF-8")
            << good + "1|ABF|Gr\xf6\xdf"
                      "e|Size\n"
            << "3: not a text line \"class|key|German|English\" in UTF-8; 1 "
               "such line(s) skipped";
    }

    void messageCatalogue()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, warning);
        static int program = 0;
        const QByteArray name = "prog" + QByteArray::number(++program);
        const QString path = write(QString::fromLatin1(name + ".msg"), contents);
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(path + QLatin1Char(':') + warning));
        vkd_lib_opentext(name.constData());
        QCOMPARE(QString::fromStdString(vkd_lib_convtext(1, 0, "ABC")), QStringLiteral("Ansicht"));
        QCOMPARE(QString::fromStdString(vkd_lib_convtext(1, 1, "ABD")), QString());
    }

    void translation_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("installed");
        QFile shipped(QCoreApplication::applicationDirPath() + QStringLiteral("/data/vkd_p_dll_de.qm"));
        QVERIFY(shipped.open(QIODevice::ReadOnly));
        const QByteArray whole = shipped.readAll();
        QTest::newRow("shipped translation") << whole << true;
        QTest::newRow("shipped translation cut in half") << whole.left(whole.size() / 2) << false;
        QTest::newRow("text file") << QByteArray("Ansicht = View\n") << false;
    }

    void translation()
    {
        QFETCH(QByteArray, contents);
        QFETCH(bool, installed);
        const QString path = write(QStringLiteral("mod_de.qm"), contents);
        if (!installed)
            QTest::ignoreMessage(
                QtWarningMsg,
                qPrintable(path +
                           QStringLiteral(": not a translation that can be loaded; the texts stay English")));
        vkd_lib_setvalue(102, 0);
        VKD_QT_InitTranslator translator("mod");
        vkd_lib_setvalue(102, 1);
        QCOMPARE(translator.isInstalled(), installed);
    }

    // Bit 1 of the mode takes the configured folders only, bit 2 those of the executable only.
    void searchFolders()
    {
        const QString exe = QCoreApplication::applicationDirPath();
        QCOMPARE(vkd_lib_searchfolders(2), QStringList({exe, exe + QStringLiteral("/data")}));
        QVERIFY(!vkd_lib_searchfolders(1).contains(exe));
    }
};

QTEST_GUILESS_MAIN(TestDataFiles)
#include "tst_datafiles.moc"

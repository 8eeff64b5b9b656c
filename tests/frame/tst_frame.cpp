#include "VKD_P_Frame.h"
#include "VKD_P_Mix_UnitTest.h"
#include "languagefile.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestFrame : public QObject
{
    Q_OBJECT
private slots:
    void languageRule_data();
    void languageRule();
    void pixmapCacheKey_data();
    void pixmapCacheKey();
    void figureSizes_data();
    void figureSizes();
    void resourceBlocks();
    void logFile_data();
    void logFile();
    void pluginFactory_data();
    void pluginFactory();
    void selfCheck_data();
    void selfCheck();
    void translatorInstalledOnceTheApplicationExists_data();
    void translatorInstalledOnceTheApplicationExists();
};

void TestFrame::languageRule_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("expected");
    QTest::newRow("German form") << ":/betondeckung.png" << 0 << ":/betondeckung_0.png";
    QTest::newRow("English form") << ":/betondeckung.png" << 1 << ":/betondeckung_1.png";
    QTest::newRow("no language form, German") << ":/neq_designline_zrt_bew_mod_allg.png" << 0
                                              << ":/neq_designline_zrt_bew_mod_allg.png";
    QTest::newRow("no language form, English") << ":/neq_designline_zrt_bew_mod_allg.png" << 1
                                               << ":/neq_designline_zrt_bew_mod_allg.png";
    QTest::newRow("direction figure, English") << ":/neq_merpara_rich.png" << 1 << ":/neq_merpara_rich_1.png";
    QTest::newRow("missing file") << ":/nothing.png" << 0 << ":/nothing.png";
    QTest::newRow("language without a form") << ":/betondeckung.png" << 2 << ":/betondeckung.png";
    QTest::newRow("name without extension") << ":/betondeckung" << 0 << ":/betondeckung";
}

void TestFrame::languageRule()
{
    QFETCH(QString, name);
    QFETCH(int, language);
    QFETCH(QString, expected);
    QCOMPARE(vkd_qt_getFileNameWithLang(name, language), expected);
}

void TestFrame::pixmapCacheKey_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("form");
    QTest::newRow("German") << 0 << ":/betondeckung_0.png";
    QTest::newRow("English") << 1 << ":/betondeckung_1.png";
}

void TestFrame::pixmapCacheKey()
{
    QFETCH(int, language);
    QFETCH(QString, form);
    const int saved = vkd_lib_getvalue(102);
    vkd_lib_setvalue(102, language);
    const QPixmap viaRule = GET_PIXMAP_WITH_LANG(QStringLiteral(":/betondeckung.png"));
    vkd_lib_setvalue(102, saved);
    QVERIFY(!viaRule.isNull());
    QCOMPARE(viaRule.cacheKey(), QPixmap(form).cacheKey());
    QVERIFY(viaRule.cacheKey() != QPixmap(QStringLiteral(":/betondeckung.png")).cacheKey());
}

void TestFrame::figureSizes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("directions") << ":/neq_merpara_rich.png" << QSize(193, 111);
    QTest::newRow("directions German") << ":/neq_merpara_rich_0.png" << QSize(193, 112);
    QTest::newRow("directions English") << ":/neq_merpara_rich_1.png" << QSize(193, 112);
    QTest::newRow("cover") << ":/betondeckung.png" << QSize(240, 111);
    QTest::newRow("cover German") << ":/betondeckung_0.png" << QSize(240, 112);
    QTest::newRow("cover English") << ":/betondeckung_1.png" << QSize(240, 112);
    QTest::newRow("design line") << ":/neq_designline_zrt_bew_mod_allg.png" << QSize(299, 104);
}

void TestFrame::figureSizes()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QImage image(name);
    QVERIFY2(!image.isNull(), qPrintable(name));
    QCOMPARE(image.size(), size);
}

void TestFrame::resourceBlocks()
{
    const QStringList files = QDir(QStringLiteral(":/")).entryList(QStringList{QStringLiteral("*.png")}, QDir::Files);
    // Each figure also drawn at twice the pixels for screens that scale by two.
    QCOMPARE(files.size(), 2 * (14 + 15));
    for (const QString& f : files) {
        const QFileInfo info(QStringLiteral(":/") + f);
        const QImage image(info.filePath());
        QVERIFY2(!image.isNull(), qPrintable(f));
        if (f.endsWith(QLatin1String("@2x.png")))
            QCOMPARE(image.size(), QImage(QStringLiteral(":/") + QString(f).remove(QStringLiteral("@2x"))).size() * 2);
    }
    QVERIFY(QDir(QStringLiteral(":/")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).filter(QStringLiteral(".png")).isEmpty());
}

void TestFrame::logFile_data()
{
    const QString sep = QDir::separator();
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no arguments: the root") << QStringList() << sep + "VKD_P_Mix_UnitTest.log";
    QTest::newRow("upper case tag") << QStringList{"LOGPATH:/tmp/x"} << "/tmp/x/VKD_P_Mix_UnitTest.log";
    QTest::newRow("mixed case tag") << QStringList{"LogPath:/tmp/x"} << "/tmp/x/VKD_P_Mix_UnitTest.log";
    QTest::newRow("separator kept, not doubled") << QStringList{"logpath:/tmp/y/"} << "/tmp/y/VKD_P_Mix_UnitTest.log";
    QTest::newRow("last one wins") << QStringList{"logpath:/a", "other", "LOGPATH:/b"} << "/b/VKD_P_Mix_UnitTest.log";
    QTest::newRow("argument without tag is ignored") << QStringList{"/tmp/x"} << sep + "VKD_P_Mix_UnitTest.log";
    QTest::newRow("every tag removed") << QStringList{"logpath:/c/logpath:d"} << "/c/d/VKD_P_Mix_UnitTest.log";
    QTest::newRow("tag inside the argument") << QStringList{"-LOGPATH:/e"} << "-/e/VKD_P_Mix_UnitTest.log";
}

void TestFrame::logFile()
{
    QFETCH(QStringList, args);
    QFETCH(QString, expected);
    QCOMPARE(unitTestLogFile(args), expected);
}

void TestFrame::pluginFactory_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("a page name") << "VKD_P_DesignParameter";
    QTest::newRow("anything") << "grav";
}

void TestFrame::pluginFactory()
{
    QFETCH(QString, name);
    QVERIFY(VKD_H_PluginFactory(name) == nullptr);
}

void TestFrame::selfCheck_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<int>("language");
    QTest::newRow("upper case, English desktop") << "LOGPATH:" << 1;
    QTest::newRow("mixed case, German desktop") << "LogPath:" << 0;
}

// In a process of its own: the self-check runs QTest, which must not nest in this test.
void TestFrame::selfCheck()
{
    QFETCH(QString, tag);
    QFETCH(int, language);
    QTemporaryDir dir;
    QProcess runner;
    runner.start(QStringLiteral(SELFCHECK_RUNNER),
                 {QStringLiteral("language=%1").arg(language), tag + dir.path()});
    QVERIFY(runner.waitForFinished(60000));
    const QString out = QString::fromUtf8(runner.readAllStandardOutput());
    QCOMPARE(runner.exitCode(), 0);
    QVERIFY2(out.contains(QStringLiteral("result 0\n")), qPrintable(out));
    QVERIFY2(out.contains(QStringLiteral("language %1 %1\n").arg(language)), qPrintable(out));
    QFile log(dir.filePath(QStringLiteral("VKD_P_Mix_UnitTest.log")));
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QByteArray text = log.readAll();
    QVERIFY2(text.contains("PASS   : VKD_P_Mix_UnitTest::check_qrc_system()"), text.constData());
    QVERIFY(text.contains("0 failed"));
}

void TestFrame::translatorInstalledOnceTheApplicationExists_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("suiteText");
    QTest::newRow("German desktop") << "de" << "Selbsttest der Bibliothek" << "Abbrechen";
    QTest::newRow("English desktop") << "en" << "Self-check of the library" << "Cancel";
}

// The translators of the library and of the suite are created by static initialisers, before
// main creates the application object; the German texts must still be in effect afterwards.
void TestFrame::translatorInstalledOnceTheApplicationExists()
{
    QFETCH(QString, language);
    QFETCH(QString, text);
    QFETCH(QString, suiteText);
    QTemporaryDir dir;
    QProcess runner;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("VKD_LANGUAGE"), language);
    runner.setProcessEnvironment(env);
    runner.start(QStringLiteral(SELFCHECK_RUNNER), {QStringLiteral("LOGPATH:") + dir.path()});
    QVERIFY(runner.waitForFinished(60000));
    const QString out = QString::fromUtf8(runner.readAllStandardOutput());
    QVERIFY2(out.contains(QStringLiteral("text ") + text + QLatin1Char('\n')), qPrintable(out));
    QVERIFY2(out.contains(QStringLiteral("suite ") + suiteText + QLatin1Char('\n')), qPrintable(out));
}

QTEST_MAIN(TestFrame)
#include "tst_frame.moc"

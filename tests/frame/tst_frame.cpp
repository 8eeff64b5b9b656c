// The library's frame: the language rule of its pictures, its figures, the log path and the
// self-check with its translators; and every text that the sources mark for translation has a
// German one in the committed .ts files.
#include "VKD_P_Frame.h"
#include "VKD_P_Mix_UnitTest.h"
#include "languagefile.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// Runs the library's self-check in a process of its own, where QTest does not nest in this
// test; gives what the runner printed and the log it wrote.
QString runSelfCheck(const QStringList& arguments, const QStringList& environment, QByteArray* log)
{
    QTemporaryDir dir;
    QProcess runner;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : environment)
        env.insert(variable.section(QLatin1Char('='), 0, 0), variable.section(QLatin1Char('='), 1));
    runner.setProcessEnvironment(env);
    runner.start(QStringLiteral(SELFCHECK_RUNNER),
                 QStringList(arguments).replaceInStrings("<dir>", dir.path()));
    if (!runner.waitForFinished(60000))
        return QStringLiteral("runner hangs");
    QFile file(dir.filePath(QStringLiteral("VKD_P_Mix_UnitTest.log")));
    if (log && file.open(QIODevice::ReadOnly))
        *log = file.readAll();
    return QStringLiteral("exit %1\n").arg(runner.exitCode()) +
           QString::fromUtf8(runner.readAllStandardOutput());
}

QString run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(QStringLiteral(SOURCE_ROOT));
    process.start(program, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return program + QStringLiteral(" failed: ") + QString::fromLocal8Bit(process.readAllStandardError());
    return QString();
}

} // namespace

class TestFrame : public QObject
{
    Q_OBJECT

private slots:
    void languageRule()
    {
        QCOMPARE(vkd_qt_getFileNameWithLang(":/betondeckung.png", 0), ":/betondeckung_0.png");
        QCOMPARE(vkd_qt_getFileNameWithLang(":/neq_merpara_rich.png", 1), ":/neq_merpara_rich_1.png");
        // No form of that language, or none at all: the name as given.
        for (const char* name : {":/neq_designline_zrt_bew_mod_allg.png", ":/nothing.png", ":/betondeckung"})
            QCOMPARE(vkd_qt_getFileNameWithLang(name, 0), name);
        QCOMPARE(vkd_qt_getFileNameWithLang(":/betondeckung.png", 2), ":/betondeckung.png");
    }

    // Every figure loads, and is also drawn at twice the pixels for screens that scale by two.
    void figures()
    {
        const QStringList files =
            QDir(QStringLiteral(":/")).entryList({QStringLiteral("*.png")}, QDir::Files);
        QVERIFY(files.size() > 20);
        for (const QString& f : files) {
            const QImage image(QStringLiteral(":/") + f);
            QVERIFY2(!image.isNull(), qPrintable(f));
            const QString large = QString(f).replace(QLatin1String(".png"), QLatin1String("@2x.png"));
            if (!f.endsWith(QLatin1String("@2x.png")))
                QCOMPARE(QImage(QStringLiteral(":/") + large).size(), image.size() * 2);
        }
        QVERIFY(VKD_H_PluginFactory(QStringLiteral("VKD_P_DesignParameter")) == nullptr);
    }

    void logFileOfTheLastPathWithoutItsTags()
    {
        QCOMPARE(unitTestLogFile({"logpath:/a/", "LOGPATH:/b/logpath:c/"}), "/b/c/VKD_P_Mix_UnitTest.log");
    }

    // The self-check passes and keeps the language; the translators of the library and of the
    // suite, created by static initialisers before the application object, are in effect.
    void selfCheck_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("environment");
        QTest::addColumn<QString>("printed");
        QTest::newRow("English desktop") << QStringList{"LOGPATH:<dir>"} << QStringList{"VKD_LANGUAGE=1"}
                                         << "exit 0\nresult 0\nlanguage 1 1\ntext Self-check of the library\n"
                                            "suite Cancel\n";
        QTest::newRow("German desktop")
            << QStringList{"LogPath:<dir>"} << QStringList{"VKD_LANGUAGE=de"}
            << "exit 0\nresult 0\nlanguage 0 0\ntext Selbsttest der Bibliothek\nsuite Abbrechen\n";
        QTest::newRow("no language set: the locale's")
            << QStringList{"LogPath:<dir>"}
            << QStringList{"VKD_LANGUAGE=", "LC_ALL=de_DE.UTF-8", "LANG=de_DE.UTF-8"}
            << "exit 0\nresult 0\nlanguage 0 0\ntext Selbsttest der Bibliothek\nsuite Abbrechen\n";
    }

    void selfCheck()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, environment);
        QByteArray log;
        QTEST(runSelfCheck(arguments, environment, &log), "printed");
        QVERIFY2(log.contains("PASS   : VKD_P_Mix_UnitTest::check_qrc_system()"), log.constData());
        QVERIFY(log.contains("0 failed"));
    }

    // lupdate runs over the sources of each translation unit into its committed .ts files, merged
    // into one scratch file: a message that then stands unfinished or empty has no German
    // translation and is a visible English text on a German desktop.
    void everyTextHasGerman_data()
    {
        // Source folders and the committed .ts files that are compiled into one .qm.
        QTest::addColumn<QStringList>("sources");
        QTest::addColumn<QString>("translations");
        QTest::newRow("library") << QStringList{"lib/plib/src", "lib/plib/include"}
                                 << "lib/plib/resources/translations/*.ts";
        QTest::newRow("suite") << QStringList{"lib/suite"} << "lib/suite/translations/vkd_suite_de.ts";
        QTest::newRow("host") << QStringList{"apps/plib-host"} << "apps/plib-host/plib_host_de.ts";
    }

    void everyTextHasGerman()
    {
        QFETCH(QStringList, sources);
        QFETCH(QString, translations);
        QTemporaryDir dir;
        const QString merged = dir.filePath(QStringLiteral("merged.ts"));
        QDir folder(QStringLiteral(SOURCE_ROOT "/") + translations.section(QLatin1Char('/'), 0, -2));
        QStringList convert{QStringLiteral("-i")};
        for (const QString& ts : folder.entryList({translations.section(QLatin1Char('/'), -1)}, QDir::Files))
            convert << folder.filePath(ts);
        QCOMPARE(run(QStringLiteral(LCONVERT), convert << QStringLiteral("-o") << merged), QString());
        QCOMPARE(run(QStringLiteral(LUPDATE), QStringList{"-silent", "-locations", "none", "-no-obsolete"}
                                                  << sources << QStringLiteral("-ts") << merged),
                 QString());
        QFile file(merged);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        // The library offers its texts for translation by the dozen; a handful would mean that
        // lupdate read nothing.
        QVERIFY2(text.count(QLatin1String("<message")) > 10, qPrintable(text));
        QStringList missing;
        const QRegularExpression message(QStringLiteral("<source>(.*?)</source>.*?<translation( "
                                                        "type=\"unfinished\")?>\\s*(</translation>)?"),
                                         QRegularExpression::DotMatchesEverythingOption);
        for (auto it = message.globalMatch(text); it.hasNext();) {
            const QRegularExpressionMatch m = it.next();
            if (!m.captured(2).isEmpty() || !m.captured(3).isEmpty())
                missing << m.captured(1);
        }
        QVERIFY2(missing.isEmpty(),
                 qPrintable(QStringLiteral("%1 texts without German:\n  ").arg(missing.size()) +
                            missing.join(QStringLiteral("\n  "))));
    }
};

QTEST_MAIN(TestFrame)
#include "tst_frame.moc"

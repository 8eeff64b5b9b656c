// Runs lupdate over the sources of each translation unit into its committed .ts files, merged into
// one scratch file: a message that then stands unfinished or empty has no German translation and
// is a visible English text on a German desktop.
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace {

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

class TestTranslations : public QObject
{
    Q_OBJECT
private slots:
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

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"

// Runs lupdate over the sources of each translation unit into a scratch .ts file and looks up
// every message it finds in the committed .ts files of that unit: a message without a finished
// German translation is a visible English text on a German desktop.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

struct Message
{
    QString context;
    QString source;
    QString comment;
    bool finished = false;
};

QString keyOf(const Message& m)
{
    return m.context + QLatin1Char('\x1f') + m.source + QLatin1Char('\x1f') + m.comment;
}

// The messages of a .ts file; obsolete and vanished ones count as absent.
QList<Message> readTs(const QString& path, QString* error)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return messages;
    }
    QXmlStreamReader xml(&file);
    QString context;
    Message current;
    bool plural = false;
    bool obsolete = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            const auto name = xml.name();
            if (name == QLatin1String("name")) {
                context = xml.readElementText();
            } else if (name == QLatin1String("message")) {
                current = Message{context, {}, {}, false};
                plural = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
            } else if (name == QLatin1String("source")) {
                current.source = xml.readElementText();
            } else if (name == QLatin1String("comment")) {
                current.comment = xml.readElementText();
            } else if (name == QLatin1String("translation")) {
                const auto type = xml.attributes().value(QLatin1String("type"));
                obsolete = type == QLatin1String("obsolete") || type == QLatin1String("vanished");
                current.finished = type.isEmpty();
                // A plural message carries its forms as children, each of which must be filled.
                if (!plural && xml.readElementText().trimmed().isEmpty())
                    current.finished = false;
            } else if (name == QLatin1String("numerusform") && xml.readElementText().trimmed().isEmpty()) {
                current.finished = false;
            }
        } else if (xml.isEndElement() && xml.name() == QLatin1String("message") && !obsolete) {
            messages << current;
        }
    }
    if (xml.hasError())
        *error = QStringLiteral("%1: %2 at line %3").arg(path, xml.errorString()).arg(xml.lineNumber());
    return messages;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT
private slots:
    void everyTextHasGerman_data();
    void everyTextHasGerman();
};

void TestTranslations::everyTextHasGerman_data()
{
    // Source folders and the committed .ts files that are compiled into one .qm.
    QTest::addColumn<QStringList>("sources");
    QTest::addColumn<QStringList>("translations");
    QStringList library;
    const QDir tsDir(QStringLiteral(SOURCE_ROOT "/lib/plib/resources/translations"));
    for (const QString& ts : tsDir.entryList({QStringLiteral("*.ts")}, QDir::Files))
        library << tsDir.filePath(ts);
    QTest::newRow("library") << QStringList{QStringLiteral("lib/plib/src"),
                                            QStringLiteral("lib/plib/include")}
                             << library;
    QTest::newRow("suite") << QStringList{QStringLiteral("lib/suite")}
                           << QStringList{
                                  QStringLiteral(SOURCE_ROOT "/lib/suite/translations/vkd_suite_de.ts")};
    QTest::newRow("host") << QStringList{QStringLiteral("apps/plib-host")}
                          << QStringList{QStringLiteral(SOURCE_ROOT "/apps/plib-host/plib_host_de.ts")};
}

void TestTranslations::everyTextHasGerman()
{
    QFETCH(QStringList, sources);
    QFETCH(QStringList, translations);

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString scratch = dir.filePath(QStringLiteral("found.ts"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(SOURCE_ROOT));
    lupdate.start(QStringLiteral(LUPDATE),
                  QStringList{QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none")}
                      << sources << QStringList{QStringLiteral("-ts"), scratch});
    QVERIFY2(lupdate.waitForFinished(120000), qPrintable(lupdate.errorString()));
    QVERIFY2(lupdate.exitStatus() == QProcess::NormalExit && lupdate.exitCode() == 0,
             lupdate.readAllStandardError().constData());

    QString error;
    const QList<Message> found = readTs(scratch, &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    // lupdate finds the texts that the library itself offers for translation by the dozen; a
    // handful would mean it read nothing.
    QVERIFY2(found.size() > 10, qPrintable(QStringLiteral("lupdate found %1 texts only").arg(found.size())));

    QSet<QString> translated;
    for (const QString& ts : translations) {
        for (const Message& m : readTs(ts, &error))
            if (m.finished)
                translated.insert(keyOf(m));
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }
    QStringList missing;
    for (const Message& m : found)
        if (!translated.contains(keyOf(m)))
            missing << QStringLiteral("%1: \"%2\"%3")
                           .arg(m.context, m.source,
                                m.comment.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(m.comment));
    QVERIFY2(missing.isEmpty(),
             qPrintable(QStringLiteral("%1 texts without German:\n  ").arg(missing.size()) +
                        missing.join(QStringLiteral("\n  "))));
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"

// The host dialog as a person uses it: its batch script on the demo project, the pages' states
// kept across a save and a new start, Cancel writing nothing, a script that cannot be written,
// the plots switched on above an output page, and what the host and the project tool say and
// return on bad input.
#include "ContentTagSwitch.h"
#include "PlibHostDialog.h"
#include "ScriptPreview.h"
#include "modal.h"
#include "reference.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_P_WidgetGraphicalOutput.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <newproject.h>

#include <QCryptographicHash>
#include <QProcess>
#include <QRadioButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {

QByteArray hashOf(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256)
                                       : QByteArray("<none>");
}

// The demo project in a folder of its own, made as the host makes it.
struct Project
{
    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("demo.vkd"));
    Project()
    {
        QString error;
        QVERIFY2(createDemoProject(path, &error), qPrintable(error));
    }
    QByteArray hash() const { return hashOf(path); }
};

QRadioButton* radio(QWidget* page, const char* group, int entry)
{
    return page->findChild<QWidget*>(QLatin1String(group))->findChildren<QRadioButton*>().value(entry);
}

QStringList captions(VKD_P_WidgetGraphicalOutput* page)
{
    QStringList texts;
    for (QTreeWidgetItemIterator it(page->findChild<QTreeWidget*>()); *it; ++it)
        texts << (*it)->text(0);
    return texts;
}

// Landscape and the tendons of switched-on prestressing ticked on the output page, and load case 3
// alone, ticked by hand.
void changePages(PlibHostDialog& host)
{
    radio(host.outputPage(), "FormatGroup", 1)->click();
    host.outputContent()->group()->getRadioButton(ContentTagSwitch::Prestressing)->click();
    auto* tree = host.outputPage()->findChild<QTreeWidget*>();
    const auto tendons = tree->findItems(QStringLiteral("Tendons in quad elements"), Qt::MatchRecursive);
    QVERIFY(!tendons.isEmpty());
    tendons.first()->setCheckState(0, Qt::Checked);
    host.findChild<QRadioButton*>(QStringLiteral("m_Manually"))->click();
    host.findChild<QTableWidget*>(QStringLiteral("loadCaseTable"))->item(2, 0)->setCheckState(Qt::Checked);
}

} // namespace

class TestHost : public QObject
{
    Q_OBJECT
private slots:
    void batchScript()
    {
        for (const QString keywords : {"en", "de"}) {
            Project project;
            const QByteArray before = project.hash();
            QProcess host;
            host.start(QStringLiteral(PLIB_HOST),
                       {"--script-language", keywords, "--script", "-", project.path});
            QVERIFY(host.waitForFinished(30000));
            QCOMPARE(host.exitCode(), 0);
            QVERIFY(matchesReference(QString::fromUtf8(host.readAllStandardOutput()),
                                     "demo-" + keywords + ".grav"));
            QCOMPARE(project.hash(), before);
        }
    }

    // The content choice comes back before the tree's choice, so that a ticked plot of switched-on
    // content stays ticked and in the script.
    void statesKeptAcrossStarts()
    {
        Project project;
        QString script;
        {
            VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
            PlibHostDialog host(&doc);
            changePages(host);
            script = PlibHostDialog::script(host.outputPage(), true);
            QString error;
            QCOMPARE(host.save(&error), PlibHostDialog::Saved);
            QFile written(host.scriptPath(host.outputPage()));
            QVERIFY(written.open(QIODevice::ReadOnly));
            QCOMPARE(QString::fromUtf8(written.readAll()), script);
        }
        for (const char* part : {"SIZE URS SC 0 MARG NO FORM STAN\n", "TEND QUAD GEOM YES NUMB YES", "LC 3"})
            QVERIFY2(script.contains(QLatin1String(part)), part);
        QVERIFY(!script.contains(QLatin1String("LC 4")));
        VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
        PlibHostDialog host(&doc);
        QVERIFY(radio(host.outputPage(), "FormatGroup", 1)->isChecked());
        QCOMPARE(host.outputContent()->choice(), int(ContentTagSwitch::Prestressing));
        QVERIFY(host.outputContent()->group()->getRadioButton(ContentTagSwitch::Prestressing)->isChecked());
        QCOMPARE(host.splitContent()->choice(), int(ContentTagSwitch::ModelOnly));
        QCOMPARE(PlibHostDialog::script(host.outputPage(), true), script);
        QCOMPARE(host.preview()->text(), script);
    }

    void cancelWritesNothing()
    {
        Project project;
        const QByteArray before = project.hash();
        {
            VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
            PlibHostDialog host(&doc);
            changePages(host);
            QTimer::singleShot(0, &host, &QDialog::reject);
            QCOMPARE(host.exec(), int(QDialog::Rejected));
        }
        QCOMPARE(project.hash(), before);
        QCOMPARE(QDir(project.dir.path()).entryList(QDir::Files), QStringList{"demo.vkd"});
    }

    // The project keeps what was done; the message names the script's file and the dialog closes.
    void scriptThatCannotBeWritten()
    {
        Project project;
        QVERIFY(QDir(project.dir.path()).mkdir(QStringLiteral("demo.grav")));
        VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
        PlibHostDialog host(&doc);
        changePages(host);
        BoxWatcher boxes;
        QTimer::singleShot(0, &host, &QDialog::accept);
        QCOMPARE(host.exec(), int(QDialog::Accepted));
        const QString said = boxes.seen.join(QLatin1Char('|'));
        QVERIFY2(said.contains(QDir::toNativeSeparators(project.dir.filePath("demo.grav"))) &&
                     said.contains(QLatin1String("The project was saved.")),
                 qPrintable(said));
        VKD_H_ZOBDoc reopened(project.path, VKD_H_ZOBDoc::OpenExisting);
        PlibHostDialog again(&reopened);
        QVERIFY(radio(again.outputPage(), "FormatGroup", 1)->isChecked());
    }

    // A click offers the plots of that content at once, a click on "What the model holds" takes
    // them away again; the other page keeps to its model. The split page offers the structure of
    // bricks, not their results.
    void contentSwitch()
    {
        Project project;
        VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
        PlibHostDialog host(&doc);
        const struct
        {
            bool split;
            int choice;
            QStringList offered, notOffered;
        } cases[] = {{false,
                      ContentTagSwitch::Prestressing,
                      {"Prestressing", "Tendons in quad elements", "Tendons in beams", "Prestressing force"},
                      {"Brick elements", "Section cuts"}},
                     {true, ContentTagSwitch::Bricks, {"Brick elements"}, {"Bricks"}}};
        for (const auto& [split, choice, offered, notOffered] : cases) {
            VKD_P_WidgetGraphicalOutput* page = split ? host.splitPage() : host.outputPage();
            ContentTagSwitch* content = split ? host.splitContent() : host.outputContent();
            QCOMPARE(content->group()->objectName(), QLatin1String(split ? "splitContent" : "outputContent"));
            const QStringList before = captions(page);
            for (const QString& caption : offered + notOffered)
                QVERIFY2(!before.contains(caption), qPrintable(caption));
            content->group()->getRadioButton(choice)->click();
            QCOMPARE(content->choice(), choice);
            const QStringList switched = captions(page);
            for (const QString& caption : offered + notOffered)
                QVERIFY2(switched.contains(caption) == offered.contains(caption), qPrintable(caption));
            QVERIFY(!captions(split ? host.outputPage() : host.splitPage()).contains(offered.first()));
            content->group()->getRadioButton(ContentTagSwitch::ModelOnly)->click();
            QCOMPARE(captions(page), before);
        }
    }

    void badInput_data()
    {
        // "@" stands for a damaged project file beside the demo project "%", "~" for a folder that
        // is not there. Usage errors (2) name the option; failures (3) give one line naming the file.
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("said");
        const QString host = QStringLiteral(PLIB_HOST);
        const QString tool = QStringLiteral(PROJECT_TOOL);
        QTest::newRow("host, keywords without a value")
            << host << QStringList{"@", "--script-language"} << 2 << "--script-language needs a value";
        QTest::newRow("host, unknown language")
            << host << QStringList{"--lang", "fr", "p.vkd"} << 2
            << "plib-host: --lang takes de or en, not \"fr\"\nusage: plib-host [--lang de|en] "
               "[--script-language de|en] [--script FILE|-] [--screenshots DIR] [PROJECT]";
        QTest::newRow("host, two projects")
            << host << QStringList{"a.vkd", "b.vkd"} << 2 << "one project only: b.vkd";
        QTest::newRow("host, unknown option")
            << host << QStringList{"--verbose"} << 2 << "unknown option --verbose";
        QTest::newRow("host, damaged project")
            << host << QStringList{"--script", "-", "@"} << 3 << "@ is not a project file.";
        QTest::newRow("host, batch run on a project not made yet")
            << host << QStringList{"--script", "-", "none.vkd"} << 3
            << "The project file none.vkd does not exist.";
        QTest::newRow("host, script into a missing folder")
            << host << QStringList{"--script", "~/s.grav", "%"} << 3 << "cannot write the script to ~/s.grav";
        QTest::newRow("tool, keys that are no numbers, checked before the file")
            << tool << QStringList{"dump", "~/p.vkd", "200", "six"} << 2 << "usage: plib-project";
        QTest::newRow("tool, create in a missing folder")
            << tool << QStringList{"create", "~/p.vkd"} << 3 << "The project file ~/p.vkd cannot be created";
    }

    void badInput()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, said);
        const Project project;
        const QString damaged = project.dir.filePath(QStringLiteral("damaged.vkd"));
        const QString missing = project.dir.filePath(QStringLiteral("missing"));
        const QString& demo = project.path;
        {
            QFile f(damaged);
            QVERIFY(f.open(QIODevice::WriteOnly) && f.write("not a project\n") > 0);
        }
        const QByteArray before = hashOf(damaged) + hashOf(demo);
        said.replace(QLatin1Char('@'), damaged).replace(QLatin1Char('~'), missing);
        arguments.replaceInStrings(QStringLiteral("@"), damaged).replaceInStrings(QStringLiteral("%"), demo);
        arguments.replaceInStrings(QStringLiteral("~"), missing);

        QProcess run;
        run.setWorkingDirectory(project.dir.path());
        run.start(program, arguments);
        QVERIFY(run.waitForFinished(30000));
        const QString err = QString::fromLocal8Bit(run.readAllStandardError());
        QCOMPARE(run.exitCode(), status);
        QVERIFY2(err.contains(said), qPrintable(err));
        if (status == 3)
            QCOMPARE(err.count(QLatin1Char('\n')), 1);
        QVERIFY(run.readAllStandardOutput().isEmpty());
        // Nothing made, nothing changed.
        QCOMPARE(hashOf(damaged) + hashOf(demo), before);
        QVERIFY(!QFileInfo::exists(missing));
        QCOMPARE(QDir(project.dir.path()).entryList(QDir::Files | QDir::NoDotAndDotDot).size(), 2);
    }
};

QTEST_MAIN(TestHost)
#include "tst_host.moc"

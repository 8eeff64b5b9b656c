// The host dialog as a person uses it: its batch script on the demo project, the pages' states
// kept across a save and a new start, Cancel writing nothing, and a script that cannot be
// written.
#include "PlibHostDialog.h"
#include "ScriptPreview.h"
#include "demoproject.h"
#include "reference.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_P_WidgetGraphicalOutput.h>
#include <newproject.h>

#include <QAbstractButton>
#include <QCryptographicHash>
#include <QMessageBox>
#include <QProcess>
#include <QRadioButton>
#include <QTableWidget>
#include <QtTest>

namespace {

QRadioButton* radio(QWidget* page, const char* group, int entry)
{
    return page->findChild<QWidget*>(QLatin1String(group))->findChildren<QRadioButton*>().value(entry);
}

// Landscape on the output page, and load case 3 alone, ticked by hand.
void changePages(PlibHostDialog& host)
{
    radio(host.outputPage(), "FormatGroup", 1)->click();
    host.findChild<QRadioButton*>(QStringLiteral("m_Manually"))->click();
    auto* table = host.findChild<QTableWidget*>(QStringLiteral("loadCaseTable"));
    table->item(2, 0)->setCheckState(Qt::Checked);
}

QString readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QStringLiteral("<missing>");
}

} // namespace

class TestHost : public QObject
{
    Q_OBJECT
private slots:
    void batchScript_data();
    void batchScript();
    void statesKeptAcrossStarts();
    void cancelWritesNothing();
    void scriptThatCannotBeWritten();
};

void TestHost::batchScript_data()
{
    QTest::addColumn<QString>("keywords");
    QTest::newRow("English keywords") << "en";
    QTest::newRow("German keywords") << "de";
}

void TestHost::batchScript()
{
    QFETCH(QString, keywords);
    Project project;
    const QByteArray before = project.hash();
    QProcess host;
    host.start(QStringLiteral(PLIB_HOST), {"--script-language", keywords, "--script", "-", project.path});
    QVERIFY(host.waitForFinished(30000));
    QCOMPARE(host.exitCode(), 0);
    QVERIFY(matchesReference(QString::fromUtf8(host.readAllStandardOutput()), "demo-" + keywords + ".grav"));
    QCOMPARE(project.hash(), before);
}

void TestHost::statesKeptAcrossStarts()
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
        QCOMPARE(readFile(host.scriptPath(host.outputPage())), script);
    }
    QVERIFY(script.contains(QLatin1String("SIZE URS SC 0 MARG NO FORM STAN\n")));
    QVERIFY(script.contains(QLatin1String("LC 3")) && !script.contains(QLatin1String("LC 4")));
    VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
    PlibHostDialog host(&doc);
    QVERIFY(radio(host.outputPage(), "FormatGroup", 1)->isChecked());
    QCOMPARE(PlibHostDialog::script(host.outputPage(), true), script);
    QCOMPARE(host.preview()->text(), script);
}

void TestHost::cancelWritesNothing()
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
void TestHost::scriptThatCannotBeWritten()
{
    Project project;
    QVERIFY(QDir(project.dir.path()).mkdir(QStringLiteral("demo.grav")));
    VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
    PlibHostDialog host(&doc);
    changePages(host);
    QString said;
    QTimer::singleShot(0, &host, &QDialog::accept);
    QTimer::singleShot(50, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            said = box->text();
            box->accept();
        }
    });
    QCOMPARE(host.exec(), int(QDialog::Accepted));
    QVERIFY2(said.contains(QDir::toNativeSeparators(project.dir.filePath("demo.grav"))) &&
                 said.contains(QLatin1String("The project was saved.")),
             qPrintable(said));
    VKD_H_ZOBDoc reopened(project.path, VKD_H_ZOBDoc::OpenExisting);
    PlibHostDialog again(&reopened);
    QVERIFY(radio(again.outputPage(), "FormatGroup", 1)->isChecked());
}

QTEST_MAIN(TestHost)
#include "tst_host.moc"

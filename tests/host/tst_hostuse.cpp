// The host as a new user meets it: the plots switched on above an output page, a new design row
// that comes into sight, and what the two programs say and return on bad input.
#include "ContentTagSwitch.h"
#include "PlibHostDialog.h"
#include "demoproject.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_P_WidgetGraphicalOutput.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <newproject.h>

#include <QCryptographicHash>
#include <QProcess>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

namespace {

QStringList captions(VKD_P_WidgetGraphicalOutput* page)
{
    QStringList texts;
    auto* tree = page->findChild<QTreeWidget*>();
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        texts << (*it)->text(0);
    return texts;
}

QTreeWidgetItem* plot(VKD_P_WidgetGraphicalOutput* page, const QString& caption)
{
    auto* tree = page->findChild<QTreeWidget*>();
    const auto found = tree->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
    return found.value(0);
}

QByteArray hashOf(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256)
                                       : QByteArray("<none>");
}

} // namespace

class TestHostUse : public QObject
{
    Q_OBJECT
private slots:
    void contentSwitch_data();
    void contentSwitch();
    void contentChoiceKept();
    void newRowComesIntoSight();
    void badInput_data();
    void badInput();
};

void TestHostUse::contentSwitch_data()
{
    QTest::addColumn<bool>("split");
    QTest::addColumn<int>("choice");
    QTest::addColumn<QStringList>("offered");
    QTest::addColumn<QStringList>("notOffered");
    QTest::newRow("prestressing, graphical output")
        << false << int(ContentTagSwitch::Prestressing)
        << QStringList{"Prestressing", "Tendons in quad elements", "Tendons in beams", "Prestressing force"}
        << QStringList{"Brick elements", "Section cuts"};
    QTest::newRow("section cuts, graphical output")
        << false << int(ContentTagSwitch::SectionCuts) << QStringList{"Position of the cuts", "Section cuts"}
        << QStringList{"Tendons in quad elements"};
    // The split page offers the structure of bricks, not their results.
    QTest::newRow("bricks, page splitting")
        << true << int(ContentTagSwitch::Bricks) << QStringList{"Brick elements"} << QStringList{"Bricks"};
}

// A click offers the plots of that content at once, a click on "What the model holds" takes
// them away again; the preview follows.
void TestHostUse::contentSwitch()
{
    QFETCH(bool, split);
    QFETCH(int, choice);
    QFETCH(QStringList, offered);
    QFETCH(QStringList, notOffered);
    Project project;
    VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
    PlibHostDialog host(&doc);
    VKD_P_WidgetGraphicalOutput* page = split ? host.splitPage() : host.outputPage();
    ContentTagSwitch* content = split ? host.splitContent() : host.outputContent();
    QCOMPARE(content->group()->objectName(), QLatin1String(split ? "splitContent" : "outputContent"));
    const QStringList before = captions(page);
    for (const QString& caption : offered + notOffered)
        QVERIFY2(!before.contains(caption), qPrintable(caption));

    content->group()->getRadioButton(choice)->click();
    QCOMPARE(content->choice(), choice);
    const QStringList switched = captions(page);
    for (const QString& caption : offered)
        QVERIFY2(switched.contains(caption), qPrintable(caption));
    for (const QString& caption : notOffered)
        QVERIFY2(!switched.contains(caption), qPrintable(caption));
    // The other page keeps to its model.
    QCOMPARE(captions(split ? host.outputPage() : host.splitPage()).contains(offered.first()), false);

    content->group()->getRadioButton(ContentTagSwitch::ModelOnly)->click();
    QCOMPARE(captions(page), before);
}

// The choice goes into the project with OK, and comes back before the tree's choice, so that a
// ticked plot of switched-on content stays ticked and in the script.
void TestHostUse::contentChoiceKept()
{
    Project project;
    const QString tendonLine = QStringLiteral("TEND QUAD GEOM YES NUMB YES");
    QString script;
    {
        VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
        PlibHostDialog host(&doc);
        host.outputContent()->group()->getRadioButton(ContentTagSwitch::Prestressing)->click();
        QTreeWidgetItem* tendons = plot(host.outputPage(), QStringLiteral("Tendons in quad elements"));
        QVERIFY(tendons);
        tendons->setCheckState(0, Qt::Checked);
        script = PlibHostDialog::script(host.outputPage(), true);
        QVERIFY(script.contains(tendonLine));
        QString error;
        QCOMPARE(host.save(&error), PlibHostDialog::Saved);
    }
    VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
    PlibHostDialog host(&doc);
    QCOMPARE(host.outputContent()->choice(), int(ContentTagSwitch::Prestressing));
    QVERIFY(host.outputContent()->group()->getRadioButton(ContentTagSwitch::Prestressing)->isChecked());
    QCOMPARE(host.splitContent()->choice(), int(ContentTagSwitch::ModelOnly));
    QCOMPARE(PlibHostDialog::script(host.outputPage(), true), script);
}

// However many rows the table has, a new one is current on its type cell and visible, and the
// rows the user selected stay selected.
void TestHostUse::newRowComesIntoSight()
{
    Project project;
    VKD_H_ZOBDoc doc(project.path, VKD_H_ZOBDoc::OpenExisting);
    PlibHostDialog host(&doc);
    host.resize(900, 480);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    auto* table = host.designPage()->findChild<QTableWidget*>();
    auto* newButton = host.designPage()->findChild<QAbstractButton*>(QStringLiteral("btnNew"));
    QVERIFY(table && newButton);
    table->selectRow(2);
    const int typeColumn = 1;
    bool scrolled = false;
    for (int added = 1; added <= 8; ++added) {
        newButton->click();
        QCoreApplication::processEvents();
        const int last = table->rowCount() - 1;
        QCOMPARE(table->currentRow(), last);
        QCOMPARE(table->currentColumn(), typeColumn);
        const QRect cell = table->visualRect(table->model()->index(last, typeColumn));
        QVERIFY2(table->viewport()->rect().contains(cell), qPrintable(QStringLiteral("row %1").arg(last)));
        scrolled = scrolled || table->verticalScrollBar()->value() > 0;
        QCOMPARE(table->selectionModel()->selectedRows().size(), 1);
        QCOMPARE(table->selectionModel()->selectedRows().first().row(), 2);
    }
    // Else the table was tall enough for all rows, and nothing above was shown.
    QVERIFY(scrolled);
}

void TestHostUse::badInput_data()
{
    // "@" stands for a damaged project file in the test's folder, "%" for the demo project,
    // "~" for a folder that is not there. Usage errors (2) name the option; failures (3) give
    // one line naming the file.
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said");
    const QString host = QStringLiteral(PLIB_HOST);
    const QString tool = QStringLiteral(PROJECT_TOOL);
    QTest::newRow("host, keywords without a value")
        << host << QStringList{"@", "--script-language"} << 2 << "--script-language needs a value";
    QTest::newRow("host, damaged project")
        << host << QStringList{"--script", "-", "@"} << 3 << "@ is not a project file.";
    QTest::newRow("host, batch run on a project not made yet")
        << host << QStringList{"--script", "-", "none.vkd"} << 3
        << "The project file none.vkd does not exist.";
    QTest::newRow("host, script into a missing folder")
        << host << QStringList{"--script", "~/s.grav", "%"} << 3 << "cannot write the script to ~/s.grav";
    QTest::newRow("tool, unknown command") << tool << QStringList{"show", "@"} << 2 << "usage: plib-project";
    QTest::newRow("tool, keys that are no numbers, checked before the file")
        << tool << QStringList{"dump", "~/p.vkd", "200", "six"} << 2 << "usage: plib-project";
    QTest::newRow("tool, create with two files")
        << tool << QStringList{"create", "a.vkd", "b.vkd"} << 2 << "usage: plib-project";
    QTest::newRow("tool, model of a damaged project")
        << tool << QStringList{"model", "@"} << 3 << "plib-project: @ is not a project file.";
    QTest::newRow("tool, create in a missing folder")
        << tool << QStringList{"create", "~/p.vkd"} << 3 << "The project file ~/p.vkd cannot be created";
}

void TestHostUse::badInput()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, said);
    QTemporaryDir dir;
    const QString damaged = dir.filePath(QStringLiteral("damaged.vkd"));
    const QString missing = dir.filePath(QStringLiteral("missing"));
    {
        QFile f(damaged);
        QVERIFY(f.open(QIODevice::WriteOnly) && f.write("not a project\n") > 0);
    }
    const QString demo = dir.filePath(QStringLiteral("demo.vkd"));
    QString error;
    if (arguments.contains(QStringLiteral("%")))
        QVERIFY2(createDemoProject(demo, &error), qPrintable(error));
    const QByteArray before = hashOf(damaged);
    const QByteArray demoBefore = hashOf(demo);
    said.replace(QLatin1Char('@'), damaged).replace(QLatin1Char('~'), missing);
    arguments.replaceInStrings(QStringLiteral("@"), damaged);
    arguments.replaceInStrings(QStringLiteral("%"), demo);
    arguments.replaceInStrings(QStringLiteral("~"), missing);

    QProcess run;
    run.setWorkingDirectory(dir.path());
    run.start(program, arguments);
    QVERIFY(run.waitForFinished(30000));
    const QString err = QString::fromLocal8Bit(run.readAllStandardError());
    QCOMPARE(run.exitCode(), status);
    QVERIFY2(err.contains(said), qPrintable(err));
    if (status == 3)
        QCOMPARE(err.count(QLatin1Char('\n')), 1);
    QVERIFY(run.readAllStandardOutput().isEmpty());
    // Nothing made, nothing changed.
    QCOMPARE(hashOf(damaged), before);
    QCOMPARE(hashOf(demo), demoBefore);
    QVERIFY(!QFileInfo::exists(missing));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::NoDotAndDotDot).size(),
             QFileInfo::exists(demo) ? 2 : 1);
}

QTEST_MAIN(TestHostUse)
#include "tst_hostuse.moc"

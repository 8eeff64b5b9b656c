// The host program: its dialog keeps the user's work on OK only, and the program opens a
// project, takes a picture of its dialog and refuses what it does not understand.
#include "pagedriver.h"

#include "PlibHostDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_Ok.h>
#include <demomodel.h>
#include <design.h>
#include <tagZOB_QUAD_RIM.h>

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <cstring>
#include <map>
#include <memory>

namespace {

struct DemoProject
{
    DemoProject()
    {
        doc = std::make_unique<VKD_H_ZOBDoc>(path());
        writeDemoModel(doc->index());
        writeDemoDesign(*doc);
    }
    QString path() const { return dir.filePath(QStringLiteral("demo.vkd")); }

    QTemporaryDir dir;
    std::unique_ptr<VKD_H_ZOBDoc> doc;
};

// Design type of each group in the project.
std::map<int, int> typesByGroup(int index)
{
    const QByteArray records = designRecords(index);
    std::map<int, int> types;
    for (int at = 0; at + 212 <= records.size(); at += 212) {
        tagZOB_QUAD_RIM r;
        std::memcpy(&r, records.constData() + at, sizeof r);
        types[r.group] = r.type;
    }
    return types;
}

QTableWidget* tableOf(PlibHostDialog& dialog)
{
    return dialog.designPage()->findChild<QTableWidget*>(QStringLiteral("table"));
}

int runHost(const QStringList& arguments, QString* output = nullptr)
{
    QProcess host;
    host.start(QStringLiteral(PLIB_HOST), arguments);
    if (!host.waitForFinished(30000))
        return -1;
    if (output)
        *output = QString::fromLocal8Bit(host.readAllStandardOutput() + host.readAllStandardError());
    return host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
}

} // namespace

class TestPlibHost : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void okAndCancel_data();
    void okAndCancel();
    void rowsWithoutGroups();
    void screenshot();
    void refusedCommandLines_data();
    void refusedCommandLines();
};

void TestPlibHost::initTestCase()
{
    vkd_lib_setvalue(102, 1);
}

void TestPlibHost::okAndCancel_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("typeOfGroup3");
    QTest::newRow("OK") << "ok" << int(QDialog::Accepted) << 0;
    QTest::newRow("Cancel") << "cancel" << int(QDialog::Rejected) << 2;
}

void TestPlibHost::okAndCancel()
{
    QFETCH(QString, button);
    QFETCH(int, result);
    QFETCH(int, typeOfGroup3);
    DemoProject project;
    const std::map<int, int> before = typesByGroup(project.doc->index());
    QCOMPARE(before, (std::map<int, int>{{-1, 1}, {1, 1}, {2, 1}, {3, 2}, {4, 3}}));

    PlibHostDialog dialog(project.doc.get());
    QCOMPARE(dialog.tabWidget()->widget(0), dialog.designPage());
    dialog.resize(1400, 600);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTableWidget* table = tableOf(dialog);
    QCOMPARE(table->rowCount(), 4);
    QVERIFY(chooseType(table, 2, QStringLiteral("No design")));

    auto* press = dialog.buttonRow()->findChild<QPushButton*>(button);
    QVERIFY(press);
    QTest::mouseClick(press, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), result);
    std::map<int, int> expected = before;
    expected[3] = typeOfGroup3;
    QCOMPARE(typesByGroup(project.doc->index()), expected);
}

void TestPlibHost::rowsWithoutGroups()
{
    DemoProject project;
    const QByteArray before = designRecords(project.doc->index());
    PlibHostDialog dialog(project.doc.get());
    dialog.resize(1400, 600);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTableWidget* table = tableOf(dialog);
    dialog.designPage()->findChild<QPushButton*>(QStringLiteral("btnNew"))->click();
    QCOMPARE(table->rowCount(), 5);
    QVERIFY(chooseType(table, 1, QStringLiteral("Circular")));

    {
        BoxAnswerer stay(QMessageBox::No);
        QTest::mouseClick(dialog.buttonRow()->cmdOk(), Qt::LeftButton);
        QVERIFY(stay.seen);
    }
    QVERIFY(dialog.isVisible());
    QCOMPARE(designRecords(project.doc->index()), before);

    BoxAnswerer leave(QMessageBox::Yes);
    QTest::mouseClick(dialog.buttonRow()->cmdOk(), Qt::LeftButton);
    QVERIFY(leave.seen);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    // The row without groups is lost; the other rows are written.
    QCOMPARE(typesByGroup(project.doc->index()),
             (std::map<int, int>{{-1, 1}, {1, 4}, {2, 4}, {3, 2}, {4, 3}}));
}

void TestPlibHost::screenshot()
{
    DemoProject project;
    const QByteArray before = designRecords(project.doc->index());
    const QString png = project.dir.filePath(QStringLiteral("host.png"));
    QString output;
    QCOMPARE(runHost({QStringLiteral("--lang"), QStringLiteral("de"), QStringLiteral("--screenshot"), png,
                      project.path()},
                     &output),
             0);
    const QImage picture(png);
    QVERIFY2(!picture.isNull(), qPrintable(output));
    // The page asks for 890 pixels at least; the dialog adds its frame.
    QVERIFY(picture.width() > 890);
    QVERIFY(picture.height() > 200);
    QCOMPARE(designRecords(project.doc->index()), before);
}

void TestPlibHost::refusedCommandLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("unknown language") << QStringList{"--lang", "fr", "x.vkd"} << 2;
    QTest::newRow("screenshot without a file") << QStringList{"x.vkd", "--screenshot"} << 2;
    QTest::newRow("two projects") << QStringList{"a.vkd", "b.vkd"} << 2;
    QTest::newRow("unknown option") << QStringList{"--verbose"} << 2;
    QTest::newRow("project that does not exist")
        << QStringList{"--screenshot", "x.png", "/nonexistent/x.vkd"} << 1;
}

void TestPlibHost::refusedCommandLines()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QString output;
    QCOMPARE(runHost(arguments, &output), exitCode);
    QVERIFY(
        output.contains(exitCode == 2 ? QStringLiteral("usage: plib-host") : QStringLiteral("plib-host: ")));
}

QTEST_MAIN(TestPlibHost)
#include "tst_plibhost.moc"

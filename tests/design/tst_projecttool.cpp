// The design records as the project tool shows them, for the demo project and odd records.
#include "textdiff.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_q.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString runTool(const QStringList& args)
{
    QProcess tool;
    tool.start(QStringLiteral(PROJECT_TOOL), args);
    if (!tool.waitForFinished(30000) || tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0)
        return QStringLiteral("plib-project failed: ") + QString::fromUtf8(tool.readAllStandardError());
    return QString::fromUtf8(tool.readAllStandardOutput());
}

} // namespace

class TestProjectTool : public QObject
{
    Q_OBJECT
private slots:
    void demoProject();
    void oddRecords();
};

void TestProjectTool::demoProject()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("demo.vkd"));
    QCOMPARE(runTool({QStringLiteral("create"), path}), QStringLiteral("created %1\n").arg(path));
    QVERIFY(
        compareWithReference(runTool({QStringLiteral("design"), path}), QStringLiteral("demo-design.txt")));
}

void TestProjectTool::oddRecords()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("odd.vkd"));
    QString out;
    {
        VKD_H_ZOBDoc doc(path);
        QVERIFY(doc.isValid());
    }
    out += runTool({QStringLiteral("design"), path});
    {
        VKD_H_ZOBDoc doc(path);
        // A secondary group of another origin, and a record cut short after ten words.
        qint32 words[53] = {};
        words[0] = 0x20204241; // "AB"
        words[1] = 2;
        words[2] = 4;
        words[4] = 11;
        int length = 212;
        vkd_zob_put(doc.index(), 200, 6, words, &length, 0);
        words[0] = 7;
        words[1] = 0;
        words[4] = 0;
        length = 40;
        vkd_zob_put(doc.index(), 200, 6, words, &length, 1);
    }
    out += runTool({QStringLiteral("design"), path});
    QVERIFY(compareWithReference(out, QStringLiteral("odd-design.txt")));
}

QTEST_GUILESS_MAIN(TestProjectTool)
#include "tst_projecttool.moc"

#include "GraphicalOutputTreeWidget.h"
#include "demomodel.h"
#include "testsupport.h"
#include "treetext.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

// The shipped catalogue on the results page of the demo project in its default choice, with the
// project's load cases as rows (design combinations as rows of design cases).
class TestDemoTree : public QObject
{
    Q_OBJECT
private slots:
    void treeAndScriptLines()
    {
        QTemporaryDir dir;
        VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("demo.vkd")));
        QVERIFY(doc.isValid());
        writeDemoModel(doc.index());
        std::vector<LoadcaseInformation> rows;
        for (const auto& lc :
             vkd::dbo::readAll<vkd::dbo::LoadCaseRecord>(doc.index(), vkd::dbo::KeyLoadCases))
            rows.push_back({lc.kind == 4 ? 2 : 1, lc.number,
                            QStringLiteral("%1 : %2").arg(lc.number).arg(QString::fromUtf8(lc.title))});
        VKD_H_PluginParameter parameter(&doc);
        GraphicalOutputTreeWidget tree(nullptr, 1, &parameter, "m_list");
        tree.setUsedNumbersAndNames(rows);
        QString text;
        for (int i = 0; i < tree.topLevelItemCount(); ++i)
            text += listing(tree.topLevelItem(i));
        QVERIFY(matchesReference(text, QStringLiteral("demo-tree.txt")));
        for (bool english : {true, false}) {
            std::vector<QString> lines;
            tree.collectScriptLines(lines, english);
            text.clear();
            for (const QString& line : lines)
                text += line + QLatin1Char('\n');
            QVERIFY(matchesReference(text, english ? QStringLiteral("demo-lines-en.txt")
                                                   : QStringLiteral("demo-lines-de.txt")));
        }
    }
};

QTEST_MAIN(TestDemoTree)
#include "tst_demotree.moc"

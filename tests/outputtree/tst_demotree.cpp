#include "GraphicalOutputTreeWidget.h"
#include "demomodel.h"
#include "testsupport.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

QChar stateMark(const QTreeWidgetItem* item)
{
    return QLatin1String("-~+").at(item->checkState(0));
}

// Captions and plots one a line, indented by level, each with its state; the rows of a plot by
// number and state behind it.
QString listing(const QTreeWidget& tree)
{
    QString out;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* top = tree.topLevelItem(i);
        out += stateMark(top) + QLatin1Char(' ') + top->text(0) + QLatin1Char('\n');
        for (int j = 0; j < top->childCount(); ++j) {
            const QTreeWidgetItem* caption = top->child(j);
            out += QLatin1String("  ") + stateMark(caption) + QLatin1Char(' ') + caption->text(0) + QLatin1Char('\n');
            for (int k = 0; k < caption->childCount(); ++k) {
                const auto* plot = static_cast<const GraphicalOutputTreeWidgetItem*>(caption->child(k));
                out += QLatin1String("    ") + stateMark(plot) + QLatin1Char(' ') + plot->text(0);
                if (plot->childCount() > 0)
                    out += QLatin1String("  rows");
                for (int r = 0; r < plot->childCount(); ++r) {
                    const auto* row = static_cast<const GraphicalOutputTreeWidgetItem*>(plot->child(r));
                    out += QLatin1Char(' ') + QString::number(row->number) + stateMark(row);
                }
                out += QLatin1Char('\n');
            }
        }
    }
    return out;
}

} // namespace

// The shipped catalogue on the results page of the demo project, with the project's load cases
// as rows (design combinations as the rows of design cases), in the default choice.
class TestDemoTree : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void defaultTree();
    void scriptLines_data();
    void scriptLines();

private:
    QTemporaryDir m_dir;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
    std::unique_ptr<VKD_H_PluginParameter> m_parameter;
    std::unique_ptr<GraphicalOutputTreeWidget> m_tree;
};

void TestDemoTree::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_doc = std::make_unique<VKD_H_ZOBDoc>(m_dir.filePath(QStringLiteral("demo.vkd")));
    QVERIFY(m_doc->isValid());
    writeDemoModel(m_doc->index());
    std::vector<LoadcaseInformation> rows;
    for (const vkd::dbo::LoadCaseRecord& lc : vkd::dbo::readAll<vkd::dbo::LoadCaseRecord>(m_doc->index(), vkd::dbo::KeyLoadCases))
        rows.push_back({lc.kind == 4 ? 2 : 1, lc.number,
                        QStringLiteral("%1 : %2").arg(lc.number).arg(QString::fromUtf8(lc.title))});
    m_parameter = std::make_unique<VKD_H_PluginParameter>(m_doc.get());
    m_tree = std::make_unique<GraphicalOutputTreeWidget>(nullptr, 1, m_parameter.get(), "m_list");
    m_tree->setUsedNumbersAndNames(rows);
}

void TestDemoTree::defaultTree()
{
    QVERIFY(matchesReference(listing(*m_tree), QStringLiteral("demo-tree.txt")));
}

void TestDemoTree::scriptLines_data()
{
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("reference");
    QTest::newRow("English keywords") << true << "demo-lines-en.txt";
    QTest::newRow("German keywords") << false << "demo-lines-de.txt";
}

void TestDemoTree::scriptLines()
{
    QFETCH(bool, english);
    QFETCH(QString, reference);
    std::vector<QString> lines;
    m_tree->collectScriptLines(lines, english);
    QString text;
    for (const QString& line : lines)
        text += line + QLatin1Char('\n');
    QVERIFY(matchesReference(text, reference));
}

QTEST_MAIN(TestDemoTree)
#include "tst_demotree.moc"

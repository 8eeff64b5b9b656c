#include "GraphicalOutputTreeWidget.h"
#include "catalogue.h"
#include "testsupport.h"

#include <VKD_H_PluginParameter.h>

#include <QtTest>

#include <memory>

// A choice applied to the output tree: worked out for the leaves and set where it differs, in
// the view or, when a rebuild keeps it, before the items enter the view.

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

QString shape(const QTreeWidgetItem* item)
{
    QString out = item->text(0) + QLatin1String("-~+").at(item->checkState(0));
    QStringList children;
    for (int i = 0; i < item->childCount(); ++i)
        children << shape(item->child(i));
    return children.isEmpty() ? out
                              : out + QLatin1Char('(') + children.join(QLatin1Char(' ')) + QLatin1Char(')');
}

QByteArray rec(const char* title1, const char* title2, const char* title3, const char* cases = "none",
               int preselect = 0)
{
    return QStringLiteral("1|122|0|%1|%2|%3|All|0|%4|%5|0| |0|BILD|PICT\n")
        .arg(QLatin1String(title1), QLatin1String(title2), QLatin1String(title3), QLatin1String(cases))
        .arg(preselect)
        .toUtf8();
}

// Row 1 twice, so that a number names two rows; b picks its first row by default.
struct Tree
{
    Tree()
    {
        catalogueList() =
            parseText(rec("@T01 T1", "@C01 C1", "@P01 a") + rec("@T01 T1", "@C01 C1", "@P02 b", "last-l", 1) +
                      rec("@T01 T1", "@C01 C1", "@P03 c", "last-l") + rec("@T01 T1", "@C02 C2", "@P04 d") +
                      rec("@T02 T2", "@C03 C3", "@P05 e"));
        catalogueLanguage = vkd_lib_getvalue(kSettingLanguage);
        view = std::make_unique<GraphicalOutputTreeWidget>(nullptr, 1, &parameter, "m_list");
        view->setUsedNumbersAndNames({{1, 1, "r1"}, {1, 1, "s1"}, {1, 2, "r2"}});
    }
    QString shape() const
    {
        QStringList tops;
        for (int i = 0; i < view->topLevelItemCount(); ++i)
            tops << ::shape(view->topLevelItem(i));
        return tops.join(QLatin1Char(' '));
    }

    VKD_H_PluginParameter parameter;
    std::unique_ptr<GraphicalOutputTreeWidget> view;
};

} // namespace

class TestChoice : public QObject
{
    Q_OBJECT
private slots:
    void applied_data();
    void applied();
    void ownChoiceChangesNothing();
};

void TestChoice::applied_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shape");
    QTest::newRow("of two rows of a number the last counts")
        << "Partially:@T01   @C01   @P02 : 1,\n"
        << "T1~(C1~(a- b~(r1- s1+ r2-) c-(r1- s1- r2-)) C2-(d-)) T2-(C3-(e-))";
    QTest::newRow("a number twice checks its row once")
        << "Partially:@T01   @C01   @P02 : 2,2,\n"
        << "T1~(C1~(a- b~(r1- s1- r2+) c-(r1- s1- r2-)) C2-(d-)) "
           "T2-(C3-(e-))";
    QTest::newRow("a later line clears what an earlier one checked")
        << "Partially:@T01   @C01   @P02 : 1,2,\nUnchecked:@T01\nPartially:@T01   @C01   @P03 : 2,\n"
        << "T1~(C1~(a- b-(r1- s1- r2-) c~(r1- s1- r2+)) C2-(d-)) T2-(C3-(e-))";
    QTest::newRow("a caption by numbers takes its last plot of number 0 with all rows")
        << "Partially:@T01   @C01 : 0,\n"
        << "T1~(C1~(a- b-(r1- s1- r2-) c+(r1+ s1+ r2+)) C2-(d-)) T2-(C3-(e-))";
    QTest::newRow("a checked top, then one row of it unchecked")
        << "Checked:@T01\nPartially:@T01   @C01   @P03 : 1,\n"
        << "T1~(C1~(a+ b+(r1+ s1+ r2+) c~(r1- s1+ r2-)) C2+(d+)) T2-(C3-(e-))";
}

// The same choice whether applied in the view or carried through a rebuild before the items
// enter it, which starts again from the defaults (b's first row).
void TestChoice::applied()
{
    QFETCH(QString, text);
    QFETCH(QString, shape);
    Tree t;
    t.view->applySelection(text);
    QCOMPARE(t.shape(), shape);
    t.view->rebuild(false);
    QCOMPARE(t.shape(), shape);
}

// Applying the choice the tree shows changes no item; one that differs in one row changes that
// row and the items above it whose state follows.
void TestChoice::ownChoiceChangesNothing()
{
    Tree t;
    t.view->applySelection(QStringLiteral("Checked:@T01\nPartially:@T01   @C01   @P03 : 1,\n"));
    QStringList changed;
    connect(t.view.get(), &QTreeWidget::itemChanged,
            [&](QTreeWidgetItem* item) { changed << item->text(0); });
    t.view->applySelection(t.view->selectionText());
    QCOMPARE(changed, QStringList());
    t.view->applySelection(QStringLiteral("Checked:@T01\nPartially:@T01   @C01   @P03 : 1,2,\n"));
    QCOMPARE(changed, (QStringList{"r2"}));
    t.view->applySelection(QStringLiteral("Checked:@T01\n"));
    changed.sort();
    QCOMPARE(changed, (QStringList{"C1", "T1", "c", "r1", "r2"}));
}

QTEST_MAIN(TestChoice)
#include "tst_choice.moc"

// The group dialogs of the suite driven by clicks on a project with the demo model; the packed
// names of secondary groups; the pick left in a project; the icons and combo ids they rely on.
#include <VKD_H_SecondaryGroupDialog.h>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <demomodel.h>
#include <vkd_dbo.h>
#include <vkd_h_grouppick.h>
#include <vkd_qt_icon.h>

#include "groupdialogdriver.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <functional>
#include <memory>

using GroupList = std::vector<int>;
Q_DECLARE_METATYPE(GroupList)

namespace {

int packed(const char* name)
{
    int32_t number = -1;
    vkd::dbo::packSecondaryGroupName(QString::fromLatin1(name), &number);
    return number;
}

struct Project
{
    explicit Project(int model)
    {
        doc = std::make_unique<VKD_H_ZOBDoc>(dir.filePath(QStringLiteral("p.vkd")));
        if (model == 1)
            writeDemoModel(doc->index());
        else if (model == 2)
            writeDemoModel(doc->index(), DemoSecondaryGroups::LeftOut);
    }
    QTemporaryDir dir;
    std::unique_ptr<VKD_H_ZOBDoc> doc;
};

} // namespace

class TestGroupDialogs : public QObject
{
    Q_OBJECT
private slots:
    void secondaryGroupNames_data();
    void secondaryGroupNames();
    void primaryDialog_data();
    void primaryDialog();
    void secondaryDialog();
    void modelPick();
    void modelQueries_data();
    void modelQueries();
    void comboIdsWithoutId();
    void groupIcons();
};

void TestGroupDialogs::secondaryGroupNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint32>("bits");
    QTest::addColumn<QString>("shown");
    // bits 0: the name cannot be packed; then shown is what those bits print.
    QTest::newRow("two letters, blank padded") << "AB" << 0x20204241u << "AB";
    QTest::newRow("four letters") << "EDGE" << 0x45474445u << "EDGE";
    QTest::newRow("inner blank") << "A B" << 0x20422041u << "A B";
    QTest::newRow("empty") << "" << 0u << "";
    QTest::newRow("five letters") << "ABCDE" << 0u << "";
    QTest::newRow("leading blank") << " AB" << 0u << "";
    QTest::newRow("umlaut") << QStringLiteral("Ä") << 0u << "";
    QTest::newRow("stored: zero ends the name") << "" << 0x43004241u << "AB";
    QTest::newRow("stored: byte above ASCII") << "" << 0x2020E941u << "A\\xe9";
    QTest::newRow("stored: control bytes") << "" << 0x7F410720u << "\\x07A\\x7f";
}

void TestGroupDialogs::secondaryGroupNames()
{
    QFETCH(QString, name);
    QFETCH(quint32, bits);
    QFETCH(QString, shown);
    if (!name.isEmpty() || bits == 0) {
        int32_t number = 0;
        QCOMPARE(vkd::dbo::packSecondaryGroupName(name, &number), bits != 0);
        if (bits == 0)
            return;
        QCOMPARE(quint32(number), bits);
        QVERIFY(number >= vkd::dbo::kFirstSecondaryGroup);
    }
    QCOMPARE(vkd::dbo::secondaryGroupName(int32_t(bits)), shown);
}

void TestGroupDialogs::primaryDialog_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<int>("result");
    QTest::addColumn<GroupList>("confirmed");
    const int sx = packed("SX");
    QTest::newRow("OK keeps the stale and the secondary group") << "ok" << 1 << GroupList{3, 99, sx};
    QTest::newRow("select none") << "selectNone ok" << 1 << GroupList{};
    QTest::newRow("select all the filter shows")
        << "filter:bay selectAll ok" << 1 << GroupList{1, 2, 3, 4, 99, sx};
    QTest::newRow("filter by number, then none") << "filter:99 selectNone ok" << 1 << GroupList{3, sx};
    QTest::newRow("cancel") << "cancel" << 0 << GroupList{3, 99, sx};
    QTest::newRow("pick in model") << "pickInModel" << 6 << GroupList{3, 99, sx};
}

void TestGroupDialogs::primaryDialog()
{
    QFETCH(QString, steps);
    QFETCH(int, result);
    QFETCH(GroupList, confirmed);
    Project project(1);
    GroupList checked{3, 99, packed("SX")};
    vkd_h_storeGroupPick(project.doc->index(), {7});
    VKD_H_SelGRP_Dialog dialog(false, 200, project.doc.get(), checked, {4, 10, 99}, nullptr, nullptr,
                               "Group Selection");
    QCOMPARE(dialog.objectName(), QStringLiteral("Group Selection"));
    QString seen;
    answerModal(&seen, steps);
    QCOMPARE(dialog.exec(), result);
    QCOMPARE(seen, QStringLiteral("- 1|Slab bay A|\n"
                                  "- 2|Slab bay B|\n"
                                  "x 3|Slab bay C|\n"
                                  "- 4|Slab bay D|used in another row\n"
                                  "- 10|Edge beams|used in another row\n"
                                  "- 11|Columns|\n"
                                  "x 99||not in the model; used in another row\n"
                                  "x SX||secondary group"));
    GroupList got{-5};
    QCOMPARE(dialog.getChecked(got), int(confirmed.size()));
    if (result == 1)
        QCOMPARE(got, confirmed);
    // Leaving for a pick forgets an older one; staying keeps it.
    GroupList pick;
    QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(project.doc->index(), pick), result == 6 ? -1 : 1);
}

void TestGroupDialogs::secondaryDialog()
{
    Project project(1);
    const GroupList checked{3, packed("SY")};
    VKD_H_SecondaryGroupDialog dialog(project.doc.get(), checked, {packed("EDGE")}, nullptr);
    QString seen;
    answerModal(&seen, QStringLiteral("filter:edge selectAll ok"));
    QCOMPARE(dialog.exec(), 1);
    QCOMPARE(seen, QStringLiteral("- EDGE|Slab edge|used in another row\n"
                                  "- SX|Strip over the support, x|\n"
                                  "x SY|Strip over the support, y|\n"
                                  "x 3||group, not secondary"));
    GroupList got;
    dialog.getChecked(got);
    QCOMPARE(got, (GroupList{3, packed("SY"), packed("EDGE")}));
}

void TestGroupDialogs::modelPick()
{
    Project project(1);
    const int index = project.doc->index();
    GroupList groups{42};
    QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(index, groups), -1);
    QCOMPARE(groups, GroupList{42});
    vkd_h_storeGroupPick(index, {11, 2, packed("SX")});
    QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(index, groups), 3);
    QCOMPARE(groups, (GroupList{11, 2, packed("SX")}));
    // Reading does not use it up; a pick of nothing leaves none.
    QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(index, groups), 3);
    vkd_h_storeGroupPick(index, {});
    QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(index, groups), -1);
    QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(index + 100, groups), -1);
}

void TestGroupDialogs::modelQueries_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<bool>("groups");
    QTest::addColumn<bool>("secondary");
    QTest::newRow("demo model") << 1 << true << true;
    QTest::newRow("without secondary groups") << 2 << true << false;
    QTest::newRow("empty project") << 0 << false << false;
}

void TestGroupDialogs::modelQueries()
{
    QFETCH(int, model);
    Project project(model);
    int count = -1;
    QTEST(vkd::dbo::hasGroups(project.doc->index(), nullptr), "groups");
    QTEST(vkd::dbo::hasSgrp(project.doc->index(), nullptr), "secondary");
    QTEST(vkd::dbo::hasSgrp(project.doc->index(), &count), "secondary");
    QCOMPARE(count, model == 1 ? 3 : 0);
}

void TestGroupDialogs::comboIdsWithoutId()
{
    VKD_QT4_ComboBox combo(nullptr, "combo");
    combo.addItem(QIcon(), QStringLiteral("None"), QVariant());
    combo.addItem(QIcon(), QStringLiteral("3;4"), QVariant());
    combo.addItem(QStringLiteral("with id"), 1);
    const int expected[] = {-1, -1, 1};
    for (int i = 0; i < 3; ++i) {
        combo.setCurrentIndex(i);
        QCOMPARE(combo.getCurrentId(), expected[i]);
    }
}

void TestGroupDialogs::groupIcons()
{
    for (int number : {2125, 2126}) {
        const QIcon icon = vkd_qt_icon(number, 32);
        QVERIFY(!icon.isNull());
        QCOMPARE(icon.availableSizes(), (QList<QSize>{QSize(32, 32), QSize(64, 64)}));
        // Drawn for twice the density, not scaled up.
        QCOMPARE(icon.pixmap(QSize(64, 64)).size(), QSize(64, 64));
    }
    QVERIFY(vkd_qt_icon(2127, 32).isNull());
}

QTEST_MAIN(TestGroupDialogs)
#include "tst_groupdialogs.moc"

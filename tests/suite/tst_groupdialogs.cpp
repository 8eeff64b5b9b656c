// The packed names of secondary groups, the pick left in a project, the icons of the group
// buttons. The dialogs themselves are driven through the design page's tests.
#include <QtTest>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>
#include <vkd_h_grouppick.h>
#include <vkd_qt_icon.h>

#include <QTemporaryDir>

using GroupList = std::vector<int>;

class TestGroupDialogs : public QObject
{
    Q_OBJECT
private slots:
    void secondaryGroupNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<quint32>("bits"); // 0: the name cannot be packed
        QTest::addColumn<QString>("shown");
        QTest::newRow("two letters, blank padded") << "AB" << 0x20204241u << "AB";
        QTest::newRow("four letters, inner blank") << "E GE" << 0x45472045u << "E GE";
        QTest::newRow("five letters") << "ABCDE" << 0u << "";
        QTest::newRow("leading blank, umlaut") << QStringLiteral(" Ä") << 0u << "";
        QTest::newRow("stored: byte above ASCII") << "" << 0x2020E941u << "A\\xe9";
        QTest::newRow("stored: control bytes, zero ends") << "" << 0x00410720u << "\\x07A";
    }

    void secondaryGroupNames()
    {
        QFETCH(QString, name);
        QFETCH(quint32, bits);
        int32_t number = 0;
        if (!name.isEmpty()) {
            QCOMPARE(vkd::dbo::packSecondaryGroupName(name, &number), bits != 0);
            QCOMPARE(quint32(number), bits);
        }
        if (bits)
            QTEST(vkd::dbo::secondaryGroupName(int32_t(bits)), "shown");
    }

    void modelPick()
    {
        QTemporaryDir dir;
        VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("p.vkd")));
        GroupList groups{42};
        QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(doc.index(), groups), -1);
        QCOMPARE(groups, GroupList{42});
        vkd_h_storeGroupPick(doc.index(), {11, 2, 0x20205853});
        QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(doc.index(), groups), 3);
        QCOMPARE(groups, (GroupList{11, 2, 0x20205853}));
        vkd_h_storeGroupPick(doc.index(), {});
        QCOMPARE(VKD_H_SelGRP_Dialog::getAniSelectionFromZob(doc.index(), groups), -1);
    }

    void groupIcons()
    {
        for (int number : {2125, 2126}) {
            const QIcon icon = vkd_qt_icon(number, 32);
            QCOMPARE(icon.availableSizes(), (QList<QSize>{QSize(32, 32), QSize(64, 64)}));
            QCOMPARE(icon.pixmap(QSize(64, 64)).size(), QSize(64, 64));
        }
        QVERIFY(vkd_qt_icon(2127, 32).isNull());
    }
};

QTEST_MAIN(TestGroupDialogs)
#include "tst_groupdialogs.moc"

// What the implementation of the radio group emits, of which each form of the exported group
// passes on only a part (the host test shows that part), and what stays when the group goes.
#include "VKD_P_RadioGroupImpl.h"
#include "referencetext.h"
#include "transcript.h"

#include <QPointer>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

class TestRadioGroup : public QObject
{
    Q_OBJECT
private slots:
    void inside()
    {
        // clang-format off
        const char* const scenarios[][2] = {
            {"inside, two buttons: All reports its id", "init use:edit click:2"},
            {"inside, echo output: no text output has no Checked", "echo use:edit click:0 click:2 click:1"},
            {"inside, echo output: reading", "echo use:edit read:checked:m_NoTextOutput read:checked:m_All_A "
                                             "read:selected:m_All"}};
        // clang-format on
        QString out;
        for (const auto& [name, steps] : scenarios)
            out +=
                "== " + QLatin1String(name) + '\n' + radiogrouptest::transcript<VKD_P_RadioGroupImpl>(steps);
        const QString differences = referenceDifferences(out, QStringLiteral("inside.txt"));
        QVERIFY2(differences.isEmpty(), qPrintable('\n' + differences));
    }

    // The buttons belong to the parent: they stay when the group goes, connected to nothing.
    void buttonsStayWithTheirParent()
    {
        QWidget parent;
        QLineEdit used(&parent);
        auto group = std::make_unique<VKD_P_RadioGroup>();
        group->init(&parent);
        group->useWidget(&used);
        group->setSelectedId(VKD_P_RadioGroup::All);
        group.reset();
        const QList<QRadioButton*> buttons = parent.findChildren<QRadioButton*>();
        QCOMPARE(buttons.size(), 2);
        buttons.at(0)->click();
        QVERIFY(buttons.at(0)->isChecked() && !buttons.at(1)->isChecked());
        QVERIFY(!used.isEnabled());
    }

    // The row has no parent of its own: whoever takes it keeps it, and a row nobody took goes with
    // the group. A host that goes first takes the row along, and the group must not touch it then.
    void rowOwnership_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<bool>("rowStays");
        QTest::newRow("never taken: goes with the group") << "none" << false;
        QTest::newRow("in the host's layout: stays") << "layout" << true;
        QTest::newRow("set on a panel: stays") << "panel" << true;
        QTest::newRow("host gone before the group") << "gone" << false;
    }
    void rowOwnership()
    {
        QFETCH(QString, host);
        QFETCH(bool, rowStays);
        auto dialog = std::make_unique<QWidget>();
        auto* outer = new QVBoxLayout(dialog.get());
        auto group = std::make_unique<VKD_P_RadioGroup>();
        group->initEchoOutput(dialog.get());
        const QPointer<QLayout> row = group->layout();
        if (host == QLatin1String("layout") || host == QLatin1String("gone"))
            outer->addLayout(row);
        else if (host == QLatin1String("panel"))
            (new QWidget(dialog.get()))->setLayout(row);
        if (host == QLatin1String("gone"))
            dialog.reset();
        group.reset();
        QCOMPARE(!row.isNull(), rowStays);
        if (rowStays)
            QCOMPARE(row->count(), 4); // three buttons and the spacer
        if (dialog)
            QCOMPARE(dialog->findChildren<QRadioButton*>().size(), 3);
    }
};

QTEST_MAIN(TestRadioGroup)
#include "tst_radiogroup.moc"

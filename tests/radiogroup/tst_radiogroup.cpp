// What the implementation of the radio group emits, of which each form of the exported group
// passes on only a part (the host test shows that part), and what stays when the group goes.
#include "VKD_P_RadioGroupImpl.h"
#include "referencetext.h"
#include "transcript.h"

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
};

QTEST_MAIN(TestRadioGroup)
#include "tst_radiogroup.moc"

#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_TableWidget.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_InfoText.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <vkd_h_fieldcheck.h>

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace {

std::vector<StructRadioButtonGrup> entries(int count, int withWidget = -1)
{
    std::vector<StructRadioButtonGrup> out(count);
    for (int i = 0; i < count; ++i) {
        out[i].text = QStringLiteral("e%1").arg(i);
        out[i].flag = i == withWidget ? 1 : 0;
    }
    return out;
}

} // namespace

class TestSettingsWidgets : public QObject
{
    Q_OBJECT
private slots:
    // Entries are numbered by place; only a click reports; an attached widget lives with its entry.
    void radioChoice()
    {
        VKD_QT_RadioButtonGroup group(QStringLiteral("T"), entries(3, 1), nullptr, "G", Qt::Vertical, -1);
        QComboBox attached, refused;
        group.setWidget(1, &attached);
        group.setWidget(2, &refused);
        std::vector<StructRadioButtonGrup> renamed = entries(3, 1);
        renamed[2].text = QStringLiteral("renamed");
        group.init(renamed);
        QCOMPARE(group.getRadioButton(2)->text(), QStringLiteral("renamed"));
        QCOMPARE(attached.parentWidget(), &group);
        QCOMPARE(refused.parentWidget(), nullptr);
        QSignalSpy clicks(&group, &VKD_QT_RadioButtonGroup::buttWasClicked);
        QCOMPARE(group.selectedButton(), -1);
        QVERIFY(!attached.isEnabled());
        group.setButton(1);
        QCOMPARE(group.selectedButton(), 1);
        QVERIFY(attached.isEnabled());
        group.setButton(7);
        QCOMPARE(group.selectedButton(), 1);
        group.getRadioButton(2)->click();
        QCOMPARE(clicks, (QList<QVariantList>{{2}}));
        QVERIFY(!attached.isEnabled());
    }

    // Refused text shows red with its reason and leaves the last accepted text in force; a decimal
    // comma becomes a point when the user leaves the field.
    void boxedEdit()
    {
        StructBoxedEdit description;
        description.label = QStringLiteral("Size : ");
        description.toolTip = QStringLiteral("The size");
        description.lineEdit = {VKD_H_LE_KIND_REAL,  -1,        2.0, 999.0, 1.0, VKD_H_NOT_SET, 0, QString(),
                                QStringLiteral(","), QString(), {}};
        VKD_H_BoxedLineEdit box(nullptr, &description, "box");
        auto* edit = box.findChild<QLineEdit*>();
        QCOMPARE(box.getText(), QStringLiteral("2"));
        QCOMPARE(edit->toolTip(), QStringLiteral("The size"));

        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("abc"));
        QVERIFY(box.isRefused());
        QCOMPARE(box.getText(), QStringLiteral("2"));
        QCOMPARE(box.shownText(), QStringLiteral("abc"));
        QVERIFY(edit->styleSheet().contains(QStringLiteral("red")));
        QCOMPARE(edit->toolTip(), QStringLiteral("\"abc\" is not a number. 2 stays in use."));

        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("4,5"));
        QVERIFY(!box.isRefused());
        QCOMPARE(edit->toolTip(), QStringLiteral("The size"));
        emit edit->editingFinished();
        QCOMPARE(box.getText(), QStringLiteral("4.5"));

        box.setText(QStringLiteral("1000"));
        QCOMPARE(edit->toolTip(), QStringLiteral("The value must lie between 1 and 999. 4.5 stays in use."));
        box.setText(QString());
        QCOMPARE(edit->toolTip(), QStringLiteral("A value is required. 4.5 stays in use."));
        QCOMPARE(box.getText(), QStringLiteral("4.5"));
        box.setText(QStringLiteral("7,25"));
        QCOMPARE(box.getText(), QStringLiteral("7,25"));
        box.setVal(3.0);
        QCOMPARE(box.getText(), QStringLiteral("3"));
    }

    // The old and the new number of rows, whichever way rows come and go; the box's New button
    // adds a row that becomes the current one, at its first cell.
    void rowCountSignal()
    {
        auto* table = new VKD_H_TableWidget(2, 3);
        VKD_H_TableWidgetBox box(table, QStringLiteral("Rows"), nullptr);
        QSignalSpy counts(table, &VKD_H_TableWidget::signal_rowCountChanged);
        table->insertRow(1);
        table->setRowCount(6);
        table->removeRow(0);
        table->setRowCount(0);
        table->setRowCount(0);
        box.addButton(VKD_H_TableWidgetBox::New, true)->click();
        QCOMPARE(QPoint(table->currentColumn(), table->currentRow()), QPoint(0, 0));
        QStringList seen;
        for (const QList<QVariant>& c : counts)
            seen << QStringLiteral("%1>%2").arg(c.at(0).toInt()).arg(c.at(1).toInt());
        QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("2>3 3>6 6>5 5>0 0>1"));
    }

    // A dialog closed by callDone() for a detour says so once, with its result, when shown again.
    void reopenAfterDetour()
    {
        VKD_QT_Dialog dialog;
        QSignalSpy reopened(&dialog, &VKD_QT_Dialog::isReOpen);
        dialog.callDone(3);
        dialog.show();
        dialog.hide();
        dialog.show();
        QCOMPARE(reopened, (QList<QVariantList>{{3}}));
    }

    // A note lines up with the fields around it: its icon, or its text when it has none, starts
    // at its left edge.
    void noteFlush()
    {
        for (bool icon : {true, false}) {
            VKD_QT_InfoText note(icon, QStringLiteral("Note"));
            note.resize(200, 40);
            note.layout()->activate();
            QCOMPARE(note.findChild<QLabel*>(icon ? "icon" : "text")->x(), 0);
        }
    }
};

QTEST_MAIN(TestSettingsWidgets)
#include "tst_settingswidgets.moc"

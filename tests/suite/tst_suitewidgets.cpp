// The suite's widgets as a user meets them: the unit-aware input field of the project layer, the
// bar combo and the reinforcement calculator; the settings widgets (radio choice, boxed edit,
// table box, dialog, note); the tree that keeps check states in line and the table view; the 3D
// preview: its commands, projection and picking.
#include <AnimatorView.h>
#include <QtTableView.h>
#include <VKD_A_BarDiameterCombo.h>
#include <VKD_A_ReinforcementCalculation.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_TableWidget.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_InfoText.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <VKD_QT_TreeWidget.h>
#include <previewscene.h>
#include <vkd_h_fieldcheck.h>
#include <vkd_h_numbertext.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QtTest>

#include <cmath>
#include <memory>

using namespace vkd::dbo;
using vkd::aniview::DrawItem;

namespace {

const QString kHelp = QStringLiteral("Axial Distance");

struct Field
{
    explicit Field(int code)
        : description(VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(code)),
          edit(nullptr, &description, "field", kHelp, QString(), true)
    {
    }
    StructLineEdit description;
    VKD_H_LineEdit edit;
};

constexpr float kNotSet = -99999.0f;

template <typename T> T* child(QWidget* w, const char* name)
{
    return w->findChild<T*>(QLatin1String(name));
}

std::vector<StructRadioButtonGrup> entries(int count, int withWidget = -1)
{
    std::vector<StructRadioButtonGrup> out(count);
    for (int i = 0; i < count; ++i) {
        out[i].text = QStringLiteral("e%1").arg(i);
        out[i].flag = i == withWidget ? 1 : 0;
    }
    return out;
}

QTreeWidgetItem* item(QTreeWidgetItem* parent, const QString& name, Qt::CheckState state = Qt::Unchecked)
{
    auto* i = new QTreeWidgetItem(parent, QStringList{name});
    i->setCheckState(0, state);
    return i;
}

// A 3 by 2 table of texts "r<row>c<column>" in the suite's table view; the cell 2, 0 is a check box.
struct Table
{
    QStandardItemModel model{3, 2};
    vkd::properties::nextGen::QtTableView view;
    Table()
    {
        for (int r = 0; r < 3; ++r)
            for (int c = 0; c < 2; ++c)
                model.setItem(r, c, new QStandardItem(QStringLiteral("r%1c%2").arg(r).arg(c)));
        model.item(2, 0)->setCheckable(true);
        view.setModel(&model);
        view.setDragDropMode(QAbstractItemView::DropOnly);
        view.resize(400, 200);
        view.show();
    }
};

} // namespace

class TestSuiteWidgets : public QObject
{
    Q_OBJECT
    QTemporaryDir m_dir;

private slots:
    void parseUserNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value"); // NaN: refused
        QTest::newRow("blanks around, sign") << "  -1,5 " << -1.5;
        QTest::newRow("typeset minus") << QString::fromUtf8("\u22122.5") << -2.5;
        QTest::newRow("bare separators") << ",5" << 0.5;
        QTest::newRow("plus and exponent") << "+1,5e3" << 1500.0;
        for (const char* refused :
             {"abc", "1e999", "nan", "inf", "1,234.5", "1.2.3", "1 000", "0x10", "3.5 cm", ""})
            QTest::newRow(qPrintable(QStringLiteral("refused \"%1\"").arg(refused)))
                << refused << double(NAN);
    }

    void parseUserNumber()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        double parsed = -7.0;
        QCOMPARE(vkd_h_parseUserNumber(text, &parsed), !std::isnan(value));
        QCOMPARE(parsed, std::isnan(value) ? -7.0 : value);
    }

    void showsValueInUserUnit_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("unit");
        // clang-format off
        QTest::newRow("direction") << 5 << qDegreesToRadians(90.0) << "90.00" << QString::fromUtf8("\u00B0");
        QTest::newRow("reinforcement") << 1021 << 1.88e-4 << "1.88" << QString::fromUtf8("cm\u00B2/m");
        QTest::newRow("crack width") << 1026 << 0.0003 << "0.30" << "mm";
        QTest::newRow("steel stress") << 1092 << 347800.0 << "347.8" << "MPa";
        QTest::newRow("not set") << 1024 << -99999.0 << "" << "cm";
        // clang-format on
    }

    void showsValueInUserUnit()
    {
        QFETCH(int, code);
        QFETCH(double, value);
        Field f(code);
        f.edit.setVal(value);
        QTEST(f.edit.text(), "text");
        QCOMPARE(f.edit.cursorPosition(), 0); // a long number shows its start
        QVERIFY(f.edit.hasAcceptableInput());
        QCOMPARE(f.edit.toolTip(), kHelp);
        QTEST(f.edit.findChild<QLabel*>(QStringLiteral("unit"))->text(), "unit");
    }

    // Limits of docs/units.md, typed in the user's unit at and beyond their ends.
    void readsTypedText_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value"); // base units; for refused text the value given before
        QTest::addColumn<QString>("problem");
        const QString cm = QStringLiteral("The value must lie between 0.0 cm and 1000.0 cm.");
        // clang-format off
        QTest::newRow("cm to m, comma") << 1024 << "3,5" << 0.035 << "";
        QTest::newRow("MPa to kN/m2") << 1092 << "435" << 435000.0 << "";
        QTest::newRow("empty is not set") << 1024 << "   " << -99999.0 << "";
        QTest::newRow("word") << 1024 << "abc" << 0.02 << "\"abc\" is not a number.";
        QTest::newRow("distance zero") << 1024 << "0" << 0.0 << "";
        QTest::newRow("distance negative") << 1024 << "-0.1" << 0.02 << cm;
        QTest::newRow("distance at maximum") << 1024 << "1000" << 10.0 << "";
        QTest::newRow("distance beyond maximum") << 1024 << "1000.1" << 0.02 << cm;
        QTest::newRow("direction at -360") << 5 << "-360" << qDegreesToRadians(-360.0) << "";
        QTest::newRow("direction beyond 360") << 5 << "360.01" << 0.02 << QString::fromUtf8("The value must lie between -360.00\u00B0 and 360.00\u00B0.");
        // clang-format on
    }

    void readsTypedText()
    {
        QFETCH(int, code);
        QFETCH(QString, text);
        QFETCH(double, value);
        QFETCH(QString, problem);
        Field f(code);
        f.edit.setVal(0.02);
        f.edit.selectAll();
        f.edit.insert(text); // as pasted: through the validator, in one step
        QCOMPARE(f.edit.text(), text);
        QCOMPARE(f.edit.hasAcceptableInput(), problem.isEmpty());
        QCOMPARE(f.edit.problemText(), problem);
        QVERIFY(qAbs(f.edit.getVal() - value) <= 1e-12 * qMax(1.0, qAbs(value)));
        QCOMPARE(f.edit.styleSheet().contains(QLatin1String("border")), !problem.isEmpty());
        QCOMPARE(f.edit.toolTip(), problem.isEmpty() ? kHelp : problem + QLatin1Char('\n') + kHelp);
    }

    // The shown digits stand for the exact value given, so opening and confirming rounds nothing.
    void givenValueComesBackExactly()
    {
        Field f(1024);
        const double stored = double(0.0351234f);
        f.edit.setVal(stored);
        QCOMPARE(f.edit.text(), QStringLiteral("3.5"));
        QCOMPARE(f.edit.getVal(), stored);
        f.edit.setText(QStringLiteral("3.50"));
        QCOMPARE(f.edit.getVal(), 0.035);
        f.edit.setText(QStringLiteral("3.5"));
        QCOMPARE(f.edit.getVal(), stored);
        f.edit.setVal(0.035); // the same digits, another value
        QCOMPARE(f.edit.getVal(), 0.035);
    }

    void combo_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("shown"); // current text
        QTest::addColumn<float>("current");
        QTest::addColumn<QString>("entries");
        const QString table = QString::fromUtf8("#3 Ø10 #4");
        // clang-format off
        QTest::newRow("not set") << kNotSet << "" << kNotSet << table;
        QTest::newRow("zero is no bar") << 0.0f << "" << kNotSet << table;
        QTest::newRow("bar of the table, float noise") << 12.7004f << "#4" << 12.7f << table;
        QTest::newRow("not in the table: kept, in order") << 11.0f << QString::fromUtf8("Ø11") << 11.0f << QString::fromUtf8("#3 Ø10 Ø11 #4");
        QTest::newRow("beyond the largest") << 50.0f << QString::fromUtf8("Ø50") << 50.0f << QString::fromUtf8("#3 Ø10 #4 Ø50");
        // clang-format on
    }

    // The project's bars; a value the table lacks is shown and kept, once.
    void combo()
    {
        QFETCH(float, value);
        QFETCH(float, current);
        VKD_H_ZOBDoc doc(m_dir.filePath(QStringLiteral("combo.vkd")));
        VKD_A_BarDiameterData table;
        table.setBars({{9.5f, QStringLiteral("#3")}, {10.0f, QString()}, {12.7f, QStringLiteral("#4")}});
        table.save(doc.index());
        VKD_A_BarDiameterCombo combo(nullptr, "bar");
        QVERIFY(combo.load(doc.index()));
        combo.setCurrent(value);
        combo.setCurrent(value);
        QTEST(combo.currentText(), "shown");
        QCOMPARE(combo.getCurrent(), current);
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i)
            texts << combo.itemText(i);
        QTEST(texts.join(' '), "entries");
        // Without a project the 11 bars of the standard series, and the selection stays.
        QVERIFY(!combo.load(-1));
        QCOMPARE(combo.count(), current == kNotSet ? 11 : 12);
        QCOMPARE(combo.getCurrent(), current);
    }

    void calculator_data()
    {
        QTest::addColumn<float>("bar");
        QTest::addColumn<double>("spacing"); // cm; 0: bars per metre instead
        QTest::addColumn<double>("count");
        QTest::addColumn<int>("layers");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("shown"); // cross section of a bar | result | bars per metre
        QTest::addColumn<double>("value");  // m²/m, by hand: n * pi * d² / 4
        // clang-format off
        QTest::newRow("10/15") << 10.0f << 15.0 << 0.0 << 1 << true << QString::fromUtf8("0.785 cm²|5.24 cm²/m|6.67 /m") << 5.235988e-4;
        QTest::newRow("8, 5 per metre") << 8.0f << 0.0 << 5.0 << 1 << true << QString::fromUtf8("0.503 cm²|2.51 cm²/m|5.00 /m") << 2.513274e-4;
        QTest::newRow("20/10, two layers") << 20.0f << 10.0 << 0.0 << 2 << true << QString::fromUtf8("3.142 cm²|62.83 cm²/m|10.00 /m") << 6.2831853e-3;
        QTest::newRow("no layers count as one") << 10.0f << 15.0 << 0.0 << 0 << true << QString::fromUtf8("0.785 cm²|5.24 cm²/m|6.67 /m") << 5.235988e-4;
        QTest::newRow("Cancel") << 12.0f << 20.0 << 0.0 << 1 << false << QString::fromUtf8("1.131 cm²|5.65 cm²/m|5.00 /m") << 3.5e-4;
        QTest::newRow("no bar: OK refused") << kNotSet << 20.0 << 0.0 << 1 << true << "no bar chosen|-|5.00 /m" << 3.5e-4;
        // clang-format on
    }

    // What the user reads, and what OK (or Cancel) hands back from a start of 3.50 cm²/m.
    void calculator()
    {
        QFETCH(float, bar);
        QFETCH(double, spacing);
        QFETCH(double, count);
        QFETCH(int, layers);
        QFETCH(bool, ok);
        QFETCH(double, value);
        QStringList seen;
        QTimer::singleShot(0, [&] {
            QWidget* d = QApplication::activeModalWidget();
            QCOMPARE(child<QLabel>(d, "present")->text(), QString::fromUtf8("3.50 cm²/m"));
            child<VKD_A_BarDiameterCombo>(d, "bar")->setCurrent(bar);
            if (spacing > 0.0) {
                child<QDoubleSpinBox>(d, "spacing")->setValue(spacing);
            } else {
                child<QRadioButton>(d, "byCount")->setChecked(true);
                child<QDoubleSpinBox>(d, "count")->setValue(count);
            }
            seen << child<QLabel>(d, "barArea")->text() << child<QLabel>(d, "result")->text()
                 << child<QDoubleSpinBox>(d, "count")->text();
            child<QPushButton>(d, ok ? "ok" : "cancel")->click();
            if (d->isVisible()) // a disabled OK does nothing
                child<QPushButton>(d, "cancel")->click();
        });
        float result = 3.5e-4f;
        vkd_a_ReinforcementCalculation(nullptr, 0, layers, result, 10.0f);
        QTEST(seen.join(QLatin1Char('|')), "shown");
        QVERIFY2(qAbs(result - value) < 1e-9, qPrintable(QString::number(result, 'g', 9)));
    }

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

    void checkStates_data()
    {
        // Steps: name=state, "new name parent row state" (made with its state, then put in),
        // "delete name", "move name parent row", "sort", "off", "on".
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("states"); // name and state of each item, depth first
        auto row = [](const char* name, const char* steps, const char* states) {
            QTest::newRow(name) << QString::fromLatin1(steps).split(QStringLiteral(", "), Qt::SkipEmptyParts)
                                << QString::fromLatin1(states);
        };
        // clang-format off
        row("unchecked newcomer under a checked parent", "root=2, new c a 3 0", "root1 a1 a12 a22 a32 c0 b2 b12");
        row("removing the only unchecked child", "a1=2, a2=2, delete a3", "root1 a2 a12 a22 b0 b10");
        row("off leaves states alone", "off, a1=2, a2=2, a3=2", "root0 a0 a12 a22 a32 b0 b10");
        row("switched on, brought in line at once", "off, a1=2, a2=2, a3=2, on", "root1 a2 a12 a22 a32 b0 b10");
        // What is kept of each child by row follows rows that move.
        row("sorted, then the leaf in the checked leaf's old row checked", "a1=2, a2=2, sort, a3=2", "root1 b0 b10 a2 a32 a22 a12");
        row("row inserted in front, then the shifted leaf unchecked", "a1=2, new n a 0 0, a1=0", "root0 a0 n0 a10 a20 a30 b0 b10");
        row("row removed in front, then the shifted leaf unchecked", "a3=2, delete a1, a3=0", "root0 a0 a20 a30 b0 b10");
        row("parent emptied and filled again", "delete b1, b=2, new c b 0 0, c=2, c=0", "root0 a0 a10 a20 a30 b0 c0");
        row("checked subtree moved under a leaf", "a=2, move a b1 0, b=0", "root0 b0 b10 a0 a10 a20 a30");
        // clang-format on
    }

    void checkStates()
    {
        QFETCH(QStringList, steps);
        VKD_QT_TreeWidget tree;
        tree.setAutomaticCheckStateUpdate(true);
        QTreeWidgetItem* root = item(nullptr, QStringLiteral("root"));
        tree.addTopLevelItem(root);
        QTreeWidgetItem* a = item(root, QStringLiteral("a"));
        for (const char* leaf : {"a1", "a2", "a3"})
            item(a, QLatin1String(leaf));
        item(item(root, QStringLiteral("b")), QStringLiteral("b1"));
        auto byName = [&tree](const QString& name) {
            return tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        };
        for (const QString& step : steps) {
            const QStringList w = step.split(QLatin1Char(' '));
            if (w.at(0) == QLatin1String("off") || w.at(0) == QLatin1String("on")) {
                tree.setAutomaticCheckStateUpdate(w.at(0) == QLatin1String("on"));
            } else if (w.at(0) == QLatin1String("sort")) {
                tree.sortItems(0, Qt::DescendingOrder);
            } else if (w.at(0) == QLatin1String("delete")) {
                delete byName(w.at(1));
            } else if (w.at(0) == QLatin1String("new") || w.at(0) == QLatin1String("move")) {
                QTreeWidgetItem* moved = w.at(0) == QLatin1String("new")
                                             ? item(nullptr, w.at(1), Qt::CheckState(w.at(4).toInt()))
                                             : byName(w.at(1));
                if (QTreeWidgetItem* from = moved->parent())
                    from->takeChild(from->indexOfChild(moved));
                byName(w.at(2))->insertChild(w.at(3).toInt(), moved);
            } else {
                byName(step.section(QLatin1Char('='), 0, 0))
                    ->setCheckState(0, Qt::CheckState(step.section(QLatin1Char('='), 1).toInt()));
            }
        }
        QStringList seen;
        for (QTreeWidgetItemIterator it(&tree); *it; ++it)
            seen << (*it)->text(0) + QString::number(int((*it)->checkState(0)));
        QTEST(seen.join(QLatin1Char(' ')), "states");
    }

    void editing_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("key"); // 0 for the ways that are no key
        QTest::addColumn<bool>("readOnly");
        const std::pair<const char*, int> ways[] = {{"double click", 0},
                                                    {"edit() from code", 0},
                                                    {"drop", 0},
                                                    {"edit key", Qt::Key_F2},
                                                    {"typing a letter", Qt::Key_X},
                                                    {"space on a check box", Qt::Key_Space}};
        for (const auto& [way, key] : ways) {
            QTest::addRow("%s, editable", way) << way << key << false;
            QTest::addRow("%s, read-only", way) << way << key << true;
        }
    }

    // The table view in read-only mode: no way of editing gets through (no editor opened, no check
    // box changed, no drop as from another program written), and the view stays enabled for looking.
    void editing()
    {
        QFETCH(QString, way);
        QFETCH(int, key);
        QFETCH(bool, readOnly);
        Table t;
        QVERIFY(QTest::qWaitForWindowExposed(&t.view));
        t.view.set_read_only(readOnly);
        const QModelIndex cell = t.model.index(key == Qt::Key_Space ? 2 : 1, 0);
        t.view.setCurrentIndex(cell);
        QSignalSpy changed(&t.model, &QAbstractItemModel::dataChanged);
        QSignalSpy inserted(&t.model, &QAbstractItemModel::rowsInserted);
        const QPoint centre = t.view.visualRect(cell).center();
        std::unique_ptr<QMimeData> data(t.model.mimeData({t.model.index(0, 1)}));
        QDragEnterEvent enter(centre, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QDropEvent drop(centre, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        if (key) {
            QTest::keyClick(&t.view, Qt::Key(key));
        } else if (way == QLatin1String("double click")) { // through the window: the presses come first
            QTest::mouseDClick(t.view.windowHandle(), Qt::LeftButton, {},
                               t.view.viewport()->mapTo(&t.view, centre));
        } else if (way == QLatin1String("drop")) {
            QCoreApplication::sendEvent(t.view.viewport(), &enter);
            QCoreApplication::sendEvent(t.view.viewport(), &drop);
        } else {
            if (readOnly)
                QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
            t.view.edit(cell);
        }
        QCOMPARE(t.view.indexWidget(cell) || !changed.isEmpty() || !inserted.isEmpty(), !readOnly);
        QVERIFY(t.view.isEnabled());
    }

    // Going read-only closes the editor of the cell without writing; an editor that the host
    // keeps open in a cell stays, but writes nothing until the view is editable again.
    void openEditors()
    {
        Table t;
        QVERIFY(QTest::qWaitForWindowExposed(&t.view));
        const QModelIndex edited = t.model.index(0, 1), kept = t.model.index(1, 1);
        t.view.openPersistentEditor(kept);
        t.view.edit(edited);
        auto* editor = qobject_cast<QLineEdit*>(t.view.indexWidget(edited));
        auto* persistent = qobject_cast<QLineEdit*>(t.view.indexWidget(kept));
        QVERIFY(editor && persistent);
        editor->setText(QStringLiteral("typed"));
        persistent->setText(QStringLiteral("typed"));
        t.view.set_read_only(true);
        QVERIFY(!t.view.indexWidget(edited) && t.view.isPersistentEditorOpen(kept));
        emit t.view.itemDelegate()->commitData(persistent);
        QCOMPARE(t.model.item(0, 1)->text() + ' ' + t.model.item(1, 1)->text(), QStringLiteral("r0c1 r1c1"));
        t.view.set_read_only(false);
        emit t.view.itemDelegate()->commitData(persistent);
        QCOMPARE(t.model.item(1, 1)->text(), QStringLiteral("typed"));
    }

    // Each fixed view (0, 3, 4, 5) as GRAV reads its standpoint, at zoom 1 and no pan whatever came before.
    void commands()
    {
        const std::pair<int, const char*> views[] = {
            {0, "X 0.4532 Y -0.7849 Z 0.4226"}, {3, "X 0 Y 0 Z 1"}, {4, "X 0 Y -1 Z 0"}, {5, "X 1 Y 0 Z 0"}};
        for (const auto& [command, standpoint] : views) {
            AnimatorView view(0);
            view.setCamera({200, -40, 3, 0.5, 0.5});
            view.slotViewControl(AnimatorViewControl(command), 0.0);
            QCOMPARE(view.cameraText(CameraScriptForm), standpoint);
            QCOMPARE(view.cameraText(CameraPersistentForm).section(' ', 2), QStringLiteral("1 0 0"));
        }
    }

    // Seen from above, two squares one above the other with a beam between them: X to the right,
    // Y up, the box filling 85 % of the viewport, and drawn back to front. A quad that names a
    // missing node is left out.
    void projection()
    {
        std::vector<NodeRecord> nodes;
        for (float z : {0.0f, 1.0f})
            for (int k = 0; k < 4; ++k)
                nodes.push_back({int(nodes.size()) + 1, float(k == 1 || k == 2), float(k >= 2), z});
        nodes.push_back({9, -1, 0.5f, 0.5f});
        nodes.push_back({10, 2, 0.5f, 0.5f});
        vkd::aniview::PreviewScene scene;
        scene.setModel(nodes, {{1, 5, {1, 2, 3, 4}}, {2, 7, {5, 6, 7, 8}}, {3, 7, {5, 6, 7, 99}}},
                       {{4, 1, {9, 10, 0, 0}}});
        AnimatorView view(0);
        view.slotViewControl(AnimatorPlaneXY, 0.0);
        QStringList out, points;
        for (const DrawItem& item : scene.project(view.camera(), QSize(200, 200))) {
            QString text = item.kind == DrawItem::Point  ? QStringLiteral("P")
                           : item.kind == DrawItem::Line ? QStringLiteral("L")
                                                         : item.fill.name();
            for (int k = 0; k < item.cornerCount; ++k)
                text += QStringLiteral(" %1,%2")
                            .arg(qRound(item.corners[k].x()))
                            .arg(qRound(item.corners[k].y()));
            (item.kind == DrawItem::Point ? points : out) << text;
        }
        points.sort();
        // Each node once, where it lies: the eight corners of the squares and the ends of the beam.
        QCOMPARE(points.join(QLatin1Char('|')),
                 QStringLiteral("P 128,128|P 128,128|P 128,72|P 128,72|P 15,100|"
                                "P 185,100|P 72,128|P 72,128|P 72,72|P 72,72"));
        QCOMPARE(out, (QStringList{"#edc948 72,128 128,128 128,72 72,72", "L 15,100 185,100",
                                   "#ff9da7 72,128 128,128 128,72 72,72"}));
        // Picking takes the front-most element, a beam within reach, and whole elements only.
        QCOMPARE(scene.groupAt({100, 100}), 7);
        QCOMPARE(scene.groupAt({20, 103}), 1);
        QCOMPARE(scene.groupAt({20, 110}), -1);
        QCOMPARE(scene.groupsIn(QRectF(0, 0, 200, 200)), (std::vector<int>{1, 5, 7}));
        QCOMPARE(scene.groupsIn(QRectF(60, 60, 80, 80)), (std::vector<int>{5, 7}));
        // A model loaded again under the same camera is projected anew: a saddle whose diagonals lie
        // level is shaded as the flat square beside it.
        scene.setModel({{1, 0, 0, 0},
                        {2, 1, 0, 1},
                        {3, 1, 1, 0},
                        {4, 0, 1, 1},
                        {5, 2, 0, 0},
                        {6, 3, 0, 0},
                        {7, 3, 1, 0},
                        {8, 2, 1, 0}},
                       {{1, 5, {1, 2, 3, 4}}, {2, 5, {5, 6, 7, 8}}}, {});
        QStringList fills;
        for (const DrawItem& item : scene.project(view.camera(), QSize(200, 200)))
            if (item.kind == DrawItem::Area)
                fills << item.fill.name();
        QCOMPARE(fills.size(), 2);
        QCOMPARE(fills.at(0), fills.at(1));
    }

    // Two squares side by side, groups 1 and 2, seen from above in the scratch project: clicks,
    // Ctrl-clicks and a rectangle pick as a person would.
    void pick_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("picked");
        const char* rows[][3] = {{"click replaces", "click 115, click 285", "2"},
                                 {"ctrl adds", "click 115, ctrl 285", "1 2"},
                                 {"ctrl removes", "click 115, ctrl 285, ctrl 115", "2"},
                                 {"click beside clears", "click 115, click 5", ""},
                                 {"rectangle over one", "drag 20 200", "1"},
                                 {"ctrl rectangle adds", "click 285, ctrldrag 20 200", "1 2"}};
        for (const auto& r : rows)
            QTest::newRow(r[0]) << QString(r[1]) << QString(r[2]);
    }
    void pick()
    {
        QFETCH(QString, steps);
        std::vector<NodeRecord> nodes;
        for (int j = 0; j < 2; ++j)
            for (int i = 0; i < 3; ++i)
                nodes.push_back({1 + j * 3 + i, float(i), float(j), 0.0f});
        writeAll(0, KeyNodes, nodes);
        writeAll(0, KeyQuads, std::vector<ElementRecord>{{1, 1, {1, 2, 5, 4}}, {2, 2, {2, 3, 6, 5}}});
        AnimatorView view(0);
        view.resize(400, 200);
        view.slotViewControl(AnimatorPlaneXY, 0.0);
        view.setPickMode(true);
        view.grab();
        for (const QString& step : steps.split(QStringLiteral(", "))) {
            const QStringList w = step.split(QLatin1Char(' '));
            const auto modifiers =
                w[0].startsWith(QLatin1String("ctrl")) ? Qt::ControlModifier : Qt::NoModifier;
            const QPoint from(w[1].toInt(), w[0].endsWith(QLatin1String("drag")) ? 5 : 100);
            const QPoint to = w.size() > 2 ? QPoint(w[2].toInt(), 195) : from;
            QTest::mousePress(&view, Qt::LeftButton, modifiers, from);
            QMouseEvent move(QEvent::MouseMove, to, Qt::LeftButton, Qt::LeftButton, modifiers);
            QApplication::sendEvent(&view, &move);
            QTest::mouseRelease(&view, Qt::LeftButton, modifiers, to);
        }
        QStringList out;
        for (int g : view.pickedGroups())
            out << QString::number(g);
        QTEST(out.join(QLatin1Char(' ')), "picked");
    }
};

QTEST_MAIN(TestSuiteWidgets)
#include "tst_suitewidgets.moc"

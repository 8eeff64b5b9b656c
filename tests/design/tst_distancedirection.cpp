// The direction and distance dialog: its face for each design type, what OK writes, what bad
// values in a record get, and the table's button that opens it on the demo project.
#include "dlgDistanceDirection.h"
#include "reference.h"

#include <VKD_H_LineEdit.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_GroupBox.h>
#include <VKD_QT_InfoText.h>
#include <VKD_QT_Label.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_TableWidgetButton.h>
#include <demomodel.h>
#include <design.h>
#include <vkd_q.h>

#include <QGridLayout>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>
#include <cstring>

namespace {

const std::pair<const char*, float tagZOB_QUAD_RIM::*> kFields[] = {
    {"rio", &tagZOB_QUAD_RIM::rio},   {"rioq", &tagZOB_QUAD_RIM::rioq}, {"rioi", &tagZOB_QUAD_RIM::rioi},
    {"riu", &tagZOB_QUAD_RIM::riu},   {"riuq", &tagZOB_QUAD_RIM::riuq}, {"riui", &tagZOB_QUAD_RIM::riui},
    {"xref", &tagZOB_QUAD_RIM::xref}, {"yref", &tagZOB_QUAD_RIM::yref}, {"zref", &tagZOB_QUAD_RIM::zref},
    {"hio", &tagZOB_QUAD_RIM::hio},   {"hioq", &tagZOB_QUAD_RIM::hioq}, {"hioi", &tagZOB_QUAD_RIM::hioi},
    {"hiu", &tagZOB_QUAD_RIM::hiu},   {"hiuq", &tagZOB_QUAD_RIM::hiuq}, {"hiui", &tagZOB_QUAD_RIM::hiui},
};

// A record of the type whose 15 fields all hold a value of their own, so that a field the
// dialog clears or rounds shows.
tagZOB_QUAD_RIM recordOfType(int type)
{
    tagZOB_QUAD_RIM r = VKD_P_DesignParameter::getDefaultMerPara(false);
    r.type = type;
    r.rio = 0.1f, r.rioq = 1.6f, r.rioi = 0.7f, r.riu = -0.2f, r.riuq = 1.4f, r.riui = 0.9f;
    r.xref = 12.5f, r.yref = -3.25f, r.zref = 0.0f;
    r.hio = 0.0351234f, r.hioq = 0.012f, r.hioi = 0.0f, r.hiu = 0.04f, r.hiuq = 0.01f, r.hiui = 0.015f;
    return r;
}

// Names of the fields in which two records differ, blank-separated.
QString differingFields(const tagZOB_QUAD_RIM& a, const tagZOB_QUAD_RIM& b)
{
    QStringList names;
    for (const auto& f : kFields)
        if (std::memcmp(&(a.*f.second), &(b.*f.second), sizeof(float)) != 0)
            names << QLatin1String(f.first);
    if (names.isEmpty() && std::memcmp(&a, &b, sizeof a) != 0)
        names << QStringLiteral("<a field outside the fifteen>");
    return names.join(QLatin1Char(' '));
}

QString describeWidget(QWidget* w)
{
    if (auto* edit = qobject_cast<VKD_H_LineEdit*>(w))
        return QStringLiteral("edit %1 \"%2\" tip \"%3\"")
            .arg(edit->objectName(), edit->text(), edit->toolTip());
    if (auto* note = qobject_cast<VKD_QT_InfoText*>(w))
        return QStringLiteral("note%1 \"%2\"")
            .arg(note->findChild<QLabel*>(QStringLiteral("icon")) ? " with icon" : "", note->text());
    auto* label = qobject_cast<VKD_QT_Label*>(w);
    if (!label)
        return QStringLiteral("? %1").arg(QLatin1String(w->metaObject()->className()));
    const qint64 key = label->pixmap(Qt::ReturnByValue).cacheKey();
    for (const char* name : {":/neq_merpara_rich_0.png", ":/neq_merpara_rich_1.png", ":/betondeckung_1.png"})
        if (key && key == QPixmap(QLatin1String(name)).cacheKey())
            return QStringLiteral("figure %1").arg(QLatin1String(name));
    return QStringLiteral("label \"%1\"").arg(label->text());
}

// The dialog as a person reads it: title, the boxes in order, each grid cell with its position,
// span, alignment and content, and the button row.
QString describeDialog(dlgDistanceDirection& dialog)
{
    QLayout* top = dialog.layout();
    QString out =
        QStringLiteral("\"%1\", white %2, %3\n")
            .arg(dialog.windowTitle())
            .arg(dialog.autoFillBackground() && dialog.palette().color(QPalette::Window) == Qt::white)
            .arg(QLatin1String(top->metaObject()->className()));
    for (int i = 0; i < top->count(); ++i) {
        QWidget* w = top->itemAt(i)->widget();
        if (auto* buttons = qobject_cast<VKD_QT_Ok*>(w)) {
            out += QStringLiteral("buttons %1: %2, %3\n")
                       .arg(buttons->objectName(), buttons->cmdOk()->text(), buttons->cmdCancel()->text());
            continue;
        }
        auto* box = qobject_cast<VKD_QT_GroupBox*>(w);
        auto* grid = qobject_cast<QGridLayout*>(box->layout());
        out += QStringLiteral("box %1 \"%2\", %3\n")
                   .arg(box->objectName(), box->title(), QLatin1String(grid->metaObject()->className()));
        for (int k = 0; k < grid->count(); ++k) {
            int row, column, rows, columns;
            grid->getItemPosition(k, &row, &column, &rows, &columns);
            out += QStringLiteral("  %1,%2 %3x%4 align %5: %6\n")
                       .arg(row)
                       .arg(column)
                       .arg(rows)
                       .arg(columns)
                       .arg(int(grid->itemAt(k)->alignment()))
                       .arg(describeWidget(grid->itemAt(k)->widget()));
        }
    }
    return out;
}

// The demo project in a temporary folder and the page on it as a host builds it.
struct DemoPage
{
    DemoPage() : doc(dir.filePath(QStringLiteral("project.vkd")))
    {
        writeDemoModel(doc.index());
        writeDemoDesign(doc);
        page.init();
        page.readZob();
    }
    QString written()
    {
        page.writeToZob();
        return dumpDesignRecords(doc.index());
    }
    QTemporaryDir dir;
    VKD_H_ZOBDoc doc;
    VKD_P_DesignParameter page{&doc, &doc, nullptr, false, false};
};

// The lines of b that differ from the line at the same place in a, each after its record.
QString changedLines(const QString& a, const QString& b)
{
    const QStringList before = a.split(QLatin1Char('\n')), after = b.split(QLatin1Char('\n'));
    QString out, record;
    for (int i = 0; i < after.size(); ++i) {
        if (after[i].startsWith(QLatin1String("record")))
            record = after[i];
        if (before.value(i) != after[i])
            out += record + QStringLiteral(" |") + after[i] + QLatin1Char('\n');
    }
    return out;
}

QPushButton* okButton(QDialog* dialog, bool ok = true)
{
    auto* row = dialog->findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"));
    return ok ? row->cmdOk() : row->cmdCancel();
}

} // namespace

class TestDistanceDirection : public QObject
{
    Q_OBJECT
private slots:
    void init() { vkd_lib_setvalue(102, 1); }
    void facesOfTheTypes();
    void okWithoutChange_data();
    void okWithoutChange();
    void badValueInRecord_data();
    void badValueInRecord();
    void tableButton_data();
    void tableButton();
};

void TestDistanceDirection::facesOfTheTypes()
{
    QString all;
    const std::pair<int, int> cases[] = {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {0, 1}, {1, 0}, {4, 0}};
    for (const auto& c : cases) {
        vkd_lib_setvalue(102, c.second); // the German desktop changes the figure only
        tagZOB_QUAD_RIM record = recordOfType(c.first);
        dlgDistanceDirection dialog(&record, nullptr);
        all += QStringLiteral("type %1, language %2: ").arg(c.first).arg(c.second) + describeDialog(dialog);
    }
    QVERIFY(matchesReference(all, QStringLiteral("distancedirection-faces.txt")));
}

void TestDistanceDirection::okWithoutChange_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("cleared");
    const QString all =
        QStringLiteral("rio rioq rioi riu riuq riui xref yref zref hio hioq hioi hiu hiuq hiui");
    QTest::newRow("two layers orthogonal") << 1 << "rioq rioi riuq riui xref yref zref hioi hiui";
    QTest::newRow("two layers") << 2 << "rioi riui xref yref zref hioi hiui";
    QTest::newRow("three layers") << 3 << "xref yref zref";
    QTest::newRow("circular") << 4 << "rioq rioi riuq riui hioi hiui";
    QTest::newRow("no design") << 0 << all;
    QTest::newRow("unknown type") << 7 << all;
}

// An OK without a change clears the fields the type has no edit for, to not set, and keeps
// every other byte: what an edit shows stands for the exact stored value.
void TestDistanceDirection::okWithoutChange()
{
    QFETCH(int, type);
    QFETCH(QString, cleared);
    const tagZOB_QUAD_RIM before = recordOfType(type);
    tagZOB_QUAD_RIM record = before;
    dlgDistanceDirection dialog(&record, nullptr);
    dialog.show();
    okButton(&dialog)->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(differingFields(before, record), QString());
    dialog.writeToRecord(&record);
    QCOMPARE(differingFields(before, record), cleared);
    for (const auto& f : kFields)
        if (cleared.split(QLatin1Char(' ')).contains(QLatin1String(f.first)))
            QCOMPARE(record.*f.second, -99999.0f);
}

void TestDistanceDirection::badValueInRecord_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("field"); // index into kFields
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("problem"); // empty: the type has no edit for the field
    QTest::newRow("NaN distance")
        << 1 << 9 << float(NAN)
        << "The stored value \"nan\" is not a number. Enter a value or empty the field.";
    QTest::newRow("reference point far out")
        << 4 << 7 << 2.0e5f << "The value must lie between -99999.000 m and 99999.000 m.";
    QTest::newRow("infinity without an edit in the type") << 1 << 2 << float(INFINITY) << "";
}

// The field is marked, and OK stays refused with the focus in it until it is emptied; then the
// field is written as not set.
void TestDistanceDirection::badValueInRecord()
{
    QFETCH(int, type);
    QFETCH(int, field);
    QFETCH(float, value);
    QFETCH(QString, problem);
    tagZOB_QUAD_RIM record = recordOfType(type);
    record.*kFields[field].second = value;
    dlgDistanceDirection dialog(&record, nullptr);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* edit = dialog.findChild<VKD_H_LineEdit*>(QLatin1String(kFields[field].first));
    QCOMPARE(edit ? edit->problemText() : QString(), problem);
    if (edit) {
        QVERIFY(edit->toolTip().startsWith(problem));
        // Until the user fixes it, the edit gives back what it was given, never a zero.
        QCOMPARE(QByteArray::number(edit->getVal()), QByteArray::number(double(value)));
        okButton(&dialog)->click();
        QVERIFY(dialog.isVisible());
        QVERIFY(edit->hasFocus());
        edit->clear();
    }
    okButton(&dialog)->click();
    QVERIFY(!dialog.isVisible());
    dialog.writeToRecord(&record);
    QCOMPARE(record.*kFields[field].second, -99999.0f);
}

void TestDistanceDirection::tableButton_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("edit"); // empty: Cancel after typing into hio
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reference"); // the changed lines of the written records
    QTest::newRow("OK on the remaining groups") << 0 << "hiu"
                                                << "4"
                                                << "distancedirection-ok-row0.txt";
    QTest::newRow("OK on groups 1 and 2") << 1 << "hio"
                                          << "5"
                                          << "distancedirection-ok-row1.txt";
    QTest::newRow("OK on three layers") << 3 << "rio"
                                        << "30"
                                        << "distancedirection-ok-row3.txt";
    QTest::newRow("Cancel on group 3") << 2 << ""
                                       << "9"
                                       << "";
}

// The button of the summary cell opens the dialog on its row; OK redraws that row alone and the
// values reach the store; Cancel leaves the row and the store as they were.
void TestDistanceDirection::tableButton()
{
    QFETCH(int, row);
    QFETCH(QString, edit);
    QFETCH(QString, text);
    QFETCH(QString, reference);
    DemoPage untouched;
    const QString baseline = untouched.written();
    DemoPage demo;
    auto* table = demo.page.findChild<QTableWidget*>(QStringLiteral("table"));
    const int rows = table->rowCount();
    table->setCurrentCell(row, 2);
    auto* button = qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(row, 2));
    QVERIFY(button);
    const QString summary = table->item(row, 2)->text();
    for (int r = 0; r < rows; ++r)
        table->item(r, 2)->setText(QStringLiteral("stale"));
    bool answered = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<dlgDistanceDirection*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        auto* field = dialog->findChild<VKD_H_LineEdit*>(edit.isEmpty() ? QStringLiteral("hio") : edit);
        field->selectAll();
        field->insert(text);
        okButton(dialog, !edit.isEmpty())->click();
        answered = true;
    });
    button->button()->click();
    QVERIFY(answered);
    QCOMPARE(table->rowCount(), rows);
    for (int r = 0; r < rows; ++r)
        QCOMPARE(table->item(r, 2)->text() == QLatin1String("stale"), r != row || edit.isEmpty());
    if (edit.isEmpty()) {
        QCOMPARE(demo.written(), baseline);
        return;
    }
    QVERIFY(table->item(row, 2)->text() != summary);
    QCOMPARE(button->findChild<QLabel*>()->text(), table->item(row, 2)->text()); // the open button follows
    QVERIFY(matchesReference(changedLines(baseline, demo.written()), reference));
}

QTEST_MAIN(TestDistanceDirection)
#include "tst_distancedirection.moc"

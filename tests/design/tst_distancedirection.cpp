// The direction and distance dialog: its face for each design type, what OK writes, what bad
// values in a record get, and the table's button that opens it on a real project.
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
#include <functional>
#include <memory>

namespace {

constexpr double kPi = 3.14159265358979323846;

const std::pair<const char*, float tagZOB_QUAD_RIM::*> kFields[] = {
    {"rio", &tagZOB_QUAD_RIM::rio},   {"rioq", &tagZOB_QUAD_RIM::rioq}, {"rioi", &tagZOB_QUAD_RIM::rioi},
    {"riu", &tagZOB_QUAD_RIM::riu},   {"riuq", &tagZOB_QUAD_RIM::riuq}, {"riui", &tagZOB_QUAD_RIM::riui},
    {"xref", &tagZOB_QUAD_RIM::xref}, {"yref", &tagZOB_QUAD_RIM::yref}, {"zref", &tagZOB_QUAD_RIM::zref},
    {"hio", &tagZOB_QUAD_RIM::hio},   {"hioq", &tagZOB_QUAD_RIM::hioq}, {"hioi", &tagZOB_QUAD_RIM::hioi},
    {"hiu", &tagZOB_QUAD_RIM::hiu},   {"hiuq", &tagZOB_QUAD_RIM::hiuq}, {"hiui", &tagZOB_QUAD_RIM::hiui},
};

float& field(tagZOB_QUAD_RIM& record, const QString& name)
{
    for (const auto& f : kFields)
        if (name == QLatin1String(f.first))
            return record.*f.second;
    qFatal("no field %s", qPrintable(name));
}

// A record of the type whose 15 fields all hold a value of their own (in edited form), so that
// a field cleared or rounded by the dialog shows.
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
            .arg(note->findChild<QLabel*>(QStringLiteral("icon")) ? QStringLiteral(" with icon") : QString(),
                 note->text());
    if (auto* label = qobject_cast<VKD_QT_Label*>(w)) {
        const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
        if (!pixmap.isNull())
            return QStringLiteral("figure %1x%2").arg(pixmap.width()).arg(pixmap.height());
        return QStringLiteral("label \"%1\"").arg(label->text());
    }
    return QStringLiteral("? %1").arg(QLatin1String(w->metaObject()->className()));
}

// The dialog as a person reads it: title, group boxes in order, and each grid cell with its
// position, span and content.
QString describeDialog(dlgDistanceDirection& dialog)
{
    QString out =
        QStringLiteral("title \"%1\", white %2, layout %3\n")
            .arg(dialog.windowTitle())
            .arg(dialog.autoFillBackground() && dialog.palette().color(QPalette::Window) == Qt::white)
            .arg(QLatin1String(dialog.layout()->metaObject()->className()));
    QLayout* top = dialog.layout();
    for (int i = 0; i < top->count(); ++i) {
        QWidget* w = top->itemAt(i)->widget();
        if (auto* buttons = qobject_cast<VKD_QT_Ok*>(w)) {
            out += QStringLiteral("buttons %1: %2, %3\n")
                       .arg(buttons->objectName(), buttons->cmdOk()->text(), buttons->cmdCancel()->text());
            continue;
        }
        auto* box = qobject_cast<VKD_QT_GroupBox*>(w);
        if (!box) {
            out += QStringLiteral("? %1\n").arg(QLatin1String(w->metaObject()->className()));
            continue;
        }
        auto* grid = qobject_cast<QGridLayout*>(box->layout());
        out += QStringLiteral("box %1 \"%2\", %3\n")
                   .arg(box->objectName(), box->title(), QLatin1String(grid->metaObject()->className()));
        for (int k = 0; k < grid->count(); ++k) {
            int row, column, rows, columns;
            grid->getItemPosition(k, &row, &column, &rows, &columns);
            const Qt::Alignment alignment = grid->itemAt(k)->alignment();
            out += QStringLiteral("  %1,%2 %3x%4%5: %6\n")
                       .arg(row)
                       .arg(column)
                       .arg(rows)
                       .arg(columns)
                       .arg(alignment ? QStringLiteral(" align %1").arg(int(alignment)) : QString())
                       .arg(describeWidget(grid->itemAt(k)->widget()));
        }
    }
    return out;
}

// A project in a temporary folder with the demo model and its design parameters, and the
// page on it as a host builds it.
struct DemoPage
{
    DemoPage() : doc(dir.filePath(QStringLiteral("project.vkd")))
    {
        writeDemoModel(doc.index());
        writeDemoDesign(doc);
        page = std::make_unique<VKD_P_DesignParameter>(&doc, &doc, nullptr, false, false);
        page->init();
        page->readZob();
        page->resize(1000, 400);
        page->show();
        table = page->findChild<QTableWidget*>(QStringLiteral("table"));
    }
    QString written()
    {
        page->writeToZob();
        return dumpDesignRecords(doc.index());
    }
    QTemporaryDir dir;
    VKD_H_ZOBDoc doc;
    std::unique_ptr<VKD_P_DesignParameter> page;
    QTableWidget* table = nullptr;
};

// Lines of b that differ from the line at the same place in a.
QString changedLines(const QString& a, const QString& b)
{
    const QStringList before = a.split(QLatin1Char('\n'));
    const QStringList after = b.split(QLatin1Char('\n'));
    QString out;
    QString record;
    for (int i = 0; i < after.size(); ++i) {
        if (after[i].startsWith(QLatin1String("record")))
            record = after[i];
        if (before.value(i) != after[i])
            out += record + QStringLiteral(" |") + after[i] + QLatin1Char('\n');
    }
    return out;
}

// Runs the action once the next modal dialog is up.
void whenModal(std::function<void(dlgDistanceDirection*)> action)
{
    QTimer::singleShot(0, [action] {
        auto* dialog = qobject_cast<dlgDistanceDirection*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        action(dialog);
    });
}

} // namespace

class TestDistanceDirection : public QObject
{
    Q_OBJECT
private slots:
    void init() { vkd_lib_setvalue(102, 1); }
    void facesOfTheTypes();
    void figureFollowsLanguage_data();
    void figureFollowsLanguage();
    void okWithoutChange_data();
    void okWithoutChange();
    void okWritesTyped_data();
    void okWritesTyped();
    void badValueInRecord_data();
    void badValueInRecord();
    void tableButton_data();
    void tableButton();
};

void TestDistanceDirection::facesOfTheTypes()
{
    QString all;
    for (int type : {1, 2, 3, 4, 0}) {
        tagZOB_QUAD_RIM record = recordOfType(type);
        dlgDistanceDirection dialog(&record, nullptr);
        all += QStringLiteral("type %1: ").arg(type) + describeDialog(dialog);
    }
    QVERIFY(matchesReference(all, QStringLiteral("distancedirection-faces.txt")));
}

void TestDistanceDirection::figureFollowsLanguage_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("directionBox");
    QTest::addColumn<QString>("directionFigure");
    QTest::addColumn<QString>("otherBox");
    QTest::addColumn<QString>("otherFigure");
    QTest::newRow("layered, German") << 1 << 0 << "direction"
                                     << ":/neq_merpara_rich_0.png"
                                     << "distance"
                                     << ":/betondeckung_1.png";
    QTest::newRow("layered, English") << 3 << 1 << "direction"
                                      << ":/neq_merpara_rich_1.png"
                                      << "distance"
                                      << ":/betondeckung_1.png";
    QTest::newRow("circular, German") << 4 << 0 << "direction_distance"
                                      << ":/neq_merpara_rich_0.png"
                                      << "Midpoint"
                                      << "";
}

void TestDistanceDirection::figureFollowsLanguage()
{
    QFETCH(int, type);
    QFETCH(int, language);
    QFETCH(QString, directionBox);
    QFETCH(QString, directionFigure);
    QFETCH(QString, otherBox);
    QFETCH(QString, otherFigure);
    vkd_lib_setvalue(102, language);
    tagZOB_QUAD_RIM record = recordOfType(type);
    dlgDistanceDirection dialog(&record, nullptr);
    auto figureOf = [&](const QString& box) -> qint64 {
        auto* grid = qobject_cast<QGridLayout*>(dialog.findChild<QGroupBox*>(box)->layout());
        QLayoutItem* item = grid->itemAtPosition(0, 10);
        auto* label = item ? qobject_cast<QLabel*>(item->widget()) : nullptr;
        return label ? label->pixmap(Qt::ReturnByValue).cacheKey() : 0;
    };
    QCOMPARE(figureOf(directionBox), QPixmap(directionFigure).cacheKey());
    QCOMPARE(figureOf(otherBox), otherFigure.isEmpty() ? 0 : QPixmap(otherFigure).cacheKey());
}

void TestDistanceDirection::okWithoutChange_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("cleared");
    QTest::newRow("two layers orthogonal") << 1 << "rioq rioi riuq riui xref yref zref hioi hiui";
    QTest::newRow("two layers") << 2 << "rioi riui xref yref zref hioi hiui";
    QTest::newRow("three layers") << 3 << "xref yref zref";
    QTest::newRow("circular") << 4 << "rioq rioi riuq riui hioi hiui";
    QTest::newRow("no design") << 0
                               << "rio rioq rioi riu riuq riui xref yref zref hio hioq hioi hiu hiuq hiui";
    QTest::newRow("unknown type") << 7
                                  << "rio rioq rioi riu riuq riui xref yref zref hio hioq hioi hiu hiuq hiui";
}

// What an edit shows stands for the exact stored value: an OK without a change clears the
// fields the type has no edit for and keeps every other byte.
void TestDistanceDirection::okWithoutChange()
{
    QFETCH(int, type);
    QFETCH(QString, cleared);
    const tagZOB_QUAD_RIM before = recordOfType(type);
    tagZOB_QUAD_RIM record = before;
    dlgDistanceDirection dialog(&record, nullptr);
    dialog.show();
    dialog.findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"))->cmdOk()->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(differingFields(before, record), QString()); // nothing written before OK's caller asks
    dialog.writeToRecord(&record);
    QCOMPARE(differingFields(before, record), cleared);
    for (const QString& name : cleared.split(QLatin1Char(' ')))
        QCOMPARE(field(record, name), -99999.0f);
}

void TestDistanceDirection::okWritesTyped_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("value");
    QTest::newRow("cover in cm with a comma") << 1 << "hio"
                                              << "2,5" << 0.025f;
    QTest::newRow("spacing in cm") << 2 << "hiuq"
                                   << "1.2" << 0.012f;
    QTest::newRow("spacing emptied") << 2 << "hioq"
                                     << "" << -99999.0f;
    QTest::newRow("third layer in degrees") << 3 << "rioi"
                                            << "45" << float(kPi / 4);
    QTest::newRow("third spacing zero") << 3 << "hiui"
                                        << "0" << 0.0f;
    QTest::newRow("circular direction negative") << 4 << "riu"
                                                 << "-90,0" << float(-kPi / 2);
    QTest::newRow("reference point in m") << 4 << "xref"
                                          << "-12.75" << -12.75f;
    QTest::newRow("reference point emptied") << 4 << "zref"
                                             << " " << -99999.0f;
}

void TestDistanceDirection::okWritesTyped()
{
    QFETCH(int, type);
    QFETCH(QString, edit);
    QFETCH(QString, text);
    QFETCH(float, value);
    tagZOB_QUAD_RIM record = recordOfType(type);
    dlgDistanceDirection dialog(&record, nullptr);
    auto* lineEdit = dialog.findChild<VKD_H_LineEdit*>(edit);
    QVERIFY(lineEdit);
    lineEdit->selectAll();
    lineEdit->insert(text);
    dialog.writeToRecord(&record);
    QCOMPARE(field(record, edit), value);
}

void TestDistanceDirection::badValueInRecord_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("problem");
    QTest::newRow("NaN distance")
        << 1 << "hio" << float(NAN)
        << "The stored value \"nan\" is not a number. Enter a value or empty the field.";
    QTest::newRow("infinite direction")
        << 3 << "riui" << float(INFINITY)
        << "The stored value \"inf\" is not a number. Enter a value or empty the field.";
    QTest::newRow("distance of 20 m")
        << 2 << "hiu" << 20.0f << "The value must lie between 0.0 cm and 1000.0 cm.";
    QTest::newRow("reference point far out")
        << 4 << "yref" << 2.0e5f << "The value must lie between -99999.000 m and 99999.000 m.";
    QTest::newRow("NaN without an edit in the type") << 1 << "rioi" << float(NAN) << "";
}

// The field is marked, OK stays refused with the focus in it until it is emptied, and then the
// field is written as not set.
void TestDistanceDirection::badValueInRecord()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    QFETCH(float, value);
    QFETCH(QString, problem);
    tagZOB_QUAD_RIM record = recordOfType(type);
    field(record, name) = value;
    dlgDistanceDirection dialog(&record, nullptr);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QPushButton* ok = dialog.findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"))->cmdOk();
    auto* edit = dialog.findChild<VKD_H_LineEdit*>(name);
    if (edit) {
        QCOMPARE(edit->problemText(), problem);
        QVERIFY(edit->toolTip().startsWith(problem));
        ok->click();
        QVERIFY(dialog.isVisible());
        QVERIFY(edit->hasFocus());
        ok->click();
        QVERIFY(dialog.isVisible());
        edit->clear();
    }
    ok->click();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    dialog.writeToRecord(&record);
    QCOMPARE(field(record, name), -99999.0f);
}

void TestDistanceDirection::tableButton_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("edit"); // empty: Cancel
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reference"); // changed lines of the written records
    QTest::newRow("OK on the remaining groups") << 0 << "hiu"
                                                << "4"
                                                << "distancedirection-ok-row0.txt";
    QTest::newRow("OK on groups 1 and 2") << 1 << "hio"
                                          << "5"
                                          << "distancedirection-ok-row1.txt";
    QTest::newRow("OK on the three layers of group 4") << 3 << "rio"
                                                       << "30"
                                                       << "distancedirection-ok-row3.txt";
    QTest::newRow("Cancel on group 3") << 2 << ""
                                       << "9"
                                       << "";
}

// The button of the summary cell opens the dialog on that row; OK redraws that row alone and
// its values reach the store; Cancel leaves the row and the store as they were.
void TestDistanceDirection::tableButton()
{
    QFETCH(int, row);
    QFETCH(QString, edit);
    QFETCH(QString, text);
    QFETCH(QString, reference);
    DemoPage untouched;
    const QString baseline = untouched.written();
    DemoPage demo;
    QTableWidget* table = demo.table;
    const int rows = table->rowCount();
    QVERIFY(rows >= 4);
    table->setCurrentCell(row, 2);
    auto* button = qobject_cast<VKD_QT_TableWidgetButton*>(table->cellWidget(row, 2));
    QVERIFY(button);
    const QString summary = table->item(row, 2)->text();
    for (int r = 0; r < rows; ++r)
        table->item(r, 2)->setText(QStringLiteral("stale"));

    bool answered = false;
    whenModal([&](dlgDistanceDirection* dialog) {
        auto* field = dialog->findChild<VKD_H_LineEdit*>(edit.isEmpty() ? QStringLiteral("hio") : edit);
        field->selectAll();
        field->insert(text);
        auto* buttons = dialog->findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"));
        (edit.isEmpty() ? buttons->cmdCancel() : buttons->cmdOk())->click();
        answered = true;
    });
    button->button()->click();
    QVERIFY(answered);

    QCOMPARE(table->rowCount(), rows);
    for (int r = 0; r < rows; ++r)
        if (r != row || edit.isEmpty())
            QCOMPARE(table->item(r, 2)->text(), QStringLiteral("stale"));
    const QString written = demo.written();
    if (edit.isEmpty()) {
        QCOMPARE(written, baseline);
        return;
    }
    QVERIFY(table->item(row, 2)->text() != summary);
    QVERIFY(table->item(row, 2)->text() != QStringLiteral("stale"));
    QVERIFY(matchesReference(changedLines(baseline, written), reference));
}

QTEST_MAIN(TestDistanceDirection)
#include "tst_distancedirection.moc"

#include "VKD_P_RadioGroup.h"
#include "VKD_P_RadioGroupImpl.h"

#include <QtTableView.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpacerItem>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

using IdList = QList<int>;

namespace {

enum class Form
{
    TwoButtons,
    LoadCases,
    EchoOutput
};

// The host's way of wiring: not at all, with a null widget, with a widget, or twice.
enum class Wiring
{
    None,
    NullWidget,
    Widget,
    WidgetTwice
};

// Builds one form on either the exported object or its implementation; both take the same calls.
template <class Group> void build(Group& group, QWidget* parent, Form form, const IdList& ids = {})
{
    switch (form) {
    case Form::TwoButtons:
        group.init(parent);
        break;
    case Form::LoadCases: {
        std::list<VKD_P_RadioGroup::ButtonID> list;
        for (int id : ids)
            list.push_back(static_cast<VKD_P_RadioGroup::ButtonID>(id));
        group.initForLF(parent, list);
        break;
    }
    case Form::EchoOutput:
        group.initEchoOutput(parent);
        break;
    }
}

QList<QRadioButton*> rowButtons(QLayout* row)
{
    QList<QRadioButton*> buttons;
    for (int i = 0; row && i < row->count(); ++i) {
        if (auto* b = qobject_cast<QRadioButton*>(row->itemAt(i)->widget()))
            buttons << b;
    }
    return buttons;
}

// The button of a form by its persistent name, which is also its object name.
QRadioButton* buttonNamed(QWidget& parent, const QString& name)
{
    return parent.findChild<QRadioButton*>(name);
}

const char* const names[] = {"m_NoTextOutput", "m_Manually", "m_All",      "m_All_A",    "m_All_F",
                             "m_All_E",        "m_All_RARE", "m_All_FREQ", "m_All_PERM", "m_All_NONF"};

QRadioButton* buttonOf(QWidget& parent, int id)
{
    return buttonNamed(parent, QLatin1String(names[id]));
}

// Every signal of a group, in the order they arrive.
class SignalLog : public QObject
{
public:
    template <class Group> void listen(Group* g)
    {
        connect(g, &Group::buttonClicked, this, [this](int id) { add("buttonClicked(%1)", id); });
        connect(g, &Group::buttonNoOutputChecked, this, [this] { add("buttonNoOutputChecked"); });
        connect(g, &Group::buttonManuallyChecked, this, [this] { add("buttonManuallyChecked"); });
        connect(g, &Group::buttonAllChecked, this, [this] { add("buttonAllChecked"); });
        connect(g, &Group::buttonAllAcciChecked, this, [this] { add("buttonAllAcciChecked"); });
        connect(g, &Group::buttonAllFireChecked, this, [this] { add("buttonAllFireChecked"); });
        connect(g, &Group::buttonAllEartChecked, this, [this] { add("buttonAllEartChecked"); });
        connect(g, &Group::buttonChecked, this, [this](int id) { add("buttonChecked(%1)", id); });
    }
    QStringList entries;

private:
    void add(const char* text) { entries << QString::fromLatin1(text); }
    void add(const char* text, int id) { entries << QString::fromLatin1(text).arg(id); }
};

} // namespace

Q_DECLARE_METATYPE(Form)
Q_DECLARE_METATYPE(Wiring)

class TestRadioGroup : public QObject
{
    Q_OBJECT
private slots:
    void row_data();
    void row();
    void secondInitChangesNothing();
    void signalsReachingTheHost_data();
    void signalsReachingTheHost();
    void coupledWidget_data();
    void coupledWidget();
    void coupledTableView_data();
    void coupledTableView();
    void setSelectedId_data();
    void setSelectedId();
    void setEnabledById_data();
    void setEnabledById();
    void writeXML_data();
    void writeXML();
    void readXML_data();
    void readXML();
    void buttonsStayWithTheirParent();
};

void TestRadioGroup::row_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<IdList>("asked");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QStringList>("toolTips");
    QTest::addColumn<IdList>("ids");
    QTest::addColumn<int>("checked");

    QTest::newRow("two buttons") << Form::TwoButtons << IdList() << QStringList{"Manually", "All"}
                                 << QStringList{"", ""} << IdList{1, 2} << -1;
    QTest::newRow("load cases, empty list")
        << Form::LoadCases << IdList() << QStringList{"Manually"} << QStringList{""} << IdList{1} << -1;
    QTest::newRow("load cases 9 and 3")
        << Form::LoadCases << IdList{9, 3} << QStringList{"Manually", "All Accidential", "All Non-Frequent"}
        << QStringList{"", "", ""} << IdList{1, 3, 9} << -1;
    QTest::newRow("load cases, every id backwards with 0, 1, 2 and 10")
        << Form::LoadCases << IdList{10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0} << QStringList{"Manually",
                                                                                      "All Accidential",
                                                                                      "All Fire",
                                                                                      "All Earthquake",
                                                                                      "All Characteristic",
                                                                                      "All Frequent",
                                                                                      "All Quasi-Permanent",
                                                                                      "All Non-Frequent"}
        << QStringList{"", "", "", "", "", "", "", ""} << IdList{1, 3, 4, 5, 6, 7, 8, 9} << -1;
    QTest::newRow("load cases, an id asked twice")
        << Form::LoadCases << IdList{5, 4, 5} << QStringList{"Manually", "All Fire", "All Earthquake"}
        << QStringList{"", "", ""} << IdList{1, 4, 5} << -1;
    QTest::newRow("echo output")
        << Form::EchoOutput << IdList()
        << QStringList{"Manually controlled", "No text output", "Full text output"}
        << QStringList{"Manually controlled text output", "Smaller output without any text lists",
                       "Extensive text output\nuseful to find errors or to compare variants"}
        << IdList{1, 0, 2} << 1;
}

void TestRadioGroup::row()
{
    QFETCH(Form, form);
    QFETCH(IdList, asked);
    QFETCH(QStringList, labels);
    QFETCH(QStringList, toolTips);
    QFETCH(IdList, ids);
    QFETCH(int, checked);

    QWidget parent;
    VKD_P_RadioGroup group;
    QVERIFY(group.layout() == nullptr);
    build(group, &parent, form, asked);

    auto* row = qobject_cast<QHBoxLayout*>(group.layout());
    QVERIFY(row);
    QVERIFY2(row->parent() == nullptr, "the host adopts the row");
    QCOMPARE(row->count(), labels.size() + 1);
    QCOMPARE(parent.findChildren<QRadioButton*>().size(), labels.size());
    const QList<QRadioButton*> buttons = rowButtons(row);
    QCOMPARE(buttons.size(), labels.size());
    for (int i = 0; i < buttons.size(); ++i) {
        QCOMPARE(buttons[i]->parentWidget(), &parent);
        QCOMPARE(buttons[i]->text(), labels[i]);
        QCOMPARE(buttons[i]->toolTip(), toolTips[i]);
        QCOMPARE(row->stretch(i), 0);
        QCOMPARE(buttons[i]->isChecked(), ids[i] == checked);
    }
    QSpacerItem* spacer = row->itemAt(row->count() - 1)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(0, 0));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(int(group.getSelectedId()), checked);

    // Each button is in the group under its id, and the group is exclusive.
    for (int i = 0; i < buttons.size(); ++i) {
        buttons[i]->click();
        QCOMPARE(int(group.getSelectedId()), ids[i]);
        for (int j = 0; j < i; ++j)
            QVERIFY(!buttons[j]->isChecked());
    }
}

// A host that calls an init operation twice keeps its first row and gets each signal once.
void TestRadioGroup::secondInitChangesNothing()
{
    QWidget parent;
    VKD_P_RadioGroup group;
    group.init(&parent);
    QLayout* first = group.layout();
    group.init(&parent);
    group.initForLF(&parent, {VKD_P_RadioGroup::AllFire});
    group.initEchoOutput(&parent);
    QCOMPARE(group.layout(), first);
    QCOMPARE(parent.findChildren<QRadioButton*>().size(), 2);

    SignalLog log;
    log.listen(&group);
    group.useWidget(nullptr);
    buttonOf(parent, 2)->click();
    QCOMPARE(log.entries, QStringList{"buttonAllChecked"});
}

void TestRadioGroup::signalsReachingTheHost_data()
{
    QTest::addColumn<bool>("implementation");
    QTest::addColumn<Form>("form");
    QTest::addColumn<Wiring>("wiring");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("click");
    QTest::addColumn<QStringList>("expected");

    const QString c2 = "buttonClicked(2)";
    QTest::newRow("two buttons: All, nothing checked before")
        << false << Form::TwoButtons << Wiring::Widget << -1 << 2 << QStringList{c2, "buttonAllChecked", c2};
    QTest::newRow("two buttons: All after Manually") << false << Form::TwoButtons << Wiring::Widget << 1 << 2
                                                     << QStringList{c2, c2, "buttonAllChecked", c2};
    QTest::newRow("two buttons: the checked button again")
        << false << Form::TwoButtons << Wiring::Widget << 1 << 1 << QStringList{"buttonClicked(1)"};
    QTest::newRow("two buttons: Manually")
        << false << Form::TwoButtons << Wiring::Widget << 2 << 1
        << QStringList{"buttonClicked(1)", "buttonClicked(1)", "buttonManuallyChecked", "buttonClicked(1)"};
    QTest::newRow("two buttons: wired with no widget")
        << false << Form::TwoButtons << Wiring::NullWidget << 1 << 2 << QStringList{"buttonAllChecked"};
    QTest::newRow("two buttons: not wired")
        << false << Form::TwoButtons << Wiring::None << 1 << 2 << QStringList();
    QTest::newRow("two buttons: wired twice")
        << false << Form::TwoButtons << Wiring::WidgetTwice << -1 << 2
        << QStringList{c2, "buttonAllChecked", c2, "buttonAllChecked", c2, c2};

    QTest::newRow("load cases: Manually")
        << false << Form::LoadCases << Wiring::Widget << -1 << 1
        << QStringList{"buttonClicked(1)", "buttonManuallyChecked", "buttonChecked(1)", "buttonClicked(1)"};
    QTest::newRow("load cases: accidental")
        << false << Form::LoadCases << Wiring::Widget << -1 << 3
        << QStringList{"buttonClicked(3)", "buttonAllAcciChecked", "buttonChecked(3)", "buttonClicked(3)"};
    QTest::newRow("load cases: fire")
        << false << Form::LoadCases << Wiring::Widget << -1 << 4
        << QStringList{"buttonClicked(4)", "buttonAllFireChecked", "buttonChecked(4)", "buttonClicked(4)"};
    QTest::newRow("load cases: earthquake after Manually")
        << false << Form::LoadCases << Wiring::Widget << 1 << 5
        << QStringList{"buttonClicked(5)", "buttonClicked(5)", "buttonAllEartChecked", "buttonChecked(5)",
                       "buttonClicked(5)"};
    QTest::newRow("load cases: characteristic")
        << false << Form::LoadCases << Wiring::Widget << -1 << 6
        << QStringList{"buttonClicked(6)", "buttonChecked(6)", "buttonClicked(6)"};
    QTest::newRow("load cases: non-frequent with no widget")
        << false << Form::LoadCases << Wiring::NullWidget << -1 << 9 << QStringList{"buttonChecked(9)"};

    QTest::newRow("echo output: no text output")
        << false << Form::EchoOutput << Wiring::Widget << -1 << 0 << QStringList();
    QTest::newRow("echo output: full text output")
        << false << Form::EchoOutput << Wiring::Widget << -1 << 2 << QStringList();

    // What the implementation emits, of which each form passes on only a part.
    QTest::newRow("inside, two buttons: All") << true << Form::TwoButtons << Wiring::Widget << -1 << 2
                                              << QStringList{c2, "buttonAllChecked", "buttonChecked(2)", c2};
    QTest::newRow("inside, echo output: no text output has no buttonChecked")
        << true << Form::EchoOutput << Wiring::Widget << -1 << 0
        << QStringList{"buttonClicked(0)", "buttonClicked(0)", "buttonNoOutputChecked", "buttonClicked(0)"};
    QTest::newRow("inside, echo output: full text output")
        << true << Form::EchoOutput << Wiring::Widget << -1 << 2
        << QStringList{c2, c2, "buttonAllChecked", "buttonChecked(2)", c2};
}

template <class Group>
static QStringList clickAndLog(Group& group, Form form, Wiring wiring, int before, int click)
{
    QWidget parent;
    QLineEdit used(&parent);
    build(group, &parent, form, {1, 3, 4, 5, 6, 7, 8, 9});
    if (before >= 0)
        group.setSelectedId(static_cast<VKD_P_RadioGroup::ButtonID>(before));
    SignalLog log;
    log.listen(&group);
    switch (wiring) {
    case Wiring::None:
        break;
    case Wiring::NullWidget:
        group.useWidget(nullptr);
        break;
    case Wiring::WidgetTwice:
        group.useWidget(&used);
        group.useWidget(&used);
        break;
    case Wiring::Widget:
        group.useWidget(&used);
        break;
    }
    log.entries.clear();
    QRadioButton* button = buttonOf(parent, click);
    if (!button)
        return {QStringLiteral("no button %1").arg(click)};
    button->click();
    return log.entries;
}

void TestRadioGroup::signalsReachingTheHost()
{
    QFETCH(bool, implementation);
    QFETCH(Form, form);
    QFETCH(Wiring, wiring);
    QFETCH(int, before);
    QFETCH(int, click);
    QFETCH(QStringList, expected);

    if (implementation) {
        VKD_P_RadioGroupImpl group;
        QCOMPARE(clickAndLog(group, form, wiring, before, click), expected);
    } else {
        VKD_P_RadioGroup group;
        QCOMPARE(clickAndLog(group, form, wiring, before, click), expected);
    }
}

void TestRadioGroup::coupledWidget_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<IdList>("choices");
    QTest::addColumn<bool>("plainTable");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("two buttons, nothing checked") << Form::TwoButtons << IdList() << false << false;
    QTest::newRow("two buttons, Manually") << Form::TwoButtons << IdList{1} << false << true;
    QTest::newRow("two buttons, All") << Form::TwoButtons << IdList{2} << false << false;
    QTest::newRow("two buttons, All and back to Manually")
        << Form::TwoButtons << IdList{2, 1} << false << true;
    QTest::newRow("load cases, Manually") << Form::LoadCases << IdList{1} << false << true;
    QTest::newRow("load cases, fire") << Form::LoadCases << IdList{1, 4} << false << false;
    QTest::newRow("echo output as built") << Form::EchoOutput << IdList() << false << true;
    QTest::newRow("echo output, no text output") << Form::EchoOutput << IdList{0} << false << false;
    QTest::newRow("echo output, full text output") << Form::EchoOutput << IdList{2} << false << false;
    QTest::newRow("a table view of Qt's own, All") << Form::TwoButtons << IdList{2} << true << false;
    QTest::newRow("a table view of Qt's own, Manually") << Form::TwoButtons << IdList{1} << true << true;
}

// The widget is enabled exactly while id 1 is checked.
void TestRadioGroup::coupledWidget()
{
    QFETCH(Form, form);
    QFETCH(IdList, choices);
    QFETCH(bool, plainTable);
    QFETCH(bool, enabled);

    QWidget parent;
    std::unique_ptr<QWidget> used;
    if (plainTable)
        used = std::make_unique<QTableView>(&parent);
    else
        used = std::make_unique<QLineEdit>(&parent);
    VKD_P_RadioGroup group;
    build(group, &parent, form, {3, 4, 5, 6, 7, 8, 9});
    // Start from the wrong state, so that only the group can have set the right one.
    used->setEnabled(!enabled);
    group.useWidget(used.get());
    for (int id : choices)
        buttonOf(parent, id)->click();
    QCOMPARE(used->isEnabled(), enabled);
}

void TestRadioGroup::coupledTableView_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<IdList>("choices");
    QTest::addColumn<bool>("editable");

    QTest::newRow("two buttons, nothing checked") << Form::TwoButtons << IdList() << false;
    QTest::newRow("two buttons, Manually") << Form::TwoButtons << IdList{1} << true;
    QTest::newRow("two buttons, Manually then All") << Form::TwoButtons << IdList{1, 2} << false;
    QTest::newRow("load cases, accidental then Manually") << Form::LoadCases << IdList{3, 1} << true;
    QTest::newRow("load cases, earthquake") << Form::LoadCases << IdList{5} << false;
    QTest::newRow("echo output as built") << Form::EchoOutput << IdList() << true;
    QTest::newRow("echo output, no text output") << Form::EchoOutput << IdList{0} << false;
}

// The suite's table view is made read-only instead of disabled: the user can still look.
void TestRadioGroup::coupledTableView()
{
    QFETCH(Form, form);
    QFETCH(IdList, choices);
    QFETCH(bool, editable);

    QWidget parent;
    auto* rowLayout = new QVBoxLayout(&parent);
    QStandardItemModel model(3, 2);
    vkd::properties::nextGen::QtTableView table(&parent);
    table.setModel(&model);
    VKD_P_RadioGroup group;
    build(group, &parent, form, {3, 4, 5});
    rowLayout->addLayout(group.layout());
    rowLayout->addWidget(&table);
    table.set_read_only(editable);
    group.useWidget(&table);
    for (int id : choices)
        buttonOf(parent, id)->click();
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));

    QVERIFY(table.isEnabled());
    QCOMPARE(table.is_read_only(), !editable);
    const QModelIndex cell = model.index(1, 1);
    // Through the window, so that the view sees the presses before the double click.
    const QPoint pos = table.viewport()->mapTo(&parent, table.visualRect(cell).center());
    QTest::mouseDClick(parent.windowHandle(), Qt::LeftButton, {}, pos);
    QCOMPARE(table.indexWidget(cell) != nullptr, editable);
    QVERIFY(table.isEnabled());
}

void TestRadioGroup::setSelectedId_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<IdList>("asked");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("selected");

    QTest::newRow("two buttons, All") << Form::TwoButtons << IdList() << -1 << 2 << 2;
    QTest::newRow("two buttons, a load case id") << Form::TwoButtons << IdList() << 1 << 3 << 1;
    QTest::newRow("load cases, All was not made") << Form::LoadCases << IdList{2, 3} << 3 << 2 << 3;
    QTest::newRow("load cases, an id not asked for") << Form::LoadCases << IdList{3} << 1 << 4 << 1;
    QTest::newRow("echo output, no text output") << Form::EchoOutput << IdList() << -1 << 0 << 0;
    QTest::newRow("echo output, a load case id") << Form::EchoOutput << IdList() << -1 << 9 << 1;
    QTest::newRow("no button, -1") << Form::TwoButtons << IdList() << 2 << -1 << 2;
}

void TestRadioGroup::setSelectedId()
{
    QFETCH(Form, form);
    QFETCH(IdList, asked);
    QFETCH(int, before);
    QFETCH(int, id);
    QFETCH(int, selected);

    QWidget parent;
    VKD_P_RadioGroup group;
    build(group, &parent, form, asked);
    if (before >= 0)
        group.setSelectedId(static_cast<VKD_P_RadioGroup::ButtonID>(before));
    group.setSelectedId(static_cast<VKD_P_RadioGroup::ButtonID>(id));
    QCOMPARE(int(group.getSelectedId()), selected);
}

void TestRadioGroup::setEnabledById_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("disabled");

    QTest::newRow("two buttons, All") << Form::TwoButtons << 2 << "m_All";
    QTest::newRow("two buttons, a load case id") << Form::TwoButtons << 4 << "";
    QTest::newRow("load cases, Manually") << Form::LoadCases << 1 << "m_Manually";
    QTest::newRow("load cases, earthquake") << Form::LoadCases << 5 << "m_All_E";
    QTest::newRow("echo output, no text output") << Form::EchoOutput << 0 << "m_NoTextOutput";
    QTest::newRow("no button, -1") << Form::EchoOutput << -1 << "";
    QTest::newRow("no button, 10") << Form::LoadCases << 10 << "";
}

void TestRadioGroup::setEnabledById()
{
    QFETCH(Form, form);
    QFETCH(int, id);
    QFETCH(QString, disabled);

    QWidget parent;
    VKD_P_RadioGroup group;
    build(group, &parent, form, {3, 4, 5});
    group.setEnabledById(static_cast<VKD_P_RadioGroup::ButtonID>(id), false);
    for (QRadioButton* b : parent.findChildren<QRadioButton*>())
        QCOMPARE(b->isEnabled(), b->objectName() != disabled);
    group.setEnabledById(static_cast<VKD_P_RadioGroup::ButtonID>(id), true);
    for (QRadioButton* b : parent.findChildren<QRadioButton*>())
        QVERIFY(b->isEnabled());
}

void TestRadioGroup::writeXML_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("text");

    QTest::newRow("two buttons, nothing checked") << Form::TwoButtons << -1 << "checked:";
    QTest::newRow("two buttons, Manually") << Form::TwoButtons << 1 << "checked:m_Manually";
    QTest::newRow("two buttons, All") << Form::TwoButtons << 2 << "checked:m_All";
    QTest::newRow("load cases, nothing checked") << Form::LoadCases << -1 << "checked:";
    QTest::newRow("load cases, Manually") << Form::LoadCases << 1 << "checked:m_Manually";
    QTest::newRow("load cases, accidental") << Form::LoadCases << 3 << "checked:m_All_A";
    QTest::newRow("load cases, fire") << Form::LoadCases << 4 << "checked:m_All_F";
    QTest::newRow("load cases, earthquake") << Form::LoadCases << 5 << "checked:m_All_E";
    QTest::newRow("load cases, characteristic") << Form::LoadCases << 6 << "checked:m_All_RARE";
    QTest::newRow("load cases, frequent") << Form::LoadCases << 7 << "checked:m_All_FREQ";
    QTest::newRow("load cases, quasi-permanent") << Form::LoadCases << 8 << "checked:m_All_PERM";
    QTest::newRow("load cases, non-frequent") << Form::LoadCases << 9 << "checked:m_All_NONF";
    QTest::newRow("echo output as built") << Form::EchoOutput << -1 << "checked:m_Manually";
    QTest::newRow("echo output, no text output") << Form::EchoOutput << 0 << "checked:m_NoTextOutput";
    QTest::newRow("echo output, full text output") << Form::EchoOutput << 2 << "checked:m_All";
}

// The text, and that a fresh group of the same form reads it back to the same choice.
void TestRadioGroup::writeXML()
{
    QFETCH(Form, form);
    QFETCH(int, id);
    QFETCH(QString, text);

    const IdList all{3, 4, 5, 6, 7, 8, 9};
    QWidget parent;
    VKD_P_RadioGroup group;
    build(group, &parent, form, all);
    if (id >= 0)
        group.setSelectedId(static_cast<VKD_P_RadioGroup::ButtonID>(id));
    QCOMPARE(group.writeXML(), text);

    QWidget otherParent;
    VKD_P_RadioGroup restored;
    build(restored, &otherParent, form, all);
    restored.readXML(text);
    QCOMPARE(restored.getSelectedId(), group.getSelectedId());
}

void TestRadioGroup::readXML_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<IdList>("asked");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("selected");
    QTest::addColumn<bool>("updated");

    QTest::newRow("a button of this form")
        << Form::TwoButtons << IdList() << -1 << "checked:m_All" << 2 << true;
    QTest::newRow("Manually over All")
        << Form::TwoButtons << IdList() << 2 << "checked:m_Manually" << 1 << true;
    QTest::newRow("a name without a button here")
        << Form::TwoButtons << IdList() << 2 << "checked:m_All_RARE" << 2 << true;
    QTest::newRow("the text of nothing checked")
        << Form::TwoButtons << IdList() << 2 << "checked:" << 2 << true;
    QTest::newRow("a part after the name")
        << Form::TwoButtons << IdList() << 1 << "checked:m_All:m_Manually" << 2 << true;
    QTest::newRow("a name in other case")
        << Form::TwoButtons << IdList() << 1 << "checked:M_ALL" << 1 << true;
    QTest::newRow("another tag") << Form::TwoButtons << IdList() << 2 << "selected:m_All" << 2 << false;
    QTest::newRow("the tag in other case")
        << Form::TwoButtons << IdList() << 1 << "Checked:m_All" << 1 << false;
    QTest::newRow("no colon") << Form::TwoButtons << IdList() << 1 << "m_All" << 1 << false;
    QTest::newRow("empty text") << Form::TwoButtons << IdList() << 2 << "" << 2 << false;
    QTest::newRow("load cases, characteristic")
        << Form::LoadCases << IdList{6} << 1 << "checked:m_All_RARE" << 6 << true;
    QTest::newRow("load cases, one not asked for")
        << Form::LoadCases << IdList{3} << 3 << "checked:m_All_F" << 3 << true;
    QTest::newRow("load cases, All was not made")
        << Form::LoadCases << IdList{2} << 1 << "checked:m_All" << 1 << true;
    QTest::newRow("echo output, no text output")
        << Form::EchoOutput << IdList() << -1 << "checked:m_NoTextOutput" << 0 << true;
    QTest::newRow("echo output, a load case name")
        << Form::EchoOutput << IdList() << 2 << "checked:m_All_A" << 2 << true;
}

// Whether the coupled widget was updated shows by its state: it starts as the update would not
// leave it.
void TestRadioGroup::readXML()
{
    QFETCH(Form, form);
    QFETCH(IdList, asked);
    QFETCH(int, before);
    QFETCH(QString, text);
    QFETCH(int, selected);
    QFETCH(bool, updated);

    QWidget parent;
    QLineEdit used(&parent);
    VKD_P_RadioGroup group;
    build(group, &parent, form, asked);
    group.useWidget(&used);
    if (before >= 0)
        group.setSelectedId(static_cast<VKD_P_RadioGroup::ButtonID>(before));
    const bool staleState = selected != VKD_P_RadioGroup::Manually;
    used.setEnabled(staleState);
    QSignalSpy clicked(&group, &VKD_P_RadioGroup::buttonClicked);

    group.readXML(text);
    QCOMPARE(int(group.getSelectedId()), selected);
    QCOMPARE(used.isEnabled(), updated ? !staleState : staleState);
    if (form != Form::EchoOutput)
        QCOMPARE(!clicked.isEmpty(), updated);
}

void TestRadioGroup::buttonsStayWithTheirParent()
{
    QWidget parent;
    QLineEdit used(&parent);
    auto group = std::make_unique<VKD_P_RadioGroup>();
    group->init(&parent);
    group->useWidget(&used);
    group->setSelectedId(VKD_P_RadioGroup::All);
    group.reset();

    QCOMPARE(parent.findChildren<QRadioButton*>().size(), 2);
    // Nothing is connected any more: a click changes the choice and leaves the widget alone.
    buttonOf(parent, 1)->click();
    QVERIFY(buttonOf(parent, 1)->isChecked());
    QVERIFY(!buttonOf(parent, 2)->isChecked());
    QVERIFY(!used.isEnabled());
}

QTEST_MAIN(TestRadioGroup)
#include "tst_radiogroup.moc"

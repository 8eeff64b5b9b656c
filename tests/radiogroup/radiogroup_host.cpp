// A host linked against libvkd_p_fea.so alone, as the suite's programs use the radio group: it
// runs each scenario on a group of its own and prints what it sees.
#include <QtTableView.h>
#include <VKD_P_RadioGroup.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpacerItem>

#include <cstdio>
#include <list>

namespace {

// The buttons of the row with their labels and tooltips, and what else the row holds.
QString rowText(QLayout* layout, const QWidget& parent)
{
    auto* row = qobject_cast<QHBoxLayout*>(layout);
    if (!row)
        return QStringLiteral("no row");
    QStringList items;
    for (int i = 0; i < row->count(); ++i) {
        const QSpacerItem* spacer = row->itemAt(i)->spacerItem();
        if (auto* b = qobject_cast<QRadioButton*>(row->itemAt(i)->widget()))
            items << '"' + b->text() + '"' + (b->toolTip().isEmpty() ? QString() : " [" + b->toolTip() + ']');
        else if (spacer && spacer->sizeHint().isNull() &&
                 spacer->sizePolicy() == QSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum))
            items << QStringLiteral("spacer");
        else
            items << QStringLiteral("something else");
        if (row->stretch(i) != 0)
            items.last() += QStringLiteral(" (stretched)");
    }
    return QStringLiteral("%1 buttons under the parent; row%2: ")
               .arg(parent.findChildren<QRadioButton*>().size())
               .arg(row->parent() ? QStringLiteral(" (with a parent)") : QString()) +
           items.join(QStringLiteral(", ")).replace('\n', QStringLiteral("\\n"));
}

// Runs a scenario of calls and clicks on a group and writes what a host sees: the row after an
// init, the signals of each step and the state after it. Steps, separated by blanks: init,
// lf:<ids> (initForLF), echo, use:<edit|table|qtable|null>, click:<id>, select:<id>, off:<id> and
// on:<id> (setEnabledById), read:<text>.
QString transcript(const QString& steps)
{
    using ButtonID = VKD_P_RadioGroup::ButtonID;
    QWidget parent;
    QLineEdit edit(&parent);
    QTableView qtTable(&parent);
    vkd::properties::nextGen::QtTableView table(&parent);
    VKD_P_RadioGroup group;
    QStringList log;
    auto note = [&log](const char* name) { return [&log, name] { log << QLatin1String(name); }; };
    auto noteId = [&log](const char* name) {
        return [&log, name](int id) { log << QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(id); };
    };
    QObject::connect(&group, &VKD_P_RadioGroup::buttonClicked, noteId("Clicked"));
    QObject::connect(&group, &VKD_P_RadioGroup::buttonNoOutputChecked, note("NoOutputChecked"));
    QObject::connect(&group, &VKD_P_RadioGroup::buttonManuallyChecked, note("ManuallyChecked"));
    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllChecked, note("AllChecked"));
    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllAcciChecked, note("AllAcciChecked"));
    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllFireChecked, note("AllFireChecked"));
    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllEartChecked, note("AllEartChecked"));
    QObject::connect(&group, &VKD_P_RadioGroup::buttonChecked, noteId("Checked"));
    // The buttons are named as in the persistent text.
    const char* const names[] = {"m_NoTextOutput", "m_Manually", "m_All",      "m_All_A",    "m_All_F",
                                 "m_All_E",        "m_All_RARE", "m_All_FREQ", "m_All_PERM", "m_All_NONF"};
    QString out = group.layout() ? QStringLiteral("a row before init\n") : QString();
    QWidget* used = nullptr;
    for (const QString& step : steps.split(' ')) {
        const QString op = step.section(':', 0, 0), arg = step.section(':', 1);
        const auto id = static_cast<ButtonID>(arg.toInt());
        std::list<ButtonID> ids;
        for (const QString& i : arg.split(',', Qt::SkipEmptyParts))
            ids.push_back(static_cast<ButtonID>(i.toInt()));
        QRadioButton* button = id >= 0 && id < 10 ? parent.findChild<QRadioButton*>(names[id]) : nullptr;
        if (op == "init")
            group.init(&parent);
        else if (op == "lf")
            group.initForLF(&parent, ids);
        else if (op == "echo")
            group.initEchoOutput(&parent);
        else if (op == "use")
            group.useWidget(used = arg == "edit"     ? &edit
                                   : arg == "table"  ? &table
                                   : arg == "qtable" ? static_cast<QWidget*>(&qtTable)
                                                     : nullptr);
        else if (op == "click")
            button ? button->click() : log.append(QStringLiteral("no such button"));
        else if (op == "select")
            group.setSelectedId(id);
        else if (op == "off" || op == "on")
            group.setEnabledById(id, op == "on");
        else if (op == "read")
            group.readXML(arg);
        QString state = QStringLiteral("%1 %2").arg(int(group.getSelectedId())).arg(group.writeXML());
        if (used == &table)
            state += table.is_read_only() ? QStringLiteral(", read-only") : QStringLiteral(", editable");
        if (used)
            state += used->isEnabled() ? QStringLiteral(", enabled") : QStringLiteral(", disabled");
        for (QRadioButton* b : parent.findChildren<QRadioButton*>())
            if (!b->isEnabled())
                state += ", " + b->objectName() + " off";
        const bool built = op == "init" || op == "lf" || op == "echo";
        out += step + " ->" + (log.isEmpty() ? QString() : ' ' + log.join(' ')) +
               (built ? " | " + rowText(group.layout(), parent) : QString()) + " | " + state + '\n';
        log.clear();
    }
    return out;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // clang-format off
    const char* const scenarios[][2] = {
        {"load cases, no list", "lf:"},
        {"load cases, every id backwards with 0, 1, 2 and 10", "lf:10,9,8,7,6,5,4,3,2,1,0"},
        {"load cases, an id asked twice", "lf:5,4,5"},
        {"a second init changes nothing", "init init lf:4 echo use:null click:2"},
        {"two buttons: All, Manually, and Manually again", "init use:edit click:2 click:1 click:1"},
        {"two buttons not wired", "init click:2 select:1"},
        {"two buttons wired twice", "init use:edit use:edit click:2"},
        {"load cases, each button",
         "lf:3,4,5,6,7,8,9 use:edit click:1 click:3 click:4 click:5 click:6 click:7 click:8 click:9 click:1"},
        {"load cases with no widget", "lf:9 use:null click:9"},
        {"echo output: no signal reaches the host", "echo use:edit click:0 click:2 click:1"},
        {"a table view of Qt's own is disabled", "init use:qtable click:1 click:2"},
        {"the suite's table view is made read-only", "lf:3,5 use:table click:1 click:5"},
        {"echo output steers the suite's table view", "echo use:table click:0"},
        {"two buttons: ids without a button are ignored",
         "init select:2 select:3 select:-1 off:4 off:2 on:2"},
        {"load cases: All and ids not asked for have no button",
         "lf:2,3 select:3 select:2 select:4 off:2 off:10 off:5 off:1"},
        {"echo output: a load case id", "echo select:0 select:9 off:-1 off:0"},
        {"two buttons: reading",
         "init use:edit read:checked:m_All read:checked:m_Manually read:checked:m_All_RARE read:checked: "
         "read:checked:m_All:m_Manually read:checked:M_ALL read:selected:m_All read:Checked:m_All "
         "read:m_All read:"},
        {"load cases: reading",
         "lf:3,6 use:edit read:checked:m_All_RARE read:checked:m_All_F read:checked:m_All"}};
    // clang-format on
    for (const auto& [name, steps] : scenarios)
        std::printf("== %s\n%s", name, qUtf8Printable(transcript(steps)));
    return 0;
}

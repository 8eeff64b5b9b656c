#pragma once
// Runs a scenario of calls and clicks on a radio group, the exported one or its implementation,
// and writes what a host sees: the row after an init, the signals of each step and the state
// after it.

#include <QtTableView.h>
#include <VKD_P_RadioGroup.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpacerItem>

#include <list>

namespace radiogrouptest {

// The buttons of the row with their labels and tooltips, and what else the row holds.
inline QString rowText(QLayout* layout, const QWidget& parent)
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

// Steps, separated by blanks: init, lf:<ids> (initForLF), echo, use:<edit|table|qtable|null>,
// click:<id>, select:<id>, off:<id> and on:<id> (setEnabledById), read:<text>.
template <class Group> QString transcript(const QString& steps)
{
    using ButtonID = VKD_P_RadioGroup::ButtonID;
    QWidget parent;
    QLineEdit edit(&parent);
    QTableView qtTable(&parent);
    vkd::properties::nextGen::QtTableView table(&parent);
    Group group;
    QStringList log;
    auto note = [&log](const char* name) { return [&log, name] { log << QLatin1String(name); }; };
    auto noteId = [&log](const char* name) {
        return [&log, name](int id) { log << QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(id); };
    };
    QObject::connect(&group, &Group::buttonClicked, noteId("Clicked"));
    QObject::connect(&group, &Group::buttonNoOutputChecked, note("NoOutputChecked"));
    QObject::connect(&group, &Group::buttonManuallyChecked, note("ManuallyChecked"));
    QObject::connect(&group, &Group::buttonAllChecked, note("AllChecked"));
    QObject::connect(&group, &Group::buttonAllAcciChecked, note("AllAcciChecked"));
    QObject::connect(&group, &Group::buttonAllFireChecked, note("AllFireChecked"));
    QObject::connect(&group, &Group::buttonAllEartChecked, note("AllEartChecked"));
    QObject::connect(&group, &Group::buttonChecked, noteId("Checked"));
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

} // namespace radiogrouptest

// A host dialog linked against libvkd_p_fea.so alone, as the suite's programs use the radio
// group: one group in each form, each with what it steers. It works the groups as a user
// would, stores and restores their choice, and prints what the host sees.
#include <QtTableView.h>
#include <VKD_P_RadioGroup.h>

#include <QApplication>
#include <QDialog>
#include <QLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <cstdio>

namespace {

void print(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
}

QList<QRadioButton*> buttonsOf(const VKD_P_RadioGroup& group)
{
    QList<QRadioButton*> buttons;
    for (int i = 0; i < group.layout()->count(); ++i) {
        if (auto* b = qobject_cast<QRadioButton*>(group.layout()->itemAt(i)->widget()))
            buttons << b;
    }
    return buttons;
}

void printRow(const QString& name, const VKD_P_RadioGroup& group)
{
    QStringList texts;
    for (QRadioButton* b : buttonsOf(group)) {
        QString text = QLatin1Char('"') + b->text() + QLatin1Char('"');
        if (!b->toolTip().isEmpty())
            text +=
                QStringLiteral(" [%1]").arg(b->toolTip().replace(QLatin1Char('\n'), QLatin1String("\\n")));
        texts << text;
    }
    print(name + QStringLiteral(": ") + texts.join(QLatin1String(", ")));
}

// Every signal the host gets, with the name of the group.
void listen(const QString& name, VKD_P_RadioGroup& group)
{
    auto log = [name](const QString& text) {
        print(QStringLiteral("  ") + name + QStringLiteral(" ") + text);
    };
    QObject::connect(&group, &VKD_P_RadioGroup::buttonClicked,
                     [log](int id) { log(QStringLiteral("buttonClicked(%1)").arg(id)); });
    QObject::connect(&group, &VKD_P_RadioGroup::buttonNoOutputChecked,
                     [log] { log("buttonNoOutputChecked"); });
    QObject::connect(&group, &VKD_P_RadioGroup::buttonManuallyChecked,
                     [log] { log("buttonManuallyChecked"); });
    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllChecked, [log] { log("buttonAllChecked"); });
    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllAcciChecked, [log] { log("buttonAllAcciChecked"); });
    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllFireChecked, [log] { log("buttonAllFireChecked"); });
    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllEartChecked, [log] { log("buttonAllEartChecked"); });
    QObject::connect(&group, &VKD_P_RadioGroup::buttonChecked,
                     [log](int id) { log(QStringLiteral("buttonChecked(%1)").arg(id)); });
}

QString stateOf(const QWidget& widget)
{
    if (auto* table = qobject_cast<const vkd::properties::nextGen::QtTableView*>(&widget))
        return table->is_read_only() ? QStringLiteral("read-only") : QStringLiteral("editable");
    return widget.isEnabled() ? QStringLiteral("enabled") : QStringLiteral("disabled");
}

class HostDialog : public QDialog
{
public:
    HostDialog()
    {
        auto* layout = new QVBoxLayout(this);
        m_manual.init(this);
        layout->addLayout(m_manual.layout());
        layout->addWidget(&m_loadCaseEdit);
        m_loadCases.initForLF(this, {VKD_P_RadioGroup::AllNonFrequent, VKD_P_RadioGroup::AllFire,
                                     VKD_P_RadioGroup::All, VKD_P_RadioGroup::AllCharacteristic,
                                     VKD_P_RadioGroup::AllAccidental});
        layout->addLayout(m_loadCases.layout());
        m_model.setRowCount(2);
        m_model.setColumnCount(2);
        m_table.setModel(&m_model);
        layout->addWidget(&m_table);
        m_echo.initEchoOutput(this);
        layout->addLayout(m_echo.layout());
    }

    void wire()
    {
        listen(QStringLiteral("manual"), m_manual);
        listen(QStringLiteral("load cases"), m_loadCases);
        listen(QStringLiteral("echo"), m_echo);
        m_manual.useWidget(&m_loadCaseEdit);
        m_loadCases.useWidget(&m_table);
        m_echo.useWidget(nullptr);
    }

    void click(const QString& name, VKD_P_RadioGroup& group, int index)
    {
        QRadioButton* button = buttonsOf(group).value(index);
        print(QStringLiteral("click \"%1\" of %2").arg(button->text(), name));
        button->click();
        printState();
    }

    void printState()
    {
        print(
            QStringLiteral("  state: manual %1 \"%2\" edit %3; load cases %4 \"%5\" table %6; echo %7 \"%8\"")
                .arg(m_manual.getSelectedId())
                .arg(m_manual.writeXML(), stateOf(m_loadCaseEdit))
                .arg(m_loadCases.getSelectedId())
                .arg(m_loadCases.writeXML(), stateOf(m_table))
                .arg(m_echo.getSelectedId())
                .arg(m_echo.writeXML()));
    }

    // Declared before the groups so that the groups go first, as in a host's member list.
    QLineEdit m_loadCaseEdit;
    QStandardItemModel m_model;
    vkd::properties::nextGen::QtTableView m_table;
    VKD_P_RadioGroup m_manual;
    VKD_P_RadioGroup m_loadCases;
    VKD_P_RadioGroup m_echo;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QStringList stored;
    {
        HostDialog dialog;
        printRow(QStringLiteral("manual"), dialog.m_manual);
        printRow(QStringLiteral("load cases"), dialog.m_loadCases);
        printRow(QStringLiteral("echo"), dialog.m_echo);
        print(QStringLiteral("wire"));
        dialog.wire();
        dialog.printState();
        dialog.click(QStringLiteral("manual"), dialog.m_manual, 0);
        dialog.click(QStringLiteral("manual"), dialog.m_manual, 1);
        dialog.click(QStringLiteral("load cases"), dialog.m_loadCases, 2);
        dialog.click(QStringLiteral("load cases"), dialog.m_loadCases, 3);
        dialog.click(QStringLiteral("load cases"), dialog.m_loadCases, 0);
        dialog.click(QStringLiteral("echo"), dialog.m_echo, 1);
        print(QStringLiteral("disable \"All Fire\""));
        dialog.m_loadCases.setEnabledById(VKD_P_RadioGroup::AllFire, false);
        print(QStringLiteral("  enabled: %1").arg(buttonsOf(dialog.m_loadCases).value(2)->isEnabled()));
        print(QStringLiteral("select id 9 of load cases"));
        dialog.m_loadCases.setSelectedId(VKD_P_RadioGroup::AllNonFrequent);
        stored =
            QStringList{dialog.m_manual.writeXML(), dialog.m_loadCases.writeXML(), dialog.m_echo.writeXML()};
        print(QStringLiteral("store: ") + stored.join(QLatin1String(" | ")));
    }
    print(QStringLiteral("restore in a new dialog"));
    HostDialog dialog;
    dialog.wire();
    dialog.m_manual.readXML(stored.value(0));
    dialog.m_loadCases.readXML(stored.value(1));
    dialog.m_echo.readXML(stored.value(2));
    dialog.printState();
    return 0;
}

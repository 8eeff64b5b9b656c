#pragma once

#include <LoadcaseInformation.h>

#include <QWidget>

#include <vector>

class VKD_H_TableWidget;
class VKD_P_RadioGroup;

// The load cases of the project for the graphical output: the library's load case radio group
// ("Manually", "All") coupled to a table in which the user ticks cases by hand.
class LoadCasePage : public QWidget
{
    Q_OBJECT
public:
    enum Column : int { UseColumn = 0, NumberColumn = 1, TitleColumn = 2 };

    LoadCasePage(int projectIndex, QWidget* parent = nullptr);
    ~LoadCasePage() override;

    VKD_H_TableWidget* table() const { return m_table; }
    VKD_P_RadioGroup* choice() const { return m_choice.get(); }
    // True while the user picks in the table.
    bool picksByHand() const;
    // The rows of "All"; none while the user picks by hand.
    std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation> chosenRows() const;

    // "checked:..." of the radio group and the ticked numbers, as kept in the project.
    QString stateText() const;
    void applyState(const QString& text);

signals:
    void choiceChanged();

private:
    struct Case
    {
        int number;
        int kind;
        QString title;
    };
    std::vector<Case> m_cases;
    VKD_H_TableWidget* m_table;
    std::unique_ptr<VKD_P_RadioGroup> m_choice;
};

#pragma once

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class VKD_P_WidgetGraphicalOutput;
class VKD_P_WidgetGraphicalOutput_AdditionalData;
class VKD_QT_RadioButtonGroup;

// A row of radio buttons above an output page that offers the plots of content the model does
// not show by itself, such as the results of a separate prestressing run: each button declares
// content tags of the catalogue as present, and the page's tree follows at once.
class ContentTagSwitch : public QWidget
{
    Q_OBJECT
public:
    enum Choice : int
    {
        ModelOnly = 0,
        Prestressing = 1,
        SectionCuts = 2,
        Bricks = 3,
        ChoiceCount = 4
    };

    // name: the object name of the radio group.
    ContentTagSwitch(VKD_P_WidgetGraphicalOutput* page, const char* name, QWidget* parent = nullptr);
    ~ContentTagSwitch() override;

    VKD_QT_RadioButtonGroup* group() const { return m_group; }
    // The checked button; ModelOnly while none is.
    int choice() const;
    // As a click on that button: for a choice kept in the project. A number without a button
    // changes nothing.
    void setChoice(int choice);
    // The tags a choice declares present.
    static QStringList tags(int choice);

signals:
    void choiceChanged();

private:
    VKD_QT_RadioButtonGroup* m_group;
    std::vector<std::unique_ptr<VKD_P_WidgetGraphicalOutput_AdditionalData>> m_switches;
};

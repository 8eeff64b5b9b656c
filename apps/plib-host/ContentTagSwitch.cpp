#include "ContentTagSwitch.h"

#include <VKD_P_WidgetGraphicalOutput_AdditionalData.h>
#include <VKD_QT_RadioButtonGroup.h>

#include <QVBoxLayout>

ContentTagSwitch::ContentTagSwitch(VKD_P_WidgetGraphicalOutput* page, const char* name, QWidget* parent)
    : QWidget(parent)
{
    std::vector<StructRadioButtonGrup> items(ChoiceCount);
    items[ModelOnly].text = tr("What the model holds");
    items[Prestressing].text = tr("Also prestressing");
    items[SectionCuts].text = tr("Also section cuts");
    items[Bricks].text = tr("Also bricks");
    for (int choice = 0; choice < ChoiceCount; ++choice)
        items[size_t(choice)].id = choice;
    m_group = new VKD_QT_RadioButtonGroup(tr("Plots offered"), items, this, name, Qt::Horizontal, -1);
    m_group->setToolTip(tr("Plots of results the model does not show by itself, such as those of a separate "
                           "prestressing run, are offered only when chosen here."));
    m_group->setButton(ModelOnly);
    // One switch per tag: a click on its button declares the tag, a click on any other withdraws it.
    for (int choice = ModelOnly + 1; choice < ChoiceCount; ++choice)
        for (const QString& tag : tags(choice)) {
            m_switches.emplace_back(new VKD_P_WidgetGraphicalOutput_AdditionalData);
            m_switches.back()->setWidget(page, m_group, tag, choice);
        }
    connect(m_group, &VKD_QT_RadioButtonGroup::buttWasClicked, this, &ContentTagSwitch::choiceChanged);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_group);
}

ContentTagSwitch::~ContentTagSwitch() = default;

int ContentTagSwitch::choice() const
{
    const int checked = m_group->selectedButton();
    return checked < 0 ? ModelOnly : checked;
}

void ContentTagSwitch::setChoice(int choice)
{
    if (choice < 0 || choice >= ChoiceCount)
        return;
    m_group->setButton(choice);
    for (auto& tagSwitch : m_switches)
        tagSwitch->clicked(choice);
    emit choiceChanged();
}

QStringList ContentTagSwitch::tags(int choice)
{
    switch (choice) {
    case Prestressing:
        return {QStringLiteral("Qten"), QStringLiteral("Bten")};
    case SectionCuts:
        return {QStringLiteral("Sir")};
    case Bricks:
        return {QStringLiteral("Bric")};
    default:
        return {};
    }
}

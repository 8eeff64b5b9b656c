#include "VKD_P_WidgetGraphicalOutput_AdditionalData.h"

#include "VKD_P_WidgetGraphicalOutput.h"

#include <VKD_QT_RadioButtonGroup.h>

VKD_P_WidgetGraphicalOutput_AdditionalData::VKD_P_WidgetGraphicalOutput_AdditionalData() = default;

VKD_P_WidgetGraphicalOutput_AdditionalData::~VKD_P_WidgetGraphicalOutput_AdditionalData() = default;

void VKD_P_WidgetGraphicalOutput_AdditionalData::setWidget(VKD_P_WidgetGraphicalOutput* page,
                                                           VKD_QT_RadioButtonGroup* group, const QString& tag,
                                                           int id)
{
    this->page = page;
    this->tag = tag;
    this->id = id;
    if (group)
        connect(group, &VKD_QT_RadioButtonGroup::buttWasClicked, this,
                &VKD_P_WidgetGraphicalOutput_AdditionalData::clicked);
}

void VKD_P_WidgetGraphicalOutput_AdditionalData::clicked(int no)
{
    if (page)
        page->additionalData(tag, no == id);
}

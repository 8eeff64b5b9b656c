#pragma once

#include "vkd_p_export.h"

#include <QObject>
#include <QString>

class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;

// Lets a radio button of the host switch a content tag of a graphical output page: each click on
// the button of id declares the tag once more as present in the model, a click on any other
// button withdraws it.
class VKD_P_EXPORT VKD_P_WidgetGraphicalOutput_AdditionalData : public QObject
{
    Q_OBJECT
public:
    VKD_P_WidgetGraphicalOutput_AdditionalData();
    ~VKD_P_WidgetGraphicalOutput_AdditionalData() override;

    // Neither is owned. The group's state is not read here: only clicks count.
    void setWidget(VKD_P_WidgetGraphicalOutput* page, VKD_QT_RadioButtonGroup* group, const QString& tag,
                   int id);

public slots:
    void clicked(int no);

private:
    QString tag;
    VKD_P_WidgetGraphicalOutput* page = nullptr;
    int id = -1;
};

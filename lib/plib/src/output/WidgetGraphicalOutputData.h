#pragma once

#include <VKD_P_WidgetGraphicalOutput_Progname.h>

class AnimatorView;
class GraphicalOutputTreeWidget;
class QPushButton;
class QWidget;
class VKD_H_BoxedLineEdit;
class VKD_H_Dialog;
class VKD_H_PluginParameter;
class VKD_H_TabDialog;
class VKD_QT4_ComboBox;
class VKD_QT_CheckBox;
class VKD_QT_GroupBox;
class VKD_QT_RadioButtonGroup;

// The state of a graphical output page. The widgets belong to the page's children; this record
// frees nothing but itself. Null marks a widget that the page's variant does not have.
struct WidgetGraphicalOutputData
{
    VKD_H_PluginParameter* pluginParameter = nullptr;
    VKD_QT_RadioButtonGroup* scaleGroup = nullptr;
    VKD_QT_RadioButtonGroup* picturesGroup = nullptr;
    VKD_QT_RadioButtonGroup* formatGroup = nullptr;
    VKD_QT_GroupBox* pageSplitBox = nullptr;
    VKD_QT4_ComboBox* pageSplitCombo = nullptr;
    VKD_QT_RadioButtonGroup* viewGroup = nullptr;
    VKD_H_BoxedLineEdit* fontEdit = nullptr;
    GraphicalOutputTreeWidget* tree = nullptr;
    VKD_QT_CheckBox* fillCheck = nullptr;
    VKD_QT4_ComboBox* scaleCombo = nullptr;
    QPushButton* defaultButton = nullptr;
    AnimatorView* animator = nullptr;
    QWidget* attribs = nullptr;
    // The view command still has to reach the preview when the page's tab first comes up.
    bool firstShow = true;
    bool spareFlagA = true;
    bool spareFlagB = false;
    VKD_H_TabDialog* tabDialog = nullptr;
    VKD_H_Dialog* dialog = nullptr;
    VKD_P_WidgetGraphicalOutput_Progname progname = GraphicalOutputStandard;
};

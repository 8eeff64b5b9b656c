#include "VKD_H_TwHeaderLineEditItem.h"

#include <vkd_h_fieldcheck.h>

VKD_H_TwHeaderLineEditItem::VKD_H_TwHeaderLineEditItem(int id, const StructLineEdit& description,
                                                       const QString& text, const QString& longText,
                                                       bool visible, Qt::Alignment alignment)
    : VKD_H_TwHeaderItem(id, text, longText, visible, alignment), m_description(description)
{
}

StructLineEdit VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(int code)
{
    return vkd_h_defaultLineEdit(code);
}

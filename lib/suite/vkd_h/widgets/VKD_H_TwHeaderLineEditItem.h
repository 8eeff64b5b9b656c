#pragma once

#include "VKD_H_TwHeaderItem.h"

#include <StructLineEdit.h>

// Header item of a column of numbers that the user types; the description says how the cells
// of the column read and show them.
class VKD_H_TwHeaderLineEditItem : public VKD_H_TwHeaderItem
{
public:
    VKD_H_TwHeaderLineEditItem(int id, const StructLineEdit& description, const QString& text,
                               const QString& longText, bool visible, Qt::Alignment alignment);
    const StructLineEdit& lineEditDescription() const { return m_description; }

    // The default description of an input field of a dimension code (docs/units.md).
    static StructLineEdit getDefaultStrcLe(int code);

private:
    StructLineEdit m_description;
};

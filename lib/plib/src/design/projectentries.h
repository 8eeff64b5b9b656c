#pragma once
// Rows without groups have no place among the design records of a project. A host with a
// project dialog page keeps them there instead, as entries MerPara1, MerPara2, ...: one line
// of seven fields separated by " | ", each value followed by ";".

#include "DesignParameterData.h"

#include <QString>

class VKD_H_ProjectDialogPage;

namespace vkd::plib::design {

// The entry text of a record, distances in the stored form.
QString entryText(const tagZOB_QUAD_RIM& record);

// Writes the rows without groups as MerPara1, MerPara2, ... and deletes the entries that a
// longer list left behind, up to the first missing number. The rows are in the stored form.
void writeRowsToEntries(const DesignParameterData& data, VKD_H_ProjectDialogPage& page);
// Appends a row without groups for each entry from MerPara1 up to the first missing one.
void readRowsFromEntries(DesignParameterData& data, const VKD_H_ProjectDialogPage& page);
// Fills the record of the row from an entry text. A text of fewer than seven fields leaves it
// as it is; missing values read as zero.
void parseEntry(const QString& text, DesignParameterRow& row);

} // namespace vkd::plib::design

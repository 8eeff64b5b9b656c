#pragma once
// The design parameter records in the project: one record per group at key pair 200, 6.
// Reading folds neighbouring equal records into rows; writing unfolds each row into one record
// per group. These run on the page's data alone, before and without any widget.

#include "DesignParameterData.h"

namespace vkd::plib::design {

constexpr int kDesignKey1 = 200;
constexpr int kDesignKey2 = 6;
// Records of other origin found at the design key pair are set aside here while writing.
constexpr int kScratchIndex = 0;
constexpr int kScratchKey1 = 0;
constexpr int kScratchKey2 = 12979;

// Makes sure that a project holds the design key pair: a pair never written gets the record
// for the remaining groups. A pair that was emptied, or holds anything, is left alone.
void checkAndCreateZobDefault(int index);

// Appends the rows read from data.designDoc. The row for the remaining groups goes first.
void readRowsFromZob(DesignParameterData& data);

// Replaces the design records of data.designDoc by those of the rows. The rows are turned
// into the stored form once (converted becomes true) and stay in it. Records of other origin
// are dropped from the key pair.
void writeRowsToZob(DesignParameterData& data, bool& converted);

// Appends a row for the user: default parameters, no groups.
DesignParameterRow& addDefaultRow(DesignParameterData& data);

} // namespace vkd::plib::design

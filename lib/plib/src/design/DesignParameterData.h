#pragma once
// The rows of the design parameter page and the state of one page. The rows are the truth:
// the table only shows texts made from them.

#include <tagZOB_QUAD_RIM.h>

#include <cstdint>
#include <vector>

class VKD_A_BarDiameterData;
class VKD_H_ZOBDoc;
class VKD_QT_Dialog;
class DesignParameterTable;

struct DesignParameterRow
{
    VKD_A_BarDiameterData* barData = nullptr; // not owned; turns bar values into text
    // By value. Its group word is only meaningful inside the writer.
    tagZOB_QUAD_RIM record{};
    // Empty: no group yet. Exactly {-1}: the remaining groups. Otherwise group numbers, and
    // secondary groups (1000000 and above) with their packed names.
    std::vector<int32_t> groups;
};

struct DesignParameterData
{
    int32_t kindOfSystem = 0;
    VKD_H_ZOBDoc* doc = nullptr;       // group dialogs and bar table
    VKD_H_ZOBDoc* designDoc = nullptr; // the records and the kind of system
    bool flagB = false;
    bool flagA = false;
    bool entriesLoaded = false;
    VKD_QT_Dialog* dialog = nullptr;
    DesignParameterTable* table = nullptr;
    std::vector<DesignParameterRow> rows; // in table order
    VKD_A_BarDiameterData* barData = nullptr;
};

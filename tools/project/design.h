#pragma once

#include <QString>

class VKD_H_ZOBDoc;

// The design parameter records of a project, one block per record: group, type and every
// field by name, reals in base units, "-" for not set.
QString dumpDesignRecords(int index);
// Design parameters for the demo model: remaining groups, and rows for the slab bays 1 to 4.
void writeDemoDesign(VKD_H_ZOBDoc& doc);

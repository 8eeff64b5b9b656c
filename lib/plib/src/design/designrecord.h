#pragma once
// The design parameter record in memory: its defaults, the two forms of its distances, the
// cleaning of records read from a project and the equality that folds records into rows.

#include "DesignParameterData.h"

#include <vector>

namespace vkd::plib::design {

// "Not set" in every real field, and a value that old records use for the same purpose.
constexpr float kNotSet = -99999.0f;
constexpr float kAlsoNotSet = 99999.0f;
constexpr int kUndefinedInteger = -99999;

// A real field of the record by name, in the order of the record.
struct RealField
{
    const char* name;
    float tagZOB_QUAD_RIM::*member;
};
extern const RealField kRealFields[48];

// The default record: for the remaining groups (group -1, type 1) or for a new row (group 0,
// type 0). Distances in the stored form.
tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups);

// Plane systems (kinds 10 to 19) carry no distances from the surface.
bool isPlaneSystem(int kindOfSystem);

// Stored form (absolute distances of each layer) to edited form (first distance, then the
// spacings between the layers), and back.
void toEditedForm(tagZOB_QUAD_RIM& record, int kindOfSystem);
void toStoredForm(tagZOB_QUAD_RIM& record, int kindOfSystem);
void toStoredForm(std::vector<DesignParameterRow>& rows, int kindOfSystem);

// Clears the values of a record from the store that mean "not set" in another way.
void cleanRecord(tagZOB_QUAD_RIM& record);

// Equal in the sense of the reader: every field from type up, but reservedD and reservedS.
// Reals compare as floats, so NaN is equal to nothing.
bool recordsEqual(const tagZOB_QUAD_RIM& a, const tagZOB_QUAD_RIM& b);

} // namespace vkd::plib::design

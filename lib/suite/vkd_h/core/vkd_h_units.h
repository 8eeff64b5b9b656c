#pragma once
// The suite's unit system. Records hold reals in the base units of the project (kN, m, rad);
// each input field and value text names a dimension code, and the code says in which unit the
// user reads the value and with how many decimals. The table is in docs/units.md.

#include <QString>

// Dimension codes in use by the design parameters.
enum VKD_H_DimensionCode : int
{
    VKD_H_DIM_NONE = -1,
    VKD_H_DIM_DIRECTION = 5,
    VKD_H_DIM_COORDINATE = 1001,
    VKD_H_DIM_REINFORCEMENT = 1021,
    VKD_H_DIM_BAR_DIAMETER = 1023,
    VKD_H_DIM_DISTANCE = 1024,
    VKD_H_DIM_CRACK_WIDTH = 1026,
    VKD_H_DIM_STEEL_STRESS = 1092,
};

struct VKD_H_Unit
{
    int code;
    double factor;     // value in the user's unit = value in base units * factor
    int decimals;      // decimals of the suite's number format for this code
    const char* label; // unit as the user reads it, UTF-8; empty for a bare number
    bool spaced;       // a blank stands between number and unit (not so for degrees)
};

// The unit of a dimension code, or null for a code the unit system does not know.
const VKD_H_Unit* vkd_h_unit(int code);

double vkd_h_toUserUnit(double baseValue, int code);
double vkd_h_fromUserUnit(double userValue, int code);

// A number in the suite's number format: fixed point with this many decimals, a point as the
// decimal separator in every language, no group separators, and no sign on a value that
// rounds to zero.
QString vkd_h_formatNumber(double value, int decimals);

// The value, given in base units, as the number the user reads for this code. decimals -1
// takes the decimals of the code. Unknown codes print the value unconverted with up to six
// significant digits.
QString vkd_h_getDimStringFromVal(double value, int code, int decimals);

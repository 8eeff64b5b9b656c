#pragma once

#include <QString>

// Unit texts of the dimension codes (see vkd_h_units.h).
class VKD_H_UnitLabel
{
public:
    enum Form
    {
        BehindNumber = 0, // to be appended directly to a number: " cm", "°"
        Bare = 1          // the unit alone, for headings: "cm", "°"
    };
    // Empty for codes without a unit.
    static QString dimString(int code, int form);
};

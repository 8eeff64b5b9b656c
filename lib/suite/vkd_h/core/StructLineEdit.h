#pragma once

#include <QString>
#include <QStringList>

// Kinds of value an input field takes.
enum VKD_H_LineEditKind : int
{
    VKD_H_LE_KIND_INTEGER = 1,
    VKD_H_LE_KIND_REAL = 2,
};

// Flags of an input field.
enum VKD_H_LineEditFlag : int
{
    // An empty field is allowed and means not set (-99999.0); without it a value is required.
    VKD_H_LE_EMPTY_MEANS_NOT_SET = 2048,
};

// The description of an input field for one value. Values and limits are in the base units of
// the project, as records hold them; the dimension code says what the user reads.
struct StructLineEdit
{
    int kind;                  // VKD_H_LineEditKind
    int dimensionCode;         // dimension code of the unit system (vkd_h_units.h)
    double value;              // what a new field shows before it is given a value
    double maximum;            // largest value accepted
    double minimum;            // smallest value accepted
    double notSetLimit;        // a given value at or below it is not set and shows as an empty field
    int flags;                 // VKD_H_LineEditFlag bits
    QString unitText;          // replaces the unit of the dimension code beside the field if not empty
    QString decimalSeparators; // characters taken as a decimal point besides '.' and ','
    QString placeholderText;   // shown greyed in an empty field
    QStringList choices;       // values offered as the user types; may be empty
};

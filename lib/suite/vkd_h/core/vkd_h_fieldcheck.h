#pragma once
// What an input field of the suite makes of the text a user typed or of a value a record gave
// it, kept apart from the widget so that it can be checked without one.

#include "StructLineEdit.h"

#include <QString>

// The real that means not set in every record of the suite.
constexpr double VKD_H_NOT_SET = -99999.0;

// The default description of an input field of a dimension code (docs/units.md).
StructLineEdit vkd_h_defaultLineEdit(int code);

struct VKD_H_FieldCheck
{
    enum Problem
    {
        NoProblem,
        NotANumber,    // the text is no number the field can read
        NotWhole,      // an integer field got a fraction
        ValueRequired, // empty, but the field does not allow not set
        OutOfLimits,   // a number beyond the minimum or maximum
        NotFinite,     // a given value that is NaN or infinite
    };
    Problem problem = NoProblem;
    double value = VKD_H_NOT_SET; // in base units; meaningful only without a problem
    bool accepted() const { return problem == NoProblem; }
};

// The text, read in the user's unit of the description's dimension code; empty is not set.
VKD_H_FieldCheck vkd_h_checkFieldText(const StructLineEdit& description, const QString& text);
// A value in base units as a record gives it.
VKD_H_FieldCheck vkd_h_checkFieldValue(const StructLineEdit& description, double value);

// The text a field shows for a value in base units: empty for not set, the number in the
// user's unit otherwise ("nan", "inf" as they stand, so that the user sees what is wrong).
QString vkd_h_fieldText(const StructLineEdit& description, double value);
// The unit the user reads beside the field; empty for a bare number.
QString vkd_h_fieldUnit(const StructLineEdit& description);
// Why a field refuses, in a sentence for the user; empty without a problem. text is what
// the field holds.
QString vkd_h_fieldProblemText(const StructLineEdit& description, VKD_H_FieldCheck::Problem problem,
                               const QString& text);

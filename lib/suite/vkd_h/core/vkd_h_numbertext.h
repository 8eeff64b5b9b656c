#pragma once

#include <QString>

// Reads a number as a user types it: optional sign, digits with a decimal point or a decimal
// comma (whatever the language of the desktop), optional exponent, blanks around it. Group
// separators, words ("nan", "inf") and numbers too large for a double are refused. On success
// *value holds the number; on refusal it is left alone.
bool vkd_h_parseUserNumber(const QString& text, double* value);

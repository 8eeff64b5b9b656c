#pragma once

#include <QString>

#include <list>

// The description of an input field for one number: what it holds, its limits and how it reads.
struct StructLineEdit
{
    // 2: a real number.
    int kind = 2;
    int decimals = 0;
    // Dimension code of the suite's unit system; -1 for none.
    int dimension = -1;
    int unitIndex = -1;
    // The value a field starts from.
    double value = 0.0;
    // A value is accepted from minimum to maximum, both included.
    double minimum = 0.0;
    double maximum = 0.0;
    double thirdLimit = 0.0;
    int flags = 0;
    QString unitText;
    // Characters read as a decimal point beside the point itself, such as ",".
    QString decimalSeparators;
    QString format;
    // Values offered for picking; empty for a free field.
    std::list<QString> entries;
};

#pragma once

#include <QString>

// One entry of a combo box: its text, its id and a further number the owner may use.
struct ComboList
{
    QString text;
    int id = -99999;
    int extra = -99999;
};

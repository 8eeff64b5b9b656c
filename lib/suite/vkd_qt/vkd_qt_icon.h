#pragma once

#include <QIcon>

// A numbered icon of the suite at a size in pixels, sharp on screens of twice the density too.
// A number the suite has no picture for gives a null icon.
QIcon vkd_qt_icon(int number, int size);

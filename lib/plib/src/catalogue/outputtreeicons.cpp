#include "outputtreeicons.h"

#include <QPixmap>

namespace vkd::plib::widgetgraphicaloutput {

namespace {

// The pictures stay one row a line.
// clang-format off

// A card with a landscape: sky, sun, mountain, meadow.
const char* const plotXpm[] = {
    "16 15 7 1",
    "  c None",
    ". c #FFFFFF",
    "# c #808080",
    "k c #000000",
    "g c #00C000",
    "c c #00FFFF",
    "y c #FFFF00",
    "################",
    "#..............#",
    "#.cccccccccccc.#",
    "#.ccccccccyycc.#",
    "#.cccccccyyyyc.#",
    "#.ccckcccyyyyc.#",
    "#.cckkkcccyycc.#",
    "#.ckkkkkcccccc.#",
    "#.kkkkkkkccckc.#",
    "#.gkkkkkkkckkk.#",
    "#.gggggggggggg.#",
    "#.gggggggggggg.#",
    "#.gggggggggggg.#",
    "#..............#",
    "################",
};

const char* const rowGermanXpm[] = {
    "16 16 2 1",
    "  c None",
    "x c #008000",
    "                ",
    "                ",
    "                ",
    " xx      xxxxxx ",
    " xx      xxxxxx ",
    " xx      xx     ",
    " xx      xx     ",
    " xx      xxxxx  ",
    " xx      xxxxx  ",
    " xx      xx     ",
    " xx      xx     ",
    " xxxxxx  xx     ",
    " xxxxxx  xx     ",
    "                ",
    "                ",
    "                ",
};

const char* const rowEnglishXpm[] = {
    "16 16 2 1",
    "  c None",
    "x c #008000",
    "                ",
    "                ",
    "                ",
    " xx       xxxxx ",
    " xx      xxxxxx ",
    " xx     xx      ",
    " xx     xx      ",
    " xx     xx      ",
    " xx     xx      ",
    " xx     xx      ",
    " xx     xx      ",
    " xxxxxx  xxxxxx ",
    " xxxxxx   xxxxx ",
    "                ",
    "                ",
    "                ",
};

// A white box with a black bar across, and its shadow.
const char* const closeXpm[] = {
    "16 16 4 1",
    "  c None",
    "k c #000000",
    ". c #FFFFFF",
    "g c #808080",
    "                ",
    " kkkkkkkkkkkkk  ",
    " k...........kg ",
    " k...........kg ",
    " k...........kg ",
    " k...........kg ",
    " k...........kg ",
    " k.kkkkkkkkk.kg ",
    " k.kkkkkkkkk.kg ",
    " k...........kg ",
    " k...........kg ",
    " k...........kg ",
    " k...........kg ",
    " kkkkkkkkkkkkkg ",
    "  gggggggggggggg",
    "                ",
};

// clang-format on

} // namespace

QIcon plotIcon()
{
    static const QIcon icon{QPixmap(plotXpm)};
    return icon;
}

QIcon rowIcon(int language)
{
    static const QIcon german{QPixmap(rowGermanXpm)};
    static const QIcon english{QPixmap(rowEnglishXpm)};
    return language == 0 ? german : english;
}

QIcon closeIcon()
{
    static const QIcon icon{QPixmap(closeXpm)};
    return icon;
}

} // namespace vkd::plib::widgetgraphicaloutput

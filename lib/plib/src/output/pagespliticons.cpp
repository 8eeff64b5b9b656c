#include "pagespliticons.h"

#include <vector>

namespace vkd::plib::widgetgraphicaloutput {

namespace {

const QRgb kOutline = 0xff0000ff;
const QRgb kShadow = 0xff000080;
const QRgb kPaper = 0xffffffff;

// Pixel columns and rows of a sheet, both ends included.
struct Sheet
{
    int left, right, top, bottom;
};

const Sheet kPortrait{5, 25, 3, 29};
const Sheet kLandscape{2, 28, 6, 26};

void horizontal(QImage& image, int row, int from, int to, QRgb colour)
{
    for (int x = from; x <= to; ++x)
        image.setPixel(x, row, colour);
}

void vertical(QImage& image, int column, int from, int to, QRgb colour)
{
    for (int y = from; y <= to; ++y)
        image.setPixel(column, y, colour);
}

} // namespace

QImage pageSplitIcon(int id)
{
    if (id < 0 || id >= pageSplitCount)
        return QImage();
    const bool landscape = id >= LandscapeWhole;
    const Sheet s = landscape ? kLandscape : kPortrait;
    std::vector<int> rows;
    std::vector<int> columns;
    switch (id) {
    case PortraitTwoRows:
        rows = {16};
        break;
    case PortraitTwoByTwo:
    case LandscapeTwoByTwo:
        rows = {16};
        columns = {15};
        break;
    case PortraitThreeRowsTwoColumns:
        rows = {12, 20};
        columns = {15};
        break;
    default:
        break;
    }
    QImage image(32, 32, QImage::Format_RGB32);
    image.fill(kPaper);
    // The shadow lies one pixel above and right of the sheet.
    horizontal(image, s.top - 1, s.left + 1, s.right + 1, kShadow);
    vertical(image, s.right + 1, s.top - 1, s.bottom - 1, kShadow);
    horizontal(image, s.top, s.left, s.right, kOutline);
    horizontal(image, s.bottom, s.left, s.right, kOutline);
    vertical(image, s.left, s.top, s.bottom, kOutline);
    vertical(image, s.right, s.top, s.bottom, kOutline);
    for (int row : rows)
        horizontal(image, row, s.left, s.right, kOutline);
    for (int column : columns)
        vertical(image, column, s.top, s.bottom, kOutline);
    return image;
}

} // namespace vkd::plib::widgetgraphicaloutput

#include "dlgDistanceDirection.h"

#include "languagefile.h"

#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_QT_GroupBox.h>
#include <VKD_QT_InfoText.h>
#include <VKD_QT_Label.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Ok.h>
#include <vkd_h_fieldcheck.h>
#include <vkd_h_units.h>

#include <QFile>
#include <QPushButton>

namespace {

enum DesignType
{
    TwoLayersOrthogonal = 1,
    TwoLayers = 2,
    ThreeLayers = 3,
    Circular = 4,
};

constexpr int kButtonsOkAndCancel = 3;
constexpr int kColumnLabel = 0;
constexpr int kColumnUpper = 1;
constexpr int kColumnLower = 3;
constexpr int kRowNote = 4;
constexpr int kNoteColumns = 4;
constexpr int kFigureColumn = 10;
constexpr int kFigureRows = 5;
constexpr int kFigureColumns = 14;
constexpr int kCoordinateColumns = 2;
constexpr float kNotSet = -99999.0f;

} // namespace

const dlgDistanceDirection::Binding dlgDistanceDirection::kBindings[15] = {
    {&dlgDistanceDirection::hio, &tagZOB_QUAD_RIM::hio},
    {&dlgDistanceDirection::hiu, &tagZOB_QUAD_RIM::hiu},
    {&dlgDistanceDirection::hioq, &tagZOB_QUAD_RIM::hioq},
    {&dlgDistanceDirection::hiuq, &tagZOB_QUAD_RIM::hiuq},
    {&dlgDistanceDirection::hioi, &tagZOB_QUAD_RIM::hioi},
    {&dlgDistanceDirection::hiui, &tagZOB_QUAD_RIM::hiui},
    {&dlgDistanceDirection::rio, &tagZOB_QUAD_RIM::rio},
    {&dlgDistanceDirection::riu, &tagZOB_QUAD_RIM::riu},
    {&dlgDistanceDirection::rioq, &tagZOB_QUAD_RIM::rioq},
    {&dlgDistanceDirection::riuq, &tagZOB_QUAD_RIM::riuq},
    {&dlgDistanceDirection::rioi, &tagZOB_QUAD_RIM::rioi},
    {&dlgDistanceDirection::riui, &tagZOB_QUAD_RIM::riui},
    {&dlgDistanceDirection::xref, &tagZOB_QUAD_RIM::xref},
    {&dlgDistanceDirection::yref, &tagZOB_QUAD_RIM::yref},
    {&dlgDistanceDirection::zref, &tagZOB_QUAD_RIM::zref},
};

dlgDistanceDirection::dlgDistanceDirection(tagZOB_QUAD_RIM* record, QWidget* parent) : VKD_QT_Dialog(parent)
{
    setPalette(QPalette(Qt::white));
    setAutoFillBackground(true);
    setWindowTitle(tr("Direction and Distance"));

    StructLineEdit distance = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(VKD_H_DIM_DISTANCE);
    StructLineEdit direction = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(VKD_H_DIM_DIRECTION);

    auto* layout = new VKD_QT_VBoxLayout;
    const int type = record->type;
    if (type >= TwoLayersOrthogonal && type <= ThreeLayers)
        buildLayered(layout, type, direction, distance);
    else if (type == Circular)
        buildCircular(layout, direction, distance);

    auto* buttons = new VKD_QT_Ok(this, kButtonsOkAndCancel, "okayandcancelbutton");
    layout->addWidget(buttons);
    // The button row may have wired itself to this dialog already; once is enough.
    connect(buttons->cmdOk(), &QPushButton::clicked, this, &QDialog::accept, Qt::UniqueConnection);
    connect(buttons->cmdCancel(), &QPushButton::clicked, this, &QDialog::reject, Qt::UniqueConnection);
    setLayout(layout);

    for (const Binding& b : kBindings)
        if (VKD_H_LineEdit* edit = this->*b.edit)
            edit->setVal(double(record->*b.field));
}

void dlgDistanceDirection::writeToRecord(tagZOB_QUAD_RIM* record)
{
    for (const Binding& b : kBindings)
        record->*b.field = kNotSet;
    for (const Binding& b : kBindings)
        if (VKD_H_LineEdit* edit = this->*b.edit)
            record->*b.field = float(edit->getVal());
}

void dlgDistanceDirection::buildLayered(VKD_QT_VBoxLayout* layout, int type, StructLineEdit& direction,
                                        StructLineEdit& distance)
{
    const QString angle = tr("Rotation angle of reinforcement towards local x-axis");
    const QString axial = tr("Axial Distance");
    const QString range = QStringLiteral(" (0 ... 180)");

    auto* directionBox = new VKD_QT_GroupBox(tr("Direction"), this, "direction");
    layout->addWidget(directionBox);
    auto* grid = new VKD_QT_GridLayout(directionBox);
    addHeading(directionBox, grid);
    addPair(directionBox, grid, 1, tr("Principal Reinforcement") + range, direction, "rio", "riu", angle, rio,
            riu);
    if (type >= TwoLayers)
        addPair(directionBox, grid, 2, tr("Cross Reinforcement") + range, direction, "rioq", "riuq", angle,
                rioq, riuq);
    if (type == ThreeLayers)
        addPair(directionBox, grid, 3, tr("Third Layer") + range, direction, "rioi", "riui", angle, rioi,
                riui);
    addNote(grid, kRowNote);
    addFigure(directionBox, grid, GET_FILENAME_WITH_LANG(QStringLiteral(":/neq_merpara_rich.png")));

    auto* distanceBox = new VKD_QT_GroupBox(tr("Distance"), this, "distance");
    layout->addWidget(distanceBox);
    grid = new VKD_QT_GridLayout(distanceBox);
    addHeading(distanceBox, grid);
    addPair(distanceBox, grid, 1, tr("Principal Reinforcement") + QStringLiteral(" (H)"), distance, "hio",
            "hiu", axial, hio, hiu);
    addPair(distanceBox, grid, 2, tr("Cross Reinforcement") + QStringLiteral(" (DH)"), distance, "hioq",
            "hiuq", axial, hioq, hiuq);
    if (type == ThreeLayers)
        addPair(distanceBox, grid, 3, tr("Third layer reinforcement (DDH)"), distance, "hioi", "hiui", axial,
                hioi, hiui);
    // Letters only, so one form serves every language.
    addFigure(distanceBox, grid, QStringLiteral(":/betondeckung_1.png"));
}

void dlgDistanceDirection::buildCircular(VKD_QT_VBoxLayout* layout, StructLineEdit& direction,
                                         StructLineEdit& distance)
{
    const QString axial = tr("Axial Distance");

    auto* box = new VKD_QT_GroupBox(tr("Direction / Distance"), this, "direction_distance");
    layout->addWidget(box);
    auto* grid = new VKD_QT_GridLayout(box);
    addHeading(box, grid);
    addPair(box, grid, 1, tr("Direction (-180 ... 180)"), direction, "rio", "riu",
            tr("Rotation angle of reinforcement towards local x-axis"), rio, riu);
    addPair(box, grid, 2, tr("Distance of Principal Reinforcement (H)"), distance, "hio", "hiu", axial, hio,
            hiu);
    addPair(box, grid, 3, tr("Distance of Cross Reinforcement (DH)"), distance, "hioq", "hiuq", axial, hioq,
            hiuq);
    addNote(grid, kRowNote);
    addFigure(box, grid, GET_FILENAME_WITH_LANG(QStringLiteral(":/neq_merpara_rich.png")));

    StructLineEdit coordinate = vkd_h_defaultLineEdit(VKD_H_DIM_COORDINATE);
    const QString reference = tr("Reference point for circular reinforcement");
    auto* midpoint = new VKD_QT_GroupBox(tr("Midpoint"), this, "Midpoint");
    layout->addWidget(midpoint);
    grid = new VKD_QT_GridLayout(midpoint);
    const struct
    {
        const char* label;
        const char* name;
        VKD_H_LineEdit* dlgDistanceDirection::*edit;
    } coordinates[] = {
        {QT_TR_NOOP("X coordinate"), "xref", &dlgDistanceDirection::xref},
        {QT_TR_NOOP("Y coordinate"), "yref", &dlgDistanceDirection::yref},
        {QT_TR_NOOP("Z coordinate"), "zref", &dlgDistanceDirection::zref},
    };
    for (int row = 0; row < 3; ++row) {
        grid->addWidget(new VKD_QT_Label(tr(coordinates[row].label), midpoint), row, kColumnLabel);
        auto* edit =
            new VKD_H_LineEdit(midpoint, &coordinate, coordinates[row].name, reference, QString(), true);
        grid->addWidget(edit, row, kColumnUpper, 1, kCoordinateColumns);
        this->*coordinates[row].edit = edit;
    }
}

VKD_H_LineEdit* dlgDistanceDirection::addEdit(QWidget* box, VKD_QT_GridLayout* grid, int row, int column,
                                              StructLineEdit& description, const char* name,
                                              const QString& text)
{
    auto* edit = new VKD_H_LineEdit(box, &description, name, text, QString(), true);
    grid->addWidget(edit, row, column);
    return edit;
}

void dlgDistanceDirection::addPair(QWidget* box, VKD_QT_GridLayout* grid, int row, const QString& label,
                                   StructLineEdit& description, const char* upperName, const char* lowerName,
                                   const QString& text, VKD_H_LineEdit*& upper, VKD_H_LineEdit*& lower)
{
    grid->addWidget(new VKD_QT_Label(label, box), row, kColumnLabel);
    upper = addEdit(box, grid, row, kColumnUpper, description, upperName, text);
    lower = addEdit(box, grid, row, kColumnLower, description, lowerName, text);
}

void dlgDistanceDirection::addHeading(QWidget* box, VKD_QT_GridLayout* grid)
{
    grid->addWidget(new VKD_QT_Label(tr("Upper") + QStringLiteral(" (A)"), box), 0, kColumnUpper);
    grid->addWidget(new VKD_QT_Label(tr("Lower") + QStringLiteral(" (B)"), box), 0, kColumnLower);
}

void dlgDistanceDirection::addNote(VKD_QT_GridLayout* grid, int row)
{
    auto* note = new VKD_QT_InfoText(
        true,
        tr("The local x-axis of the elements is the default direction of the principal reinforcement."));
    grid->addWidget(note, row, kColumnLabel, 1, kNoteColumns);
}

void dlgDistanceDirection::addFigure(QWidget* box, VKD_QT_GridLayout* grid, const QString& resource)
{
    auto* figure = new VKD_QT_Label(box, nullptr, Qt::WindowFlags());
    // Where the screen scales by two, the figure drawn at twice the pixels (name@2x.png).
    QPixmap pixmap(resource);
    const QString sharp = QString(resource).replace(QStringLiteral(".png"), QStringLiteral("@2x.png"));
    if (figure->devicePixelRatioF() > 1 && QFile::exists(sharp)) {
        pixmap = QPixmap(sharp);
        pixmap.setDevicePixelRatio(2);
    }
    figure->setPixmap(pixmap);
    grid->addWidget(figure, 0, kFigureColumn, kFigureRows, kFigureColumns, Qt::AlignHCenter);
}

#pragma once
// How the reinforcement layers of a row lie: the direction of each layer against the local
// x-axis, the distances of the layers from the surfaces (first layer, then spacings) and, for
// circular reinforcement, the reference point. What it offers depends on the row's type; a
// field without an edit in that type becomes not set on OK.

#include <VKD_QT_Dialog.h>
#include <tagZOB_QUAD_RIM.h>

class VKD_H_LineEdit;
class VKD_QT_GridLayout;
class VKD_QT_VBoxLayout;
struct StructLineEdit;

class dlgDistanceDirection : public VKD_QT_Dialog
{
    Q_OBJECT
public:
    dlgDistanceDirection(tagZOB_QUAD_RIM* record, QWidget* parent);
    // Overwrites the 15 direction, distance and reference point fields from the edits.
    void writeToRecord(tagZOB_QUAD_RIM* record);

private:
    struct Binding
    {
        VKD_H_LineEdit* dlgDistanceDirection::*edit;
        float tagZOB_QUAD_RIM::*field;
    };
    static const Binding kBindings[15];

    void buildLayered(VKD_QT_VBoxLayout* layout, int type, StructLineEdit& direction,
                      StructLineEdit& distance);
    void buildCircular(VKD_QT_VBoxLayout* layout, StructLineEdit& direction, StructLineEdit& distance);
    VKD_H_LineEdit* addEdit(QWidget* box, VKD_QT_GridLayout* grid, int row, int column,
                            StructLineEdit& description, const char* name, const QString& text);
    void addPair(QWidget* box, VKD_QT_GridLayout* grid, int row, const QString& label,
                 StructLineEdit& description, const char* upperName, const char* lowerName,
                 const QString& text, VKD_H_LineEdit*& upper, VKD_H_LineEdit*& lower);
    void addHeading(QWidget* box, VKD_QT_GridLayout* grid);
    void addNote(VKD_QT_GridLayout* grid, int row);
    void addFigure(QWidget* box, VKD_QT_GridLayout* grid, const QString& resource);

    VKD_H_LineEdit* hio = nullptr;
    VKD_H_LineEdit* hiu = nullptr;
    VKD_H_LineEdit* hioq = nullptr;
    VKD_H_LineEdit* hiuq = nullptr;
    VKD_H_LineEdit* hioi = nullptr;
    VKD_H_LineEdit* hiui = nullptr;
    VKD_H_LineEdit* rio = nullptr;
    VKD_H_LineEdit* riu = nullptr;
    VKD_H_LineEdit* rioq = nullptr;
    VKD_H_LineEdit* riuq = nullptr;
    VKD_H_LineEdit* rioi = nullptr;
    VKD_H_LineEdit* riui = nullptr;
    VKD_H_LineEdit* xref = nullptr;
    VKD_H_LineEdit* yref = nullptr;
    VKD_H_LineEdit* zref = nullptr;
};

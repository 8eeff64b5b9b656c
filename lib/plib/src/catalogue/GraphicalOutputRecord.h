#pragma once

#include <QString>

// ctrl: what the word of caseWord binds a plot to.
enum CaseControl
{
    CaseControlNoCases = -1, // any other word: the plot stands without load cases
    CaseControlBeams = -10,  // beam, dsln
    CaseControlOther = 0,    // sngl, nonl, supp, eige, zrt1, zrt2
    CaseControlLast = 1,     // last
    CaseControlDesign = 8,   // desi
};

// rowClass: the suffix of caseWord, which says the kind of load case rows a plot takes.
enum RowClass
{
    RowClassNone = 0,
    RowClassL = 1,
    RowClassC = 2,
    RowClassE = 3,
};

// isLC of a tree item: for a row the rowMark of its plot's record.
enum RowMark
{
    RowMarkNoLine = -1,   // the item makes no script line itself
    RowMarkPlotAlone = 0, // a plot that stands without load cases
    RowMarkCase = 1,
    RowMarkExtreme = 2,
    RowMarkDesignExtreme = 3,
};

// One line of the catalogue graphicaloutput.data. The tree items made of one record share a copy.
struct GraphicalOutputRecord
{
    // Values of VKD_P_WidgetGraphicalOutput_Progname for which the plot is offered.
    int prog1 = 0;
    int prog2 = 0;
    int prog3 = 0;
    // Resolved captions of the three levels of the tree.
    QString title1;
    QString title2;
    QString title3;
    // Model content that the plot needs; an unknown text sets no condition.
    QString contentTag;
    // Identifiers of the three captions, seven characters each. They don't depend on the
    // language, so that a stored choice survives a change of language.
    QString id1;
    QString id2;
    QString id3;
    int number7 = 0;
    // Binding to load cases as written in the file, and what it means.
    QString caseWord;
    int ctrl = 0;
    int rowClass = 0;
    // The isLC value that load case rows of this plot carry.
    int rowMark = 0;
    int preselect = 0;
    int viewKind = 0;
    int systemMask = 0;
    QString text11;
    QString scriptGerman;
    QString scriptEnglish;
};

#pragma once

// The kind of a graphical output page. Only the split and the prefix variant behave apart;
// every other value is a standard page. The catalogue's program columns hold these values.
enum VKD_P_WidgetGraphicalOutput_Progname : int {
    // The programs of the catalogue's standard pages.
    GraphicalOutputStandard = 1,
    // Page setup only: a pair of SIZE statements, no script of plots.
    GraphicalOutputSplit = 122,
    // A full script with the caller's text ahead of the plot lines instead of behind them.
    GraphicalOutputPrefix = 222,
};

#pragma once
// The lines that open and close the block of one batch program in an input file of the suite
// (written down in docs/script.md).

#include <QString>

class VKD_H_PluginParameter;

// Opening lines, each with its line end: "+PROG <program> echo:<echoLevel> $ <title>", then a
// comment naming <head> and the project file. mode 0 opens a block of its own; any other mode
// continues an input file that already names its project, so the comment is left out.
QString vkd_h_generatePROG(VKD_H_PluginParameter* parameter, const QString& program, const QString& title,
                           const QString& head, int echoLevel, int mode);
// The closing line without its line end: "END" for language 1 (English keywords), "ENDE" else.
QString vkd_h_generateENDE(int language);

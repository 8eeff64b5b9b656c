#pragma once

#include "scriptlines.h"

#include <VKD_P_WidgetGraphicalOutput_Progname.h>

#include <QString>

#include <functional>
#include <vector>

namespace vkd::plib::widgetgraphicaloutput {

// Entry numbers of the page's radio groups, which the script and the page's stored state
// rely on.
enum ScaleMode : int { EngineeringScale = 0, ScaleToFit = 1 };
enum SheetFormat : int { Portrait = 0, Landscape = 1 };
enum PicturesPerPage : int { OnePerPage = 0, TwoPerPage = 1 };
enum ViewChoice : int { ViewXY = 0, ViewXZ = 1, ViewYZ = 2, View3DStandard = 3, ViewUserDefined = 4 };

// The settings of the output page as the script sees them, read from the page's widgets anew for
// every script request. The defaults are those of a freshly built standard page.
struct OutputSettings
{
    VKD_P_WidgetGraphicalOutput_Progname variant = GraphicalOutputStandard;
    int scaleMode = ScaleToFit;
    // Row of the scale list; row 0 is "Auto".
    int scaleIndex = 0;
    QString scaleText = QStringLiteral("Auto");
    // Sheet division 0 to 5; split variant only.
    int pageSplitId = 0;
    // The format group exists (not in the split variant).
    bool hasFormat = true;
    int formatId = Portrait;
    int picturesId = TwoPerPage;
    int viewId = View3DStandard;
    // Font size in millimetres, as typed.
    QString fontSizeText = QStringLiteral("2");
    bool fillAreas = false;
};

// What the script needs from the project and the suite beyond the page's settings. Asked only
// when the script needs the answer.
class ScriptEnvironment
{
public:
    virtual ~ScriptEnvironment() = default;
    // The lines that open a block of the graphics program, with their line ends.
    virtual QString programStart() const = 0;
    // The text that closes the block, without a line end.
    virtual QString programEnd(bool english) const = 0;
    // The model holds area elements.
    virtual bool modelHasQuads() const = 0;
    // The user-defined camera, in the form that follows "STAN ".
    virtual QString userCamera() const = 0;
};

// The font number: the font size in centimetres; text that is no number counts as 0.
QString fontNumber(const OutputSettings& settings);
// "SCHH H6 0.2" / "SCHR H6 0.2"; the split variant gives the font number alone.
QString fontStatement(const OutputSettings& settings, bool english);
// "TYPE EG3", "TYP EGXY ; PERS INFI", ... by the chosen view.
QString viewClause(const OutputSettings& settings, bool english, const ScriptEnvironment& environment);
// The SIZE statement, behind its head line where two pictures share a portrait sheet.
QString pageSetup(const OutputSettings& settings, bool english);
// The five #define lines of the fill.
QString fillDefinitions(bool fill, bool english);
// The whole script around the plot lines of the tree; empty when no plot is chosen. In the split
// variant the two alternative SIZE statements instead, whatever is chosen.
QString script(const OutputSettings& settings, const std::vector<QString>& plotLines,
               const QString& additional, bool english, const ScriptEnvironment& environment);
// The same, with the plot lines handed by writePlotLines to the sink it is given, straight into
// the script's text.
QString scriptFromWriter(const OutputSettings& settings,
                         const std::function<void(ScriptLineSink&)>& writePlotLines,
                         const QString& additional, bool english, const ScriptEnvironment& environment);

} // namespace vkd::plib::widgetgraphicaloutput

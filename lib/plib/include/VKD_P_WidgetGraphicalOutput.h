#pragma once

#include "LoadcaseInformation.h"
#include "VKD_P_WidgetGraphicalOutput_AdditionalData.h"
#include "VKD_P_WidgetGraphicalOutput_Progname.h"
#include "VKD_P_WidgetGraphicalOutput_TableWidgetData.h"
#include "vkd_p_export.h"

#include <QString>
#include <QWidget>

#include <vector>

class AnimatorView;
class QEvent;
class VKD_H_PluginParameter;
struct WidgetGraphicalOutputData;

// The command a page sends to the 3D preview.
enum AnimatorViewControl : int;

// The graphical output page for a host dialog: the tree of plots and load cases of the
// catalogue above the settings of the sheet (scale, format, pictures per sheet, font, fill) and
// the view. Its product is a TORVAL script for the graphics program GRAV, with English or German
// keywords as the caller asks, independent of the language of the desktop.
//
// The split variant (122) has no format, pictures, view or fill; it chooses a division of the
// sheet instead, and its script is a pair of alternative SIZE statements. The prefix variant
// (222) puts the caller's text ahead of the plot lines instead of behind them.
class VKD_P_EXPORT VKD_P_WidgetGraphicalOutput : public QWidget
{
    Q_OBJECT
public:
    // parameter carries the project's model (not owned); animator, the preview of the model, may
    // be null.
    VKD_P_WidgetGraphicalOutput(QWidget* parent, VKD_P_WidgetGraphicalOutput_Progname progname,
                                VKD_H_PluginParameter* parameter, AnimatorView* animator = nullptr);
    ~VKD_P_WidgetGraphicalOutput() override;

    // Nothing on this page can be wrong: always true.
    bool checkVals();

    // The script of the chosen plots, empty when none is chosen; additional goes behind the plot
    // lines, or ahead of them without a line end in the prefix variant.
    QString getTORVAL(const QString& additional, bool english);
    QString getTORVAL(bool english);
    // Appends the script (also an empty one) to scripts; 1, always.
    int getTORVAL(std::vector<QString>& scripts, bool english);
    // The view clause, the page setup statement and the font statement of the script.
    QString getTORVAL_BEOB(bool english);
    QString getTORVAL_SIZE(bool english);
    QString getTORVAL_SCHR(bool english);
    // The lines of the chosen plots as the tree makes them, before the view is rewritten.
    void getTORVAL_LFs(std::vector<QString>& lines, bool english);
    // The five #define lines of the fill.
    QString writeFillSet(bool fill, bool english);

    // The state of the page as the host keeps it, and back.
    void readXMLstring(QString xml);
    QString writeXMLstring();

public slots:
    // The load case rows of the tree; a list equal to the present one changes nothing.
    void setUsedNumbersAndNames(
        const std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>& lc_infos);
    // The tree's default choice and the default settings; the scale list and the sheet division
    // keep their rows.
    void slotDefaultSettings();

signals:
    void signalBeobXY(AnimatorViewControl control, double value);
    void signalBeobXZ(AnimatorViewControl control, double value);
    void signalBeobYZ(AnimatorViewControl control, double value);
    void signalBeob3D(AnimatorViewControl control, double value);

protected:
    // Lets a content tag count as present in the model (add) or no longer.
    void additionalData(const QString& tag, bool add);
    void customEvent(QEvent* event) override;

protected slots:
    void slotBeobXY(bool on);
    void slotBeobXZ(bool on);
    void slotBeobYZ(bool on);
    void slotBeob3D(bool on);
    void slotBeobAni(bool on);
    void slotCurrentChanged(QWidget* w);
    // A landscape sheet takes one picture; portrait returns to two.
    void slotQuerFormat();

private:
    friend class VKD_P_WidgetGraphicalOutput_AdditionalData;
    friend class VKD_P_WidgetGraphicalOutput_TableWidgetData;

    WidgetGraphicalOutputData* data;
};

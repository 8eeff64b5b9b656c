#pragma once

#include <VKD_H_ProjectDialogPage.h>
#include <VKD_QT_TabDialog.h>

#include <memory>

class ContentTagSwitch;
class LoadCasePage;
class QTimer;
class ScriptPreview;
class VKD_H_PluginParameter;
class VKD_H_ZOBDoc;
class VKD_P_DesignParameter;
class VKD_P_WidgetGraphicalOutput;
class VKD_P_WidgetGraphicalOutput_AdditionalData;
class VKD_P_WidgetGraphicalOutput_TableWidgetData;

// The host's project dialog: the pages of the library in tabs, the script they make beside them,
// OK and Cancel below. OK writes the design parameters and the pages' states into the project
// and the script beside it; Cancel writes nothing.
class PlibHostDialog : public VKD_QT_TabDialog
{
    Q_OBJECT
public:
    // Project dialog pages of the project (key pair 95, page number) that the host keeps.
    enum StoredPage : int
    {
        DesignEntriesPage = 1,
        PageStatesPage = 2
    };

    explicit PlibHostDialog(VKD_H_ZOBDoc* project, bool englishKeywords = true, QWidget* parent = nullptr);
    ~PlibHostDialog() override;

    VKD_P_DesignParameter* designPage() const { return m_design; }
    VKD_P_WidgetGraphicalOutput* outputPage() const { return m_output; }
    VKD_P_WidgetGraphicalOutput* splitPage() const { return m_split; }
    ScriptPreview* preview() const { return m_preview; }
    // The plots each output page offers beyond what the model holds.
    ContentTagSwitch* outputContent() const { return m_outputContent; }
    ContentTagSwitch* splitContent() const { return m_splitContent; }

    // The script of an output page with English or German keywords, and where OK writes it:
    // beside the project, named after it, "<project>.grav" for the graphical output and
    // "<project>.split.grav" for the page splitting.
    static QString script(VKD_P_WidgetGraphicalOutput* page, bool english);
    QString scriptPath(const VKD_P_WidgetGraphicalOutput* page) const;
    enum SaveResult
    {
        Saved,
        ProjectNotSaved,
        ScriptNotWritten
    };
    // Writes the design parameters and the states of the pages into the project as one write,
    // then the scripts; with the reason in *error where something did not land.
    SaveResult save(QString* error);

public slots:
    // Stays open when a page asks the user to stay or the project could not be written.
    void accept() override;

private:
    void restoreStates();
    void followChangesOf(QWidget* page);
    // The tab of an output page: the page below its content switch.
    QWidget* outputTab(VKD_P_WidgetGraphicalOutput* page, ContentTagSwitch* content);
    void applyLoadCaseChoice();
    // The output page that the preview shows: that of the current tab, else the graphical output.
    VKD_P_WidgetGraphicalOutput* previewedPage() const;
    void showCurrentPage();

    VKD_H_ZOBDoc* m_project;
    std::unique_ptr<VKD_H_PluginParameter> m_parameter;
    VKD_H_ProjectDialogPage m_designEntries{DesignEntriesPage};
    VKD_H_ProjectDialogPage m_pageStates{PageStatesPage};
    VKD_P_DesignParameter* m_design;
    VKD_P_WidgetGraphicalOutput* m_output;
    VKD_P_WidgetGraphicalOutput* m_split;
    LoadCasePage* m_loadCases;
    ContentTagSwitch* m_outputContent;
    ContentTagSwitch* m_splitContent;
    QWidget* m_splitTab;
    std::unique_ptr<VKD_P_WidgetGraphicalOutput_TableWidgetData> m_outputRows;
    std::unique_ptr<VKD_P_WidgetGraphicalOutput_TableWidgetData> m_splitRows;
    ScriptPreview* m_preview;
    QTimer* m_refresh;
};

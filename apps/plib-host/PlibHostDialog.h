#pragma once

#include <VKD_QT_TabDialog.h>

class VKD_H_ZOBDoc;
class VKD_P_DesignParameter;

// The host's project dialog: the pages of the library in tabs above OK and Cancel. OK keeps
// what the user did in the project, Cancel leaves the project as it was.
class PlibHostDialog : public VKD_QT_TabDialog
{
    Q_OBJECT
public:
    explicit PlibHostDialog(VKD_H_ZOBDoc* project, QWidget* parent = nullptr);

    VKD_P_DesignParameter* designPage() const { return m_design; }

public slots:
    // Stays open when the design page asks the user to stay, and when the project could not
    // be written: then it tells why, and nothing typed is lost.
    void accept() override;

private:
    bool save();

    VKD_H_ZOBDoc* m_project;
    VKD_P_DesignParameter* m_design;
};

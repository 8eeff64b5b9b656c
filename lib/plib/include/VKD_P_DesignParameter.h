#pragma once

#include "tagZOB_QUAD_RIM.h"
#include "vkd_p_export.h"

#include <QWidget>

class DesignParameter;
class VKD_H_ProjectDialogPage;
class VKD_H_ZOBDoc;

// The design parameter page for a host dialog: a table of rows, each naming the groups of the
// model it applies to and how their surface elements are to be reinforced. The project keeps
// one record per group at key pair 200, 6; the page folds them into rows and back.
//
// A host calls, in this order: the constructor, init, one reader (readZob, or getEntrys when it
// has a project dialog page), then, when the user leaves the page, checkVals and, if that gives
// true, the matching writer (writeToZob or setEntrys). Nothing is written on destruction: a host
// that calls no writer discards the user's work. Each reader is meant for a new page only.
class VKD_P_EXPORT VKD_P_DesignParameter : public QWidget
{
    Q_OBJECT
public:
    // doc serves the group dialogs and the bar table, designDoc holds the design records. The
    // two flags are kept and change nothing. Creates the record for the remaining groups in a
    // project that has never held design parameters.
    VKD_P_DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent, bool flagA,
                          bool flagB);
    ~VKD_P_DesignParameter() override;

    // Builds the table; always true.
    bool init();
    void readZob();
    void writeToZob();
    // As readZob, then appends the rows without groups that page keeps.
    void getEntrys(VKD_H_ProjectDialogPage& page);
    // As writeToZob, then keeps the rows without groups in page.
    void setEntrys(VKD_H_ProjectDialogPage& page);
    // False when the user chose to stay on the page because rows without groups would be lost.
    bool checkVals();

    // The default record: for the remaining groups (group -1, type 1) or for a new row.
    static tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups);
    // Gives the project with this database index the record for the remaining groups unless
    // its design key pair has been written before.
    static void checkAndCreateZobDefault(int index);

signals:
    void signal_rowCountChanged(int rowCount);

public slots:
    void showHelp();

private:
    DesignParameter* m_page;
};

#pragma once

#include "GraphicalOutputRecord.h"

#include <LoadcaseInformation.h>
#include <VKD_QT_TreeWidget.h>

#include <QObject>
#include <QString>

#include <list>
#include <memory>
#include <vector>

class GraphicalOutputTreeWidget;
namespace vkd::plib::widgetgraphicaloutput {
class ScriptLineSink;
}
class VKD_H_PluginParameter;
class VKD_QT_Action;
class VKD_QT_Menu;

// An item of the output tree: level 0 and 1 captions, level 2 plots, level 3 load case rows.
class GraphicalOutputTreeWidgetItem : public QTreeWidgetItem
{
public:
    // Tells the items of the tree from the plain item that says the tree is empty.
    static constexpr int Type = QTreeWidgetItem::UserType + 1;

    // The items made of one record share it: a plot has hundreds of rows.
    GraphicalOutputTreeWidgetItem(std::shared_ptr<const GraphicalOutputRecord> record, int level);
    ~GraphicalOutputTreeWidgetItem() override;

    // A caption holds the first record that came through it, a row the record of its plot.
    const GraphicalOutputRecord& record() const { return *m_record; }

    // The check state of column 0 is a member, not an entry in the item's list of values: setting
    // it costs no copy of that list, and a tree of 150 000 rows sets and reads it often.
    QVariant data(int column, int role) const override;
    void setData(int column, int role, const QVariant& value) override;
    // The same without a QVariant: checkState(0) and setCheckState(0, state).
    Qt::CheckState state() const { return Qt::CheckState(m_checkState == noCheckState ? 0 : m_checkState); }
    void setState(Qt::CheckState state);

    // Negative: the item makes no script line itself. 0 a plot without load cases; for a row
    // the rowMark of its record.
    int isLC = RowMarkNoLine;
    // The load case of a row; 0 on the other levels.
    int number = 0;
    int level = 0;

private:
    static constexpr qint8 noCheckState = -1;

    std::shared_ptr<const GraphicalOutputRecord> m_record;
    qint8 m_checkState = noCheckState;
};

// The context menu of the output tree.
class PopupHandler : public QObject
{
    Q_OBJECT
public:
    PopupHandler() = default;
    ~PopupHandler() override;

    // Builds the menu for the tree; the entry "Close all entries" only with withCloseAll.
    void createMenu(GraphicalOutputTreeWidget* tree, bool withCloseAll);
    VKD_QT_Menu* menu() const { return m_menu; }

public slots:
    void ShowContextMenu(const QPoint& pos);

private:
    VKD_QT_Menu* m_menu = nullptr;
    VKD_QT_Action* m_expandPlots = nullptr;
    VKD_QT_Action* m_expandLoads = nullptr;
    VKD_QT_Action* m_closeLoads = nullptr;
    VKD_QT_Action* m_closeAll = nullptr;
    GraphicalOutputTreeWidget* m_tree = nullptr;
};

// The checkable tree of the graphical output page: the plots of the catalogue that the page's
// program and the model offer, under two levels of captions, with one row per load case under
// the plots that bind to load cases. The check states say which plots the script holds.
class GraphicalOutputTreeWidget : public VKD_QT_TreeWidget
{
    Q_OBJECT
public:
    GraphicalOutputTreeWidget(QWidget* parent, int progname, VKD_H_PluginParameter* parameter,
                              const char* name);
    ~GraphicalOutputTreeWidget() override;

    // Empties and refills the tree. With defaults the choice of the catalogue comes up, otherwise
    // the present choice is carried over once a selection was ever applied.
    void rebuild(bool defaults);
    // Lets a content tag count as present (add) or no longer (all copies of it), and rebuilds.
    void additionalData(const QString& tag, bool add);
    // Gives the tree its load case rows; a list equal to the present one changes nothing, any
    // other rebuilds with the default choice.
    void
    setUsedNumbersAndNames(const std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>& lcInfos);

    // Empties lines and fills them with the script lines of the checked plots and rows, with
    // English or German keywords; gives their number.
    int collectScriptLines(std::vector<QString>& lines, bool english);
    // The same lines, handed to sink one by one.
    void collectScriptLines(vkd::plib::widgetgraphicaloutput::ScriptLineSink& sink, bool english);
    // The choice as text, and back.
    QString selectionText() const;
    void applySelection(QString text);
    static QString itemId(const GraphicalOutputTreeWidgetItem& item);
    // The item of levels 0 to 2 with this identifier, searched from the end; null if none.
    GraphicalOutputTreeWidgetItem* findItem(const QString& id) const;

    // The text that dump() formats.
    QString dumpText() const;
    const PopupHandler& popupHandler() const { return popup; }

public slots:
    void expandPlots();
    void closeLoads();
    // Diagnostics: the lines are formatted and go nowhere.
    void dump();
    void dump(QTreeWidgetItem* item, int indent);

private:
    // The items of the catalogue's plots, made outside the view.
    QList<QTreeWidgetItem*> makeItems();
    void insertItems(const QList<QTreeWidgetItem*>& tops);
    void addLoadcaseRows(GraphicalOutputTreeWidgetItem* plot,
                         const std::shared_ptr<const GraphicalOutputRecord>& record);
    void appendDump(QString& out, QTreeWidgetItem* item, int indent) const;

    int progname;
    VKD_H_PluginParameter* parameter;
    std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation> rows;
    bool selectionLoaded = false;
    bool rebuilding = false;
    PopupHandler popup;
    std::list<QString> additional;
};

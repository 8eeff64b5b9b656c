#include "GraphicalOutputTreeWidget.h"

#include "catalogue.h"
#include "loadcatalogue.h"
#include "modelfilter.h"
#include "outputtreeicons.h"
#include "scriptlines.h"

#include <VKD_QT_Menu.h>
#include <vkd_q.h>

#include <QHash>
#include <QKeySequence>
#include <QStringList>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

using Item = GraphicalOutputTreeWidgetItem;

Item* treeItem(QTreeWidgetItem* item)
{
    return item && item->type() == Item::Type ? static_cast<Item*>(item) : nullptr;
}

Item* newItem(const GraphicalOutputRecord& record, int level, const QString& text)
{
    auto* item = new Item(record, level);
    item->setText(0, text);
    item->setCheckState(0, Qt::Unchecked);
    return item;
}

// The tree is built before it enters the view, where no automatic update runs: a state is
// carried down here as the view would, and the view works out the states above when the items
// enter it.
void setStateDown(QTreeWidgetItem* item, Qt::CheckState state)
{
    item->setCheckState(0, state);
    for (int i = 0; i < item->childCount(); ++i)
        setStateDown(item->child(i), state);
}

// A safeguard against records without a script: their items would make nothing.
bool isHollow(const Item* item)
{
    const GraphicalOutputRecord& r = item->record;
    if (item->childCount() > 0 || !r.scriptGerman.isEmpty() || !r.scriptEnglish.isEmpty())
        return false;
    switch (item->level) {
    case 2:
        return item->isLC > -99999 && r.ctrl < 0;
    case 1:
        return r.title3.isEmpty();
    default:
        return r.title2.isEmpty();
    }
}

// Deletes hollow items bottom up; true if item itself went.
bool pruneHollow(Item* item)
{
    for (int i = item->childCount() - 1; i >= 0; --i) {
        Item* child = treeItem(item->child(i));
        if (child && child->level < 3)
            pruneHollow(child);
    }
    if (!isHollow(item))
        return false;
    delete item;
    return true;
}

// The script lines of a subtree, those of an item's children before its own. With the automatic
// update on, a Checked item has only Checked descendants and an Unchecked one only Unchecked
// ones, so that only the children of partly chosen items are asked for their states.
struct LineWalk
{
    static constexpr int unknown = -1;

    ScriptContext& context;
    ScriptLineSink& sink;
    bool automatic;

    // What the descendants of an item in this state are known to be, if anything.
    int stateBelow(Qt::CheckState state) const
    {
        return automatic && state != Qt::PartiallyChecked ? int(state) : unknown;
    }

    void children(QTreeWidgetItem* parent, int known)
    {
        if (known == Qt::Unchecked)
            return;
        const Item* above = treeItem(parent->parent());
        const GraphicalOutputRecord* captionRecord = above ? &above->record : nullptr;
        const int n = parent->childCount();
        for (int i = 0; i < n; ++i) {
            QTreeWidgetItem* child = parent->child(i);
            const Qt::CheckState state = known == unknown ? child->checkState(0) : Qt::CheckState(known);
            if (child->childCount() > 0)
                children(child, known == unknown ? stateBelow(state) : known);
            const Item* item = treeItem(child);
            if (!item || item->isLC < 0 || state == Qt::Unchecked)
                continue;
            appendScriptLines(context, ScriptEntry{item->record, item->number, item->text(0), captionRecord},
                              sink);
        }
    }
};

void appendSelection(QString& out, QTreeWidgetItem* treeWidgetItem)
{
    const Item* item = treeItem(treeWidgetItem);
    if (!item)
        return;
    const Qt::CheckState state = item->checkState(0);
    const QString id = GraphicalOutputTreeWidget::itemId(*item);
    const int n = item->childCount();
    if (n > 0) {
        if (state == Qt::Unchecked) {
            out += QLatin1String("Unchecked:") + id + QLatin1Char('\n');
        } else if (state == Qt::Checked) {
            out += QLatin1String("Checked:") + id + QLatin1Char('\n');
        } else if (item->level != 2) {
            for (int i = 0; i < n; ++i)
                appendSelection(out, item->child(i));
        } else {
            // A plot with some rows checked names them by number, so that rows added later
            // come up unchecked.
            out += QLatin1String("Partially:") + id + QLatin1String(" : ");
            for (int i = 0; i < n; ++i) {
                const Item* row = treeItem(item->child(i));
                if (row && row->checkState(0) == Qt::Checked)
                    out += QString::number(row->number) + QLatin1Char(',');
            }
            out += QLatin1Char('\n');
        }
        return;
    }
    if (item->number <= 0) {
        if (state == Qt::Unchecked)
            out += QLatin1String("Unchecked:") + id + QLatin1Char('\n');
        else if (state == Qt::Checked)
            out += QLatin1String("Checked:") + id + QLatin1Char('\n');
        else
            out += QLatin1String("ERROR CASE\n");
        return;
    }
    // A row; its plot answers for it, so that the walk never comes here. The number was meant
    // for the second place holder, which stays in the line.
    if (state == Qt::Checked)
        out += QLatin1String("Checked:") + id + QLatin1String(":%2\n");
    else if (state == Qt::Unchecked)
        out += QLatin1String("Unchecked:") + id + QLatin1String(":%2\n");
}

// The items of levels 0 to 2 by identifier, each identifier standing for the item that
// findItem() meets first.
QHash<QString, Item*> itemsById(const QTreeWidget& tree)
{
    QHash<QString, Item*> byId;
    auto note = [&byId](QTreeWidgetItem* treeWidgetItem) {
        if (Item* item = treeItem(treeWidgetItem)) {
            const QString id = GraphicalOutputTreeWidget::itemId(*item);
            if (!byId.contains(id))
                byId.insert(id, item);
        }
    };
    for (int i = tree.topLevelItemCount() - 1; i >= 0; --i) {
        QTreeWidgetItem* top = tree.topLevelItem(i);
        note(top);
        for (int j = top->childCount() - 1; j >= 0; --j) {
            QTreeWidgetItem* caption = top->child(j);
            note(caption);
            for (int k = caption->childCount() - 1; k >= 0; --k)
                note(caption->child(k));
        }
    }
    return byId;
}

void checkRows(QTreeWidgetItem* plot, const QString& numbers)
{
    QHash<int, QTreeWidgetItem*> rowByNumber;
    for (int i = 0; i < plot->childCount(); ++i)
        if (const Item* row = treeItem(plot->child(i)))
            rowByNumber.insert(row->number, plot->child(i)); // the last row of a number wins
    const QStringList parts = numbers.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& part : parts)
        if (QTreeWidgetItem* row = rowByNumber.value(part.toInt()))
            row->setCheckState(0, Qt::Checked);
}

} // namespace

GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem(const GraphicalOutputRecord& record, int level)
    : QTreeWidgetItem(Type), record(record), level(level)
{
}

GraphicalOutputTreeWidgetItem::~GraphicalOutputTreeWidgetItem() = default;

PopupHandler::~PopupHandler()
{
    delete m_menu;
}

void PopupHandler::createMenu(GraphicalOutputTreeWidget* tree, bool withCloseAll)
{
    m_tree = tree;
    m_menu = new VKD_QT_Menu(nullptr, nullptr);
    tree->addExpandAll(m_menu);
    tree->addCollapseAll(m_menu);
    const QIcon loads = rowIcon(vkd_lib_getvalue(102));
    auto add = [this](const QIcon& icon, const char* text) {
        auto* action = new VKD_QT_Action(icon, GraphicalOutputTreeWidget::tr(text), QKeySequence(), m_menu);
        m_menu->addAction(action);
        return action;
    };
    m_expandPlots = add(plotIcon(), QT_TRANSLATE_NOOP("GraphicalOutputTreeWidget", "Expand plots"));
    m_menu->addSeparator();
    m_expandLoads = add(loads, QT_TRANSLATE_NOOP("GraphicalOutputTreeWidget", "Expand loadcases"));
    m_menu->addSeparator();
    m_closeLoads = add(loads, QT_TRANSLATE_NOOP("GraphicalOutputTreeWidget", "Close loadcases"));
    if (withCloseAll) {
        m_menu->addSeparator();
        m_closeAll = add(closeIcon(), QT_TRANSLATE_NOOP("GraphicalOutputTreeWidget", "Close all entries"));
    }
    tree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tree, &QWidget::customContextMenuRequested, this, &PopupHandler::ShowContextMenu);
    connect(m_expandPlots, &QAction::triggered, tree, &GraphicalOutputTreeWidget::expandPlots);
    connect(m_expandLoads, &QAction::triggered, tree, &QTreeView::expandAll);
    connect(m_closeLoads, &QAction::triggered, tree, &GraphicalOutputTreeWidget::closeLoads);
}

void PopupHandler::ShowContextMenu(const QPoint& pos)
{
    if (m_menu && m_tree)
        m_menu->exec(m_tree->mapToGlobal(pos), nullptr);
}

GraphicalOutputTreeWidget::GraphicalOutputTreeWidget(QWidget* parent, int progname,
                                                     VKD_H_PluginParameter* parameter, const char* name)
    : VKD_QT_TreeWidget(parent, name), progname(progname), parameter(parameter)
{
    setAutomaticCheckStateUpdate(true);
    setHeaderHidden(true);
    if (!loadCatalogue(this, vkd_lib_getvalue(102)))
        return;
    rebuild(true);
    popup.createMenu(this, false);
}

// The items go with the view; the menu with the popup handler.
GraphicalOutputTreeWidget::~GraphicalOutputTreeWidget() = default;

void GraphicalOutputTreeWidget::rebuild(bool defaults)
{
    rebuilding = true;
    const bool carryChoice = selectionLoaded && !defaults;
    const QString choice = carryChoice ? selectionText() : QString();
    clear();
    fillTree();
    if (topLevelItemCount() > 0) {
        if (carryChoice)
            applySelection(choice);
    } else {
        addTopLevelItem(new QTreeWidgetItem(QStringList(tr("No Entries in database!"))));
    }
    rebuilding = false;
}

void GraphicalOutputTreeWidget::fillTree()
{
    // Captions and plots by text, the last one of a text first, as the search from the end
    // finds them.
    QHash<QString, Item*> tops;
    QHash<const Item*, QHash<QString, Item*>> childrenByText;
    QList<QTreeWidgetItem*> topList;
    const ProjectModel model(parameter);
    for (const GraphicalOutputRecord& record : catalogueList()) {
        if (!isRecordOffered(record, progname, model, additional))
            continue;
        Item* top = tops.value(record.title1);
        if (!top) {
            top = newItem(record, 0, record.title1);
            tops.insert(record.title1, top);
            topList << top;
        }
        Item* caption = childrenByText[top].value(record.title2);
        if (!caption) {
            caption = newItem(record, 1, record.title2);
            top->addChild(caption);
            childrenByText[top].insert(record.title2, caption);
        }
        // A plot is looked up by the caption above it, not by its own: so every record makes a
        // plot of its own unless its plot carries the caption of its parent.
        Item* plot = childrenByText[caption].value(record.title2);
        if (!plot) {
            plot = newItem(record, 2, record.title3);
            plot->setIcon(0, plotIcon());
            caption->addChild(plot);
            childrenByText[caption].insert(record.title3, plot);
        }
        addLoadcaseRows(plot, record);
    }
    QList<QTreeWidgetItem*> kept;
    for (QTreeWidgetItem* top : qAsConst(topList))
        if (!pruneHollow(static_cast<Item*>(top)))
            kept << top;
    addTopLevelItems(kept);
    for (QTreeWidgetItem* top : qAsConst(kept)) {
        top->setExpanded(true);
        for (int i = 0; i < top->childCount(); ++i)
            top->child(i)->setExpanded(true);
    }
}

void GraphicalOutputTreeWidget::addLoadcaseRows(GraphicalOutputTreeWidgetItem* plot,
                                                const GraphicalOutputRecord& record)
{
    if (record.ctrl == -1) {
        plot->isLC = 0;
        plot->setIcon(0, plotIcon());
        setStateDown(plot, Qt::Checked);
        return;
    }
    const int kind = record.rowClass == 1 || record.rowClass == 2 ? 1 : record.rowClass == 3 ? 2 : 0;
    if (kind != 0) {
        const QIcon icon = rowIcon(vkd_lib_getvalue(102));
        QList<QTreeWidgetItem*> children;
        for (const LoadcaseInformation& info : rows) {
            if (info.kind != kind)
                continue;
            Item* row = newItem(record, 3, info.name);
            row->setIcon(0, icon);
            row->isLC = record.rowMark;
            row->number = info.number;
            children << row;
        }
        plot->addChildren(children);
    }
    const int n = plot->childCount();
    if (n == 0)
        return;
    if (record.preselect == 1)
        plot->child(0)->setCheckState(0, Qt::Checked);
    else if (record.preselect == 2 || record.preselect == 3)
        for (int i = 0; i < n; ++i)
            plot->child(i)->setCheckState(0, Qt::Checked);
}

void GraphicalOutputTreeWidget::additionalData(const QString& tag, bool add)
{
    if (add)
        additional.push_back(tag);
    else
        additional.remove(tag);
    rebuild(false);
}

void GraphicalOutputTreeWidget::setUsedNumbersAndNames(const std::vector<LoadcaseInformation>& lcInfos)
{
    if (lcInfos == rows)
        return;
    rows = lcInfos;
    rebuild(true);
}

int GraphicalOutputTreeWidget::collectScriptLines(std::vector<QString>& lines, bool english)
{
    lines.clear();
    ScriptLineList list(lines);
    collectScriptLines(list, english);
    return int(lines.size());
}

void GraphicalOutputTreeWidget::collectScriptLines(ScriptLineSink& sink, bool english)
{
    if (!treeItem(topLevelItem(0)))
        return;
    ScriptContext context(english, progname, [this] { return ProjectModel(parameter).kindOfSystem(); });
    LineWalk walk{context, sink, automaticCheckStateUpdate()};
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* top = topLevelItem(i);
        walk.children(top, walk.stateBelow(top->checkState(0)));
    }
}

QString GraphicalOutputTreeWidget::selectionText() const
{
    QString out(QLatin1Char('\n'));
    for (int i = 0; i < topLevelItemCount(); ++i)
        appendSelection(out, topLevelItem(i));
    return out;
}

void GraphicalOutputTreeWidget::applySelection(QString text)
{
    selectionLoaded = true;
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (lines.isEmpty())
        return;
    rebuilding = true;
    // The automatic update carries the state of a top level item down its subtree; an item that
    // is unchecked already has no checked descendant.
    for (int i = 0; i < topLevelItemCount(); ++i)
        topLevelItem(i)->setCheckState(0, Qt::Unchecked);
    const QHash<QString, Item*> byId = itemsById(*this);
    for (const QString& line : lines) {
        const QStringList parts = line.split(QLatin1Char(':'), Qt::SkipEmptyParts);
        if (parts.size() < 2)
            continue;
        Item* item = byId.value(parts.at(1).trimmed());
        if (!item)
            continue;
        const QString& word = parts.at(0);
        if (word == QLatin1String("Checked")) {
            item->setCheckState(0, Qt::Checked);
        } else if (word == QLatin1String("Unchecked")) {
            item->setCheckState(0, Qt::Unchecked);
        } else if (word == QLatin1String("Partially") && parts.size() >= 3) {
            item->setCheckState(0, Qt::Unchecked);
            checkRows(item, parts.at(2));
        }
    }
    rebuilding = false;
}

QString GraphicalOutputTreeWidget::itemId(const GraphicalOutputTreeWidgetItem& item)
{
    return vkd::plib::widgetgraphicaloutput::itemId(item.record, item.level);
}

GraphicalOutputTreeWidgetItem* GraphicalOutputTreeWidget::findItem(const QString& id) const
{
    auto matches = [&id](QTreeWidgetItem* treeWidgetItem) {
        Item* item = treeItem(treeWidgetItem);
        return item && itemId(*item) == id ? item : nullptr;
    };
    for (int i = topLevelItemCount() - 1; i >= 0; --i) {
        QTreeWidgetItem* top = topLevelItem(i);
        if (Item* found = matches(top))
            return found;
        for (int j = top->childCount() - 1; j >= 0; --j) {
            QTreeWidgetItem* caption = top->child(j);
            if (Item* found = matches(caption))
                return found;
            for (int k = caption->childCount() - 1; k >= 0; --k)
                if (Item* found = matches(caption->child(k)))
                    return found;
        }
    }
    return nullptr;
}

void GraphicalOutputTreeWidget::expandPlots()
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* top = topLevelItem(i);
        top->setExpanded(true);
        for (int j = 0; j < top->childCount(); ++j)
            top->child(j)->setExpanded(true);
    }
}

void GraphicalOutputTreeWidget::closeLoads()
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* top = topLevelItem(i);
        for (int j = 0; j < top->childCount(); ++j) {
            QTreeWidgetItem* caption = top->child(j);
            for (int k = 0; k < caption->childCount(); ++k)
                caption->child(k)->setExpanded(false);
        }
    }
}

QString GraphicalOutputTreeWidget::dumpText() const
{
    QString out;
    for (int i = 0; i < topLevelItemCount(); ++i)
        appendDump(out, topLevelItem(i), 0);
    return out;
}

void GraphicalOutputTreeWidget::dump()
{
    dumpText();
}

void GraphicalOutputTreeWidget::dump(QTreeWidgetItem* item, int indent)
{
    QString discarded;
    appendDump(discarded, item, indent);
}

void GraphicalOutputTreeWidget::appendDump(QString& out, QTreeWidgetItem* treeWidgetItem, int indent) const
{
    const Item* item = treeItem(treeWidgetItem);
    if (!item)
        return;
    const GraphicalOutputRecord& r = item->record;
    out += QStringLiteral("%1 item %2 (%6) ids %3 %4 %5   isLC %7 ctrl %8\n")
               .arg(QString(indent, QLatin1Char(' ')), item->text(0), r.id1, r.id2, r.id3, itemId(*item),
                    QString::number(item->isLC), QString::number(r.ctrl));
    // Below a plot its first row stands for all.
    const int n = item->level == 2 ? qMin(1, item->childCount()) : item->childCount();
    for (int i = 0; i < n; ++i)
        appendDump(out, item->child(i), indent + 1);
}

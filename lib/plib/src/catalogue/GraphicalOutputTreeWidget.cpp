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

#include <algorithm>
#include <charconv>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

using Item = GraphicalOutputTreeWidgetItem;

Item* treeItem(QTreeWidgetItem* item)
{
    return item && item->type() == Item::Type ? static_cast<Item*>(item) : nullptr;
}

using SharedRecord = std::shared_ptr<const GraphicalOutputRecord>;

Item* newItem(const SharedRecord& record, int level, const QString& text)
{
    auto* item = new Item(record, level);
    item->setText(0, text);
    item->setState(Qt::Unchecked);
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
    const GraphicalOutputRecord& r = item->record();
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
        const GraphicalOutputRecord* captionRecord = above ? &above->record() : nullptr;
        const int n = parent->childCount();
        for (int i = 0; i < n; ++i) {
            QTreeWidgetItem* child = parent->child(i);
            const Item* item = treeItem(child);
            const Qt::CheckState state = known != unknown ? Qt::CheckState(known)
                                         : item           ? item->state()
                                                          : child->checkState(0);
            if (child->childCount() > 0)
                children(child, known == unknown ? stateBelow(state) : known);
            if (!item || item->isLC < 0 || state == Qt::Unchecked)
                continue;
            appendScriptLines(context, ScriptEntry{item->record(), item->number, item->text(0), captionRecord},
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
            char digits[16];
            for (int i = 0; i < n; ++i) {
                const Item* row = treeItem(item->child(i));
                if (!row || row->state() != Qt::Checked)
                    continue;
                const auto end = std::to_chars(digits, digits + sizeof digits, row->number).ptr;
                *end = ',';
                out += QLatin1String(digits, int(end + 1 - digits));
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

// A row number as QString::toInt() reads it; plain digits are read directly.
int number(const QStringRef& text)
{
    constexpr int digitsThatFit = 9;
    int value = 0;
    if (text.isEmpty() || text.size() > digitsThatFit)
        return text.toInt();
    for (const QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return text.toInt();
        value = value * 10 + (c.unicode() - '0');
    }
    return value;
}

// A text of nothing but line feeds is no choice at all and changes nothing.
bool hasLines(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c != QLatin1Char('\n'); });
}

// The items of levels 0 to 2 by identifier, each identifier standing for the item that
// findItem() meets first.
QHash<QString, Item*> itemsById(const QList<QTreeWidgetItem*>& tops)
{
    QHash<QString, Item*> byId;
    auto note = [&byId](QTreeWidgetItem* treeWidgetItem) {
        if (Item* item = treeItem(treeWidgetItem)) {
            const QString id = GraphicalOutputTreeWidget::itemId(*item);
            if (!byId.contains(id))
                byId.insert(id, item);
        }
    };
    for (int i = tops.size() - 1; i >= 0; --i) {
        QTreeWidgetItem* top = tops.at(i);
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

// A choice text applied to a tree. Its lines, in turn, carry a state down the subtree of the item
// they name, starting from a tree with nothing checked; so the text decides the state of every
// leaf, and the states above follow from the leaves. The leaves' states are worked out first and
// only the items whose state differs are set: applying a choice the tree shows already changes
// nothing, and one that differs in a few rows changes those rows.
class Choice
{
public:
    explicit Choice(const QList<QTreeWidgetItem*>& tops) : m_tops(tops)
    {
        int next = 0;
        for (QTreeWidgetItem* top : tops)
            next = numberLeaves(top, 0, next);
        m_target.assign(size_t(next), quint8(Qt::Unchecked));
    }

    void read(const QString& text)
    {
        const QHash<QString, Item*> byId = itemsById(m_tops);
        for (const QStringRef& line : text.splitRef(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            const QVector<QStringRef> parts = line.split(QLatin1Char(':'), Qt::SkipEmptyParts);
            if (parts.size() < 2)
                continue;
            Item* item = byId.value(parts.at(1).trimmed().toString());
            if (!item)
                continue;
            const QStringRef& word = parts.at(0);
            if (word == QLatin1String("Checked")) {
                fill(m_spans.value(item), Qt::Checked);
            } else if (word == QLatin1String("Unchecked")) {
                fill(m_spans.value(item), Qt::Unchecked);
            } else if (word == QLatin1String("Partially") && parts.size() >= 3) {
                fill(m_spans.value(item), Qt::Unchecked);
                checkRows(item, parts.at(2));
            }
        }
    }

    // With carry, the items are in a view whose automatic update keeps every state in line with
    // the states below it: an item that shows the state its whole subtree is to have is left as
    // it is, and one that does not gets that state and carries it down.
    void apply(bool carry)
    {
        int next = 0;
        for (QTreeWidgetItem* top : m_tops)
            next = apply(top, next, carry);
    }

private:
    // The leaves of an item's subtree are numbered [begin, end) depth first.
    struct Span
    {
        int begin = 0;
        int end = 0;
    };

    // Notes the spans of the items a line may name, and of every item with children.
    int numberLeaves(QTreeWidgetItem* item, int depth, int next)
    {
        constexpr int rowDepth = 3;
        const int n = item->childCount();
        const int begin = next;
        if (n == 0)
            ++next;
        for (int i = 0; i < n; ++i) {
            QTreeWidgetItem* child = item->child(i);
            // A row is a leaf that no line names: it needs no span of its own.
            if (depth + 1 >= rowDepth && child->childCount() == 0)
                ++next;
            else
                next = numberLeaves(child, depth + 1, next);
        }
        if (n > 0 || depth < rowDepth)
            m_spans.insert(item, {begin, next});
        return next;
    }

    Span spanOf(QTreeWidgetItem* item, int begin) const
    {
        return item->childCount() > 0 ? m_spans.value(item) : Span{begin, begin + 1};
    }

    void fill(Span span, Qt::CheckState state)
    {
        std::fill(m_target.begin() + span.begin, m_target.begin() + span.end, quint8(state));
    }

    // Checks the children of item with the numbers listed; of children with the same number
    // the last one counts.
    void checkRows(QTreeWidgetItem* item, const QStringRef& numbers)
    {
        std::vector<int> wanted;
        int start = 0;
        for (int i = 0; i <= numbers.size(); ++i) {
            if (i < numbers.size() && numbers.at(i) != QLatin1Char(','))
                continue;
            if (i > start)
                wanted.push_back(number(numbers.mid(start, i - start)));
            start = i + 1;
        }
        std::sort(wanted.begin(), wanted.end());
        wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
        std::vector<bool> taken(wanted.size());
        const int n = item->childCount();
        std::vector<Span> spans(static_cast<size_t>(n));
        int next = m_spans.value(item).begin;
        for (int i = 0; i < n; ++i) {
            spans[size_t(i)] = spanOf(item->child(i), next);
            next = spans[size_t(i)].end;
        }
        for (int i = n - 1; i >= 0; --i) {
            const Item* row = treeItem(item->child(i));
            if (!row)
                continue;
            const auto found = std::lower_bound(wanted.begin(), wanted.end(), row->number);
            if (found == wanted.end() || *found != row->number || taken[size_t(found - wanted.begin())])
                continue;
            taken[size_t(found - wanted.begin())] = true;
            fill(spans[size_t(i)], Qt::Checked);
        }
    }

    // The state all leaves of a span are to have, or PartiallyChecked if they differ.
    Qt::CheckState common(Span span) const
    {
        const auto first = m_target.begin() + span.begin;
        const auto last = m_target.begin() + span.end;
        if (first == last || std::find_if(first, last, [first](quint8 s) { return s != *first; }) != last)
            return Qt::PartiallyChecked;
        return Qt::CheckState(*first);
    }

    int apply(QTreeWidgetItem* item, int begin, bool carry)
    {
        const Span span = spanOf(item, begin);
        if (item->childCount() == 0) {
            const auto state = Qt::CheckState(m_target[size_t(begin)]);
            if (Item* row = treeItem(item))
                row->setState(state);
            else if (item->checkState(0) != state)
                item->setCheckState(0, state);
            return span.end;
        }
        const Qt::CheckState state = carry ? common(span) : Qt::PartiallyChecked;
        if (state != Qt::PartiallyChecked) {
            if (item->checkState(0) != state)
                item->setCheckState(0, state);
            return span.end;
        }
        int next = span.begin;
        for (int i = 0; i < item->childCount(); ++i)
            next = apply(item->child(i), next, carry);
        return span.end;
    }

    const QList<QTreeWidgetItem*>& m_tops;
    QHash<const QTreeWidgetItem*, Span> m_spans;
    std::vector<quint8> m_target;
};

} // namespace

GraphicalOutputTreeWidgetItem::GraphicalOutputTreeWidgetItem(
    std::shared_ptr<const GraphicalOutputRecord> record, int level)
    : QTreeWidgetItem(Type), level(level), m_record(std::move(record))
{
}

GraphicalOutputTreeWidgetItem::~GraphicalOutputTreeWidgetItem() = default;

QVariant GraphicalOutputTreeWidgetItem::data(int column, int role) const
{
    if (column == 0 && role == Qt::CheckStateRole)
        return m_checkState == noCheckState ? QVariant() : QVariant(int(m_checkState));
    return QTreeWidgetItem::data(column, role);
}

void GraphicalOutputTreeWidgetItem::setData(int column, int role, const QVariant& value)
{
    if (column != 0 || role != Qt::CheckStateRole) {
        QTreeWidgetItem::setData(column, role, value);
        return;
    }
    const qint8 state = value.isValid() ? qint8(value.toInt()) : noCheckState;
    if (state == m_checkState)
        return;
    m_checkState = state;
    // Tells the view and the automatic update, as the base class does; nothing while detached.
    emitDataChanged();
}

void GraphicalOutputTreeWidgetItem::setState(Qt::CheckState state)
{
    if (qint8(state) == m_checkState)
        return;
    m_checkState = qint8(state);
    emitDataChanged();
}

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
    const QIcon loads = rowIcon(vkd_lib_getvalue(kSettingLanguage));
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
    if (!loadCatalogue(this, vkd_lib_getvalue(kSettingLanguage)))
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
    const QList<QTreeWidgetItem*> tops = makeItems();
    if (!tops.isEmpty()) {
        // The choice goes to the items before they enter the view, where setting a state costs
        // no signals.
        if (carryChoice && hasLines(choice)) {
            Choice carried(tops);
            carried.read(choice);
            carried.apply(false);
        }
        insertItems(tops);
    } else {
        addTopLevelItem(new QTreeWidgetItem(QStringList(tr("No Entries in database!"))));
    }
    rebuilding = false;
}

QList<QTreeWidgetItem*> GraphicalOutputTreeWidget::makeItems()
{
    // Captions and plots by text, the last one of a text first, as the search from the end
    // finds them.
    QHash<QString, Item*> tops;
    QHash<const Item*, QHash<QString, Item*>> childrenByText;
    QList<QTreeWidgetItem*> topList;
    const ProjectModel model(parameter);
    for (const GraphicalOutputRecord& offered : catalogueList()) {
        if (!isRecordOffered(offered, progname, model, additional))
            continue;
        const SharedRecord record = std::make_shared<const GraphicalOutputRecord>(offered);
        Item* top = tops.value(offered.title1);
        if (!top) {
            top = newItem(record, 0, offered.title1);
            tops.insert(offered.title1, top);
            topList << top;
        }
        Item* caption = childrenByText[top].value(offered.title2);
        if (!caption) {
            caption = newItem(record, 1, offered.title2);
            top->addChild(caption);
            childrenByText[top].insert(offered.title2, caption);
        }
        // A plot is looked up by the caption above it, not by its own: so every record makes a
        // plot of its own unless its plot carries the caption of its parent.
        Item* plot = childrenByText[caption].value(offered.title2);
        if (!plot) {
            plot = newItem(record, 2, offered.title3);
            plot->setIcon(0, plotIcon());
            caption->addChild(plot);
            childrenByText[caption].insert(offered.title3, plot);
        }
        addLoadcaseRows(plot, record);
    }
    QList<QTreeWidgetItem*> kept;
    for (QTreeWidgetItem* top : qAsConst(topList))
        if (!pruneHollow(static_cast<Item*>(top)))
            kept << top;
    return kept;
}

void GraphicalOutputTreeWidget::insertItems(const QList<QTreeWidgetItem*>& tops)
{
    addTopLevelItems(tops);
    for (QTreeWidgetItem* top : tops) {
        top->setExpanded(true);
        for (int i = 0; i < top->childCount(); ++i)
            top->child(i)->setExpanded(true);
    }
}

void GraphicalOutputTreeWidget::addLoadcaseRows(GraphicalOutputTreeWidgetItem* plot,
                                                const std::shared_ptr<const GraphicalOutputRecord>& shared)
{
    const GraphicalOutputRecord& record = *shared;
    if (record.ctrl == CaseControlNoCases) {
        plot->isLC = RowMarkPlotAlone;
        plot->setIcon(0, plotIcon());
        setStateDown(plot, Qt::Checked);
        return;
    }
    const int kind = record.rowClass == RowClassL || record.rowClass == RowClassC ? 1
                     : record.rowClass == RowClassE                               ? 2
                                                                                  : 0;
    if (kind != 0) {
        const QIcon icon = rowIcon(vkd_lib_getvalue(kSettingLanguage));
        QList<QTreeWidgetItem*> children;
        children.reserve(int(rows.size()));
        for (const LoadcaseInformation& info : rows) {
            if (info.kind != kind)
                continue;
            Item* row = newItem(shared, 3, info.name);
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
    if (!hasLines(text))
        return;
    rebuilding = true;
    QList<QTreeWidgetItem*> tops;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* top = topLevelItem(i);
        // Every top level item comes out with a check box, also the one that says the tree is
        // empty.
        if (!top->data(0, Qt::CheckStateRole).isValid())
            top->setCheckState(0, Qt::Unchecked);
        tops << top;
    }
    Choice choice(tops);
    choice.read(text);
    choice.apply(automaticCheckStateUpdate());
    rebuilding = false;
}

QString GraphicalOutputTreeWidget::itemId(const GraphicalOutputTreeWidgetItem& item)
{
    return vkd::plib::widgetgraphicaloutput::itemId(item.record(), item.level);
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
    const GraphicalOutputRecord& r = item->record();
    out += QStringLiteral("%1 item %2 (%6) ids %3 %4 %5   isLC %7 ctrl %8\n")
               .arg(QString(indent, QLatin1Char(' ')), item->text(0), r.id1, r.id2, r.id3, itemId(*item),
                    QString::number(item->isLC), QString::number(r.ctrl));
    // Below a plot its first row stands for all.
    const int n = item->level == 2 ? qMin(1, item->childCount()) : item->childCount();
    for (int i = 0; i < n; ++i)
        appendDump(out, item->child(i), indent + 1);
}

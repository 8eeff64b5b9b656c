#pragma once
// The output tree as text, for the comparisons of the tree tests.

#include <QStringList>
#include <QTreeWidget>

// An item and all below it in one line: its text, its state (+ checked, ~ partially,
// - unchecked, nothing without a check box) and its children in brackets.
inline QString shape(const QTreeWidgetItem* item)
{
    QString out = item->text(0);
    if (item->data(0, Qt::CheckStateRole).isValid())
        out += QLatin1String("-~+").at(item->checkState(0));
    QStringList children;
    for (int i = 0; i < item->childCount(); ++i)
        children << shape(item->child(i));
    return children.isEmpty() ? out
                              : out + QLatin1Char('(') + children.join(QLatin1Char(' ')) + QLatin1Char(')');
}

inline QString shape(const QTreeWidget& tree)
{
    QStringList tops;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        tops << shape(tree.topLevelItem(i));
    return tops.join(QLatin1Char(' '));
}

// One line for each caption and each plot with its rows, indented by level.
inline QString listing(const QTreeWidgetItem* item, int level = 0)
{
    const QString indent(2 * level, QLatin1Char(' '));
    if (level == 2)
        return indent + shape(item) + QLatin1Char('\n');
    QString out = indent + item->text(0) + QLatin1String("-~+").at(item->checkState(0)) + QLatin1Char('\n');
    for (int i = 0; i < item->childCount(); ++i)
        out += listing(item->child(i), level + 1);
    return out;
}

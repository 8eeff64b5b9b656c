#pragma once

#include <VKD_H_TableWidget.h>

#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>

class QContextMenuEvent;
class QStyle;

// Draws as QStyledItemDelegate does, and keeps the sizes it gave: widening a column to its
// contents lays out the text of every row, and the rows of a table mostly repeat the same few
// texts. A size is reused only where everything it depends on is equal. Editors are those of
// QStyledItemDelegate, or made by the editing delegate if one is given (the table's own, for a
// column edited with a combo box).
class TextSizeDelegate : public QStyledItemDelegate
{
public:
    explicit TextSizeDelegate(QObject* parent, QAbstractItemDelegate* editing = nullptr);
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    // More sizes than this are not kept; the table shows summaries of few distinct kinds.
    static constexpr int kMaxKept = 4096;

    struct Key
    {
        QString text;
        QFont font;
        const QStyle* style;
        QStyleOptionViewItem::ViewItemFeatures features;
        Qt::Alignment alignment;
        QStyleOptionViewItem::Position decorationPosition;
        QSize decorationSize;
        qint64 icon;
        QSize rect;
        Qt::TextElideMode elide;
        Qt::CheckState checkState;
        Qt::LayoutDirection direction;
        bool operator==(const Key& other) const;
    };

private:
    QAbstractItemDelegate* m_editing;
    mutable QHash<Key, QSize> m_sizes;
};

uint qHash(const TextSizeDelegate::Key& key, uint seed = 0);

// The table of the design parameter page: five columns, one row per design parameter row.
// Its context menu adds New and Delete, which the page answers like its buttons.
class DesignParameterTable : public VKD_H_TableWidget
{
    Q_OBJECT
public:
    explicit DesignParameterTable(QWidget* parent);

signals:
    void signal_newClicked();
    void signal_delClicked();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
};

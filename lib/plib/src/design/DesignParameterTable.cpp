#include "DesignParameterTable.h"

#include <VKD_QT_Menu.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QScopedPointer>
#include <QStyle>

DesignParameterTable::DesignParameterTable(QWidget* parent) : VKD_H_TableWidget(0, 5, parent, "table") {}

void DesignParameterTable::contextMenuEvent(QContextMenuEvent*)
{
    QScopedPointer<VKD_QT_Menu> menu(getContextMenu());
    if (!menu)
        return;
    menu->addSeparator();
    auto* add = new VKD_QT_Action(QIcon(), tr("New"), QKeySequence(), menu.data());
    menu->addAction(add);
    connect(add, &QAction::triggered, this, &DesignParameterTable::signal_newClicked);
    auto* del = new VKD_QT_Action(QIcon(), tr("Delete"), QKeySequence(), menu.data());
    menu->addAction(del);
    connect(del, &QAction::triggered, this, &DesignParameterTable::signal_delClicked);
    menu->exec(QCursor::pos(), nullptr);
}

TextSizeDelegate::TextSizeDelegate(QObject* parent, QAbstractItemDelegate* editing)
    : QStyledItemDelegate(parent), m_editing(editing)
{
}

QWidget* TextSizeDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    return m_editing ? m_editing->createEditor(parent, option, index)
                     : QStyledItemDelegate::createEditor(parent, option, index);
}

void TextSizeDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (m_editing)
        m_editing->setEditorData(editor, index);
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void TextSizeDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    if (m_editing)
        m_editing->setModelData(editor, model, index);
    else
        QStyledItemDelegate::setModelData(editor, model, index);
}

void TextSizeDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const
{
    if (m_editing)
        m_editing->updateEditorGeometry(editor, option, index);
    else
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
}

bool TextSizeDelegate::Key::operator==(const Key& other) const
{
    return text == other.text && style == other.style && features == other.features &&
           alignment == other.alignment && decorationPosition == other.decorationPosition &&
           decorationSize == other.decorationSize && icon == other.icon && rect == other.rect &&
           elide == other.elide && checkState == other.checkState && direction == other.direction &&
           font == other.font;
}

uint qHash(const TextSizeDelegate::Key& key, uint seed)
{
    return qHash(key.text, seed) ^ uint(key.features) ^ (uint(key.rect.width()) << 8);
}

QSize TextSizeDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (index.data(Qt::SizeHintRole).isValid())
        return QStyledItemDelegate::sizeHint(option, index);
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const Key key{opt.text,
                  opt.font,
                  opt.widget ? opt.widget->style() : QApplication::style(),
                  opt.features,
                  opt.displayAlignment,
                  opt.decorationPosition,
                  opt.decorationSize,
                  opt.icon.cacheKey(),
                  opt.rect.size(),
                  opt.textElideMode,
                  opt.checkState,
                  opt.direction};
    const auto kept = m_sizes.constFind(key);
    if (kept != m_sizes.constEnd())
        return *kept;
    if (m_sizes.size() >= kMaxKept)
        m_sizes.clear();
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    m_sizes.insert(key, size);
    return size;
}

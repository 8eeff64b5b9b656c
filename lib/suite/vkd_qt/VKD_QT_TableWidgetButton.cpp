#include "VKD_QT_TableWidgetButton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPersistentModelIndex>
#include <QPushButton>
#include <QTableWidget>
#include <QTableWidgetItem>

VKD_QT_TableWidgetButton::VKD_QT_TableWidgetButton(QWidget* table, QTableWidgetItem* item, ButtonModus mode)
    : QWidget(table), m_mode(mode)
{
    setObjectName(QStringLiteral("VKD_QT_TableWidgetButton"));
    setAutoFillBackground(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    const QString text = item ? item->text() : QString();
    if (mode == TextButton) {
        m_button = new QPushButton(text, this);
        m_button->setToolTip(text);
        m_button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        layout->addWidget(m_button);
    } else {
        if (mode == EditText) {
            m_label = new QLabel(text, this);
            m_label->setToolTip(text);
            m_label->setAlignment(Qt::AlignCenter);
            layout->addWidget(m_label, 1);
        } else {
            layout->addStretch(1);
        }
        m_button = new QPushButton(QStringLiteral("..."), this);
        m_button->setFixedWidth(28);
        m_button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        layout->addWidget(m_button);
    }
    m_button->setObjectName(QStringLiteral("cellButton"));
    connect(m_button, &QPushButton::clicked, this, &VKD_QT_TableWidgetButton::clicked);
    // The model reports a redraw of the cell even while the table's own signals are blocked.
    auto* tableWidget = qobject_cast<QTableWidget*>(table);
    if (!tableWidget || !item || item->tableWidget() != tableWidget)
        return;
    const QPersistentModelIndex cell = tableWidget->model()->index(item->row(), item->column());
    connect(tableWidget->model(), &QAbstractItemModel::dataChanged, this,
            [this, cell](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
                if (cell.isValid() && cell.row() >= topLeft.row() && cell.row() <= bottomRight.row() &&
                    cell.column() >= topLeft.column() && cell.column() <= bottomRight.column())
                    showText(cell.data().toString());
            });
}

void VKD_QT_TableWidgetButton::showText(const QString& text)
{
    if (m_mode == TextButton) {
        m_button->setText(text);
        m_button->setToolTip(text);
    } else if (m_label) {
        m_label->setText(text);
        m_label->setToolTip(text);
    }
}

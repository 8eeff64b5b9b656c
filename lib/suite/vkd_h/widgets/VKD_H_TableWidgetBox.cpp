#include "VKD_H_TableWidgetBox.h"

#include "VKD_H_TableWidget.h"

#include <VKD_QT_PushButton.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

VKD_H_TableWidgetBox::VKD_H_TableWidgetBox(VKD_H_TableWidget* table, const QString& title, QWidget* parent,
                                           const char* name)
    : QGroupBox(title, parent), m_table(table)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

void VKD_H_TableWidgetBox::createDefaultLayout(bool buttonsOnTop, bool stretchTable)
{
    auto* layout = new QVBoxLayout(this);
    m_buttonRow = new QHBoxLayout;
    m_buttonRow->setObjectName(QStringLiteral("buttonRow"));
    if (buttonsOnTop)
        layout->addLayout(m_buttonRow);
    if (m_table)
        layout->addWidget(m_table, stretchTable ? 1 : 0);
    if (!buttonsOnTop)
        layout->addLayout(m_buttonRow);
    m_buttonRow->addStretch(1);
}

QPushButton* VKD_H_TableWidgetBox::addButton(Buttons which, bool connectToTable)
{
    if (!m_buttonRow)
        createDefaultLayout(false, true);
    if (m_buttons[which])
        return m_buttons[which];
    auto* button = which == New ? new VKD_QT_PushButton(tr("New"), this, "btnNew")
                                : new VKD_QT_PushButton(tr("Delete"), this, "btnDelete");
    m_buttonRow->insertWidget(m_buttonRow->count() - 1, button);
    m_buttons[which] = button;
    if (connectToTable && m_table) {
        if (which == New)
            connect(button, &QPushButton::clicked, m_table, [this] { m_table->addNewRow(true); });
        else
            connect(button, &QPushButton::clicked, m_table, &VKD_H_TableWidget::deleteSelectedRows);
    }
    return button;
}

QPushButton* VKD_H_TableWidgetBox::getButton(Buttons which) const
{
    return m_buttons[which];
}

void VKD_H_TableWidgetBox::addWidget(QWidget* widget)
{
    if (!m_buttonRow)
        createDefaultLayout(false, true);
    widget->setParent(this);
    m_buttonRow->insertWidget(m_buttonRow->count() - 1, widget);
}

#include "VKD_QT_RadioButtonGroup.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>

VKD_QT_RadioButtonGroup::VKD_QT_RadioButtonGroup(const QString& title,
                                                 const std::vector<StructRadioButtonGrup>& items,
                                                 QWidget* parent, const char* name,
                                                 Qt::Orientation orientation, int count)
    : VKD_QT_GroupBox(title, parent, name), m_items(items), m_widgets(items.size(), nullptr),
      m_group(new QButtonGroup(this)), m_grid(new QGridLayout(this)), m_orientation(orientation),
      m_count(count)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        auto* button = new QRadioButton(items[i].text, this);
        button->setObjectName(QStringLiteral("radio %1").arg(i));
        if (!items[i].toolTip.isEmpty())
            button->setToolTip(items[i].toolTip);
        if (!items[i].whatsThis.isEmpty())
            button->setWhatsThis(items[i].whatsThis);
        m_group->addButton(button, static_cast<int>(i));
        m_buttons.push_back(button);
    }
    init(items);
    connect(m_group, &QButtonGroup::idClicked, this, &VKD_QT_RadioButtonGroup::buttWasClicked);
    connect(m_group, &QButtonGroup::idToggled, this, [this](int, bool) { updateAttachedWidgets(); });
}

void VKD_QT_RadioButtonGroup::init(const std::vector<StructRadioButtonGrup>& items)
{
    if (items.size() == m_items.size())
        for (std::size_t i = 0; i < items.size(); ++i)
            m_buttons[i]->setText(items[i].text);
    while (m_grid->count() > 0)
        delete m_grid->takeAt(0);
    const int perLine = m_count > 0 ? m_count : static_cast<int>(m_buttons.size());
    for (int i = 0; i < static_cast<int>(m_buttons.size()); ++i) {
        const int line = i / perLine;
        const int place = i % perLine;
        const int row = m_orientation == Qt::Vertical ? place : line;
        const int column = m_orientation == Qt::Vertical ? line : place;
        QWidget* widget = m_widgets[i];
        if (!widget) {
            m_grid->addWidget(m_buttons[i], row, column);
            continue;
        }
        // The button and its widget share the cell, the widget to the right.
        auto* cell = new QHBoxLayout;
        cell->addWidget(m_buttons[i]);
        cell->addWidget(widget, 1);
        m_grid->addLayout(cell, row, column);
    }
    updateAttachedWidgets();
}

void VKD_QT_RadioButtonGroup::setWidget(int entry, QWidget* widget)
{
    if (entry < 0 || entry >= static_cast<int>(m_items.size()) || m_items[entry].flag != 1)
        return;
    m_widgets[entry] = widget;
}

int VKD_QT_RadioButtonGroup::selectedButton() const
{
    return m_group->checkedId();
}

void VKD_QT_RadioButtonGroup::setButton(int entry)
{
    if (QRadioButton* button = getRadioButton(entry))
        button->setChecked(true);
}

QRadioButton* VKD_QT_RadioButtonGroup::getRadioButton(int entry) const
{
    return entry >= 0 && entry < static_cast<int>(m_buttons.size()) ? m_buttons[entry] : nullptr;
}

void VKD_QT_RadioButtonGroup::updateAttachedWidgets()
{
    for (std::size_t i = 0; i < m_widgets.size(); ++i)
        if (m_widgets[i])
            m_widgets[i]->setEnabled(m_buttons[i]->isChecked());
}

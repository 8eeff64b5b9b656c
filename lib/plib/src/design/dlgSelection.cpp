#include "dlgSelection.h"

#include "rowtext.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_PushButton.h>
#include <VKD_QT_SignalBlocker.h>
#include <vkd_dbo.h>
#include <vkd_qt_icon.h>

using namespace vkd::plib::design;

namespace {

constexpr int kGroupIcon = 2125;
constexpr int kSecondaryGroupIcon = 2126;
constexpr int kIconSize = 32;

} // namespace

dlgSelection::dlgSelection(int zobIndex, QWidget* parent) : QWidget(parent), zobIndex(zobIndex)
{
    comboGroups = new VKD_QT4_ComboBox(this, "comboGroups");
    comboGroups->setEditable(false);
    auto* buttonGroups = new VKD_QT_PushButton(this, "buttonGroups");
    buttonGroups->setIcon(vkd_qt_icon(kGroupIcon, kIconSize));
    buttonGroups->setToolTip(tr("Groups"));
    auto* buttonSekGroups = new VKD_QT_PushButton(this, "buttonSekGroups");
    buttonSekGroups->setIcon(vkd_qt_icon(kSecondaryGroupIcon, kIconSize));
    buttonSekGroups->setToolTip(tr("Secondary groups"));

    connect(buttonGroups, &QPushButton::clicked, this, &dlgSelection::signal_groupButtonClicked);
    connect(buttonSekGroups, &QPushButton::clicked, this, &dlgSelection::signal_sekGroupButtonClicked);
    connect(comboGroups, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { emit signal_selectionComboChanged(comboGroups->itemText(index)); });

    if (!vkd::dbo::hasGroups(zobIndex, nullptr))
        buttonGroups->setEnabled(false);
    if (!vkd::dbo::hasSgrp(zobIndex, nullptr))
        buttonSekGroups->setEnabled(false);

    auto* layout = new VKD_QT_HBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(comboGroups, 1);
    layout->addWidget(buttonGroups);
    layout->addWidget(buttonSekGroups);
}

void dlgSelection::fillCombo(const DesignParameterRow& row, bool remainingInUse)
{
    VKD_QT_SignalBlocker blocker(comboGroups);
    const bool isRemaining = row.groups.size() == 1 && row.groups.front() == -1;
    comboGroups->clear();
    comboGroups->addItem(QIcon(), tr("None"), QVariant());
    if (!remainingInUse || isRemaining)
        comboGroups->addItem(QIcon(), tr("Remaining Groups"), QVariant());
    QString current;
    if (row.groups.empty()) {
        current = tr("None");
    } else if (isRemaining) {
        current = tr("Remaining Groups");
    } else {
        current = rowText(row, ColumnSelection);
        comboGroups->addItem(QIcon(), current, QVariant());
    }
    comboGroups->setCurrentIndex(comboGroups->findText(current, Qt::MatchCaseSensitive));
}

#include "VKD_P_RadioGroupImpl.h"

#include <QtTableView.h>

#include <QHBoxLayout>
#include <QRadioButton>
#include <QSpacerItem>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

// writeXML names the first checked button in this order; readXML looks in it too.
constexpr int persistentOrder[] = {2, 3, 4, 5, 1, 0, 6, 7, 8, 9};
// The group takes the buttons, and useWidget connects them, in the order of the fields.
constexpr int wiringOrder[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0};

const char* const persistentNames[] = {"m_NoTextOutput", "m_Manually", "m_All",      "m_All_A",
                                       "m_All_F",        "m_All_E",    "m_All_RARE", "m_All_FREQ",
                                       "m_All_PERM",     "m_All_NONF"};

QString persistentName(int id)
{
    return QLatin1String(persistentNames[id]);
}

} // namespace

QRadioButton* VKD_P_RadioGroupImpl::*const VKD_P_RadioGroupImpl::s_fields[10] = {
    &VKD_P_RadioGroupImpl::m_NoTextOutput, &VKD_P_RadioGroupImpl::m_Manually,
    &VKD_P_RadioGroupImpl::m_All,          &VKD_P_RadioGroupImpl::m_All_A,
    &VKD_P_RadioGroupImpl::m_All_F,        &VKD_P_RadioGroupImpl::m_All_E,
    &VKD_P_RadioGroupImpl::m_All_RARE,     &VKD_P_RadioGroupImpl::m_All_FREQ,
    &VKD_P_RadioGroupImpl::m_All_PERM,     &VKD_P_RadioGroupImpl::m_All_NONF};

VKD_P_RadioGroupImpl::VKD_P_RadioGroupImpl() = default;

VKD_P_RadioGroupImpl::~VKD_P_RadioGroupImpl()
{
    if (m_layout && !m_layout->parent())
        delete m_layout;
}

bool VKD_P_RadioGroupImpl::init(QWidget* parent)
{
    if (m_built)
        return false;
    auto* row = new QHBoxLayout;
    addButton(parent, row, tr("Manually"), VKD_P_RadioGroup::Manually);
    addButton(parent, row, tr("All"), VKD_P_RadioGroup::All);
    finishRow(row);
    return true;
}

bool VKD_P_RadioGroupImpl::initForLF(QWidget* parent, const std::list<VKD_P_RadioGroup::ButtonID>& ids)
{
    if (m_built)
        return false;
    auto* row = new QHBoxLayout;
    addButton(parent, row, tr("Manually"), VKD_P_RadioGroup::Manually);
    // By id, not by the list: the row looks the same whatever order the host asks in.
    for (int id = VKD_P_RadioGroup::AllAccidental; id <= VKD_P_RadioGroup::AllNonFrequent; ++id) {
        if (std::find(ids.begin(), ids.end(), id) != ids.end())
            addButton(parent, row, loadCaseLabel(id), id);
    }
    finishRow(row);
    return true;
}

bool VKD_P_RadioGroupImpl::initEchoOutput(QWidget* parent)
{
    if (m_built)
        return false;
    auto* row = new QHBoxLayout;
    addButton(parent, row, tr("Manually controlled"), VKD_P_RadioGroup::Manually)
        ->setToolTip(tr("Manually controlled text output"));
    addButton(parent, row, tr("No text output"), VKD_P_RadioGroup::NoTextOutput)
        ->setToolTip(tr("Smaller output without any text lists"));
    addButton(parent, row, tr("Full text output"), VKD_P_RadioGroup::All)
        ->setToolTip(tr("Extensive text output\nuseful to find errors or to compare variants"));
    finishRow(row);
    m_Manually->setChecked(true);
    return true;
}

QRadioButton* VKD_P_RadioGroupImpl::addButton(QWidget* parent, QHBoxLayout* row, const QString& label, int id)
{
    auto* button = new QRadioButton(label, parent);
    button->setObjectName(persistentName(id));
    row->addWidget(button);
    this->*s_fields[id] = button;
    return button;
}

void VKD_P_RadioGroupImpl::finishRow(QHBoxLayout* row)
{
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::MinimumExpanding, QSizePolicy::Minimum));
    m_layout = row;
    m_built = true;
    for (int id : wiringOrder) {
        if (QRadioButton* b = button(id))
            m_group.addButton(b, id);
    }
}

QString VKD_P_RadioGroupImpl::loadCaseLabel(int id) const
{
    switch (id) {
    case VKD_P_RadioGroup::AllAccidental:
        return tr("All Accidential");
    case VKD_P_RadioGroup::AllFire:
        return tr("All Fire");
    case VKD_P_RadioGroup::AllEarthquake:
        return tr("All Earthquake");
    case VKD_P_RadioGroup::AllCharacteristic:
        return tr("All Characteristic");
    case VKD_P_RadioGroup::AllFrequent:
        return tr("All Frequent");
    case VKD_P_RadioGroup::AllQuasiPermanent:
        return tr("All Quasi-Permanent");
    case VKD_P_RadioGroup::AllNonFrequent:
        return tr("All Non-Frequent");
    default:
        return QString();
    }
}

QRadioButton* VKD_P_RadioGroupImpl::button(int id) const
{
    return id >= 0 && id < int(std::size(s_fields)) ? this->*s_fields[id] : nullptr;
}

void VKD_P_RadioGroupImpl::useWidget(QWidget* widget)
{
    m_usedWidget = widget;
    for (int id : wiringOrder) {
        if (QRadioButton* b = button(id)) {
            connect(b, &QRadioButton::toggled, this, &VKD_P_RadioGroupImpl::updateUsedWidget);
            connect(b, &QRadioButton::toggled, this, &VKD_P_RadioGroupImpl::buttonXXClicked);
        }
    }
    connect(&m_group, &QButtonGroup::idClicked, this, &VKD_P_RadioGroupImpl::updateUsedWidget);
    updateUsedWidget();
}

void VKD_P_RadioGroupImpl::updateUsedWidget()
{
    if (!m_usedWidget)
        return;
    const int id = m_group.checkedId();
    // A table stays enabled so that the user can still scroll and read what "All" takes.
    if (auto* table = dynamic_cast<vkd::properties::nextGen::QtTableView*>(m_usedWidget))
        table->set_read_only(id != VKD_P_RadioGroup::Manually);
    else
        m_usedWidget->setEnabled(id == VKD_P_RadioGroup::Manually);
    emit buttonClicked(m_group.checkedId());
}

void VKD_P_RadioGroupImpl::buttonXXClicked(bool on)
{
    if (!on)
        return;
    int id = -1;
    for (int candidate = 0; candidate < int(std::size(s_fields)); ++candidate) {
        if (sender() && sender() == button(candidate))
            id = candidate;
    }
    switch (id) {
    case -1:
        return;
    case VKD_P_RadioGroup::NoTextOutput:
        emit buttonNoOutputChecked();
        return; // buttonChecked reports the ids 1 to 9 only
    case VKD_P_RadioGroup::Manually:
        emit buttonManuallyChecked();
        break;
    case VKD_P_RadioGroup::All:
        emit buttonAllChecked();
        break;
    case VKD_P_RadioGroup::AllAccidental:
        emit buttonAllAcciChecked();
        break;
    case VKD_P_RadioGroup::AllFire:
        emit buttonAllFireChecked();
        break;
    case VKD_P_RadioGroup::AllEarthquake:
        emit buttonAllEartChecked();
        break;
    default:
        break;
    }
    emit buttonChecked(id);
}

void VKD_P_RadioGroupImpl::setEnabledById(int id, bool enabled)
{
    if (QRadioButton* b = button(id))
        b->setEnabled(enabled);
}

void VKD_P_RadioGroupImpl::setSelectedId(int id)
{
    if (QRadioButton* b = button(id))
        b->setChecked(true);
}

QString VKD_P_RadioGroupImpl::writeXML() const
{
    QString text = QStringLiteral("checked:");
    for (int id : persistentOrder) {
        const QRadioButton* b = button(id);
        if (b && b->isChecked())
            text += persistentName(id);
    }
    return text;
}

void VKD_P_RadioGroupImpl::readXML(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(':'), Qt::KeepEmptyParts);
    if (parts.size() < 2 || parts.at(0) != QLatin1String("checked"))
        return;
    for (int id : persistentOrder) {
        QRadioButton* b = button(id);
        if (b && parts.at(1) == persistentName(id))
            b->setChecked(true);
    }
    updateUsedWidget();
}

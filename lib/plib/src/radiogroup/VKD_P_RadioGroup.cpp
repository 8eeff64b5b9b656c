#include "VKD_P_RadioGroup.h"

#include "VKD_P_RadioGroupImpl.h"

VKD_P_RadioGroup::VKD_P_RadioGroup()
    : m_impl(std::make_shared<VKD_P_RadioGroupImpl>())
{
}

VKD_P_RadioGroup::~VKD_P_RadioGroup() = default;

// Each form passes on its own set of the signals (see the header); the rest stay inside.
void VKD_P_RadioGroup::init(QWidget* parent)
{
    if (!m_impl->init(parent))
        return;
    VKD_P_RadioGroupImpl* impl = m_impl.get();
    connect(impl, &VKD_P_RadioGroupImpl::buttonClicked, this, &VKD_P_RadioGroup::buttonClicked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonNoOutputChecked, this,
            &VKD_P_RadioGroup::buttonNoOutputChecked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonManuallyChecked, this,
            &VKD_P_RadioGroup::buttonManuallyChecked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonAllChecked, this, &VKD_P_RadioGroup::buttonAllChecked);
}

void VKD_P_RadioGroup::initForLF(QWidget* parent, const std::list<ButtonID>& ids)
{
    if (!m_impl->initForLF(parent, ids))
        return;
    VKD_P_RadioGroupImpl* impl = m_impl.get();
    connect(impl, &VKD_P_RadioGroupImpl::buttonClicked, this, &VKD_P_RadioGroup::buttonClicked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonManuallyChecked, this,
            &VKD_P_RadioGroup::buttonManuallyChecked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonAllChecked, this, &VKD_P_RadioGroup::buttonAllChecked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonAllAcciChecked, this, &VKD_P_RadioGroup::buttonAllAcciChecked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonAllFireChecked, this, &VKD_P_RadioGroup::buttonAllFireChecked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonAllEartChecked, this, &VKD_P_RadioGroup::buttonAllEartChecked);
    connect(impl, &VKD_P_RadioGroupImpl::buttonChecked, this, &VKD_P_RadioGroup::buttonChecked);
}

void VKD_P_RadioGroup::initEchoOutput(QWidget* parent)
{
    m_impl->initEchoOutput(parent);
}

QLayout* VKD_P_RadioGroup::layout() const
{
    return m_impl->layout();
}

void VKD_P_RadioGroup::useWidget(QWidget* widget)
{
    m_impl->useWidget(widget);
}

void VKD_P_RadioGroup::updateUsedWidget()
{
    m_impl->updateUsedWidget();
}

void VKD_P_RadioGroup::setEnabledById(ButtonID id, bool enabled)
{
    m_impl->setEnabledById(id, enabled);
}

void VKD_P_RadioGroup::setSelectedId(ButtonID id)
{
    m_impl->setSelectedId(id);
}

VKD_P_RadioGroup::ButtonID VKD_P_RadioGroup::getSelectedId() const
{
    return static_cast<ButtonID>(m_impl->getSelectedId());
}

QString VKD_P_RadioGroup::writeXML() const
{
    return m_impl->writeXML();
}

void VKD_P_RadioGroup::readXML(const QString& text)
{
    m_impl->readXML(text);
}

#include <VKD_P_DesignParameter.h>

#include "DesignParameter.h"
#include "designrecord.h"
#include "designstore.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_Layouts.h>

VKD_P_DesignParameter::VKD_P_DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent,
                                             bool flagA, bool flagB)
    : QWidget(parent), m_page(new DesignParameter(doc, designDoc, this, flagA, flagB))
{
    connect(m_page, &DesignParameter::signal_rowCountChanged, this,
            &VKD_P_DesignParameter::signal_rowCountChanged);
    auto* layout = new VKD_QT_VBoxLayout(this);
    layout->addWidget(m_page);
    checkAndCreateZobDefault(designDoc ? designDoc->index() : -1);
}

VKD_P_DesignParameter::~VKD_P_DesignParameter()
{
    delete m_page;
}

bool VKD_P_DesignParameter::init()
{
    return m_page->init();
}

void VKD_P_DesignParameter::readZob()
{
    m_page->readZob();
}

void VKD_P_DesignParameter::writeToZob()
{
    m_page->writeToZob();
}

void VKD_P_DesignParameter::getEntrys(VKD_H_ProjectDialogPage& page)
{
    m_page->getEntrys(page);
}

void VKD_P_DesignParameter::setEntrys(VKD_H_ProjectDialogPage& page)
{
    m_page->setEntrys(page);
}

bool VKD_P_DesignParameter::checkVals()
{
    return m_page->checkVals();
}

void VKD_P_DesignParameter::showHelp()
{
    m_page->help_clicked();
}

tagZOB_QUAD_RIM VKD_P_DesignParameter::getDefaultMerPara(bool forRemainingGroups)
{
    return vkd::plib::design::getDefaultMerPara(forRemainingGroups);
}

void VKD_P_DesignParameter::checkAndCreateZobDefault(int index)
{
    vkd::plib::design::checkAndCreateZobDefault(index);
}

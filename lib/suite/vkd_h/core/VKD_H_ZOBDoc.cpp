#include "VKD_H_ZOBDoc.h"

#include <vkd_dbo.h>
#include <vkd_q.h>

VKD_H_ZOBDoc::VKD_H_ZOBDoc(const QString& path, OpenMode mode)
    : m_path(path)
{
    m_index = vkd_zob_open(path, mode == OpenOrCreate, &m_error);
    if (m_index > 0)
        vkd::dbo::setCurrentProject(m_index);
}

VKD_H_ZOBDoc::~VKD_H_ZOBDoc()
{
    if (m_index > 0 && vkd::dbo::currentProject() == m_index)
        vkd::dbo::setCurrentProject(0);
    vkd_zob_close(m_index);
}

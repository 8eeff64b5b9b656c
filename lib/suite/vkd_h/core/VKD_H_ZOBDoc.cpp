#include "VKD_H_ZOBDoc.h"

#include <vkd_q.h>

VKD_H_ZOBDoc::VKD_H_ZOBDoc(const QString& path, OpenMode mode)
    : m_path(path)
{
    m_index = vkd_zob_open(path, mode == OpenOrCreate, &m_error);
}

VKD_H_ZOBDoc::~VKD_H_ZOBDoc()
{
    vkd_zob_close(m_index);
}

#include "VKD_H_ZOBDoc.h"

#include <vkd_dbo.h>
#include <vkd_q.h>

namespace {

// The key pair of a write that spans the whole project; no records are kept under it.
constexpr int kWholeProjectKey1 = -1;
constexpr int kWholeProjectKey2 = -1;

ZobOpenMode storeMode(VKD_H_ZOBDoc::OpenMode mode)
{
    switch (mode) {
    case VKD_H_ZOBDoc::OpenOrCreate:
        return ZOB_OPEN_OR_CREATE;
    case VKD_H_ZOBDoc::ReadOnly:
        return ZOB_OPEN_READ_ONLY;
    case VKD_H_ZOBDoc::MemoryCopy:
        return ZOB_OPEN_MEMORY_COPY;
    case VKD_H_ZOBDoc::OpenExisting:
        break;
    }
    return ZOB_OPEN_EXISTING;
}

} // namespace

VKD_H_ZOBDoc::VKD_H_ZOBDoc(const QString& path, OpenMode mode)
    : m_path(path)
{
    m_index = vkd_zob_open(path, storeMode(mode), &m_error);
    if (m_index > 0)
        vkd::dbo::setCurrentProject(m_index);
}

VKD_H_ZOBDoc::~VKD_H_ZOBDoc()
{
    if (m_index > 0 && vkd::dbo::currentProject() == m_index)
        vkd::dbo::setCurrentProject(0);
    vkd_zob_close(m_index);
}

bool VKD_H_ZOBDoc::isReadOnly() const
{
    return vkd_zob_read_only(m_index);
}

QString VKD_H_ZOBDoc::lastWriteError() const
{
    return isValid() ? vkd_zob_write_error(m_index) : m_error;
}

int VKD_H_ZOBDoc::lastWriteStatus() const
{
    return vkd_zob_write_status(m_index);
}

int VKD_H_ZOBDoc::beginWrite()
{
    return vkd_zob_lock_ex(m_index, kWholeProjectKey1, kWholeProjectKey2);
}

void VKD_H_ZOBDoc::endWrite()
{
    vkd_zob_free_ex(m_index, kWholeProjectKey1, kWholeProjectKey2);
}

void VKD_H_ZOBDoc::setBusyTimeout(int milliseconds)
{
    vkd_zob_set_busy_timeout(m_index, milliseconds);
}

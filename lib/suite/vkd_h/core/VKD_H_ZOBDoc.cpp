#include "VKD_H_ZOBDoc.h"

#include <vkd_q.h>

namespace {

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

VKD_H_ZOBDoc::VKD_H_ZOBDoc(const QString& path, OpenMode mode) : m_path(path)
{
    m_index = vkd_zob_open(path, storeMode(mode), &m_error);
}

VKD_H_ZOBDoc::~VKD_H_ZOBDoc()
{
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

void VKD_H_ZOBDoc::setBusyTimeout(int milliseconds)
{
    vkd_zob_set_busy_timeout(m_index, milliseconds);
}

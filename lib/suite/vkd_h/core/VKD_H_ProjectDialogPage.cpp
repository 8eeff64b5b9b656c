#include "VKD_H_ProjectDialogPage.h"

#include <vkd_q.h>

#include <QByteArray>

// Each entry is one record: the key in UTF-8, a zero byte, the value in UTF-8.

QString VKD_H_ProjectDialogPage::getEntry(const QString& key, const QString& defaultValue) const
{
    return m_entries.value(key, defaultValue);
}

void VKD_H_ProjectDialogPage::setEntry(const QString& key, const QString& value)
{
    m_entries.insert(key, value);
}

void VKD_H_ProjectDialogPage::deleteEntry(const QString& key)
{
    m_entries.remove(key);
}

bool VKD_H_ProjectDialogPage::load(int index)
{
    m_entries.clear();
    QByteArray buffer(1024, '\0');
    for (int position = 0;;) {
        int length = buffer.size();
        const zob_status_t status =
            vkd_zob_get(index, StoreKey1, m_pageNumber, buffer.data(), &length, position);
        if (status == ZOB_NO_DATABASE || status == ZOB_BAD_ARGUMENT)
            return false;
        if (status >= ZOB_END)
            return true;
        if (status == ZOB_TRUNCATED) {
            buffer.resize(buffer.size() * 4);
            continue; // the same position again, with room for it
        }
        const QByteArray record = buffer.left(length);
        const int split = record.indexOf('\0');
        if (split > 0)
            m_entries.insert(QString::fromUtf8(record.left(split)), QString::fromUtf8(record.mid(split + 1)));
        ++position;
    }
}

void VKD_H_ProjectDialogPage::save(int index) const
{
    vkd_zob_lock_ex(index, StoreKey1, m_pageNumber);
    int length = 0;
    vkd_zob_put(index, StoreKey1, m_pageNumber, nullptr, &length, 0);
    for (auto it = m_entries.cbegin(); it != m_entries.cend(); ++it) {
        const QByteArray record = it.key().toUtf8() + '\0' + it.value().toUtf8();
        length = record.size();
        vkd_zob_put(index, StoreKey1, m_pageNumber, record.constData(), &length, 1);
    }
    vkd_zob_free_ex(index, StoreKey1, m_pageNumber);
}

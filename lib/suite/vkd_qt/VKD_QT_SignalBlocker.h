#pragma once

#include <QObject>

// Blocks the signals of an object for its lifetime and restores the previous state.
class VKD_QT_SignalBlocker
{
public:
    explicit VKD_QT_SignalBlocker(QObject* object)
        : m_object(object), m_wasBlocked(object ? object->blockSignals(true) : false)
    {
    }
    ~VKD_QT_SignalBlocker()
    {
        if (m_object)
            m_object->blockSignals(m_wasBlocked);
    }
    VKD_QT_SignalBlocker(const VKD_QT_SignalBlocker&) = delete;
    VKD_QT_SignalBlocker& operator=(const VKD_QT_SignalBlocker&) = delete;

private:
    QObject* m_object;
    bool m_wasBlocked;
};

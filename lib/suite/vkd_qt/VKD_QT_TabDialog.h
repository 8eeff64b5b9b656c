#pragma once

#include "VKD_QT_Dialog.h"

class QTabWidget;
class VKD_QT_Ok;

// A host dialog of the desktop: pages in tabs above a row of OK and Cancel.
class VKD_QT_TabDialog : public VKD_QT_Dialog
{
    Q_OBJECT
public:
    explicit VKD_QT_TabDialog(QWidget* parent = nullptr, const char* name = nullptr);
    int addTab(QWidget* page, const QString& label);
    QTabWidget* tabWidget() const { return m_tabs; }
    VKD_QT_Ok* buttonRow() const { return m_ok; }

signals:
    // The page that became current.
    void currentChanged(QWidget* page);

private:
    QTabWidget* m_tabs;
    VKD_QT_Ok* m_ok;
};

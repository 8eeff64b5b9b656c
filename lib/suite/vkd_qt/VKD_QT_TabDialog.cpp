#include "VKD_QT_TabDialog.h"

#include "VKD_QT_Ok.h"

#include <QTabWidget>
#include <QVBoxLayout>

VKD_QT_TabDialog::VKD_QT_TabDialog(QWidget* parent, const char* name)
    : VKD_QT_Dialog(parent, name)
{
    auto* layout = new QVBoxLayout(this);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("tabs"));
    layout->addWidget(m_tabs, 1);
    m_ok = new VKD_QT_Ok(this, 3, "okayandcancelbutton");
    layout->addWidget(m_ok);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) { emit currentChanged(m_tabs->widget(index)); });
}

int VKD_QT_TabDialog::addTab(QWidget* page, const QString& label)
{
    return m_tabs->addTab(page, label);
}

#include "designdialogs.h"

#include <VKD_QT_Dialog.h>
#include <VKD_QT_Ok.h>

#include <QPalette>
#include <QPushButton>

namespace vkd::plib::design {

void setUpDesignDialog(VKD_QT_Dialog* dialog, const QString& title)
{
    dialog->setPalette(QPalette(Qt::white));
    dialog->setAutoFillBackground(true);
    dialog->setWindowTitle(title);
}

void connectButtonRow(QDialog* dialog, const VKD_QT_Ok* row)
{
    if (QPushButton* ok = row->cmdOk()) {
        QObject::disconnect(ok, &QPushButton::clicked, dialog, nullptr);
        QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    }
    if (QPushButton* cancel = row->cmdCancel()) {
        QObject::disconnect(cancel, &QPushButton::clicked, dialog, nullptr);
        QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    }
}

} // namespace vkd::plib::design

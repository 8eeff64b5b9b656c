#pragma once

#include <QWidget>

class QPushButton;

// The row of OK and Cancel buttons at the foot of a dialog. Bit 1 of the number asks for OK,
// bit 2 for Cancel; 3 gives both. They accept and reject the dialog the row lies in.
class VKD_QT_Ok : public QWidget
{
    Q_OBJECT
public:
    VKD_QT_Ok(QWidget* parent, int buttons, const char* name = nullptr);
    QPushButton* cmdOk() const { return m_ok; }
    QPushButton* cmdCancel() const { return m_cancel; }

private:
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
};

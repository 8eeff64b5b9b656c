#pragma once

#include <QDialog>

// The desktop's dialog base class. A dialog closed by callDone() for a detour (for example to
// let the user pick something in the model) announces with isReOpen() when it is shown again.
class VKD_QT_Dialog : public QDialog
{
    Q_OBJECT
public:
    explicit VKD_QT_Dialog(QWidget* parent = nullptr, const char* name = nullptr);
    virtual void callDone(int result);
    int lastDoneResult() const { return m_lastDone; }

signals:
    void isReOpen(int result);

protected:
    void showEvent(QShowEvent* event) override;

private:
    int m_lastDone = -1;
    bool m_detour = false;
};

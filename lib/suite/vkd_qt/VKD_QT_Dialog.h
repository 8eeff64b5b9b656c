#pragma once

#include <QDialog>

// The desktop's dialog base class. A dialog closed by callDone() for a detour (for example to
// let the user pick something in the model) announces with isReOpen() when it is shown again.
// It is not accepted while an enabled input field holds text that the field's validator does
// not accept: the first such field gets the focus and shows why in its tooltip.
class VKD_QT_Dialog : public QDialog
{
    Q_OBJECT
public:
    explicit VKD_QT_Dialog(QWidget* parent = nullptr, const char* name = nullptr);
    virtual void callDone(int result);
    int lastDoneResult() const { return m_lastDone; }

public slots:
    void accept() override;

signals:
    void isReOpen(int result);

protected:
    void showEvent(QShowEvent* event) override;

private:
    int m_lastDone = -1;
    bool m_detour = false;
};

#pragma once
// What the widget tests of the design page and its dialogs share: the stored records, the
// buttons of a dialog, and modal windows answered as a person would.

#include <VKD_QT_Ok.h>
#include <VKD_QT_TableWidgetButton.h>
#include <vkd_q.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

// All records of the design key pair, byte for byte.
inline QByteArray designRecords(int index)
{
    QByteArray all;
    char buffer[212];
    for (int position = 0;; ++position) {
        int length = int(sizeof buffer);
        if (vkd_zob_get(index, 200, 6, buffer, &length, position) >= ZOB_END)
            return all;
        all.append(buffer, length);
    }
}

inline QPushButton* dialogButton(QWidget* dialog, bool ok = true)
{
    auto* row = dialog->findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"));
    return ok ? row->cmdOk() : row->cmdCancel();
}

// What a button laid over a table cell shows.
inline QString buttonText(VKD_QT_TableWidgetButton* b)
{
    return b->mode() == VKD_QT_TableWidgetButton::EditText ? b->findChild<QLabel*>()->text()
                                                           : b->button()->text();
}

// Runs `act` on the first modal widget that `match` takes, as soon as it is up.
inline void onModal(const std::function<bool(QWidget*)>& match, const std::function<void(QWidget*)>& act)
{
    auto* timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, match, act] {
        QWidget* w = QApplication::activeModalWidget();
        if (!w || !match(w))
            return;
        timer->stop();
        timer->deleteLater();
        act(w);
    });
    timer->start();
}

// Answers every message box while it lives with `answer`, or its first button, and keeps
// "title: text" of each, its buttons and icon, and whether a busy cursor was still set.
class BoxWatcher
{
public:
    explicit BoxWatcher(QMessageBox::StandardButton answer = QMessageBox::NoButton)
    {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, [this, answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            seen << box->windowTitle() + QStringLiteral(": ") + box->text();
            buttons = box->standardButtons();
            icon = box->icon();
            busyCursor = QApplication::overrideCursor() != nullptr;
            QAbstractButton* button = box->button(answer);
            (button ? button : box->buttons().value(0))->click();
        });
        m_timer.start();
    }
    QStringList seen;
    QMessageBox::StandardButtons buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool busyCursor = false;

private:
    QTimer m_timer;
};

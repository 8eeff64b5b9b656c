#pragma once
// Modal windows answered as a person would, while the code under test waits in their event loop.

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>

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
// "title: text" and the parent of each, its buttons and icon, and whether a busy cursor was
// still set.
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
            parents << box->parentWidget();
            buttons = box->standardButtons();
            icon = box->icon();
            busyCursor = QApplication::overrideCursor() != nullptr;
            QAbstractButton* button = box->button(answer);
            (button ? button : box->buttons().value(0))->click();
        });
        m_timer.start();
    }
    QStringList seen;
    QList<QWidget*> parents;
    QMessageBox::StandardButtons buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool busyCursor = false;

private:
    QTimer m_timer;
};

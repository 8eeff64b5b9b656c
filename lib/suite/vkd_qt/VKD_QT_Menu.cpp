#include "VKD_QT_Menu.h"

VKD_QT_Action::VKD_QT_Action(const QString& text, QObject* parent)
    : QAction(text, parent)
{
    setObjectName(text);
}

VKD_QT_Action::VKD_QT_Action(const QIcon& icon, const QString& text, QObject* parent)
    : QAction(icon, text, parent)
{
    setObjectName(text);
}

VKD_QT_Action::VKD_QT_Action(const QIcon& icon, const QString& text, const QKeySequence& shortcut,
                             QObject* parent, const char* name)
    : QAction(icon, text, parent)
{
    setShortcut(shortcut);
    setObjectName(name ? QString::fromLatin1(name) : text);
}

VKD_QT_Menu::VKD_QT_Menu(QWidget* parent)
    : QMenu(parent)
{
}

VKD_QT_Menu::VKD_QT_Menu(QWidget* parent, const char* name)
    : QMenu(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

VKD_QT_Menu::VKD_QT_Menu(const QString& title, QWidget* parent)
    : QMenu(title, parent)
{
}

VKD_QT_Action* VKD_QT_Menu::addAction(const QString& text)
{
    return addAction(text, nullptr, nullptr);
}

VKD_QT_Action* VKD_QT_Menu::addAction(const QString& text, const QObject* receiver, const char* member,
                                      const QKeySequence& shortcut)
{
    auto* action = new VKD_QT_Action(text, this);
    action->setShortcut(shortcut);
    if (receiver && member)
        connect(action, SIGNAL(triggered()), receiver, member);
    QMenu::addAction(action);
    return action;
}

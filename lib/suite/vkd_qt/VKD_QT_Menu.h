#pragma once

#include <QAction>
#include <QMenu>

// The desktop's menus and actions: plain Qt ones with an object name of their text, so that
// tests and scripts can find them.
class VKD_QT_Action : public QAction
{
    Q_OBJECT
public:
    VKD_QT_Action(const QString& text, QObject* parent);
    VKD_QT_Action(const QIcon& icon, const QString& text, QObject* parent);
    VKD_QT_Action(const QIcon& icon, const QString& text, const QKeySequence& shortcut, QObject* parent,
                  const char* name = nullptr);
};

class VKD_QT_Menu : public QMenu
{
    Q_OBJECT
public:
    explicit VKD_QT_Menu(QWidget* parent = nullptr);
    VKD_QT_Menu(QWidget* parent, const char* name);
    VKD_QT_Menu(const QString& title, QWidget* parent = nullptr);
    // Adds an action of the given text, connected to a slot of the receiver if one is given. Both
    // take the parameters of QMenu's forms, so that they hide them: with defaults of their own a
    // call of one argument would match both (gcc picks ours, clang refuses it).
    VKD_QT_Action* addAction(const QString& text);
    VKD_QT_Action* addAction(const QString& text, const QObject* receiver, const char* member,
                             const QKeySequence& shortcut = 0);
    using QMenu::addAction;
};

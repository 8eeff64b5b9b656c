#pragma once

#include <QMessageBox>
#include <QString>

// Modal message boxes of the desktop. Two forms each: with QMessageBox button values (the
// result is the value of the button pressed), and with up to three button texts (null texts
// give a single OK button; the result is the index of the button pressed).
class VKD_QT_MessageBox
{
public:
    static int warning(QWidget* parent, const QString& title, const QString& text, int button0, int button1,
                       int button2);
    static int warning(QWidget* parent, const QString& title, const QString& text,
                       const QString& button0Text = QString(), const QString& button1Text = QString(),
                       const QString& button2Text = QString(), int defaultButtonNumber = 0,
                       int escapeButtonNumber = -1);
    static int critical(QWidget* parent, const QString& title, const QString& text, int button0, int button1,
                        int button2);
    static int critical(QWidget* parent, const QString& title, const QString& text,
                        const QString& button0Text = QString(), const QString& button1Text = QString(),
                        const QString& button2Text = QString(), int defaultButtonNumber = 0,
                        int escapeButtonNumber = -1);
    static int information(QWidget* parent, const QString& title, const QString& text);
};

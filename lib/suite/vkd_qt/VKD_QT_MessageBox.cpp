#include "VKD_QT_MessageBox.h"

#include <QPushButton>

namespace {

int showWithButtons(QMessageBox::Icon icon, QWidget* parent, const QString& title, const QString& text,
                    int button0, int button1, int button2)
{
    QMessageBox box(icon, title, text, QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("VKD_QT_MessageBox"));
    for (int b : {button0, button1, button2})
        if (b != 0)
            box.addButton(QMessageBox::StandardButton(b));
    if (button0 == 0 && button1 == 0 && button2 == 0)
        box.addButton(QMessageBox::Ok);
    if (button0 != 0)
        box.setDefaultButton(QMessageBox::StandardButton(button0));
    return box.exec();
}

int showWithTexts(QMessageBox::Icon icon, QWidget* parent, const QString& title, const QString& text,
                  const QStringList& buttonTexts, int defaultButton, int escapeButton)
{
    QMessageBox box(icon, title, text, QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("VKD_QT_MessageBox"));
    QList<QAbstractButton*> buttons;
    for (const QString& t : buttonTexts)
        if (!t.isNull())
            buttons << box.addButton(t, QMessageBox::AcceptRole);
    if (buttons.isEmpty())
        buttons << box.addButton(QMessageBox::Ok);
    if (defaultButton >= 0 && defaultButton < buttons.size())
        box.setDefaultButton(qobject_cast<QPushButton*>(buttons.at(defaultButton)));
    if (escapeButton >= 0 && escapeButton < buttons.size())
        box.setEscapeButton(buttons.at(escapeButton));
    box.exec();
    return buttons.indexOf(box.clickedButton());
}

} // namespace

int VKD_QT_MessageBox::warning(QWidget* parent, const QString& title, const QString& text, int button0,
                               int button1, int button2)
{
    return showWithButtons(QMessageBox::Warning, parent, title, text, button0, button1, button2);
}

int VKD_QT_MessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                               const QString& button0Text, const QString& button1Text,
                               const QString& button2Text, int defaultButtonNumber, int escapeButtonNumber)
{
    return showWithTexts(QMessageBox::Warning, parent, title, text, {button0Text, button1Text, button2Text},
                         defaultButtonNumber, escapeButtonNumber);
}

int VKD_QT_MessageBox::critical(QWidget* parent, const QString& title, const QString& text, int button0,
                                int button1, int button2)
{
    return showWithButtons(QMessageBox::Critical, parent, title, text, button0, button1, button2);
}

int VKD_QT_MessageBox::critical(QWidget* parent, const QString& title, const QString& text,
                                const QString& button0Text, const QString& button1Text,
                                const QString& button2Text, int defaultButtonNumber, int escapeButtonNumber)
{
    return showWithTexts(QMessageBox::Critical, parent, title, text, {button0Text, button1Text, button2Text},
                         defaultButtonNumber, escapeButtonNumber);
}

int VKD_QT_MessageBox::information(QWidget* parent, const QString& title, const QString& text)
{
    return showWithTexts(QMessageBox::Information, parent, title, text, {}, 0, 0);
}

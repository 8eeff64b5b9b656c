#pragma once

#include <QGroupBox>

class QHBoxLayout;
class QPushButton;
class VKD_H_TableWidget;

// A titled frame around a table with a row of buttons below it.
class VKD_H_TableWidgetBox : public QGroupBox
{
    Q_OBJECT
public:
    enum Buttons { New = 0, Delete = 1 };

    VKD_H_TableWidgetBox(VKD_H_TableWidget* table, const QString& title, QWidget* parent, const char* name = nullptr);
    // Lays out the table and the button row; the first flag puts the buttons above the table,
    // the second stretches the table.
    void createDefaultLayout(bool buttonsOnTop, bool stretchTable);
    // Adds the New or Delete button; with connectToTable it adds or deletes rows by itself.
    QPushButton* addButton(Buttons which, bool connectToTable);
    QPushButton* getButton(Buttons which) const;
    void addWidget(QWidget* widget);
    VKD_H_TableWidget* table() const { return m_table; }

private:
    VKD_H_TableWidget* m_table;
    QHBoxLayout* m_buttonRow = nullptr;
    QPushButton* m_buttons[2] = {nullptr, nullptr};
};

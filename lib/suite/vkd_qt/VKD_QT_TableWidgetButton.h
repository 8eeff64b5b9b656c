#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidgetItem;

// A button laid over a table cell. It shows the text of the cell's item, also after the item
// was redrawn under it:
//   mode 0 (EditText): the text, and a small "..." button at its right that opens an editor;
//   mode 1 (ButtonOnly): only the "..." button;
//   mode 2 (TextButton): one flat button carrying the text.
class VKD_QT_TableWidgetButton : public QWidget
{
    Q_OBJECT
public:
    enum ButtonModus { EditText = 0, ButtonOnly = 1, TextButton = 2 };

    VKD_QT_TableWidgetButton(QWidget* table, QTableWidgetItem* item, ButtonModus mode);
    ButtonModus mode() const { return m_mode; }
    QPushButton* button() const { return m_button; }

signals:
    void clicked();

private:
    void showText(const QString& text);

    ButtonModus m_mode;
    QPushButton* m_button = nullptr;
    QLabel* m_label = nullptr;
};

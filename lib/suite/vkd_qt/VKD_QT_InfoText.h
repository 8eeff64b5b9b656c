#pragma once

#include <QWidget>

class QLabel;

// A note for the user: an information icon (if showIcon) beside a word-wrapped text. It asks
// for the height its lines need at the width it gets, so that a dialog does not cut it short.
class VKD_QT_InfoText : public QWidget
{
    Q_OBJECT
public:
    VKD_QT_InfoText(bool showIcon, const QString& text, QWidget* parent = nullptr,
                    const char* name = nullptr);
    QString text() const;
    void setText(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLabel* m_text;
};

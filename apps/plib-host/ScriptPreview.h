#pragma once

#include <QWidget>

#include <functional>

class QComboBox;
class QLabel;
class QPlainTextEdit;

// The TORVAL script that OK will write, shown as it follows every change of the pages, with
// English or German keywords; it can be saved to a file or copied.
class ScriptPreview : public QWidget
{
    Q_OBJECT
public:
    // source gives the script with English (true) or German keywords.
    ScriptPreview(std::function<QString(bool english)> source, bool english, QWidget* parent = nullptr);

    bool englishKeywords() const;
    // What the script is, above it.
    void setCaption(const QString& caption);
    QString text() const;

public slots:
    // Asks for the script anew; cheap enough to follow each change of a widget.
    void refresh();
    void saveAs();
    void copy();

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::function<QString(bool)> m_source;
    QLabel* m_caption;
    QComboBox* m_language;
    QPlainTextEdit* m_text;
    QLabel* m_status;
    // A refresh came while the preview was hidden.
    bool m_stale = false;
};

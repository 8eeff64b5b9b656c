#include "ScriptPreview.h"

#include <VKD_QT_MessageBox.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSaveFile>
#include <QScrollBar>
#include <QSyntaxHighlighter>
#include <QVBoxLayout>

namespace {

// Keywords of a statement (at the start of a line or behind ";"), #define names and the
// comments behind "$".
class TorvalHighlighter : public QSyntaxHighlighter
{
public:
    explicit TorvalHighlighter(QTextDocument* document) : QSyntaxHighlighter(document)
    {
        m_keyword.setForeground(QColor(0x1a, 0x3f, 0x8f));
        m_keyword.setFontWeight(QFont::Bold);
        m_define.setForeground(QColor(0x80, 0x20, 0x80));
        m_comment.setForeground(QColor(0x6a, 0x6a, 0x6a));
        m_comment.setFontItalic(true);
    }

protected:
    void highlightBlock(const QString& text) override
    {
        static const QRegularExpression keyword(QStringLiteral("(?:^|;)\\s*([+-]?[A-Z][A-Z0-9]{1,4})\\b"));
        static const QRegularExpression define(QStringLiteral("^#define\\s+\\w+"));
        const int comment = text.indexOf(QLatin1Char('$'));
        const int code = comment < 0 ? text.size() : comment;
        for (auto it = keyword.globalMatch(text.left(code)); it.hasNext();) {
            const auto m = it.next();
            setFormat(m.capturedStart(1), m.capturedLength(1), m_keyword);
        }
        const auto d = define.match(text);
        if (d.hasMatch())
            setFormat(0, d.capturedLength(), m_define);
        // "$(XYZ)" is a token of the split variant, not a comment.
        if (comment >= 0 && !text.midRef(comment).startsWith(QLatin1String("$(")))
            setFormat(comment, text.size() - comment, m_comment);
    }

private:
    QTextCharFormat m_keyword;
    QTextCharFormat m_define;
    QTextCharFormat m_comment;
};

} // namespace

ScriptPreview::ScriptPreview(std::function<QString(bool)> source, bool english, QWidget* parent)
    : QWidget(parent), m_source(std::move(source))
{
    setObjectName(QStringLiteral("scriptPreview"));
    auto* top = new QHBoxLayout;
    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("scriptCaption"));
    m_language = new QComboBox(this);
    m_language->setObjectName(QStringLiteral("scriptLanguage"));
    m_language->addItem(tr("English keywords"));
    m_language->addItem(tr("German keywords"));
    m_language->setCurrentIndex(english ? 0 : 1);
    auto* copyButton = new QPushButton(tr("Copy"), this);
    copyButton->setObjectName(QStringLiteral("copyScript"));
    copyButton->setAutoDefault(false);
    auto* saveButton = new QPushButton(tr("Save As..."), this);
    saveButton->setObjectName(QStringLiteral("saveScript"));
    saveButton->setAutoDefault(false);
    top->addWidget(m_caption, 1);
    top->addWidget(m_language);

    m_text = new QPlainTextEdit(this);
    m_text->setObjectName(QStringLiteral("scriptText"));
    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    new TorvalHighlighter(m_text->document());
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("scriptStatus"));
    m_status->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_text, 1);
    // The buttons below, beside the line count: the preview then leaves the pages more room.
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(copyButton);
    bottom->addWidget(saveButton);
    layout->addLayout(bottom);

    connect(m_language, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ScriptPreview::refresh);
    connect(copyButton, &QPushButton::clicked, this, &ScriptPreview::copy);
    connect(saveButton, &QPushButton::clicked, this, &ScriptPreview::saveAs);
}

bool ScriptPreview::englishKeywords() const
{
    return m_language->currentIndex() == 0;
}

void ScriptPreview::setCaption(const QString& caption)
{
    m_caption->setText(caption);
}

QString ScriptPreview::text() const
{
    return m_stale ? m_source(englishKeywords()) : m_text->toPlainText();
}

void ScriptPreview::refresh()
{
    // Laying out the script costs more than making it: a preview its dialog hid (beside the
    // design page, where the dialog starts) is brought up to date when it is shown again.
    if (isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide)) {
        m_stale = true;
        return;
    }
    m_stale = false;
    const QString script = m_source(englishKeywords());
    if (script == m_text->toPlainText())
        return;
    // Keep the place the user was reading at.
    const int scroll = m_text->verticalScrollBar() ? m_text->verticalScrollBar()->value() : 0;
    m_text->setPlainText(script);
    m_text->verticalScrollBar()->setValue(scroll);
    const int lines = script.split(QLatin1Char('\n'), Qt::SkipEmptyParts).size();
    m_status->setText(script.isEmpty() ? tr("No plot is chosen: the script is empty.")
                      : lines == 1     ? tr("1 line")
                                       : tr("%1 lines").arg(lines));
}

void ScriptPreview::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_stale)
        refresh();
}

void ScriptPreview::copy()
{
    QApplication::clipboard()->setText(text());
}

void ScriptPreview::saveAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save Script"), QString(),
                                                      tr("TORVAL scripts (*.grav);;All files (*)"));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text().toUtf8()) < 0 || !file.commit())
        VKD_QT_MessageBox::warning(
            this, tr("Save Script"),
            tr("The script could not be written to %1: %2").arg(path, file.errorString()));
}

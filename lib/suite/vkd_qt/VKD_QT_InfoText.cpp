#include "VKD_QT_InfoText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace {
constexpr int kIconSize = 16;
}

VKD_QT_InfoText::VKD_QT_InfoText(bool showIcon, const QString& text, QWidget* parent, const char* name)
    : QWidget(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (showIcon) {
        auto* icon = new QLabel(this);
        icon->setObjectName(QStringLiteral("icon"));
        icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(kIconSize, kIconSize));
        icon->setAlignment(Qt::AlignTop);
        layout->addWidget(icon);
    }
    m_text = new QLabel(text, this);
    m_text->setObjectName(QStringLiteral("text"));
    m_text->setWordWrap(true);
    layout->addWidget(m_text, 1);
}

QString VKD_QT_InfoText::text() const
{
    return m_text->text();
}

void VKD_QT_InfoText::setText(const QString& text)
{
    m_text->setText(text);
}

void VKD_QT_InfoText::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // Layouts size a top-level window by minimum sizes, which know nothing of wrapped lines.
    m_text->setMinimumHeight(m_text->heightForWidth(m_text->width()));
}

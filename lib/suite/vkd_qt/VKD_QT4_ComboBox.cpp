#include "VKD_QT4_ComboBox.h"

#include "vkd_qt_xmlpart.h"

#include <QPixmap>

VKD_QT4_ComboBox::VKD_QT4_ComboBox(QWidget* parent, const char* name) : QComboBox(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
}

void VKD_QT4_ComboBox::addItem(const QString& text, int id)
{
    QComboBox::addItem(text, id);
}

void VKD_QT4_ComboBox::addItem(const QPixmap& pixmap, const QString& text, int id)
{
    QComboBox::addItem(QIcon(pixmap), text, id);
}

void VKD_QT4_ComboBox::setEntries(const std::list<ComboList>& entries)
{
    clear();
    for (const ComboList& e : entries)
        addItem(e.text, e.id);
}

int VKD_QT4_ComboBox::idAt(int index) const
{
    const QVariant id = itemData(index);
    return id.isValid() ? id.toInt() : -1;
}

int VKD_QT4_ComboBox::getCurrentId() const
{
    return currentIndex() < 0 ? -1 : idAt(currentIndex());
}

bool VKD_QT4_ComboBox::setCurrentId(int id)
{
    const int index = findData(id);
    if (index < 0)
        return false;
    setCurrentIndex(index);
    return true;
}

QString VKD_QT4_ComboBox::xmlTag() const
{
    return objectName().isEmpty() ? QStringLiteral("VKD_QT4_ComboBox") : objectName();
}

QString VKD_QT4_ComboBox::writeXMLstring()
{
    const int id = getCurrentId();
    const QString value = id >= 0 ? QString::number(id) : QLatin1Char('#') + QString::number(currentIndex());
    return vkd_qt_writeXMLpart(value, xmlTag());
}

void VKD_QT4_ComboBox::readXMLstring(const QString& xml)
{
    const QString value = vkd_qt_readXMLpart(xml, 0, xmlTag(), nullptr);
    bool ok = false;
    if (value.startsWith(QLatin1Char('#'))) {
        const int row = value.mid(1).toInt(&ok);
        if (ok && row >= 0 && row < count())
            setCurrentIndex(row);
        return;
    }
    const int id = value.toInt(&ok);
    if (ok)
        setCurrentId(id);
}

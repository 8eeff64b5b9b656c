#pragma once

#include "ComboList.h"

#include <QComboBox>
#include <list>

// A combo box with an integer id per entry. Entries added without an id report -1.
class VKD_QT4_ComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit VKD_QT4_ComboBox(QWidget* parent = nullptr, const char* name = nullptr);

    void addItem(const QString& text, int id);
    void addItem(const QPixmap& pixmap, const QString& text, int id);
    using QComboBox::addItem;
    void setEntries(const std::list<ComboList>& entries);
    int getCurrentId() const;
    int idAt(int index) const;
    // Makes the entry with this id current; false if there is none.
    bool setCurrentId(int id);
};

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

    // The current entry as a part of a persistent string, tagged with the object name: its id, or
    // "#" and its row where it has none.
    virtual QString writeXMLstring();
    // Finds this combo's part in a whole persistent string and makes that entry current; a
    // missing part or an entry that no longer exists leaves the combo as it is.
    virtual void readXMLstring(const QString& xml);

private:
    QString xmlTag() const;
};

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

// The page of a project dialog: a keyed store of strings that the host fills from its project
// and writes back when the dialog is accepted. Pages can be kept in the project itself at key
// pair 95, <page number> (docs/store.md).
class VKD_H_ProjectDialogPage
{
public:
    static constexpr int StoreKey1 = 95;

    explicit VKD_H_ProjectDialogPage(int pageNumber = 1) : m_pageNumber(pageNumber) {}

    QString getEntry(const QString& key, const QString& defaultValue) const;
    // Creates or replaces.
    void setEntry(const QString& key, const QString& value);
    void deleteEntry(const QString& key);

    QStringList keys() const { return m_entries.keys(); }
    int pageNumber() const { return m_pageNumber; }

    // Replaces the entries by those stored in the project; false if the index names no open
    // project. A project that never stored this page gives an empty page.
    bool load(int index);
    // Replaces the page stored in the project by these entries.
    void save(int index) const;

private:
    int m_pageNumber;
    QMap<QString, QString> m_entries;
};

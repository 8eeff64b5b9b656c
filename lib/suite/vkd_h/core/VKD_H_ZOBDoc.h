#pragma once

#include <QString>

// A project document: one project file, opened in the record store for the lifetime of the
// object. A file that is not a project is left untouched and the document stays invalid.
class VKD_H_ZOBDoc
{
public:
    enum OpenMode { OpenExisting, OpenOrCreate };

    explicit VKD_H_ZOBDoc(const QString& path, OpenMode mode = OpenOrCreate);
    ~VKD_H_ZOBDoc();
    VKD_H_ZOBDoc(const VKD_H_ZOBDoc&) = delete;
    VKD_H_ZOBDoc& operator=(const VKD_H_ZOBDoc&) = delete;

    bool isValid() const { return m_index > 0; }
    // Database index of the project in the record store; -1 if it could not be opened.
    int index() const { return m_index; }
    QString path() const { return m_path; }
    QString errorString() const { return m_error; }

private:
    QString m_path;
    QString m_error;
    int m_index = -1;
};

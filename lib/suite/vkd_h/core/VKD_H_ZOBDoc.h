#pragma once

#include <QString>

// A project document: one project file, opened in the record store for the lifetime of the
// object. A file that is refused is left untouched and the document stays invalid; its
// errorString() names the file and the reason.
class VKD_H_ZOBDoc
{
public:
    enum OpenMode
    {
        OpenExisting, // for editing; a write-protected project opens for reading only
        OpenOrCreate, // as OpenExisting, or a new project where there is none or an empty file
        ReadOnly,     // never writes anything, not even a journal
        MemoryCopy    // works on a copy in memory: what is written there never reaches the file
    };

    explicit VKD_H_ZOBDoc(const QString& path, OpenMode mode = OpenOrCreate);
    ~VKD_H_ZOBDoc();
    VKD_H_ZOBDoc(const VKD_H_ZOBDoc&) = delete;
    VKD_H_ZOBDoc& operator=(const VKD_H_ZOBDoc&) = delete;

    bool isValid() const { return m_index > 0; }
    // Database index of the project in the record store; -1 if it could not be opened.
    int index() const { return m_index; }
    QString path() const { return m_path; }
    QString errorString() const { return m_error; }
    // Writes are refused, each with the reason in lastWriteError().
    bool isReadOnly() const;

    // The first failure of the last write to the project (a lock to its free, or a single
    // put), as a sentence that names the file and the reason; empty if that write went
    // through. The pages ignore the results of their writes: the host asks here after each.
    QString lastWriteError() const;
    int lastWriteStatus() const;
    // Makes the writes up to endWrite() one write: they land together or not at all, and
    // when another program holds the project they wait for it once.
    int beginWrite();
    void endWrite();
    // How long a write waits for another program that holds the project.
    void setBusyTimeout(int milliseconds);

private:
    QString m_path;
    QString m_error;
    int m_index = -1;
};

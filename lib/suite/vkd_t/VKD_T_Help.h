#pragma once

#include <QByteArray>
#include <QString>

class QWidget;

// A name in the help system (book or topic), as the programs spell it.
class VKD_T_String
{
public:
    VKD_T_String(const char* text) : m_text(text) {}
    QString toString() const { return QString::fromLatin1(m_text); }

private:
    QByteArray m_text;
};

// The suite's help viewer. Help pages are HTML files "help/<book>_<topic>_<de|en>.html"
// on the search path, in the language of the desktop (English when the German page is missing).
class VKD_T_Help
{
public:
    // Opens (or raises) the viewer at the topic; false if the page is not installed.
    static bool show(QWidget* parent, const VKD_T_String& book, const VKD_T_String& topic);
    // The file that show() would open, empty if there is none.
    static QString pagePath(const VKD_T_String& book, const VKD_T_String& topic, int language);
};

#pragma once

#include <QByteArray>
#include <QString>

class QTranslator;

// Installs the translations of one module ("<module>_de.qm" on the search path) for the
// language of the desktop. Meant to live as a global of a library: when it is constructed
// before the application object exists, the translation is installed as soon as that is created.
class VKD_QT_InitTranslator
{
public:
    explicit VKD_QT_InitTranslator(const char* module);
    ~VKD_QT_InitTranslator();
    VKD_QT_InitTranslator(const VKD_QT_InitTranslator&) = delete;
    VKD_QT_InitTranslator& operator=(const VKD_QT_InitTranslator&) = delete;

    QByteArray module() const { return m_module; }
    // True once a translation file has been loaded and installed.
    bool isInstalled() const { return m_translator != nullptr; }
    // Called by the application-startup hook; public for it only.
    void install();

private:
    QByteArray m_module;
    QTranslator* m_translator = nullptr;
};

// The language form of a resource name: "name_<language>.ext" when the resources hold it,
// otherwise the name unchanged.
QString vkd_qt_getFileNameWithLang(const QString& name, int language);

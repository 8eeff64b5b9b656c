#pragma once
// Helpers shared by the catalogue, output tree and output page tests.

#include "catalogue.h"
#include "reference.h"
#include "transcript.h"

#include <vkd_q.h>

#include <QBuffer>

#include <vector>

inline std::vector<GraphicalOutputRecord> parseText(const QByteArray& text)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    std::vector<GraphicalOutputRecord> records;
    vkd::plib::widgetgraphicaloutput::parseCatalogue(buffer, records);
    return records;
}

// Sets the language of the desktop for the lifetime of the object.
class LanguageScope
{
public:
    explicit LanguageScope(int language) : m_saved(vkd_lib_getvalue(kSettingLanguage))
    {
        vkd_lib_setvalue(kSettingLanguage, language);
    }
    ~LanguageScope() { vkd_lib_setvalue(kSettingLanguage, m_saved); }

private:
    int m_saved;
};

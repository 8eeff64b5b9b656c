#include "VKD_QT_InitTranslator.h"

#include <vkd_q.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTranslator>

#include <algorithm>
#include <vector>

namespace {

std::vector<VKD_QT_InitTranslator*>& pending()
{
    static std::vector<VKD_QT_InitTranslator*> list;
    return list;
}

void installPending()
{
    for (VKD_QT_InitTranslator* t : pending())
        t->install();
    pending().clear();
}

} // namespace

VKD_QT_InitTranslator::VKD_QT_InitTranslator(const char* module)
    : m_module(module)
{
    if (QCoreApplication::instance()) {
        install();
    } else {
        if (pending().empty())
            qAddPreRoutine(installPending);
        pending().push_back(this);
    }
}

VKD_QT_InitTranslator::~VKD_QT_InitTranslator()
{
    auto& list = pending();
    list.erase(std::remove(list.begin(), list.end(), this), list.end());
    if (m_translator && QCoreApplication::instance())
        QCoreApplication::removeTranslator(m_translator);
    delete m_translator;
}

void VKD_QT_InitTranslator::install()
{
    if (m_translator || vkd_lib_getvalue(kSettingLanguage) != 0)
        return; // the source texts are English
    const std::string path = vkd_lib_searchpath((m_module + "_de.qm").constData(), 3);
    if (path.empty())
        return;
    auto* translator = new QTranslator;
    if (!translator->load(QFile::decodeName(path.c_str()))) {
        qWarning("%s: not a translation that can be loaded; the texts stay English", path.c_str());
        delete translator;
        return;
    }
    QCoreApplication::installTranslator(translator);
    m_translator = translator;
}

QString vkd_qt_getFileNameWithLang(const QString& name, int language)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    const int slash = name.lastIndexOf(QLatin1Char('/'));
    const int cut = dot > slash ? dot : name.size();
    const QString candidate = name.left(cut) + QLatin1Char('_') + QString::number(language) + name.mid(cut);
    return QFile::exists(candidate) ? candidate : name;
}

#include "loadcatalogue.h"

#include "catalogue.h"

#include <VKD_QT_MessageBox.h>
#include <vkd_q.h>

#include <QCoreApplication>
#include <QFile>

namespace vkd::plib::widgetgraphicaloutput {

namespace {

// The messages are the tree's: it is the tree that loads the catalogue.
void showError(QWidget* parent, const QString& title, const QString& text)
{
    VKD_QT_MessageBox::critical(parent, title, text, QString(), QString(), QString(), 0, -1);
}

} // namespace

bool loadCatalogue(QWidget* parent, int language)
{
    if (language == catalogueLanguage)
        return true;
    static const char fileName[] = "graphicaloutput.data";
    const std::string path = vkd_lib_searchpath(fileName, 3);
    if (path.empty()) {
        showError(parent, QCoreApplication::translate("GraphicalOutputTreeWidget", "File not found"),
                  QCoreApplication::translate("GraphicalOutputTreeWidget", "File %1 not found")
                      .arg(QLatin1String(fileName)));
        return false;
    }
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly)) {
        showError(parent, QCoreApplication::translate("GraphicalOutputTreeWidget", "Couldn't open file"),
                  QCoreApplication::translate("GraphicalOutputTreeWidget", "Failed to open file %1")
                      .arg(file.fileName()));
        return false;
    }
    parseCatalogue(file);
    file.close();
    catalogueLanguage = language;
    return true;
}

} // namespace vkd::plib::widgetgraphicaloutput

#include "vkd_h_programblock.h"

#include "VKD_H_PluginParameter.h"
#include "VKD_H_ZOBDoc.h"

#include <QFileInfo>

QString vkd_h_generatePROG(VKD_H_PluginParameter* parameter, const QString& program, const QString& title,
                           const QString& head, int echoLevel, int mode)
{
    QString out = QStringLiteral("+PROG %1 echo:%2 $ %3\n").arg(program).arg(echoLevel).arg(title);
    const VKD_H_ZOBDoc* doc = parameter ? parameter->zobDoc() : nullptr;
    if (mode == 0 && doc)
        out += QStringLiteral("$ %1: %2\n").arg(head, QFileInfo(doc->path()).fileName());
    return out;
}

QString vkd_h_generateENDE(int language)
{
    return QLatin1String(language == 1 ? "END" : "ENDE");
}

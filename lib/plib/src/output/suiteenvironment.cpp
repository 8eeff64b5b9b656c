#include "suiteenvironment.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>
#include <vkd_h_programblock.h>
#include <vkd_q.h>

#include <QCoreApplication>

namespace vkd::plib::widgetgraphicaloutput {

namespace {
constexpr int echoLevelSetting = 108;
constexpr int newProgramBlock = 0;
} // namespace

SuiteScriptEnvironment::SuiteScriptEnvironment(VKD_H_PluginParameter* parameter)
    : m_parameter(parameter)
{
}

QString SuiteScriptEnvironment::programStart() const
{
    const QString title = QCoreApplication::translate("VKD_P_WidgetGraphicalOutput", "Graphical Output");
    return vkd_h_generatePROG(m_parameter, QStringLiteral("GRAV"), title, title, vkd_lib_getvalue(echoLevelSetting),
                              newProgramBlock);
}

QString SuiteScriptEnvironment::programEnd(bool english) const
{
    return vkd_h_generateENDE(english ? 1 : 0);
}

bool SuiteScriptEnvironment::modelHasQuads() const
{
    const VKD_H_ZOBDoc* doc = m_parameter ? m_parameter->zobDoc() : nullptr;
    return doc && vkd::dbo::hasQuads(doc->index(), nullptr);
}

QString SuiteScriptEnvironment::userCamera() const
{
    return vkd::dbo::getAnimatorPerspektive(0, vkd::dbo::CameraScriptForm);
}

} // namespace vkd::plib::widgetgraphicaloutput

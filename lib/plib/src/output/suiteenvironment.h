#pragma once

#include "scriptgenerator.h"

class VKD_H_PluginParameter;

namespace vkd::plib::widgetgraphicaloutput {

// The script's questions answered by the suite: the program block of GRAV, the model of the
// plug-in parameter's project and the camera stored in the current project.
class SuiteScriptEnvironment : public ScriptEnvironment
{
public:
    explicit SuiteScriptEnvironment(VKD_H_PluginParameter* parameter);

    QString programStart() const override;
    QString programEnd(bool english) const override;
    bool modelHasQuads() const override;
    QString userCamera() const override;

private:
    VKD_H_PluginParameter* m_parameter;
};

} // namespace vkd::plib::widgetgraphicaloutput

// example-host PROJECT: opens (or creates) a project, puts the design parameter page and the
// graphical output page on it and prints the TORVAL script of the output page's default choice.
#include <LoadcaseInformation.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_P_WidgetGraphicalOutput.h>

#include <QApplication>
#include <QTextStream>

#include <vector>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream err(stderr);
    if (argc != 2) {
        err << "usage: example-host PROJECT\n";
        return 2;
    }
    VKD_H_ZOBDoc project(QString::fromLocal8Bit(argv[1]));
    if (!project.isValid()) {
        err << "example-host: " << project.errorString() << '\n';
        return 3;
    }

    VKD_P_DesignParameter design(&project, &project, nullptr, false, false);
    design.init();
    design.readZob();

    VKD_H_PluginParameter parameter(&project);
    VKD_P_WidgetGraphicalOutput output(nullptr, GraphicalOutputStandard, &parameter);
    using vkd::plib::widgetgraphicaloutput::LoadcaseInformation;
    output.setUsedNumbersAndNames(std::vector<LoadcaseInformation>{{1, 1, "Dead load"}, {1, 2, "Live load"}});
    output.slotDefaultSettings();

    const QString script = output.getTORVAL(true);
    QTextStream(stdout) << script;
    return script.isEmpty() ? 3 : 0;
}

#include "PlibHostDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_Ok.h>
#include <vkd_q.h>

#include <QBoxLayout>
#include <QFileInfo>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>

namespace {

// The host has no translation of its own for its two words.
QString byLanguage(const char* german, const char* english)
{
    return QString::fromUtf8(vkd_lib_getvalue(kSettingLanguage) == 0 ? german : english);
}

} // namespace

PlibHostDialog::PlibHostDialog(VKD_H_ZOBDoc* project, QWidget* parent) : VKD_QT_TabDialog(parent, "plibHost")
{
    setWindowTitle(QStringLiteral("plib-host - %1").arg(QFileInfo(project->path()).fileName()));
    // The page is made a child of the dialog from the start, so that it finds the dialog it
    // may leave for a pick in the model.
    m_design = new VKD_P_DesignParameter(project, project, this, false, false);
    m_design->init();
    m_design->readZob();
    addTab(m_design, byLanguage("Bemessungsparameter", "Design parameters"));

    auto* help = new QPushButton(byLanguage("Hilfe", "Help"), buttonRow());
    help->setObjectName(QStringLiteral("help"));
    help->setAutoDefault(false);
    if (auto* row = qobject_cast<QBoxLayout*>(buttonRow()->layout()))
        row->insertWidget(0, help);
    connect(help, &QPushButton::clicked, m_design, &VKD_P_DesignParameter::showHelp);
    auto* f1 = new QShortcut(QKeySequence::HelpContents, this);
    connect(f1, &QShortcut::activated, m_design, &VKD_P_DesignParameter::showHelp);
}

void PlibHostDialog::accept()
{
    if (!m_design->checkVals())
        return;
    m_design->writeToZob();
    VKD_QT_TabDialog::accept();
}

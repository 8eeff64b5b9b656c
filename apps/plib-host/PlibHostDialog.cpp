#include "PlibHostDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_Ok.h>
#include <vkd_q.h>

#include <QApplication>
#include <QBoxLayout>
#include <QFileInfo>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>

namespace {

// The host has no translation of its own for its two words.
QString byLanguage(const char* german, const char* english)
{
    return QString::fromUtf8(vkd_lib_getvalue(102) == 0 ? german : english);
}

} // namespace

PlibHostDialog::PlibHostDialog(VKD_H_ZOBDoc* project, QWidget* parent)
    : VKD_QT_TabDialog(parent, "plibHost"), m_project(project)
{
    setWindowTitle(
        QStringLiteral("plib-host - %1%2")
            .arg(QFileInfo(project->path()).fileName(),
                 project->isReadOnly() ? byLanguage(" (schreibgeschützt)", " (read-only)") : QString()));
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
    if (!save())
        return;
    VKD_QT_TabDialog::accept();
}

bool PlibHostDialog::save()
{
    // The page does not look at the results of its writes; the project document keeps the
    // first failure. A write that waits for another program can take the busy timeout.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_design->writeToZob();
    QApplication::restoreOverrideCursor();
    const QString failure = m_project->lastWriteError();
    if (failure.isEmpty())
        return true;
    VKD_QT_MessageBox::critical(this, QStringLiteral("plib-host"),
                                failure + QStringLiteral("\n\n") +
                                    byLanguage("Es wurde nichts gespeichert. Der Dialog bleibt offen, damit "
                                               "nichts von Ihren Eingaben verloren geht.",
                                               "Nothing was saved. The dialog stays open so that nothing you "
                                               "entered is lost."));
    return false;
}

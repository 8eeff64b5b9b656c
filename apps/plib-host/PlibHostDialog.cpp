#include "PlibHostDialog.h"

#include "ContentTagSwitch.h"
#include "LoadCasePage.h"
#include "ScriptPreview.h"

#include <AnimatorView.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_P_WidgetGraphicalOutput.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_Ok.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

namespace {

// Keys of the pages' states on the host's project dialog page.
const QString outputStateKey = QStringLiteral("GraphicalOutput");
const QString splitStateKey = QStringLiteral("PageSplitting");
const QString loadCaseStateKey = QStringLiteral("LoadCases");
const QString outputContentKey = QStringLiteral("GraphicalOutputContent");
const QString splitContentKey = QStringLiteral("PageSplittingContent");

} // namespace

PlibHostDialog::PlibHostDialog(VKD_H_ZOBDoc* project, bool englishKeywords, QWidget* parent)
    : VKD_QT_TabDialog(parent, "plibHost"), m_project(project),
      m_parameter(new VKD_H_PluginParameter(project))
{
    setWindowTitle(tr("Project %1").arg(QFileInfo(project->path()).fileName()));
    // The pages are children of the dialog from the start, so that they find the dialog they
    // may leave for a pick in the model and the tabs they are shown in.
    m_design = new VKD_P_DesignParameter(project, project, this, false, false);
    m_design->init();
    m_output = new VKD_P_WidgetGraphicalOutput(this, GraphicalOutputStandard, m_parameter.get(),
                                               new AnimatorView(project->index()));
    m_split = new VKD_P_WidgetGraphicalOutput(this, GraphicalOutputSplit, m_parameter.get(), nullptr);
    m_loadCases = new LoadCasePage(project->index(), this);
    m_outputContent = new ContentTagSwitch(m_output, "outputContent");
    m_splitContent = new ContentTagSwitch(m_split, "splitContent");
    addTab(m_design, tr("Design Parameters"));
    addTab(outputTab(m_output, m_outputContent), tr("Graphical Output"));
    m_splitTab = outputTab(m_split, m_splitContent);
    addTab(m_splitTab, tr("Page Splitting"));
    addTab(m_loadCases, tr("Load Cases"));

    m_outputRows.reset(new VKD_P_WidgetGraphicalOutput_TableWidgetData);
    m_outputRows->setWidgets(m_output, m_loadCases->table(), LoadCasePage::NumberColumn,
                             LoadCasePage::UseColumn, LoadCasePage::TitleColumn);
    m_splitRows.reset(new VKD_P_WidgetGraphicalOutput_TableWidgetData);
    m_splitRows->setWidgets(m_split, m_loadCases->table(), LoadCasePage::NumberColumn,
                            LoadCasePage::UseColumn, LoadCasePage::TitleColumn);
    connect(m_loadCases, &LoadCasePage::choiceChanged, this, &PlibHostDialog::applyLoadCaseChoice);

    // The script beside the tabs: the dialog's first child in the layout is the tab widget.
    m_preview = new ScriptPreview([this](bool english) { return script(previewedPage(), english); },
                                  englishKeywords, this);
    auto* splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setObjectName(QStringLiteral("hostSplitter"));
    delete layout()->replaceWidget(tabWidget(), splitter); // the tab widget's old place in the layout
    splitter->addWidget(tabWidget());
    splitter->addWidget(m_preview);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setChildrenCollapsible(false);

    m_refresh = new QTimer(this);
    m_refresh->setSingleShot(true);
    connect(m_refresh, &QTimer::timeout, m_preview, &ScriptPreview::refresh);

    auto* help = new QPushButton(tr("Help"), buttonRow());
    help->setObjectName(QStringLiteral("help"));
    help->setAutoDefault(false);
    if (auto* row = qobject_cast<QBoxLayout*>(buttonRow()->layout()))
        row->insertWidget(0, help);
    connect(help, &QPushButton::clicked, m_design, &VKD_P_DesignParameter::showHelp);
    auto* f1 = new QShortcut(QKeySequence::HelpContents, this);
    connect(f1, &QShortcut::activated, m_design, &VKD_P_DesignParameter::showHelp);

    restoreStates();
    followChangesOf(m_output);
    followChangesOf(m_split);
    connect(m_loadCases, &LoadCasePage::choiceChanged, m_refresh, QOverload<>::of(&QTimer::start));
    for (ContentTagSwitch* content : {m_outputContent, m_splitContent})
        connect(content, &ContentTagSwitch::choiceChanged, m_refresh, QOverload<>::of(&QTimer::start));
    connect(this, &VKD_QT_TabDialog::currentChanged, this, &PlibHostDialog::showCurrentPage);
    showCurrentPage();
}

PlibHostDialog::~PlibHostDialog() = default;

QWidget* PlibHostDialog::outputTab(VKD_P_WidgetGraphicalOutput* page, ContentTagSwitch* content)
{
    auto* tab = new QWidget(this);
    auto* layout = new QVBoxLayout(tab);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    layout->addWidget(page, 1);
    return tab;
}

void PlibHostDialog::restoreStates()
{
    m_designEntries.load(m_project->index());
    m_design->getEntrys(m_designEntries);
    m_pageStates.load(m_project->index());
    m_loadCases->applyState(m_pageStates.getEntry(loadCaseStateKey, QString()));
    applyLoadCaseChoice();
    // Before the choices in the trees, so that a plot of switched-on content is there to be ticked.
    for (const auto& kept : {std::make_pair(m_outputContent, outputContentKey),
                             std::make_pair(m_splitContent, splitContentKey)}) {
        const int choice = m_pageStates.getEntry(kept.second, QString()).toInt();
        if (choice != ContentTagSwitch::ModelOnly)
            kept.first->setChoice(choice);
    }
    // After the rows: a real change of the rows brings back the tree's default choice.
    // A project that never kept the page starts from the page's defaults, its view included.
    const QString output = m_pageStates.getEntry(outputStateKey, QString());
    if (output.isEmpty())
        m_output->slotDefaultSettings();
    else
        m_output->readXMLstring(output);
    const QString split = m_pageStates.getEntry(splitStateKey, QString());
    if (!split.isEmpty())
        m_split->readXMLstring(split);
}

void PlibHostDialog::followChangesOf(QWidget* page)
{
    auto later = [this] { m_refresh->start(); };
    for (auto* button : page->findChildren<QAbstractButton*>())
        connect(button, &QAbstractButton::toggled, this, later);
    for (auto* combo : page->findChildren<QComboBox*>())
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, later);
    for (auto* edit : page->findChildren<QLineEdit*>())
        connect(edit, &QLineEdit::textChanged, this, later);
    for (auto* tree : page->findChildren<QTreeWidget*>())
        connect(tree, &QTreeWidget::itemChanged, this, later);
}

void PlibHostDialog::applyLoadCaseChoice()
{
    if (m_loadCases->picksByHand()) {
        m_outputRows->reset();
        m_splitRows->reset();
        return;
    }
    const auto rows = m_loadCases->chosenRows();
    m_output->setUsedNumbersAndNames(rows);
    m_split->setUsedNumbersAndNames(rows);
}

VKD_P_WidgetGraphicalOutput* PlibHostDialog::previewedPage() const
{
    return tabWidget()->currentWidget() == m_splitTab ? m_split : m_output;
}

void PlibHostDialog::showCurrentPage()
{
    // The design parameters make no part of the script: their table gets the room.
    m_preview->setVisible(tabWidget()->currentWidget() != m_design);
    m_preview->setCaption(QFileInfo(scriptPath(previewedPage())).fileName());
    m_preview->refresh();
}

QString PlibHostDialog::script(VKD_P_WidgetGraphicalOutput* page, bool english)
{
    return page->getTORVAL(english);
}

QString PlibHostDialog::scriptPath(const VKD_P_WidgetGraphicalOutput* page) const
{
    const QFileInfo project(m_project->path());
    return project.dir().filePath(project.completeBaseName() +
                                  QLatin1String(page == m_split ? ".split.grav" : ".grav"));
}

PlibHostDialog::SaveResult PlibHostDialog::save(QString* error)
{
    // The design records and both pages land together or not at all. The pages do not look
    // at the results of their writes; the document keeps the first failure. Waiting for
    // another program that holds the project shows the busy cursor, up to the busy timeout.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_project->beginWrite();
    m_design->setEntrys(m_designEntries);
    m_designEntries.save(m_project->index());
    m_pageStates.setEntry(outputStateKey, m_output->writeXMLstring());
    m_pageStates.setEntry(splitStateKey, m_split->writeXMLstring());
    m_pageStates.setEntry(loadCaseStateKey, m_loadCases->stateText());
    m_pageStates.setEntry(outputContentKey, QString::number(m_outputContent->choice()));
    m_pageStates.setEntry(splitContentKey, QString::number(m_splitContent->choice()));
    m_pageStates.save(m_project->index());
    m_project->endWrite();
    QApplication::restoreOverrideCursor();
    const QString failure = m_project->lastWriteError();
    if (!failure.isEmpty()) {
        *error = failure + QStringLiteral("\n\n") +
                 tr("Nothing was saved. The dialog stays open so that nothing you entered is lost.");
        return ProjectNotSaved;
    }

    for (VKD_P_WidgetGraphicalOutput* page : {m_output, m_split}) {
        QSaveFile file(scriptPath(page));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(script(page, m_preview->englishKeywords()).toUtf8()) < 0 || !file.commit()) {
            *error = tr("The script could not be written to %1: %2. The project was saved.")
                         .arg(QDir::toNativeSeparators(scriptPath(page)), file.errorString());
            return ScriptNotWritten;
        }
    }
    return Saved;
}

void PlibHostDialog::accept()
{
    if (!m_design->checkVals() || !m_output->checkVals() || !m_split->checkVals())
        return;
    QString error;
    const SaveResult result = save(&error);
    if (result != Saved)
        VKD_QT_MessageBox::warning(this, windowTitle(), error);
    // The project holds what the user did even where a script could not be written.
    if (result != ProjectNotSaved)
        VKD_QT_TabDialog::accept();
}

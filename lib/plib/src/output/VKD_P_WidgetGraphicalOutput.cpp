#include "VKD_P_WidgetGraphicalOutput.h"

#include "GraphicalOutputTreeWidget.h"
#include "WidgetGraphicalOutputData.h"
#include "pagespliticons.h"
#include "scriptgenerator.h"
#include "suiteenvironment.h"

#include <AnimatorView.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_Dialog.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_TabDialog.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_CheckBox.h>
#include <VKD_QT_GroupBox.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <VKD_QT_TabDialog.h>
#include <vkd_dbo.h>
#include <vkd_h_fieldcheck.h>
#include <vkd_qt_xmlpart.h>

#include <QCoreApplication>
#include <QEvent>
#include <QIcon>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// Posted to the page when its tab first comes up, so that the preview gets the chosen view once
// the event loop runs.
class WidgetGraphicalOutputEvent : public QEvent
{
public:
    static constexpr int Mark = 1046;
    WidgetGraphicalOutputEvent() : QEvent(QEvent::User) {}
    ~WidgetGraphicalOutputEvent() override = default;
    int mark = Mark;
};

// Tags of the page's persistent string.
const QString kScaleTag = QStringLiteral("Scale");
const QString kFontTag = QStringLiteral("Font");
const QString kFillTag = QStringLiteral("Fill");
const QString kFormatTag = QStringLiteral("Format");
const QString kPartTag = QStringLiteral("Part");
const QString kViewTag = QStringLiteral("View");
const QString kCameraTag = QStringLiteral("Camera");
const QString kSelectionTag = QStringLiteral("List_4");

QString decimal(int entry)
{
    return QStringLiteral("%1").arg(entry, 0, 10, QChar(' '));
}

StructRadioButtonGrup entry(const QString& text, int flag = 0)
{
    StructRadioButtonGrup e;
    e.id = -1;
    e.text = text;
    e.flag = flag;
    return e;
}

const double kDefaultFontSize = 2.0;

int modelIndex(const VKD_H_PluginParameter* parameter)
{
    return parameter && parameter->zobDoc() ? parameter->zobDoc()->index() : -1;
}

// The settings of the script as the widgets of the page stand.
OutputSettings settingsOf(const WidgetGraphicalOutputData* data)
{
    OutputSettings s;
    s.variant = data->progname;
    s.scaleMode = data->scaleGroup->selectedButton();
    s.scaleIndex = data->scaleCombo->currentIndex();
    s.scaleText = data->scaleCombo->currentText();
    if (data->pageSplitCombo)
        s.pageSplitId = data->pageSplitCombo->getCurrentId();
    s.hasFormat = data->formatGroup != nullptr;
    if (data->formatGroup)
        s.formatId = data->formatGroup->selectedButton();
    if (data->picturesGroup)
        s.picturesId = data->picturesGroup->selectedButton();
    if (data->viewGroup)
        s.viewId = data->viewGroup->selectedButton();
    s.fontSizeText = data->fontEdit->getText();
    s.fillAreas = data->fillCheck && data->fillCheck->isChecked();
    return s;
}

} // namespace

VKD_P_WidgetGraphicalOutput::VKD_P_WidgetGraphicalOutput(QWidget* parent,
                                                         VKD_P_WidgetGraphicalOutput_Progname progname,
                                                         VKD_H_PluginParameter* parameter,
                                                         AnimatorView* animator)
    : QWidget(parent), data(new WidgetGraphicalOutputData)
{
    setObjectName(QStringLiteral("Widget_GraphOut"));
    data->progname = progname;
    data->pluginParameter = parameter;
    data->animator = animator;
    const bool split = progname == GraphicalOutputSplit;

    const std::vector<StructRadioButtonGrup> scaleEntries = {entry(tr("Engineering scale"), 1),
                                                             entry(tr("Scale to fit"))};
    const std::vector<StructRadioButtonGrup> picturesEntries = {entry(tr("One per Page")),
                                                                entry(tr("Two per Page"))};
    const std::vector<StructRadioButtonGrup> formatEntries = {entry(tr("Portrait")), entry(tr("Landscape"))};
    const std::vector<StructRadioButtonGrup> viewEntries = {entry(tr("X/Y -Plane")), entry(tr("X/Z -Plane")),
                                                            entry(tr("Y/Z -Plane")), entry(tr("3D Standard")),
                                                            entry(tr("User defined"))};
    StructBoxedEdit fontRecord;
    fontRecord.labelBeside = 1;
    fontRecord.framed = 0;
    fontRecord.label = tr("Font Size (mm) : ");
    fontRecord.toolTip = tr("The size of the font");
    fontRecord.lineEdit = vkd_h_defaultLineEdit(-1);
    fontRecord.lineEdit.kind = VKD_H_LE_KIND_REAL;
    fontRecord.lineEdit.value = kDefaultFontSize;
    fontRecord.lineEdit.minimum = 1.0;
    fontRecord.lineEdit.maximum = 999.0;
    // A font size is always given: an empty field is refused.
    fontRecord.lineEdit.notSetLimit = VKD_H_NOT_SET;
    fontRecord.lineEdit.flags = 0x100000;
    fontRecord.lineEdit.decimalSeparators = QStringLiteral(",");
    auto* pageGrid = new VKD_QT_GridLayout(this, "page grid");
    auto* box = new VKD_QT_GroupBox(tr("Standard graphics"), this, "Standard box");

    data->defaultButton = new QPushButton(tr("Default Settings"), this);
    data->defaultButton->setObjectName(QStringLiteral("Button: Default settings"));
    data->defaultButton->setToolTip(tr("All settings on this page will be set to the default"));
    data->attribs = new QWidget(box);
    data->attribs->setObjectName(QStringLiteral("GroupBox attribs"));
    data->scaleGroup =
        new VKD_QT_RadioButtonGroup(tr("Scale"), scaleEntries, data->attribs, "ScaleGroup", Qt::Vertical, -1);

    if (split) {
        data->pageSplitBox =
            new VKD_QT_GroupBox(tr("Page Splitting", "Blattteilung"), data->attribs, "BLATTTEILUNG");
        auto* splitLayout = new VKD_QT_VBoxLayout(data->pageSplitBox, "page splitting layout");
        data->pageSplitCombo = new VKD_QT4_ComboBox(data->pageSplitBox, "COMBO_PAGESPLITTING");
        for (int id = 0; id < pageSplitCount; ++id)
            data->pageSplitCombo->addItem(QPixmap::fromImage(pageSplitIcon(id)), QString(), id);
        const QSize iconSize = pageSplitIcon(0).size();
        data->pageSplitCombo->setIconSize(iconSize);
        data->pageSplitCombo->setMinimumHeight(iconSize.height() + 2);
        splitLayout->addWidget(data->pageSplitCombo);
        splitLayout->addStretch(1);
    }

    data->fontEdit = new VKD_H_BoxedLineEdit(data->attribs, &fontRecord, "m_boxedEdit");

    if (!split) {
        data->formatGroup = new VKD_QT_RadioButtonGroup(tr("Page Format"), formatEntries, data->attribs,
                                                        "FormatGroup", Qt::Vertical, -1);
        data->picturesGroup = new VKD_QT_RadioButtonGroup(tr("Pictures"), picturesEntries, data->attribs,
                                                          "PicturesGroup", Qt::Vertical, -1);
        data->fillCheck = new VKD_QT_CheckBox(tr("Iso Areas"), data->attribs, "Check: Filled Isolines");
        data->fillCheck->setToolTip(tr("All area iso lines will represented as coloured filled iso areas"));
    }

    auto* attribsGrid = new VKD_QT_GridLayout(data->attribs, "attribs grid");
    attribsGrid->setContentsMargins(0, 0, 0, 0);
    attribsGrid->setColumnStretch(4, 1);
    attribsGrid->addWidget(data->scaleGroup, 0, 0, 2, 1);
    if (data->formatGroup)
        attribsGrid->addWidget(data->formatGroup, 0, 1, 2, 1);
    if (data->pageSplitBox)
        attribsGrid->addWidget(data->pageSplitBox, 0, 2, 2, 1);
    if (data->picturesGroup)
        attribsGrid->addWidget(data->picturesGroup, 0, 3, 2, 1);
    attribsGrid->addWidget(data->fontEdit, 0, 4);
    if (data->fillCheck)
        attribsGrid->addWidget(data->fillCheck, 1, 4);

    if (!split)
        data->viewGroup =
            new VKD_QT_RadioButtonGroup(tr("View"), viewEntries, box, "PerspectiveGroup", Qt::Horizontal, 3);

    data->scaleCombo = new VKD_QT4_ComboBox(data->scaleGroup->box(), "box_scale");
    data->scaleGroup->setWidget(0, data->scaleCombo);
    data->scaleGroup->init(scaleEntries);
    data->scaleCombo->addItem(QIcon(), tr("Auto"));
    for (const char* scale :
         {"1:1", "1:2", "1:5", "1:10", "1:20", "1:25", "1:50", "1:100", "1:200", "1:500", "1:1000"})
        data->scaleCombo->addItem(QIcon(), QString::fromLatin1(scale));
    data->scaleCombo->setCurrentIndex(0);

    data->scaleGroup->setButton(ScaleToFit);
    if (data->formatGroup)
        data->formatGroup->setButton(Portrait);
    if (data->picturesGroup)
        data->picturesGroup->setButton(TwoPerPage);

    data->tree = new GraphicalOutputTreeWidget(box, progname, parameter, "m_list");
    if (data->fillCheck) {
        const int index = modelIndex(parameter);
        data->fillCheck->setEnabled(vkd::dbo::hasQuads(index, nullptr) || vkd::dbo::hasBrics(index, nullptr));
    }

    auto* boxGrid = new VKD_QT_GridLayout(box, "box grid");
    boxGrid->setColumnStretch(0, 2);
    boxGrid->setColumnStretch(1, 3);
    auto* treeColumn = new VKD_QT_VBoxLayout();
    treeColumn->addWidget(data->tree);
    boxGrid->addLayout(treeColumn, 0, 0);
    auto* viewColumn = new VKD_QT_VBoxLayout();
    viewColumn->setObjectName(QStringLiteral("view column"));
    if (data->viewGroup)
        viewColumn->addWidget(data->viewGroup);
    // Without a preview the view group keeps its height at the top.
    if (!animator)
        viewColumn->addStretch(1);
    if (animator) {
        animator->setMinimumSize(160, 120);
        viewColumn->addWidget(animator, 1);
        data->viewGroup->setButton(View3DStandard);
        using ViewSlot = void (VKD_P_WidgetGraphicalOutput::*)(bool);
        const ViewSlot viewSlots[] = {
            &VKD_P_WidgetGraphicalOutput::slotBeobXY, &VKD_P_WidgetGraphicalOutput::slotBeobXZ,
            &VKD_P_WidgetGraphicalOutput::slotBeobYZ, &VKD_P_WidgetGraphicalOutput::slotBeob3D,
            &VKD_P_WidgetGraphicalOutput::slotBeobAni};
        for (int view = ViewXY; view <= ViewUserDefined; ++view)
            connect(data->viewGroup->getRadioButton(view), &QRadioButton::toggled, this, viewSlots[view]);
        // signalBeobXZ stays unconnected and signalBeobYZ is connected twice: hosts of the suite
        // rely on this wiring, and the page emits signalBeobXY alone.
        connect(this, &VKD_P_WidgetGraphicalOutput::signalBeobXY, animator, &AnimatorView::slotViewControl);
        connect(this, &VKD_P_WidgetGraphicalOutput::signalBeobYZ, animator, &AnimatorView::slotViewControl);
        connect(this, &VKD_P_WidgetGraphicalOutput::signalBeobYZ, animator, &AnimatorView::slotViewControl);
        connect(this, &VKD_P_WidgetGraphicalOutput::signalBeob3D, animator, &AnimatorView::slotViewControl);
    }
    boxGrid->addLayout(viewColumn, 0, 1);
    boxGrid->addWidget(data->attribs, 1, 0, 1, 2);
    pageGrid->setContentsMargins(0, 0, 0, 0);
    pageGrid->setRowStretch(0, 1);
    pageGrid->setRowStretch(1, 0);
    pageGrid->setColumnStretch(0, 1);
    pageGrid->setColumnStretch(1, 0);
    pageGrid->addWidget(box, 0, 0, 1, 2);
    pageGrid->addWidget(data->defaultButton, 1, 1);

    connect(data->defaultButton, &QPushButton::clicked, this,
            &VKD_P_WidgetGraphicalOutput::slotDefaultSettings);
    if (data->formatGroup)
        for (int format : {Portrait, Landscape})
            connect(data->formatGroup->getRadioButton(format), &QRadioButton::clicked, this,
                    &VKD_P_WidgetGraphicalOutput::slotQuerFormat);

    for (QWidget* ancestor = parent; ancestor; ancestor = ancestor->parentWidget()) {
        if (!data->tabDialog)
            data->tabDialog = qobject_cast<VKD_H_TabDialog*>(ancestor);
        if (!data->dialog)
            data->dialog = qobject_cast<VKD_H_Dialog*>(ancestor);
        if (auto* tabs = qobject_cast<VKD_QT_TabDialog*>(ancestor)) {
            connect(tabs, &VKD_QT_TabDialog::currentChanged, this,
                    &VKD_P_WidgetGraphicalOutput::slotCurrentChanged);
            break;
        }
    }

    if (split) {
        const QSize hint = data->tree->sizeHint();
        data->tree->setMinimumHeight(hint.height());
        data->tree->setMinimumWidth(static_cast<int>(hint.width() * 1.5));
    }
}

VKD_P_WidgetGraphicalOutput::~VKD_P_WidgetGraphicalOutput()
{
    delete data;
}

bool VKD_P_WidgetGraphicalOutput::checkVals()
{
    return true;
}

void VKD_P_WidgetGraphicalOutput::slotQuerFormat()
{
    if (!data->formatGroup || !data->picturesGroup)
        return;
    const bool landscape = data->formatGroup->selectedButton() == Landscape;
    data->picturesGroup->setEnabled(!landscape);
    data->picturesGroup->setButton(landscape ? OnePerPage : TwoPerPage);
}

void VKD_P_WidgetGraphicalOutput::slotDefaultSettings()
{
    if (data->tree)
        data->tree->rebuild(true);
    if (data->fontEdit)
        data->fontEdit->setVal(kDefaultFontSize);
    if (data->scaleGroup)
        data->scaleGroup->setButton(ScaleToFit);
    if (data->formatGroup)
        data->formatGroup->setButton(Portrait);
    if (data->picturesGroup)
        data->picturesGroup->setButton(TwoPerPage);
    if (data->fillCheck)
        data->fillCheck->setChecked(false);
    if (data->viewGroup)
        data->viewGroup->setButton(View3DStandard);
    slotQuerFormat();
}

void VKD_P_WidgetGraphicalOutput::setUsedNumbersAndNames(const std::vector<LoadcaseInformation>& lc_infos)
{
    data->tree->setUsedNumbersAndNames(lc_infos);
}

void VKD_P_WidgetGraphicalOutput::additionalData(const QString& tag, bool add)
{
    data->tree->additionalData(tag, add);
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL(const QString& additional, bool english)
{
    const SuiteScriptEnvironment environment(data->pluginParameter);
    return scriptFromWriter(
        settingsOf(data),
        [this, english](ScriptLineSink& sink) { data->tree->collectScriptLines(sink, english); }, additional,
        english, environment);
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL(bool english)
{
    return getTORVAL(QString(), english);
}

int VKD_P_WidgetGraphicalOutput::getTORVAL(std::vector<QString>& scripts, bool english)
{
    scripts.push_back(getTORVAL(QString(), english));
    return 1;
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL_BEOB(bool english)
{
    const SuiteScriptEnvironment environment(data->pluginParameter);
    return viewClause(settingsOf(data), english, environment);
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL_SIZE(bool english)
{
    return pageSetup(settingsOf(data), english);
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL_SCHR(bool english)
{
    return fontStatement(settingsOf(data), english);
}

void VKD_P_WidgetGraphicalOutput::getTORVAL_LFs(std::vector<QString>& lines, bool english)
{
    data->tree->collectScriptLines(lines, english);
}

QString VKD_P_WidgetGraphicalOutput::writeFillSet(bool fill, bool english)
{
    return fillDefinitions(fill, english);
}

QString VKD_P_WidgetGraphicalOutput::writeXMLstring()
{
    QString scale = QStringLiteral("0");
    if (data->scaleGroup->selectedButton() == EngineeringScale)
        scale = data->scaleCombo->currentIndex() == 0 ? QStringLiteral("-") : data->scaleCombo->currentText();
    QString xml = vkd_qt_writeXMLpart(scale, kScaleTag);
    xml += vkd_qt_writeXMLpart(data->fontEdit->getText(), kFontTag);
    xml += vkd_qt_writeXMLpart(data->fillCheck && data->fillCheck->isChecked() ? QStringLiteral("1")
                                                                               : QStringLiteral("0"),
                               kFillTag);
    if (data->formatGroup)
        xml += vkd_qt_writeXMLpart(decimal(data->formatGroup->selectedButton()), kFormatTag);
    if (data->picturesGroup)
        xml += vkd_qt_writeXMLpart(decimal(data->picturesGroup->selectedButton()), kPartTag);
    if (data->pageSplitCombo)
        xml += data->pageSplitCombo->writeXMLstring();
    if (data->viewGroup)
        xml += vkd_qt_writeXMLpart(decimal(data->viewGroup->selectedButton()), kViewTag);
    if (data->animator) {
        // The preview keeps its camera in the store first, so that the part holds what it shows.
        emit signalBeobXY(AnimatorStoreCamera, 0.0);
        xml += vkd_qt_writeXMLpart(vkd::dbo::getAnimatorPerspektive(0, vkd::dbo::CameraPersistentForm),
                                   kCameraTag);
    }
    xml += vkd_qt_writeXMLpart(data->tree->selectionText(), kSelectionTag);
    return xml;
}

// A part that is missing leaves its widget alone, so that a string of another kind of page can be
// read; the camera and the tree's choice are applied in any case.
void VKD_P_WidgetGraphicalOutput::readXMLstring(QString xml)
{
    if (xml.isEmpty()) {
        data->tree->applySelection(QString());
        return;
    }
    auto part = [&xml](const QString& tag) { return vkd_qt_readXMLpart(xml, 0, tag, nullptr); };

    const QString scale = part(kScaleTag);
    if (!scale.isNull()) {
        if (scale.contains(QLatin1Char('-'))) {
            data->scaleCombo->setCurrentIndex(0);
            data->scaleGroup->setButton(EngineeringScale);
        } else if (const int row =
                       data->scaleCombo->findText(scale, Qt::MatchExactly | Qt::MatchCaseSensitive);
                   row >= 0) {
            data->scaleCombo->setCurrentIndex(row);
            data->scaleGroup->setButton(EngineeringScale);
        } else {
            data->scaleGroup->setButton(ScaleToFit);
        }
    }
    const QString font = part(kFontTag);
    if (!font.isNull())
        data->fontEdit->setText(font);
    const QString fill = part(kFillTag);
    if (data->fillCheck && !fill.isNull())
        data->fillCheck->setChecked(fill.contains(QLatin1Char('1')));
    const QString format = part(kFormatTag);
    if (!format.isNull() && data->formatGroup) {
        data->formatGroup->setButton(format.toInt());
        slotQuerFormat();
    }
    const QString pictures = part(kPartTag);
    if (!pictures.isNull() && data->picturesGroup)
        data->picturesGroup->setButton(pictures.toInt());
    if (data->pageSplitCombo)
        data->pageSplitCombo->readXMLstring(xml);
    const QString view = part(kViewTag);
    if (data->viewGroup && !view.isNull())
        data->viewGroup->setButton(view.toInt());
    if (data->animator) {
        vkd::dbo::setAnimatorPerspektive(0, part(kCameraTag));
        emit signalBeobXY(AnimatorTakeCamera, 0.0);
    }
    data->tree->applySelection(part(kSelectionTag));
}

void VKD_P_WidgetGraphicalOutput::slotBeobXY(bool on)
{
    if (data->animator && on) {
        emit signalBeobXY(AnimatorPlaneXY, 0.0);
        data->animator->setEnabled(false);
    }
}

void VKD_P_WidgetGraphicalOutput::slotBeobXZ(bool on)
{
    if (data->animator && on) {
        emit signalBeobXY(AnimatorPlaneXZ, 0.0);
        data->animator->setEnabled(false);
    }
}

void VKD_P_WidgetGraphicalOutput::slotBeobYZ(bool on)
{
    if (data->animator && on) {
        emit signalBeobXY(AnimatorPlaneYZ, 0.0);
        data->animator->setEnabled(false);
    }
}

void VKD_P_WidgetGraphicalOutput::slotBeob3D(bool on)
{
    if (data->animator && on) {
        emit signalBeobXY(AnimatorStandard3D, 0.0);
        data->animator->setEnabled(false);
    }
}

// Leaving "User defined" keeps the turned camera; the enabled state is left for the slot of the
// newly chosen view.
void VKD_P_WidgetGraphicalOutput::slotBeobAni(bool on)
{
    if (!data->animator)
        return;
    emit signalBeobXY(on ? AnimatorTakeCamera : AnimatorStoreCamera, 0.0);
    if (on)
        data->animator->setEnabled(true);
}

void VKD_P_WidgetGraphicalOutput::slotCurrentChanged(QWidget* w)
{
    if (!data->firstShow)
        return;
    bool mine = false;
    for (QWidget* ancestor = this; ancestor && !mine; ancestor = ancestor->parentWidget())
        mine = ancestor == w;
    if (!mine)
        return;
    if (data->viewGroup && data->viewGroup->selectedButton() < ViewUserDefined)
        QCoreApplication::postEvent(this, new WidgetGraphicalOutputEvent);
    data->firstShow = false;
}

void VKD_P_WidgetGraphicalOutput::customEvent(QEvent* event)
{
    if (!data->viewGroup || event->type() != QEvent::User)
        return;
    const auto* mine = dynamic_cast<WidgetGraphicalOutputEvent*>(event);
    if (!mine || mine->mark != WidgetGraphicalOutputEvent::Mark)
        return;
    switch (data->viewGroup->selectedButton()) {
    case ViewXY:
        slotBeobXY(true);
        break;
    case ViewXZ:
        slotBeobXZ(true);
        break;
    case ViewYZ:
        slotBeobYZ(true);
        break;
    case View3DStandard:
        slotBeob3D(true);
        break;
    case ViewUserDefined:
        slotBeobAni(true);
        break;
    default:
        break;
    }
}

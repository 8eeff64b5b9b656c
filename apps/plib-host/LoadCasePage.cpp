#include "LoadCasePage.h"

#include <VKD_H_TableWidget.h>
#include <VKD_H_TwSimpleItems.h>
#include <VKD_P_RadioGroup.h>
#include <vkd_dbo.h>

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

using vkd::plib::widgetgraphicaloutput::LoadcaseInformation;

namespace {

// Kind of the project's design combinations (vkd_dbo's LoadCaseRecord), and kinds of the tree's rows.
constexpr int designCombination = 4;
enum RowKind : int { LoadCaseRow = 1, DesignCaseRow = 2 };

const QChar stateSeparator = QLatin1Char('|');

} // namespace

LoadCasePage::LoadCasePage(int projectIndex, QWidget* parent) : QWidget(parent), m_choice(new VKD_P_RadioGroup)
{
    setObjectName(QStringLiteral("loadCasePage"));
    for (const auto& record : vkd::dbo::readAll<vkd::dbo::LoadCaseRecord>(projectIndex, vkd::dbo::KeyLoadCases))
        m_cases.push_back({record.number, record.kind,
                           QString::fromUtf8(record.title, int(strnlen(record.title, sizeof record.title)))});

    auto* layout = new QVBoxLayout(this);
    auto* note = new QLabel(tr("Load cases of the graphical output: all of them, or those ticked by hand."), this);
    note->setWordWrap(true);
    layout->addWidget(note);
    m_choice->init(this);
    layout->addLayout(m_choice->layout());

    m_table = new VKD_H_TableWidget(0, 3, this, "loadCaseTable");
    m_table->setContextmenueEnabled_new_del(false);
    m_table->setHorizontalHeaderLabels({tr("Use"), tr("Number"), tr("Title")});
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    m_table->setRowCount(int(m_cases.size()));
    for (int row = 0; row < int(m_cases.size()); ++row) {
        m_table->setItem(row, UseColumn, new VKD_H_TwSimpleCheckBoxItem(false));
        auto* number = new VKD_H_TwSimpleLineEditItem;
        number->setVal(m_cases[size_t(row)].number);
        m_table->setItem(row, NumberColumn, number);
        m_table->setItem(row, TitleColumn, new QTableWidgetItem(m_cases[size_t(row)].title));
    }
    m_table->resizeColumnToContents(UseColumn);
    layout->addWidget(m_table, 1);

    m_choice->useWidget(m_table);
    m_choice->setSelectedId(VKD_P_RadioGroup::All);
    m_choice->updateUsedWidget();
    connect(m_choice.get(), &VKD_P_RadioGroup::buttonClicked, this, &LoadCasePage::choiceChanged);
}

LoadCasePage::~LoadCasePage() = default;

bool LoadCasePage::picksByHand() const
{
    return m_choice->getSelectedId() == VKD_P_RadioGroup::Manually;
}

std::vector<LoadcaseInformation> LoadCasePage::chosenRows() const
{
    std::vector<const Case*> cases;
    if (m_choice->getSelectedId() == VKD_P_RadioGroup::All)
        for (const Case& c : m_cases)
            cases.push_back(&c);
    std::sort(cases.begin(), cases.end(), [](const Case* a, const Case* b) { return a->number < b->number; });
    std::vector<LoadcaseInformation> rows;
    for (const Case* c : cases)
        rows.push_back({c->kind == designCombination ? DesignCaseRow : LoadCaseRow, c->number,
                        QStringLiteral("%1 %2").arg(c->number).arg(c->title.isEmpty() ? QString() : QStringLiteral(": ") + c->title)});
    return rows;
}

QString LoadCasePage::stateText() const
{
    QStringList ticked;
    for (int row = 0; row < m_table->rowCount(); ++row)
        if (auto* use = dynamic_cast<VKD_H_TwSimpleCheckBoxItem*>(m_table->item(row, UseColumn)); use && use->isChecked())
            ticked << QString::number(m_cases[size_t(row)].number);
    return m_choice->writeXML() + stateSeparator + ticked.join(QLatin1Char(' '));
}

void LoadCasePage::applyState(const QString& text)
{
    const int bar = text.indexOf(stateSeparator);
    if (bar < 0)
        return;
    const QStringList ticked = text.mid(bar + 1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int row = 0; row < m_table->rowCount(); ++row)
        if (auto* use = dynamic_cast<VKD_H_TwSimpleCheckBoxItem*>(m_table->item(row, UseColumn)))
            use->setChecked(ticked.contains(QString::number(m_cases[size_t(row)].number)));
    m_choice->readXML(text.left(bar));
    emit choiceChanged();
}

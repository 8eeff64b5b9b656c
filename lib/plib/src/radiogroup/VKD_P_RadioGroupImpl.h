#pragma once

#include "VKD_P_RadioGroup.h"

#include <QButtonGroup>
#include <QLayout>
#include <QObject>
#include <QPointer>

#include <list>

class QHBoxLayout;
class QRadioButton;
class QWidget;

// The state and the behaviour of VKD_P_RadioGroup, which only forwards and relays. The labels
// are translated in this class's context.
class VKD_P_RadioGroupImpl : public QObject
{
    Q_OBJECT
public:
    VKD_P_RadioGroupImpl();
    // Deletes the row if the host never took it into a layout or widget of its own.
    ~VKD_P_RadioGroupImpl() override;

    // Each builds the row once and returns true; a second init of any form changes nothing and
    // returns false, so that the host's signals are not relayed twice.
    bool init(QWidget* parent);
    bool initForLF(QWidget* parent, const std::list<VKD_P_RadioGroup::ButtonID>& ids);
    bool initEchoOutput(QWidget* parent);

    QLayout* layout() const { return m_layout; }
    void useWidget(QWidget* widget);
    void setEnabledById(int id, bool enabled);
    void setSelectedId(int id);
    int getSelectedId() const { return m_group.checkedId(); }
    QString writeXML() const;
    void readXML(const QString& text);

public slots:
    void updateUsedWidget();
    void buttonXXClicked(bool on);

signals:
    void buttonClicked(int);
    void buttonNoOutputChecked();
    void buttonManuallyChecked();
    void buttonAllChecked();
    void buttonAllAcciChecked();
    void buttonAllFireChecked();
    void buttonAllEartChecked();
    void buttonChecked(int buttonID);

private:
    QRadioButton* addButton(QWidget* parent, QHBoxLayout* row, const QString& label, int id);
    void finishRow(QHBoxLayout* row);
    // The button of an id, null if the id has none in this form.
    QRadioButton* button(int id) const;
    QString loadCaseLabel(int id) const;

    // Guarded: once the host has taken the row, the row may go before the group.
    QPointer<QLayout> m_layout;
    bool m_built = false;
    QRadioButton* m_Manually = nullptr;
    QRadioButton* m_All = nullptr;
    QRadioButton* m_All_A = nullptr;
    QRadioButton* m_All_F = nullptr;
    QRadioButton* m_All_E = nullptr;
    QRadioButton* m_All_RARE = nullptr;
    QRadioButton* m_All_FREQ = nullptr;
    QRadioButton* m_All_PERM = nullptr;
    QRadioButton* m_All_NONF = nullptr;
    QRadioButton* m_NoTextOutput = nullptr;
    QWidget* m_usedWidget = nullptr;
    QButtonGroup m_group;

    // The field of each id, indexed by id.
    static QRadioButton* VKD_P_RadioGroupImpl::*const s_fields[10];
};

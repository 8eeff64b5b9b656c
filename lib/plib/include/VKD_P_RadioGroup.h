#pragma once

#include "vkd_p_export.h"

#include <QObject>
#include <QString>

#include <list>
#include <memory>

class QLayout;
class QWidget;
class VKD_P_RadioGroupImpl;

// A row of radio buttons for a host dialog: which load cases to take, or how much text output
// to make. The choice is coupled to a widget in which the user picks by hand; that widget is
// live only while "Manually" is chosen.
//
// Use: call exactly one of init, initForLF or initEchoOutput; place layout() in the dialog;
// call useWidget (with a null pointer if there is nothing to couple) to wire the buttons. Before
// useWidget no signal fires. The buttons belong to the parent given to the init operation.
class VKD_P_EXPORT VKD_P_RadioGroup : public QObject
{
    Q_OBJECT
public:
    // -1 is no button, as getSelectedId gives it while nothing is checked.
    enum ButtonID : int
    {
        NoTextOutput = 0,
        Manually = 1,
        All = 2,
        AllAccidental = 3,
        AllFire = 4,
        AllEarthquake = 5,
        AllCharacteristic = 6,
        AllFrequent = 7,
        AllQuasiPermanent = 8,
        AllNonFrequent = 9
    };
    Q_ENUM(ButtonID)

    VKD_P_RadioGroup();
    ~VKD_P_RadioGroup() override;

    // "Manually" and "All", none checked. Emits buttonClicked, buttonManuallyChecked and
    // buttonAllChecked (buttonNoOutputChecked has no button here); no buttonChecked.
    void init(QWidget* parent);
    // "Manually", then one button for each of the ids 3 to 9 in the list, ordered by id; none
    // checked. Other ids are passed over. Emits every signal but buttonNoOutputChecked; for
    // ids 6 to 9 buttonChecked is the only one.
    void initForLF(QWidget* parent, const std::list<ButtonID>& ids);
    // "Manually controlled" (checked), "No text output", "Full text output". Emits no signal:
    // read getSelectedId when the value is needed.
    void initEchoOutput(QWidget* parent);

    // The row, without a parent until the host adds it to its own layout; null before init. A row
    // that no layout or widget took is deleted with the group.
    QLayout* layout() const;
    // Couples the widget (not owned) and connects the buttons; calling it again connects them
    // again. A QtTableView is made read-only, any other widget disabled, unless id 1 is checked.
    void useWidget(QWidget* widget);

    // Ids without a button in this form are ignored.
    void setEnabledById(ButtonID id, bool enabled);
    void setSelectedId(ButtonID id);
    ButtonID getSelectedId() const;

    // "checked:<name of the checked button>", e.g. "checked:m_All"; "checked:" if none is.
    QString writeXML() const;
    // Checks the button named in a text of writeXML and then updates the coupled widget, also
    // when this form has no button of that name. Text not of the form "checked:..." is ignored.
    void readXML(const QString& text);

public slots:
    void updateUsedWidget();

signals:
    // The choice may have changed; fires several times per click. Carries the checked id.
    void buttonClicked(int);
    void buttonNoOutputChecked();
    void buttonManuallyChecked();
    void buttonAllChecked();
    void buttonAllAcciChecked();
    void buttonAllFireChecked();
    void buttonAllEartChecked();
    void buttonChecked(int buttonID);

private:
    std::shared_ptr<VKD_P_RadioGroupImpl> m_impl;
};

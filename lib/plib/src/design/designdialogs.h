#pragma once
// What the dialogs behind the table's buttons share.

class QDialog;
class QString;
class VKD_QT_Dialog;
class VKD_QT_Ok;

namespace vkd::plib::design {

// The design type whose rows have a third layer.
constexpr int kTypeThreeLayers = 3;

// White background and the title.
void setUpDesignDialog(VKD_QT_Dialog* dialog, const QString& title);

// OK to accept and Cancel to reject, each once: the row's own wiring to the dialog is replaced,
// so that a dialog that checks on accept warns once per press.
void connectButtonRow(QDialog* dialog, const VKD_QT_Ok* row);

} // namespace vkd::plib::design

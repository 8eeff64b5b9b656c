#pragma once
// Drives the design parameter page as a person would: clicks on cells, picks a type in the
// combo of the Type column, answers message boxes.

#include <vkd_q.h>

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

inline void clickCell(QTableWidget* table, int row, int column,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QRect rect = table->visualRect(table->model()->index(row, column));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, rect.center());
}

// Clicks the Type cell of the row, opens its combo with F2 and picks the entry with the
// keyboard. False if no combo opened or it has no such entry.
inline bool chooseType(QTableWidget* table, int row, const QString& text)
{
    // The editor closed last goes first; a click on the cell that is current already would
    // start the view's delayed editing instead of selecting.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (table->currentRow() != row || table->currentColumn() != 1)
        clickCell(table, row, 1);
    QTest::keyClick(table, Qt::Key_F2);
    // Editors closed before wait hidden for their deletion.
    QComboBox* combo = nullptr;
    for (QComboBox* c : table->viewport()->findChildren<QComboBox*>(QStringLiteral("cellCombo")))
        if (c->isVisible())
            combo = c;
    if (!combo)
        return false;
    const int target = combo->findText(text);
    if (target < 0)
        return false;
    while (combo->currentIndex() < target)
        QTest::keyClick(combo, Qt::Key_Down);
    while (combo->currentIndex() > target)
        QTest::keyClick(combo, Qt::Key_Up);
    QTest::keyClick(combo, Qt::Key_Return);
    return true;
}

// Answers the next modal message box with a button, as a person would, and remembers what
// the box said. Nothing happens if no box comes.
class BoxAnswerer : public QObject
{
public:
    explicit BoxAnswerer(QMessageBox::StandardButton answer) : m_answer(answer)
    {
        m_timer.setInterval(10);
        connect(&m_timer, &QTimer::timeout, this, &BoxAnswerer::look);
        m_timer.start();
    }

    bool seen = false;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;

private:
    void look()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        m_timer.stop();
        seen = true;
        title = box->windowTitle();
        text = box->text();
        buttons = box->standardButtons();
        if (QAbstractButton* button = box->button(m_answer))
            button->click();
        else
            box->reject();
    }

    QMessageBox::StandardButton m_answer;
    QTimer m_timer;
};

// All records of the design key pair, byte for byte.
inline QByteArray designRecords(int index)
{
    QByteArray all;
    char buffer[212];
    for (int position = 0;; ++position) {
        int length = int(sizeof buffer);
        if (vkd_zob_get(index, 200, 6, buffer, &length, position) >= ZOB_END)
            break;
        all.append(buffer, length);
    }
    return all;
}

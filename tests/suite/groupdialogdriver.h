#pragma once
// Drives the group dialogs as a person would: reads what the list shows, types into the
// filter, clicks buttons by object name.

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

namespace {

// Each line of the list: check mark, group, title and note.
QString listText(QWidget* dialog)
{
    auto* list = dialog->findChild<QTreeWidget*>(QStringLiteral("groupList"));
    QStringList lines;
    for (int i = 0; list && i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = list->topLevelItem(i);
        lines << QStringLiteral("%1 %2|%3|%4")
                     .arg(item->checkState(0) == Qt::Checked ? QLatin1Char('x') : QLatin1Char('-'))
                     .arg(item->text(0), item->text(1), item->text(2));
    }
    return lines.join(QLatin1Char('\n'));
}

// Runs the user's steps, space separated: "filter:<text>", or the object name of a button to
// click.
void act(QWidget* dialog, const QString& steps)
{
    for (const QString& step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (step.startsWith(QLatin1String("filter:"))) {
            auto* filter = dialog->findChild<QLineEdit*>(QStringLiteral("groupFilter"));
            filter->clear();
            QTest::keyClicks(filter, step.mid(7));
        } else if (auto* button = dialog->findChild<QPushButton*>(step)) {
            QTest::mouseClick(button, Qt::LeftButton);
        } else {
            QFAIL(qPrintable(QStringLiteral("no step ") + step));
        }
    }
}

// Answers the next group dialog as a person would: notes what it shows, then clicks.
void answerModal(QString* seen, const QString& steps)
{
    QTimer::singleShot(10, [seen, steps] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->findChild<QTreeWidget*>(QStringLiteral("groupList"))) {
            answerModal(seen, steps);
            return;
        }
        *seen = listText(dialog);
        act(dialog, steps);
    });
}

} // namespace

#pragma once
// What the widget tests of the design page and its dialogs share: projects and pages on them,
// the stored records, the table's cells, the buttons of a dialog, and modal windows answered as
// a person would (modal.h).

#include "DesignParameterTable.h"
#include "modal.h"

#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_TableWidgetButton.h>
#include <demomodel.h>
#include <design.h>
#include <vkd_q.h>

#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

// A project in a temporary folder: "new"; "demo", the demo model with its design parameters;
// "five", a new one whose rows are the remaining groups and the groups 1 to 4, of no design.
struct Project
{
    explicit Project(const QString& kind = QStringLiteral("new"))
    {
        doc = std::make_unique<VKD_H_ZOBDoc>(dir.filePath(QStringLiteral("project.vkd")));
        if (kind == QLatin1String("five")) {
            for (int group : {-1, 1, 2, 3, 4}) {
                tagZOB_QUAD_RIM r = VKD_P_DesignParameter::getDefaultMerPara(group < 0);
                r.group = group;
                r.xref = float(group); // keeps the records from folding into one row
                int length = int(sizeof r);
                vkd_zob_put(index(), 200, 6, &r, &length, 1);
            }
        } else if (kind != QLatin1String("new")) {
            writeDemoModel(index());
            writeDemoDesign(*doc);
        }
    }
    int index() const { return doc->index(); }
    // A page on the project as a host makes it, read from the store or from the project page,
    // shown.
    std::unique_ptr<VKD_P_DesignParameter> page(VKD_H_ProjectDialogPage* entries = nullptr)
    {
        auto page = std::make_unique<VKD_P_DesignParameter>(doc.get(), doc.get(), nullptr, false, false);
        page->init();
        entries ? page->getEntrys(*entries) : page->readZob();
        page->resize(1400, 700);
        page->show();
        if (!QTest::qWaitForWindowExposed(page.get()))
            qWarning("the page was not shown");
        return page;
    }

    QTemporaryDir dir;
    std::unique_ptr<VKD_H_ZOBDoc> doc;
};

inline DesignParameterTable* tableOf(const QWidget* page)
{
    return page->findChild<DesignParameterTable*>(QStringLiteral("table"));
}

inline void clickCell(QTableWidget* table, int row, int column, Qt::KeyboardModifiers modifiers = {})
{
    // The editor closed last goes first.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers,
                      table->visualRect(table->model()->index(row, column)).center());
}

// All records of the design key pair, byte for byte.
inline QByteArray designRecords(int index)
{
    QByteArray all;
    char buffer[212];
    for (int position = 0;; ++position) {
        int length = int(sizeof buffer);
        if (vkd_zob_get(index, 200, 6, buffer, &length, position) >= ZOB_END)
            return all;
        all.append(buffer, length);
    }
}

inline QPushButton* dialogButton(QWidget* dialog, bool ok = true)
{
    auto* row = dialog->findChild<VKD_QT_Ok*>(QStringLiteral("okayandcancelbutton"));
    return ok ? row->cmdOk() : row->cmdCancel();
}

// What a button laid over a table cell shows.
inline QString buttonText(VKD_QT_TableWidgetButton* b)
{
    return b->mode() == VKD_QT_TableWidgetButton::EditText ? b->findChild<QLabel*>()->text()
                                                           : b->button()->text();
}

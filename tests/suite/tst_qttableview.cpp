// The suite's table view in read-only mode: no way of editing gets through, the view stays
// enabled for looking, and editors that are open write nothing.
#include <QtTableView.h>

#include <QLineEdit>
#include <QMimeData>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

using vkd::properties::nextGen::QtTableView;

class TestQtTableView : public QObject
{
    Q_OBJECT

    // A 3 by 2 table of texts "r<row>c<column>"; the cell 2, 0 is a check box.
    std::unique_ptr<QStandardItemModel> m_model;
    std::unique_ptr<QtTableView> m_view;

    QString text(int row, int column) const { return m_model->item(row, column)->text(); }

private slots:
    void init()
    {
        m_model = std::make_unique<QStandardItemModel>(3, 2);
        for (int r = 0; r < 3; ++r)
            for (int c = 0; c < 2; ++c)
                m_model->setItem(r, c, new QStandardItem(QStringLiteral("r%1c%2").arg(r).arg(c)));
        m_model->item(2, 0)->setCheckable(true);
        m_view = std::make_unique<QtTableView>();
        m_view->setModel(m_model.get());
        m_view->setDragDropMode(QAbstractItemView::DropOnly);
        m_view->resize(400, 200);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }

    void cleanup()
    {
        m_view.reset();
        m_model.reset();
    }

    void editing_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("key"); // 0 for the ways that are no key
        QTest::addColumn<bool>("readOnly");
        const std::pair<const char*, int> ways[] = {{"double click", 0},
                                                    {"edit() from code", 0},
                                                    {"drop", 0},
                                                    {"edit key", Qt::Key_F2},
                                                    {"typing a letter", Qt::Key_X},
                                                    {"space on a check box", Qt::Key_Space}};
        for (const auto& [way, key] : ways) {
            QTest::addRow("%s, editable", way) << way << key << false;
            QTest::addRow("%s, read-only", way) << way << key << true;
        }
    }

    // An editor opened, the check box changed, or the drop (as from another program) written.
    void editing()
    {
        QFETCH(QString, way);
        QFETCH(int, key);
        QFETCH(bool, readOnly);
        m_view->set_read_only(readOnly);
        const QModelIndex cell = m_model->index(key == Qt::Key_Space ? 2 : 1, 0);
        m_view->setCurrentIndex(cell);
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
        const QPoint centre = m_view->visualRect(cell).center();
        std::unique_ptr<QMimeData> data(m_model->mimeData({m_model->index(0, 1)}));
        QDragEnterEvent enter(centre, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QDropEvent drop(centre, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        if (key) {
            QTest::keyClick(m_view.get(), Qt::Key(key));
        } else if (way == QLatin1String("double click")) { // through the window: the presses come first
            QTest::mouseDClick(m_view->windowHandle(), Qt::LeftButton, {},
                               m_view->viewport()->mapTo(m_view.get(), centre));
        } else if (way == QLatin1String("drop")) {
            QCoreApplication::sendEvent(m_view->viewport(), &enter);
            QCoreApplication::sendEvent(m_view->viewport(), &drop);
        } else {
            if (readOnly)
                QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
            m_view->edit(cell);
        }
        QCOMPARE(m_view->indexWidget(cell) || !changed.isEmpty() || !inserted.isEmpty(), !readOnly);
        QVERIFY(m_view->isEnabled());
    }

    // Going read-only closes the editor of the cell without writing; an editor that the host
    // keeps open in a cell stays, but writes nothing until the view is editable again.
    void openEditors()
    {
        const QModelIndex edited = m_model->index(0, 1), kept = m_model->index(1, 1);
        m_view->openPersistentEditor(kept);
        m_view->edit(edited);
        auto* editor = qobject_cast<QLineEdit*>(m_view->indexWidget(edited));
        auto* persistent = qobject_cast<QLineEdit*>(m_view->indexWidget(kept));
        QVERIFY(editor && persistent);
        editor->setText(QStringLiteral("typed"));
        persistent->setText(QStringLiteral("typed"));
        m_view->set_read_only(true);
        QVERIFY(!m_view->indexWidget(edited) && m_view->isPersistentEditorOpen(kept));
        emit m_view->itemDelegate()->commitData(persistent);
        QCOMPARE(text(0, 1) + ' ' + text(1, 1), QStringLiteral("r0c1 r1c1"));
        m_view->set_read_only(false);
        emit m_view->itemDelegate()->commitData(persistent);
        QCOMPARE(text(1, 1), QStringLiteral("typed"));
    }
};

QTEST_MAIN(TestQtTableView)
#include "tst_qttableview.moc"

#include <QtTableView.h>

#include <QLineEdit>
#include <QMimeData>
#include <QStandardItemModel>
#include <QtTest>

using vkd::properties::nextGen::QtTableView;

namespace {

enum class Way
{
    DoubleClick,
    EditKey,
    Typing,
    EditCall,
    SpaceOnCheckBox,
    Drop
};

// A 3 by 2 table of texts "r<row>c<column>"; the cell 2, 0 is a check box.
class Table
{
public:
    Table() : model(3, 2)
    {
        for (int r = 0; r < 3; ++r) {
            for (int c = 0; c < 2; ++c)
                model.setItem(r, c, new QStandardItem(QStringLiteral("r%1c%2").arg(r).arg(c)));
        }
        model.item(2, 0)->setCheckable(true);
        model.item(2, 0)->setCheckState(Qt::Unchecked);
        view.setModel(&model);
        view.setDragDropMode(QAbstractItemView::DropOnly);
        view.resize(400, 200);
        view.show();
    }
    QStandardItemModel model;
    QtTableView view;
};

// Delivered like a drag from another program: first the drag enters, then it drops.
void dropOnto(QtTableView& view, QMimeData* data, QPoint pos)
{
    QDragEnterEvent enter(pos, Qt::CopyAction, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &enter);
    QDropEvent drop(pos, Qt::CopyAction, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &drop);
}

// Through the window, so that the view sees the presses before the double click.
void doubleClick(QAbstractItemView& view, const QModelIndex& cell)
{
    QWidget* window = view.window();
    const QPoint pos = view.viewport()->mapTo(window, view.visualRect(cell).center());
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, pos);
}

} // namespace

Q_DECLARE_METATYPE(Way)

class TestQtTableView : public QObject
{
    Q_OBJECT
private slots:
    void editing_data();
    void editing();
    void readOnlyStaysUsable();
    void switchingOnClosesTheEditorWithoutWriting();
    void persistentEditorWritesNothingWhileReadOnly();
};

void TestQtTableView::editing_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<bool>("readOnly");

    const std::pair<const char*, Way> ways[] = {{"double click", Way::DoubleClick},
                                                {"edit key", Way::EditKey},
                                                {"typing a letter", Way::Typing},
                                                {"edit() from code", Way::EditCall},
                                                {"space on a check box", Way::SpaceOnCheckBox},
                                                {"drop", Way::Drop}};
    for (const auto& [name, way] : ways) {
        QTest::addRow("%s, editable", name) << way << false;
        QTest::addRow("%s, read-only", name) << way << true;
    }
}

void TestQtTableView::editing()
{
    QFETCH(Way, way);
    QFETCH(bool, readOnly);

    Table t;
    QtTableView& view = t.view;
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.set_read_only(readOnly);
    const QModelIndex cell = t.model.index(way == Way::SpaceOnCheckBox ? 2 : 1, 0);
    view.setCurrentIndex(cell);

    bool changed = false;
    switch (way) {
    case Way::DoubleClick:
        doubleClick(view, cell);
        changed = view.indexWidget(cell) != nullptr;
        break;
    case Way::EditKey:
        QTest::keyClick(&view, Qt::Key_F2);
        changed = view.indexWidget(cell) != nullptr;
        break;
    case Way::Typing:
        QTest::keyClick(&view, Qt::Key_X);
        changed = view.indexWidget(cell) != nullptr;
        break;
    case Way::EditCall:
        if (readOnly)
            QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
        view.edit(cell);
        changed = view.indexWidget(cell) != nullptr;
        break;
    case Way::SpaceOnCheckBox:
        QTest::keyClick(&view, Qt::Key_Space);
        changed = t.model.item(2, 0)->checkState() == Qt::Checked;
        break;
    case Way::Drop: {
        std::unique_ptr<QMimeData> data(t.model.mimeData({t.model.index(0, 1)}));
        QSignalSpy inserted(&t.model, &QAbstractItemModel::rowsInserted);
        QSignalSpy overwritten(&t.model, &QAbstractItemModel::dataChanged);
        dropOnto(view, data.get(), view.visualRect(cell).center());
        changed = !inserted.isEmpty() || !overwritten.isEmpty();
        break;
    }
    }
    QCOMPARE(changed, !readOnly);
    QVERIFY(view.isEnabled());
}

// Read-only is not disabled: the user can still move through the table and select.
void TestQtTableView::readOnlyStaysUsable()
{
    Table t;
    QtTableView& view = t.view;
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.set_read_only(true);
    QVERIFY(view.is_read_only());
    QVERIFY(view.isEnabled());
    const QModelIndex cell = t.model.index(1, 1);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(cell).center());
    QCOMPARE(view.currentIndex(), cell);
    QVERIFY(view.selectionModel()->isSelected(cell));
    QTest::keyClick(&view, Qt::Key_Up);
    QCOMPARE(view.currentIndex(), t.model.index(0, 1));

    view.set_read_only(false);
    QVERIFY(!view.is_read_only());
    QTest::keyClick(&view, Qt::Key_F2);
    QVERIFY(view.indexWidget(t.model.index(0, 1)));
}

void TestQtTableView::switchingOnClosesTheEditorWithoutWriting()
{
    Table t;
    QtTableView& view = t.view;
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QModelIndex cell = t.model.index(0, 1);
    view.edit(cell);
    auto* editor = qobject_cast<QLineEdit*>(view.indexWidget(cell));
    QVERIFY(editor);
    editor->setText(QStringLiteral("typed"));

    view.set_read_only(true);
    QVERIFY(view.indexWidget(cell) == nullptr);
    QCOMPARE(t.model.item(0, 1)->text(), QStringLiteral("r0c1"));
}

// An editor the host keeps open in a cell is its own widget and stays, but writes nothing.
void TestQtTableView::persistentEditorWritesNothingWhileReadOnly()
{
    Table t;
    QtTableView& view = t.view;
    const QModelIndex cell = t.model.index(1, 1);
    view.openPersistentEditor(cell);
    auto* editor = qobject_cast<QLineEdit*>(view.indexWidget(cell));
    QVERIFY(editor);

    view.set_read_only(true);
    QVERIFY(view.isPersistentEditorOpen(cell));
    editor->setText(QStringLiteral("typed"));
    emit view.itemDelegate()->commitData(editor);
    QCOMPARE(t.model.item(1, 1)->text(), QStringLiteral("r1c1"));

    view.set_read_only(false);
    emit view.itemDelegate()->commitData(editor);
    QCOMPARE(t.model.item(1, 1)->text(), QStringLiteral("typed"));
}

QTEST_MAIN(TestQtTableView)
#include "tst_qttableview.moc"

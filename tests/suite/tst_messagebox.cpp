#include <VKD_QT_MessageBox.h>

#include <QApplication>
#include <QPushButton>
#include <QtTest>

// The boxes with button texts: Escape gives the index of the escape button, if there is one.
class TestMessageBox : public QObject
{
    Q_OBJECT
private slots:
    void escape_data()
    {
        QTest::addColumn<int>("escapeButton");
        QTest::addColumn<int>("result");
        QTest::newRow("first button") << 0 << 0;
        QTest::newRow("last button") << 2 << 2;
        QTest::newRow("none: the box stays until a button is pressed") << -1 << 1;
    }

    void escape()
    {
        QFETCH(int, escapeButton);
        QFETCH(int, result);
        QTimer::singleShot(50, [] {
            QWidget* box = QApplication::activeModalWidget();
            QTest::keyClick(box, Qt::Key_Escape);
            if (QApplication::activeModalWidget() == box)
                for (QPushButton* b : box->findChildren<QPushButton*>())
                    if (b->text() == QLatin1String("B"))
                        b->click();
        });
        QCOMPARE(VKD_QT_MessageBox::warning(nullptr, "Title", "Text", "A", "B", "C", 1, escapeButton),
                 result);
    }
};

QTEST_MAIN(TestMessageBox)
#include "tst_messagebox.moc"

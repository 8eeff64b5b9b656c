// OK of the host's dialog when the project cannot be written: one message that names the file
// and the reason, the dialog stays open with what was typed, and the project is as it was.
#include "PlibHostDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter.h>
#include <VKD_QT_InitTranslator.h>
#include <VKD_QT_Ok.h>
#include <demomodel.h>
#include <design.h>
#include <vkd_q.h>

#include <QCryptographicHash>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

QByteArray designRecords(int index)
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

QByteArray fileHash(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256)
                                       : QByteArray();
}

} // namespace

class TestHostSave : public QObject
{
    Q_OBJECT
private slots:
    void okThatCannotSave_data();
    void okThatCannotSave();
};

void TestHostSave::okThatCannotSave_data()
{
    QTest::addColumn<QString>("cause");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("reason"); // empty: saved, no message
    QTest::addColumn<QString>("closing");
    const QString english =
        QStringLiteral("Nothing was saved. The dialog stays open so that nothing you entered is lost.");
    QTest::newRow("project opened for reading")
        << "read-only" << 1 << "is open for reading only: it was opened for reading only." << english;
    QTest::newRow("project opened for reading, German desktop")
        << "read-only" << 0 << "is open for reading only: it was opened for reading only."
        << "Es wurde nichts gespeichert. Der Dialog bleibt offen, damit nichts von Ihren Eingaben verloren "
           "geht.";
    QTest::newRow("project held by another program")
        << "held" << 1 << "is in use by another program, which still held it after 0.3 seconds." << english;
    QTest::newRow("writable project") << "writable" << 1 << ""
                                      << "";
}

void TestHostSave::okThatCannotSave()
{
    QFETCH(QString, cause);
    QFETCH(int, language);
    QFETCH(QString, reason);
    QFETCH(QString, closing);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("project.vkd"));
    QByteArray before;
    {
        VKD_H_ZOBDoc doc(file);
        writeDemoModel(doc.index());
        writeDemoDesign(doc);
        before = designRecords(doc.index());
    }
    VKD_H_ZOBDoc project(file, cause == QLatin1String("read-only") ? VKD_H_ZOBDoc::ReadOnly
                                                                   : VKD_H_ZOBDoc::OpenExisting);
    project.setBusyTimeout(300);

    vkd_lib_setvalue(102, language);
    VKD_QT_InitTranslator hostTexts("plib_host");
    PlibHostDialog dialog(&project);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* page = dialog.designPage();
    const QByteArray file0 = fileHash(file);
    const int rowsBefore = page->findChild<QTableWidget*>()->rowCount();
    // Taken only now, so that a slow start of the dialog (as under the sanitizers) cannot use up
    // the time for which the other program holds the project.
    QProcess holder;
    if (cause == QLatin1String("held")) {
        holder.start(QStringLiteral(ZOB_PROBE), {QStringLiteral("hold"), file, QStringLiteral("3000")});
        QVERIFY(holder.waitForReadyRead(20000));
    }

    QStringList seen;
    bool cursorRestored = false;
    QTimer answerer;
    connect(&answerer, &QTimer::timeout, &dialog, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        answerer.stop();
        seen << box->windowTitle() << box->text() << QString::number(box->icon());
        cursorRestored = !QApplication::overrideCursor();
        box->accept();
    });
    answerer.start(10);
    QTest::mouseClick(dialog.buttonRow()->cmdOk(), Qt::LeftButton);
    answerer.stop();
    vkd_lib_setvalue(102, 1);

    if (reason.isEmpty()) {
        QCOMPARE(seen, QStringList());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        return;
    }
    const QString text = QStringLiteral("The project file %1 %2\n\n%3")
                             .arg(QFileInfo(file).absoluteFilePath(), reason, closing);
    QCOMPARE(seen, (QStringList{dialog.windowTitle(), text, QString::number(QMessageBox::Warning)}));
    QVERIFY(cursorRestored);
    QVERIFY(dialog.isVisible());
    QCOMPARE(page->findChild<QTableWidget*>()->rowCount(), rowsBefore);
    if (cause == QLatin1String("held"))
        QVERIFY(holder.waitForFinished(20000));
    QCOMPARE(designRecords(project.index()), before);
    QCOMPARE(fileHash(file), file0);
}

QTEST_MAIN(TestHostSave)
#include "tst_hostsave.moc"

// Runs the host program that uses the group through libvkd_p_fea.so on a desktop of each
// language and compares what it prints with a reference file; and what stays when the group
// goes: the row of the echo output belongs to whoever takes it.
#include "VKD_P_RadioGroupImpl.h"
#include "reference.h"

#include <QPointer>
#include <QProcess>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

class TestRadioGroupHost : public QObject
{
    Q_OBJECT
private slots:
    void transcript()
    {
        for (const char* language : {"1", "0"}) {
            QProcess host;
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert(QStringLiteral("VKD_LANGUAGE"), language);
            env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
            host.setProcessEnvironment(env);
            host.start(QStringLiteral(RADIOGROUP_HOST), QStringList());
            QVERIFY(host.waitForFinished(60000));
            QCOMPARE(host.exitCode(), 0);
            QVERIFY(matchesReference(QString::fromUtf8(host.readAllStandardOutput()),
                                     *language == '1' ? "host_en.txt" : "host_de.txt"));
        }
    }

    // The row has no parent of its own: whoever takes it keeps it, and a row nobody took goes with
    // the group. A host that goes first takes the row along, and the group must not touch it then.
    void rowOwnership()
    {
        // Nobody, the host's layout, a panel of the host, or a host that goes before the group.
        for (const auto& [host, rowStays] :
             {std::pair{"none", false}, {"layout", true}, {"panel", true}, {"gone", false}}) {
            auto dialog = std::make_unique<QWidget>();
            auto* outer = new QVBoxLayout(dialog.get());
            auto group = std::make_unique<VKD_P_RadioGroup>();
            group->initEchoOutput(dialog.get());
            const QPointer<QLayout> row = group->layout();
            const bool gone = QByteArray(host) == "gone";
            if (QByteArray(host) == "layout" || gone)
                outer->addLayout(row);
            else if (QByteArray(host) == "panel")
                (new QWidget(dialog.get()))->setLayout(row);
            if (gone)
                dialog.reset();
            group.reset();
            QVERIFY2(!row.isNull() == rowStays, host);
            if (rowStays)
                QCOMPARE(row->count(), 4); // three buttons and the spacer
            if (dialog)
                QCOMPARE(dialog->findChildren<QRadioButton*>().size(), 3);
        }
    }
};

QTEST_MAIN(TestRadioGroupHost)
#include "tst_radiogroup_host.moc"

#include "catalogue.h"
#include "loadcatalogue.h"
#include "modal.h"
#include "testsupport.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

const QByteArray twoPlots =
    "// two plots\n"
    "1|0|0|&ABC Results|@ND1 Nodes|X--&ABC Displacement|Node|0|last-l|1|1| |0|KNOT VERS UX|NODE DISP UX\n"
    "1|0|0|&ABC Results|@ND1 Nodes|^CAR|Node|0|none|0|0| |0|KNOT NUMM|NODE NUMB\n";

// Puts a catalogue with the text into a folder of the search path, beside the test texts.
void offer(const QTemporaryDir& dir, const QByteArray& text)
{
    QFile file(dir.filePath(QStringLiteral("graphicaloutput.data")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    qputenv("VKD_SEARCHPATH", (dir.path() + QStringLiteral(":" TEST_DATA_DIR "/textservice")).toUtf8());
}

} // namespace

class TestLoadCatalogue : public QObject
{
    Q_OBJECT

private slots:

    void init()
    {
        catalogueList().clear();
        catalogueLanguage = -1;
    }

    // A failed load leaves the list of an earlier one and its language, and the next load tries
    // again.
    void failure()
    {
        QTemporaryDir good;
        offer(good, twoPlots);
        QVERIFY(loadCatalogue(nullptr, 0));
        QCOMPARE(catalogueList().size(), size_t(2));
        QVERIFY(QFile::remove(good.filePath(QStringLiteral("graphicaloutput.data"))));
        if (!vkd_lib_searchpath("graphicaloutput.data", 3).empty())
            QSKIP("an installed catalogue is on the search path");
        QWidget parent;
        BoxWatcher boxes;
        QVERIFY(!loadCatalogue(&parent, 1) && !loadCatalogue(&parent, 1));
        const QString box = QStringLiteral("File not found: File graphicaloutput.data not found");
        QCOMPARE(boxes.seen, (QStringList{box, box}));
        QCOMPARE(boxes.icon, QMessageBox::Critical);
        QCOMPARE(boxes.parents, (QList<QWidget*>{&parent, &parent}));
        QCOMPARE(catalogueList().size(), size_t(2));
        QCOMPARE(catalogueLanguage, 0);
    }

    // A catalogue of comments only loads as an empty list. The file is read once per language,
    // and each new language appends to the list.
    void readsOncePerLanguage()
    {
        QTemporaryDir dir;
        BoxWatcher boxes;
        offer(dir, "// nothing but comments\n//1|0|0|a|b|c|Node|0|last|1|1| |0|G|E\n");
        QVERIFY(loadCatalogue(nullptr, 1));
        QCOMPARE(catalogueLanguage, 1);
        offer(dir, twoPlots);
        QVERIFY(loadCatalogue(nullptr, 1));
        QVERIFY(catalogueList().empty());

        for (int language : {0, 1}) {
            LanguageScope desktop(language);
            QVERIFY(loadCatalogue(nullptr, language));
        }
        QStringList captions;
        for (const GraphicalOutputRecord& r : catalogueList())
            captions << r.title3;
        QCOMPARE(captions, (QStringList{"Basis global X", "Dach", "Base global X", "Caret"}));
        QCOMPARE(catalogueLanguage, 1);
        QCOMPARE(boxes.seen, QStringList());
    }
};

QTEST_MAIN(TestLoadCatalogue)
#include "tst_loadcatalogue.moc"

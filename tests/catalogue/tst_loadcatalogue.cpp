#include "catalogue.h"
#include "loadcatalogue.h"
#include "testsupport.h"

#include <vkd_q.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <sys/fsuid.h>
#include <unistd.h>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

// Answers every modal message box as a person would, by clicking its button, and remembers what
// it showed.
class BoxAnswerer : public QObject
{
public:
    struct Box
    {
        QString title;
        QString text;
        QMessageBox::Icon icon;
        QWidget* parent;
    };

    BoxAnswerer()
    {
        connect(&m_timer, &QTimer::timeout, this, &BoxAnswerer::answer);
        m_timer.start(10);
    }

    QList<Box> boxes;

private:
    void answer()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || box->buttons().isEmpty())
            return;
        boxes << Box{box->windowTitle(), box->text(), box->icon(), box->parentWidget()};
        QTest::mouseClick(box->buttons().first(), Qt::LeftButton);
    }

    QTimer m_timer;
};

const QByteArray twoPlots =
    "// two plots\n"
    "1|0|0|&ABC Results|@ND1 Nodes|X--&ABC Displacement|Node|0|last-l|1|1| |0|KNOT VERS UX|NODE DISP UX\n"
    "1|0|0|&ABC Results|@ND1 Nodes|^CAR|Node|0|none|0|0| |0|KNOT NUMM|NODE NUMB\n";

void writeCatalogue(const QTemporaryDir& dir, const QByteArray& text)
{
    QFile file(dir.filePath(QStringLiteral("graphicaloutput.data")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

// The folders of the search path: the catalogue's and the one with the texts of the graphics
// program.
void searchIn(const QString& folder)
{
    qputenv("VKD_SEARCHPATH",
            (folder + QLatin1Char(':') + QStringLiteral(TEST_DATA_DIR "/textservice")).toUtf8());
}

QStringList captions()
{
    QStringList out;
    for (const GraphicalOutputRecord& r : catalogueList())
        out << r.title1 + QLatin1Char('/') + r.title2 + QLatin1Char('/') + r.title3;
    return out;
}

// Denies this thread the reading of files without read permission. Root reads every file,
// whatever its permissions say, unless the file system user is another one. The process stays in
// root's group, so a folder it must search needs the group's permission too.
class UnprivilegedFileAccess
{
public:
    explicit UnprivilegedFileAccess(bool enabled = true)
    {
        if (enabled && geteuid() == 0)
            m_saved = setfsuid(65534);
    }
    ~UnprivilegedFileAccess()
    {
        if (m_saved >= 0)
            setfsuid(m_saved);
    }

private:
    int m_saved = -1;
};

} // namespace

class TestLoadCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void failures_data();
    void failures();
    void sameLanguageReadsOnce();
    void secondLanguageDoublesTheList();
    void commentsOnly();
};

void TestLoadCatalogue::init()
{
    catalogueList().clear();
    catalogueLanguage = -1;
}

void TestLoadCatalogue::failures_data()
{
    QTest::addColumn<bool>("onSearchPath");
    QTest::addColumn<bool>("german");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("not on the search path") << false << false << "File not found"
                                            << "File graphicaloutput.data not found";
    QTest::newRow("found but not readable") << true << false << "Couldn't open file"
                                            << "Failed to open file %1";
    QTest::newRow("not on the search path, German") << false << true << "Datei nicht gefunden"
                                                    << "Die Datei graphicaloutput.data wurde nicht gefunden";
    QTest::newRow("found but not readable, German") << true << true << "Datei konnte nicht geöffnet werden"
                                                    << "Die Datei %1 konnte nicht geöffnet werden";
}

void TestLoadCatalogue::failures()
{
    QFETCH(bool, onSearchPath);
    QFETCH(bool, german);
    QFETCH(QString, title);
    QFETCH(QString, text);

    // A list loaded before in German stays as it is.
    QTemporaryDir good;
    writeCatalogue(good, twoPlots);
    searchIn(good.path());
    QVERIFY(loadCatalogue(nullptr, 0));
    const QStringList before = captions();
    QCOMPARE(before.size(), 2);

    QTemporaryDir bad;
    const QString path = bad.filePath(QStringLiteral("graphicaloutput.data"));
    searchIn(bad.path());
    if (onSearchPath) {
        writeCatalogue(bad, twoPlots);
        QFile::setPermissions(bad.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                              QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                              QFile::ExeOther);
        QFile::setPermissions(path, QFile::Permissions());
        UnprivilegedFileAccess access;
        QFile probe(path);
        if (probe.open(QIODevice::ReadOnly))
            QSKIP("this process reads a file without read permission");
    } else if (!vkd_lib_searchpath("graphicaloutput.data", 3).empty()) {
        QSKIP("an installed catalogue is on the search path");
    }

    QTranslator translator;
    if (german) {
        QVERIFY(translator.load(QStringLiteral(TRANSLATIONS)));
        QCoreApplication::installTranslator(&translator);
    }
    QWidget parent;
    for (int attempt = 1; attempt <= 2; ++attempt) {
        BoxAnswerer answerer;
        bool loaded = true;
        {
            UnprivilegedFileAccess access(onSearchPath);
            loaded = loadCatalogue(&parent, 1);
        }
        QVERIFY(!loaded);
        QCOMPARE(answerer.boxes.size(), 1);
        const BoxAnswerer::Box& box = answerer.boxes.first();
        QCOMPARE(box.title, title);
        QCOMPARE(box.text, onSearchPath ? text.arg(path) : text);
        QCOMPARE(box.icon, QMessageBox::Critical);
        QCOMPARE(box.parent, &parent);
        QCOMPARE(captions(), before);
        QCOMPARE(catalogueLanguage, 0);
    }
}

void TestLoadCatalogue::sameLanguageReadsOnce()
{
    QTemporaryDir dir;
    writeCatalogue(dir, twoPlots);
    searchIn(dir.path());
    BoxAnswerer answerer;
    QVERIFY(loadCatalogue(nullptr, 1));
    QCOMPARE(captions(), (QStringList{"Base/Nodes/Base global X", "Base/Nodes/Caret"}));
    QCOMPARE(catalogueLanguage, 1);

    // Without the file a second read would fail; there is none.
    QVERIFY(QFile::remove(dir.filePath(QStringLiteral("graphicaloutput.data"))));
    QVERIFY(loadCatalogue(nullptr, 1));
    QCOMPARE(captions().size(), 2);
    QCOMPARE(answerer.boxes.size(), 0);
}

void TestLoadCatalogue::secondLanguageDoublesTheList()
{
    QTemporaryDir dir;
    writeCatalogue(dir, twoPlots);
    searchIn(dir.path());
    BoxAnswerer answerer;
    const QStringList german{"Basis/Nodes/Basis global X", "Basis/Nodes/Dach"};
    const QStringList english{"Base/Nodes/Base global X", "Base/Nodes/Caret"};
    {
        LanguageScope desktop(0);
        QVERIFY(loadCatalogue(nullptr, 0));
    }
    QCOMPARE(captions(), german);
    {
        LanguageScope desktop(1);
        QVERIFY(loadCatalogue(nullptr, 1));
        QVERIFY(loadCatalogue(nullptr, 1));
    }
    QCOMPARE(captions(), german + english);
    QCOMPARE(catalogueLanguage, 1);
    {
        LanguageScope desktop(0);
        QVERIFY(loadCatalogue(nullptr, 0));
    }
    QCOMPARE(captions(), german + english + german);
    QCOMPARE(catalogueLanguage, 0);
    QCOMPARE(answerer.boxes.size(), 0);
}

void TestLoadCatalogue::commentsOnly()
{
    QTemporaryDir dir;
    writeCatalogue(dir, "// nothing but comments\n//1|0|0|a|b|c|Node|0|last|1|1| |0|G|E\n");
    searchIn(dir.path());
    BoxAnswerer answerer;
    QVERIFY(loadCatalogue(nullptr, 1));
    QVERIFY(catalogueList().empty());
    QCOMPARE(catalogueLanguage, 1);
    QCOMPARE(answerer.boxes.size(), 0);
}

QTEST_MAIN(TestLoadCatalogue)
#include "tst_loadcatalogue.moc"

// The script written line by line into its text: the view of each plot line, lines that share
// their text, and when the project is asked.
#include <scriptgenerator.h>

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

class CountingEnvironment : public ScriptEnvironment
{
public:
    mutable int asked = 0;
    QString programStart() const override { return ++asked, QStringLiteral("START\n"); }
    QString programEnd(bool) const override { return ++asked, QStringLiteral("END"); }
    bool modelHasQuads() const override { return ++asked, false; }
    QString userCamera() const override { return ++asked, QStringLiteral("CAM"); }
};

// "c:" before a line hands it as a load case line; "=" hands the line before once more, the
// same string object; anything else is a new string.
void hand(ScriptLineSink& sink, const QStringList& steps)
{
    QString last;
    for (const QString& step : steps) {
        if (step == QLatin1String("="))
            sink.line(last);
        else if (step.startsWith(QLatin1String("c:")))
            sink.caseLine(step.mid(2));
        else
            sink.line(last = QString(step.constData(), step.size()));
    }
}

// The plot lines of a script: what stands between the page setup and the closing line.
QString plotLines(const QString& script)
{
    const int start = script.indexOf(QLatin1String("FORM STAN\n")) + 10;
    return script.mid(start, script.lastIndexOf(QLatin1String("END")) - start);
}

} // namespace

class ScriptTextTest : public QObject
{
    Q_OBJECT
private slots:
    void linesInOrder_data();
    void linesInOrder();
    void projectAskedOnlyForLines();
};

void ScriptTextTest::linesInOrder_data()
{
    QTest::addColumn<int>("viewId");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("expected");

    QTest::newRow("rows repeat one plot's text, each replaced")
        << int(ViewXZ) << QStringList{"c:LC 1 DESI 1", "QUAD EG3 X", "c:LC 2 DESI 2", "=", "="}
        << "LC 1 DESI 1\nQUAD TYPE EGXZ ; PERS INFI\nLC 2 DESI 2\nQUAD TYPE EGXZ ; PERS INFI\n"
           "QUAD TYPE EGXZ ; PERS INFI\n";
    QTest::newRow("a text of the same length that follows is its own")
        << int(ViewXY) << QStringList{"AAA EG3", "BBBBBBB", "AAA EG3", "CCC EG3"}
        << "AAA TYPE EGXY ; PERS INFI\nBBBBBBB\nAAA TYPE EGXY ; PERS INFI\nCCC TYPE EGXY ; PERS INFI\n";
    QTest::newRow("EG3 at the start stays, also when repeated")
        << int(ViewYZ) << QStringList{"EG3 A", "=", "B EG3"} << "EG3 A\nEG3 A\nB TYPE EGYZ ; PERS INFI\n";
    QTest::newRow("3D standard hands every line on unchanged")
        << int(View3DStandard) << QStringList{"c:LC 1 DESI 1", "Q EG3 ; X", "="}
        << "LC 1 DESI 1\nQ EG3 ; X\nQ EG3 ; X\n";
    QTest::newRow("user camera") << int(ViewUserDefined) << QStringList{"V EG3", "="}
                                 << "V TYPE STAN CAM\nV TYPE STAN CAM\n";
}

void ScriptTextTest::linesInOrder()
{
    QFETCH(int, viewId);
    QFETCH(QStringList, steps);
    QFETCH(QString, expected);
    OutputSettings settings;
    settings.viewId = viewId;
    CountingEnvironment environment;
    const QString script = scriptFromWriter(
        settings, [&steps](ScriptLineSink& sink) { hand(sink, steps); }, QString(), true, environment);
    QCOMPARE(plotLines(script), expected);
}

// A script without plot lines is empty and costs the project nothing; with lines each question
// is asked once (the user camera only for a user view).
void ScriptTextTest::projectAskedOnlyForLines()
{
    OutputSettings settings;
    settings.viewId = ViewUserDefined;
    CountingEnvironment environment;
    QCOMPARE(scriptFromWriter(
                 settings, [](ScriptLineSink&) {}, QStringLiteral("X"), true, environment),
             QString());
    QCOMPARE(environment.asked, 0);
    settings.variant = GraphicalOutputPrefix;
    const QString script = scriptFromWriter(
        settings,
        [](ScriptLineSink& sink) {
            hand(sink, {"P EG3", "c:LC 4 DESI 4"});
        },
        QStringLiteral("PRE\n"), true, environment);
    QCOMPARE(environment.asked, 4);
    QCOMPARE(plotLines(script), QStringLiteral("PRE\nP TYPE STAN CAM\nLC 4 DESI 4\n"));
}

QTEST_GUILESS_MAIN(ScriptTextTest)
#include "tst_scripttext.moc"

#include "transcript.h"

#include <scriptgenerator.h>

#include <QtTest>

#include <map>

using namespace vkd::plib::widgetgraphicaloutput;

Q_DECLARE_METATYPE(OutputSettings)

namespace {

// Fixed answers, and how often the project was asked.
class FixedEnvironment : public ScriptEnvironment
{
public:
    bool quads = false;
    mutable int asked = 0;
    QString programStart() const override
    {
        return ++asked, QStringLiteral("+PROG GRAV echo:1 $ Graphical Output\n");
    }
    QString programEnd(bool english) const override
    {
        return ++asked, QLatin1String(english ? "END" : "ENDE");
    }
    bool modelHasQuads() const override { return ++asked, quads; }
    QString userCamera() const override { return ++asked, QStringLiteral("X 0.5 Y -0.5 Z 0.7071"); }
};

const std::vector<QString> twoPlots{QStringLiteral("VIEW EG3"), QStringLiteral("LC 1 ; QUAD TYPE MY")};

// Settings from words such as "de format=1 view=2": "de" for German keywords, "noformat" for a
// page without the format group, else a field and its number or text.
OutputSettings settingsOf(const QString& words, bool* english, QString* additional)
{
    OutputSettings s;
    const std::map<QString, int*> numbers{{"format", &s.formatId},   {"pictures", &s.picturesId},
                                          {"scale", &s.scaleMode},   {"index", &s.scaleIndex},
                                          {"split", &s.pageSplitId}, {"view", &s.viewId}};
    const std::map<QString, QString*> texts{
        {"text", &s.scaleText}, {"font", &s.fontSizeText}, {"add", additional}};
    *english = true;
    for (const QString& word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString key = word.section(QLatin1Char('='), 0, 0);
        const QString value = word.section(QLatin1Char('='), 1);
        if (key == "de")
            *english = false;
        else if (key == "noformat")
            s.hasFormat = false;
        else if (key == "variant")
            s.variant = VKD_P_WidgetGraphicalOutput_Progname(value.toInt());
        else if (numbers.count(key))
            *numbers.at(key) = value.toInt();
        else if (texts.count(key))
            *texts.at(key) = value;
        else
            qFatal("unknown word %s", qPrintable(word));
    }
    return s;
}

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

class ScriptTest : public QObject
{
    Q_OBJECT
private slots:
    void fullScript_data();
    void fullScript();
    void parts();
    void sharedTexts_data();
    void sharedTexts();
    void projectAskedOnlyForLines();
};

void ScriptTest::fullScript_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<bool>("quads");
    QTest::addColumn<QString>("additional");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("reference");

    const OutputSettings defaults;
    QTest::newRow("defaults, English") << defaults << false << QString() << true << "script_default_en.txt";
    QTest::newRow("defaults, German") << defaults << false << QString() << false << "script_default_de.txt";

    OutputSettings prefix;
    prefix.variant = GraphicalOutputPrefix;
    prefix.viewId = ViewXY;
    prefix.fillAreas = true;
    prefix.scaleMode = EngineeringScale;
    prefix.scaleIndex = 8;
    prefix.scaleText = QStringLiteral("1:100");
    QTest::newRow("prefix, quads, fill, German") << prefix << true << "LF 7\n"
                                                 << false << "script_prefix_de.txt";

    OutputSettings landscape;
    landscape.formatId = Landscape;
    landscape.viewId = ViewUserDefined;
    landscape.fillAreas = true;
    QTest::newRow("landscape, user view, additional, English")
        << landscape << true << "PLOT EXTRA" << true << "script_landscape_en.txt";
}

void ScriptTest::fullScript()
{
    QFETCH(OutputSettings, settings);
    QFETCH(bool, quads);
    QFETCH(QString, additional);
    QFETCH(bool, english);
    QFETCH(QString, reference);
    FixedEnvironment environment;
    environment.quads = quads;
    QVERIFY(matchesReference(script(settings, twoPlots, additional, english, environment), reference));
}

// The page setup, the font statement and a plot line as the view makes it; on the split page the
// script, alike with and without plots (data/parts.txt).
void ScriptTest::parts()
{
    QVERIFY(matchesTranscript(QStringLiteral("parts.txt"), [](const QString& input) {
        bool english;
        QString additional;
        const OutputSettings s =
            settingsOf(input.section(QStringLiteral(" : "), 0, 0), &english, &additional);
        const QString line = input.contains(QStringLiteral(" : ")) ? input.section(QStringLiteral(" : "), 1)
                                                                   : QStringLiteral("VIEW EG3");
        const FixedEnvironment environment;
        const QString split = script(s, {}, additional, english, environment);
        if (s.variant == GraphicalOutputSplit)
            return script(s, twoPlots, additional, english, environment) == split
                       ? QString(split).replace('\n', '/') + " | " + fontStatement(s, english)
                       : QStringLiteral("differs with plots");
        const QStringList out = script(s, {line}, additional, english, environment).split('\n');
        // The plot line stands before the closing line and the empty rest behind it.
        return QStringList{pageSetup(s, english).replace('\n', '/'), fontStatement(s, english),
                           out.value(out.size() - 3)}
            .join(QStringLiteral(" | "));
    }));
}

// The rows of a plot hand its text again; each line still gets its own view.
void ScriptTest::sharedTexts_data()
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
}

void ScriptTest::sharedTexts()
{
    QFETCH(int, viewId);
    QFETCH(QStringList, steps);
    QFETCH(QString, expected);
    OutputSettings settings;
    settings.viewId = viewId;
    const QString text = scriptFromWriter(
        settings, [&steps](ScriptLineSink& sink) { hand(sink, steps); }, QString(), true, FixedEnvironment());
    QCOMPARE(plotLines(text), expected);
}

// A script without plot lines is empty and costs the project nothing; with lines each question
// is asked once (the user camera only for a user view).
void ScriptTest::projectAskedOnlyForLines()
{
    OutputSettings settings;
    settings.viewId = ViewUserDefined;
    FixedEnvironment environment;
    QCOMPARE(scriptFromWriter(
                 settings, [](ScriptLineSink&) {}, QStringLiteral("X"), true, environment),
             QString());
    QCOMPARE(environment.asked, 0);
    settings.variant = GraphicalOutputPrefix;
    const QString text = scriptFromWriter(
        settings,
        [](ScriptLineSink& sink) {
            hand(sink, {"P EG3", "c:LC 4 DESI 4"});
        },
        QStringLiteral("PRE\n"), true, environment);
    QCOMPARE(environment.asked, 4);
    QCOMPARE(plotLines(text), QStringLiteral("PRE\nP TYPE STAN X 0.5 Y -0.5 Z 0.7071\nLC 4 DESI 4\n"));
}

QTEST_GUILESS_MAIN(ScriptTest)
#include "tst_script.moc"

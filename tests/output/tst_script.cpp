#include "transcript.h"

#include <scriptgenerator.h>
#include <suiteenvironment.h>

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>

#include <QtTest>

#include <map>

using namespace vkd::plib::widgetgraphicaloutput;

namespace {

class FixedEnvironment : public ScriptEnvironment
{
public:
    bool quads = false;
    QString programStart() const override { return QStringLiteral("+PROG GRAV echo:1 $ Graphical Output\n"); }
    QString programEnd(bool english) const override { return QLatin1String(english ? "END" : "ENDE"); }
    bool modelHasQuads() const override { return quads; }
    QString userCamera() const override { return QStringLiteral("X 0.5 Y -0.5 Z 0.7071"); }
};

const std::vector<QString> twoPlots{QStringLiteral("VIEW EG3"), QStringLiteral("LC 1 ; QUAD TYPE MY")};

// Settings from words such as "de format=1 view=2": "de" for German keywords, "noformat" for a
// page without the format group, "fill" for filled areas, else a field and its number or text.
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
        else if (key == "fill")
            s.fillAreas = true;
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

} // namespace

class ScriptTest : public QObject
{
    Q_OBJECT
private slots:
    void fullScript_data()
    {
        QTest::addColumn<QString>("settings");
        QTest::addColumn<bool>("quads");
        QTest::addColumn<QString>("reference");
        QTest::newRow("defaults, English") << "" << false << "script_default_en.txt";
        QTest::newRow("defaults, German") << "de" << false << "script_default_de.txt";
        QTest::newRow("prefix, quads, fill, German")
            << "de variant=222 view=0 fill scale=0 index=8 text=1:100 add=LF_7\n"
            << true << "script_prefix_de.txt";
        QTest::newRow("landscape, user view, additional, English")
            << "format=1 view=4 fill add=PLOT_EXTRA" << true << "script_landscape_en.txt";
    }

    void fullScript()
    {
        QFETCH(QString, settings);
        QFETCH(bool, quads);
        QFETCH(QString, reference);
        bool english;
        QString additional;
        const OutputSettings s = settingsOf(settings, &english, &additional);
        FixedEnvironment environment;
        environment.quads = quads;
        additional.replace(QLatin1Char('_'), QLatin1Char(' '));
        QVERIFY(matchesReference(script(s, twoPlots, additional, english, environment), reference));
    }

    // The page setup, the font statement and a plot line as the view makes it; on the split page the
    // script, alike with and without plots (data/parts.txt).
    void parts()
    {
        QVERIFY(matchesTranscript(QStringLiteral("parts.txt"), [](const QString& input) {
            bool english;
            QString additional;
            const OutputSettings s =
                settingsOf(input.section(QStringLiteral(" : "), 0, 0), &english, &additional);
            const QString line = input.contains(QStringLiteral(" : "))
                                     ? input.section(QStringLiteral(" : "), 1)
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
    void sharedTexts_data()
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

    void sharedTexts()
    {
        QFETCH(int, viewId);
        QFETCH(QStringList, steps);
        OutputSettings settings;
        settings.viewId = viewId;
        const QString text = scriptFromWriter(
            settings, [&steps](ScriptLineSink& sink) { hand(sink, steps); }, QString(), true,
            FixedEnvironment());
        // The plot lines stand between the page setup and the closing line.
        const int start = text.indexOf(QLatin1String("FORM STAN\n")) + 10;
        QTEST(text.mid(start, text.lastIndexOf(QLatin1String("END")) - start), "expected");
    }

    // The stored camera as the script's standpoint and as stored again; one that does not parse is
    // not stored.
    void camera_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("persistent");
        const char* rows[][4] = {{"from above", "17 90 2 0 0", "X 0 Y 0 Z 1", "17 90 2 0 0"},
                                 {"turned, zoomed, panned", "30  25 1.5 0.1 -0.2",
                                  "X 0.4532 Y -0.7849 Z 0.4226", "30 25 1.5 0.1 -0.2"},
                                 {"four numbers", "30 25 1 0", "", ""},
                                 {"no zoom", "30 25 0 0 0", "", ""},
                                 {"not a number", "30 25 x 0 0", "", ""}};
        for (const auto& r : rows)
            QTest::newRow(r[0]) << QString(r[1]) << QString(r[2]) << QString(r[3]);
    }

    void camera()
    {
        QFETCH(QString, stored);
        QTemporaryDir dir;
        VKD_H_ZOBDoc doc(dir.filePath(QStringLiteral("p.vkd")));
        VKD_H_PluginParameter parameter(&doc);
        vkd::dbo::setAnimatorPerspektive(0, stored);
        QTEST(SuiteScriptEnvironment(&parameter).userCamera(), "script");
        QTEST(vkd::dbo::getAnimatorPerspektive(0, vkd::dbo::CameraPersistentForm), "persistent");
    }
};

QTEST_GUILESS_MAIN(ScriptTest)
#include "tst_script.moc"

#include "transcript.h"

#include <scriptgenerator.h>

#include <QtTest>

using namespace vkd::plib::widgetgraphicaloutput;

Q_DECLARE_METATYPE(OutputSettings)

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
// page without the format group, else a field and its number or text.
OutputSettings settingsOf(const QString& words, bool* english, QString* additional)
{
    OutputSettings s;
    *english = true;
    for (const QString& word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString key = word.section(QLatin1Char('='), 0, 0);
        const QString text = word.section(QLatin1Char('='), 1);
        const int number = text.toInt();
        if (key == "de")
            *english = false;
        else if (key == "noformat")
            s.hasFormat = false;
        else if (key == "variant")
            s.variant = VKD_P_WidgetGraphicalOutput_Progname(number);
        else if (key == "format")
            s.formatId = number;
        else if (key == "pictures")
            s.picturesId = number;
        else if (key == "scale")
            s.scaleMode = number;
        else if (key == "index")
            s.scaleIndex = number;
        else if (key == "text")
            s.scaleText = text;
        else if (key == "split")
            s.pageSplitId = number;
        else if (key == "view")
            s.viewId = number;
        else if (key == "font")
            s.fontSizeText = text;
        else if (key == "add")
            *additional = text;
        else
            qFatal("unknown word %s", qPrintable(word));
    }
    return s;
}

} // namespace

class ScriptTest : public QObject
{
    Q_OBJECT
private slots:
    void fullScript_data();
    void fullScript();
    void noPlotsNoScript();
    void parts();
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

void ScriptTest::noPlotsNoScript()
{
    FixedEnvironment environment;
    OutputSettings settings;
    QCOMPARE(script(settings, {}, QStringLiteral("PLOT EXTRA"), true, environment), QString());
    settings.variant = GraphicalOutputPrefix;
    QCOMPARE(script(settings, {}, QStringLiteral("PLOT EXTRA\n"), false, environment), QString());
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

QTEST_GUILESS_MAIN(ScriptTest)
#include "tst_script.moc"

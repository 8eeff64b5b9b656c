#include "reference.h"

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

OutputSettings split(int pageSplitId, int scaleMode, int scaleIndex, const QString& scaleText)
{
    OutputSettings s;
    s.variant = GraphicalOutputSplit;
    s.hasFormat = false;
    s.pageSplitId = pageSplitId;
    s.scaleMode = scaleMode;
    s.scaleIndex = scaleIndex;
    s.scaleText = scaleText;
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
    void pageSetup_data();
    void pageSetup();
    void viewOfPlotLines_data();
    void viewOfPlotLines();
    void font_data();
    void font();
    void splitVariant_data();
    void splitVariant();
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
    QTest::newRow("prefix, quads, fill, German") << prefix << true << "LF 7\n" << false << "script_prefix_de.txt";

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

void ScriptTest::pageSetup_data()
{
    QTest::addColumn<bool>("hasFormat");
    QTest::addColumn<int>("formatId");
    QTest::addColumn<int>("picturesId");
    QTest::addColumn<int>("scaleMode");
    QTest::addColumn<int>("scaleIndex");
    QTest::addColumn<QString>("scaleText");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("expected");

    QTest::newRow("portrait, two, to fit, English") << true << 0 << 1 << 1 << 8 << "1:100" << true
                                                    << "SIZ2 SPLI PICT\nSIZE -URS SC 0 SPLI  2x1 MARG NO FORM STAN";
    QTest::newRow("portrait, two, to fit, German") << true << 0 << 1 << 1 << 0 << "Auto" << false
                                                   << "SIZ2 TEIL BILD\nSIZE -URS M 0 TEIL  2x1 RAND NEIN FORM STAN";
    QTest::newRow("portrait, one, auto") << true << 0 << 0 << 0 << 0 << "Auto" << true
                                         << "SIZE -URS SC - MARG NO FORM STAN";
    QTest::newRow("landscape ignores pictures") << true << 1 << 1 << 0 << 8 << "1:100" << false
                                                << "SIZE URS M 100*1.e+10 RAND NEIN FORM STAN";
    QTest::newRow("ratio behind the first colon") << true << 1 << 0 << 0 << 11 << "1:1000" << true
                                                  << "SIZE URS SC 1000*1.e+10 MARG NO FORM STAN";
    QTest::newRow("text without colon stays whole") << true << 1 << 0 << 0 << 3 << "250" << true
                                                    << "SIZE URS SC 250*1.e+10 MARG NO FORM STAN";
    QTest::newRow("no format group") << false << 0 << 1 << 1 << 0 << "Auto" << true
                                     << "SIZE URS SC 0 MARG NO FORM STAN";
}

void ScriptTest::pageSetup()
{
    QFETCH(bool, hasFormat);
    QFETCH(int, formatId);
    QFETCH(int, picturesId);
    QFETCH(int, scaleMode);
    QFETCH(int, scaleIndex);
    QFETCH(QString, scaleText);
    QFETCH(bool, english);
    QFETCH(QString, expected);
    OutputSettings s;
    s.hasFormat = hasFormat;
    s.formatId = formatId;
    s.picturesId = picturesId;
    s.scaleMode = scaleMode;
    s.scaleIndex = scaleIndex;
    s.scaleText = scaleText;
    QCOMPARE(vkd::plib::widgetgraphicaloutput::pageSetup(s, english), expected);
}

void ScriptTest::viewOfPlotLines_data()
{
    QTest::addColumn<int>("viewId");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("expected");

    QTest::newRow("3D standard keeps the line") << 3 << false << "BEOB EG3 ; X" << "BEOB EG3 ; X";
    QTest::newRow("X/Y, German") << 0 << false << "BEOB EG3" << "BEOB TYP EGXY ; PERS INFI";
    QTest::newRow("X/Z drops what follows") << 1 << true << "VIEW EG3 ; PERS CENT" << "VIEW TYPE EGXZ ; PERS INFI";
    QTest::newRow("Y/Z at the first EG3") << 2 << true << "VIEW EG3 EG3" << "VIEW TYPE EGYZ ; PERS INFI";
    QTest::newRow("user defined") << 4 << true << "VIEW EG3" << "VIEW TYPE STAN X 0.5 Y -0.5 Z 0.7071";
    QTest::newRow("unknown view, bare word") << 9 << false << "BEOB EG3" << "BEOB TYP ";
    QTest::newRow("EG3 at the start stays") << 0 << true << "EG3 VIEW" << "EG3 VIEW";
    QTest::newRow("EGX without EG3 stays") << 0 << true << "VIEW EGXZ" << "VIEW EGXZ";
    QTest::newRow("case-sensitive") << 0 << true << "VIEW eg3" << "VIEW eg3";
}

void ScriptTest::viewOfPlotLines()
{
    QFETCH(int, viewId);
    QFETCH(bool, english);
    QFETCH(QString, line);
    QFETCH(QString, expected);
    OutputSettings s;
    s.viewId = viewId;
    FixedEnvironment environment;
    const QStringList out = script(s, {line}, QString(), english, environment).split(QLatin1Char('\n'));
    // The plot line stands before the closing line and the empty rest behind it.
    QCOMPARE(out.value(out.size() - 3), expected);
}

void ScriptTest::font_data()
{
    QTest::addColumn<int>("variant");
    QTest::addColumn<QString>("fontSize");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("expected");

    QTest::newRow("default") << 0 << "2" << true << "SCHH H6 0.2";
    QTest::newRow("German") << 222 << "12.5" << false << "SCHR H6 1.25";
    QTest::newRow("six digits") << 0 << "1234567" << true << "SCHH H6 123457";
    QTest::newRow("no number counts as 0") << 0 << "abc" << false << "SCHR H6 0";
    QTest::newRow("split variant, number alone") << 122 << "3" << true << "0.3";
}

void ScriptTest::font()
{
    QFETCH(int, variant);
    QFETCH(QString, fontSize);
    QFETCH(bool, english);
    QFETCH(QString, expected);
    OutputSettings s;
    s.variant = VKD_P_WidgetGraphicalOutput_Progname(variant);
    s.fontSizeText = fontSize;
    QCOMPARE(fontStatement(s, english), expected);
}

void ScriptTest::splitVariant_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("additional");
    QTest::addColumn<QString>("expected");

    QTest::newRow("two rows, 1:100, German")
        << split(1, 0, 8, "1:100") << false << QString()
        << "SIZE DINA \"-URS\" M 100 TEIL 2X1|SIZE DINA \"-URS\" $(XYZ) TEIL 2X1";
    QTest::newRow("one picture, to fit, English")
        << split(0, 1, 8, "1:100") << true << QString() << "SIZE TYPE \"-URS\" SC 0 SPLI 1X1|SIZE TYPE \"-URS\" $(XYZ) SPLI 1X1";
    QTest::newRow("three by two, auto")
        << split(3, 0, 0, "Auto") << true << QString() << "SIZE TYPE \"-URS\" SC - SPLI 3X2|SIZE TYPE \"-URS\" $(XYZ) SPLI 3X2";
    QTest::newRow("landscape two by two, additional")
        << split(5, 0, 11, "1:1000") << false << "LF 1"
        << "SIZE DINA \"URS\" M 1000 TEIL 2X2|SIZE DINA \"URS\" $(XYZ) TEIL 2X2LF 1\n";
    QTest::newRow("landscape one") << split(4, 1, 0, "Auto") << true << QString()
                                   << "SIZE TYPE \"URS\" SC 0 SPLI 1X1|SIZE TYPE \"URS\" $(XYZ) SPLI 1X1";
    QTest::newRow("two by two portrait") << split(2, 1, 0, "Auto") << false << QString()
                                         << "SIZE DINA \"-URS\" M 0 TEIL 2X2|SIZE DINA \"-URS\" $(XYZ) TEIL 2X2";
    QTest::newRow("unknown division") << split(6, 1, 0, "Auto") << true << QString() << "SIZE TYPESC 0 |SIZE TYPE$(XYZ) ";
    QTest::newRow("negative division") << split(-1, 1, 0, "Auto") << true << QString() << "SIZE TYPESC 0 |SIZE TYPE$(XYZ) ";
}

void ScriptTest::splitVariant()
{
    QFETCH(OutputSettings, settings);
    QFETCH(bool, english);
    QFETCH(QString, additional);
    QFETCH(QString, expected);
    FixedEnvironment environment;
    QCOMPARE(script(settings, {}, additional, english, environment), expected);
    QCOMPARE(script(settings, twoPlots, additional, english, environment), expected);
}

QTEST_GUILESS_MAIN(ScriptTest)
#include "tst_script.moc"

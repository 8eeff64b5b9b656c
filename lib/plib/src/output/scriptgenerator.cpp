#include "scriptgenerator.h"

#include <utility>

namespace vkd::plib::widgetgraphicaloutput {

namespace {

// The sheet division of the split variant: what the division word and the sheet kind get.
struct SheetDivision
{
    const char* division;
    const char* sheet;
};
constexpr SheetDivision sheetDivisions[] = {
    {" 1X1", " \"-URS\" "}, {" 2X1", " \"-URS\" "}, {" 2X2", " \"-URS\" "},
    {" 3X2", " \"-URS\" "}, {" 1X1", " \"URS\" "},  {" 2X2", " \"URS\" "},
};
constexpr int sheetDivisionCount = int(sizeof sheetDivisions / sizeof sheetDivisions[0]);

const char* const controlLinesEnglish =
    "CTRL EMPT YES         $ create empty pages if results not available\n"
    "CTRL WARN (800 802 1) $ no warnings if no values found\n"
    "CTRL WARN (804 808 1) $ no warnings if no values found\n"
    "CTRL WARN 873         $ no warning for 2D visibility\n";
const char* const controlLinesGerman =
    "STEU LEER JA          $ leere Bilder erzeugen, wenn angeforderte Ergebnisse nicht darstellbar sind\n"
    "STEU WARN (800 802 1) $ keine Warnungen, wenn angeforderte Ergebnisse nicht darstellbar sind\n"
    "STEU WARN (804 808 1) $ keine Warnungen, wenn angeforderte Ergebnisse nicht darstellbar sind\n"
    "STEU WARN 873         $ keine Warnung wegen 2D Sichtbarkeit\n";

// Two cuts in each global direction across the page.
const char* const cutLinesEnglish =
    "VIEW EGXY    $ view in global Z direction\n"
    "MOVE UNIT PRWC X  0 Y 33 DTYP QSEC ; DRAW UNIT PRWC X 100 Y  33 DTYP QSEC $ cut in global X direction\n"
    "MOVE UNIT PRWC X  0 Y 66 DTYP QSEC ; DRAW UNIT PRWC X 100 Y  66 DTYP QSEC $ cut in global X direction\n"
    "MOVE UNIT PRWC X 33 Y  0 DTYP QSEC ; DRAW UNIT PRWC X  33 Y 100 DTYP QSEC $ cut in global Y direction\n"
    "MOVE UNIT PRWC X 66 Y  0 DTYP QSEC ; DRAW UNIT PRWC X  66 Y 100 DTYP QSEC $ cut in global Y direction\n";
const char* const cutLinesGerman =
    "BEOB EGXY    $ Blick in die globale Z-Richtung\n"
    "MOVE UNIT PRWC X  0 Y 33 DTYP QSCH ; DRAW UNIT PRWC X 100 Y  33 DTYP QSCH $ Schnitt in X-Richtung\n"
    "MOVE UNIT PRWC X  0 Y 66 DTYP QSCH ; DRAW UNIT PRWC X 100 Y  66 DTYP QSCH $ Schnitt in X-Richtung\n"
    "MOVE UNIT PRWC X 33 Y  0 DTYP QSCH ; DRAW UNIT PRWC X  33 Y 100 DTYP QSCH $ Schnitt in Y-Richtung\n"
    "MOVE UNIT PRWC X 66 Y  0 DTYP QSCH ; DRAW UNIT PRWC X  66 Y 100 DTYP QSCH $ Schnitt in Y-Richtung\n";

// The scale of the split variant: "0" to fit, "-" automatic, else the ratio behind "1:".
QString splitScale(const OutputSettings& settings)
{
    if (settings.scaleMode != EngineeringScale)
        return QStringLiteral(" 0");
    if (settings.scaleIndex == 0)
        return QStringLiteral(" -");
    return QLatin1Char(' ') + QString(settings.scaleText).remove(QStringLiteral("1:"));
}

QString splitResult(const OutputSettings& settings, const QString& additional, bool english)
{
    QString kind = QLatin1String(english ? "TYPE" : "DINA");
    const QString scaleWord = QLatin1String(english ? "SC" : "M") + splitScale(settings);
    QString division = QLatin1String(english ? "SPLI" : "TEIL");
    if (settings.pageSplitId >= 0 && settings.pageSplitId < sheetDivisionCount) {
        division += QLatin1String(sheetDivisions[settings.pageSplitId].division);
        kind += QLatin1String(sheetDivisions[settings.pageSplitId].sheet);
    } else {
        division.clear();
    }
    QString result = QStringLiteral("SIZE ") + kind + scaleWord + QLatin1Char(' ') + division +
                     QLatin1Char('|') + QStringLiteral("SIZE ") + kind + QStringLiteral("$(XYZ) ") + division;
    if (!additional.isEmpty())
        result += additional + QLatin1Char('\n');
    return result;
}

// Writes plot lines into the text of the script, each with its view replaced by the page's one
// unless that is the 3D standard, and the frame of the script before the first of them.
class ScriptText : public ScriptLineSink
{
public:
    ScriptText(QString& out, const QString* view, std::function<void()> writeHead)
        : m_out(out), m_view(view), m_writeHead(std::move(writeHead))
    {
    }

    void line(const QString& text) override
    {
        begin();
        m_out += m_view ? withView(text) : text;
        m_out += QLatin1Char('\n');
    }

    void caseLine(const QString& text) override
    {
        begin();
        m_out += text;
        m_out += QLatin1Char('\n');
    }

    bool empty() const { return !m_started; }

private:
    void begin()
    {
        if (m_started)
            return;
        m_started = true;
        m_writeHead();
    }

    const QString& withView(const QString& text)
    {
        // The rows of a plot repeat its script text: a line that shares its text with the one
        // replaced last takes the same result. The kept copy keeps that text unchanged.
        if (text.constData() != m_lastText.constData() || text.size() != m_lastText.size()) {
            m_lastText = text;
            const int at = text.indexOf(QLatin1String("EG3"));
            m_lastResult = at > 0 ? text.left(at) + *m_view : text;
        }
        return m_lastResult;
    }

    QString& m_out;
    const QString* m_view;
    std::function<void()> m_writeHead;
    bool m_started = false;
    QString m_lastText;
    QString m_lastResult;
};

} // namespace

QString fontNumber(const OutputSettings& settings)
{
    return QString::number(settings.fontSizeText.toDouble() / 10.0, 'g', 6);
}

QString fontStatement(const OutputSettings& settings, bool english)
{
    if (settings.variant == GraphicalOutputSplit)
        return fontNumber(settings);
    return QLatin1String(english ? "SCHH H6 " : "SCHR H6 ") + fontNumber(settings);
}

QString viewClause(const OutputSettings& settings, bool english, const ScriptEnvironment& environment)
{
    QString out = QLatin1String(english ? "TYPE " : "TYP ");
    const QLatin1String parallel(" ; PERS INFI");
    switch (settings.viewId) {
    case ViewXY:
        return out + QLatin1String("EGXY") + parallel;
    case ViewXZ:
        return out + QLatin1String("EGXZ") + parallel;
    case ViewYZ:
        return out + QLatin1String("EGYZ") + parallel;
    case View3DStandard:
        return out + QLatin1String("EG3");
    case ViewUserDefined:
        return out + QLatin1String("STAN ") + environment.userCamera();
    default:
        return out;
    }
}

QString pageSetup(const OutputSettings& settings, bool english)
{
    QString sheet = QStringLiteral("URS");
    QString head;
    QString split;
    if (settings.hasFormat && settings.formatId == Portrait) {
        sheet = QStringLiteral("-URS");
        if (settings.picturesId == TwoPerPage) {
            head = QLatin1String(english ? "SIZ2 SPLI PICT\n" : "SIZ2 TEIL BILD\n");
            split = QLatin1String(english ? " SPLI  2x1" : " TEIL  2x1");
        }
    }
    QString scale;
    if (settings.scaleMode != EngineeringScale)
        scale = QStringLiteral("0");
    else if (settings.scaleIndex == 0)
        scale = QStringLiteral("-");
    else
        // The factor stands in the script as text: GRAV reads the ratio in its own units.
        scale = settings.scaleText.mid(settings.scaleText.indexOf(QLatin1Char(':')) + 1) +
                QStringLiteral("*1.e+10");
    return head + QStringLiteral("SIZE ") + sheet + QLatin1String(english ? " SC " : " M ") + scale + split +
           QLatin1String(english ? " MARG NO FORM STAN" : " RAND NEIN FORM STAN");
}

QString fillDefinitions(bool fill, bool english)
{
    if (!fill)
        return QStringLiteral(
            "#define FILL=-\n#define FILLI=-\n#define FILLC=-\n#define SCHRI=-\n#define SCHRC=-\n");
    if (english)
        return QStringLiteral("#define FILL=VERT\n#define FILLI=AREA\n#define FILLC=VERT\n#define "
                              "SCHRI=NO\n#define SCHRC=NO\n");
    return QStringLiteral("#define FILL=SENK\n#define FILLI=FLAE\n#define FILLC=SENK\n#define "
                          "SCHRI=NEIN\n#define SCHRC=NEIN\n");
}

QString script(const OutputSettings& settings, const std::vector<QString>& plotLines,
               const QString& additional, bool english, const ScriptEnvironment& environment)
{
    return scriptFromWriter(
        settings,
        [&plotLines](ScriptLineSink& sink) {
            for (const QString& line : plotLines)
                sink.line(line);
        },
        additional, english, environment);
}

QString scriptFromWriter(const OutputSettings& settings,
                         const std::function<void(ScriptLineSink&)>& writePlotLines,
                         const QString& additional, bool english, const ScriptEnvironment& environment)
{
    if (settings.variant == GraphicalOutputSplit)
        return splitResult(settings, additional, english);

    const bool prefix = settings.variant == GraphicalOutputPrefix;
    QString out;
    QString view;
    // The environment is asked only once a plot line comes.
    const auto writeHead = [&] {
        view = viewClause(settings, english, environment);
        out = environment.programStart();
        out += QLatin1String(english ? controlLinesEnglish : controlLinesGerman);
        out += QStringLiteral("#define SCHR=") + fontNumber(settings) + QLatin1Char('\n');
        out += fontStatement(settings, english) + QLatin1Char('\n');
        out += fillDefinitions(settings.fillAreas, english);
        if (environment.modelHasQuads())
            out += QLatin1String(english ? cutLinesEnglish : cutLinesGerman);
        out += pageSetup(settings, english) + QLatin1Char('\n');
        if (prefix)
            out += additional;
    };
    ScriptText text(out, settings.viewId == View3DStandard ? nullptr : &view, writeHead);
    writePlotLines(text);
    if (text.empty())
        return QString();
    if (!prefix && !additional.isEmpty())
        out += additional + QLatin1Char('\n');
    out += environment.programEnd(english) + QLatin1Char('\n');
    return out;
}

} // namespace vkd::plib::widgetgraphicaloutput

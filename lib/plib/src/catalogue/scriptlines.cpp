#include "scriptlines.h"

namespace vkd::plib::widgetgraphicaloutput {

ScriptContext::ScriptContext(bool english, int progname, std::function<int()> kindOfSystem)
    : viewWord(english ? QStringLiteral("VIEW ") : QStringLiteral("BEOB ")),
      lcWord(english ? QStringLiteral("LC ") : QStringLiteral("LF ")),
      designWord(english ? QStringLiteral(" DESI ") : QStringLiteral(" BEME ")),
      andWord(english ? QStringLiteral(" ; AND ") : QStringLiteral(" ; UND ")),
      firstColour(english ? QStringLiteral("COLO C14 -1 ; ") : QStringLiteral("FARB F14 -1 ; ")),
      secondColour(english ? QStringLiteral("COLO STAN ; COLO C13 -1 ; ")
                           : QStringLiteral("FARB STAN ; FARB F13 -1 ; ")),
      colourEnd(english ? QStringLiteral(" ; COLO STAN") : QStringLiteral(" ; FARB STAN")), english(english),
      progname(progname), m_askKindOfSystem(std::move(kindOfSystem))
{
}

// The model does not change while the lines are collected, so one answer serves all plots.
int ScriptContext::kindOfSystem()
{
    if (!m_kindKnown) {
        m_kindOfSystem = m_askKindOfSystem ? m_askKindOfSystem() : 0;
        m_kindKnown = true;
    }
    return m_kindOfSystem;
}

const QString& ScriptContext::caseLine(int number)
{
    auto it = m_caseLines.find(number);
    if (it == m_caseLines.end()) {
        const QString n = QString::number(number);
        it = m_caseLines.insert(number, lcWord + n + designWord + n);
    }
    return *it;
}

namespace {

constexpr int splitPage = 122;
// On the split page the case goes into the script text, above the range of load case numbers.
constexpr int splitSheetCaseOffset = 1000000;

QString viewOf(ScriptContext& context, int viewKind)
{
    switch (viewKind) {
    case 1:
        return context.kindOfSystem() == 0 ? QStringLiteral("EG3") : QStringLiteral("EGX");
    case 2:
        return QStringLiteral("EGX");
    case 3:
        return QStringLiteral("EG3");
    default:
        return QString();
    }
}

} // namespace

void appendScriptLines(ScriptContext& context, const ScriptEntry& entry, std::vector<QString>& lines)
{
    ScriptLineList list(lines);
    appendScriptLines(context, entry, list);
}

void appendScriptLines(ScriptContext& context, const ScriptEntry& entry, ScriptLineSink& sink)
{
    const QString& script = context.english ? entry.record.scriptEnglish : entry.record.scriptGerman;
    // A null and an empty view are equal here: a plot without view at the start adds no line.
    // Rows mostly repeat the kind of view of the row before, which gives the same view.
    if (entry.record.viewKind != context.lastViewKind) {
        context.lastViewKind = entry.record.viewKind;
        const QString view = viewOf(context, entry.record.viewKind);
        if (view != context.lastView) {
            context.lastView = view;
            sink.line(context.viewWord + view);
        }
    }
    const int number = entry.number;
    if (number < 0)
        return;
    if (number == 0) {
        sink.line(script);
        return;
    }
    if (context.progname == splitPage) {
        // The split page makes one sheet per load case; the case goes into the script text.
        sink.line(QString(script).replace(QLatin1String("$(LFNR)"), QString::number(number + splitSheetCaseOffset)));
        return;
    }
    if (number != context.lastCase) {
        context.lastCase = number;
        sink.caseLine(context.caseLine(number));
    }
    int second = 0;
    if (!secondCase(entry.label, &second)) {
        sink.line(script);
        return;
    }
    // The plot of the first case and that of the second one over it, in two colours.
    QString unit = QStringLiteral(" UNIT LAST");
    if (entry.captionRecord) {
        const QString& captionScript =
            context.english ? entry.captionRecord->scriptEnglish : entry.captionRecord->scriptGerman;
        if (captionScript.contains(QLatin1String("UNIT")))
            unit.clear();
    }
    sink.line(context.firstColour + script + context.andWord);
    sink.caseLine(context.caseLine(second));
    sink.line(context.secondColour + script + unit + context.colourEnd);
    context.lastCase = second;
}

bool secondCase(const QString& label, int* second)
{
    // One pass over the label: this runs for every checked row of every plot.
    const QChar* text = label.constData();
    const int size = label.size();
    int plus = -1;
    int end = 0;
    while (end < size && text[end] != QLatin1Char(':')) {
        if (plus < 0 && text[end] == QLatin1Char('+'))
            plus = end;
        ++end;
    }
    const int headSize = end < size ? end : qMin(size, 5);
    if (plus < 0 || plus >= headSize)
        return false;
    bool ok = false;
    const int value = label.midRef(plus + 1, headSize - plus - 1).toInt(&ok, 10);
    *second = ok ? value : -1;
    return true;
}

QString itemId(const GraphicalOutputRecord& record, int level)
{
    switch (level) {
    case 0:
        return record.id1.trimmed();
    case 1:
        return (record.id1 + record.id2).trimmed();
    default:
        return (record.id1 + record.id2 + record.id3).trimmed();
    }
}

} // namespace vkd::plib::widgetgraphicaloutput

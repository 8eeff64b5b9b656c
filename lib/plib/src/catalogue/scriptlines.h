#pragma once

#include "GraphicalOutputRecord.h"

#include <QHash>
#include <QString>

#include <climits>
#include <functional>
#include <vector>

namespace vkd::plib::widgetgraphicaloutput {

// The working record of one collection of script lines: keywords of the chosen language, and
// the last view and load case written, so that neither is repeated.
struct ScriptContext
{
    static constexpr int noViewKind = INT_MIN;

    // kindOfSystem gives the kind of system of the model; it is asked once, at the first plot
    // whose view depends on it.
    ScriptContext(bool english, int progname, std::function<int()> kindOfSystem);

    int lastCase = -1;
    QString lastView;
    // The kind of view that gave lastView; none at the start.
    int lastViewKind = noViewKind;
    QString viewWord;
    QString lcWord;
    QString designWord;
    QString andWord;
    QString firstColour;
    QString secondColour;
    QString colourEnd;

    bool english;
    int progname;
    int kindOfSystem();
    // "LC 12 DESI 12": every plot repeats the lines of the same load cases, so each is made once.
    const QString& caseLine(int number);

private:
    std::function<int()> m_askKindOfSystem;
    QHash<int, QString> m_caseLines;
    int m_kindOfSystem = 0;
    bool m_kindKnown = false;
};

// Where collected script lines go: a list of lines, or straight into the text of a script.
class ScriptLineSink
{
public:
    virtual ~ScriptLineSink() = default;
    // A line, without its end.
    virtual void line(const QString& text) = 0;
    // A load case line ("LC 12 DESI 12"), which never names a view.
    virtual void caseLine(const QString& text) { line(text); }
};

// A checked plot or load case row, as the script sees it.
struct ScriptEntry
{
    const GraphicalOutputRecord& record;
    // 0 for a plot without load cases, the load case of a row.
    int number;
    // The text of the row, which may ask for a second load case.
    const QString& label;
    // The record of the caption above the plot; null if there is none.
    const GraphicalOutputRecord* captionRecord;
};

// Appends the lines of one entry: its view line if the view changed, its load case line if the
// case changed, and the script text of its record, twice in two colours for a row "a+b".
void appendScriptLines(ScriptContext& context, const ScriptEntry& entry, ScriptLineSink& sink);
void appendScriptLines(ScriptContext& context, const ScriptEntry& entry, std::vector<QString>& lines);

// Gathers lines in a list.
class ScriptLineList : public ScriptLineSink
{
public:
    explicit ScriptLineList(std::vector<QString>& lines) : m_lines(lines) {}
    void line(const QString& text) override { m_lines.push_back(text); }

private:
    std::vector<QString>& m_lines;
};

// The second load case of a row label "a+b: title": b, -1 if b is no number, and false if the
// label asks for none. Only the text before the first ":" counts, or its first five characters.
bool secondCase(const QString& label, int* second);

// The identifier of a tree item of the given level made from its record, the same in every
// language: the caption identifiers of its level and those above, trimmed.
QString itemId(const GraphicalOutputRecord& record, int level);

} // namespace vkd::plib::widgetgraphicaloutput

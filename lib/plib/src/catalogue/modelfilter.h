#pragma once

#include "GraphicalOutputRecord.h"

#include <QString>

#include <list>

class VKD_H_PluginParameter;

namespace vkd::plib::widgetgraphicaloutput {

// What the model of a project may hold, as far as the catalogue asks for it.
enum class ModelContent
{
    Nodes,
    Quads,
    Boundaries,
    Beams,
    DesignLines,
    Trusses,
    SectionCuts,
    Points,
    Lines,
    Areas,
    Axes,
    Cables,
    Springs,
    Bricks,
    QuadTendons,
    BeamTendons,
    CrossSections,
};

// The questions the filter asks of a model. The project answers them (ProjectModel); tests
// answer in its place.
class ModelAnswers
{
public:
    virtual ~ModelAnswers() = default;
    virtual bool holds(ModelContent content) const = 0;
    virtual int kindOfSystem() const = 0;
};

// The model in the projects of a plug-in parameter. Cross sections are asked of the second
// project when there is one; everything else of the first. Each question goes to the store.
class ProjectModel : public ModelAnswers
{
public:
    explicit ProjectModel(const VKD_H_PluginParameter* parameter);
    bool holds(ModelContent content) const override;
    int kindOfSystem() const override;

private:
    int m_index;
    int m_sectionIndex;
};

// The bit of systemMask that stands for a kind of system: 1 plane stress, 2 plane strain and
// axisymmetric, 4 plane frame, 8 spatial and plate bending; 0 for cross sections alone (no plot
// with a condition), 15 for an unknown kind (every plot).
int systemBit(int kind);

// Whether the model holds what a content tag names. Tags compare without regard to case; a
// text that is no tag sets no condition.
bool hasContent(const QString& tag, const ModelAnswers& model);
bool hasContent(const QString& tag, VKD_H_PluginParameter* parameter);

// Whether a catalogue record is offered on a page of the given program for the model, where
// additional lists the tags that count as present whatever the model holds. That list compares
// with case, unlike the tags of the model.
bool isRecordOffered(const GraphicalOutputRecord& record, int progname, const ModelAnswers& model,
                     const std::list<QString>& additional);
bool isRecordOffered(const GraphicalOutputRecord& record, int progname, VKD_H_PluginParameter* parameter,
                     const std::list<QString>& additional);

} // namespace vkd::plib::widgetgraphicaloutput

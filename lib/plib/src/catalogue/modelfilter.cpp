#include "modelfilter.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_dbo.h>
#include <vkd_q.h>

#include <algorithm>

namespace vkd::plib::widgetgraphicaloutput {

namespace {

int indexOf(const VKD_H_ZOBDoc* doc)
{
    return doc ? doc->index() : -1;
}

struct TagOfContent
{
    const char* tag;
    ModelContent content;
};

// In the order in which a tag is compared.
const TagOfContent contentTags[] = {
    {"Node", ModelContent::Nodes},         {"Quad", ModelContent::Quads},
    {"Boun", ModelContent::Boundaries},    {"Beam", ModelContent::Beams},
    {"DSLN", ModelContent::DesignLines},   {"Trus", ModelContent::Trusses},
    {"Sir", ModelContent::SectionCuts},    {"Gpt", ModelContent::Points},
    {"Gln", ModelContent::Lines},          {"Gar", ModelContent::Areas},
    {"Axis", ModelContent::Axes},          {"Cabl", ModelContent::Cables},
    {"Spri", ModelContent::Springs},       {"Bric", ModelContent::Bricks},
    {"Qten", ModelContent::QuadTendons},   {"Bten", ModelContent::BeamTendons},
    {"Sect", ModelContent::CrossSections},
};

} // namespace

ProjectModel::ProjectModel(const VKD_H_PluginParameter* parameter)
    : m_index(parameter ? indexOf(parameter->zobDoc()) : -1),
      m_sectionIndex(parameter && parameter->secondZobDoc() ? indexOf(parameter->secondZobDoc()) : m_index)
{
}

bool ProjectModel::holds(ModelContent content) const
{
    using namespace vkd::dbo;
    switch (content) {
    case ModelContent::Nodes:
        return hasNodes(m_index, nullptr);
    case ModelContent::Quads:
        return hasQuads(m_index, nullptr);
    case ModelContent::Boundaries:
        return hasBoundaries(m_index, nullptr);
    case ModelContent::Beams:
        return hasBeams(m_index, nullptr);
    case ModelContent::DesignLines: {
        // Design lines sit under key 35 with their number as second key.
        int key1 = KeyDesignLines;
        int key2 = 0;
        vkd_zob_kenq_ex(m_index, &key1, &key2, 1);
        return key1 == KeyDesignLines;
    }
    case ModelContent::Trusses:
        return hasTrus(m_index, nullptr);
    case ModelContent::SectionCuts:
        return hasBscts(m_index, nullptr);
    case ModelContent::Points:
        return hasPoints(m_index, nullptr);
    case ModelContent::Lines:
        return hasLines(m_index, nullptr);
    case ModelContent::Areas:
        return hasAreas(m_index, nullptr);
    case ModelContent::Axes:
        return hasAxes(m_index, nullptr);
    case ModelContent::Cables:
        return hasCables(m_index, nullptr);
    case ModelContent::Springs:
        return hasSprings(m_index, nullptr);
    case ModelContent::Bricks:
        return hasBrics(m_index, nullptr);
    case ModelContent::QuadTendons:
        return hasQuadTendons(m_index, nullptr);
    case ModelContent::BeamTendons:
        return hasBeamTendons(m_index, nullptr);
    case ModelContent::CrossSections:
        return hasCrossSections(m_sectionIndex, nullptr);
    }
    return false;
}

int ProjectModel::kindOfSystem() const
{
    return vkd::dbo::getKindOfSystem(m_index, nullptr);
}

int systemBit(int kind)
{
    switch (kind / 10) {
    case 0:
    case 2:
        return 8;
    case 1:
        // 10, 11, 14 and 15 are the plane stress systems.
        return ((kind - 10) & ~5) == 0 ? 1 : 2;
    case 3:
        return 4;
    case 4:
        return 0;
    default:
        return 15;
    }
}

bool hasContent(const QString& tag, const ModelAnswers& model)
{
    for (const TagOfContent& t : contentTags)
        if (tag.compare(QLatin1String(t.tag), Qt::CaseInsensitive) == 0)
            return model.holds(t.content);
    return true;
}

bool hasContent(const QString& tag, VKD_H_PluginParameter* parameter)
{
    return hasContent(tag, ProjectModel(parameter));
}

bool isRecordOffered(const GraphicalOutputRecord& record, int progname, const ModelAnswers& model,
                     const std::list<QString>& additional)
{
    if (progname != record.prog1 && progname != record.prog2 && progname != record.prog3)
        return false;
    if ((record.systemMask & 15) != 0 && (systemBit(model.kindOfSystem()) & record.systemMask) == 0)
        return false;
    if (!hasContent(record.contentTag, model) &&
        std::find(additional.begin(), additional.end(), record.contentTag) == additional.end())
        return false;
    return !record.title1.isEmpty() && !record.title2.isEmpty() && !record.title3.isEmpty();
}

bool isRecordOffered(const GraphicalOutputRecord& record, int progname, VKD_H_PluginParameter* parameter,
                     const std::list<QString>& additional)
{
    return isRecordOffered(record, progname, ProjectModel(parameter), additional);
}

} // namespace vkd::plib::widgetgraphicaloutput

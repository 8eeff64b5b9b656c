#include "designrecord.h"

#include <VKD_A_BarDiameterData.h>

#include <algorithm>
#include <cstring>

namespace vkd::plib::design {

using R = tagZOB_QUAD_RIM;

// clang-format off
const RealField kRealFields[48] = {
    {"rio", &R::rio}, {"rioq", &R::rioq}, {"rioi", &R::rioi}, {"riu", &R::riu}, {"riuq", &R::riuq}, {"riui", &R::riui},
    {"xref", &R::xref}, {"yref", &R::yref}, {"zref", &R::zref},
    {"hio", &R::hio}, {"hioq", &R::hioq}, {"hioi", &R::hioi}, {"hiu", &R::hiu}, {"hiuq", &R::hiuq}, {"hiui", &R::hiui},
    {"dio", &R::dio}, {"dioq", &R::dioq}, {"dioi", &R::dioi}, {"diu", &R::diu}, {"diuq", &R::diuq}, {"diui", &R::diui},
    {"reservedD", &R::reservedD},
    {"aso", &R::aso}, {"asoq", &R::asoq}, {"asoi", &R::asoi}, {"asu", &R::asu}, {"asuq", &R::asuq}, {"asui", &R::asui},
    {"reservedS", &R::reservedS},
    {"amo", &R::amo}, {"amoq", &R::amoq}, {"amoi", &R::amoi}, {"amu", &R::amu}, {"amuq", &R::amuq}, {"amui", &R::amui},
    {"reservedM", &R::reservedM},
    {"wko", &R::wko}, {"wkoq", &R::wkoq}, {"wkoi", &R::wkoi}, {"wku", &R::wku}, {"wkuq", &R::wkuq}, {"wkui", &R::wkui},
    {"sigo", &R::sigo}, {"sigoq", &R::sigoq}, {"sigoi", &R::sigoi},
    {"sigu", &R::sigu}, {"siguq", &R::siguq}, {"sigui", &R::sigui},
};
// clang-format on

namespace {

struct Triple
{
    float R::*a; // distance of the first layer
    float R::*b; // second layer: absolute when stored, spacing from the first when edited
    float R::*c; // third layer: absolute when stored, spacing from the second when edited
};
constexpr Triple kTriples[] = {{&R::hio, &R::hioq, &R::hioi}, {&R::hiu, &R::hiuq, &R::hiui}};

constexpr float R::*kDistances[] = {&R::hio, &R::hioq, &R::hioi, &R::hiu, &R::hiuq, &R::hiui};
constexpr float R::*kCrackControl[] = {&R::wko,  &R::wkoq,  &R::wkoi,  &R::wku,  &R::wkuq,  &R::wkui,
                                       &R::sigo, &R::sigoq, &R::sigoi, &R::sigu, &R::siguq, &R::sigui};
constexpr float R::*kOtherDiameters[] = {&R::dioq, &R::dioi, &R::diu, &R::diuq, &R::diui, &R::reservedD};
constexpr float R::*kLimits[] = {&R::aso, &R::asoq, &R::asoi, &R::asu, &R::asuq, &R::asui, &R::reservedS,
                                 &R::amo, &R::amoq, &R::amoi, &R::amu, &R::amuq, &R::amui, &R::reservedM};

void clearNegative(R& r, float R::*field)
{
    if (r.*field < 0.0f || r.*field == kAlsoNotSet)
        r.*field = kNotSet;
}

void clearNotPositive(R& r, float R::*field)
{
    if (r.*field <= 0.0f || r.*field == kAlsoNotSet)
        r.*field = kNotSet;
}

void clearDistances(R& r)
{
    for (auto field : kDistances)
        r.*field = kNotSet;
}

} // namespace

tagZOB_QUAD_RIM getDefaultMerPara(bool forRemainingGroups)
{
    R r;
    std::memset(&r, 0, sizeof r);
    r.group = forRemainingGroups ? -1 : 0;
    r.type = forRemainingGroups ? 1 : 0;
    r.mode = 1;
    r.mark = kDesignRecordMark;
    r.rioq = r.riuq = 1.5707964f;
    r.rioi = r.riui = kNotSet;
    r.hio = r.hiu = 0.035f;
    r.hioq = r.hioi = r.hiuq = r.hiui = 0.045f;
    r.dio = r.dioq = r.dioi = vkd_a_get_min_bar_type(6);
    r.diu = r.diuq = r.diui = vkd_a_get_min_bar_type(5);
    r.reservedD = r.reservedS = kNotSet;
    for (auto field : {&R::aso, &R::asoq, &R::asoi, &R::asu, &R::asuq, &R::asui, &R::amo, &R::amoq, &R::amoi,
                       &R::amu, &R::amuq, &R::amui})
        r.*field = kNotSet;
    // reservedM stays zero, unlike the other reserved words.
    for (auto field : kCrackControl)
        r.*field = kNotSet;
    return r;
}

bool isPlaneSystem(int kindOfSystem)
{
    return kindOfSystem >= 10 && kindOfSystem <= 19;
}

void toEditedForm(tagZOB_QUAD_RIM& r, int kindOfSystem)
{
    if (isPlaneSystem(kindOfSystem)) {
        clearDistances(r);
        return;
    }
    for (const Triple& t : kTriples) {
        const float a = r.*t.a, b = r.*t.b, c = r.*t.c;
        r.*t.c = (b >= 0.0f && c >= b) ? c - b : kNotSet;
        r.*t.b = (a >= 0.0f && b >= a) ? b - a : kNotSet;
    }
}

void toStoredForm(tagZOB_QUAD_RIM& r, int kindOfSystem)
{
    if (isPlaneSystem(kindOfSystem)) {
        clearDistances(r);
        return;
    }
    for (const Triple& t : kTriples) {
        if (r.*t.a < 0.0f || r.*t.b < 0.0f) {
            r.*t.b = kNotSet;
            r.*t.c = kNotSet;
            continue;
        }
        r.*t.b = r.*t.a + r.*t.b;
        r.*t.c = (r.*t.b >= 0.0f && r.*t.c >= 0.0f) ? r.*t.b + r.*t.c : kNotSet;
    }
}

void toStoredForm(std::vector<DesignParameterRow>& rows, int kindOfSystem)
{
    for (DesignParameterRow& row : rows)
        toStoredForm(row.record, kindOfSystem);
}

void cleanRecord(tagZOB_QUAD_RIM& r)
{
    for (auto field : kCrackControl)
        clearNegative(r, field);
    for (auto field : kDistances)
        clearNegative(r, field);
    // dio alone is not compared with 99999.0: such a dio stays. Its other condition, an hio of
    // 99999.0, cannot hold any more, since the distances are clean by now.
    if (r.dio <= 0.0f)
        r.dio = kNotSet;
    for (auto field : kOtherDiameters)
        clearNotPositive(r, field);
    for (auto field : kLimits)
        clearNegative(r, field);
    if (r.group < 0)
        r.subId = 0;
}

bool recordsEqual(const tagZOB_QUAD_RIM& a, const tagZOB_QUAD_RIM& b)
{
    if (a.type != b.type || a.mode != b.mode || a.mark != b.mark)
        return false;
    return std::all_of(std::begin(kRealFields), std::end(kRealFields), [&](const RealField& f) {
        return f.member == &R::reservedD || f.member == &R::reservedS || a.*f.member == b.*f.member;
    });
}

} // namespace vkd::plib::design

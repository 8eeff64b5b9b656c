#pragma once
// The design parameter record of one group: 212 bytes at key pair 200, 6 of a project, read
// by the batch design program MERDAN. The layout is a wire format (53 little-endian words, no
// gaps): never reorder, resize or pad a field.
//
// Letters in the names: o upper side, u lower side; no further letter principal reinforcement,
// q cross reinforcement, i third layer. -99999.0 means not set in every real field.
// Units are the base units of the project (see docs/units.md); the bar diameters dio..diui
// hold bar values of the bar table instead.

#include <cstddef>
#include <cstdint>
#include <type_traits>

// The mark of the records of this family; old ones carry 0. Records with another mark belong to
// someone else.
constexpr int32_t kDesignRecordMark = 11;

struct tagZOB_QUAD_RIM
{
    int32_t group; // -1: all groups without a record of their own; >= 1000000: secondary group
    int32_t subId; // 0 in records of this family
    int32_t type;  // 0 no design, 1 two layers (orthogonal), 2 two layers, 3 three layers, 4 circular
    int32_t mode;
    int32_t mark;                           // 0 or 11 in records of this family
    float rio, rioq, rioi, riu, riuq, riui; // directions of the layers, radians
    float xref, yref, zref;                 // reference point of circular reinforcement
    float hio, hioq, hioi, hiu, hiuq, hiui; // distances from the surface (stored form)
    float dio, dioq, dioi, diu, diuq, diui; // bar values
    float reservedD;
    float aso, asoq, asoi, asu, asuq, asui; // minimum reinforcement
    float reservedS;
    float amo, amoq, amoi, amu, amuq, amui; // maximum reinforcement
    float reservedM;
    float wko, wkoq, wkoi, wku, wkuq, wkui;       // permissible crack widths
    float sigo, sigoq, sigoi, sigu, siguq, sigui; // permissible steel stresses
};

static_assert(sizeof(int32_t) == 4 && sizeof(float) == 4, "the record is made of four-byte words");
static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__,
              "the record is exchanged little-endian as it stands");
static_assert(std::is_standard_layout<tagZOB_QUAD_RIM>::value &&
                  std::is_trivially_copyable<tagZOB_QUAD_RIM>::value,
              "the record is copied byte for byte");
static_assert(sizeof(tagZOB_QUAD_RIM) == 212, "the record is 212 bytes");
static_assert(offsetof(tagZOB_QUAD_RIM, group) == 0);
static_assert(offsetof(tagZOB_QUAD_RIM, subId) == 4);
static_assert(offsetof(tagZOB_QUAD_RIM, type) == 8);
static_assert(offsetof(tagZOB_QUAD_RIM, mode) == 12);
static_assert(offsetof(tagZOB_QUAD_RIM, mark) == 16);
static_assert(offsetof(tagZOB_QUAD_RIM, rio) == 20);
static_assert(offsetof(tagZOB_QUAD_RIM, rioq) == 24);
static_assert(offsetof(tagZOB_QUAD_RIM, rioi) == 28);
static_assert(offsetof(tagZOB_QUAD_RIM, riu) == 32);
static_assert(offsetof(tagZOB_QUAD_RIM, riuq) == 36);
static_assert(offsetof(tagZOB_QUAD_RIM, riui) == 40);
static_assert(offsetof(tagZOB_QUAD_RIM, xref) == 44);
static_assert(offsetof(tagZOB_QUAD_RIM, yref) == 48);
static_assert(offsetof(tagZOB_QUAD_RIM, zref) == 52);
static_assert(offsetof(tagZOB_QUAD_RIM, hio) == 56);
static_assert(offsetof(tagZOB_QUAD_RIM, hioq) == 60);
static_assert(offsetof(tagZOB_QUAD_RIM, hioi) == 64);
static_assert(offsetof(tagZOB_QUAD_RIM, hiu) == 68);
static_assert(offsetof(tagZOB_QUAD_RIM, hiuq) == 72);
static_assert(offsetof(tagZOB_QUAD_RIM, hiui) == 76);
static_assert(offsetof(tagZOB_QUAD_RIM, dio) == 80);
static_assert(offsetof(tagZOB_QUAD_RIM, dioq) == 84);
static_assert(offsetof(tagZOB_QUAD_RIM, dioi) == 88);
static_assert(offsetof(tagZOB_QUAD_RIM, diu) == 92);
static_assert(offsetof(tagZOB_QUAD_RIM, diuq) == 96);
static_assert(offsetof(tagZOB_QUAD_RIM, diui) == 100);
static_assert(offsetof(tagZOB_QUAD_RIM, reservedD) == 104);
static_assert(offsetof(tagZOB_QUAD_RIM, aso) == 108);
static_assert(offsetof(tagZOB_QUAD_RIM, asoq) == 112);
static_assert(offsetof(tagZOB_QUAD_RIM, asoi) == 116);
static_assert(offsetof(tagZOB_QUAD_RIM, asu) == 120);
static_assert(offsetof(tagZOB_QUAD_RIM, asuq) == 124);
static_assert(offsetof(tagZOB_QUAD_RIM, asui) == 128);
static_assert(offsetof(tagZOB_QUAD_RIM, reservedS) == 132);
static_assert(offsetof(tagZOB_QUAD_RIM, amo) == 136);
static_assert(offsetof(tagZOB_QUAD_RIM, amoq) == 140);
static_assert(offsetof(tagZOB_QUAD_RIM, amoi) == 144);
static_assert(offsetof(tagZOB_QUAD_RIM, amu) == 148);
static_assert(offsetof(tagZOB_QUAD_RIM, amuq) == 152);
static_assert(offsetof(tagZOB_QUAD_RIM, amui) == 156);
static_assert(offsetof(tagZOB_QUAD_RIM, reservedM) == 160);
static_assert(offsetof(tagZOB_QUAD_RIM, wko) == 164);
static_assert(offsetof(tagZOB_QUAD_RIM, wkoq) == 168);
static_assert(offsetof(tagZOB_QUAD_RIM, wkoi) == 172);
static_assert(offsetof(tagZOB_QUAD_RIM, wku) == 176);
static_assert(offsetof(tagZOB_QUAD_RIM, wkuq) == 180);
static_assert(offsetof(tagZOB_QUAD_RIM, wkui) == 184);
static_assert(offsetof(tagZOB_QUAD_RIM, sigo) == 188);
static_assert(offsetof(tagZOB_QUAD_RIM, sigoq) == 192);
static_assert(offsetof(tagZOB_QUAD_RIM, sigoi) == 196);
static_assert(offsetof(tagZOB_QUAD_RIM, sigu) == 200);
static_assert(offsetof(tagZOB_QUAD_RIM, siguq) == 204);
static_assert(offsetof(tagZOB_QUAD_RIM, sigui) == 208);

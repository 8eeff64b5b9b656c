#pragma once
// The layout of the design parameter record as this test suite knows it, independent of the
// library's own tables: name, offset, integer or real.

#include <tagZOB_QUAD_RIM.h>

#include <QString>
#include <cstring>

struct FieldLayout
{
    const char* name;
    int offset;
    bool integer;
};

inline const FieldLayout kLayout[53] = {
    {"group", 0, true},        {"subId", 4, true},        {"type", 8, true},         {"mode", 12, true},
    {"mark", 16, true},        {"rio", 20, false},        {"rioq", 24, false},       {"rioi", 28, false},
    {"riu", 32, false},        {"riuq", 36, false},       {"riui", 40, false},       {"xref", 44, false},
    {"yref", 48, false},       {"zref", 52, false},       {"hio", 56, false},        {"hioq", 60, false},
    {"hioi", 64, false},       {"hiu", 68, false},        {"hiuq", 72, false},       {"hiui", 76, false},
    {"dio", 80, false},        {"dioq", 84, false},       {"dioi", 88, false},       {"diu", 92, false},
    {"diuq", 96, false},       {"diui", 100, false},      {"reservedD", 104, false}, {"aso", 108, false},
    {"asoq", 112, false},      {"asoi", 116, false},      {"asu", 120, false},       {"asuq", 124, false},
    {"asui", 128, false},      {"reservedS", 132, false}, {"amo", 136, false},       {"amoq", 140, false},
    {"amoi", 144, false},      {"amu", 148, false},       {"amuq", 152, false},      {"amui", 156, false},
    {"reservedM", 160, false}, {"wko", 164, false},       {"wkoq", 168, false},      {"wkoi", 172, false},
    {"wku", 176, false},       {"wkuq", 180, false},      {"wkui", 184, false},      {"sigo", 188, false},
    {"sigoq", 192, false},     {"sigoi", 196, false},     {"sigu", 200, false},      {"siguq", 204, false},
    {"sigui", 208, false},
};

inline int offsetOf(const QString& name)
{
    for (const FieldLayout& f : kLayout)
        if (name == QLatin1String(f.name))
            return f.offset;
    qFatal("no field %s", qPrintable(name));
    return -1;
}

inline float realAt(const tagZOB_QUAD_RIM& r, int offset)
{
    float v;
    std::memcpy(&v, reinterpret_cast<const char*>(&r) + offset, 4);
    return v;
}

inline void setRealAt(tagZOB_QUAD_RIM& r, int offset, float v)
{
    std::memcpy(reinterpret_cast<char*>(&r) + offset, &v, 4);
}

inline quint32 bitsOf(float v)
{
    quint32 b;
    std::memcpy(&b, &v, 4);
    return b;
}

inline float fromBits(quint32 b)
{
    float v;
    std::memcpy(&v, &b, 4);
    return v;
}

// A float as its value and its bits, so that comparisons are exact and failures readable.
inline QString exact(float v)
{
    return QStringLiteral("%1 (0x%2)").arg(double(v), 0, 'g', 9).arg(bitsOf(v), 8, 16, QLatin1Char('0'));
}

#include "vkd_dbo.h"

#include <vkd_q.h>

#include <QStringList>

#include <cmath>
#include <cstring>

namespace vkd::dbo {

namespace {

bool countRecords(int index, int key1, int* count)
{
    if (count) {
        *count = vkd_zob_count(index, key1, 1);
        return *count > 0;
    }
    int k1 = key1, k2 = 1;
    vkd_zob_kenq_ex(index, &k1, &k2, 0);
    return k1 == key1;
}

template <size_t N> void copyTitle(char (&target)[N], const QString& title)
{
    std::memset(target, 0, N);
    QByteArray utf8 = title.toUtf8().left(int(N) - 1);
    std::memcpy(target, utf8.constData(), size_t(utf8.size()));
}

} // namespace

template <typename Record> std::vector<Record> readAll(int index, int key1, int key2)
{
    std::vector<Record> out;
    Record r;
    for (int pos = 0;; ++pos) {
        int length = int(sizeof(Record));
        if (vkd_zob_get(index, key1, key2, &r, &length, pos) >= ZOB_END)
            break;
        if (length == int(sizeof(Record)))
            out.push_back(r);
    }
    return out;
}

template <typename Record> void writeAll(int index, int key1, const std::vector<Record>& records, int key2)
{
    vkd_zob_lock_ex(index, key1, key2);
    int length = 0;
    vkd_zob_put(index, key1, key2, nullptr, &length, 0);
    length = int(sizeof(Record));
    for (const Record& r : records)
        vkd_zob_put(index, key1, key2, &r, &length, 1);
    vkd_zob_free_ex(index, key1, key2);
}

template std::vector<NodeRecord> readAll<NodeRecord>(int, int, int);
template std::vector<ElementRecord> readAll<ElementRecord>(int, int, int);
template std::vector<GroupRecord> readAll<GroupRecord>(int, int, int);
template std::vector<LoadCaseRecord> readAll<LoadCaseRecord>(int, int, int);
template void writeAll<NodeRecord>(int, int, const std::vector<NodeRecord>&, int);
template void writeAll<ElementRecord>(int, int, const std::vector<ElementRecord>&, int);
template void writeAll<GroupRecord>(int, int, const std::vector<GroupRecord>&, int);
template void writeAll<LoadCaseRecord>(int, int, const std::vector<LoadCaseRecord>&, int);

int getKindOfSystem(int index, structKindSystem* details)
{
    structKindSystem k;
    int length = int(sizeof(k));
    if (vkd_zob_get(index, KeyKindOfSystem, 1, &k, &length, 0) >= ZOB_END || length < int(sizeof(int32_t)))
        k = structKindSystem();
    if (details)
        *details = k;
    return k.kind;
}

void setKindOfSystem(int index, int kind)
{
    structKindSystem k;
    k.kind = kind;
    k.dimension = (kind >= 10 && kind <= 19) ? 2 : 3;
    writeAll<structKindSystem>(index, KeyKindOfSystem, {k});
}
template void writeAll<structKindSystem>(int, int, const std::vector<structKindSystem>&, int);

bool hasNodes(int index, int* count) { return countRecords(index, KeyNodes, count); }
bool hasQuads(int index, int* count) { return countRecords(index, KeyQuads, count); }
bool hasBoundaries(int index, int* count) { return countRecords(index, KeyBoundaries, count); }
bool hasBeams(int index, int* count) { return countRecords(index, KeyBeams, count); }
bool hasTrus(int index, int* count) { return countRecords(index, KeyTrusses, count); }
bool hasBscts(int index, int* count) { return countRecords(index, KeyBeamSections, count); }
bool hasPoints(int index, int* count) { return countRecords(index, KeyPoints, count); }
bool hasLines(int index, int* count) { return countRecords(index, KeyLines, count); }
bool hasAreas(int index, int* count) { return countRecords(index, KeyAreas, count); }
bool hasAxes(int index, int* count) { return countRecords(index, KeyAxes, count); }
bool hasCables(int index, int* count) { return countRecords(index, KeyCables, count); }
bool hasSprings(int index, int* count) { return countRecords(index, KeySprings, count); }
bool hasBrics(int index, int* count) { return countRecords(index, KeyBricks, count); }
bool hasQuadTendons(int index, int* count) { return countRecords(index, KeyQuadTendons, count); }
bool hasBeamTendons(int index, int* count) { return countRecords(index, KeyBeamTendons, count); }
bool hasCrossSections(int index, int* count) { return countRecords(index, KeyCrossSections, count); }
bool hasGroups(int index, int* count)
{
    return countRecords(index, KeyGroups, count);
}
bool hasSgrp(int index, int* count)
{
    return countRecords(index, KeySecondaryGroups, count);
}

bool packSecondaryGroupName(const QString& name, int32_t* number)
{
    if (name.isEmpty() || name.size() > 4 || name != name.trimmed())
        return false;
    quint32 bits = 0;
    for (int i = 0; i < 4; ++i) {
        const ushort c = i < name.size() ? name.at(i).unicode() : ushort(' ');
        if (c < 0x20 || c > 0x7E)
            return false;
        bits |= quint32(c) << (8 * i);
    }
    if (number)
        *number = int32_t(bits);
    return true;
}

QString secondaryGroupName(int32_t number)
{
    const quint32 bits = quint32(number);
    QByteArray raw;
    for (int i = 0; i < 4; ++i) {
        const char c = char((bits >> (8 * i)) & 0xFF);
        if (c == 0)
            break;
        raw += c;
    }
    const QString trimmed = QString::fromLatin1(raw).trimmed();
    QString name;
    for (const QChar c : trimmed) {
        if (c.unicode() >= 0x20 && c.unicode() <= 0x7E)
            name += c;
        else
            name += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
    }
    return name;
}

QString cameraText(const Camera& camera, int form)
{
    if (form == CameraPersistentForm)
        return QStringList{QString::number(camera.azimuth, 'g', 10), QString::number(camera.elevation, 'g', 10),
                           QString::number(camera.zoom, 'g', 10), QString::number(camera.panX, 'g', 10),
                           QString::number(camera.panY, 'g', 10)}
            .join(QLatin1Char(' '));
    constexpr double degree = M_PI / 180.0;
    const double x = std::cos(camera.elevation * degree) * std::sin(camera.azimuth * degree);
    const double y = -std::cos(camera.elevation * degree) * std::cos(camera.azimuth * degree);
    const double z = std::sin(camera.elevation * degree);
    // Rounded, so that a camera turned by hand gives a short line; -0 would read oddly.
    auto number = [](double v) { return QString::number(std::abs(v) < 5e-5 ? 0.0 : v, 'g', 4); };
    return QStringLiteral("X %1 Y %2 Z %3").arg(number(x), number(y), number(z));
}

bool cameraFromText(const QString& text, Camera* camera)
{
    const QStringList parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (parts.size() != 5)
        return false;
    double values[5];
    for (int i = 0; i < 5; ++i) {
        bool ok = false;
        values[i] = parts[i].toDouble(&ok);
        if (!ok || !std::isfinite(values[i]))
            return false;
    }
    if (values[2] <= 0.0)
        return false;
    *camera = Camera{values[0], values[1], values[2], values[3], values[4]};
    return true;
}

namespace {
int& currentProjectIndex()
{
    static int index = 0;
    return index;
}
} // namespace

void setCurrentProject(int index)
{
    currentProjectIndex() = index;
}

int currentProject()
{
    return currentProjectIndex();
}

QString getAnimatorPerspektive(int /*view*/, int form)
{
    char text[256];
    int length = int(sizeof text);
    if (vkd_zob_get(currentProject(), KeyCamera, 1, text, &length, 0) >= ZOB_END)
        return QString();
    Camera camera;
    if (!cameraFromText(QString::fromUtf8(text, std::min(length, int(sizeof text))), &camera))
        return QString();
    return cameraText(camera, form);
}

void setAnimatorPerspektive(int /*view*/, const QString& persistent)
{
    Camera camera;
    if (!cameraFromText(persistent, &camera))
        return;
    const QString persistentText = cameraText(camera, CameraPersistentForm);
    // Reading a page hands its camera back; the same camera leaves the project file untouched.
    if (getAnimatorPerspektive(0, CameraPersistentForm) == persistentText)
        return;
    const QByteArray text = persistentText.toUtf8();
    const int index = currentProject();
    const int length = text.size();
    vkd_zob_lock_ex(index, KeyCamera, 1);
    vkd_zob_put(index, KeyCamera, 1, text.constData(), &length, 0);
    vkd_zob_free_ex(index, KeyCamera, 1);
}

QString groupTitle(const GroupRecord& g)
{
    return QString::fromUtf8(g.title, int(strnlen(g.title, sizeof g.title)));
}

GroupRecord makeGroup(int number, const QString& title)
{
    GroupRecord g;
    g.number = number;
    copyTitle(g.title, title);
    return g;
}

LoadCaseRecord makeLoadCase(int number, int kind, const QString& title)
{
    LoadCaseRecord l;
    l.number = number;
    l.kind = kind;
    copyTitle(l.title, title);
    return l;
}

} // namespace vkd::dbo

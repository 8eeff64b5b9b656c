#pragma once
// vkd_dbo: questions about the structural model stored in a project. The model lives in the
// record store of the project under the key pairs below (described in docs/store.md).

#include <QString>
#include <cstdint>
#include <vector>

namespace vkd::dbo {

// Key pairs of the model. key2 is 1 unless said otherwise.
enum ModelKey : int {
    KeyKindOfSystem = 1,
    KeyNodes = 10,
    KeyQuads = 20,
    KeyBoundaries = 21,
    KeyBeams = 22,
    KeyTrusses = 23,
    KeyCables = 24,
    KeySprings = 25,
    KeyBricks = 26,
    KeyPoints = 30,
    KeyLines = 31,
    KeyAreas = 32,
    KeyAxes = 33,
    KeyDesignLines = 35, // key2 is the number of the design line
    KeyQuadTendons = 40,
    KeyBeamTendons = 41,
    KeyBeamSections = 42,
    KeyCrossSections = 50,
    KeyGroups = 60,
    KeySecondaryGroups = 61,
    KeyLoadCases = 70,
    KeyCamera = 80,
};

#pragma pack(push, 4)
struct structKindSystem
{
    int32_t kind = 0;
    int32_t dimension = 3; // 2 for plane systems, 3 for spatial ones
};

struct NodeRecord
{
    int32_t number;
    float x, y, z;
};

// Quads, beams, trusses, cables, springs: element number, group and up to four nodes.
struct ElementRecord
{
    int32_t number;
    int32_t group;
    int32_t nodes[4];
};

struct GroupRecord
{
    int32_t number; // primary groups 0..999999; secondary groups: the packed name (see below)
    char title[32]; // UTF-8, zero-terminated
};

struct LoadCaseRecord
{
    int32_t number;
    int32_t kind; // 0 permanent, 1 variable, 2 accidental, 3 seismic, 4 design combination
    char title[40];
};
#pragma pack(pop)

static_assert(sizeof(structKindSystem) == 8);
static_assert(sizeof(NodeRecord) == 16);
static_assert(sizeof(ElementRecord) == 24);
static_assert(sizeof(GroupRecord) == 36);
static_assert(sizeof(LoadCaseRecord) == 48);

// The kind of the structural system (see docs/store.md); 0 when the project stores none.
int getKindOfSystem(int index, structKindSystem* details);
void setKindOfSystem(int index, int kind);

bool hasNodes(int index, int* count);
bool hasQuads(int index, int* count);
bool hasBoundaries(int index, int* count);
bool hasBeams(int index, int* count);
bool hasTrus(int index, int* count);
bool hasBscts(int index, int* count);
bool hasPoints(int index, int* count);
bool hasLines(int index, int* count);
bool hasAreas(int index, int* count);
bool hasAxes(int index, int* count);
bool hasCables(int index, int* count);
bool hasSprings(int index, int* count);
bool hasBrics(int index, int* count);
bool hasQuadTendons(int index, int* count);
bool hasBeamTendons(int index, int* count);
bool hasCrossSections(int index, int* count);
bool hasGroups(int index, int* count);
bool hasSgrp(int index, int* count);

// Secondary groups are named, not numbered: up to four ASCII characters, padded with blanks,
// first character in the lowest byte of the number. Blank padding puts every such number above
// the primary ones (1000000 and more).
constexpr int32_t kFirstSecondaryGroup = 1000000;
// The packed number of a name of one to four printable ASCII characters without leading or
// trailing blanks; false for any other name.
bool packSecondaryGroupName(const QString& name, int32_t* number);
// The name in a packed number: its bytes up to the first zero, trimmed. A byte outside
// printable ASCII shows as \xNN, so a damaged number still gives a readable text.
QString secondaryGroupName(int32_t number);

// All records of a key pair as plain structs; records of another size are skipped.
template <typename Record> std::vector<Record> readAll(int index, int key1, int key2 = 1);
// Replaces the records of a key pair.
template <typename Record> void writeAll(int index, int key1, const std::vector<Record>& records, int key2 = 1);

// The camera of the 3D preview: turned by azimuth about the global Z axis and raised by elevation
// (degrees), scaled by zoom and shifted on the screen by pan (fractions of the view's size).
struct Camera
{
    double azimuth = 30.0;
    double elevation = 25.0;
    double zoom = 1.0;
    double panX = 0.0;
    double panY = 0.0;
};

// Forms of the camera as text.
enum CameraForm : int {
    // The standpoint as GRAV reads it behind "STAN": the direction from the model towards the
    // eye, "X 0.5 Y -0.7 Z 0.5".
    CameraScriptForm = 1,
    // All five values, as the page keeps them: "30 25 1 0 0".
    CameraPersistentForm = 2,
};
QString cameraText(const Camera& camera, int form);
// Reads the persistent form; false, and camera unchanged, for text that is not one.
bool cameraFromText(const QString& text, Camera* camera);

// The project that the desktop works on: the camera calls below speak of it. The last project
// opened becomes current; 0 (the scratch database) when none is open.
void setCurrentProject(int index);
int currentProject();
// The stored camera of the current project in the given form; empty if it stores none. The
// first argument is the view, always 0.
QString getAnimatorPerspektive(int view, int form);
// Stores a camera given in the persistent form in the current project; text that is not one is
// not stored.
void setAnimatorPerspektive(int view, const QString& persistent);

QString groupTitle(const GroupRecord& g);
GroupRecord makeGroup(int number, const QString& title);
LoadCaseRecord makeLoadCase(int number, int kind, const QString& title);

} // namespace vkd::dbo

// A host linked against libvkd_p_fea.so alone, as the suite's programs use the radio group: it
// runs each scenario on a group of its own and prints what it sees (transcript.h).
#include "transcript.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // clang-format off
    const char* const scenarios[][2] = {
        {"load cases, no list", "lf:"},
        {"load cases, every id backwards with 0, 1, 2 and 10", "lf:10,9,8,7,6,5,4,3,2,1,0"},
        {"load cases, an id asked twice", "lf:5,4,5"},
        {"a second init changes nothing", "init init lf:4 echo use:null click:2"},
        {"two buttons: All, Manually, and Manually again", "init use:edit click:2 click:1 click:1"},
        {"two buttons not wired", "init click:2 select:1"},
        {"two buttons wired twice", "init use:edit use:edit click:2"},
        {"load cases, each button",
         "lf:3,4,5,6,7,8,9 use:edit click:1 click:3 click:4 click:5 click:6 click:7 click:8 click:9 click:1"},
        {"load cases with no widget", "lf:9 use:null click:9"},
        {"echo output: no signal reaches the host", "echo use:edit click:0 click:2 click:1"},
        {"a table view of Qt's own is disabled", "init use:qtable click:1 click:2"},
        {"the suite's table view is made read-only", "lf:3,5 use:table click:1 click:5"},
        {"echo output steers the suite's table view", "echo use:table click:0"},
        {"two buttons: ids without a button are ignored",
         "init select:2 select:3 select:-1 off:4 off:2 on:2"},
        {"load cases: All and ids not asked for have no button",
         "lf:2,3 select:3 select:2 select:4 off:2 off:10 off:5 off:1"},
        {"echo output: a load case id", "echo select:0 select:9 off:-1 off:0"},
        {"two buttons: reading",
         "init use:edit read:checked:m_All read:checked:m_Manually read:checked:m_All_RARE read:checked: "
         "read:checked:m_All:m_Manually read:checked:M_ALL read:selected:m_All read:Checked:m_All "
         "read:m_All read:"},
        {"load cases: reading",
         "lf:3,6 use:edit read:checked:m_All_RARE read:checked:m_All_F read:checked:m_All"}};
    // clang-format on
    for (const auto& [name, steps] : scenarios)
        std::printf("== %s\n%s", name, qUtf8Printable(radiogrouptest::transcript<VKD_P_RadioGroup>(steps)));
    return 0;
}

#include "core/windows/mdithsm.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = MainFrame;
using enum ControlKind;

const std::vector<ControlRow<Form>> kRows{
    {Menu, CONTROL(mdimnufile), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnuuscita), {.caption = 404, .parent = "mdimnufile"}},
    {Menu, CONTROL(mnuparametri), {.caption = 405}},
    {MenuEntry, CONTROL(mnuapriprogetto), {.caption = 406, .parent = "mnuparametri"}},
    {MenuEntry, CONTROL(mnuthisma), {.caption = 407, .parent = "mnuparametri"}},
    {MenuEntry, CONTROL(mnuinsmanuale), {.caption = 408, .parent = "mnuparametri"}},
    {Menu, CONTROL(mnuimpostazioni), {.caption = 409}},
    {MenuEntry, CONTROL(mnuopzioni), {.caption = 410, .parent = "mnuimpostazioni"}},
    {Menu, CONTROL(mnucalcola), {.caption = "&Utility"}},
    {MenuEntry, CONTROL(mnudelay), {.caption = 411, .parent = "mnucalcola"}},
    {MenuEntry, CONTROL(munindu), {.caption = 412, .parent = "mnucalcola"}},
    {MenuEntry, CONTROL(mnucapa), {.caption = 413, .parent = "mnucalcola"}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414, .parent = "mnucalcola"}},
    {Menu, CONTROL(mnuinfo), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfo"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfo"}},
};

}  // namespace

MainFrame::MainFrame(ProjectState& state) {
  window.name = "mdithsm";
  window.caption_design = "Zefirondo";
  DescribeWindow(*this, state, kRows);
}

}  // namespace zefirondo

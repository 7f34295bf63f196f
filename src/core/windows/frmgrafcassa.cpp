#include "core/windows/frmgrafcassa.h"

#include "core/windows/describe.h"

namespace zefirondo {
namespace {

using Form = BoxResponse;
using enum ControlKind;

const std::vector<ControlRow<Form>> kRows{
    {Label, CONTROL(lblnomegraf), {.caption = 269}},
    {Plot, CONTROL(pctgraf), {}},
    {Picture, CONTROL(pctvalori), {}},
    {Label, CONTROL(txtpos), {.visible = false}},
    {Label, CONTROL(lblfrequenza), {.caption = 254}},
    {Label, CONTROL(lbl3dB), {.caption = "-3dB @"}},
    {TextBox, CONTROL(txtF3dB), {.locked = true, .back = colour::kGrey}},
    {Label, CONTROL(lblhz), {.caption = "Hz"}},
    {Picture, CONTROL(Line1), {}},
    {Picture, CONTROL(Line2), {}},
    {Picture, CONTROL(Line3), {}},
    {Label, CONTROL(lblovl1), {.caption = "Trk1"}},
    {Button, CONTROL(cmdset1), {}},
    {Label, CONTROL(lblset1), {.caption = "Set"}},
    {CheckBox, CONTROL(chkonoff1), {.visible = false}},
    {Label, CONTROL(lblonoff1), {.caption = "On/Off"}},
    {Label, CONTROL(lblovl2), {.caption = "Trk2"}},
    {Button, CONTROL(cmdset2), {}},
    {Label, CONTROL(lblset2), {.caption = "Set"}},
    {CheckBox, CONTROL(chkonoff2), {.visible = false}},
    {Label, CONTROL(lblonoff2), {.caption = "On/Off"}},
    {Frame, CONTROL(fraleggenda), {.caption = 272}},
    {Label, CONTROL(lblcassa), {.caption = 273, .parent = "fraleggenda"}},
    {Label, CONTROL(lblfiltro), {.caption = 274, .parent = "fraleggenda"}},
    {Label, CONTROL(lblimport), {.caption = 275, .parent = "fraleggenda"}},
    {Label, CONTROL(lblsomma), {.caption = 276, .parent = "fraleggenda"}},
    {Button, CONTROL(cmdsomma), {.caption = 270, .enabled = false}},
    {Button, CONTROL(cmdcancella), {.caption = 271, .enabled = false}},
    {Frame, CONTROL(frmdbcal), {}},
    {Label, CONTROL(Label1), {.caption = 277, .parent = "frmdbcal"}},
    {Button, CONTROL(cmdmeno), {.caption = "-", .parent = "frmdbcal", .enabled = false}},
    {TextBox, CONTROL(txtdbcal), {.parent = "frmdbcal", .text = "0", .enabled = false}},
    {Label, CONTROL(lbldbcal), {.caption = "dB", .parent = "frmdbcal"}},
    {Button, CONTROL(cmdpiu), {.caption = "+", .parent = "frmdbcal", .enabled = false}},
    {Button, CONTROL(cmdcalibra), {.caption = 278, .parent = "frmdbcal", .enabled = false}},

    {Menu, CONTROL(mnufilegrafico), {.caption = "&File"}},
    {MenuEntry, CONTROL(mnuimportatracciato), {.caption = 445, .parent = "mnufilegrafico"}},
    {MenuEntry, CONTROL(mnusalvatracciatorosso), {.caption = 435, .parent = "mnufilegrafico", .enabled = false}},
    {MenuEntry, CONTROL(mnusalvatracciatoblu), {.caption = 436, .parent = "mnufilegrafico", .enabled = false}},
    {MenuEntry, CONTROL(mnuimportaOverlay), {.caption = 437, .parent = "mnufilegrafico"}},
    {MenuEntry, CONTROL(mnugrafstampa), {.caption = 446, .parent = "mnufilegrafico"}},
    {MenuEntry, CONTROL(mnuchiudigraf), {.caption = 447, .parent = "mnufilegrafico"}},
    {Menu, CONTROL(mnuvisualizza), {.caption = 428}},
    {MenuEntry, CONTROL(mnufase), {.caption = 429, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuspl), {.caption = 430, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnusplmax), {.caption = 433, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuescursione), {.caption = 431, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnuairspeed), {.caption = 432, .parent = "mnuvisualizza"}},
    {MenuEntry, CONTROL(mnufiltri), {.caption = 448}},
    {MenuEntry, CONTROL(mnucalcolatrice), {.caption = 414}},
    {Menu, CONTROL(mnuinfo2), {.caption = "&?"}},
    {MenuEntry, CONTROL(mnuguida), {.caption = 415, .parent = "mnuinfo2"}},
    {MenuEntry, CONTROL(mnuinformazioni), {.caption = 416, .parent = "mnuinfo2"}},
};

}  // namespace

BoxResponse::BoxResponse(ProjectState& state) {
  window.name = "frmgrafcassa";
  window.caption_design = 268;
  window.design_left = 5000;
  window.design_top = 2900;
  window.values = {{"OverlayFreq", &OverlayFreq}, {"OverlayDb", &OverlayDb}, {"CalibrationDb", &CalibrationDb}};
  DescribeWindow(*this, state, kRows);
  frequencies.Describe(window, state,
                       {"Label10", "Label20", "Label30", "Label40", "Label50", "Label100", "Label200", "Label300",
                        "Label400", "Label1k", "lbl2k", "lbl3k", "lbl4k", "lbl5k"});
  pctgraf.surface = &surface;
  pctgraf.readout = &txtpos;
  surface.twips_width = 8850;
  surface.twips_height = 6015;
}

}  // namespace zefirondo

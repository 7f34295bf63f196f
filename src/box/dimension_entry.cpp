#include "box/dimension_entry.h"

#include <cmath>

#include "box/geometry.h"
#include "core/focus.h"
#include "core/numbers.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

/// Inner dimensions in cm; a value that is not solved for stays 0.
struct Dimensions {
  double l = 0.0;
  double h = 0.0;
  double p = 0.0;
  double ld = 0.0;
};

/// What the designer typed, in cm, and the volume to keep, in cm³.
struct Typed {
  double l, h, p, volume;
};

bool IsTrapezoid(Program& program) { return program.windows.frmthsm.imgbox[1].visible; }

Typed ReadTyped(const Program& program) {
  const DimensionEntry& form = program.windows.frmdimensioni;
  return {ReadNumber(*form.txtLmanual.text), ReadNumber(*form.txtHmanual.text), ReadNumber(*form.txtPmanual.text),
          ReadNumber(program.state.txtboxvolume) * 1000};
}

void frmdimensioni_Load(Program& program) {
  const ProjectState& s = program.state;
  DimensionEntry& form = program.windows.frmdimensioni;
  form.ChangedL = form.ChangedH = form.ChangedP = false;
  if (s.txtl.empty() || s.txth.empty() || s.txtp.empty()) return;
  *form.txtLmanual.text = s.txtl;  // the first texts are no change
  *form.txtHmanual.text = s.txth;
  *form.txtPmanual.text = s.txtp;
}

void NoteChange(Program& program, bool& changed) {
  changed = true;
  program.state.DimEditing = true;
  MarkModified(program);
}

void txtLmanual_Change(Program& program) { NoteChange(program, program.windows.frmdimensioni.ChangedL); }
void txtHmanual_Change(Program& program) { NoteChange(program, program.windows.frmdimensioni.ChangedH); }
void txtPmanual_Change(Program& program) { NoteChange(program, program.windows.frmdimensioni.ChangedP); }

/// Which of the three texts differ from those of the sheet.
struct Differing {
  bool l, h, p;
};

Differing Compare(const Program& program) {
  const ProjectState& s = program.state;
  const DimensionEntry& form = program.windows.frmdimensioni;
  return {*form.txtLmanual.text != s.txtl, *form.txtHmanual.text != s.txth, *form.txtPmanual.text != s.txtp};
}

/// A dimension that follows from the others cannot be typed any more.
void LockDerived(Control& field) {
  field.locked = true;
  field.back = colour::kFace;
}

void txtLmanual_LostFocus(Program& program) {
  DimensionEntry& form = program.windows.frmdimensioni;
  const Differing differs = Compare(program);
  if (IsTrapezoid(program)) {
    if (differs.l) LockDerived(form.txtPmanual);
    return;
  }
  if (differs.l && differs.h) LockDerived(form.txtPmanual);
  if (differs.l && differs.p) LockDerived(form.txtHmanual);
}

void txtHmanual_LostFocus(Program& program) {
  DimensionEntry& form = program.windows.frmdimensioni;
  const Differing differs = Compare(program);
  if (differs.l && differs.h) LockDerived(form.txtPmanual);
  if (differs.p && differs.h) LockDerived(form.txtLmanual);
}

void txtPmanual_LostFocus(Program& program) {
  DimensionEntry& form = program.windows.frmdimensioni;
  const Differing differs = Compare(program);
  if (IsTrapezoid(program)) {
    if (differs.p) LockDerived(form.txtLmanual);
    return;
  }
  if (differs.p && differs.h) LockDerived(form.txtLmanual);
  if (differs.p && differs.l) LockDerived(form.txtHmanual);
}

/// One dimension of the prism was typed: the other two follow in the proportion of `cmbrappo`.
struct Proportion {
  double u;  // factor of the depth
  double w;  // factor of the height
};

enum class Step { Larger, Smaller, Same };

Step Compare(double typed, double old) {
  if (typed > old) return Step::Larger;
  return typed < old ? Step::Smaller : Step::Same;
}

Dimensions FollowWidth(const Typed& typed, double old, const Proportion& ratio) {
  const double m = SquareRoot(Divide(typed.volume, typed.l));
  switch (Compare(typed.l, old)) {
    case Step::Larger: return {typed.l, m / ratio.u, m * ratio.u};
    case Step::Smaller: return {typed.l, m * ratio.w, m / ratio.w};
    case Step::Same: break;
  }
  return {typed.l, 0, 0};
}

Dimensions FollowHeight(const Typed& typed, double old, const Proportion& ratio) {
  const double m = SquareRoot(Divide(typed.volume, typed.h));
  switch (Compare(typed.h, old)) {
    case Step::Larger: return {m / ratio.u, typed.h, m * ratio.u};
    case Step::Smaller: return {m * ratio.w, typed.h, m / ratio.w};
    case Step::Same: break;
  }
  return {0, typed.h, 0};
}

Dimensions FollowDepth(const Typed& typed, double old, const Proportion& ratio) {
  const double m = SquareRoot(Divide(typed.volume, typed.p));
  switch (Compare(typed.p, old)) {
    case Step::Larger: return {m * ratio.u, m / ratio.u, typed.p};
    case Step::Smaller: return {m / ratio.w, m * ratio.w, typed.p};
    case Step::Same: break;
  }
  return {0, 0, typed.p};
}

void StorePrism(ProjectState& s, const Dimensions& box) {
  s.WidthPrism = box.l;
  s.HeightPrism = box.h;
  s.DepthPrism = box.p;
}

void ShowPrism(Program& program, const Dimensions& box) {
  Sheet& sheet = program.windows.frmthsm;
  ShowDimension(program, sheet.txtl, box.l);
  ShowDimension(program, sheet.txth, box.h);
  ShowDimension(program, sheet.txtp, box.p);
  AssignText(program, sheet.cmbrappo, "Non standard");
}

/// One dimension alone was changed. A value equal to the old one changes no field, and the state takes the
/// working values, zeros among them, as wanted.
void SolvePrismByRatio(Program& program, const Typed& typed) {
  ProjectState& s = program.state;
  const DimensionEntry& form = program.windows.frmdimensioni;
  Proportion ratio{0.62, 1.62};
  if (s.cmbrappo == "1.25  1  0.8") ratio = {0.8, 1.25};
  if (s.cmbrappo == "Non standard") return;

  Dimensions box;
  Step step = Step::Same;
  if (form.ChangedL) {
    step = Compare(typed.l, s.WidthPrism);
    box = FollowWidth(typed, s.WidthPrism, ratio);
  } else if (form.ChangedH) {
    step = Compare(typed.h, s.HeightPrism);
    box = FollowHeight(typed, s.HeightPrism, ratio);
  } else if (form.ChangedP) {
    // Compared with the depth of the trapezoid even for the prism, as wanted.
    step = Compare(typed.p, s.DepthPrismTrapez);
    box = FollowDepth(typed, s.DepthPrismTrapez, ratio);
  } else {
    return;
  }
  if (step != Step::Same) ShowPrism(program, box);
  StorePrism(s, box);
}

void SolvePrism(Program& program) {
  const DimensionEntry& form = program.windows.frmdimensioni;
  const Typed typed = ReadTyped(program);
  Dimensions box{typed.l, typed.h, typed.p};
  if (form.ChangedL && form.ChangedH) {
    box.p = Divide(typed.volume, typed.l * typed.h);
  } else if (form.ChangedL && form.ChangedP) {
    box.h = Divide(typed.volume, typed.l * typed.p);
  } else if (form.ChangedH && form.ChangedP) {
    box.l = Divide(typed.volume, typed.h * typed.p);
  } else {
    SolvePrismByRatio(program, typed);
    return;
  }
  ShowPrism(program, box);
  StorePrism(program.state, box);
}

/// The rear side that belongs to a new depth, at the tilt as it stands. An unchanged depth gives 0, as wanted.
double RearSideAtDepth(const ProjectState& s, double depth, double tangent) {
  if (depth > s.DepthPrismTrapez) return s.WidthRearPrism - 2 * tangent * (depth - s.DepthPrismTrapez);
  if (depth < s.DepthPrismTrapez) return s.WidthRearPrism + 2 * tangent * (s.DepthPrismTrapez - depth);
  return 0.0;
}

/// Solves depth and rear side from the plan area; false when the tilt is too large for it.
bool SolvePlan(Program& program, double area, Dimensions& box) {
  box.p = ProfonditaTrapezio(program, area, box.l, ReadNumber(program.state.cmbgradi));
  if (box.p == -1) return false;
  box.ld = Divide(2 * area, box.p) - box.l;
  return true;
}

/// False when the window closes with nothing changed.
bool SolveTrapezoidBox(Program& program, Dimensions& box) {
  const ProjectState& s = program.state;
  const DimensionEntry& form = program.windows.frmdimensioni;
  const Typed typed = ReadTyped(program);
  const double tangent = std::tan(ReadNumber(s.cmbgradi) * kPi / 180);
  box = {s.WidthPrism, s.HeightPrism, s.DepthPrismTrapez, s.WidthRearPrism};
  if (form.ChangedL && form.ChangedH) {
    box.l = typed.l;
    box.h = typed.h;
    return SolvePlan(program, Divide(typed.volume, box.h), box);
  }
  if (form.ChangedH && form.ChangedP) {
    const double rear = RearSideAtDepth(s, typed.p, tangent);
    const double front = Divide(2 * typed.volume, typed.h * typed.p) - rear;
    const double difference = front - s.WidthPrism;
    box = {front - difference / 2, typed.h, typed.p, rear + difference / 2};
    return true;
  }
  if (form.ChangedL) {
    box.l = typed.l;
    return SolvePlan(program, Divide(typed.volume, s.HeightPrism), box);
  }
  if (form.ChangedH) {
    box.h = typed.h;
    return SolvePlan(program, Divide(typed.volume, box.h), box);
  }
  if (form.ChangedP) {
    const double rear = RearSideAtDepth(s, typed.p, tangent);
    box = {s.WidthPrism, Divide(2 * typed.volume, (rear + s.WidthPrism) * typed.p), typed.p, rear};
    return true;
  }
  return false;
}

void SolveTrapezoid(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  Dimensions box;
  if (!SolveTrapezoidBox(program, box)) return;
  ShowDimension(program, sheet.txtl, box.l);
  ShowDimension(program, sheet.txth, box.h);
  ShowDimension(program, sheet.txtp, box.p);
  ShowDimension(program, sheet.txtld, box.ld);
  AssignText(program, sheet.cmbrappo, "Non standard");
  s.WidthPrism = box.l;
  s.HeightPrism = box.h;
  s.DepthPrismTrapez = box.p;
  s.WidthRearPrism = box.ld;
}

void CloseEntry(Program& program) {
  DimensionEntry& form = program.windows.frmdimensioni;
  form.ChangedL = form.ChangedH = form.ChangedP = false;
  CloseWindow(program, form.window);
}

void cmdinserisci_Click(Program& program) {
  const bool trapezoid = IsTrapezoid(program);
  trapezoid ? SolveTrapezoid(program) : SolvePrism(program);
  CloseEntry(program);
  if (trapezoid) GiveFocus(program, program.windows.frmthsm.cmbgradi);
}

}  // namespace

void ConnectDimensionEntry(Program& program) {
  DimensionEntry& form = program.windows.frmdimensioni;
  form.window.on.load = frmdimensioni_Load;
  form.txtLmanual.on.change = txtLmanual_Change;
  form.txtHmanual.on.change = txtHmanual_Change;
  form.txtPmanual.on.change = txtPmanual_Change;
  form.txtLmanual.on.lost_focus = txtLmanual_LostFocus;
  form.txtHmanual.on.lost_focus = txtHmanual_LostFocus;
  form.txtPmanual.on.lost_focus = txtPmanual_LostFocus;
  form.cmdinserisci.on.click = cmdinserisci_Click;
  form.cmdannulla.on.click = CloseEntry;
  form.mnuchiudi.on.click = CloseEntry;
}

}  // namespace zefirondo

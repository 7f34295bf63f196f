#include "box/box_type.h"

#include "box/box_page.h"
#include "box/closed_box.h"
#include "box/vented_box.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

constexpr double kClosedBelow = 50;  // Hz of EBP

// The values that are compared; the same in both languages.
constexpr const char* kReflex = "Reflex";
constexpr const char* kClosed = "Closed";

void frmbox_Load(Program& program) {
  BoxTypeChoice& form = program.windows.frmbox;
  AssignNumber(program, form.txtebp, program.state.EBP);
  AssignText(program, form.cmbtipobox, program.state.EBP < kClosedBelow ? kClosed : kReflex);
}

/// The choice is applied on the way out, by whatever road. A project that was left or reset meanwhile has none.
void frmbox_Unload(Program& program) {
  if (!program.windows.frmthsm.window.open || program.state.EBP == 0.0) return;
  const std::string& type = *program.windows.frmbox.cmbtipobox.text;
  if (type == kClosed) DesignBox(program, false);
  if (type == kReflex) DesignBox(program, true);
}

void CloseChoice(Program& program) { CloseWindow(program, program.windows.frmbox.window); }

}  // namespace

void DesignBox(Program& program, bool vented) {
  ChiudiGrafici(program);
  CloseWindow(program, "frmairspeed");  // it is for the box type that was
  vented ? CalcolaReflex(program) : CalcolaChiusa(program);
  InsertBoxPage(program, vented ? "ref" : "chi");
}

void ConnectBoxType(Program& program) {
  BoxTypeChoice& form = program.windows.frmbox;
  form.window.on.load = frmbox_Load;
  form.window.on.unload = frmbox_Unload;
  form.cmdok.on.click = CloseChoice;
  form.mnuchiudi.on.click = CloseChoice;
}

}  // namespace zefirondo

#include "core/options.h"

#include "core/numbers.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

/// The wiring that a dialog's options stand for, in the words of the record.
template <class Form>
void ShowWiring(Form& form, const std::string& wiring) {
  // A wiring that is none of the three, from a file, sets no option.
  form.optbiamp.checked = wiring == "biamp";
  form.optparallelo.checked = wiring == "parallel";
  form.optserie.checked = wiring == "series";
}

template <class Form>
void TakeWiring(const Form& form, std::string& wiring) {
  if (form.optbiamp.checked) wiring = "biamp";
  if (form.optparallelo.checked) wiring = "parallel";
  if (form.optserie.checked) wiring = "series";
}

void frmopzioni_Load(Program& program) {
  const ProjectState& s = program.state;
  ProjectOptions& form = program.windows.frmopzioni;
  ShowWiring(form, s.WooferWiring);
  AssignNumber(program, form.txtrs, s.RsAmplifier);
  AssignNumber(program, form.txtspessore, s.WoodThickness);
}

void CloseOptions(Program& program) { CloseWindow(program, program.windows.frmopzioni.window); }

/// Each value is taken over before the next is looked at, and none is taken back, as wanted.
void frmopzioni_cmdok_Click(Program& program) {
  ProjectState& s = program.state;
  const ProjectOptions& form = program.windows.frmopzioni;
  TakeWiring(form, s.WooferWiring);
  if (form.txtrs.text->empty()) {
    program.ErrorMessage(program.Text(158));
    return;
  }
  s.RsAmplifier = ReadNumber(*form.txtrs.text);
  if (ReadNumber(*form.txtspessore.text) == 0.0) {
    program.ErrorMessage(program.Text(159));
    return;
  }
  s.WoodThickness = ToInteger(ReadNumber(*form.txtspessore.text));
  CloseOptions(program);
}

void frmwooferconn_Load(Program& program) { ShowWiring(program.windows.frmwooferconn, program.state.WooferWiring); }

bool frmwooferconn_CloseBox(Program& program) {
  program.ErrorMessage(program.Text(161));
  return false;
}

void CloseWiring(Program& program) { CloseWindow(program, program.windows.frmwooferconn.window); }

}  // namespace

void TakeWoofersWiring(Program& program) { TakeWiring(program.windows.frmwooferconn, program.state.WooferWiring); }

void ConnectOptions(Program& program) {
  ProjectOptions& options = program.windows.frmopzioni;
  options.window.on.load = frmopzioni_Load;
  options.cmdok.on.click = frmopzioni_cmdok_Click;
  options.mnuchiudi.on.click = CloseOptions;

  WooferWiringChoice& wiring = program.windows.frmwooferconn;
  wiring.window.on.load = frmwooferconn_Load;
  wiring.window.on.close_box = frmwooferconn_CloseBox;
  wiring.mnuchiudi.on.click = CloseWiring;
}

}  // namespace zefirondo

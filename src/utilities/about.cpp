#include "utilities/about.h"

#include <string>

#include "core/numbers.h"
#include "core/window_life.h"

#ifndef ZEFIRONDO_VERSION
#define ZEFIRONDO_VERSION "0.1.0"
#endif

namespace zefirondo {
namespace {

/// Two words with one blank between them: some texts of the table bring theirs, and some do not.
std::string Joined(const std::string& first, const std::string& second) {
  return std::string(TrimBlanks(first)) + " " + second;
}

void frmAbout_Load(Program& program) {
  About& form = program.windows.frmAbout;
  form.window.caption = Joined(program.Text(203), program.windows.mdithsm.window.caption);
  AssignText(program, form.lblVersion, Joined(program.Text(209), ZEFIRONDO_VERSION));
}

void CloseAbout(Program& program) { CloseWindow(program, program.windows.frmAbout.window); }

/// Starts the desktop's own information tool.
void StartSysInfo(Program& program) {
  const std::filesystem::path tool = program.platform.InformationTool();
  if (!tool.empty() && program.platform.StartTool(tool)) return;
  program.Message(MessageIcon::None, program.Text(197), program.windows.mdithsm.window.caption);
}

}  // namespace

void ConnectAbout(Program& program) {
  About& form = program.windows.frmAbout;
  form.window.on.load = frmAbout_Load;
  form.cmdok.on.click = CloseAbout;
  form.mnuchiudi.on.click = CloseAbout;
  form.cmdSysInfo.on.click = StartSysInfo;
}

}  // namespace zefirondo

#include "box/wiring.h"

#include "box/box_page.h"
#include "core/options.h"
#include "core/window_life.h"

namespace zefirondo {
namespace {

void Command1_Click(Program& program) {
  WooferWiringChoice& form = program.windows.frmwooferconn;
  TakeWoofersWiring(program);
  CloseWindow(program, form.window);
  SelNumDriver(program);
}

}  // namespace

void ConnectWiring(Program& program) { program.windows.frmwooferconn.Command1.on.click = Command1_Click; }

}  // namespace zefirondo

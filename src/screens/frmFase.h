// The screen of `frmFase`: the phase of the box, of its filter, and their sum.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildPhaseGraph(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

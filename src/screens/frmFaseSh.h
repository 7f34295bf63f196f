// The screen of `frmFaseSh`: two measured phase curves, and the buttons that compare them.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildPhaseOffsetTool(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

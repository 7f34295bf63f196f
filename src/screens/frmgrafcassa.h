// The screen of `frmgrafcassa`: the plot of the box response and the buttons below it.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildBoxResponse(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

// The screen of `frmgrafcassa`: the plot of the box response and the buttons below it.
#pragma once

class QWidget;

namespace zefirondo::screens {

class Binder;

void BuildBoxResponse(Binder& binder, QWidget* content);

}  // namespace zefirondo::screens

// The screen of `frmgrafico`: the measured impedance.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildImpedanceGraph(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

// The screen of `frmcalcolatrice`: the display and the keys of a desk calculator.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildCalculator(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

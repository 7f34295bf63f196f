// The screen of `frmairspeed`: the speed of the air in the ports against two limits.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildAirSpeedGraph(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

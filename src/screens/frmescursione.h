// The screen of `frmescursione`: the travel of the cone against its limit.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildExcursionGraph(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

// The screen of `frmspl`: the level at 1 W and 1 m, with two stored traces.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildSplGraph(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

// The screen of `frmsplMax`: the level at a power that the designer chooses.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildSplMaxGraph(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

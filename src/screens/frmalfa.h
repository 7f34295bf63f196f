// The screen of `frmalfa`: the classic alignments to choose from, beside the ratios of the box.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildAlignmentChart(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

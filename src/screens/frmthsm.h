// The screen of `frmthsm`: the tab strip and its pages.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildSheet(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

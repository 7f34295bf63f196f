// The screen of `frmthsm`: the tab strip and its pages.
#pragma once

class QWidget;

namespace zefirondo::screens {

class Binder;

void BuildSheet(Binder& binder, QWidget* content);

}  // namespace zefirondo::screens

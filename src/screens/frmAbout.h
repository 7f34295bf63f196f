// The screen of `frmAbout`: what the program says about itself.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

void BuildAbout(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

// The layout of a small window that is rows of fields and a row of buttons: it follows the window's description.
#pragma once

class QWidget;

namespace zefirondo {
struct Window;
}

namespace zefirondo::screens {

class Binder;

/// Lays all controls of a window out in their order: a field in a row with its words, a frame as a group, the
/// buttons side by side at the end. A label before a field is the words beside it, one behind a field is its
/// unit, any other is a line of text.
void BuildPlainForm(Binder& binder, Window& window, QWidget* content);

}  // namespace zefirondo::screens

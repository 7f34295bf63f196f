// The screen of `frmdimensioni`: three dimensions to type, and two buttons.
#pragma once

class QWidget;

namespace zefirondo::screens {

class Binder;

void BuildDimensionEntry(Binder& binder, QWidget* content);

}  // namespace zefirondo::screens

// The page of the sheet that shows a designed box: volumes and tuning, dimensions, ports.
#pragma once

class QVBoxLayout;
class QWidget;

namespace zefirondo::screens {

class Binder;

void BuildBoxPage(Binder& binder, QWidget* page, QVBoxLayout& column);

}  // namespace zefirondo::screens

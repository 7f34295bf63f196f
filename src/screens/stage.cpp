#include "screens/stage.h"

#include <QScopedValueRollback>

namespace zefirondo::screens {

bool Stage::Act(const std::function<void()>& act) {
  if (!Listening()) return false;
  if (read) read();
  {
    const QScopedValueRollback<bool> guard(acting_, true);
    act();
  }
  Refresh();
  return true;
}

void Stage::Refresh() {
  if (showing_ || !show) return;
  const QScopedValueRollback<bool> guard(showing_, true);
  show();
}

}  // namespace zefirondo::screens

#include "files/overlay_file.h"

#include "core/run_time_error.h"

namespace zefirondo {
namespace {

FileDialog OverlayDialog(const Program& program) {
  FileDialog dialog;
  dialog.filter = "Risposta in Frequenza (*.ovl)|*.ovl|";
  dialog.default_extension = ".ovl";
  dialog.folder = program.Folder(505);
  return dialog;
}

void ReadOverlay(const std::filesystem::path& path, double limit, const std::function<void(const Row&)>& use) {
  RowReader reader(path);
  reader.ReadLine();
  for (std::size_t rows = 0; !reader.AtEnd(); ++rows) {
    const Row row = reader.ReadRow();
    if (row.first >= limit) return;
    RequireRoom(rows);
    use(row);
  }
}

}  // namespace

bool ImportOverlay(Program& program, double limit, const std::function<void(const Row&)>& use) {
  try {
    const auto path = program.platform.ChooseFile(OverlayDialog(program));
    if (!path) return false;
    program.state.FilePath = path->string();
    ReadOverlay(*path, limit, use);
    return true;
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(135) + error.what());
    return false;
  }
}

}  // namespace zefirondo

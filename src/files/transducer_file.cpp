#include "files/transducer_file.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/shell.h"
#include "core/text.h"
#include "files/text_file.h"

namespace zefirondo {
namespace {

enum class Value {
  Text,    // as it stands
  Number,  // the text, with a first comma turned into a point
  Scaled,  // its reading times a scale
};

/// A line whose value goes to a field; the columns before it hold whatever they like.
struct DataLine {
  int line;
  std::size_t column;
  Control Sheet::*field;
  Value value;
  double scale = 1;
};

constexpr auto kDataLines = std::to_array<DataLine>({
    {2, 7, &Sheet::txtmarca, Value::Text},
    {3, 7, &Sheet::txtmodello, Value::Text},
    {4, 14, &Sheet::txtproduttore, Value::Text},
    {5, 12, &Sheet::txtdatifor, Value::Text},
    {6, 9, &Sheet::txtcommento, Value::Text},
    {10, 6, &Sheet::txtimpedenza, Value::Number},
    {12, 4, &Sheet::txtpotenza, Value::Number},
    {13, 5, &Sheet::txtsensibilita, Value::Number},
    {14, 4, &Sheet::txtrvc, Value::Number},
    {15, 4, &Sheet::txtle, Value::Scaled, 1000},  // H to mH
    {18, 4, &Sheet::txtbl, Value::Number},
    {19, 6, &Sheet::txtxmax, Value::Scaled, 1000},       // m to mm
    {29, 4, &Sheet::txtrendimento, Value::Scaled, 100},  // a fraction to percent
    {30, 4, &Sheet::txtd, Value::Scaled, 1000},
    {32, 7, &Sheet::cmbnumvc, Value::Text},
    {34, 4, &Sheet::txthg, Value::Scaled, 1000},
    {48, 7, &Sheet::txtspesbordo, Value::Scaled, 1000},
    {49, 7, &Sheet::txtprof, Value::Scaled, 1000},
    {50, 10, &Sheet::txtprofmag, Value::Scaled, 1000},
    {51, 8, &Sheet::txtlagmagne, Value::Scaled, 1000},
    {52, 8, &Sheet::txtforo, Value::Scaled, 1000},
    {53, 7, &Sheet::txtesterno, Value::Scaled, 1000},
    {54, 5, &Sheet::txtdiambob, Value::Scaled, 1000},
    {55, 6, &Sheet::txtvolume, Value::Scaled, 1000},
});

std::string FieldText(const DataLine& row, const std::string& line) {
  std::string value = FromCodePage(std::string_view(line).substr(std::min(row.column - 1, line.size())));
  if (row.value == Value::Text) return value;
  value = CommaToPoint(std::move(value));
  return row.value == Value::Number ? value : FormatNumber(ReadNumber(value) * row.scale);
}

void ReadTransducerFile(Program& program, const std::filesystem::path& path) {
  Sheet& sheet = program.windows.frmthsm;
  LineReader reader(path);
  int number = 0;
  for (const DataLine& row : kDataLines) {
    std::string line;
    while (number < row.line) {
      line = reader.ReadLine();
      ++number;
    }
    AssignText(program, sheet.*row.field, FieldText(row, line));
    if (row.field == &Sheet::txtmodello) ShowModelName(program);
  }
}

FileDialog DataDialog(const Program& program) {
  FileDialog dialog;
  dialog.filter = program.Text(474) + " (*.wdr)|*.wdr|";
  dialog.default_extension = ".wdr";
  dialog.folder = program.folder;
  return dialog;
}

}  // namespace

void ImportTransducerData(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  if (!s.ImpedanceMode) program.Message(MessageIcon::Warning, program.Text(185), program.Text(186));
  try {
    const auto path = program.platform.ChooseFile(DataDialog(program));
    if (!path) return;
    s.FilePath = path->string();
    ReadTransducerFile(program, *path);
  } catch (const RunTimeError& error) {
    sheet.prgbar.visible = false;
    program.ErrorMessage(program.Text(135) + error.what());
    return;
  }
  s.DataImported = true;
  sheet.mnuannulla.enabled = true;
  sheet.mnuimportadati.enabled = false;
  sheet.mnuimporta.enabled = true;
}

void ConnectTransducerFile(Program& program) { program.windows.frmthsm.mnuimportadati.on.click = ImportTransducerData; }

}  // namespace zefirondo

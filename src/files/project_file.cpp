#include "files/project_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/events.h"
#include "core/numbers.h"
#include "core/run_time_error.h"
#include "core/shell.h"
#include "core/text.h"
#include "core/window_life.h"
#include "files/text_file.h"

namespace zefirondo {
namespace {

constexpr std::string_view kClosedSection = "ClosedBox";
constexpr std::string_view kVentedSection = "VentedBox";
constexpr std::string_view kLineEnd = "\r\n";

/// A line that holds the text of a field. `when_empty` is written for an empty field.
struct FieldLine {
  std::string_view key;
  Control Sheet::*field;
  std::string_view when_empty = {};
  Control Sheet::*also = nullptr;          // filled from the same line
  double ProjectState::*number = nullptr;  // takes the reading of the line
};

constexpr auto kMakerLines = std::to_array<FieldLine>({
    {"Manufacturer=", &Sheet::txtproduttore},
    {"Brand=", &Sheet::txtmarca},
    {"Model=", &Sheet::txtmodello},
});

constexpr auto kRatingLines = std::to_array<FieldLine>({
    {"Pe=", &Sheet::txtpotenza, "0"},
    {"Znom=", &Sheet::txtimpedenza, "8"},
    {"Spl=", &Sheet::txtsensibilita, "0"},
    {"Hg=", &Sheet::txthg, "0"},
    {"Xmax=", &Sheet::txtxmax, "0"},
    {"no=", &Sheet::txtrendimento, "0"},
    {"Le=", &Sheet::txtle, "0"},
    {"numVC=", &Sheet::cmbnumvc, "1"},
});

constexpr auto kParameterLines = std::to_array<FieldLine>({
    {"Fl=", &Sheet::txtfl, "0"},
    {"Fh=", &Sheet::txtfh, "0"},
    {"Rvc=", &Sheet::txtrvc},
    {"Bw=", &Sheet::txtbw, "", nullptr, &ProjectState::Bw},
    {"Bl=", &Sheet::txtbl},
    {"D=", &Sheet::txtd},
    {"Sd=", &Sheet::txtsd},
    {"Lces=", &Sheet::txtlces},
    {"Cmes=", &Sheet::txtcmes},
    {"Res=", &Sheet::txtrmes},
    {"Qms=", &Sheet::txtqmesin, "", &Sheet::txtqmes},
    {"Qes=", &Sheet::txtqes},
    {"Qts=", &Sheet::txtqts, "", nullptr, &ProjectState::Qts},
    {"Cms=", &Sheet::txtcms},
    {"Mms=", &Sheet::txtmms},
    {"Rms=", &Sheet::txtrms},
    {"Cas=", &Sheet::txtcas},
    {"Mas=", &Sheet::txtmas},
    {"Ras=", &Sheet::txtras},
    {"Vas=", &Sheet::txtvas, "", nullptr, &ProjectState::Vas},
    {"Basket=", &Sheet::txtforo, "0"},
    {"Depth=", &Sheet::txtprof, "0"},
    {"Magnet=", &Sheet::txtlagmagne, "0"},
    {"MagDepth=", &Sheet::txtprofmag, "0"},
    {"Outer=", &Sheet::txtesterno, "0"},
    {"Thickness=", &Sheet::txtspesbordo, "0"},
    {"Vcd=", &Sheet::txtdiambob, "0"},
    {"Dvol=", &Sheet::txtvolume, "0"},
});

constexpr auto kAirLines = std::to_array<FieldLine>({
    {"Pressure=", &Sheet::txtpressione, "101325"},
    {"Velocity=", &Sheet::txtvelocita, "346.031"},
});

constexpr auto kShapeLines = std::to_array<FieldLine>({
    {"BoxShape=", &Sheet::cmbforma},
    {"Ratio=", &Sheet::cmbrappo},
    {"W=", &Sheet::txtl},
    {"H=", &Sheet::txth},
    {"D=", &Sheet::txtp},
});

constexpr auto kVolumeLines = std::to_array<FieldLine>({
    {"OccupiedVol=", &Sheet::txtingombro},
    {"DriverVol=", &Sheet::txtvoloccu},
    {"Fb=", &Sheet::txtfb},
    {"Freq.riso=", &Sheet::txtfreriso},
});

/// A line that holds a number of the record.
struct NumberLine {
  std::string_view key;
  double ProjectState::*number;
};

constexpr auto kPrismLines = std::to_array<NumberLine>({
    {"WidthPrism=", &ProjectState::WidthPrism},
    {"HeightPrism=", &ProjectState::HeightPrism},
    {"DepthPrism=", &ProjectState::DepthPrism},
});

constexpr auto kTrapezoidLines = std::to_array<NumberLine>({
    {"DepthPrismTrapez=", &ProjectState::DepthPrismTrapez},
    {"WidthRearPrism=", &ProjectState::WidthRearPrism},
});

enum class Section { None, Closed, Vented };

// ---- writing ----

/// What the two ways of saving write differently; the differences are wanted.
struct Dialect {
  std::string no_temperature;  // the line of an empty temperature
  std::string closed_of_two;   // the section's first line while both box tabs stand
  std::string vented_of_two;
};

class ProjectWriter {
 public:
  explicit ProjectWriter(Program& program)
      : program_(program), state_(program.state), sheet_(program.windows.frmthsm) {}

  std::string Write(const Dialect& dialect) {
    WriteHead(dialect);
    WriteSection(dialect);
    WriteTail();
    return ToCodePage(text_);
  }

 private:
  void Line(std::string_view key, std::string_view value = {}) { text_.append(key).append(value).append(kLineEnd); }

  void Number(std::string_view key, double value) { Line(key, FormatNumberFull(value)); }

  void Field(const FieldLine& line) {
    const std::string& text = *(sheet_.*line.field).text;
    Line(line.key, text.empty() ? line.when_empty : std::string_view(text));
  }

  template <class Lines>
  void Fields(const Lines& lines) {
    for (const FieldLine& line : lines) Field(line);
  }

  template <class Lines>
  void Numbers(const Lines& lines) {
    for (const NumberLine& line : lines) Number(line.key, state_.*line.number);
  }

  void WriteHead(const Dialect& dialect) {
    Fields(kMakerLines);
    Field({"ProvidedBy=", &Sheet::txtdatifor});
    const std::string today = DateText(program_.platform.Today());
    Line("DateAdded=", today);  // not the date that the sheet shows, as wanted
    Line("DateModified=", today);
    Line("Comment=", CleanLineBreaks(state_.txtcommento));
    Fields(kRatingLines);
    Line("Zmax=", state_.Zmax != 0.0 ? FormatNumberFull(state_.Zmax) : state_.txtzmax);
    Field({"Zmin=", &Sheet::txtzmin, "0"});
    Line("Fs=", state_.Fs != 0.0 ? FormatNumberFull(state_.Fs) : state_.txtfs);
    Fields(kParameterLines);
    if (state_.txttemperatura.empty()) {
      Line(dialect.no_temperature);
    } else {
      Line("Temperature=", state_.txttemperatura);
    }
    Fields(kAirLines);
  }

  [[nodiscard]] bool BothTabs() const { return sheet_.tabs.size() == 6; }

  [[nodiscard]] Section ChosenSection() const {
    std::string_view key;
    if (sheet_.tabs.size() == 5) key = sheet_.tabs[3].key;
    if (BothTabs()) key = sheet_.selected_tab;
    if (key == "chi") return Section::Closed;
    return key == "ref" ? Section::Vented : Section::None;
  }

  void WriteSection(const Dialect& dialect) {
    const Section section = ChosenSection();
    if (section == Section::None) return;  // a file without a box cannot be read back, as wanted
    if (section == Section::Closed) {
      Line(BothTabs() ? std::string_view(dialect.closed_of_two) : kClosedSection);
      Line("Alignment=", state_.cmballi);
    } else {
      Line(BothTabs() ? std::string_view(dialect.vented_of_two) : kVentedSection);
      Line("Ql=", state_.cmbql);
    }
    Fields(kShapeLines);
    if (!state_.txtld.empty()) Line("Ld=", state_.txtld);
    Line("BoxVolume=", state_.txtboxvolume);
    if (section == Section::Vented) WritePorts();
    Line("DriversNum=", state_.cmbnumdriver);
    Line("NetVolume=", state_.txtvolnetto);
    Fields(kVolumeLines);
  }

  void WritePorts() {
    Line("VentNum=", state_.cmbnumcond);
    Line("MeasuredVent=", state_.txtlungmis);
    Line("ApparentVent=", state_.txtlungappa);
    Line("DiamOSideA=", state_.cmbDoa);
    Line("SectArea1Vent=", state_.txtareasez);
    Line("SectAreaTot=", state_.txtseztot);
    Line("MinAreaSect=", state_.txtminsv);
    const bool rectangular = BothTabs() ? !state_.txtb.empty() : sheet_.imgforma[1].visible;
    if (rectangular) Line(program_.Text(200) + "=", state_.txtb);  // the key is in the system's language, as wanted
  }

  void WriteTail() {
    Line("ApparentVol=", state_.txtvolappa);
    Line("Kint=", state_.cmbk);
    Number("Kinternal=", state_.Kinternal);
    Number("roo=", state_.roo);
    Number("EBP=", state_.EBP);
    Number("Vd=", ReadNumber(state_.txtxmax) * ReadNumber(state_.txtsd) * state_.DriversNum);
    Number("SPLmax=", state_.SPLmax);
    Number("USPL=", state_.USPL);
    if (state_.F3v != 0.0) Number("Fb-3dB=", state_.F3v);
    Numbers(kPrismLines);
    if (state_.cmbforma == program_.Text(503)) {
      Numbers(kTrapezoidLines);
      Line("TiltDegrees=", state_.cmbgradi);
    }
    Line("WooferWiring=", state_.WooferWiring);
    Number("RsAmplifier=", state_.RsAmplifier);
    Number("WoodThickness=", state_.WoodThickness);
  }

  Program& program_;
  const ProjectState& state_;
  const Sheet& sheet_;
  std::string text_;
};

// ---- reading ----

class ProjectReader {
 public:
  ProjectReader(Program& program, const std::string& path)
      : program_(program), state_(program.state), sheet_(program.windows.frmthsm), file_(path) {}

  void Read() {
    ReadHead();
    const Section section = ReadSection();
    ReadTail(section);
  }

 private:
  /// What stands behind the key of a line; nothing but the key's length is looked at.
  static std::string Value(std::string_view line, std::string_view key) {
    return FromCodePage(line.substr(std::min(key.size(), line.size())));
  }

  std::string Next(std::string_view key) { return Value(file_.ReadLine(), key); }

  void Field(const FieldLine& line) {
    const std::string value = Next(line.key);
    if (line.also != nullptr) AssignText(program_, sheet_.*line.also, value);
    AssignText(program_, sheet_.*line.field, value);
    if (line.number != nullptr) state_.*line.number = ReadNumber(value);
  }

  template <class Lines>
  void Fields(const Lines& lines) {
    for (const FieldLine& line : lines) Field(line);
  }

  template <class Lines>
  void Numbers(const Lines& lines) {
    for (const NumberLine& line : lines) state_.*line.number = ReadNumber(Next(line.key));
  }

  void ReadHead() {
    Fields(kMakerLines);
    ShowModelName(program_);
    Field({"ProvidedBy=", &Sheet::txtdatifor});
    ReadDate();
    file_.ReadLine();  // DateModified
    Field({"Comment=", &Sheet::txtcommento});
    Fields(kRatingLines);
    Field({"Zmax=", &Sheet::txtzmax});
    Field({"Zmin=", &Sheet::txtzmin});
    Field({"Fs=", &Sheet::txtfs, "", &Sheet::txtfstrasdu});
    Fields(kParameterLines);
    Field({"Temperature=", &Sheet::txttemperatura});
    Fields(kAirLines);
    state_.AirChanged = false;
  }

  /// The three parts of "DateAdded=dd/mm/yyyy".
  void ReadDate() {
    const std::string line = file_.ReadLine();
    const auto part = [&](std::size_t column, std::size_t length) {
      return column < line.size() ? FromCodePage(std::string_view(line).substr(column, length)) : std::string();
    };
    AssignText(program_, sheet_.txtdatacreaz, part(10, 2) + "/" + part(13, 2) + "/" + part(16, 4));
  }

  Section ReadSection() {
    state_.BoxSection = FromCodePage(file_.ReadLine());
    Section section = Section::None;
    if (state_.BoxSection == kClosedSection) {
      section = Section::Closed;
      sheet_.InsertBoxTab("chi", program_.Text(210));
      Field({"Alignment=", &Sheet::cmballi});
    } else if (state_.BoxSection == kVentedSection) {
      section = Section::Vented;
      sheet_.InsertBoxTab("ref", program_.Text(211));
      Field({"Ql=", &Sheet::cmbql, "", nullptr, &ProjectState::Ql});
    }
    Fields(kShapeLines);
    ReadBoxVolume();
    std::string drivers = section == Section::Vented ? ReadPorts() : file_.ReadLine();
    AssignText(program_, sheet_.cmbnumdriver, Value(drivers, "DriversNum="));
    state_.DriversNum = ToInteger(ReadNumber(state_.cmbnumdriver));
    Field({"NetVolume=", &Sheet::txtvolnetto});
    const double net = ReadNumber(state_.txtvolnetto) / 1000;
    if (section == Section::Vented) state_.Vb = net;
    if (section == Section::Closed) state_.Vc = net;
    Fields(kVolumeLines);
    return section;
  }

  void ReadBoxVolume() {
    std::string line = file_.ReadLine();
    if (line.starts_with("Ld")) {
      AssignText(program_, sheet_.txtld, Value(line, "Ld="));
      line = file_.ReadLine();
    }
    AssignText(program_, sheet_.txtboxvolume, Value(line, "BoxVolume="));
  }

  /// Reads the port lines, and gives the line behind them.
  std::string ReadPorts() {
    Field({"VentNum=", &Sheet::cmbnumcond});
    state_.VentNum = ToInteger(ReadNumber(state_.cmbnumcond));
    Field({"MeasuredVent=", &Sheet::txtlungmis});
    Field({"ApparentVent=", &Sheet::txtlungappa});
    Field({"DiamOSideA=", &Sheet::cmbDoa});
    Field({"SectArea1Vent=", &Sheet::txtareasez});
    state_.SectArea1Vent = ReadNumber(state_.txtareasez) / 10000;
    Field({"SectAreaTot=", &Sheet::txtseztot});
    Field({"MinAreaSect=", &Sheet::txtminsv});
    const bool too_small = ReadNumber(state_.txtminsv) > ReadNumber(state_.txtareasez);
    sheet_.txtareasez.fore = too_small ? colour::kRed : colour::kText;
    std::string line = file_.ReadLine();
    if (FromCodePage(line.substr(0, 6)) != program_.Text(200)) return line;
    AssignText(program_, sheet_.txtb, Value(line, "Side b="));
    return file_.ReadLine();
  }

  void ReadTail(Section section) {
    Field({"ApparentVol=", &Sheet::txtvolappa});
    const double apparent = ReadNumber(state_.txtvolappa) / 1000;
    if (section == Section::Vented) state_.VbaVented = apparent;
    if (section == Section::Closed) state_.VbaClosed = apparent;
    Field({"Kint=", &Sheet::cmbk});
    state_.Kinternal = ReadNumber(Next("Kinternal="));
    file_.ReadLine();  // roo: the air of the fields rules
    state_.EBP = ReadNumber(Next("EBP="));
    for (int skipped = 0; skipped < 3; ++skipped) file_.ReadLine();  // Vd, SPLmax, USPL
    ReadPrism();
    state_.WooferWiring = Next("WooferWiring=");
    state_.RsAmplifier = ReadNumber(Next("RsAmplifier="));
    state_.WoodThickness = ToInteger(ReadNumber(Next("WoodThickness=")));
  }

  void ReadPrism() {
    std::string line = file_.ReadLine();
    state_.F3v = 0.0;
    if (line.starts_with("Fb-3dB")) {
      state_.F3v = ReadNumber(Value(line, "Fb-3dB="));
      line = file_.ReadLine();
    }
    state_.WidthPrism = ReadNumber(Value(line, "WidthPrism="));
    state_.HeightPrism = ReadNumber(Next("HeightPrism="));
    state_.DepthPrism = ReadNumber(Next("DepthPrism="));
    if (state_.cmbforma != program_.Text(503)) return;
    Numbers(kTrapezoidLines);
    Field({"TiltDegrees=", &Sheet::cmbgradi});
  }

  Program& program_;
  ProjectState& state_;
  Sheet& sheet_;
  LineReader file_;
};

// ---- the operations ----

FileDialog ProjectDialog(const Program& program, bool save) {
  FileDialog dialog;
  dialog.save = save;
  dialog.filter = program.Text(466) + " (*.pro)|*.pro" + (save ? "" : "|");
  dialog.default_extension = ".pro";
  dialog.folder = program.Folder(467);
  return dialog;
}

void SelectBoxTab(Program& program) {
  const std::string section = program.state.BoxSection;
  if (section == kClosedSection) SelectTab(program, "chi");
  if (section == kVentedSection) SelectTab(program, "ref");
}

void FinishOpening(Program& program) {
  ProjectState& s = program.state;
  Sheet& sheet = program.windows.frmthsm;
  sheet.mnuimporta.enabled = sheet.mnuimportadati.enabled = false;
  sheet.mnustampa.enabled = true;
  s.DimEditing = s.DesignChanged = false;
  sheet.cmdcalcola.enabled = false;
  s.ProjectModified = false;
  sheet.mnusalvadir.enabled = false;
}

void Save(Program& program, const std::string& path, const Dialect& dialect) {
  ProjectState& s = program.state;
  try {
    WriteWholeFile(path, ProjectWriter(program).Write(dialect));
  } catch (const RunTimeError& error) {
    s.LastSaveError = error.number();
    program.ErrorMessage(program.Text(183) + std::to_string(error.number()));
    program.windows.frmthsm.mnuannulla.enabled = true;
    return;
  }
  s.ProjectModified = s.DesignChanged = s.AirChanged = false;
  s.ProjectSaved = true;
  program.windows.frmthsm.mnusalvadir.enabled = false;
}

/// The path chosen in the save dialog; a cancel leaves its number behind.
std::optional<std::string> AskSavePath(Program& program) {
  const auto path = program.platform.ChooseFile(ProjectDialog(program, true));
  if (path) return path->string();
  program.state.LastSaveError = static_cast<int>(ErrorNumber::DialogCancelled);
  return std::nullopt;
}

}  // namespace

void OpenProject(Program& program) {
  ProjectState& s = program.state;
  if (program.command_line.empty()) {
    const auto path = program.platform.ChooseFile(ProjectDialog(program, false));
    if (!path) return;
    s.FilePath = s.ProjectPath = path->string();
    s.ProjectTitle = path->filename().string();
  } else {
    s.FilePath = program.command_line;  // and `ProjectPath` stays: "Save Project" has no path to write to, as wanted
  }
  s.ProjectLoaded = s.HasProjectPath = true;
  OpenWindow(program, program.windows.frmthsm.window);
  SelectTab(program, "gen");
  try {
    ProjectReader(program, s.FilePath).Read();
    SelectBoxTab(program);
    FinishOpening(program);
  } catch (const RunTimeError& error) {
    program.ErrorMessage(program.Text(135) + std::to_string(error.number()));
  }
}

void SaveProject(Program& program) {
  ProjectState& s = program.state;
  if (!s.HasProjectPath) {
    const std::optional<std::string> path = AskSavePath(program);
    if (!path) return;
    s.ProjectPath = *path;
    s.HasProjectPath = true;
  }
  Save(program, s.ProjectPath, {"Temperature=25", std::string(kVentedSection), program.Text(211)});
}

void SaveProjectAs(Program& program) {
  const std::optional<std::string> path = AskSavePath(program);
  if (!path) return;
  program.state.FilePath = *path;
  Save(program, program.state.FilePath, {"Temperaturae25", std::string(kClosedSection), std::string(kVentedSection)});
}

void ConnectProjectFile(Program& program) {
  program.windows.mdithsm.mnuapriprogetto.on.click = OpenProject;
  program.windows.frmthsm.mnusalvadir.on.click = SaveProject;
  program.windows.frmthsm.mnusalva.on.click = SaveProjectAs;
}

}  // namespace zefirondo

// A project made up for the tests: every field of the sheet holds a text of its own, and the lines that stand for
// them in a file are written out by hand.
#pragma once

#include <string>
#include <vector>

#include "support/desk.h"

namespace zefirondo {

using Lines = std::vector<std::string>;

/// Lines as they stand in a file.
inline std::string FileOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

inline Lines operator+(Lines left, const Lines& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

/// A sheet as it stands after "New Project with Entered Parameters", with every field filled, past all events.
inline void FillSample(Desk& desk) {
  desk.BeginParameters();
  ProjectState& s = desk.state;
  s.txtproduttore = "Officina Aria";
  s.txtmarca = "Brezza";
  s.txtmodello = "Maestrale 8";
  s.txtdatifor = "the bench";
  s.txtdatacreaz = "01/02/2003";  // no save keeps it
  s.txtcommento = "first\r\nsecond";
  s.txtpotenza = "100";
  s.txtimpedenza = "8";
  s.txtsensibilita = "90.5";
  s.txthg = "6";
  s.txtxmax = "5";
  s.txtrendimento = "0.7";
  s.txtle = "0.55";
  s.cmbnumvc = "2";
  s.txtzmax = "52.36";
  s.txtzmin = "6.1";
  s.txtfs = "35";
  s.txtfl = "28.5";
  s.txtfh = "43.2";
  s.txtrvc = "5.6";
  s.txtbw = "14.7";
  s.txtbl = "9.5";
  s.txtd = "210";
  s.txtsd = "0.0346";
  s.txtlces = "21.5";
  s.txtcmes = "421.05";
  s.txtrmes = "46.7";
  s.txtqmes = "4.2";
  s.txtqmesin = "4.2";
  s.txtqes = "0.45";
  s.txtqts = "0.413";
  s.txtcms = "544E-06";
  s.txtmms = "0.038";
  s.txtrms = "1.98";
  s.txtcas = "0.65E-06";
  s.txtmas = "31.7";
  s.txtras = "1660.1";
  s.txtvas = "0.0912";
  s.txtforo = "230";
  s.txtprof = "110";
  s.txtlagmagne = "140";
  s.txtprofmag = "50";
  s.txtesterno = "260";
  s.txtspesbordo = "8";
  s.txtdiambob = "38";
  s.txtvolume = "2.31";
  s.txttemperatura = "21.5";
  s.txtpressione = "100500";
  s.txtvelocita = "343.9";
  s.cmballi = "0.8312";
  s.cmbql = "10";
  s.cmbrappo = "1.25  1  0.8";
  s.txtl = "30.1";
  s.txth = "37.6";
  s.txtp = "24.2";
  s.txtld = "";
  s.txtboxvolume = "27.4";
  s.cmbnumcond = "2";
  s.txtlungmis = "12.3";
  s.txtlungappa = "18.9";
  s.cmbDoa = "7.5";
  s.txtb = "";
  s.txtareasez = "44.17";
  s.txtseztot = "88.35";
  s.txtminsv = "40.2";
  s.cmbnumdriver = "2";
  s.txtvolnetto = "24.8";
  s.txtingombro = "0.5";
  s.txtvoloccu = "4.62";
  s.txtfb = "36.7";
  s.txtfstrasdu = "35";
  s.txtfreriso = "35.8";
  s.txtvolappa = "27.3";
  s.cmbk = "1.27(10%)";
  s.Kinternal = 1.27272727;
  s.roo = 1.18415;
  s.EBP = 77.77777777777778;
  s.DriversNum = 2;
  s.SPLmax = 0;
  s.USPL = 0;
  s.F3v = 28.25;
  s.WidthPrism = 30.125;
  s.HeightPrism = 37.5;
  s.DepthPrism = 0.75;
  s.DepthPrismTrapez = 26.5;
  s.WidthRearPrism = 18.25;
  s.cmbgradi = "7.5";
  s.WooferWiring = "series";
  s.RsAmplifier = 0.25;
  s.WoodThickness = 22;
}

inline const Lines kHeadLines{
    "Manufacturer=Officina Aria",
    "Brand=Brezza",
    "Model=Maestrale 8",
    "ProvidedBy=the bench",
    "DateAdded=20/11/2026",
    "DateModified=20/11/2026",
    "Comment=first  second",
    "Pe=100",
    "Znom=8",
    "Spl=90.5",
    "Hg=6",
    "Xmax=5",
    "no=0.7",
    "Le=0.55",
    "numVC=2",
    "Zmax=52.36",
    "Zmin=6.1",
    "Fs=35",
    "Fl=28.5",
    "Fh=43.2",
    "Rvc=5.6",
    "Bw=14.7",
    "Bl=9.5",
    "D=210",
    "Sd=0.0346",
    "Lces=21.5",
    "Cmes=421.05",
    "Res=46.7",
    "Qms=4.2",
    "Qes=0.45",
    "Qts=0.413",
    "Cms=544E-06",
    "Mms=0.038",
    "Rms=1.98",
    "Cas=0.65E-06",
    "Mas=31.7",
    "Ras=1660.1",
    "Vas=0.0912",
    "Basket=230",
    "Depth=110",
    "Magnet=140",
    "MagDepth=50",
    "Outer=260",
    "Thickness=8",
    "Vcd=38",
    "Dvol=2.31",
    "Temperature=21.5",
    "Pressure=100500",
    "Velocity=343.9",
};

inline Lines ShapeLines(const std::string& shape) {
  return {"BoxShape=" + shape, "Ratio=1.25  1  0.8", "W=30.1", "H=37.6", "D=24.2"};
}

inline const Lines kPortLines{"VentNum=2",           "MeasuredVent=12.3", "ApparentVent=18.9", "DiamOSideA=7.5",
                              "SectArea1Vent=44.17", "SectAreaTot=88.35", "MinAreaSect=40.2"};

inline const Lines kVolumeLines{"DriversNum=2",   "NetVolume=24.8", "OccupiedVol=0.5",
                                "DriverVol=4.62", "Fb=36.7",        "Freq.riso=35.8"};

/// Vd is 5 × 0.0346 × 2 = 0.346.
inline const Lines kTailLines{
    "ApparentVol=27.3", "Kint=1.27(10%)", "Kinternal=1.27272727", "roo=1.18415", "EBP=77.7777777777778", "Vd=0.346",
    "SPLmax=0",         "USPL=0"};

inline const Lines kF3Line{"Fb-3dB=28.25"};
inline const Lines kPrismLines{"WidthPrism=30.125", "HeightPrism=37.5", "DepthPrism=0.75"};
inline const Lines kTrapezoidLines{"DepthPrismTrapez=26.5", "WidthRearPrism=18.25", "TiltDegrees=7.5"};
inline const Lines kOptionLines{"WooferWiring=series", "RsAmplifier=0.25", "WoodThickness=22"};

/// A closed box, a prism, as it is read: a closed box has no -3 dB line.
inline Lines ClosedFile() {
  return kHeadLines + Lines{"ClosedBox", "Alignment=0.8312"} + ShapeLines("Prismatic") + Lines{"BoxVolume=27.4"} +
         kVolumeLines + kTailLines + kPrismLines + kOptionLines;
}

/// A vented box with a round port, a prism.
inline Lines VentedFile() {
  return kHeadLines + Lines{"VentedBox", "Ql=10"} + ShapeLines("Prismatic") + Lines{"BoxVolume=27.4"} + kPortLines +
         kVolumeLines + kTailLines + kF3Line + kPrismLines + kOptionLines;
}

/// A vented box with a rectangular port, a trapezoid: every line that a file can have.
inline Lines LongestFile() {
  return kHeadLines + Lines{"VentedBox", "Ql=10"} + ShapeLines("Trapezoidal") + Lines{"Ld=19.5", "BoxVolume=27.4"} +
         kPortLines + Lines{"Side b=5.9"} + kVolumeLines + kTailLines + kF3Line + kPrismLines + kTrapezoidLines +
         kOptionLines;
}

/// Opens a file through the dialog of the menu.
inline void OpenFile(Desk& desk, const std::filesystem::path& path) {
  desk.Begin();
  desk.platform.files.emplace_back(path);
  desk.Choose("mdithsm.mnuapriprogetto");
}

inline void OpenBytes(Desk& desk, std::string_view bytes) { OpenFile(desk, desk.folder.Write("opened.pro", bytes)); }

/// The lines that the platform printed about messages.
inline Lines MessagesOf(const std::string& out) {
  Lines messages;
  for (std::size_t at = 0; at < out.size();) {
    const std::size_t end = out.find('\n', at);
    const std::string line = out.substr(at, end - at);
    if (line.starts_with("message ")) messages.push_back(line);
    at = end + 1;
  }
  return messages;
}

inline std::string OpenFailure(int number) {
  return R"(message stop "Error" "The file could not be opened. )" + std::to_string(number) + R"(" [OK] -> OK)";
}

inline std::string SaveFailure(int number) {
  return R"(message stop "Error" "The data can not be stored. )" + std::to_string(number) + R"(" [OK] -> OK)";
}

}  // namespace zefirondo

// What the program says about itself, in both languages.
#include <gtest/gtest.h>

#include <cstdio>

#include "core/window_life.h"
#include "program/assembly.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

struct Words {
  Language language;
  const char* caption;
  const char* version;
};

class AboutWindow : public testing::TestWithParam<Words> {};

TEST_P(AboutWindow, NamesTheProgramAndItsVersion) {
  Desk desk(GetParam().language);
  desk.Begin();
  desk.Choose("mdithsm.mnuinformazioni");
  EXPECT_EQ(desk.program.windows.frmAbout.window.caption, GetParam().caption);
  EXPECT_EQ(desk.Text("frmAbout.lblVersion").rfind(GetParam().version, 0), 0U);
  EXPECT_NE(desk.Text("frmAbout.lblVersion").find_first_of("0123456789"), std::string::npos);
  desk.Click("frmAbout.cmdok");
  EXPECT_FALSE(desk.program.windows.frmAbout.window.open);
}

INSTANTIATE_TEST_SUITE_P(BothLanguages, AboutWindow,
                         testing::Values(Words{Language::English, "Information About Zefirondo", "Version "},
                                         Words{Language::Italian, "Informazioni su Zefirondo", "Versione "}));

TEST(AboutButton, SaysThatNoInformationToolIsThere) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnuinformazioni");
  desk.Click("frmAbout.cmdSysInfo");
  EXPECT_EQ(desk.TakeOut(),
            "message none \"Zefirondo\" \"Information on the system are not currently available\" [OK] -> OK\n");
}

TEST(AboutButton, SaysSoInItalian) {
  Desk desk(Language::Italian);
  desk.Begin();
  desk.Choose("mdithsm.mnuinformazioni");
  desk.Click("frmAbout.cmdSysInfo");
  EXPECT_EQ(desk.TakeOut(),
            "message none \"Zefirondo\" \"Le informazioni sul sistema non sono attualmente disponibili\" [OK] -> OK\n");
}

/// A desktop with an information tool, which starts or does not.
class ToolPlatform : public QueuedPlatform {
 public:
  ToolPlatform(std::string& out, bool starts) : QueuedPlatform(out, {1, 2, 2026}, 1920), starts_(starts) {}
  std::filesystem::path InformationTool() override { return "/opt/tools/system info"; }
  bool StartTool(const std::filesystem::path& tool) override { return QueuedPlatform::StartTool(tool) && starts_; }

 private:
  bool starts_;
};

std::string PressSysInfo(bool starts) {
  std::string out;
  ToolPlatform platform(out, starts);
  const TemporaryFolder folder;
  Program program(platform, Language::English, folder.path());
  ConnectProgram(program);
  Start(program, "");
  OpenWindow(program, "frmAbout");
  Click(program, program.windows.frmAbout.cmdSysInfo);
  return out;
}

TEST(AboutButton, StartsTheInformationTool) { EXPECT_EQ(PressSysInfo(true), "tool \"/opt/tools/system info\"\n"); }

TEST(AboutButton, SaysThatTheToolDoesNotStart) {
  EXPECT_EQ(PressSysInfo(false),
            "tool \"/opt/tools/system info\"\n"
            "message none \"Zefirondo\" \"Information on the system are not currently available\" [OK] -> OK\n");
}

TEST(WindowOfAbout, TellsWhatTheProgramIsFor) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    desk.Begin();
    desk.Choose("mdithsm.mnuinformazioni");
    EXPECT_EQ(desk.Text("frmAbout.lblTitle"), "Zefirondo");
    EXPECT_EQ(
        desk.Text("frmAbout.lblDescription"),
        language == Language::English
            ? "This Software is dedicated to designing loudspeakers for low frequencies. You can import impedance "
              "measurements performed on transducers, in txt or ovl format and then the program derived from the "
              "curve so imported, the parameters necessary for the proper design."
            : "Software dedicato alla progettazione di diffusori per basse frequenze. E' possibilie importare "
              "misure di impedenza eseguite sui trasduttori con l'ausilio di SpectraLAb, in formato 'ovl'. Il "
              "programma ricava dalla curva così importata, i parametri necessari per la giusta progettazione.");
    EXPECT_EQ(desk.Text("frmAbout.lblDisclaimer"), desk.program.Text(213));
    EXPECT_EQ(desk.Text("frmAbout.lblcontact"), desk.program.Text(214));
    EXPECT_FALSE(desk.program.Text(213).empty() || desk.program.Text(214).empty());
    EXPECT_EQ(desk.Text("frmAbout.cmdok"), "&OK");
    EXPECT_EQ(desk.Text("frmAbout.cmdSysInfo"), "&System Info...");
    EXPECT_EQ(desk.Text("frmAbout.mnuchiudi"), language == Language::English ? "&Close" : "&Chiudi");
  }
}

TEST(WindowOfAbout, HasAVersionOfThreeNumbers) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnuinformazioni");
  int major = -1;
  int minor = -1;
  int revision = -1;
  char more = 0;
  EXPECT_EQ(
      std::sscanf(desk.Text("frmAbout.lblVersion").c_str(), "Version %d.%d.%d%c", &major, &minor, &revision, &more), 3);
}

TEST(WindowOfAbout, StandsInTheMiddleAndClosesByItsMenu) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnuinformazioni");
  const Window& window = desk.program.windows.frmAbout.window;
  const Window& frame = desk.program.windows.mdithsm.window;
  EXPECT_EQ(window.left * 2 + window.width, frame.width);
  EXPECT_EQ(window.top * 2 + window.height, frame.height);
  desk.Choose("frmAbout.mnuchiudi");
  EXPECT_FALSE(window.open);
}

}  // namespace
}  // namespace zefirondo

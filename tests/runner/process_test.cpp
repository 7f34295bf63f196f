// The runner as a process: its options, its exit statuses, what it tells on standard error.
#include <gtest/gtest.h>

#include "runner/process.h"

namespace zefirondo {
namespace {

const std::string kUsage =
    "usage: zefirondo-run [--language en|it] [--folder DIR] [--today dd/mm/yyyy] [--screen-width PIXELS] [FILE]\n";

TEST(RunnerProcess, RunsAScriptOfAFileToItsEnd) {
  const TemporaryFolder folder;
  static_cast<void>(folder.Write("a.zef", "start\necho here\n"));
  const Finished run = RunProcess(folder, "a.zef");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "echo here\n");
  EXPECT_EQ(run.error, "");
}

TEST(RunnerProcess, TakesStandardInputWithoutAFileAndForADash) {
  const TemporaryFolder folder;
  EXPECT_EQ(RunProcess(folder, "", "echo one\n").out, "echo one\n");
  EXPECT_EQ(RunProcess(folder, "-", "echo two\n").out, "echo two\n");
}

TEST(RunnerProcess, RunsAnEmptyScript) {
  const TemporaryFolder folder;
  const Finished run = RunProcess(folder, "", "");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "");
}

TEST(RunnerProcess, IsDoneWhenTheProgramEndedOnTheWay) {
  const TemporaryFolder folder;
  const Finished run = RunProcess(folder, "", "start\nclose mdithsm\n");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "ended\n");
}

TEST(RunnerProcess, IsDoneWhenTheProgramEndedByAFailure) {
  const TemporaryFolder folder;
  const Finished run = RunProcess(folder, "--screen-width 1023", "start\nwindows\nleave\n");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out,
            "message stop \"Impostazione Schermo\" \"La risoluzione dello schermo deve essere impostata ad almeno 1024 "
            "x 768 Pixel\" [OK] -> OK\nended error\nwindows mdithsm\nended\n");
}

TEST(RunnerProcess, TellsItsUsageForBadOptions) {
  const TemporaryFolder folder;
  static_cast<void>(folder.Write("a.zef", "echo ran\n"));
  for (const char* const words : {"--language",
                                  "--language de",
                                  "--language EN",
                                  "--unknown x",
                                  "--today",
                                  "--today 1/1/2026",
                                  "--today 31-12-2026",
                                  "--today 31/02/2026",
                                  "--today 29/02/2025",
                                  "--today 00/01/2026",
                                  "--today 01/13/2026",
                                  "--today 01/01/-026",
                                  "--folder",
                                  "--folder ''",
                                  "--screen-width",
                                  "--screen-width -1",
                                  "--screen-width wide",
                                  "--screen-width 12.5",
                                  "--screen-width inf",
                                  "a.zef a.zef",
                                  "a.zef --language"}) {
    const Finished run = RunProcess(folder, words, "echo ran\n");
    EXPECT_EQ(run.status, 2) << words;
    EXPECT_EQ(run.out, "") << words;
    EXPECT_EQ(run.error, kUsage) << words;
  }
}

TEST(RunnerProcess, TakesEveryOption) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() / "desk");
  const Finished run = RunProcess(
      folder, "--language it --folder desk --today 29/02/2024 --screen-width 1024 -",
      "start\nchoose mdithsm.mnuinsmanuale\nget txtdatacreaz mdithsm.mnuuscita\nfile cancel\nchoose mnusalva\n");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_EQ(run.out.substr(0, run.out.find('\n')), "txtdatacreaz = \"29/02/2024\"");
  const std::string dialog = "dialog save \"Progetto di Zefirondo (*.pro)|*.pro\" default=\".pro\" folder=\"" +
                             (folder.path() / "desk" / "Progetti").string() + "\" -> cancel\n";
  EXPECT_TRUE(run.out.ends_with(dialog)) << run.out;
  EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "desk" / "Progetti"));
}

TEST(RunnerProcess, WorksInTheCurrentFolderByItself) {
  const TemporaryFolder folder;
  const Finished run = RunProcess(folder, "--language en", "start\nfile cancel\nchoose mdithsm.mnuapriprogetto\n");
  EXPECT_EQ(run.out, "dialog open \"Zefirondo Project (*.pro)|*.pro|\" default=\".pro\" folder=\"" +
                         (folder.path() / "Project").string() + "\" -> cancel\n");
}

TEST(RunnerProcess, TakesTheDateOfTheDayByItself) {
  const TemporaryFolder folder;
  const Finished run = RunProcess(folder, "", "start\nchoose mdithsm.mnuinsmanuale\nget txtdatacreaz\n");
  const std::string today = "txtdatacreaz = \"00/00/0000\"\n";
  ASSERT_EQ(run.out.size(), today.size());
  for (std::size_t i = 0; i < today.size(); ++i) {
    EXPECT_EQ(today[i] == '0', run.out[i] >= '0' && run.out[i] <= '9') << i;
  }
}

TEST(RunnerProcess, CannotReadAMissingScriptOrAFolder) {
  const TemporaryFolder folder;
  for (const char* const file : {"missing.zef", "."}) {
    const Finished run = RunProcess(folder, file);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.error, std::string("zefirondo-run: the script ") + file + " cannot be read\n");
  }
}

TEST(RunnerProcess, StopsAtALineThatCannotBeRun) {
  const TemporaryFolder folder;
  const Finished run = RunProcess(folder, "", "echo before\n\n# a remark\nfly away\necho behind\n");
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.out, "echo before\n");
  EXPECT_EQ(run.error, "line 4: unknown command fly\n");
}

TEST(RunnerProcess, KeepsWhatTheLinesBeforeDid) {
  const TemporaryFolder folder;
  const Finished run =
      RunProcess(folder, "", "start\nchoose mdithsm.mnuinsmanuale\nfile kept.pro\nchoose mnusalva\nfocus nothing\n");
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.error, "line 5: there is no nothing\n");
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "kept.pro"));
}

TEST(RunnerProcess, ReportsAnAnswerThatNothingTook) {
  const TemporaryFolder folder;
  struct Row {
    const char* line;
    const char* told;
  };
  for (const Row& row : {Row{"answer yes", "answer Yes"},
                         {"file cancel", "file cancel"},
                         {"file a.pro", "file a.pro"},
                         {"input 5", "input 5"},
                         {"overwrite no", "overwrite no"}}) {
    const Finished run = RunProcess(folder, "", std::string("start\n") + row.line + "\necho end\n");
    EXPECT_EQ(run.status, 3) << row.line;
    EXPECT_EQ(run.out, "echo end\n") << row.line;
    EXPECT_EQ(run.error, std::string("line 3: nothing took the queued ") + row.told + "\n");
  }
}

TEST(RunnerProcess, SpeaksTheLanguageOfTheSystemUnlessOneIsGiven) {
  const TemporaryFolder folder;
  const std::string script = "start\nget mdithsm.mnuinsmanuale\n";
  const std::string english = "mdithsm.mnuinsmanuale = \"New Project with Entered &Parameters\"\n";
  EXPECT_EQ(RunProcess(folder, "", script, "LC_ALL=C").out, english);
  EXPECT_EQ(RunProcess(folder, "", script, "LC_ALL=de_DE.UTF-8").out, english);
  EXPECT_NE(RunProcess(folder, "", script, "LC_ALL=it_IT.UTF-8").out, english);
  EXPECT_EQ(RunProcess(folder, "--language en", script, "LC_ALL=it_IT.UTF-8").out, english);
  EXPECT_EQ(RunProcess(folder, "--language it", script, "LC_ALL=C").out,
            RunProcess(folder, "", script, "LC_ALL=it_IT.UTF-8").out);
}

// ---- the examples ----

std::string Example(const std::string& name) { return ReadFileBytes(std::string(ZEFIRONDO_EXAMPLES) + "/" + name); }

TEST(Examples, MakeTheProjectsThatAreKept) {
  for (const std::string name : {"maestrale-22", "ponente-17"}) {
    const TemporaryFolder folder;
    const Finished run =
        RunProcess(folder, "--language en --today 20/11/2026 '" ZEFIRONDO_EXAMPLES "/" + name + ".zef'");
    EXPECT_EQ(run.status, 0) << name << run.error;
    EXPECT_TRUE(run.out.ends_with("ended\n")) << name;
    EXPECT_EQ(ReadFileBytes(folder.path() / (name + ".pro")), Example(name + ".pro")) << name;
  }
}

TEST(Examples, OpenWithoutAMessage) {
  struct Row {
    const char* name;
    const char* tab;
  };
  for (const Row& row : {Row{"maestrale-22", "ref"}, Row{"ponente-17", "chi"}}) {
    Desk desk;
    desk.Begin(std::string(ZEFIRONDO_EXAMPLES) + "/" + row.name + ".pro");
    EXPECT_EQ(desk.TakeOut(), "") << row.name;
    EXPECT_EQ(desk.sheet.selected_tab, row.tab) << row.name;
    EXPECT_EQ(desk.state.BoxDb.size(), 6828U) << row.name;
  }
}

TEST(Examples, DesignTheBoxesThatTheFormulasGive) {
  // With a calculator of one's own: Qts' = 4.8·0.4175926/(4.8 + 0.4175926) = 0.3841704 with Qes' = 5.5/5.4·0.41;
  // Sd = 0.03141 m², Vas = 0.0889404 m³; Vb = Vas·20·Qts'^3.3 = 75.6934 l; Fb = 34·(Vas/Vb)^0.31 = 35.7431 Hz;
  // F3 = 34·(Vas/Vb)^0.44 = 36.5003 Hz.
  Desk vented;
  vented.Begin(std::string(ZEFIRONDO_EXAMPLES) + "/maestrale-22.pro");
  EXPECT_EQ(vented.Text("txtvolnetto"), "75.6933");
  // Closed: Qts' = 0.5239437, Vas = 0.0476624 m³, Vc = Vas/((0.707/Qts')²·1.15 − 1) = 43.5689 l;
  // Fc = 29·√((Vas/Vc + 1)/1.15) = 39.1321 Hz.
  Desk closed;
  closed.Begin(std::string(ZEFIRONDO_EXAMPLES) + "/ponente-17.pro");
  EXPECT_EQ(closed.Text("txtvolnetto"), "43.5688");
  EXPECT_NEAR(closed.state.Fc, 39.1321, 1e-3);
}

TEST(Examples, RunTheGuideToItsEndWithoutWriting) {
  const TemporaryFolder folder;
  const Finished run = RunProcess(folder, "--folder . '" ZEFIRONDO_EXAMPLES "/design.zef'");
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_TRUE(run.out.ends_with("ended\n"));
  EXPECT_NE(run.out.find("\ntabs gen par dim ref imp selected=ref\n"), std::string::npos);
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
    if (entry.is_regular_file() && !entry.path().filename().string().starts_with(".")) ++files;
  }
  EXPECT_EQ(files, 0U);
}

}  // namespace
}  // namespace zefirondo

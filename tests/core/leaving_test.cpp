// Leaving: the words of its questions in Italian, what a failed save means, what closes with what.
#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "core/shell.h"
#include "core/window_life.h"
#include "files/sample_project.h"

namespace zefirondo {
namespace {

bool IsOpen(Desk& desk, std::string_view window) { return desk.program.FindWindow(window)->open; }

TEST(QuestionOnLeaving, IsAskedInItalianToo) {
  Desk desk(Language::Italian);
  desk.DesignVented();
  desk.TakeOut();
  desk.platform.answers.push_back(Answer::Cancel);
  desk.Choose("mnuesci");
  EXPECT_EQ(desk.TakeOut(),
            "message question \"Uscita\" \"Il progetto è stato modificato\\n\\nVolete salvarlo?\" [Yes No Cancel] -> "
            "Cancel\n");
  CloseBox(desk.program, desk.program.windows.mdithsm.window);
  EXPECT_EQ(desk.TakeOut(),
            "message information \"Progetto attivo\" \"Il progetto corrente non è stato ancora chiuso\\n\\nChiudere "
            "prima il progetto\" [OK] -> OK\n");
  EXPECT_EQ(desk.program.run, RunState::Running);
}

TEST(QuestionOnLeaving, AnsweredYesLeavesEvenWhenTheSaveFails) {
  for (const bool by_entry : {true, false}) {
    Desk desk;
    desk.DesignVented();
    desk.TakeOut();
    desk.platform.answers.push_back(Answer::Yes);
    desk.platform.files.emplace_back(desk.folder.path() / "missing" / "lost.pro");
    if (by_entry) {
      desk.Choose("mnuesci");
    } else {
      CloseBox(desk.program, desk.sheet.window);
    }
    // Only a cancelled dialog holds the project back.
    const Lines messages = MessagesOf(desk.TakeOut());
    ASSERT_EQ(messages.size(), 2U) << by_entry;
    EXPECT_EQ(messages[1], SaveFailure(76));
    EXPECT_FALSE(IsOpen(desk, "frmthsm")) << by_entry;
    EXPECT_FALSE(desk.state.ProjectModified);
    EXPECT_EQ(desk.state.LastSaveError, 0);  // of the reset
  }
}

TEST(LastSaveError, IsNotClearedByASaveButByTheEndOfTheProject) {
  Desk desk;
  desk.DesignVented();
  desk.platform.files = {std::nullopt, desk.folder.path() / "kept.pro"};
  desk.Choose("mnusalva");
  desk.Choose("mnusalva");
  EXPECT_EQ(desk.state.LastSaveError, 32755);
  EXPECT_FALSE(desk.state.ProjectModified);
  desk.Choose("mnuesci");
  EXPECT_EQ(desk.state.LastSaveError, 0);
}

TEST(ProjectSaved, IsNeverClearedAgain) {
  Desk desk;
  desk.DesignVented();
  desk.platform.files.emplace_back(desk.folder.path() / "kept.pro");
  desk.Choose("mnusalva");
  desk.Choose("mnuesci");
  desk.Choose("mdithsm.mnuthisma");
  EXPECT_TRUE(desk.state.ProjectSaved);
}

TEST(ClosingTheFrame, ClosesTheCalculatorAndTheOptionsWithIt) {
  Desk desk;
  desk.Begin();
  desk.Choose("mdithsm.mnucalcolatrice");
  desk.Choose("mdithsm.mnuopzioni");
  ASSERT_TRUE(IsOpen(desk, "frmcalcolatrice"));
  ASSERT_TRUE(IsOpen(desk, "frmopzioni"));
  CloseBox(desk.program, desk.program.windows.mdithsm.window);
  EXPECT_EQ(desk.TakeOut(), "ended\n");
  EXPECT_FALSE(IsOpen(desk, "frmcalcolatrice"));
  EXPECT_FALSE(IsOpen(desk, "frmopzioni"));
}

TEST(ClosingTheFrame, AfterASaveAsksNothingAnyMore) {
  Desk desk;
  desk.DesignVented();
  desk.platform.files.emplace_back(desk.folder.path() / "kept.pro");
  desk.Choose("mnusalva");
  desk.TakeOut();
  CloseBox(desk.program, desk.program.windows.mdithsm.window);
  EXPECT_EQ(desk.TakeOut(), "ended\n");
}

TEST(ClosingTheFrame, GoesByTheMarkAloneSoThatATypedCommentIsLost) {
  Desk desk;
  desk.BeginParameters();
  desk.Set("txtcommento", "a long thought");
  CloseBox(desk.program, desk.program.windows.mdithsm.window);
  EXPECT_EQ(desk.TakeOut(), "ended\n");
}

TEST(LeavingAProject, AsksForNoSaveOfATypedComment) {
  Desk desk;
  desk.BeginParameters();
  desk.Set("txtcommento", "a long thought");
  desk.Choose("mnuesci");
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_FALSE(IsOpen(desk, "frmthsm"));
}

TEST(EntriesOfTheFrame, OpenTheirWindows) {
  for (const auto& [entry, window] : {std::pair{"mdithsm.mnuopzioni", "frmopzioni"},
                                      {"mdithsm.mnudelay", "frmFaseSh"},
                                      {"mdithsm.mnucalcolatrice", "frmcalcolatrice"},
                                      {"mdithsm.mnuinformazioni", "frmAbout"},
                                      {"mdithsm.mnuthisma", "frmthsm"},
                                      {"mdithsm.mnuinsmanuale", "frmthsm"}}) {
    Desk desk;
    desk.Begin();
    EXPECT_TRUE(desk.Choose(entry).Done()) << entry;
    EXPECT_EQ(desk.program.order.front()->name, window) << entry;
  }
}

TEST(LeavingAProject, ForgetsEveryOpenGraph) {
  Desk desk;
  desk.BeginParameters();
  ProjectState& s = desk.state;
  const std::vector<bool*> flags{&s.GrafCassaOpen,  &s.GrafFaseOpen,       &s.GrafSplOpen,
                                 &s.GrafSplMaxOpen, &s.GrafEscursioneOpen, &s.GrafAirspeedOpen};
  for (bool* const flag : flags) *flag = true;  // as a computation without a box leaves the first
  desk.Choose("mnuesci");
  for (const bool* const flag : flags) EXPECT_FALSE(*flag);
}

TEST(ImpedanceGraphEntry, LoadsTheGraphAnewEachTime) {
  Desk desk;
  desk.BeginImpedance();
  desk.state.ImpFreq = {20, 40, 80, 0};
  desk.state.ImpZ = {6, 45, 7, 0};
  desk["mnugrafico"].enabled = true;
  desk.Choose("mnugrafico");
  Window& graph = desk.program.windows.frmgrafico.window;
  ASSERT_TRUE(graph.open);
  graph.caption = "an old one";
  desk.Choose("mnugrafico");
  EXPECT_TRUE(graph.open);
  EXPECT_EQ(desk.program.order.front(), &graph);
  EXPECT_EQ(graph.caption.find("an old one"), std::string::npos);
}

// ---- what a reset closes ----

constexpr std::array kClosedByReset{"frmgrafcassa", "frmescursione", "frmspl",          "frmsplMax",   "frmFase",
                                    "frmfiltri",    "frmdimensioni", "frmcalcolatrice", "frmairspeed", "frmalfa"};

std::vector<std::string> closed_in_order;

template <std::size_t I>
void NoteClosing(Program&) {
  closed_in_order.emplace_back(kClosedByReset[I]);
}

template <std::size_t... I>
void NoteEachClosing(Program& program, std::index_sequence<I...>) {
  ((program.FindWindow(kClosedByReset[I])->on.unload = NoteClosing<I>), ...);
}

/// Opens every window, past what opening or closing one does to another.
void OpenEverything(Desk& desk) {
  for (Window* const window : desk.program.all) {
    window->on.load = nullptr;
    window->on.activate = nullptr;
    window->on.unload = nullptr;
    OpenWindow(desk.program, *window);
  }
}

TEST(ResetSheet, ClosesTenWindowsInTheirOrderAndNoOther) {
  Desk desk;
  desk.BeginParameters();
  OpenEverything(desk);
  NoteEachClosing(desk.program, std::make_index_sequence<kClosedByReset.size()>());
  closed_in_order.clear();
  ResetSheet(desk.program);
  EXPECT_EQ(closed_in_order, std::vector<std::string>(kClosedByReset.begin(), kClosedByReset.end()));
  for (const Window* const window : desk.program.all) {
    const bool closed = std::find(kClosedByReset.begin(), kClosedByReset.end(), window->name) != kClosedByReset.end();
    EXPECT_EQ(window->open, !closed) << window->name;
  }
}

TEST(UndoImpedanceImport, ClosesTheImpedanceGraphToo) {
  Desk desk;
  desk.BeginImpedance();
  OpenEverything(desk);
  UndoImpedanceImport(desk.program);
  EXPECT_FALSE(IsOpen(desk, "frmgrafico"));
  EXPECT_FALSE(IsOpen(desk, "frmgrafcassa"));
  EXPECT_TRUE(IsOpen(desk, "frmFaseSh"));
}

TEST(UndoDataImport, ClosesTheBoxResponseAlone) {
  Desk desk;
  desk.BeginImpedance();
  OpenEverything(desk);
  UndoDataImport(desk.program);
  for (const Window* const window : desk.program.all) {
    EXPECT_EQ(window->open, window->name != "frmgrafcassa") << window->name;
  }
}

TEST(ResetSheet, KeepsEveryCurveThatItDoesNotName) {
  Desk desk;
  desk.BeginParameters();
  ProjectState& s = desk.state;
  const std::vector<Curve*> kept{&s.SplMaxFreq, &s.AirFreq,  &s.AirSpeed, &s.OverlaySplFreq, &s.OverlaySplDb,
                                 &s.FilterFreq, &s.FilterDb, &s.PhaseX1,  &s.PhaseHz1,       &s.PhaseDeg1,
                                 &s.PhaseX2,    &s.PhaseHz2, &s.PhaseDeg2};
  for (Curve* const curve : kept) *curve = {1, 2, 3};
  ResetSheet(desk.program);
  for (const Curve* const curve : kept) EXPECT_EQ(curve->size(), 3U);
}

}  // namespace
}  // namespace zefirondo

// From the menu entry to the printer: names, copies, orientation, a dialog given up, a printer that fails.
#include "core/window_life.h"
#include "print/paper.h"

namespace zefirondo {
namespace {

const std::string kName = "input \"Project Name\" \"Enter a project name\" -> ";
const QueuedPlatform::Printer kCancel{.cancelled = true, .fails = false, .choice = {}};
const QueuedPlatform::Printer kFails{.cancelled = false, .fails = true, .choice = {}};

QueuedPlatform::Printer Copies(int copies, bool landscape = false) {
  return {.cancelled = false, .fails = false, .choice = {copies, landscape}};
}

std::string TitleOf(const Page& page) { return ItemsOf<PageText>(page).front().text; }

/// Whether the pages are the same, and the document ends behind the last one alone.
void ExpectDocument(const std::vector<Page>& pages, std::size_t count, bool landscape) {
  ASSERT_EQ(pages.size(), count);
  for (std::size_t i = 0; i < count; ++i) {
    EXPECT_EQ(Said(pages[i]), Said(pages[0]));
    EXPECT_EQ(pages[i].landscape, landscape);
    EXPECT_EQ(pages[i].last, i + 1 == count);
  }
}

// ---- the project ----

class ProjectOnPaper : public testing::Test {
 protected:
  ProjectOnPaper() {
    desk.DesignVented();
    desk.TakeOut();
  }
  std::string Print(const QueuedPlatform::Printer& printer) {
    desk.platform.printers.push_back(printer);
    desk.Choose("mnustampa");
    return desk.TakeOut();
  }
  Desk desk;
  const std::vector<Page>& pages = desk.platform.pages;
};

TEST_F(ProjectOnPaper, AsksForANameThatItHasNot) {
  desk.platform.inputs.emplace_back("Maestrale");
  EXPECT_EQ(Print(Copies(1)), kName + "\"Maestrale\"\nprinter -> 1 portrait\n");
  ExpectDocument(pages, 1, false);
  EXPECT_EQ(TitleOf(pages[0]), "Loudspeaker Project Type: Vented Box.- Name: Maestrale.- Date Added: 20/11/2026");
  EXPECT_EQ(desk.state.ProjectTitle, "");  // the name is for the page alone
}

TEST_F(ProjectOnPaper, IsUnknownWithoutAnAnswer) {
  desk.platform.inputs.emplace_back("");
  Print(Copies(1));
  EXPECT_EQ(TitleOf(pages.at(0)), "Loudspeaker Project Type: Vented Box.- Name: Unknown.- Date Added: 20/11/2026");
}

TEST_F(ProjectOnPaper, BearsTheNameOfItsFile) {
  desk.state.ProjectTitle = "cassa più grande.pro";
  EXPECT_EQ(Print(Copies(1)), "printer -> 1 portrait\n");
  EXPECT_EQ(TitleOf(pages.at(0)),
            "Loudspeaker Project Type: Vented Box.- Name: cassa più grande.- Date Added: 20/11/2026");
}

TEST_F(ProjectOnPaper, IsPrintedAsOftenAsAsked) {
  desk.state.ProjectTitle = "a.pro";
  Print(Copies(3));
  ExpectDocument(pages, 3, false);
}

TEST_F(ProjectOnPaper, IsUprightWhateverTheDialogSays) {
  desk.state.ProjectTitle = "a.pro";
  Print(Copies(2, true));
  ExpectDocument(pages, 2, false);
}

TEST_F(ProjectOnPaper, GivenUpInTheDialogEndsWithoutAWord) {
  desk.state.ProjectTitle = "a.pro";
  EXPECT_EQ(Print(kCancel), "printer -> cancel\n");
  EXPECT_TRUE(pages.empty());
  EXPECT_EQ(desk.program.run, RunState::Running);
}

TEST_F(ProjectOnPaper, OnAPrinterThatFailsShowsTheMessageAndLosesNothing) {
  desk.state.ProjectTitle = "a.pro";
  const std::string volume = desk.Text("txtvolnetto");
  const bool modified = desk.state.ProjectModified;
  EXPECT_EQ(Print(kFails),
            "printer -> 1 portrait\n"
            "message stop \"Error\" \"An error occurred while printing. Device I/O error\" [OK] -> OK\n");
  EXPECT_TRUE(pages.empty());
  EXPECT_EQ(desk.program.run, RunState::Running);
  EXPECT_EQ(desk.Text("txtvolnetto"), volume);
  EXPECT_EQ(desk.state.ProjectModified, modified);
  EXPECT_TRUE(desk.program.windows.frmgrafcassa.window.open);
  EXPECT_EQ(Print(Copies(1)), "printer -> 1 portrait\n");  // and the next try goes through
  ExpectDocument(pages, 1, false);
}

TEST_F(ProjectOnPaper, WithoutAScaleOfItsGraphShowsTheMessage) {
  desk.state.ProjectTitle = "a.pro";
  desk.state.BoxScaleTop = 0;
  EXPECT_EQ(Print(Copies(1)),
            "printer -> 1 portrait\n"
            "message stop \"Error\" \"An error occurred while printing. Division by zero\" [OK] -> OK\n");
  EXPECT_TRUE(pages.empty());
}

TEST_F(ProjectOnPaper, MarksNothingAsChanged) {
  desk.state.ProjectTitle = "a.pro";
  desk.state.ProjectModified = false;
  Print(Copies(1));
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST(ProjectOnPaperInItalian, SpeaksItalian) {
  Desk desk(Language::Italian);
  desk.DesignVented();
  desk.TakeOut();
  desk.platform.inputs = {"", ""};
  desk.platform.printers = {kFails, Copies(1)};
  desk.Choose("mnustampa");
  desk.Choose("mnustampa");
  EXPECT_EQ(desk.TakeOut(),
            "input \"Nome Progetto\" \"Inserire se si desidera, il nome del nuovo progetto\" -> \"\"\n"
            "printer -> 1 portrait\n"
            "message stop \"Errore\" \"La stampa non è andata a buon fine. Device I/O error\" [OK] -> OK\n"
            "input \"Nome Progetto\" \"Inserire se si desidera, il nome del nuovo progetto\" -> \"\"\n"
            "printer -> 1 portrait\n");
  EXPECT_EQ(TitleOf(desk.platform.pages.at(0)),
            "Progetto Diffusore in Box Reflex.- Nome: Senza nome.- Data Creazione: 20/11/2026");
}

TEST(ProjectWithoutADesign, IsNotPrinted) {
  Desk desk;
  desk.BeginParameters();
  EXPECT_EQ(desk.Choose("mnustampa").refusal, Refusal::Disabled);
}

// ---- the graphs ----

struct GraphEntry {
  const char* what;
  const char* entry;
  const char* heading;
};

class GraphOnPaper : public testing::TestWithParam<GraphEntry> {
 protected:
  GraphOnPaper() { Prepare(desk); }

  static void Prepare(Desk& desk) {
    desk.DesignVented();
    desk.state.ImpFreq = {10, 20, 40, 80, 160, 0};
    desk.state.ImpZ = {6, 9, 38, 9, 7, 0};
    desk.state.ImpScaleTop = 48;
    OpenWindow(desk.program, "frmgrafico");
    desk.state.ProjectTitle = "a.pro";
    desk.state.ImpFileTitle = "b.ovl";
    desk.TakeOut();
  }
  static std::string Print(Desk& desk, const QueuedPlatform::Printer& printer) {
    desk.platform.printers.push_back(printer);
    desk.Choose(GetParam().entry);
    return desk.TakeOut();
  }
  Desk desk;
};

TEST_P(GraphOnPaper, IsPrintedOnce) {
  EXPECT_EQ(Print(desk, Copies(1)), "printer -> 1 portrait\n");
  ExpectDocument(desk.platform.pages, 1, false);
  EXPECT_EQ(TitleOf(desk.platform.pages.at(0)), GetParam().heading);
}

TEST_P(GraphOnPaper, GivesTwoIdenticalPagesForTwoCopies) {
  EXPECT_EQ(Print(desk, Copies(2)), "printer -> 2 portrait\n");
  ExpectDocument(desk.platform.pages, 2, false);
}

TEST_P(GraphOnPaper, TakesTheOrientationOfTheDialog) {
  EXPECT_EQ(Print(desk, Copies(1, true)), "printer -> 1 landscape\n");
  ExpectDocument(desk.platform.pages, 1, true);
}

TEST_P(GraphOnPaper, GivenUpInTheDialogEndsWithoutAWord) {
  EXPECT_EQ(Print(desk, kCancel), "printer -> cancel\n");
  EXPECT_TRUE(desk.platform.pages.empty());
}

TEST_P(GraphOnPaper, OnAPrinterThatFailsShowsAWarning) {
  EXPECT_EQ(Print(desk, kFails),
            "printer -> 1 portrait\n"
            "message warning \"Error\" \"An error occurred while printing. Device I/O error\" [OK] -> OK\n");
  EXPECT_TRUE(desk.platform.pages.empty());
  EXPECT_EQ(desk.program.run, RunState::Running);
  EXPECT_EQ(Print(desk, Copies(1)), "printer -> 1 portrait\n");
  ExpectDocument(desk.platform.pages, 1, false);
}

TEST_P(GraphOnPaper, WarnsInItalianToo) {
  Desk italian(Language::Italian);
  Prepare(italian);
  EXPECT_EQ(Print(italian, kFails),
            "printer -> 1 portrait\n"
            "message warning \"Errore\" \"La stampa non è andata a buon fine. Device I/O error\" [OK] -> OK\n");
}

TEST_P(GraphOnPaper, WithoutAScaleWarns) {
  desk.state.BoxScaleTop = desk.state.ImpScaleTop = 0;
  EXPECT_EQ(Print(desk, Copies(1)),
            "printer -> 1 portrait\n"
            "message warning \"Error\" \"An error occurred while printing. Division by zero\" [OK] -> OK\n");
}

std::string NameOfEntry(const testing::TestParamInfo<GraphEntry>& entry) { return entry.param.what; }
INSTANTIATE_TEST_SUITE_P(Both, GraphOnPaper,
                         testing::Values(GraphEntry{"box", "frmgrafcassa.mnugrafstampa",
                                                    "Funzione di trasferimento. Diffusore: a  20/11/2026"},
                                         GraphEntry{"impedance", "frmgrafico.mnugrafstampa",
                                                    "Grafico impedenza. Trasduttore: b  20/11/2026"}),
                         NameOfEntry);

}  // namespace
}  // namespace zefirondo

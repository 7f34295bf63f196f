// Saving and importing traces on the SPL and phase graphs: dialogs, bytes, colours, failures, in both languages.
#include "core/acts.h"
#include "response/plain_curves.h"

namespace zefirondo {
namespace {

struct GraphRow {
  const char *name, *opener, *window, *plot, *red, *blue, *import;
  Curve ProjectState::*red_x;
  Curve ProjectState::*red_y;
  Curve ProjectState::*blue_x;
  Curve ProjectState::*blue_y;
};

const GraphRow kGraphs[]{
    {"Spl", "frmgrafcassa.mnuspl", "frmspl", "pctgrafspl", "mnusalvasplRosso", "mnusalvaSplBlu", "mnuimportatracciato",
     &ProjectState::Set1SplFreq, &ProjectState::Set1SplDb, &ProjectState::Set2SplFreq, &ProjectState::Set2SplDb},
    {"Phase", "frmgrafcassa.mnufase", "frmFase", "pctgrafFase", "mnusalvarosso", "mnusalvablu", "mnuimportafase",
     &ProjectState::Set1PhaseFreq, &ProjectState::Set1PhaseDeg, &ProjectState::Set2PhaseFreq,
     &ProjectState::Set2PhaseDeg},
};

class TraceEntries : public testing::TestWithParam<std::tuple<GraphRow, Language>> {
 protected:
  TraceEntries() : graph(std::get<0>(GetParam())), language(std::get<1>(GetParam())), desk(language) {
    desk.DesignVented();
    desk.Choose(graph.opener);
    desk.Click(Name("cmdset1"));
    desk.Click(Name("cmdset2"));
    desk.TakeOut();
  }

  [[nodiscard]] bool English() const { return language == Language::English; }
  [[nodiscard]] std::string Name(const char* control) const { return std::string(graph.window) + "." + control; }
  Surface& surface() { return *desk[Name(graph.plot)].surface; }
  [[nodiscard]] double Top() const { return graph.window == std::string("frmFase") ? 180 : desk.state.SplScaleTop; }
  [[nodiscard]] std::string Folder() const {
    return (desk.folder.path() / (English() ? "Response" : "Tracciati")).string();
  }

  std::string Choosing(const char* entry, const std::filesystem::path& file) {
    desk.platform.files.emplace_back(file);
    EXPECT_EQ(desk.Choose(Name(entry)).refusal, Refusal::None);
    return desk.TakeOut();
  }

  GraphRow graph;
  Language language;
  Desk desk;
};

TEST_P(TraceEntries, SaveTheirSlotInItsColour) {
  // The zero slot and the last real point stay out, zones are 14 columns wide, and -0.25 loses its sign.
  desk.state.*graph.red_x = {20, 33.5, 40, 7, 0};
  desk.state.*graph.red_y = {-90.5, 41.25, -0.25, 7, 0};
  desk.state.*graph.blue_x = {26.0205999132, 1, 0};
  desk.state.*graph.blue_y = {179, 1, 0};
  const auto red = desk.folder.path() / "red.trc";
  const std::string words = English() ? "Response" : "Tracciato";
  EXPECT_EQ(Choosing(graph.red, red), "dialog save \"" + words + " (*.trc)|*.trc\" default=\".trc\" folder=\"" +
                                          Folder() + "\" -> " + red.string() + "\n");
  EXPECT_EQ(ReadFileBytes(red),
            " 255 \r\n"
            "20            -90.5\r\n"
            "33.5          41.25\r\n"
            "40            0.25\r\n");
  const auto blue = desk.folder.path() / "blue.trc";
  Choosing(graph.blue, blue);
  EXPECT_EQ(ReadFileBytes(blue), " 16711680 \r\n26.0205999132 179\r\n");
}

TEST_P(TraceEntries, ImportPaintsInTheColourOfTheFileAndKeepsNothing) {
  const auto file = desk.folder.Write("t.trc", " 65280 \r\n25 30\r\n30 35\r\n35 -40\r\n");
  const Curve red = desk.state.*graph.red_y;
  const std::size_t chains = plain::Chains(surface()).size();
  EXPECT_EQ(Choosing(graph.import, file), "dialog open \"Tracciato (*.trc)|*.trc|\" default=\".trc\" folder=\"" +
                                              Folder() + "\" -> " + file.string() + "\n");
  const Stroke& stroke = surface().strokes.back();
  EXPECT_EQ(stroke.colour, 65280);
  ASSERT_EQ(stroke.count, 2U);  // the last of three points is not drawn
  EXPECT_EQ(surface().points.at(stroke.first).x, 25);
  EXPECT_EQ(surface().points.at(stroke.first).y, Top() - 30);
  EXPECT_EQ(surface().points.at(stroke.first + 1).y, Top() - 35);
  EXPECT_EQ(plain::Chains(surface()).size(), chains);  // a grid line's two points are no chain
  EXPECT_EQ(desk.state.*graph.red_y, red);
  desk.Click(Name("chkonoff2"));  // rebuilds the plot
  for (const Stroke& left : surface().strokes) EXPECT_NE(left.colour, 65280);
}

TEST_P(TraceEntries, ASavedTraceComesBackWhereItWas) {
  const auto file = desk.folder.path() / "red.trc";
  Choosing(graph.red, file);
  Choosing(graph.import, file);
  const std::vector<Stroke> chains = plain::Chains(surface());
  const Stroke& painted = chains.back();
  const Stroke& computed = chains.front();
  EXPECT_EQ(painted.colour, colour::kRed);
  ASSERT_EQ(painted.count + 1, computed.count);
  for (std::size_t i = 0; i < painted.count; ++i) {
    const Point& a = surface().points[computed.first + i];
    const Point& b = surface().points[painted.first + i];
    ASSERT_NEAR(a.x, b.x, 1e-11) << i;         // 15 digits went through the file
    if (std::fabs(Top() - a.y) < 1) continue;  // where a sign may have been lost
    ASSERT_NEAR(a.y, b.y, 1e-11) << i;
  }
}

TEST_P(TraceEntries, CancelChangesNothing) {
  const std::size_t strokes = surface().strokes.size();
  for (const char* const entry : {graph.import, graph.red, graph.blue}) {
    desk.platform.files.emplace_back(std::nullopt);
    desk.Choose(Name(entry));
    EXPECT_EQ(desk.TakeOut().find("message"), std::string::npos) << entry;
  }
  EXPECT_EQ(surface().strokes.size(), strokes);
}

TEST_P(TraceEntries, FailuresAreTold) {
  const auto tail = [](const std::string& out) { return out.substr(std::min(out.find("message"), out.size())); };
  const std::string error = English() ? "Error" : "Errore";
  const std::string opened = English() ? "The file could not be opened. " : "Il file non può essere aperto. ";
  const std::string stored = English() ? "The data can not be stored. " : "I dati non possono essere scritti. ";
  const auto box = [&](const std::string& text) {
    return "message stop \"" + error + "\" \"" + text + "\" [OK] -> OK\n";
  };
  const std::filesystem::path folder = desk.folder.path();
  EXPECT_EQ(tail(Choosing(graph.import, folder / "none.trc")), box(opened + "File not found"));
  EXPECT_EQ(tail(Choosing(graph.import, desk.folder.Write("t.trc", "255\r\n20 30\r\n40"))),
            box(opened + "Input past end of file"));
  EXPECT_EQ(tail(Choosing(graph.red, folder / "no" / "t.trc")), box(stored + "Path not found"));
  EXPECT_EQ(tail(Choosing(graph.blue, folder / "no" / "t.trc")), box(stored + "Path not found"));
  EXPECT_EQ(desk.program.run, RunState::Running);
}

TEST_P(TraceEntries, SaveEntriesFollowTheTicks) {
  for (const auto& [tick, entry] : {std::pair{"chkonoff1", graph.red}, {"chkonoff2", graph.blue}}) {
    EXPECT_TRUE(desk[Name(entry)].enabled);
    desk.Click(Name(tick));
    EXPECT_FALSE(desk[Name(entry)].enabled) << entry;
    EXPECT_EQ(desk.Choose(Name(entry)).refusal, Refusal::Disabled);
    desk.Click(Name(tick));
    EXPECT_TRUE(desk[Name(entry)].enabled) << entry;
  }
}

INSTANTIATE_TEST_SUITE_P(BothGraphs, TraceEntries,
                         testing::Combine(testing::ValuesIn(kGraphs),
                                          testing::Values(Language::English, Language::Italian)),
                         [](const auto& instance) {
                           return std::string(std::get<0>(instance.param).name) +
                                  (std::get<1>(instance.param) == Language::English ? "English" : "Italian");
                         });

}  // namespace
}  // namespace zefirondo

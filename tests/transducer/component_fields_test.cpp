// The fields, the words and the ends of the two component tools.
#include <gtest/gtest.h>

#include "support/desk.h"

namespace zefirondo {
namespace {

constexpr const char* kFalling = "20 500\r\n50 80\r\n100 50\r\n150 40\r\n200 30\r\n250 25\r\n300 20\r\n350 18\r\n";
constexpr const char* kRising = "20 8\r\n50 9\r\n100 10\r\n150 13\r\n200 16\r\n250 19\r\n300 22\r\n350 25\r\n";

struct ToolRow {
  const char* window;
  const char* entry;
  const char* rows;
};

class ComponentTool : public testing::TestWithParam<ToolRow> {
 protected:
  void Open(Desk& desk) const {
    desk.Begin();
    desk.platform.files.emplace_back(desk.folder.Write("m.ovl", GetParam().rows));
    desk.Choose(GetParam().entry);
    desk.TakeOut();
  }
  [[nodiscard]] std::string Named(const std::string& control) const {
    return std::string(GetParam().window) + "." + control;
  }
};

TEST_P(ComponentTool, HoldsAZeroInBothFields) {
  for (const Language language : {Language::English, Language::Italian}) {
    Desk desk(language);
    Open(desk);
    for (const auto& [field, other] : {std::pair{"txtf1", "txtf2"}, {"txtf2", "txtf1"}}) {
      for (const char* const zero : {"0", "0.0", "x"}) {
        desk.Set(Named(field), zero);
        EXPECT_EQ(desk.Focus(Named(other)).held, &desk[Named(field)]) << field << ' ' << zero;
        EXPECT_EQ(desk.TakeOut(), language == Language::English
                                      ? "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n"
                                      : "message stop \"Errore\" \"Immettere un valore diverso da zero\" [OK] -> OK\n");
      }
      desk.Set(Named(field), "5");
      EXPECT_TRUE(desk.Focus(Named(other)).Done());
    }
  }
}

TEST_P(ComponentTool, LetsAnEmptyFieldGo) {
  Desk desk;
  Open(desk);
  desk.Focus(Named("txtf1"));
  EXPECT_TRUE(desk.Focus(Named("txtf2")).Done());
  EXPECT_TRUE(desk.Focus(Named("txtf1")).Done());
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST_P(ComponentTool, FiltersItsKeys) {
  Desk desk;
  Open(desk);
  for (const char* const field : {"txtf1", "txtf2"}) {
    desk.Set(Named(field), "");
    desk.Type(Named(field), "12,5");
    EXPECT_EQ(desk.Text(Named(field)), "12.5");  // a comma is a point
    EXPECT_EQ(desk.TakeOut(), "");
    desk.Type(Named(field), ".-a");
    EXPECT_EQ(desk.Text(Named(field)), "12.5");
    const std::string told = "message stop \"Error\" \"Warning: Inputs must be a number\" [OK] -> OK\n";
    EXPECT_EQ(desk.TakeOut(), told + told + told);
  }
}

TEST_P(ComponentTool, SelectsWhatItsFieldsHold) {
  Desk desk;
  Open(desk);
  desk.Set(Named("txtf1"), "120");
  desk.Focus(Named("txtf2"));
  desk.Focus(Named("txtf1"));
  EXPECT_EQ(desk[Named("txtf1")].selection_length, 3U);
}

TEST_P(ComponentTool, ClosesByItsEntryWithoutAWord) {
  Desk desk;
  Open(desk);
  ASSERT_TRUE(desk.program.FindWindow(GetParam().window)->open);
  desk.Choose(Named("mnuchiudi"));
  EXPECT_FALSE(desk.program.FindWindow(GetParam().window)->open);
  EXPECT_TRUE(desk.program.FindWindow("frmgrafico")->open);
  EXPECT_EQ(desk.TakeOut(), "");
}

TEST_P(ComponentTool, WritesNothingIntoAProject) {
  Desk desk;
  Open(desk);
  desk.Set(Named("txtf1"), "120");
  desk.Set(Named("txtf2"), "220");
  desk.Click(Named("cmdavanti"));
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_EQ(desk.state.Fs, 0);
  EXPECT_EQ(desk.state.Zmax, 0);
}

INSTANTIATE_TEST_SUITE_P(Both, ComponentTool,
                         testing::Values(ToolRow{"frmvalc", "mdithsm.mnucapa", kFalling},
                                         ToolRow{"frmvalf", "mdithsm.munindu", kRising}),
                         [](const auto& row) { return std::string(row.param.window); });

/// Opens a tool in Italian and asks for the value between two frequencies.
std::string InItalian(const ToolRow& tool, const char* f1, const char* f2) {
  Desk desk(Language::Italian);
  desk.Begin();
  desk.platform.files.emplace_back(desk.folder.Write("m.ovl", tool.rows));
  desk.Choose(tool.entry);
  desk.TakeOut();
  const std::string window = tool.window;
  *desk[window + ".txtf1"].text = f1;
  *desk[window + ".txtf2"].text = f2;
  desk.program.focus = nullptr;  // a field that has it would test its text first
  desk.Click(window + ".cmdavanti");
  return desk.TakeOut();
}

// The values are those of the English tests: C = √((200² − 100²) / (4π² (50² − 30²) 200² 100²)) and so on.
TEST(ComponentWords, AreItalianToo) {
  const ToolRow capacitor{"frmvalc", "mdithsm.mnucapa", kFalling};
  const ToolRow inductor{"frmvalf", "mdithsm.munindu", kRising};
  EXPECT_EQ(InItalian(capacitor, "120", "220"),
            "message information \"Capacità\" \"Il valore del capacitore è: 34.458055 µF\" [OK] -> OK\n");
  EXPECT_EQ(InItalian(inductor, "120", "220"),
            "message information \"Induttanza e Resistenza\" \"Il valore dell'induttore è: 11.476826 mH\\nIl valore "
            "del resistore è: 6.9282032 Ohm\" [OK] -> OK\n");
  EXPECT_EQ(InItalian(capacitor, "220", "120"),
            "message stop \"Errore nei dati immessi\" \"Il valore Frequenza1 deve essere minore del valore "
            "Frequenza2\" [OK] -> OK\n");
  EXPECT_EQ(InItalian(inductor, "", "120"),
            "message stop \"Errore nei dati immessi\" \"Bisogna specificare dei valori per Frequenza1 e Frequenza2\" "
            "[OK] -> OK\n");
  EXPECT_EQ(InItalian({"frmvalc", "mdithsm.mnucapa", kRising}, "120", "220"),
            "message stop \"Errore\" \"Hai scelto due valori di frequenza tali che Z2 è maggiore di Z1\" [OK] -> OK\n"
            "message information \"Capacità\" \"Il valore del capacitore è: -1 µF\" [OK] -> OK\n");
  EXPECT_EQ(InItalian({"frmvalf", "mdithsm.munindu", kFalling}, "120", "220"),
            "message stop \"Errore\" \"Hai scelto due valori di frequenza tali chei Z2 è minore di Z1\" [OK] -> OK\n"
            "message information \"Induttanza e Resistenza\" \"Il valore dell'induttore è: -1 mH\\nIl valore del "
            "resistore è: 0 Ohm\" [OK] -> OK\n");
  EXPECT_EQ(InItalian(capacitor, "5000", "6000"),
            "message stop \"Errore\" \"Non è stato possibile calcolare il valore. Division by zero\" [OK] -> OK\n"
            "message information \"Capacità\" \"Il valore del capacitore è: -1 µF\" [OK] -> OK\n");
  EXPECT_EQ(InItalian(inductor, "5000", "6000"),
            "message stop \"Errore\" \"Non è stato possibile calcolare uno dei valori. Division by zero\" [OK] -> OK\n"
            "message information \"Induttanza e Resistenza\" \"Il valore dell'induttore è: 0 mH\\nIl valore del "
            "resistore è: -1 Ohm\" [OK] -> OK\n");
}

// A file that goes away between the graph and the value.
TEST(ComponentValue, OfAFileThatIsGoneFailsAndTellsMinusOne) {
  Desk desk;
  desk.Begin();
  const std::filesystem::path file = desk.folder.Write("m.ovl", kFalling);
  desk.platform.files.emplace_back(file);
  desk.Choose("mdithsm.mnucapa");
  std::filesystem::remove(file);
  desk.TakeOut();
  desk.Set("frmvalc.txtf1", "120");
  desk.Set("frmvalc.txtf2", "220");
  desk.Click("frmvalc.cmdavanti");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Error\" \"It was not possible to calculate the value. File not found\" [OK] -> OK\n"
            "message information \"Capacitance\" \"The capacitor value is: -1 µF\" [OK] -> OK\n");
}

}  // namespace
}  // namespace zefirondo

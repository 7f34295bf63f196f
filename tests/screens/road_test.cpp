#include "road_test.h"

#include "desk.h"

using namespace zefirondo;
using namespace zefirondo::screens;

void RoadTest::VentedBoxByMouseAndKeys() {
  Desk desk;
  desk.NewProject();
  QCOMPARE(desk.FocusName(), "txtproduttore");
  QCOMPARE(desk.Text("txtdatacreaz"), "01/02/2024");
  desk.FillWoofer();
  QCOMPARE(desk.Text("txtsd"), "0.03463");  // π · 0.105² = 0.034636, cut to seven characters
  QVERIFY(desk.boxes.empty());

  desk.DesignVentedBox();
  QCOMPARE(desk.boxes.size(), 1U);
  QCOMPARE(desk.boxes[0].title, "EBP= 77.7777");  // 35 / 0.45
  QCOMPARE(desk.boxes[0].buttons, QStringList({"Yes", "No"}));
  QCOMPARE(desk.boxes[0].default_button, "Yes");

  const auto* const tabs = desk.Find<QTabBar>("TabStrip1");
  QCOMPARE(tabs->count(), 5);
  QCOMPARE(tabs->tabText(tabs->currentIndex()), "Vented Box");
  QVERIFY(desk.View("frmgrafcassa")->isVisible());
  QVERIFY(!desk.program.state.BoxDb.empty());
  QCOMPARE(desk.FieldsThatDiffer(), QStringList());
  QVERIFY(!desk.Text("txtvolnetto").isEmpty());
  QVERIFY(!desk.Text("txtlungmis").isEmpty());
}

void RoadTest::VentedBoxByKeysAlone() {
  Desk desk;
  desk.NewProject();
  const auto type_and_tab = [&desk](std::initializer_list<const char*> texts) {
    for (const char* const text : texts) {
      desk.Type(QLatin1String(text));
      desk.Key(Qt::Key_Tab);
    }
  };
  type_and_tab({"Maker", "Brand"});
  desk.Type("W210");
  desk.Key(Qt::Key_Return);  // leads on, as Tab does
  QCOMPARE(desk.FocusName(), "txtdatifor");
  type_and_tab({"", "", "", "100", "8", "90", "", "5"});
  QCOMPARE(desk.FocusName(), "txtrendimento");

  desk.Key(Qt::Key_N, Qt::AltModifier);  // "&Next"
  QTRY_COMPARE(desk.FocusName(), "txtfs");
  desk.Type("35");
  desk.Key(Qt::Key_Return);
  desk.Type("5.6");
  desk.Key(Qt::Key_Return);
  desk.Type("4.2");
  type_and_tab({"", "", "9.5", "210", "", "", "", "", "", "0.45", "0.41", "0.038"});
  QCOMPARE(desk.FocusName(), "txtvas");
  QCOMPARE(desk.Text("txtbl"), "9.5");
  QCOMPARE(desk.Text("txtmms"), "0.038");
  type_and_tab({"0.1"});

  desk.Key(Qt::Key_PageDown, Qt::ControlModifier);
  QCOMPARE(desk.FocusName(), "txtforo");
  type_and_tab({"230", "110", "140", "50", "260", "8", "38"});
  QVERIFY(!desk.Text("txtvolume").isEmpty());  // a first figure, which the last Tab computes
  desk.Key(Qt::Key_PageUp, Qt::ControlModifier);
  desk.AnswerByKey(Qt::Key_Return);
  desk.Key(Qt::Key_C, Qt::AltModifier);  // "&Compute"
  QTRY_COMPARE(desk.boxes.size(), 1U);
  QTRY_VERIFY(desk.View("frmgrafcassa") != nullptr);
  QVERIFY(desk.program.windows.frmthsm.HasTab("ref"));
  QCOMPARE(desk.FieldsThatDiffer(), QStringList());

  desk.Key(Qt::Key_Tab);  // into the window in front
  QCOMPARE(desk.FocusName(), "txtF3dB");
  desk.Key(Qt::Key_Tab);
  QCOMPARE(desk.FocusName(), "cmdset1");
  desk.Key(Qt::Key_Space);
  QVERIFY(desk.program.state.Set1BoxShown);
  desk.Key(Qt::Key_Tab);
  QCOMPARE(desk.FocusName(), "chkonoff1");
  desk.Key(Qt::Key_Space);
  QVERIFY(!desk.program.state.Set1BoxShown);
}

void RoadTest::TheRoadReadsItalianToo() {
  Desk desk(Language::Italian);
  QCOMPARE(desk.MenuTitles(), QStringList({"&File", "&Progetto", "&Impostazioni", "&Utility", "&?"}));
  desk.NewProject();
  QCOMPARE(desk.Find<QTabBar>("TabStrip1")->tabText(1), "Parametri");
  desk.ClickTab("Dimensioni");
  QCOMPARE(desk.FocusName(), "txtforo");
  desk.Click("txtprof");  // an empty field holds the focus
  QCOMPARE(desk.boxes.size(), 1U);
  QCOMPARE(desk.boxes[0].text, "Immettere un valore diverso da zero");
  QCOMPARE(desk.boxes[0].icon, QMessageBox::Critical);
}

// Windows in the frame: menu bars, order, closing, the plot under the mouse.
#pragma once

#include <QObject>

class WindowsTest : public QObject {
  Q_OBJECT

 private slots:
  void TheMenuBarIsThatOfTheWindowInFront();
  void MenuEntriesFollowTheData();
  void ClosingAModifiedSheetAsks();
  void TheFrameStaysWhileTheProjectIsModified();
  void AClickBringsAWindowForward();
  void KeysLeadFromWindowToWindow();
  void TheSettingsHideTheGraph();
  void ATraceIsStoredAndShownByClicks();
  void TheReadOutShowsWhileTheButtonIsDown();
  void ADoubleClickOpensTheDimensions();
  void TheSectionIsToggledByClickAndByKey();
  void AReopenedWindowTakesItsPlaceAgain();
  void MenusMoveNoFocus();
  void TheCalculatorTakesTheKeyboard();
  void AnOptionIsChosenByArrows();
};

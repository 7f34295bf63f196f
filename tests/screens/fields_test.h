// Fields under real keys and clicks: filters, held focus, edits of Qt's own, combo boxes.
#pragma once

#include <QObject>

class FieldsTest : public QObject {
  Q_OBJECT

 private slots:
  void AnEmptyFieldHoldsTheFocusAgainstAClick();
  void AHeldFocusKeepsTheTab();
  void ARejectedCharacterLeavesTheField();
  void ACommaBecomesAPoint();
  void AZeroGoesOnWithAPointOnly();
  void TheFirstClickSelectsTheSecondPlacesTheCaret();
  void TypingIsUndone();
  void EditsOfTheFieldItselfReachTheData();
  void AnIdleMnemonicTypesNothing();
  void ALockedFieldTakesNoKeys();
  void TheTwinOfAFilledFieldTurnsGrey();
  void AComboBoxIsPickedAndTyped();
  void TheWheelLeavesAComboBoxWithoutFocusAlone();
  void ALockedComboBoxStaysAsItIs();
  void TheCommentHasLines();
  void TabRunsDownEachPage_data();
  void TabRunsDownEachPage();
  void EveryFieldHasAName();
  void PlacesInFieldsAreCountedInCharacters();
};

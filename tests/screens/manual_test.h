// The manual's window: contents, search, keys, and the entries that open it.
#pragma once

#include <QObject>

class ManualTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void TheEntriesOfSeveralWindowsOpenTheIndex_data();
  void TheEntriesOfSeveralWindowsOpenTheIndex();
  void ThereIsOneWindowAndItHoldsNothingUp();
  void ItClosesWithTheProgram();
  void AMissingManualIsTold_data();
  void AMissingManualIsTold();
  void TheFirstFolderThatHasItWins();
  void TheContentsOpenEveryPage_data();
  void TheContentsOpenEveryPage();
  void TheContentsFollowThePage();
  void LinksAreFollowedByKeysAndBack();
  void TheSearchFindsAndJumps_data();
  void TheSearchFindsAndJumps();
  void ASearchForNothingBringsTheContentsBack();
  void WordsApartAreFoundInOneParagraph();
  void AccentsAndCapitalsDoNotMatter();
  void FindingOnThePageGoesRound();
  void KeysChangeTheSizeOfTheText();
  void KeysCloseTheWindow();
  void EveryPartHasAName_data();
  void EveryPartHasAName();
};

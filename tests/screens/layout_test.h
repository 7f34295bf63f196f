// How the windows lay their controls out, in both languages.
#pragma once

#include <QObject>

class LayoutTest : public QObject {
  Q_OBJECT

 private slots:
  void NothingIsCutOrCovered_data();
  void NothingIsCutOrCovered();
  void EveryControlIsOnTheScreen_data();
  void EveryControlIsOnTheScreen();
  void AWindowFitsASmallScreen_data();
  void AWindowFitsASmallScreen();
  void AnOpenedProjectIsLaidOut();
  void AWindowStaysInsideAShrinkingFrame();
};

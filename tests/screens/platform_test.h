// What the program asks of the desktop: dialogs, association, and the pictures of plots.
#pragma once

#include <QObject>

class PlatformTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void FiltersOfFileDialogsAreTranslated();
  void AMessageBoxShowsWhatTheDataSay();
  void ProjectFilesAreTiedToTheProgram();
  void AnInstalledProgramLeavesTheUsersFolderAlone();
  void AnExecLineQuotesThePath();
  void AGridLineIsOnePixel();
  void AThinnedCurveKeepsItsPeaks();
  void ACurveMayLeaveThePlot();
  void ACurveThatLeavesThePlotKeepsItsSlope();
  void WhatIsDrawnLaterLiesOnTop();
  void AStrokeKeepsItsScale();
  void AFailureThatEndsIsAStatusOfOne();
};

// The program for who does not use a mouse, reads with the ears, or likes it dark or large.
#pragma once

#include <QObject>

class AccessTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryControlHasAName_data();
  void EveryControlHasAName();
  void APlotIsWhiteOnADarkDesktop();
  void WordsStandOutOnADarkDesktop();
};

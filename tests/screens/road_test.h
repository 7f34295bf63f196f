// The road of one design, walked by hand: from a new project to the plot of its box.
#pragma once

#include <QObject>

class RoadTest : public QObject {
  Q_OBJECT

 private slots:
  void VentedBoxByMouseAndKeys();
  void VentedBoxByKeysAlone();
  void TheRoadReadsItalianToo();
};

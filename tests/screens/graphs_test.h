// Every graph of a design by mouse and keys: windows, traces, filter, imported response, calibration, sums; and the
// road from a measurement to the box.
#pragma once

#include <QObject>

class GraphsTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryGraphOpensFromTheMenus_data();
  void EveryGraphOpensFromTheMenus();
  void PowersAreTypedAndShown();
  void TracesOfTheLevelGraphAreSetSavedAndReadBack();
  void AFilterIsDrawnAndTakenAway();
  void AResponseIsImportedCalibratedAndSummed();
  void AMeasurementBecomesABox_data();
  void AMeasurementBecomesABox();
  void TheImportPaintsItsBarSeldom();
};

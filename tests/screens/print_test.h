// What comes out of the printer: the pages in a PDF, read back from it, and the dialog that leads there.
#pragma once

#include <QObject>

class PrintTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryWordStandsInItsPlace_data();
  void EveryWordStandsInItsPlace();
  void PlotsAndFramesAreLines();
  void CopiesArePages();
  void LandscapeTurnsThePaper();
  void APrinterThatFailsIsTold();
  void TheDialogLeadsToAFile();
  void ACancelledDialogPrintsNothing();
};

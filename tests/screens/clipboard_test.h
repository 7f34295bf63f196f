// The desktop's own clipboard: phase curves pasted into the offset tool, and words between fields.
#pragma once

#include <QObject>

class ClipboardTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void TwoCurvesArePastedAndTheirOffsetFound();
  void WhatHoldsNoCurveIsTold_data();
  void WhatHoldsNoCurveIsTold();
  void AFieldTakesWhatAnotherGave();
};

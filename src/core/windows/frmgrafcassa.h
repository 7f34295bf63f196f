// `frmgrafcassa`, the window "Transfer Function": the box response, its stored traces, and what is laid over it.
#pragma once

#include "core/controls.h"
#include "core/windows/frequency_labels.h"

namespace zefirondo {

struct BoxResponse {
  Window window;
  Surface surface;
  FrequencyLabels frequencies;
  Control lblnomegraf, pctgraf, pctvalori, txtpos, lblfrequenza;
  Control lbl3dB, txtF3dB, lblhz;
  Control Line1, Line2, Line3;  // around the stored traces
  Control lblovl1, cmdset1, lblset1, chkonoff1, lblonoff1;
  Control lblovl2, cmdset2, lblset2, chkonoff2, lblonoff2;
  Control fraleggenda, lblcassa, lblfiltro, lblimport, lblsomma;
  Control cmdsomma, cmdcancella;
  Control frmdbcal, Label1, txtdbcal, lbldbcal, cmdmeno, cmdpiu, cmdcalibra;

  Control mnufilegrafico, mnuimportatracciato, mnusalvatracciatorosso, mnusalvatracciatoblu, mnuimportaOverlay;
  Control mnugrafstampa, mnuchiudigraf;
  Control mnuvisualizza, mnufase, mnuspl, mnusplmax, mnuescursione, mnuairspeed;
  Control mnufiltri, mnucalcolatrice;
  Control mnuinfo2, mnuguida, mnuinformazioni;

  Curve OverlayFreq, OverlayDb;  // the imported response, level + 40
  double CalibrationDb = 0.0;
  void (*released)(Program&) = nullptr;  // told when the plain state was restored

  explicit BoxResponse(ProjectState& state);
};

}  // namespace zefirondo

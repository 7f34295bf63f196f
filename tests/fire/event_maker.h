// Makes events by chance: roads that a builder takes, and acts that make no sense.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "fire/dice.h"
#include "fire/event.h"

namespace zefirondo {

class EventMaker {
 public:
  EventMaker(Dice& dice, Program& program, ChancePlatform& platform)
      : dice_(dice), program_(program), platform_(platform), calm_(dice.Percent(50)) {}

  Event Next();

 private:
  struct Step {  // of a road: the names are looked up when it comes to it
    Act act;
    std::string name;
    std::string text;
  };

  void PlanRoad();
  void PlanWoofer();
  void PlanParameters();
  void PlanImpedance();
  void PlanPage();
  void PlanDimensions();
  void PlanFilter();
  void PlanOverlay();
  void PlanAlignment();
  void PlanBoxFields();
  void PlanComponent();
  void PlanPhase();
  void PlanField(const Control& field);
  void PlanWindow(const Window& window);
  Event Resolve(const Step& step);
  Event RandomAct();
  Event ActOn(Control& control);
  Event ActOnField(Control& field);
  Event ActOnPlot(Control& plot);
  [[nodiscard]] bool EndsProject(const Control& control) const;
  Window& RandomWindow();
  Control& RandomControl();
  std::string RandomText();
  std::string UsualText(const Control& field);
  std::string RandomNumber();
  std::string Vary(double usual);

  Dice& dice_;
  Program& program_;
  ChancePlatform& platform_;
  bool calm_;  // a person who rarely types what makes no sense, and so comes far
  std::deque<Step> road_;
};

}  // namespace zefirondo

// The inner dimensions: prism, trapezoid and what is typed by hand.
#include <algorithm>
#include <cmath>

#include "box/plain_design.h"
#include "box/plain_numbers.h"

namespace zefirondo::plain {
namespace {

double Tangent(double degrees) { return std::tan(degrees * 3.14159265358979 / 180); }

}  // namespace

void Design::Dimensions() {
  trapezoid = false;
  Put("txtld", "");
  Put("cmbforma", "Prismatic");
  const double litres = R("txtboxvolume");
  if (litres == 0) return;
  const bool low = text["cmbrappo"] == "1.25  1  0.8";
  if (!low) Put("cmbrappo", "1.62  1  0.62");
  width = 10 * std::cbrt(litres);
  height = width * (low ? 1.25 : 1.62);
  depth = width * (low ? 0.8 : 0.62);
  ShowDimensions(width, height, depth);
}

void Design::ShowDimensions(double l, double h, double p) {
  ShowRounded("txtl", l, 1);
  ShowRounded("txth", h, 1);
  ShowRounded("txtp", p, 1);
}

double Design::PlanArea(double over) const { return R("txtboxvolume") * 1000 / over; }

/// The smaller depth P with P (front - P tan) = area, or -1 when there is none.
double Design::DepthAt(double area_cm2, double front, double degrees) {
  const double t = Tangent(degrees);
  const double root = front * front - 4 * t * area_cm2;
  if (root < 0) ++too_steep;
  return root < 0 ? -1 : std::min(front - std::sqrt(root), front + std::sqrt(root)) / (2 * t);
}

bool Design::Tilt(double area_cm2, double degrees) {
  const double p = DepthAt(area_cm2, width, degrees);
  if (p == -1) {
    Show("cmbgradi", last_tilt);
    return false;
  }
  trapezoid_depth = p;
  rear = 2 * area_cm2 / p - width;
  ShowRounded("txtp", p, 1);
  ShowRounded("txtld", rear, 1);
  return true;
}

void Design::LeaveTilt() {
  if (!dim_editing) return;
  const double typed = R("cmbgradi");
  const bool small = typed > 0 && typed <= 30;
  if (!small) Put("cmbgradi", "15");
  const bool fits = Tilt(PlanArea(height), typed);
  if (fits) last_tilt = small ? typed : 15;
  if (small || fits) dim_editing = false;
}

void Design::PickRatio(const std::string& ratio) {
  Put("cmbrappo", ratio);
  Dimensions();
  dim_editing = false;
}

void Design::PickShape(bool as_trapezoid) {
  if (!as_trapezoid) {
    Dimensions();
    dim_editing = false;
    return;
  }
  Put("cmbforma", "Trapezoidal");
  trapezoid = true;
  if (R("cmbgradi") > 0) last_tilt = R("cmbgradi");
  const bool editing = dim_editing;
  if (Tilt(PlanArea(R("txth")), R("cmbgradi"))) {
    last_tilt = R("cmbgradi");
    dim_editing = false;
  } else {
    dim_editing = editing;
  }
  LeaveTilt();
}

void Design::PickTilt(const std::string& degrees) {
  if (R("cmbgradi") > 0) last_tilt = R("cmbgradi");
  Put("cmbgradi", degrees);
  if (Tilt(PlanArea(height), Read(degrees))) last_tilt = Read(degrees);
  LeaveTilt();
}

void Design::TypeTilt(const std::string& degrees) {
  if (R("cmbgradi") > 0) last_tilt = R("cmbgradi");
  Put("cmbgradi", degrees);
  LeaveTilt();
}

void Design::TypeRear(const std::string& centimetres) {
  Put("txtld", centimetres);
  rear = Read(centimetres);
  if (!dim_editing) return;
  const double plan = PlanArea(height);
  if (rear < width) {
    trapezoid_depth = 2 * plan / (width + rear);
    ShowRounded("txtp", trapezoid_depth, 1);
    last_tilt = std::atan((width - rear) / (2 * trapezoid_depth)) * 180 / 3.14159265358979;
    ShowRounded("cmbgradi", last_tilt, 2);
  } else {
    Put("cmbgradi", "15");
    last_tilt = 15;
    Tilt(plan, 15);
  }
  dim_editing = false;
}

void Design::Modify(const std::string& l, const std::string& h, const std::string& p) {
  if (!l.empty() || !h.empty() || !p.empty()) dim_editing = true;
  if (!trapezoid) {
    ModifyPrism(l, h, p);
    return;
  }
  ModifyTrapezoid(l, h, p);
  if (R("cmbgradi") > 0) last_tilt = R("cmbgradi");  // the focus comes there at the end, and leaves
  LeaveTilt();
}

void Design::ModifyPrism(const std::string& l, const std::string& h, const std::string& p) {
  const double v = R("txtboxvolume") * 1000;
  const bool low = text["cmbrappo"] == "1.25  1  0.8";
  const double u = low ? 0.8 : 0.62, w = low ? 1.25 : 1.62;
  double nl = Read(l), nh = Read(h), np = Read(p);
  if (!l.empty() && !h.empty()) {
    np = v / (nl * nh);
  } else if (!l.empty() && !p.empty()) {
    nh = v / (nl * np);
  } else if (!h.empty() && !p.empty()) {
    nl = v / (nh * np);
  } else if (text["cmbrappo"] == "Non standard") {
    return;
  } else if (!l.empty()) {
    const double m = std::sqrt(v / nl);
    nh = nl > width ? m / u : m * w;
    np = nl > width ? m * u : m / w;
  } else if (!h.empty()) {
    const double m = std::sqrt(v / nh);
    nl = nh > height ? m / u : m * w;
    np = nh > height ? m * u : m / w;
  } else if (!p.empty()) {
    const double m = std::sqrt(v / np);
    nl = np > trapezoid_depth ? m * u : m / w;
    nh = np > trapezoid_depth ? m / u : m * w;
  } else {
    return;
  }
  width = nl;
  height = nh;
  depth = np;
  ShowDimensions(nl, nh, np);
  Put("cmbrappo", "Non standard");
}

void Design::ModifyTrapezoid(const std::string& l, const std::string& h, const std::string& p) {
  const double v = R("txtboxvolume") * 1000;
  const double np = Read(p), nh = h.empty() ? height : Read(h), nl = l.empty() ? width : Read(l);
  if (!p.empty()) {
    const double moved = rear - 2 * Tangent(R("cmbgradi")) * (np - trapezoid_depth);
    if (h.empty()) {
      height = 2 * v / ((moved + width) * np);
      rear = moved;
    } else {
      const double half = (2 * v / (nh * np) - moved - width) / 2;
      width += half;
      rear = moved + half;
      height = nh;
    }
    trapezoid_depth = np;
  } else if (!l.empty() || !h.empty()) {
    const double found = DepthAt(v / nh, nl, R("cmbgradi"));
    if (found == -1) return;
    width = nl;
    height = nh;
    trapezoid_depth = found;
    rear = 2 * v / nh / found - nl;
  } else {
    return;
  }
  ShowDimensions(width, height, trapezoid_depth);
  ShowRounded("txtld", rear, 1);
  Put("cmbrappo", "Non standard");
}

}  // namespace zefirondo::plain

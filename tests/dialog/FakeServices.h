// FakeServices.h - a host for the dialog whose answers a test sets.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "inc/DialogServices.h"

namespace brevanta {

// Stands in for the host of one dialog run.
class FakeServices {
 public:
  FakeServices();
  FakeServices(const FakeServices&) = delete;
  FakeServices& operator=(const FakeServices&) = delete;

  // Runs "Dialog" over a record with the defaults of a new window, as the module does.
  std::int32_t RunDialog(std::int32_t editFlag = 0);

  std::map<std::string, std::string> answers;
  std::optional<std::array<double, 2>> point;
  std::vector<std::vector<geometry::Vec3>> faces;  // of the roof; the first one spans its plane
  bool isBounded = true;
  std::set<std::int32_t> numbers;
  std::optional<WindowParams> edited;  // the window to edit
  std::int32_t unitFactor = 1000;

  std::vector<std::size_t> found;  // numbers of the faces that the dialog asked for last

  WindowParams record{};                  // as the dialog left it
  std::optional<WindowParams> confirmed;  // as it told the host
  std::string refusal;
  int erased = 0;
  DialogServices services;
};

// A roof face of 8 x 6 m (millimetres) at `pitch` degrees that rises towards +y from height 2.5 m; its lower
// left corner lies over the origin.
std::vector<geometry::Vec3> SimpleRoof(double pitch);

}  // namespace brevanta

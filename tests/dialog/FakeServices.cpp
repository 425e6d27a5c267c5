// FakeServices.cpp - a host for the dialog whose answers a test sets.
#include "tests/dialog/FakeServices.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "dialog/Dialog.h"
#include "geometry/Matrix4.h"

namespace brevanta {

namespace {

FakeServices& Fake(void* context) {
  return *static_cast<FakeServices*>(context);
}

std::int32_t Answer(void* context, const char* field, char* buffer, std::int32_t size) {
  const auto found = Fake(context).answers.find(field);
  if (found == Fake(context).answers.end()) return -1;
  const std::string& text = found->second;
  const std::size_t copied = std::min(text.size(), static_cast<std::size_t>(size - 1));
  std::memcpy(buffer, text.data(), copied);
  buffer[copied] = '\0';
  return static_cast<std::int32_t>(text.size());
}

std::int32_t PickedPoint(void* context, double (&xy)[2]) {
  if (!Fake(context).point) return 0;
  xy[0] = (*Fake(context).point)[0];
  xy[1] = (*Fake(context).point)[1];
  return 1;
}

std::int32_t PutCorners(const std::vector<geometry::Vec3>& face, double* corners, std::int32_t capacity) {
  const std::size_t copied = std::min(face.size(), static_cast<std::size_t>(capacity));
  if (copied > 0) std::memcpy(corners, face.data(), copied * sizeof face[0]);
  return static_cast<std::int32_t>(face.size());
}

std::int32_t RoofPlane(void* context, double* corners, std::int32_t capacity, std::int32_t* isBoundary) {
  const FakeServices& fake = Fake(context);
  *isBoundary = fake.isBounded ? 1 : 0;
  return fake.faces.empty() ? 0 : PutCorners(fake.faces.front(), corners, capacity);
}

std::int32_t FindRoofFaces(void* context, const double (&low)[2], const double (&high)[2]) {
  FakeServices& fake = Fake(context);
  fake.found.clear();
  for (std::size_t number = 0; number < fake.faces.size(); ++number) {
    const auto& face = fake.faces[number];
    const auto reaches = [&](double geometry::Vec3::*axis, double from, double to) {
      const auto [least, most] = std::minmax_element(
          face.begin(), face.end(), [&](const auto& a, const auto& b) { return a.*axis < b.*axis; });
      return (*least).*axis <= to && (*most).*axis >= from;
    };
    if (reaches(&geometry::Vec3::x, low[0], high[0]) && reaches(&geometry::Vec3::y, low[1], high[1]))
      fake.found.push_back(number);
  }
  return static_cast<std::int32_t>(fake.found.size());
}

std::int32_t RoofFace(void* context, std::int32_t index, double* corners, std::int32_t capacity) {
  const FakeServices& fake = Fake(context);
  return PutCorners(fake.faces[fake.found[static_cast<std::size_t>(index)]], corners, capacity);
}

std::int32_t NumberInUse(void* context, std::int32_t number) {
  return Fake(context).numbers.count(number) != 0 ? 1 : 0;
}

std::int32_t FreeNumber(void* context) {
  std::int32_t number = 1;
  while (NumberInUse(context, number) != 0)
    ++number;
  return number;
}

std::int32_t ReadWindow(void* context, WindowParams* record) {
  if (!Fake(context).edited) return 0;
  *record = *Fake(context).edited;
  return 1;
}

std::int32_t EraseEdited(void* context) {
  return ++Fake(context).erased;
}

void Confirm(void* context, const WindowParams* record) {
  Fake(context).confirmed = *record;
}

void Report(void* context, std::int32_t gravity, const char* text) {
  if (gravity == REPORT_REFUSAL) Fake(context).refusal = text;
}

}  // namespace

FakeServices::FakeServices()
    : services{DIALOG_SERVICES_VERSION,
               static_cast<std::int32_t>(sizeof(DialogServices)),
               this,
               Answer,
               PickedPoint,
               RoofPlane,
               FindRoofFaces,
               RoofFace,
               NumberInUse,
               FreeNumber,
               ReadWindow,
               EraseEdited,
               Confirm,
               Report} {}

std::int32_t FakeServices::RunDialog(std::int32_t editFlag) {
  std::memset(&record, 0, sizeof record);
  record.width = 0.94;
  record.length = 1.4;
  record.frameWidth = 0.1;
  record.frameDepth = 0.08;
  record.placeByHeight = 1;
  record.heightReference = 1;
  record.roofBuildUp = 1;
  record.bodyAsFaces = 1;
  record.slopeOffset = 0.1;
  record.layerThickness = 0.1;
  record.pitch = 30.0;
  record.drawOpeningSymbol = -1;
  record.openingCode[0] = 'D';
  record.unitFactor = unitFactor;
  return Dialog(&services, &record, 0, editFlag);
}

std::vector<geometry::Vec3> SimpleRoof(double pitch) {
  const double rise = 6000.0 * std::tan(geometry::DegToRad(pitch));
  return {{0, 0, 2500}, {8000, 0, 2500}, {8000, 6000, 2500 + rise}, {0, 6000, 2500 + rise}};
}

}  // namespace brevanta

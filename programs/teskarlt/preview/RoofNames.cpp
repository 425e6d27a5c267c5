// RoofNames.cpp - finds free places for the names of roofs.
#include "teskarlt/preview/RoofNames.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "teskarlt/preview/HiddenLines.h"
#include "teskarlt/preview/Picture.h"

namespace teskarlt::preview {

namespace {

constexpr double FROM_EDGE = 0.05;  // a roof is seen when the cosine between its normal and the view is more
// Around a name, of the height of its letters: as it should be, and as it may be.
constexpr std::array ROOMS = {1.2, 0.3};
constexpr double FAR_FROM_EDGES = 3;  // in heights of letters; farther is no better
constexpr double SMALLER = 0.8;       // of letters from try to try
constexpr int TRIES = 24;             // places that are tried in each direction of a roof

using PictureRing = std::vector<Vec3>;  // projected

// The plane of a roof in the projection.
struct PicturePlane {
  Vec3 point;
  Vec3 normal;  // z positive

  Vec3 At(double x, double y) const {
    return {x, y, point.z - (normal.x * (x - point.x) + normal.y * (y - point.y)) / normal.z};
  }
};

Frame Around(const std::vector<PictureRing>& rings) {
  constexpr double endless = std::numeric_limits<double>::infinity();
  Frame around{endless, endless, -endless, -endless};
  for (const PictureRing& ring : rings) {
    for (const Vec3& corner : ring) {
      around.left = std::min(around.left, corner.x);
      around.right = std::max(around.right, corner.x);
      around.bottom = std::min(around.bottom, corner.y);
      around.top = std::max(around.top, corner.y);
    }
  }
  return around;
}

Frame Common(const Frame& a, const Frame& b) {
  return {std::max(a.left, b.left), std::max(a.bottom, b.bottom), std::min(a.right, b.right),
          std::min(a.top, b.top)};
}

// Calls with both ends of each edge.
template <typename Call>
void ForEachEdge(const std::vector<PictureRing>& rings, const Call& call) {
  for (const PictureRing& ring : rings) {
    for (std::size_t i = 0; i < ring.size(); ++i)
      call(ring[i], ring[(i + 1) % ring.size()]);
  }
}

// By the even-odd rule.
bool LieAround(const std::vector<PictureRing>& rings, const Vec3& p) {
  bool isInside = false;
  ForEachEdge(rings, [&](const Vec3& a, const Vec3& b) {
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x))
      isInside = !isInside;
  });
  return isInside;
}

// The distance from the nearest edge, where across counts `narrower` times as much as up.
double FromEdges(const std::vector<PictureRing>& rings, const Vec3& p, double narrower) {
  double least = std::numeric_limits<double>::infinity();
  ForEachEdge(rings, [&](const Vec3& a, const Vec3& b) {
    const double abX = (b.x - a.x) * narrower;
    const double abY = b.y - a.y;
    const double apX = (p.x - a.x) * narrower;
    const double apY = p.y - a.y;
    const double length = abX * abX + abY * abY;
    const double share = length > 0 ? std::clamp((apX * abX + apY * abY) / length, 0.0, 1.0) : 0;
    least = std::min(least, std::hypot(apX - share * abX, apY - share * abY));
  });
  return least;
}

bool Crosses(const Frame& box, const Vec3& a, const Vec3& b) {
  std::pair<double, double> part = {0, 1};
  return Narrow(a.x - box.left, b.x - box.left, part) && Narrow(box.right - a.x, box.right - b.x, part) &&
         Narrow(a.y - box.bottom, b.y - box.bottom, part) && Narrow(box.top - a.y, box.top - b.y, part);
}

class Placer {
 public:
  Placer(const Scene& scene, const View& view, const Frame& frame, const LetterHeights& heights)
      : view_(view), frame_(frame), heights_(heights), hidden_(scene, view) {}

  void Place(const SceneRoof& roof, RoofNames& names) {
    const Vec3 normal = view_.Project(roof.normal);
    if (normal.z < FROM_EDGE) return;
    rings_.clear();
    for (const std::vector<Vec3>& ring : roof.rings) {
      rings_.emplace_back();
      for (const Vec3& corner : ring)
        rings_.back().push_back(view_.Project(corner));
    }
    const Frame area = Common(Around(rings_), frame_);
    if (area.Width() <= 0 || area.Height() <= 0) return;
    plane_ = {rings_.front().front(), normal};
    if (std::optional<PlacedName> name = FindPlace(roof.name, area)) {
      names.shown.push_back(*std::move(name));
    } else {
      ++names.withoutRoom;
    }
  }

 private:
  struct Candidate {
    Vec3 place;
    double fromEdges;  // up to what is enough
    double fromMiddle;
  };

  // Half the size of what a name takes with so much room around it.
  static Vec3 HalfSize(const std::string& name, double height, double room) {
    const auto letters = static_cast<double>(name.size());
    return {(letters * LETTER_ADVANCE / 2 + room) * height, (1.0 / 2 + room) * height, 0};
  }

  std::optional<PlacedName> FindPlace(const std::string& name, const Frame& area) {
    const Vec3 least = HalfSize(name, heights_.least, ROOMS.back());
    if (area.Width() < 2 * least.x || area.Height() < 2 * least.y) return std::nullopt;
    const std::vector<Candidate> candidates = Candidates(area, least.y / least.x);
    double height = heights_.most;
    while (true) {
      for (const double room : ROOMS) {
        const Vec3 half = HalfSize(name, height, room);
        const auto free = std::find_if(candidates.begin(), candidates.end(), [&](const Candidate& candidate) {
          return IsFree(candidate.place, half);
        });
        if (free != candidates.end()) return PlacedName{name, free->place, height};
      }
      if (height <= heights_.least) return std::nullopt;
      height = std::max(height * SMALLER, heights_.least);
    }
  }

  // Places within the roof, those near its edges last, and else those nearest to its middle first.
  std::vector<Candidate> Candidates(const Frame& area, double narrower) const {
    const Vec3 middle = {(area.left + area.right) / 2, (area.bottom + area.top) / 2, 0};
    const double enough = heights_.most * FAR_FROM_EDGES;
    std::vector<Candidate> candidates;
    for (int row = 0; row < TRIES; ++row) {
      for (int column = 0; column < TRIES; ++column) {
        const Vec3 place = plane_.At(area.left + area.Width() * (column + 0.5) / TRIES,
                                     area.bottom + area.Height() * (row + 0.5) / TRIES);
        if (LieAround(rings_, place)) {
          candidates.push_back({place, std::min(FromEdges(rings_, place, narrower), enough),
                                DistanceInPicture(place, middle)});
        }
      }
    }
    std::stable_sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
      return a.fromEdges != b.fromEdges ? a.fromEdges > b.fromEdges : a.fromMiddle < b.fromMiddle;
    });
    return candidates;
  }

  bool IsFree(const Vec3& middle, const Vec3& half) {
    const Frame box = {middle.x - half.x, middle.y - half.y, middle.x + half.x, middle.y + half.y};
    if (box.left < frame_.left || box.right > frame_.right || box.bottom < frame_.bottom ||
        box.top > frame_.top)
      return false;
    bool isCrossed = false;
    ForEachEdge(rings_, [&](const Vec3& a, const Vec3& b) { isCrossed = isCrossed || Crosses(box, a, b); });
    return !isCrossed && IsSeen(box);
  }

  // Looks along three lines of the box, and at its sides.
  bool IsSeen(const Frame& box) {
    const double middle = (box.bottom + box.top) / 2;
    const std::array<std::pair<Vec3, Vec3>, 5> lines = {
        {{plane_.At(box.left, middle), plane_.At(box.right, middle)},
         {plane_.At(box.left, box.top), plane_.At(box.right, box.top)},
         {plane_.At(box.left, box.bottom), plane_.At(box.right, box.bottom)},
         {plane_.At(box.left, box.bottom), plane_.At(box.left, box.top)},
         {plane_.At(box.right, box.bottom), plane_.At(box.right, box.top)}}};
    return std::all_of(lines.begin(), lines.end(), [&](const std::pair<Vec3, Vec3>& line) {
      return hidden_.Visible(line.first, line.second) == std::vector<std::pair<double, double>>{{0, 1}};
    });
  }

  const View& view_;
  const Frame& frame_;
  const LetterHeights heights_;
  HiddenLines hidden_;
  std::vector<PictureRing> rings_;  // of the roof that is placed
  PicturePlane plane_{};            // likewise
};

}  // namespace

RoofNames PlaceRoofNames(const Scene& scene, const View& view, const Frame& frame,
                         const LetterHeights& heights) {
  RoofNames names;
  if (scene.roofs.empty()) return names;
  Placer placer(scene, view, frame, heights);
  for (const SceneRoof& roof : scene.roofs)
    placer.Place(roof, names);
  return names;
}

}  // namespace teskarlt::preview

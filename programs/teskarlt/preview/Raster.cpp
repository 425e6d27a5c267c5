// Raster.cpp - fills triangles and lines through a depth buffer, in bands of rows.
#include "teskarlt/preview/Raster.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "geometry/Vectors.h"
#include "teskarlt/Error.h"
#include "teskarlt/preview/BandLists.h"
#include "teskarlt/preview/DepthBand.h"
#include "teskarlt/preview/Letters.h"
#include "teskarlt/preview/Picture.h"
#include "teskarlt/preview/RoofNames.h"
#include "teskarlt/preview/VisibleLines.h"

namespace teskarlt::preview {

namespace {

constexpr int BAND = 16;            // rows of pixels that are held at a time
constexpr double MARGIN = 0.04;     // of the picture's width, or of its height where that is less
constexpr double TALLEST = 1.5;     // height of the picture against its width
constexpr double EDGE_WIDTH = 1.1;  // pixels
constexpr LetterHeights NAME_HEIGHTS = {9, 16};  // pixels
constexpr double NAME_WIDTH = 2.2;               // of the lines of letters, likewise
constexpr double TAG_WIDTH = 1.6;                // of the lines of letters of windows
constexpr double HALO_WIDTH = 6;                 // of what is left free around them
constexpr LetterHeights TAG_HEIGHTS = {7, 13};   // pixels
constexpr double TAG_SHARE = 0.25;               // height of its letters against the window
constexpr double LEAST_FACING = 0.1;             // cosine between a tagged window and the way to the viewer
constexpr Colour NAME_INK = {29, 58, 79};
constexpr Colour HALO = {255, 255, 255};
constexpr Colour GROUND = {236, 239, 241};
constexpr std::uint32_t GROUND_OWNER = 0;  // its index among the colours
constexpr std::uint8_t OPAQUE_ALPHA = 255;

// Samples in each direction of a pixel: fewer where so many surfaces lie over one another that more would
// take too long.
constexpr std::array SAMPLES = {4, 2, 1};
constexpr std::size_t MOST_STEPS = 300'000'000;  // of DepthBand, for each try

static_assert(BAND % DepthBand::TILE == 0 && DepthBand::TILE % SAMPLES[0] == 0);

// In samples, as SampleTriangle.
struct Stroke {
  Vec3 a;
  Vec3 b;
  DashPattern pattern;
  double offset = 0;
  double width = 0;
};

double MarginOf(const PictureOptions& options) {
  return MARGIN * (options.height > 0 ? std::min(options.width, options.height) : options.width);
}

// What is shown; of a picture with a size of its own, made as wide or high as the picture has room for.
Frame FrameFor(const Scene& scene, const PictureOptions& options) {
  Frame frame = FrameOf(scene, *options.view, options.zoom);
  if (options.height == 0) return frame;
  const double margins = 2 * MarginOf(options);
  const double slimness = (options.height - margins) / (options.width - margins);
  const double wider = std::max(0.0, frame.Height() / slimness - frame.Width());
  const double higher = std::max(0.0, frame.Width() * slimness - frame.Height());
  return {frame.left - wider / 2, frame.bottom - higher / 2, frame.right + wider / 2, frame.top + higher / 2};
}

class Renderer {
 public:
  Renderer(const Scene& scene, const PictureOptions& options, const Frame& frame,
           const std::vector<VisibleLine>& lines, int samples)
      : scene_(scene), view_(*options.view), frame_(frame), samples_(samples) {
    const double margin = MarginOf(options);
    const double room = options.width - 2 * margin;
    double scale = room / frame_.Width();
    if (options.height == 0) scale = std::min(scale, room * TALLEST / frame_.Height());
    picture_.width = options.width;
    picture_.height = options.height > 0 ? options.height
                                         : static_cast<int>(std::ceil(frame_.Height() * scale + 2 * margin));
    picture_.isTransparent = options.isTransparent;
    scale_ = scale * samples;
    left_ = (options.width - frame_.Width() * scale) / 2 * samples;
    top_ = margin * samples;
    depth_ = view_.Project(scene.box.Centre()).z;
    const Vec3& low = scene.box.low;
    const Vec3& high = scene.box.high;
    pull_ = (high.x - low.x + high.y - low.y + high.z - low.z) * scale_;
    AddSurfaces();
    for (const VisibleLine& line : lines)
      AddLine(line);
    AddNames();
    if (options.withTags) AddTags();
    ListByBands();
  }

  // Nothing when it would take too long.
  std::optional<Picture> Run() {
    picture_.bytes.resize(static_cast<std::size_t>(picture_.width) *
                          static_cast<std::size_t>(picture_.height) * picture_.Channels());
    DepthBand band(picture_.width * samples_, BAND * samples_);
    for (int row = 0; row < picture_.height && band.Steps() <= MOST_STEPS; row += BAND)
      RenderBand(band, row);
    if (band.Steps() > MOST_STEPS) return std::nullopt;
    return std::move(picture_);
  }

 private:
  struct Shape {
    SampleTriangle corners;
    std::uint32_t owner = 0;  // index in colours_
  };

  Vec3 InSamples(const Vec3& p) const {
    return {left_ + (p.x - frame_.left) * scale_, top_ + (frame_.top - p.y) * scale_,
            (p.z - depth_) * scale_};
  }

  Vec3 At(const Vec3& point) const { return InSamples(view_.Project(point)); }

  std::uint32_t AddColour(const Colour& colour) {
    colours_.push_back(colour);
    return static_cast<std::uint32_t>(colours_.size() - 1);
  }

  // The nearest ones come first, so that what they hide is left out.
  void AddSurfaces() {
    for (const Surface& surface : scene_.surfaces) {
      const std::vector<Vec3>& corners = surface.corners;
      const std::uint32_t owner = AddColour(Lit(PaintOf(surface), Brightness(view_, NormalOf(corners))));
      const std::vector<std::size_t> indices = Triangles(corners);
      for (std::size_t i = 0; i < indices.size(); i += 3) {
        surfaces_.push_back(
            {{At(corners[indices[i]]), At(corners[indices[i + 1]]), At(corners[indices[i + 2]])}, owner});
      }
    }
    const auto nearest = [](const Shape& shape) {
      return std::max({shape.corners[0].z, shape.corners[1].z, shape.corners[2].z});
    };
    std::stable_sort(surfaces_.begin(), surfaces_.end(),
                     [&](const Shape& a, const Shape& b) { return nearest(a) > nearest(b); });
  }

  // A visible line is so much nearer to the viewer than the surfaces that it bounds that none of them cuts
  // it.
  void AddLine(const VisibleLine& line) {
    Stroke stroke{InSamples(line.a), InSamples(line.b), {}, line.offset * scale_, EDGE_WIDTH * samples_};
    stroke.a.z += pull_;
    stroke.b.z += pull_;
    for (const double length :
         ReadablePattern(scene_.patterns[line.pattern], SHORTEST_PERIOD * samples_ / scale_))
      stroke.pattern.push_back(length * scale_);
    AddStroke(std::move(stroke), line.isEdge ? EdgeInk(line.colour) : Ink(line.colour));
  }

  void AddStroke(Stroke stroke, const Colour& colour) {
    strokes_.push_back(std::move(stroke));
    const std::uint32_t owner = AddColour(colour);
    if (strokes_.size() == 1) firstStroke_ = owner;
  }

  void AddNames() {
    const double perPixel = samples_ / scale_;
    const RoofNames names =
        PlaceRoofNames(scene_, view_, frame_, {NAME_HEIGHTS.least * perPixel, NAME_HEIGHTS.most * perPixel});
    picture_.unnamedRoofs = names.withoutRoom;
    for (const PlacedName& name : names.shown) {
      AddName(name, HALO_WIDTH * samples_, HALO, 2 * pull_);
      AddName(name, NAME_WIDTH * samples_, NAME_INK, 3 * pull_);
    }
  }

  // A tag comes nearer to the viewer than its window, but not than what stands before that.
  void AddTags() {
    for (const SceneWindow& window : scene_.windows) {
      if (window.box.IsEmpty() || geometry::VecDot(window.facing, view_.toward) < LEAST_FACING) continue;
      const double size = geometry::Distance(window.box.low, window.box.high);
      const double letters = std::min(TAG_HEIGHTS.most * samples_ / scale_, size * TAG_SHARE);
      if (letters < TAG_HEIGHTS.least * samples_ / scale_) {
        ++picture_.untaggedWindows;
        continue;
      }
      const PlacedName tag = {window.name, view_.Project(window.box.Centre()), letters};
      AddName(tag, HALO_WIDTH * samples_, HALO, size * scale_);
      AddName(tag, TAG_WIDTH * samples_, NAME_INK, 1.1 * size * scale_);
    }
  }

  // A name comes so much nearer to the viewer than what it stands on.
  void AddName(const PlacedName& name, double width, const Colour& colour, double pull) {
    const Vec3 middle = InSamples(name.middle);
    const double height = name.height * scale_;
    const auto at = [&](const Vec3& point) {
      return Vec3{middle.x + point.x * height, middle.y - point.y * height, middle.z + pull};
    };
    for (const std::vector<Vec3>& line : StrokesOf(name.text)) {
      for (std::size_t i = 1; i < line.size(); ++i)
        AddStroke({at(line[i - 1]), at(line[i]), {}, 0, width}, colour);
    }
  }

  void ListByBands() {
    const double height = BAND * samples_;
    const auto bands = static_cast<std::size_t>((picture_.height + BAND - 1) / BAND);
    surfacesByBand_.emplace(bands, height);
    for (const Shape& shape : surfaces_) {
      const auto& [a, b, c] = shape.corners;
      surfacesByBand_->Add(std::min({a.y, b.y, c.y}), std::max({a.y, b.y, c.y}));
    }
    strokesByBand_.emplace(bands, height);
    for (const Stroke& stroke : strokes_) {
      strokesByBand_->Add(std::min(stroke.a.y, stroke.b.y) - stroke.width,
                          std::max(stroke.a.y, stroke.b.y) + stroke.width);
    }
  }

  void RenderBand(DepthBand& band, int firstRow) {
    band.Begin(firstRow * samples_);
    const auto number = static_cast<std::size_t>(firstRow / BAND);
    for (const std::uint32_t i : surfacesByBand_->In(number))
      band.Fill(surfaces_[i].corners, surfaces_[i].owner);
    for (const std::uint32_t i : strokesByBand_->In(number))
      Draw(strokes_[i], firstStroke_ + i, firstRow, band);
    const int rows = std::min(BAND, picture_.height - firstRow);
    for (int row = firstRow; row < firstRow + rows; ++row) {
      for (int column = 0; column < picture_.width; ++column) {
        const auto pixel = static_cast<std::size_t>(row) * static_cast<std::size_t>(picture_.width) +
                           static_cast<std::size_t>(column);
        Average(band, row, column, &picture_.bytes[pixel * picture_.Channels()]);
      }
    }
  }

  // The dashes of a stroke, as far as they may lie in the band.
  void Draw(const Stroke& stroke, std::uint32_t owner, int firstRow, DepthBand& band) const {
    const double width = stroke.width;
    const double top = firstRow * samples_ - width;
    const double bottom = (firstRow + BAND) * samples_ + width;
    const double right = picture_.width * samples_ + width;
    std::pair<double, double> part = {0, 1};
    const Vec3& a = stroke.a;
    const Vec3& b = stroke.b;
    if (!Narrow(a.y - top, b.y - top, part) || !Narrow(bottom - a.y, bottom - b.y, part) ||
        !Narrow(a.x + width, b.x + width, part) || !Narrow(right - a.x, right - b.x, part))
      return;
    if (stroke.pattern.empty()) {
      DrawDash(a, b, width, width / 2, owner, band);
      return;
    }
    const double offset = stroke.offset + part.first * DistanceInPicture(a, b);
    const std::vector<Vec3> points = {geometry::Between(a, b, part.first),
                                      geometry::Between(a, b, part.second)};
    for (const std::vector<Vec3>& dash : Dashes(points, stroke.pattern, offset))
      DrawDash(dash.front(), dash.back(), width, 0, owner, band);
  }

  // A narrow strip whose ends stand out by so much: by half of its width they close the corners of lines.
  static void DrawDash(const Vec3& a, const Vec3& b, double width, double standOut, std::uint32_t owner,
                       DepthBand& band) {
    const double half = width / 2;
    const double length = DistanceInPicture(a, b);
    const double alongX = length > 0 ? (b.x - a.x) / length : 1;
    const double alongY = length > 0 ? (b.y - a.y) / length : 0;
    const Vec3 p = {a.x - alongX * standOut, a.y - alongY * standOut, a.z};
    const Vec3 q = {b.x + alongX * standOut, b.y + alongY * standOut, b.z};
    const Vec3 p1 = {p.x - alongY * half, p.y + alongX * half, p.z};
    const Vec3 p2 = {p.x + alongY * half, p.y - alongX * half, p.z};
    const Vec3 q1 = {q.x - alongY * half, q.y + alongX * half, q.z};
    const Vec3 q2 = {q.x + alongY * half, q.y - alongX * half, q.z};
    band.Fill({p1, p2, q1}, owner);
    band.Fill({p2, q2, q1}, owner);
  }

  // The middle colour of a pixel's samples, which mostly are of one.
  void Average(const DepthBand& band, int row, int column, std::uint8_t* to) const {
    const std::uint32_t* const owners = band.OwnersFrom(row * samples_, column * samples_);
    std::uint32_t others = 0;
    for (int y = 0; y < samples_; ++y) {
      for (int x = 0; x < samples_; ++x)
        others |= owners[y * DepthBand::TILE + x] ^ owners[0];
    }
    if (others != 0) {
      PutMixed(owners, to);
    } else if (picture_.isTransparent && owners[0] == GROUND_OWNER) {
      Put({}, 0, to);
    } else {
      Put(colours_[owners[0]], OPAQUE_ALPHA, to);
    }
  }

  void Put(const Colour& colour, std::uint8_t alpha, std::uint8_t* to) const {
    to[0] = colour.red;
    to[1] = colour.green;
    to[2] = colour.blue;
    if (picture_.isTransparent) to[3] = alpha;
  }

  // In a transparent picture the ground has no part in the colour.
  void PutMixed(const std::uint32_t* owners, std::uint8_t* to) const {
    std::array<int, 3> sums{};
    int count = 0;
    for (int y = 0; y < samples_; ++y) {
      for (int x = 0; x < samples_; ++x) {
        const std::uint32_t owner = owners[y * DepthBand::TILE + x];
        if (picture_.isTransparent && owner == GROUND_OWNER) continue;
        const Colour& colour = colours_[owner];
        sums[0] += colour.red;
        sums[1] += colour.green;
        sums[2] += colour.blue;
        ++count;
      }
    }
    const auto mean = [](int sum, int of) {
      return of == 0 ? std::uint8_t{0} : static_cast<std::uint8_t>((sum + of / 2) / of);
    };
    Put({mean(sums[0], count), mean(sums[1], count), mean(sums[2], count)},
        mean(OPAQUE_ALPHA * count, samples_ * samples_), to);
  }

  const Scene& scene_;
  const View& view_;
  Frame frame_;
  int samples_;
  double scale_ = 1;  // samples a drawing unit
  double left_ = 0;
  double top_ = 0;
  double depth_ = 0;
  double pull_ = 0;
  std::vector<Colour> colours_{GROUND};  // by owner
  std::vector<Shape> surfaces_;
  std::vector<Stroke> strokes_;
  std::uint32_t firstStroke_ = 0;  // owner; those of the others follow
  std::optional<BandLists> surfacesByBand_;
  std::optional<BandLists> strokesByBand_;
  Picture picture_;
};

}  // namespace

Picture Render(const Scene& scene, const PictureOptions& options) {
  const Frame frame = FrameFor(scene, options);
  const std::vector<VisibleLine> lines = VisibleLines(scene, *options.view, frame);
  for (const int samples : SAMPLES) {
    if (std::optional<Picture> picture = Renderer(scene, options, frame, lines, samples).Run())
      return *std::move(picture);
  }
  throw Error(fmt::format(
      "{}: too many surfaces lie over one another for a picture {} pixels wide; give a smaller --width "
      "or some of the layers with --layer, or write a .html or .glb",
      scene.file, options.width));
}

}  // namespace teskarlt::preview

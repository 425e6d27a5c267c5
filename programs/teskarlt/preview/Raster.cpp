// Raster.cpp - fills triangles and lines through a depth buffer, in bands of rows.
#include "teskarlt/preview/Raster.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "teskarlt/preview/VisibleLines.h"

namespace teskarlt::preview {

namespace {

constexpr int SAMPLES = 4;          // in each direction of a pixel
constexpr int BAND = 32;            // rows of pixels that are held at a time
constexpr double MARGIN = 0.04;     // of the picture's width
constexpr double TALLEST = 1.5;     // height of the picture against its width
constexpr double EDGE_WIDTH = 1.1;  // pixels
constexpr Colour GROUND = {236, 239, 241};

// In samples, y downwards, z towards the viewer.
struct Triangle {
  std::array<Vec3, 3> corners;
  Colour colour;
};

int RowAt(double y) {
  return static_cast<int>(std::clamp(std::ceil(y - 0.5), -1e9, 1e9));
}

// The samples of one band of rows.
class Band {
 public:
  Band(int width, int firstRow, int rows) : width_(width), first_(firstRow), rows_(rows) {
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(rows);
    depths_.assign(count, -std::numeric_limits<float>::infinity());
    colours_.assign(count, GROUND);
  }

  // A sample belongs to a triangle when its middle does.
  void Fill(const Triangle& triangle) {
    const auto& [a, b, c] = triangle.corners;
    const double turn = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    if (turn == 0) return;
    const double slopeX = ((b.z - a.z) * (c.y - a.y) - (c.z - a.z) * (b.y - a.y)) / turn;
    const double slopeY = ((c.z - a.z) * (b.x - a.x) - (b.z - a.z) * (c.x - a.x)) / turn;
    const int from = std::max(first_, RowAt(std::min({a.y, b.y, c.y})));
    const int to = std::min(first_ + rows_, RowAt(std::max({a.y, b.y, c.y})));
    for (int row = from; row < to; ++row) {
      double left = std::numeric_limits<double>::infinity();
      double right = -left;
      const double y = row + 0.5;
      Cross(a, b, y, left, right);
      Cross(b, c, y, left, right);
      Cross(c, a, y, left, right);
      const int end = std::min(width_, RowAt(right));
      for (int column = std::max(0, RowAt(left)); column < end; ++column) {
        const double depth = a.z + (column + 0.5 - a.x) * slopeX + (y - a.y) * slopeY;
        Put(row, column, static_cast<float>(depth), triangle.colour);
      }
    }
  }

  // The middle colour of a pixel's samples.
  void Average(int row, int column, std::uint8_t* to) const {
    int red = 0;
    int green = 0;
    int blue = 0;
    for (int y = 0; y < SAMPLES; ++y) {
      for (int x = 0; x < SAMPLES; ++x) {
        const Colour& colour = colours_[Index(first_ + row * SAMPLES + y, column * SAMPLES + x)];
        red += colour.red;
        green += colour.green;
        blue += colour.blue;
      }
    }
    constexpr int count = SAMPLES * SAMPLES;
    to[0] = static_cast<std::uint8_t>((red + count / 2) / count);
    to[1] = static_cast<std::uint8_t>((green + count / 2) / count);
    to[2] = static_cast<std::uint8_t>((blue + count / 2) / count);
  }

 private:
  std::size_t Index(int row, int column) const {
    return static_cast<std::size_t>(row - first_) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(column);
  }

  void Put(int row, int column, float depth, const Colour& colour) {
    const std::size_t index = Index(row, column);
    if (!(depth > depths_[index])) return;
    depths_[index] = depth;
    colours_[index] = colour;
  }

  // Widens the range to where the edge from p to q crosses the height y.
  static void Cross(const Vec3& p, const Vec3& q, double y, double& left, double& right) {
    if ((p.y <= y) == (q.y <= y)) return;
    const double x = p.x + (q.x - p.x) * ((y - p.y) / (q.y - p.y));
    left = std::min(left, x);
    right = std::max(right, x);
  }

  int width_;
  int first_;
  int rows_;
  std::vector<float> depths_;
  std::vector<Colour> colours_;
};

class Renderer {
 public:
  Renderer(const Scene& scene, const PictureOptions& options)
      : scene_(scene), view_(*options.view), frame_(FrameOf(scene, view_, options.window)) {
    const double margin = options.width * MARGIN;
    const double room = options.width - 2 * margin;
    double scale = room / frame_.Width();
    scale = std::min(scale, room * TALLEST / frame_.Height());
    picture_.width = options.width;
    picture_.height = static_cast<int>(std::ceil(frame_.Height() * scale + 2 * margin));
    scale_ = scale * SAMPLES;
    left_ = (options.width - frame_.Width() * scale) / 2 * SAMPLES;
    top_ = margin * SAMPLES;
    depth_ = view_.Project(scene.box.Centre()).z;
    const Vec3& low = scene.box.low;
    const Vec3& high = scene.box.high;
    pull_ = (high.x - low.x + high.y - low.y + high.z - low.z) * scale_;
  }

  Picture Run() {
    for (const Surface& surface : scene_.surfaces)
      AddSurface(surface);
    for (const VisibleLine& line : VisibleLines(scene_, view_, frame_)) {
      const Colour colour = line.isEdge ? EdgeInk(line.colour) : Ink(line.colour);
      for (const std::vector<Vec3>& dash :
           Dashes({line.a, line.b}, scene_.patterns[line.pattern], line.offset))
        AddLine(InSamples(dash.front()), InSamples(dash.back()), colour);
    }
    picture_.bytes.resize(static_cast<std::size_t>(picture_.width) *
                          static_cast<std::size_t>(picture_.height) * 3);
    for (int row = 0; row < picture_.height; row += BAND)
      RenderBand(row, std::min(BAND, picture_.height - row));
    return std::move(picture_);
  }

 private:
  Vec3 InSamples(const Vec3& p) const {
    return {left_ + (p.x - frame_.left) * scale_, top_ + (frame_.top - p.y) * scale_,
            (p.z - depth_) * scale_};
  }

  Vec3 At(const Vec3& point) const { return InSamples(view_.Project(point)); }

  void AddSurface(const Surface& surface) {
    const std::vector<Vec3>& corners = surface.corners;
    const Colour colour = Lit(PaintOf(surface), Brightness(view_, NormalOf(corners)));
    const std::vector<std::size_t> indices = Triangles(corners);
    for (std::size_t i = 0; i < indices.size(); i += 3)
      Add({{At(corners[indices[i]]), At(corners[indices[i + 1]]), At(corners[indices[i + 2]])}, colour});
  }

  // A visible line is a narrow strip, so much nearer to the viewer than the surfaces that it bounds that
  // none of them cuts it.
  void AddLine(Vec3 a, Vec3 b, const Colour& colour) {
    constexpr double half = EDGE_WIDTH * SAMPLES / 2;
    const double length = std::sqrt((b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y));
    const double alongX = length > 0 ? (b.x - a.x) / length * half : half;
    const double alongY = length > 0 ? (b.y - a.y) / length * half : 0;
    a.z += pull_;
    b.z += pull_;
    // Ends stand out by half of the width, so that corners are closed.
    const Vec3 p = {a.x - alongX, a.y - alongY, a.z};
    const Vec3 q = {b.x + alongX, b.y + alongY, b.z};
    const Vec3 p1 = {p.x - alongY, p.y + alongX, p.z};
    const Vec3 p2 = {p.x + alongY, p.y - alongX, p.z};
    const Vec3 q1 = {q.x - alongY, q.y + alongX, q.z};
    const Vec3 q2 = {q.x + alongY, q.y - alongX, q.z};
    Add({{p1, p2, q1}, colour});
    Add({{p2, q2, q1}, colour});
  }

  void Add(const Triangle& triangle) {
    const auto [low, high] =
        std::minmax({triangle.corners[0].y, triangle.corners[1].y, triangle.corners[2].y});
    if (high < 0 || low > picture_.height * SAMPLES) return;
    triangles_.push_back(triangle);
  }

  void RenderBand(int firstRow, int rows) {
    Band band(picture_.width * SAMPLES, firstRow * SAMPLES, rows * SAMPLES);
    for (const Triangle& triangle : triangles_)
      band.Fill(triangle);
    for (int row = 0; row < rows; ++row) {
      for (int column = 0; column < picture_.width; ++column) {
        const auto pixel =
            static_cast<std::size_t>(firstRow + row) * static_cast<std::size_t>(picture_.width) +
            static_cast<std::size_t>(column);
        band.Average(row, column, &picture_.bytes[pixel * 3]);
      }
    }
  }

  const Scene& scene_;
  const View& view_;
  Frame frame_;
  double scale_ = 1;  // samples a drawing unit
  double left_ = 0;
  double top_ = 0;
  double depth_ = 0;
  double pull_ = 0;
  std::vector<Triangle> triangles_;
  Picture picture_;
};

}  // namespace

Picture Render(const Scene& scene, const PictureOptions& options) {
  return Renderer(scene, options).Run();
}

}  // namespace teskarlt::preview

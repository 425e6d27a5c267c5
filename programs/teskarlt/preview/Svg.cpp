// Svg.cpp - writes the vector picture.
#include "teskarlt/preview/Svg.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "teskarlt/preview/PaintOrder.h"
#include "teskarlt/preview/RoofNames.h"
#include "teskarlt/preview/SvgText.h"
#include "teskarlt/preview/VisibleLines.h"

namespace teskarlt::preview {

namespace {

constexpr double MARGIN = 32;
constexpr double FOOTER = 60;
constexpr double TALLEST = 1.5;        // height of the drawing against its width
constexpr double SHORTEST_LINE = 0.3;  // shorter parts are no more than dots between two surfaces
constexpr double NUMBER_ROOM = 22;     // a window of this size has room for its number

class Writer {
 public:
  Writer(const Scene& scene, const PictureOptions& options)
      : scene_(scene),
        options_(options),
        view_(*options.view),
        frame_(view_.IsPlan() ? PlanFrameOf(scene, options.zoom) : FrameOf(scene, view_, options.zoom)) {
    scale_ = (options.width - 2 * MARGIN) / frame_.Width();
    height_ = frame_.Height() * scale_;
    const double tallest = options.width * TALLEST;
    if (height_ > tallest) {
      scale_ *= tallest / height_;
      height_ = tallest;
    }
    left_ = (options.width - frame_.Width() * scale_) / 2;
  }

  VectorPicture Run() {
    Head();
    Surfaces();
    if (view_.IsPlan()) Fillings();
    Layers();
    if (view_.IsPlan()) Texts();
    text_ += "</g>\n";
    if (view_.IsPlan()) Numbers();
    if (!scene_.roofs.empty()) Names();
    Footer();
    text_ += "</svg>\n";
    return {std::move(text_), unnamedRoofs_};
  }

 private:
  double X(const Vec3& p) const { return left_ + (p.x - frame_.left) * scale_; }
  double Y(const Vec3& p) const { return MARGIN + (frame_.top - p.y) * scale_; }
  std::string At(const Vec3& p) const { return Number(X(p)) + "," + Number(Y(p)); }

  template <typename... Arguments>
  void Put(fmt::format_string<Arguments...> format, Arguments&&... arguments) {
    fmt::format_to(std::back_inserter(text_), format, std::forward<Arguments>(arguments)...);
  }

  std::string Title() const {
    const Zoom& zoom = options_.zoom;
    if (zoom.window) return fmt::format("{}, window {}", scene_.name, scene_.windows[*zoom.window].number);
    if (zoom.roof) return fmt::format("{}, roof {}", scene_.name, scene_.roofs[*zoom.roof].name);
    return scene_.name;
  }

  void Head();
  void Surfaces();
  void Fillings();
  void Layers();
  void Texts();
  void LayerLines(const std::vector<VisibleLine>& lines, const SceneLayer& layer);
  bool IsOutside(const Vec3& a, const Vec3& b) const;
  std::string DashText(const VisibleLine& line) const;
  void Numbers();
  void Names();
  void Footer();
  void ScaleBar(double y);

  const Scene& scene_;
  const PictureOptions& options_;
  const View& view_;
  Frame frame_;
  double scale_ = 1;  // pixels a drawing unit
  double height_ = 0;
  double left_ = 0;
  std::string text_;
  std::size_t unnamedRoofs_ = 0;
};

void Writer::Head() {
  const std::string height = Number(std::ceil(height_ + 2 * MARGIN + FOOTER));
  Put("<svg xmlns=\"http://www.w3.org/2000/svg\" "
      "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\"\n"
      "  width=\"{0}\" height=\"{1}\" viewBox=\"0 0 {0} {1}\" font-family=\"Helvetica, Arial, "
      "sans-serif\">\n",
      options_.width, height);
  Put("<title>{} - {}</title>\n", Escaped(Title()), view_.title);
  Put("<clipPath id=\"frame\"><rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\"/></clipPath>\n",
      Number(left_ - 4), Number(MARGIN - 4), Number(frame_.Width() * scale_ + 8), Number(height_ + 8));
  Put("<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n");
  Put("<g clip-path=\"url(#frame)\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n");
}

bool Writer::IsOutside(const Vec3& a, const Vec3& b) const {
  return std::max(a.x, b.x) < frame_.left || std::min(a.x, b.x) > frame_.right ||
         std::max(a.y, b.y) < frame_.bottom || std::min(a.y, b.y) > frame_.top;
}

void Writer::Surfaces() {
  constexpr double wash = 0.6;  // share of white
  Put("<g id=\"surfaces\" stroke-width=\"0.6\">\n");
  for (const std::size_t index : PaintOrder(scene_, view_)) {
    const Surface& surface = scene_.surfaces[index];
    std::string path;
    Box box;
    for (const Vec3& corner : surface.corners) {
      box.Add(view_.Project(corner));
      path += (path.empty() ? "M" : "L") + At(view_.Project(corner));
    }
    if (IsOutside(box.low, box.high)) continue;
    const Colour paint = Lit(PaintOf(surface), Brightness(view_, NormalOf(surface.corners)));
    const auto washed = [&](std::uint8_t channel) {
      return static_cast<std::uint8_t>(channel + (255 - channel) * wash);
    };
    const std::string colour = Hex({washed(paint.red), washed(paint.green), washed(paint.blue)});
    Put("<path class=\"layer-{0}\" fill=\"{1}\" stroke=\"{1}\" d=\"{2}Z\"/>\n", surface.layer, colour, path);
  }
  Put("</g>\n");
}

void Writer::Fillings() {
  if (scene_.fillings.empty()) return;
  Put("<g id=\"fillings\" fill-rule=\"evenodd\" fill-opacity=\"0.2\" stroke-width=\"0.6\">\n");
  for (const SceneFilling& filling : scene_.fillings) {
    std::string path;
    for (const std::vector<Vec3>& ring : filling.rings) {
      for (std::size_t i = 0; i < ring.size(); ++i)
        path += (i == 0 ? "M" : "L") + At(view_.Project(ring[i]));
      path += "Z";
    }
    Put("<path fill=\"{0}\" stroke=\"{0}\" d=\"{1}\"/>\n", Hex(Ink(filling.colour)), path);
  }
  Put("</g>\n");
}

void Writer::Texts() {
  if (scene_.texts.empty()) return;
  Put("<g id=\"texts\">\n");
  for (const SceneText& text : scene_.texts) {
    const Vec3 at = view_.Project(text.at);
    text_ += TextElement(text, {{X(at), Y(at), 0},
                                {text.along.x * scale_, -text.along.y * scale_, 0},
                                {text.up.x * scale_, -text.up.y * scale_, 0}});
  }
  Put("</g>\n");
}

void Writer::Layers() {
  std::vector<std::vector<VisibleLine>> lines(scene_.layers.size());
  for (const VisibleLine& line : VisibleLines(scene_, view_, frame_)) {
    const double length = std::sqrt((line.b.x - line.a.x) * (line.b.x - line.a.x) +
                                    (line.b.y - line.a.y) * (line.b.y - line.a.y));
    if (length * scale_ >= SHORTEST_LINE) lines[line.layer].push_back(line);
  }
  for (std::size_t layer = 0; layer < lines.size(); ++layer) {
    Put(R"(<g id="layer-{}" inkscape:groupmode="layer" inkscape:label="{}")", layer,
        Escaped(scene_.layers[layer].name));
    Put(" fill=\"none\" stroke=\"{}\" stroke-width=\"0.8\">\n", Hex(Ink(scene_.layers[layer].colour)));
    LayerLines(lines[layer], scene_.layers[layer]);
    Put("</g>\n");
  }
}

// stroke-dasharray and its offset; empty for an unbroken line.
std::string Writer::DashText(const VisibleLine& line) const {
  double period = 0;
  std::string lengths;
  for (const double length : ReadablePattern(scene_.patterns[line.pattern], SHORTEST_PERIOD / scale_)) {
    period += length * scale_;
    lengths += (lengths.empty() ? "" : ",") + Number(length * scale_);
  }
  if (lengths.empty()) return {};
  std::string text = fmt::format(R"( stroke-dasharray="{}" stroke-linecap="butt")", lengths);
  const double offset = std::fmod(line.offset * scale_, period);
  if (Number(offset) != "0") text += fmt::format(" stroke-dashoffset=\"{}\"", Number(offset));
  return text;
}

// One path for neighbouring lines of the same look.
void Writer::LayerLines(const std::vector<VisibleLine>& lines, const SceneLayer& layer) {
  std::string path;
  std::string end;
  const VisibleLine* last = nullptr;
  const auto close = [&] {
    if (last == nullptr) return;
    const std::string colour =
        last->colour == layer.colour ? "" : fmt::format(" stroke=\"{}\"", Hex(Ink(last->colour)));
    Put("<path{}{} d=\"{}\"/>\n", colour, DashText(*last), path);
    path.clear();
    end.clear();
  };
  for (const VisibleLine& line : lines) {
    const bool joins =
        last != nullptr && last->colour == line.colour && last->pattern == 0 && line.pattern == 0;
    if (!joins) close();
    const std::string from = At(line.a);
    if (from != end) path += "M" + from;
    end = At(line.b);
    path += "L" + end;
    last = &line;
  }
  close();
}

void Writer::Numbers() {
  Put("<g id=\"window-numbers\" font-size=\"10\" text-anchor=\"middle\" fill=\"#1d3a4f\" "
      "clip-path=\"url(#frame)\">\n");
  for (const SceneWindow& window : scene_.windows) {
    if (window.box.IsEmpty()) continue;
    const double size = std::min(window.box.high.x - window.box.low.x, window.box.high.y - window.box.low.y);
    const Vec3 middle = window.box.Centre();
    if (size * scale_ < NUMBER_ROOM || IsOutside(middle, middle)) continue;
    Put("<circle cx=\"{0}\" cy=\"{1}\" r=\"9\" fill=\"#ffffff\" fill-opacity=\"0.9\" stroke=\"#1d3a4f\" "
        "stroke-width=\"0.8\"/><text x=\"{0}\" y=\"{2}\">{3}</text>\n",
        Number(X(middle)), Number(Y(middle)), Number(Y(middle) + 3.5), window.number);
  }
  Put("</g>\n");
}

void Writer::Names() {
  constexpr double capital = 0.72;  // height of a capital letter against the size of the font
  constexpr LetterHeights inPixels = {6, 10};
  const RoofNames names =
      PlaceRoofNames(scene_, view_, frame_, {inPixels.least / scale_, inPixels.most / scale_});
  unnamedRoofs_ = names.withoutRoom;
  Put("<g id=\"roof-names\" font-weight=\"bold\" text-anchor=\"middle\" fill=\"#1d3a4f\" stroke=\"#ffffff\" "
      "stroke-width=\"2.5\" stroke-linejoin=\"round\" paint-order=\"stroke\">\n");
  for (const PlacedName& name : names.shown) {
    const double height = name.height * scale_;
    Put("<text x=\"{}\" y=\"{}\" font-size=\"{}\">{}</text>\n", Number(X(name.middle)),
        Number(Y(name.middle) + height / 2), Number(height / capital), name.text);
  }
  Put("</g>\n");
}

void Writer::ScaleBar(double y) {
  constexpr double widest = 200;
  constexpr double thickness = 5;
  const double unitsPerStep = scene_.perMetre > 0 ? scene_.perMetre : 1;
  const double length = RoundLength(widest / scale_ / unitsPerStep);
  const double width = length * unitsPerStep * scale_;
  const double x = options_.width - MARGIN - width - 14;
  Put("<g id=\"scale-bar\" font-size=\"11\" fill=\"#333333\" text-anchor=\"middle\">\n");
  Put("<rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\" fill=\"#ffffff\" stroke=\"#333333\" "
      "stroke-width=\"0.8\"/>\n",
      Number(x), Number(y), Number(width), thickness);
  Put("<path d=\"M{0},{1}h{2}v{3}h-{2}z\"/>\n", Number(x), Number(y), Number(width / 2), thickness);
  const std::string unit = scene_.perMetre > 0 ? " m" : "";
  Put(R"(<text x="{}" y="{}">0</text>)", Number(x), Number(y + 19));
  Put(R"(<text x="{}" y="{}">{}</text>)", Number(x + width / 2), Number(y + 19), length / 2);
  Put("<text x=\"{}\" y=\"{}\">{}{}</text>\n</g>\n", Number(x + width), Number(y + 19), length, unit);
}

void Writer::Footer() {
  const double y = MARGIN + height_ + 30;
  Put("<g id=\"title\" fill=\"#222222\">\n<text x=\"{}\" y=\"{}\" font-size=\"16\" "
      "font-weight=\"bold\">{}</text>\n",
      MARGIN, Number(y + 8), Escaped(Title()));
  const std::size_t count = scene_.windows.size();
  const std::string windows =
      count == 0 ? "" : fmt::format(", {} roof window{}", count, count == 1 ? "" : "s");
  Put("<text x=\"{}\" y=\"{}\" font-size=\"12\" fill=\"#666666\">{}{}</text>\n</g>\n", MARGIN, Number(y + 26),
      view_.title, windows);
  ScaleBar(y);
}

}  // namespace

VectorPicture Svg(const Scene& scene, const PictureOptions& options) {
  return Writer(scene, options).Run();
}

}  // namespace teskarlt::preview

// Texts.cpp - reads the lines of texts.
#include "teskarlt/preview/Texts.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"
#include "teskarlt/drawing/Curves.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodes.h"

namespace teskarlt::preview {

namespace {

using geometry::Moved;
using geometry::Scaled;

constexpr double BELOW_BASELINE = 0.3;    // how far letters reach, in heights of capitals
constexpr double LINE_SPACING = 5.0 / 3;  // from baseline to baseline
constexpr double USUAL_ADVANCE = 0.8;     // of a letter
constexpr std::string_view DEGREES = "\u00b0";
constexpr std::string_view PLUS_MINUS = "\u00b1";
constexpr std::string_view DIAMETER = "\u2300";

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

// Characters of UTF-8.
std::size_t LettersIn(std::string_view text) {
  constexpr unsigned char kind = 0xC0;
  constexpr unsigned char continued = 0x80;
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & kind) != continued; }));
}

// How a text lies: unit vectors along its baseline and up its letters.
struct Directions {
  Vec3 along;
  Vec3 up;
};

Directions TurnedBy(double degrees) {
  const double angle = geometry::DegToRad(degrees);
  const double c = geometry::Cosine(angle);
  const double s = geometry::Sine(angle);
  return {{c, s, 0}, {-s, c, 0}};
}

// The directions of a TEXT with width, slant and mirroring, as long as its capitals are high.
Directions LettersOf(const dxf::TagList& text, double rotation) {
  const double height = text.Real(dxf::CODE_TEXT_HEIGHT);
  const double width = text.Real(dxf::CODE_TEXT_WIDTH, 1.0);
  const std::int64_t mirroring = text.Integer(dxf::CODE_TEXT_MIRRORING);
  const double slant = std::clamp(text.Real(dxf::CODE_TEXT_SLANT), -80.0, 80.0);
  const Directions turned = TurnedBy(rotation);
  const double across =
      geometry::Sine(geometry::DegToRad(slant)) / geometry::Cosine(geometry::DegToRad(slant));
  Directions letters{Scaled(turned.along, height * width),
                     Moved(Scaled(turned.up, height), turned.along, height * across)};
  if ((mirroring & dxf::TEXT_BACKWARDS) != 0) letters.along = Scaled(letters.along, -1);
  if ((mirroring & dxf::TEXT_UPSIDE_DOWN) != 0) letters.up = Scaled(letters.up, -1);
  return letters;
}

// How far below its point a text's baseline lies, in heights of capitals.
double DropOf(std::int64_t up) {
  switch (up) {
    case dxf::TEXT_AT_BOTTOM:
      return -BELOW_BASELINE;
    case dxf::TEXT_AT_MIDDLE:
      return 0.5;
    case dxf::TEXT_AT_TOP:
      return 1;
    default:
      return 0;
  }
}

TextAnchor AnchorOf(std::int64_t across) {
  if (across == dxf::TEXT_RIGHT) return TextAnchor::End;
  return across == 0 ? TextAnchor::Start : TextAnchor::Middle;
}

void ToDrawing(const dxf::TagList& entity, SceneText& text) {
  const geometry::Matrix4 matrix = ObjectToDrawing(entity.Point(dxf::CODE_EXTRUSION, UPWARDS));
  geometry::MatTransformPoint(matrix, text.at, text.at);
  geometry::MatTransformVector(matrix, text.along, text.along);
  geometry::MatTransformVector(matrix, text.up, text.up);
}

// A text between its two points has its middle between them.
SceneText SingleLine(const dxf::TagList& entity) {
  const std::int64_t across = entity.Integer(dxf::CODE_TEXT_ACROSS);
  const bool isAttribute = dxf::SameName(entity.Type(), dxf::TYPE_ATTRIBUTE);
  const std::int64_t up = entity.Integer(isAttribute ? dxf::CODE_ATTRIBUTE_UP : dxf::CODE_TEXT_UP);
  const Vec3 point = entity.Point(dxf::CODE_TEXT_POINT);
  const Vec3 other = entity.Point(dxf::CODE_TEXT_ALIGNMENT_POINT, point);
  const bool isBetween = across == dxf::TEXT_ALIGNED || across == dxf::TEXT_FIT;
  const bool isAligned = across != 0 || up != 0;
  double rotation = entity.Real(dxf::CODE_TEXT_ROTATION);
  if (isBetween && geometry::Distance(point, other) > 0)
    rotation = geometry::RadToDeg(std::atan2(other.y - point.y, other.x - point.x));
  const Directions letters = LettersOf(entity, rotation);
  SceneText text;
  text.text = PlainText(entity.Text(dxf::CODE_TEXT_CONTENT));
  text.anchor = AnchorOf(across);
  text.along = letters.along;
  text.up = letters.up;
  text.at = isBetween ? geometry::Between(point, other, 0.5) : isAligned ? other : point;
  text.at = Moved(text.at, text.up, -(across == dxf::TEXT_MIDDLE_OF_BOTH ? 0.5 : DropOf(up)));
  ToDrawing(entity, text);
  return text;
}

// Broken at blanks where a line is longer than so many letters.
std::vector<std::string> Wrapped(const std::vector<std::string>& lines, double mostLetters) {
  std::vector<std::string> wrapped;
  for (std::string_view rest : lines) {
    while (static_cast<double>(LettersIn(rest)) > mostLetters) {
      std::size_t end = std::string_view::npos;
      for (std::size_t blank = rest.find(' '); blank != std::string_view::npos;
           blank = rest.find(' ', blank + 1)) {
        if (end != std::string_view::npos &&
            static_cast<double>(LettersIn(rest.substr(0, blank))) > mostLetters)
          break;
        end = blank;
      }
      if (end == std::string_view::npos) break;
      wrapped.emplace_back(rest.substr(0, end));
      rest.remove_prefix(end + 1);
    }
    wrapped.emplace_back(rest);
  }
  return wrapped;
}

// Where the first baseline lies below the point of an MTEXT, in heights of capitals.
double FirstDrop(std::int64_t row, double lines, double spacing) {
  const double others = (lines - 1) * spacing;  // from the first baseline to the last one
  if (row == 0) return 1;
  return row == 1 ? (1 - others) / 2 : -BELOW_BASELINE - others;
}

// The content of an MTEXT, whose pieces may divide a letter.
std::string ContentOf(const dxf::TagList& entity, const dxf::Document& drawing) {
  std::string raw;
  for (const dxf::Tag& tag : entity.Tags())
    if (tag.code == dxf::CODE_MTEXT_CHUNK || tag.code == dxf::CODE_TEXT_CONTENT) raw += tag.value;
  return drawing.Decode(raw);
}

std::vector<SceneText> ManyLines(const dxf::TagList& entity, const dxf::Document& drawing) {
  const double height = entity.Real(dxf::CODE_TEXT_HEIGHT);
  const Vec3 direction = entity.Point(dxf::CODE_MTEXT_DIRECTION);
  Directions turned = TurnedBy(entity.Real(dxf::CODE_TEXT_ROTATION));
  if (const double length = std::sqrt(direction.x * direction.x + direction.y * direction.y); length > 0) {
    turned.along = {direction.x / length, direction.y / length, 0};
    turned.up = {-turned.along.y, turned.along.x, 0};
  }
  std::vector<std::string> lines = PlainLines(ContentOf(entity, drawing));
  const double width = entity.Real(dxf::CODE_MTEXT_WIDTH);
  if (width > 0 && height > 0) lines = Wrapped(lines, width / height / USUAL_ADVANCE);
  const std::int64_t attachment =
      std::clamp<std::int64_t>(entity.Integer(dxf::CODE_MTEXT_ATTACHMENT, 1), 1, 9) - 1;
  const double spacing = LINE_SPACING * entity.Real(dxf::CODE_MTEXT_SPACING, 1.0);
  double drop = FirstDrop(attachment / 3, static_cast<double>(lines.size()), spacing);
  std::vector<SceneText> texts;
  texts.reserve(lines.size());
  for (std::string& line : lines) {
    SceneText text;
    text.text = std::move(line);
    text.anchor = static_cast<TextAnchor>(attachment % 3);
    text.along = Scaled(turned.along, height);
    text.up = Scaled(turned.up, height);
    text.at = Moved(entity.Point(dxf::CODE_TEXT_POINT), text.up, -drop);
    texts.push_back(std::move(text));
    drop += spacing;
  }
  return texts;
}

// Takes the formatting out of an MTEXT's content.
class Stripper {
 public:
  explicit Stripper(std::string_view content) : rest_(content) {}

  std::vector<std::string> Run() {
    while (!rest_.empty()) {
      const char c = Next();
      if (c == '\\' && !rest_.empty()) {
        Code(Next());
      } else if (c != '{' && c != '}') {
        lines_.back() += c;
      }
    }
    for (std::string& line : lines_)
      line = PlainText(line);
    return std::move(lines_);
  }

 private:
  char Next() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  // Up to a semicolon, which is taken, too.
  std::string_view Argument() {
    const std::size_t end = std::min(rest_.find(';'), rest_.size());
    const std::string_view argument = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return argument;
  }

  void Code(char code) {
    constexpr std::string_view withArgument = "ACFHQTWcfp";
    constexpr std::string_view switches = "LlOoKk";
    if (code == 'P' || code == 'N' || code == 'X') {
      lines_.emplace_back();
    } else if (code == '~') {
      lines_.back() += ' ';
    } else if (code == 'S') {
      std::string fraction(Argument());
      std::replace_if(
          fraction.begin(), fraction.end(), [](char c) { return c == '^' || c == '#'; }, '/');
      lines_.back() += fraction;
    } else if (withArgument.find(code) != std::string_view::npos) {
      Argument();
    } else if (switches.find(code) == std::string_view::npos) {
      lines_.back() += code;  // a backslash, a brace, or a code that nobody knows
    }
  }

  std::string_view rest_;
  std::vector<std::string> lines_{1};
};

}  // namespace

bool IsText(std::string_view type) {
  return dxf::SameName(type, dxf::TYPE_TEXT) || dxf::SameName(type, dxf::TYPE_MTEXT);
}

std::string PlainText(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.substr(i, 2) != "%%" || i + 2 >= text.size()) {
      plain += static_cast<unsigned char>(text[i]) < 0x20 ? ' ' : text[i];
      continue;
    }
    const char code = text[i + 2];
    if (code == 'd' || code == 'D') plain += DEGREES;
    if (code == 'p' || code == 'P') plain += PLUS_MINUS;
    if (code == 'c' || code == 'C') plain += DIAMETER;
    if (code == '%') plain += '%';
    i += 2;
  }
  return plain;
}

std::vector<std::string> PlainLines(std::string_view content) {
  return Stripper(content).Run();
}

std::vector<SceneText> TextsOf(const dxf::TagList& entity, const dxf::Document& drawing) {
  const bool isAttribute = dxf::SameName(entity.Type(), dxf::TYPE_ATTRIBUTE);
  if (isAttribute && (entity.Integer(dxf::CODE_ATTRIBUTE_FLAGS) & dxf::ATTRIBUTE_INVISIBLE) != 0) return {};
  if (!(entity.Real(dxf::CODE_TEXT_HEIGHT) > 0)) return {};
  std::vector<SceneText> texts;
  if (dxf::SameName(entity.Type(), dxf::TYPE_MTEXT)) {
    texts = ManyLines(entity, drawing);
  } else {
    texts.push_back(SingleLine(entity));
  }
  std::erase_if(texts, [](const SceneText& text) { return IsBlank(text.text); });
  return texts;
}

}  // namespace teskarlt::preview

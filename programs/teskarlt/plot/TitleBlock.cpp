// TitleBlock.cpp - what stands in the strip below a plan.
#include "teskarlt/plot/TitleBlock.h"

#include <vector>

#include <fmt/format.h>

#include "teskarlt/preview/SvgText.h"

namespace teskarlt::plot {

namespace {

using preview::Number;

constexpr double CAPTION_SIZE = 1.8;
constexpr double PADDING = 1.5;

struct Field {
  const char* caption;
  std::string text;
  double size;   // of the font
  double share;  // of the width of its row
};

void DrawRow(const std::vector<Field>& fields, const PaperBox& row, Canvas& canvas) {
  double left = row.left;
  for (const Field& field : fields) {
    const double width = row.Width() * field.share;
    canvas.Box({left, row.top, left + width, row.bottom},
               R"( fill="none" stroke="#000000" stroke-width="0.25")");
    canvas.Text({field.caption, {left + PADDING, row.top + PADDING + CAPTION_SIZE * CAPITAL}, CAPTION_SIZE});
    canvas.TextWithin({field.text, {left + PADDING, row.bottom - PADDING - 0.5}, field.size},
                      width - 2 * PADDING);
    left += width;
  }
}

// A circle with an arrow in it, and the letter above.
void DrawNorth(const PaperPoint& middle, Canvas& canvas) {
  constexpr double radius = 6;
  canvas.BeginGroup("north", R"( stroke="#000000" stroke-width="0.25")");
  canvas.Put(fmt::format("<circle fill=\"none\" cx=\"{}\" cy=\"{}\" r=\"{}\"/>\n", Number(middle.x),
                         Number(middle.y), radius));
  canvas.Shape({{middle.x, middle.y - radius}, {middle.x + 2.4, middle.y + 4}, {middle.x, middle.y + 2.4}},
               " fill=\"#000000\"");
  canvas.Shape({{middle.x, middle.y - radius}, {middle.x - 2.4, middle.y + 4}, {middle.x, middle.y + 2.4}},
               " fill=\"#ffffff\"");
  canvas.EndGroup();
  canvas.Text({"N", {middle.x, middle.y - radius - 1.2}, 3.5, Anchor::Middle, true});
}

// Two fields of round lengths.
void DrawScaleBar(const PaperBox& room, int scale, LengthStyle lengths, Canvas& canvas) {
  constexpr double thickness = 1.5;
  constexpr double size = 2.2;
  const bool isInFeet = lengths == LengthStyle::FeetAndInches;
  const double unit = (isInFeet ? METRES_PER_FOOT : 1.0) * 1000 / scale;
  const double length = preview::RoundLength(room.Width() / unit);
  const double width = length * unit;
  const double middle = room.left + width / 2;
  canvas.BeginGroup("scale-bar", " fill=\"#000000\"");
  canvas.Box({room.left, room.top, room.left + width, room.top + thickness},
             R"( fill="#ffffff" stroke="#000000" stroke-width="0.18")");
  canvas.Box({room.left, room.top, middle, room.top + thickness});
  const double base = room.top + thickness + size + 0.4;
  canvas.Text({"0", {room.left, base}, size});
  canvas.Text({fmt::format("{}", length / 2), {middle, base}, size, Anchor::Middle});
  canvas.Text({fmt::format("{} {}", length, isInFeet ? FEET : METRES),
               {room.left + width, base},
               size,
               Anchor::Middle});
  canvas.EndGroup();
}

}  // namespace

void DrawTitleBlock(const TitleTexts& texts, const PaperBox& box, int scale, Canvas& canvas) {
  const double row = box.Height() / 3;
  canvas.BeginGroup("title-block", " fill=\"#000000\"");
  DrawRow({{"Project", texts.project, 4, 1}}, {box.left, box.top, box.right, box.top + row}, canvas);
  DrawRow({{"Title", texts.title, 4, 1}}, {box.left, box.top + row, box.right, box.top + 2 * row}, canvas);
  DrawRow({{"Drawing", texts.drawing, 3, 0.4},
           {"Scale", fmt::format("1:{}", scale), 3, 0.2},
           {"Paper", texts.paper, 3, 0.16},
           {"Date", texts.date, 3, 0.24}},
          {box.left, box.top + 2 * row, box.right, box.bottom}, canvas);
  canvas.EndGroup();
}

void DrawLegend(const PaperBox& box, int scale, LengthStyle lengths, Canvas& canvas) {
  constexpr double north = 16;  // width of its column
  constexpr double lineHeight = 2.7;
  const bool isInFeet = lengths == LengthStyle::FeetAndInches;
  const std::string notes[] = {
      fmt::format("Dimensions in {}: to the eaves along the slope,", isInFeet ? "feet and inches" : "metres"),
      "to the verge, hip or valley level across the roof.",
      "Arrows show where roofs fall, with their pitch.",
  };
  canvas.BeginGroup("legend", " fill=\"#000000\"");
  DrawNorth({box.left + north / 2 + 1, box.top + 15}, canvas);
  const double left = box.left + north + 5;
  DrawScaleBar({left, box.top + 8, box.right - 10, box.top + 14}, scale, lengths, canvas);
  double y = box.top + 20;
  for (const std::string& note : notes) {
    canvas.TextWithin({note, {left, y}, CAPTION_SIZE}, box.right - left);
    y += lineHeight;
  }
  canvas.EndGroup();
}

}  // namespace teskarlt::plot

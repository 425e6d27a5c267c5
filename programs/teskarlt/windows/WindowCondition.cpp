// WindowCondition.cpp - reads conditions on windows and looks whether they hold.
#include "teskarlt/windows/WindowCondition.h"

#include <algorithm>
#include <array>
#include <optional>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

using brevanta::FieldKind;
using brevanta::RecordField;

constexpr double SAME = 1e-6;  // metres, degrees and radians
constexpr std::string_view BLANKS = " \t";
constexpr std::string_view CONJUNCTION = "and";

struct Sign {
  std::string_view text;
  Comparison comparison;
};
// Longer ones first, so that "<=" is not read as "<".
constexpr std::array SIGNS = {
    Sign{"<=", Comparison::LessOrEqual}, Sign{">=", Comparison::GreaterOrEqual},
    Sign{"!=", Comparison::NotEqual},    Sign{"==", Comparison::Equal},
    Sign{"<", Comparison::Less},         Sign{">", Comparison::Greater},
    Sign{"=", Comparison::Equal},
};
constexpr std::string_view SIGN_CHARACTERS = "<>=!";

bool IsEquality(Comparison comparison) {
  return comparison == Comparison::Equal || comparison == Comparison::NotEqual;
}

bool IsBlank(char c) {
  return BLANKS.find(c) != std::string_view::npos;
}

// Reads one comparison after the other from the text of a condition.
class ConditionReader {
 public:
  ConditionReader(std::string_view text, LengthStyle lengths)
      : whole_(text), rest_(text), lengths_(lengths) {}

  std::vector<FieldComparison> Read() {
    std::vector<FieldComparison> comparisons;
    do {
      comparisons.push_back(ReadComparison());
    } while (TakeConjunction());
    return comparisons;
  }

 private:
  FieldComparison ReadComparison() {
    const std::string_view name = dxf::Trimmed(Take(rest_.find_first_of(SIGN_CHARACTERS)));
    const auto sign = std::find_if(SIGNS.begin(), SIGNS.end(),
                                   [this](const Sign& known) { return rest_.starts_with(known.text); });
    if (name.empty() || sign == SIGNS.end()) {
      Refuse(
          "a condition is FIELD<VALUE with one of < <= = != >= >, as in --where \"width<0.8 and "
          "openingCode=D\"");
    }
    rest_.remove_prefix(sign->text.size());
    FieldComparison read{.field = &FieldOf(name), .comparison = sign->comparison, .text = TakeValue()};
    CheckValue(read);
    return read;
  }

  const RecordField& FieldOf(std::string_view name) const {
    const RecordField* const field = brevanta::FindRecordField(name);
    if (field == nullptr)
      Refuse(fmt::format("there is no field {}; teskarlt insert --fields lists them", dxf::Quoted(name)));
    if (field->kind == FieldKind::Points)
      Refuse(fmt::format("{} is a point; only numbers and texts can be compared", name));
    return *field;
  }

  void CheckValue(FieldComparison& read) const {
    const std::string_view name = read.field->name;
    if (read.field->kind == FieldKind::Text) {
      if (!IsEquality(read.comparison))
        Refuse(fmt::format("{} is a text, which can only be = or != another", name));
      return;
    }
    const bool isLength = read.field->kind == FieldKind::Length;
    const std::optional<double> number =
        isLength ? ParseLengthIn(read.text, lengths_) : dxf::ParseReal(read.text);
    if (!number) Refuse(fmt::format("{} is a number, and {} is none", name, dxf::Quoted(read.text)));
    read.number = *number;
  }

  // A text in quotation marks, or what stands before the next "and".
  std::string TakeValue() {
    SkipBlanks();
    const char mark = rest_.empty() ? '\0' : rest_.front();
    if (mark != '"' && mark != '\'') return std::string(dxf::Trimmed(Take(FindConjunction())));
    rest_.remove_prefix(1);
    const std::size_t end = rest_.find(mark);
    if (end == std::string_view::npos) Refuse("a quotation mark is not closed");
    std::string value(Take(end));
    rest_.remove_prefix(1);
    SkipBlanks();
    if (!rest_.empty() && FindConjunction() != 0) Refuse("behind a text in quotation marks comes \"and\"");
    return value;
  }

  // Where the next "and" stands as a word of its own; npos when there is none.
  std::size_t FindConjunction() const {
    for (std::size_t at = rest_.find(CONJUNCTION); at != std::string_view::npos;
         at = rest_.find(CONJUNCTION, at + 1)) {
      const std::size_t end = at + CONJUNCTION.size();
      if ((at == 0 || IsBlank(rest_[at - 1])) && end < rest_.size() && IsBlank(rest_[end])) return at;
    }
    return std::string_view::npos;
  }

  bool TakeConjunction() {
    if (rest_.empty()) return false;
    rest_.remove_prefix(CONJUNCTION.size());  // where every value ends
    return true;
  }

  std::string_view Take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(BLANKS), rest_.size())); }

  [[noreturn]] void Refuse(const std::string& reason) const {
    throw Error(fmt::format("--where {}: {}", whole_, reason), {.value = std::string(whole_)});
  }

  std::string_view whole_;
  std::string_view rest_;
  LengthStyle lengths_;
};

// Less than 0, 0 or more than 0, as `value` is less than, equal to or greater than `other`.
double Order(double value, double other) {
  const double difference = value - other;
  return difference < -SAME ? -1.0 : difference > SAME ? 1.0 : 0.0;
}

bool Agrees(double order, Comparison comparison) {
  switch (comparison) {
    case Comparison::Less:
      return order < 0;
    case Comparison::LessOrEqual:
      return order <= 0;
    case Comparison::Equal:
      return order == 0;
    case Comparison::NotEqual:
      return order != 0;
    case Comparison::GreaterOrEqual:
      return order >= 0;
    case Comparison::Greater:
      return order > 0;
  }
  return false;
}

// The opening code as the window stands now, the other texts as long as they are in the drawing.
std::string TextOf(const dxf::Document& drawing, const DrawnWindow& window, const WindowReading& reading,
                   const RecordField& field) {
  if (field.name == "openingCode") return drawing.Decode(TextIn(reading.params, field));
  return window.*TextMember(field);
}

}  // namespace

WindowCondition::WindowCondition(std::string_view text, LengthStyle lengths)
    : text_(text), comparisons_(ConditionReader(text, lengths).Read()) {}

bool WindowCondition::Holds(const dxf::Document& drawing, const DrawnWindow& window,
                            const WindowReading& reading) const {
  const auto holds = [&](const FieldComparison& c) {
    if (c.field->kind == FieldKind::Text) {
      const bool isSame = TextOf(drawing, window, reading, *c.field) == c.text;
      return isSame == (c.comparison == Comparison::Equal);
    }
    const double value = c.field->kind == FieldKind::Integer ? IntegerIn(reading.params, *c.field)
                                                             : RealIn(reading.params, *c.field);
    return Agrees(Order(value, c.number), c.comparison);
  };
  return window.isComplete && std::all_of(comparisons_.begin(), comparisons_.end(), holds);
}

}  // namespace teskarlt

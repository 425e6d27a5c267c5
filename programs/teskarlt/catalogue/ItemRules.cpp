// ItemRules.cpp - sizes, opening codes and texts of a catalogue's window.
#include "teskarlt/catalogue/ItemRules.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include <fmt/format.h>

#include "inc/LibraryMerge.h"
#include "inc/WindowParams.h"
#include "platform/CodePage.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Catalogue.h"
#include "window/Choices.h"
#include "window/OpeningCode.h"

namespace teskarlt {

namespace {

using Kind = CatalogueFinding::Kind;

constexpr double LARGEST_SIZE = 1'000'000.0;  // centimetres; the dialog takes no more

// Where a size in centimetres is more likely one in metres or millimetres; no window is so small or large.
struct LikelySize {
  double least;
  double most;
};
constexpr LikelySize LIKELY_WINDOW = {10.0, 400.0};
constexpr LikelySize LIKELY_FRAME = {0.5, 40.0};

bool IsControl(char byte) {
  constexpr char deleteCharacter = 0x7F;
  return (byte >= 0 && byte < ' ') || byte == deleteCharacter;
}

class ItemFindings {
 public:
  explicit ItemFindings(const ItemTexts& texts) : texts_(texts) {}

  std::vector<CatalogueFinding> All() {
    LookAtKey();
    for (std::size_t field = 0; field < FIELD_COUNT; ++field) {
      if (FIELD_FORMS[field].IsSize()) LookAtSize(field);
    }
    LookAtFrame();
    LookAtOpeningCode();
    for (const std::size_t field : {FIELD_KEY, FIELD_DESCRIPTION})
      LookAtLength(field);
    for (std::size_t field = 0; field < FIELD_COUNT; ++field)
      LookAtCharacters(field);
    return std::move(findings_);
  }

 private:
  void Add(Kind kind, const std::string& message) { findings_.push_back({kind, true, message}); }
  void Doubt(Kind kind, const std::string& message) { findings_.push_back({kind, false, message}); }

  void LookAtKey() {
    const std::string& key = texts_[FIELD_KEY];
    if (key.empty()) Add(Kind::Key, "the window has no key");
    if (key.starts_with(HeaderKeyword())) {
      Add(Kind::Key, fmt::format("the key \"{}\" begins with {}, as the heading of a section does", key,
                                 HeaderKeyword()));
    }
    if (key.starts_with(COMMENT_MARK))
      Add(Kind::Key, fmt::format("the key \"{}\" begins with {}, as a comment does", key, COMMENT_MARK));
    if (key.ends_with(' '))
      Doubt(Kind::Key, fmt::format("the key \"{}\" ends with a blank, which belongs to it", key));
  }

  void LookAtSize(std::size_t field) {
    const std::string& text = texts_[field];
    const char* const name = FIELD_FORMS[field].name;
    if (text.empty()) return;
    const std::optional<double> size = SizeIn(text);
    if (!size && std::count(text.begin(), text.end(), ',') == 1) {
      Add(Kind::Size, fmt::format("{}: \"{}\" is not a number; decimals stand behind a point", name, text));
    } else if (!size) {
      Add(Kind::Size, fmt::format("{}: \"{}\" is not a number", name, text));
    } else if (*size <= 0.0) {
      Add(Kind::Size, fmt::format("{} must be greater than 0 cm, not {}", name, text));
    } else if (*size > LARGEST_SIZE) {
      Add(Kind::Size, fmt::format("{} must be at most {} cm, not {}", name, LARGEST_SIZE, text));
    } else {
      LookAtUnit(name, *size, field < FIELD_FRAME_WIDTH ? LIKELY_WINDOW : LIKELY_FRAME);
    }
  }

  void LookAtUnit(const char* name, double size, LikelySize likely) {
    constexpr double centimetresPerMetre = 100.0;
    constexpr double millimetresPerCentimetre = 10.0;
    const bool isSmall = size < likely.least;
    if (!isSmall && size <= likely.most) return;
    Doubt(Kind::DoubtfulSize,
          fmt::format("{} of {:g} cm: sizes are centimetres; is that meant in {} ({:g} cm)?", name, size,
                      isSmall ? "metres" : "millimetres",
                      isSmall ? size * centimetresPerMetre : size / millimetresPerCentimetre));
  }

  double SizeOrUsual(std::size_t field) const {
    return SizeIn(texts_[field]).value_or(FIELD_FORMS[field].usualCm);
  }

  void LookAtFrame() {
    const double narrower = std::fmin(SizeOrUsual(FIELD_WIDTH), SizeOrUsual(FIELD_LENGTH));
    const double frame = SizeOrUsual(FIELD_FRAME_WIDTH);
    const bool isWrongAlready =
        std::any_of(findings_.begin(), findings_.end(),
                    [](const CatalogueFinding& finding) { return finding.kind == Kind::Size; });
    if (isWrongAlready || 2 * frame < narrower) return;
    Add(Kind::Size,
        fmt::format("frameWidth must be less than half the window ({:g} cm), not {:g}", narrower / 2, frame));
  }

  void LookAtOpeningCode() {
    const std::string& code = texts_[FIELD_OPENING_CODE];
    if (code == brevanta::FIXED_GLAZING) return;
    const std::string_view rest = brevanta::NotUnderstood(code);
    if (!rest.empty()) {
      Add(Kind::OpeningCode,
          fmt::format("the opening code \"{}\" is not understood from \"{}\" on; teskarlt catalogue --help "
                      "tells the letters",
                      code, rest));
    } else if (code.size() >= brevanta::OPENING_CODE_SIZE) {
      Add(Kind::OpeningCode, fmt::format("the opening code \"{}\" has {} letters; a window holds {}", code,
                                         code.size(), brevanta::OPENING_CODE_SIZE - 1));
    }
  }

  void LookAtLength(std::size_t field) {
    const std::size_t size = texts_[field].size();
    if (size < brevanta::TEXT_FIELD_SIZE) return;
    Add(Kind::Text, fmt::format("the {} has {} bytes in UTF-8; a window holds {}", FIELD_FORMS[field].name,
                                size, brevanta::TEXT_FIELD_SIZE - 1));
  }

  void LookAtCharacters(std::size_t field) {
    const std::string& text = texts_[field];
    const auto control = std::find_if(text.begin(), text.end(), IsControl);
    if (control == text.end()) return;
    Add(Kind::Text, fmt::format("the {} holds the control character {:02X}", FIELD_FORMS[field].name,
                                static_cast<unsigned>(*control)));
  }

  const ItemTexts& texts_;
  std::vector<CatalogueFinding> findings_;
};

bool IsUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    if (!platform::NextCharacter(text, at)) return false;
  }
  return true;
}

void CheckText(const char* name, const std::string& text) {
  if (!IsUtf8(text)) throw Error(fmt::format("the {} is not in UTF-8", name), {.value = text});
  if (text.find(brevanta::FIELD_DELIMITER) == std::string::npos) return;
  throw Error(
      fmt::format("the {} \"{}\" holds a semicolon, which separates the fields of a catalogue", name, text),
      {.value = text});
}

}  // namespace

std::optional<double> SizeIn(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  double value = 0.0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::vector<CatalogueFinding> FindingsOf(const ItemTexts& texts) {
  return ItemFindings(texts).All();
}

void CheckWritable(const CatalogueWindow& window) {
  CheckText("maker", window.maker);
  if (std::any_of(window.maker.begin(), window.maker.end(), IsControl))
    throw Error("the name of the maker holds a control character", {.value = window.maker});
  for (std::size_t field = 0; field < FIELD_COUNT; ++field)
    CheckText(FIELD_FORMS[field].name, window.texts[field]);
  for (const CatalogueFinding& finding : FindingsOf(window.texts)) {
    if (finding.isError) throw Error(finding.message);
  }
}

}  // namespace teskarlt

// Page.cpp - puts a model into the page.
#include "teskarlt/preview/Page.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/preview/Glb.h"
#include "teskarlt/preview/PageTemplate.h"

namespace teskarlt::preview {

namespace {

// RFC 4648, section 4.
std::string Base64(std::string_view bytes) {
  constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t bits = 0;
    for (std::size_t k = 0; k < 3; ++k)
      bits = bits << 8 | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0U);
    for (std::size_t k = 0; k < 4; ++k)
      text += k <= count ? digits[bits >> (18 - 6 * k) & 63U] : '=';
  }
  return text;
}

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '&') {
      escaped += "&amp;";
    } else if (c == '<') {
      escaped += "&lt;";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

}  // namespace

bool HasPage() {
  return !PageTemplate().empty();
}

std::string Page(const Scene& scene, const PageSchedule& schedule, std::optional<std::int32_t> window) {
  if (!HasPage())
    throw Error("this teskarlt was built without its page; write .glb, .svg or .png instead of .html");
  struct Filling {
    std::string_view mark;
    std::string text;
  };
  // In the order of the page.
  const std::array<Filling, 6> fillings = {
      {{"PAGE_TITLE", Escaped(scene.name)},
       {"PAGE_NUMBERS", fmt::format("{}", fmt::join(schedule.windows, " "))},
       {"PAGE_TABLE", schedule.table},
       {"PAGE_CSV", Base64(schedule.csv)},
       {"PAGE_WINDOW", window ? std::to_string(*window) : ""},
       {"PAGE_MODEL", Base64(Glb(scene))}}};
  std::string_view rest = PageTemplate();
  std::string page;
  for (const auto& [mark, text] : fillings) {
    const std::size_t place = rest.find(mark);
    if (place == std::string_view::npos) throw Error("the page is not as this teskarlt expects it");
    page.append(rest.substr(0, place)).append(text);
    rest.remove_prefix(place + mark.size());
  }
  return page.append(rest);
}

}  // namespace teskarlt::preview

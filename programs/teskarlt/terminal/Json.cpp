// Json.cpp - prints values by way of nlohmann's library.
#include "teskarlt/terminal/Json.h"

#include <algorithm>
#include <utility>

#include <nlohmann/json.hpp>

namespace teskarlt {

namespace {

using LibraryJson = nlohmann::ordered_json;

class Printer {
 public:
  explicit Printer(const std::function<void(std::string_view)>& put) : put_(put) {}
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;

  void Print(const Json::Value& value) { std::visit(*this, value); }

  void operator()(const Json::Items& items) {
    PutLines('[', items.size(), ']', [&](std::size_t i) { Print(items[i].Get()); });
  }
  void operator()(const Json::MadeItems& items) {
    PutLines('[', items.count, ']', [&](std::size_t i) { Print(items.make(i).Get()); });
  }
  void operator()(const Json::Members& members) {
    PutLines('{', members.size(), '}', [&](std::size_t i) {
      (*this)(members[i].first);
      text_ += ": ";
      Print(members[i].second.Get());
    });
  }
  template <typename Scalar>
  void operator()(const Scalar& scalar) {
    text_ += LibraryJson(scalar).dump(-1, ' ', false, LibraryJson::error_handler_t::replace);
  }

  void Flush() {
    put_(text_);
    text_.clear();
  }

 private:
  template <typename Put>
  void PutLines(char open, std::size_t count, char close, const Put& put) {
    text_ += open;
    ++level_;
    for (std::size_t i = 0; i < count; ++i) {
      if (i > 0) text_ += ',';
      BeginLine();
      put(i);
      if (text_.size() >= PIECE) Flush();
    }
    --level_;
    if (count > 0) BeginLine();
    text_ += close;
  }

  void BeginLine() { text_.append(1, '\n').append(2 * level_, ' '); }

  static constexpr std::size_t PIECE = 1U << 16U;

  const std::function<void(std::string_view)>& put_;
  std::string text_;
  std::size_t level_ = 0;
};

// The alternative of that type, which null becomes.
template <typename Kind>
Kind& Become(Json::Value& value) {
  if (std::holds_alternative<std::nullptr_t>(value)) value = Kind();
  return std::get<Kind>(value);
}

}  // namespace

Json::Json(const std::vector<std::string>& texts) : value_(Items(texts.begin(), texts.end())) {}

Json Json::List(std::initializer_list<Json> items) {
  Json list;
  list.value_ = Items(items);
  return list;
}

Json Json::ListOf(std::size_t count, std::function<Json(std::size_t)> make) {
  Json list;
  list.value_ = MadeItems{count, std::move(make)};
  return list;
}

Json Json::Object(std::initializer_list<std::pair<const char*, Json>> members) {
  Json object;
  object.value_ = Members(members.begin(), members.end());
  return object;
}

Json& Json::operator[](std::string_view name) {
  auto& members = Become<Members>(value_);
  const auto found =
      std::find_if(members.begin(), members.end(), [&](const auto& member) { return member.first == name; });
  return found != members.end() ? found->second : members.emplace_back(name, Json()).second;
}

void Json::AddMembers(const Json& object) {
  for (const auto& [name, value] : std::get<Members>(object.value_))
    (*this)[name] = value;
}

void Json::Add(Json item) {
  Become<Items>(value_).push_back(std::move(item));
}

void Json::Print(const std::function<void(std::string_view)>& put) const {
  Printer printer(put);
  printer.Print(value_);
  printer.Flush();
}

std::string Json::Text() const {
  std::string text;
  Print([&](std::string_view piece) { text += piece; });
  return text;
}

}  // namespace teskarlt

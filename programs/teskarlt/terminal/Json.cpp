// Json.cpp - prints values by way of nlohmann's library.
#include "teskarlt/terminal/Json.h"

#include <algorithm>

#include <nlohmann/json.hpp>

namespace teskarlt {

namespace {

using LibraryJson = nlohmann::ordered_json;

struct ToLibrary {
  LibraryJson operator()(const Json::Items& items) const {
    LibraryJson list = LibraryJson::array();
    for (const Json& item : items)
      list.push_back(std::visit(*this, item.Get()));
    return list;
  }
  LibraryJson operator()(const Json::Members& members) const {
    LibraryJson object = LibraryJson::object();
    for (const auto& [name, value] : members)
      object[name] = std::visit(*this, value.Get());
    return object;
  }
  template <typename Scalar>
  LibraryJson operator()(const Scalar& scalar) const {
    return scalar;
  }
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

std::string Json::Text() const {
  return std::visit(ToLibrary(), value_).dump(2, ' ', false, LibraryJson::error_handler_t::replace);
}

}  // namespace teskarlt

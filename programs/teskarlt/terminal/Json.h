// Json.h - an answer for programs: a value that is built up and printed.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace teskarlt {

// Null, a truth value, a number, a text in UTF-8, a list, or an object whose members keep their order.
class Json {
 public:
  using Items = std::vector<Json>;
  using Members = std::vector<std::pair<std::string, Json>>;
  struct MadeItems {
    std::size_t count;
    std::function<Json(std::size_t)> make;
  };

  // Implicit, so that values are written as they are. NOLINTBEGIN(google-explicit-constructor)
  Json(std::nullptr_t = nullptr) {}
  template <typename Value>
  requires std::integral<Value> Json(Value value) {
    if constexpr (std::same_as<Value, bool>) {
      value_ = value;
    } else if constexpr (std::signed_integral<Value>) {
      value_ = std::int64_t{value};
    } else {
      value_ = std::uint64_t{value};
    }
  }
  Json(double value) : value_(value) {}
  Json(std::string_view text) : value_(std::string(text)) {}
  Json(const std::string& text) : Json(std::string_view(text)) {}
  Json(const char* text) : Json(std::string_view(text)) {}
  Json(const std::vector<std::string>& texts);
  // NOLINTEND(google-explicit-constructor)

  static Json List(std::initializer_list<Json> items = {});
  // A list of so many items, numbered from 0, each of which is made when it is printed: a long list takes no
  // memory. What `make` refers to must live until then.
  static Json ListOf(std::size_t count, std::function<Json(std::size_t)> make);
  static Json Object(std::initializer_list<std::pair<const char*, Json>> members = {});

  // The member of that name, null until a value is given to it. Makes an object of null.
  Json& operator[](std::string_view name);
  // Puts the members of another object behind those of this one. Makes an object of null.
  void AddMembers(const Json& object);
  // Puts an item behind the others of a list. Makes a list of null.
  void Add(Json item);

  // Puts lines with two blanks a level, without a line end at the end, piece by piece. Bytes that are no
  // UTF-8, as file names may hold them, become U+FFFD.
  void Print(const std::function<void(std::string_view)>& put) const;
  std::string Text() const;

  using Value = std::variant<std::nullptr_t, bool, std::int64_t, std::uint64_t, double, std::string, Items,
                             MadeItems, Members>;
  const Value& Get() const { return value_; }

 private:
  Value value_ = nullptr;
};

}  // namespace teskarlt

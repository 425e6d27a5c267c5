// Error.cpp - the sentence of an error with its place in front.
#include "platform/Error.h"

#include <utility>

namespace platform {
namespace {

std::string Sentence(const std::string& message, const ErrorPlace& place) {
  if (place.file.empty()) return message;
  switch (place.unit) {
    case ErrorPlace::Unit::Line:
      return place.file + ":" + std::to_string(place.position) + ": " + message;
    case ErrorPlace::Unit::Byte:
      return place.file + ": byte " + std::to_string(place.position) + ": " + message;
    default:
      return place.file + ": " + message;
  }
}

}  // namespace

Error::Error(const std::string& message, ErrorPlace place)
    : std::runtime_error(Sentence(message, place)), place_(std::move(place)), message_(message) {}

}  // namespace platform

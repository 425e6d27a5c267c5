// ExtendedData.cpp - applications, braces, texts and size of extended data.
#include "teskarlt/check/ExtendedData.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/ExtendedData.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/ValueKind.h"

namespace teskarlt::check {
namespace {

using dxf::Quoted;
using dxf::Tag;
using dxf::ValueKind;

class ExtendedData {
 public:
  ExtendedData(const Object& object, Findings& findings) : object_(object), findings_(findings) {}

  void Check() {
    for (const Tag& tag : object_.Extended())
      CheckTag(tag);
    EndPoint();
    CloseBraces();
    if (size_ > dxf::MOST_EXTENDED_DATA) {
      findings_.Error(Kind::ExtendedSize, object_.Extended().front().value.data(),
                      fmt::format("the extended data of the {} takes {} bytes, and programs have room for {}",
                                  object_.type, size_, dxf::MOST_EXTENDED_DATA),
                      object_.number);
    }
  }

 private:
  void CheckTag(const Tag& tag) {
    size_ += dxf::ExtendedSize(tag.code, tag.value.size());
    if (tag.code == dxf::CODE_XDATA_APPLICATION) {
      CloseBraces();
      BeginApplication(tag);
    } else if (!dxf::IsExtendedData(tag.code)) {
      if (!isOutOfOrder_) {
        Error(Kind::ExtendedOrder, tag,
              fmt::format("the group {} stands behind extended data, which end an object", tag.code));
      }
      isOutOfOrder_ = true;
    } else if (application_ == nullptr) {
      if (!isNameless_) {
        Error(Kind::ExtendedWithoutApplication, tag,
              fmt::format("the extended data begin with the group {}, without an application (group 1001)",
                          tag.code));
      }
      isNameless_ = true;
    }
    if (tag.code == dxf::CODE_XDATA_BRACE) FollowBrace(tag);
    FollowPoint(tag);
    if (tag.code == dxf::CODE_XDATA_TEXT && tag.value.size() > dxf::LONGEST_EXTENDED_TEXT) {
      Error(Kind::ExtendedTextLength, tag,
            fmt::format("the text {} has {} bytes, and one of extended data at most {}", Quoted(tag.value),
                        tag.value.size(), dxf::LONGEST_EXTENDED_TEXT));
    }
  }

  void BeginApplication(const Tag& tag) {
    const auto extended = object_.Extended();
    // Data without end are an error of their own, and not worth the time.
    const bool isKnown =
        size_ <= dxf::MOST_EXTENDED_DATA && std::any_of(extended.data(), &tag, [&](const Tag& before) {
          return before.code == dxf::CODE_XDATA_APPLICATION && dxf::SameName(before.value, tag.value);
        });
    if (isKnown) {
      Error(Kind::ExtendedApplicationTwice, tag,
            fmt::format("the application {} has its data in two places of the {}", Quoted(tag.value),
                        object_.type));
    }
    application_ = &tag;
  }

  // x, y and z of a point follow one another.
  void FollowPoint(const Tag& tag) {
    constexpr int NEXT_COORDINATE = dxf::Y_DISTANCE;
    const bool isPoint = dxf::KindOf(tag.code) == ValueKind::Point;
    if (wanted_ != 0 && tag.code != wanted_) {
      Error(Kind::ExtendedPoint, *point_,
            fmt::format("the group {} of this point should follow, not {}", wanted_, tag.code));
    }
    if (isPoint && dxf::IsExtendedData(tag.code)) {
      point_ = &tag;
      wanted_ = tag.code + NEXT_COORDINATE;
    } else {
      const bool wantsMore =
          wanted_ != 0 && tag.code == wanted_ && tag.code == point_->code + NEXT_COORDINATE;
      wanted_ = wantsMore ? tag.code + NEXT_COORDINATE : 0;
    }
  }

  void EndPoint() {
    if (wanted_ != 0)
      Error(Kind::ExtendedPoint, *point_, fmt::format("the group {} of this point is missing", wanted_));
  }

  void FollowBrace(const Tag& tag) {
    const std::string_view brace = dxf::Trimmed(tag.value);
    if (brace == "{") {
      if (depth_++ == 0) brace_ = &tag;
    } else if (brace != "}") {
      Error(Kind::ExtendedBraces, tag, fmt::format("{} should be a brace (group 1002)", Quoted(tag.value)));
    } else if (depth_ == 0) {
      Error(Kind::ExtendedBraces, tag, "this brace closes nothing (group 1002)");
    } else {
      --depth_;
    }
  }

  void CloseBraces() {
    if (depth_ > 0) Error(Kind::ExtendedBraces, *brace_, "this brace is not closed (group 1002)");
    depth_ = 0;
  }

  void Error(Kind kind, const Tag& tag, std::string message) {
    findings_.Error(kind, tag.value.data(), std::move(message), object_.number);
  }

  const Object& object_;
  Findings& findings_;
  const Tag* application_ = nullptr;
  const Tag* brace_ = nullptr;  // the outermost one that is open
  const Tag* point_ = nullptr;  // the x of the latest point
  int wanted_ = 0;              // code of its next coordinate; 0: it is complete
  int depth_ = 0;
  std::size_t size_ = 0;
  bool isOutOfOrder_ = false;
  bool isNameless_ = false;
};

}  // namespace

void CheckExtendedData(const Object& object, Findings& findings) {
  // The values of an XRECORD are whatever its application likes.
  if (object.Extended().empty() || object.type == dxf::TYPE_XRECORD) return;
  ExtendedData(object, findings).Check();
}

}  // namespace teskarlt::check

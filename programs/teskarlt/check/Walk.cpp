// Walk.cpp - sections, tables, blocks and the end of a drawing.
#include "teskarlt/check/Walk.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {
namespace {

using dxf::CODE_NAME;
using dxf::CODE_TYPE;
using dxf::Quoted;
using dxf::SameName;
using dxf::Tag;

std::string_view NameOf(const std::vector<Tag>& tags) {
  const auto name =
      std::find_if(tags.begin(), tags.end(), [](const Tag& tag) { return tag.code == CODE_NAME; });
  return name == tags.end() ? std::string_view() : dxf::Trimmed(name->value);
}

struct SectionPlace {
  std::string_view section;
  Place place;
};

constexpr SectionPlace SECTION_PLACES[] = {{dxf::SECTION_CLASSES, Place::Class},
                                           {dxf::SECTION_TABLES, Place::TableEntry},
                                           {dxf::SECTION_BLOCKS, Place::BlockEntity},
                                           {dxf::SECTION_ENTITIES, Place::Entity},
                                           {dxf::SECTION_OBJECTS, Place::Object}};

Place PlaceInSection(std::string_view section) {
  for (const SectionPlace& known : SECTION_PLACES)
    if (SameName(known.section, section)) return known.place;
  return Place::Other;
}

bool IsBlank(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n' || byte == '\x1A';
}

// An entry of DIMSTYLE has its handle under a code of its own, 5 being the name of an arrow's block.
int HandleCode(const Object& object) {
  return object.place == Place::TableEntry && SameName(object.table, dxf::TABLE_DIMENSION_STYLES)
             ? dxf::CODE_DIMSTYLE_HANDLE
             : dxf::CODE_HANDLE;
}

}  // namespace

Walk::Walk(const dxf::SourceText& source, Findings& findings)
    : source_(source), findings_(findings), reader_(source, source.Tags()) {}

bool Walk::Next(Object& object) {
  if (!ReadTags()) {
    if (!isDamaged_) {
      CloseSection();
      Finish();
    }
    return false;
  }
  Describe(object);
  if (object.type != dxf::TYPE_FILE_END) return true;
  CloseSection();
  Finish();
  return false;
}

bool Walk::ReadTags() {
  tags_.clear();
  if (isStart_) hasNext_ = ReadTag(next_);
  isStart_ = false;
  if (!hasNext_) return false;
  tags_.push_back(next_);
  if (next_.code == CODE_TYPE && next_.value == dxf::TYPE_FILE_END) return true;
  while ((hasNext_ = ReadTag(next_)) && next_.code != CODE_TYPE)
    tags_.push_back(next_);
  return true;
}

bool Walk::ReadTag(Tag& tag) {
  try {
    return !isDamaged_ && reader_.Next(tag);
  } catch (const Error&) {
    ReportBadTag();
    isDamaged_ = true;
    return false;
  }
}

// Behind a line that should be a group code nothing can be told any more.
void Walk::ReportBadTag() {
  const char* const begin = reader_.TagBegin();
  const char* const end = source_.Text().data() + source_.Text().size();
  const char* const stop = std::find(begin, end, '\n');
  const std::string_view line = dxf::Trimmed({begin, static_cast<std::size_t>(stop - begin)});
  const bool isCode = !line.empty() && std::all_of(line.begin(), line.end(),
                                                   [](char byte) { return byte >= '0' && byte <= '9'; });
  if (isCode && (stop == end || stop + 1 == end)) {
    findings_.Error(Kind::FileCutShort, begin,
                    fmt::format("the file is cut short behind the group code {}", line));
  } else if (line.empty() && std::all_of(begin, end, IsBlank)) {
    findings_.Error(Kind::EndMissing, begin, "the file is cut short: EOF is missing at its end");
  } else {
    findings_.Error(
        Kind::GroupCode, begin,
        fmt::format("{} should be a group code; nothing from here on could be checked", Quoted(line)));
  }
}

void Walk::Finish() {
  const bool isEnded = !tags_.empty() && tags_.front().value == dxf::TYPE_FILE_END;
  const char* const last = &source_.Text().back();
  if (isEnded) {
    CheckBehindEnd();
  } else {
    findings_.Error(Kind::EndMissing, last, "the file is cut short: EOF is missing at its end");
  }
  if (std::none_of(sections_.begin(), sections_.end(),
                   [](std::string_view name) { return SameName(name, dxf::SECTION_ENTITIES); })) {
    findings_.Error(Kind::SectionMissing, isEnded ? tags_.front().value.data() : last,
                    "the section ENTITIES is missing");
  }
}

void Walk::CheckBehindEnd() {
  const std::string_view text = source_.Text();
  const char* const end = text.data() + text.size();
  const char* const behind = std::find_if_not(reader_.TagEnd(), end, IsBlank);
  if (behind != end) {
    findings_.Warning(Kind::BytesBehindEnd, behind,
                      fmt::format("{} bytes stand behind EOF, where the drawing ends", end - behind));
  }
}

void Walk::Describe(Object& object) {
  object = {};
  const Tag& first = tags_.front();
  if (first.code != CODE_TYPE) {
    findings_.Error(
        Kind::OutsideSection, first.value.data(),
        fmt::format("a section should begin here, not {} (group {})", Quoted(first.value), first.code));
  } else {
    object.type = first.value;
    if (object.type == dxf::TYPE_SECTION) {
      object.place = EnterSection();
    } else if (object.type == dxf::TYPE_SECTION_END) {
      object.place = LeaveSection();
    } else if (object.type == dxf::TYPE_TABLE && inside_ == Place::TableEntry) {
      object.place = EnterTable();
    } else if (object.type == dxf::TYPE_TABLE_END && inside_ == Place::TableEntry) {
      object.place = LeaveTable();
    } else if (object.type != dxf::TYPE_FILE_END) {
      object.place = PlaceInside();
    }
  }
  object.section = section_;
  object.table = table_;
  if (object.place == Place::SectionEnd) section_ = {};
  if (object.place == Place::TableEnd) table_ = {};
  object.tags = tags_;
  const auto extended =
      std::find_if(tags_.begin(), tags_.end(), [](const Tag& tag) { return dxf::IsExtendedData(tag.code); });
  object.ownTags = static_cast<std::size_t>(extended - tags_.begin());
  if (object.place == Place::Section) return;
  object.handle = FindTag(object, HandleCode(object));
  if (object.handle != nullptr) object.number = dxf::ParseHandle(object.handle->value).value_or(0);
}

Place Walk::EnterSection() {
  CloseSection();
  sectionBegin_ = tags_.front().value.data();
  section_ = NameOf(tags_);
  if (tags_.size() < 2 || tags_[1].code != CODE_NAME) {
    findings_.Error(Kind::OutsideSection, sectionBegin_, "the section that begins here has no name");
  } else if (std::any_of(sections_.begin(), sections_.end(),
                         [&](std::string_view name) { return SameName(name, section_); })) {
    findings_.Error(Kind::SectionTwice, section_.data(),
                    fmt::format("there is another section {} before this one", Quoted(section_)));
  }
  sections_.push_back(section_);
  inside_ = PlaceInSection(section_);
  return Place::Section;
}

Place Walk::LeaveSection() {
  if (sectionBegin_ == nullptr) {
    findings_.Error(Kind::OutsideSection, tags_.front().value.data(),
                    "no section is open that could end here");
  }
  CloseTable();
  CloseBlock();
  sectionBegin_ = nullptr;
  return Place::SectionEnd;
}

Place Walk::EnterTable() {
  CloseTable();
  tableBegin_ = tags_.front().value.data();
  table_ = NameOf(tags_);
  return Place::Table;
}

Place Walk::LeaveTable() {
  if (tableBegin_ == nullptr)
    findings_.Error(Kind::OutsideSection, tags_.front().value.data(), "no table is open that could end here");
  tableBegin_ = nullptr;
  return Place::TableEnd;
}

Place Walk::PlaceInside() {
  const Tag& first = tags_.front();
  if (sectionBegin_ == nullptr) {
    findings_.Error(Kind::OutsideSection, first.value.data(),
                    fmt::format("{} stands outside of the sections", Quoted(first.value)));
    return Place::Other;
  }
  if (inside_ == Place::BlockEntity) FollowBlock();
  if (inside_ != Place::TableEntry || tableBegin_ != nullptr) return inside_;
  findings_.Error(Kind::OutsideSection, first.value.data(),
                  fmt::format("{} stands outside of the tables", Quoted(first.value)));
  return Place::Other;
}

void Walk::FollowBlock() {
  const Tag& first = tags_.front();
  if (first.value == dxf::TYPE_BLOCK) {
    CloseBlock();
    blockBegin_ = first.value.data();
  } else if (blockBegin_ == nullptr) {
    findings_.Error(Kind::BlockOpen, first.value.data(),
                    fmt::format("{} stands outside of the blocks", Quoted(first.value)));
  } else if (first.value == dxf::TYPE_BLOCK_END) {
    blockBegin_ = nullptr;
  }
}

void Walk::CloseTable() {
  if (tableBegin_ != nullptr) {
    findings_.Error(Kind::TableOpen, tableBegin_,
                    fmt::format("the table {} that begins here is not closed by ENDTAB", Quoted(table_)));
  }
  tableBegin_ = nullptr;
  table_ = {};
}

void Walk::CloseBlock() {
  if (blockBegin_ != nullptr)
    findings_.Error(Kind::BlockOpen, blockBegin_, "the block that begins here is not closed by ENDBLK");
  blockBegin_ = nullptr;
}

void Walk::CloseSection() {
  CloseTable();
  CloseBlock();
  if (sectionBegin_ != nullptr) {
    findings_.Error(Kind::SectionOpen, sectionBegin_,
                    fmt::format("the section {} that begins here is not closed by ENDSEC", Quoted(section_)));
  }
  sectionBegin_ = nullptr;
  section_ = {};
}

}  // namespace teskarlt::check

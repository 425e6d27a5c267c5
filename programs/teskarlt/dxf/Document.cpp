// Document.cpp - puts the parts of a drawing together.
#include "teskarlt/dxf/Document.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <utility>

#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/dxf/read/HeaderValues.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"
#include "teskarlt/dxf/tags/Version.h"
#include "teskarlt/dxf/write/ApplicationNumber.h"
#include "teskarlt/dxf/write/Rules.h"

namespace teskarlt::dxf {
namespace {

constexpr std::int64_t MEASUREMENT_METRIC = 1;

std::string_view VariableText(const Index& index, std::string_view name) {
  const HeaderVariable* const variable = index.FindVariable(name);
  return variable == nullptr ? std::string_view() : Trimmed(variable->value.value);
}

std::string_view LineEndOf(std::string_view text) {
  const auto end = text.find('\n');
  return end != std::string_view::npos && end > 0 && text[end - 1] == '\r' ? "\r\n" : "\n";
}

// Old drawings have handles when $HANDLING says so, or else when something in them has one. Entities without
// handles beside objects that have some are numbered by whoever reads the drawing, and then some of them as
// those objects.
bool UsesHandles(const Index& index, int version) {
  if (NeedsHandles(version) || index.hasObjectHandles) return true;
  const auto handling = ParseInteger(VariableText(index, VARIABLE_HANDLING));
  return handling ? *handling == 1 : index.largestHandle > 0;
}

// A number far above the units there are counts as none.
int UnitsOf(std::int64_t number) {
  constexpr std::int64_t most = 1000;
  return number < 0 || number > most ? 0 : static_cast<int>(number);
}

// Programs write UTF-8 into drawings whose version has a code page. What stands behind EOF says nothing.
bool HasUtf8(const SourceText& source, const Index& index, int version) {
  if (IsUtf8(version)) return true;
  const char* const begin = source.Text().data();
  return HoldsUtf8({begin, static_cast<std::size_t>(index.sections.back().end - begin)});
}

bool IsSameFile(const std::string& a, const std::string& b) {
  const auto path = [](const std::string& utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
  };
  std::error_code error;
  return a == b || std::filesystem::equivalent(path(a), path(b), error);
}

platform::FileState StateAfterSave(const std::string& path) {
  try {
    return platform::StateOfFile(path);
  } catch (const Error& error) {
    throw Error("is written; since then it " + error.Message(), error.Place());
  }
}

SourceText SourceOf(const std::string& name, std::string_view text) {
  platform::FileBytes bytes;
  bytes.bytes = std::make_unique_for_overwrite<char[]>(text.size() + 1);
  bytes.size = text.copy(bytes.bytes.get(), text.size());
  return {name, std::move(bytes)};
}

Rules RulesOf(const SourceText& source, const Index& index) {
  Rules rules;
  rules.version = VersionNumber(VariableText(index, VARIABLE_VERSION)).value_or(VERSION_R12);
  rules.lineEnd = LineEndOf(source.Text());
  rules.units = UnitsOf(ParseInteger(VariableText(index, VARIABLE_UNITS)).value_or(0));
  rules.isMetric = ParseInteger(VariableText(index, VARIABLE_MEASUREMENT)).value_or(MEASUREMENT_METRIC) ==
                   MEASUREMENT_METRIC;
  rules.usesHandles = UsesHandles(index, rules.version);
  return rules;
}

}  // namespace

struct Document::State {
  State(SourceText text, platform::FileState stateOfFile)
      : source(std::move(text)),
        file(stateOfFile),
        index(BuildIndex(source)),
        rules(RulesOf(source, index)),
        codec(std::string(CodePageOf(VariableText(index, VARIABLE_CODE_PAGE))),
              HasUtf8(source, index, rules.version)),
        edits(source, index, codec, rules) {}

  SourceText source;
  platform::FileState file;  // when it was loaded
  Index index;
  Rules rules;
  TextCodec codec;
  Edits edits;
  bool isSettled = false;          // edits were taken over
  std::vector<std::string> notes;  // of these
};

Document::Document(std::unique_ptr<State> state) : state_(std::move(state)) {}
Document::Document(Document&&) noexcept = default;
Document& Document::operator=(Document&&) noexcept = default;
Document::~Document() = default;

Document Document::Load(const std::string& path) {
  const platform::FileState file = platform::StateOfFile(path);
  return Document(std::make_unique<State>(SourceText(path, platform::ReadWholeFile(path)), file));
}

Document Document::FromText(const std::string& name, std::string_view text) {
  return FromSource(SourceOf(name, text));
}

Document Document::FromSource(SourceText source) {
  return Document(std::make_unique<State>(std::move(source), platform::FileState()));
}

const std::string& Document::FileName() const {
  return state_->source.Name();
}

const SourceText& Document::Source() const {
  return state_->source;
}

int Document::Version() const {
  return state_->rules.version;
}

std::string_view Document::CodePageName() const {
  return CodePageOf(VariableText(state_->index, VARIABLE_CODE_PAGE));
}

int Document::Units() const {
  const auto units = HeaderVariable(VARIABLE_UNITS);
  return units ? UnitsOf(TagReader(Source(), {}).Integer(*units)) : 0;
}

void Document::AssumeUnits(int units) {
  state_->rules.units = units;
}

std::optional<Tag> Document::HeaderVariable(std::string_view name) const {
  const auto* const variable = state_->index.FindVariable(name);
  return variable == nullptr || variable->value.value.data() == nullptr ? std::nullopt
                                                                        : std::optional(variable->value);
}

std::span<const Entity> Document::Entities() const {
  return state_->index.entities;
}

std::string_view Document::SectionText(std::string_view name) const {
  const Section* const section = state_->index.FindSection(name);
  if (section == nullptr) return {};
  return {section->begin, static_cast<std::size_t>(section->end - section->begin)};
}

const Entity* Document::FindEntity(std::uint64_t handle) const {
  const auto& entities = state_->index.entities;
  const auto found = std::find_if(entities.begin(), entities.end(), [&](const Entity& entity) {
    return entity.handle == handle && handle != 0;
  });
  return found == entities.end() ? nullptr : &*found;
}

TagReader Document::Reader(const Entity& entity) const {
  return {state_->source, entity.text};
}

std::vector<TagList> Document::TagLists(std::string_view range) const {
  return ReadTagLists(state_->source, state_->codec, range);
}

std::size_t Document::PaperSpaceEntities() const {
  return state_->index.paperSpaceEntities;
}

Layers Document::ReadLayers() const {
  return Layers(TagLists(SectionText(SECTION_TABLES)));
}

std::optional<std::int32_t> Document::ApplicationNumber(std::string_view name) const {
  const auto entry = FindApplicationEntry(state_->source, state_->index, name);
  const auto number = entry && entry->number.code != 0 ? ParseInteger(entry->number.value) : std::nullopt;
  if (!number || *number < std::numeric_limits<std::int32_t>::min() ||
      *number > std::numeric_limits<std::int32_t>::max())
    return std::nullopt;
  return static_cast<std::int32_t>(*number);
}

bool Document::HasLayer(std::string_view name) const {
  return state_->edits.TableEntries().Has(TableKind::Layer, name);
}

std::string Document::Text(const Tag& tag) const {
  return state_->codec.Decode(tag.value);
}

std::string Document::Decode(std::string_view raw) const {
  return state_->codec.Decode(raw);
}

std::string Document::Encode(std::string_view utf8) const {
  return state_->codec.Encode(utf8);
}

std::string Document::TextNote() const {
  return state_->codec.Note();
}

std::uint64_t Document::AddEntity(std::span<const TypedTag> tags) {
  return state_->edits.AddEntity(tags);
}

void Document::RemoveEntity(const Entity& entity) {
  state_->edits.RemoveEntity(entity);
}

bool Document::IsRemoved(const Entity& entity) const {
  return state_->edits.IsRemoved(entity);
}

void Document::Redraw(const Entity& entity, std::span<const TypedTag> tags, LinetypeOnRedraw linetype) {
  state_->edits.Redraw(entity, tags, linetype);
}

void Document::SetExtendedData(const Entity& entity, std::span<const TypedTag> tags) {
  state_->edits.SetExtendedData(entity, tags);
}

void Document::ReplaceValue(const Tag& tag, std::string value) {
  state_->edits.ReplaceValue(tag, std::move(value));
}

void Document::KeepApplicationNumber(std::string_view name, std::int32_t number) {
  state_->edits.KeepApplicationNumber(name, number);
}

void Document::BeginGroup(std::span<const Entity* const> replaced) {
  state_->edits.BeginGroup(replaced);
}

void Document::EndGroup(std::string_view name, std::string_view description) {
  state_->edits.EndGroup(name, description);
}

std::string Document::RequireLayer(std::string_view name) {
  return state_->edits.TableEntries().RequireLayer(name);
}

void Document::RequireLinetype(std::string_view name) {
  state_->edits.TableEntries().RequireLinetype(name);
}

void Document::RequireApplication(std::string_view name) {
  state_->edits.TableEntries().RequireApplication(name);
}

void Document::Settle() {
  auto settled = std::make_unique<State>(SourceOf(FileName(), Serialize()), state_->file);
  settled->rules.units = state_->rules.units;
  settled->codec = state_->codec;  // what texts are in does not change, and what was doubtful stays so
  settled->isSettled = state_->isSettled || IsChanged();
  settled->notes = Notes();
  state_ = std::move(settled);
}

bool Document::IsChanged() const {
  return state_->isSettled || state_->edits.IsChanged();
}

std::vector<std::string> Document::Notes() const {
  std::vector<std::string> notes = state_->notes;
  for (std::string& note : state_->edits.Notes())
    if (std::find(notes.begin(), notes.end(), note) == notes.end()) notes.push_back(std::move(note));
  return notes;
}

EditMark Document::Mark() const {
  return state_->edits.Mark();
}

void Document::Rollback(const EditMark& mark) {
  state_->edits.Rollback(mark);
}

Excerpts Document::MakeExcerpts() const {
  return state_->edits.MakeExcerpts();
}

bool Document::HasModelSpaceHandle() const {
  return ParseHandle(state_->index.modelSpace.value).value_or(0) != 0;
}

void Document::Save(const std::string& path) const {
  const bool isLoadedFile = state_->file.exists && IsSameFile(path, FileName());
  const auto refuseIfChanged = [&] {
    if (isLoadedFile && platform::StateOfFile(path) != state_->file)
      state_->source.Fail("was changed by another program meanwhile; nothing is written");
  };
  refuseIfChanged();
  platform::FileReplacement file(path);
  state_->edits.Write([&](std::string_view piece) { file.Write(piece); });
  refuseIfChanged();  // large drawings take a while
  file.Commit();
  if (isLoadedFile) state_->file = StateAfterSave(path);
}

std::string Document::Serialize() const {
  std::string text;
  state_->edits.Write([&](std::string_view piece) { text += piece; });
  return text;
}

}  // namespace teskarlt::dxf

// Document.h - a drawing that is read, changed and saved without touching what it holds besides.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/read/Layers.h"
#include "teskarlt/dxf/read/TagList.h"
#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/TypedTag.h"
#include "teskarlt/dxf/write/Edits.h"
#include "teskarlt/dxf/write/Excerpts.h"

namespace teskarlt::dxf {

// A drawing as text or binary file; it is saved in the form that it was loaded in. Reading keeps ranges of
// the file's bytes, not its tags; edits are kept aside until Save. All functions throw teskarlt::Error.
//
// A handle that cannot be read is kept and counts as none. It is an error, with its line, only where a new
// object has to refer to it. Where handles are used twice, the first object of the file is meant.
class Document {
 public:
  static Document Load(const std::string& path);
  // `name` stands for the file in messages.
  static Document FromText(const std::string& name, std::string_view text);
  static Document FromSource(SourceText source);

  Document(Document&&) noexcept;
  Document& operator=(Document&&) noexcept;
  ~Document();

  const std::string& FileName() const;
  const SourceText& Source() const;

  // --- What the file holds, as it was loaded ---

  // Number of $ACADVER; VERSION_R12 when it is missing.
  int Version() const;
  // $DWGCODEPAGE as it stands; "ANSI_1252" when it is missing.
  std::string_view CodePageName() const;
  // $INSUNITS; 0 (no unit) when it is missing or no number of a unit.
  int Units() const;
  // What to count with where the user knows the unit better than the header ($INSUNITS); the header stays.
  void AssumeUnits(int units);
  // First tag of a header variable ("$INSUNITS").
  std::optional<Tag> HeaderVariable(std::string_view name) const;

  // The tags of a section ("BLOCKS"), from the line of its SECTION on and without its ENDSEC; empty when it
  // is missing.
  std::string_view SectionText(std::string_view name) const;

  // The entities of the model space in the order of the
  // file; those of paper space and of blocks are left out.
  std::span<const Entity> Entities() const;
  // The first entity of the model space with this handle; null when there is none.
  const Entity* FindEntity(std::uint64_t handle) const;
  TagReader Reader(const Entity& entity) const;
  // The tags of an entity and of its vertices or attributes, or whatever else the range of the file holds.
  std::vector<TagList> TagLists(std::string_view range) const;
  // The number that KeepApplicationNumber left with the drawing; nothing without a readable one.
  std::optional<std::int32_t> ApplicationNumber(std::string_view name) const;
  // Number of entities that are not in the model space but in paper space.
  std::size_t PaperSpaceEntities() const;

  // The table of layers.
  Layers ReadLayers() const;
  // `name` as it stands in the file.
  bool HasLayer(std::string_view name) const;

  // --- Texts ---

  // A tag's text in UTF-8, with \U+XXXX and ^ escapes resolved. Bytes that are malformed become U+FFFD.
  std::string Text(const Tag& tag) const;
  // Between UTF-8 and texts as they stand in the file, which is how edits and the module have them: in its
  // encoding, with escapes for what that lacks. Encode throws for malformed UTF-8.
  std::string Decode(std::string_view raw) const;
  std::string Encode(std::string_view utf8) const;
  // What is doubtful about the texts read and written so far, for people; empty when nothing is.
  std::string TextNote() const;

  // --- Edits ---

  // Adds an entity behind the last one and gives its handle, 0 in a drawing without handles. The tags come
  // in the order 0, 100, 8, (6), (62), 100, points and numbers, 1001 with its extended data; -3 is passed
  // over. Handle, owner and what the version wants otherwise are added here; so are layer, linetype and
  // applications that the drawing lacks. Refused whole: unknown codes, values of a wrong kind or range,
  // numbers that are not finite, extended texts of more than 255 bytes, unknown linetypes.
  std::uint64_t AddEntity(std::span<const TypedTag> tags);

  // Takes an entity of Entities() out, and out of the groups and drawing orders that list it; a group that
  // loses its last member goes too, and so does what the entity owns. A second time does nothing.
  void RemoveEntity(const Entity& entity);
  bool IsRemoved(const Entity& entity) const;

  // Gives a line, circle, text or 3D face of Entities() the points and extended data of a new entity of its
  // type, in its place. All else of it stays as a user left it: handle, layer, colour, other applications'
  // data, places in groups and drawing orders; the linetype unless it is renewed. One that was removed comes
  // back.
  void Redraw(const Entity& entity, std::span<const TypedTag> tags, LinetypeOnRedraw linetype);

  // Gives an entity of Entities() that data of an application, 1001 with its name first, in place of what it
  // had of it; the name alone takes them from it. Once for each entity and application, and not for one that
  // is drawn anew. Refused as AddEntity refuses extended data.
  void SetExtendedData(const Entity& entity, std::span<const TypedTag> tags);

  // Writes another value, in the drawing's encoding, in the place of the tag's. The tag is one of the file,
  // and none is replaced twice.
  void ReplaceValue(const Tag& tag, std::string value);

  // Keeps a number of an application with the drawing, in its entry in the table APPID; another one gives
  // way. Does nothing in a drawing that does not declare the application. Once before the drawing is saved.
  void KeepApplicationNumber(std::string_view name, std::int32_t number);

  // From here on to EndGroup, new entities come into those groups of the drawing that list all `replaced`
  // entities, or else into a group of their own, redrawn ones too. A drawing before R13 has no
  // groups: there both do nothing.
  void BeginGroup(std::span<const Entity* const> replaced);
  // `name` is that of a new group; when it is taken, a number is put behind it. Both are ASCII.
  void EndGroup(std::string_view name, std::string_view description);

  // Adds the table entry when the drawing has none of that name; an existing one stays as it is. Names are
  // as they stand in the file. RequireLayer gives the name that the drawing uses: characters that the version
  // does not allow become "_", an R12 name is in capitals and cut at 31 characters.
  std::string RequireLayer(std::string_view name);
  // "DASHED" and "CONTINUOUS" are known.
  void RequireLinetype(std::string_view name);
  void RequireApplication(std::string_view name);

  // Takes the edits over as if the drawing had been saved and loaded again: what it holds is what Save would
  // have written, and Save writes that with the edits made since. Entities, tags and marks from before are
  // void. Throws as Load does, and then the document is as it was.
  void Settle();

  // Whether anything was edited since the drawing was loaded.
  bool IsChanged() const;
  // What of the drawing's own damage the edits mend, in sentences for the user.
  std::vector<std::string> Notes() const;
  EditMark Mark() const;
  // Undoes the edits made since the mark was taken. Marks taken later are void then.
  void Rollback(const EditMark& mark);

  // What the edits change, for whoever checks it before the drawing is saved.
  Excerpts MakeExcerpts() const;
  // Whether the drawing says by which handle entities refer to the model space, to which they belong.
  bool HasModelSpaceHandle() const;

  // --- Output ---

  // Writes the drawing with its edits in place of the file `path`. Refuses to overwrite the loaded file when
  // somebody else changed it since. The document stays as it is: the edits are still pending.
  void Save(const std::string& path) const;
  // The same bytes as a text.
  std::string Serialize() const;

 private:
  struct State;
  explicit Document(std::unique_ptr<State> state);

  std::unique_ptr<State> state_;
};

}  // namespace teskarlt::dxf

// ProofTest.cpp - changes that leave a drawing sound, and those that do not.
#include "teskarlt/check/Proof.h"
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

using namespace std::string_view_literals;
using dxf::Document;
using dxf::Point;
using dxf::TypedTag;

std::vector<TypedTag> NewLine(std::string_view marker = "AcDbLine") {
  return {{0, "LINE"sv}, {100, "AcDbEntity"sv}, {8, "NEW"sv},        {100, marker},
          {10, Point{}}, {11, Point{1, 0, 0}},  {1001, "FOREIGN"sv}, {1070, std::int64_t{1}}};
}

// What is said of a drawing whose entity 100 gives way to new ones in a group.
std::string ProofOf(const std::string& text, std::string_view marker = "AcDbLine") {
  Document drawing = Document::FromText("roof.dxf", text);
  const dxf::Entity* const old = drawing.FindEntity(0x100);
  drawing.BeginGroup(std::vector{old});
  drawing.AddEntity(NewLine());
  drawing.AddEntity(NewLine(marker));
  drawing.EndGroup("NEW", "new");
  if (old != nullptr) drawing.RemoveEntity(*old);
  return dxf::ErrorOf([&] { ProveChanges(drawing); });
}

constexpr std::string_view GROUP = "0|GROUP|5|E|330|D|100|AcDbGroup|340|100|";

TEST(ProveChanges, SoundChangesAreTaken) {
  EXPECT_EQ(ProofOf(Sound(Line("100"))), "");
  EXPECT_EQ(ProofOf(Sound(Line("100"), std::string(GROUP))), "");
  EXPECT_EQ(ProofOf(SoundOld(OldLine("5|100|"))), "");
}

TEST(ProveChanges, NewEntityThatIsWrongIsRefused) {
  EXPECT_EQ(
      ProofOf(Sound(Line("100")), "AcDbArc"),
      "roof.dxf: nothing is written because of a fault of this program: the drawing would be wrong then "
      "(marker-missing: the LINE lacks class markers (group 100): AcDbLine); please report this sentence "
      "with the drawing and the command");
}

TEST(ProveChanges, ErrorsOfTheDrawingAreItsOwn) {
  EXPECT_EQ(ProofOf(Sound(Line("100", "62|red|"))), "");
  EXPECT_EQ(ProofOf(Sound(Line("100") + Line("100"))), "");
  EXPECT_EQ(ProofOf(Damaged(Sound(Line("100")), "2|BLOCK_RECORD|5|1", "2|BLOCK|5|1")), "");
  EXPECT_EQ(ProofOf(Damaged(Sound(Line("100")), "5|2|330|0", "330|0")), "");
}

TEST(ProveChanges, DrawingWithEntitiesAloneIsTaken) {
  EXPECT_EQ(ProofOf(dxf::OnlyEntities("0|LINE|8|0")), "");
  const std::string header = Tags("0|SECTION|2|HEADER|9|$ACADVER|1|AC1015|0|ENDSEC");
  EXPECT_EQ(ProofOf(header + dxf::OnlyEntities("0|LINE|5|100|8|0")), "");
}

TEST(ProveChanges, EntityThatIsTouchedBadlyIsRefused) {
  const std::string text = Sound(Line("100", "62|5|") + Line("101"));
  Document drawing = Document::FromText("roof.dxf", text);
  const auto tags = drawing.TagLists(drawing.FindEntity(0x100)->text);
  drawing.ReplaceValue(tags[0].Tags().back(), "red");
  EXPECT_THAT(dxf::ErrorOf([&] { ProveChanges(drawing); }),
              testing::HasSubstr("(integer-value: \"red\" is not a whole number (group 62))"));
}

}  // namespace
}  // namespace teskarlt::check

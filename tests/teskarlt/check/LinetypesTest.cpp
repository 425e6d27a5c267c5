// LinetypesTest.cpp - the dashes of linetypes.
#include "tests/teskarlt/check/Drawings.h"

namespace teskarlt::check {
namespace {

// A drawing whose linetype Continuous has these tags for its dashes.
std::string WithDashes(std::string_view tags) {
  const std::string head = "2|Continuous|70|0|3||72|65|";
  return Damaged(Sound(), head + "73|0|40|0.0", fmt::format("{}{}", head, tags));
}

TEST(CheckLinetype, DashesAreAsManyAsAnnounced) {
  EXPECT_THAT(Found(WithDashes("73|2|40|3.0|49|2.0|74|0|49|-1.0|74|0")), IsEmpty());
  EXPECT_THAT(Found(WithDashes("73|3|40|3.0|49|2.0|74|0|49|-1.0|74|0")),
              ElementsAre("error linetype-pattern 3"));
}

TEST(CheckLinetype, EachDashSaysWhatItIsMadeOfFromR13On) {
  EXPECT_THAT(Found(WithDashes("73|2|40|3.0|49|2.0|49|-1.0|74|0")),
              ElementsAre("error linetype-pattern 2.0"));
  EXPECT_THAT(Found(Tags("0|SECTION|2|TABLES|0|TABLE|2|LTYPE|70|1|0|LTYPE|2|DASHED|70|0|3||72|65|73|2|40|3.0|"
                         "49|2.0|49|-1.0|0|ENDTAB|0|ENDSEC|0|SECTION|2|ENTITIES|0|ENDSEC|0|EOF")),
              IsEmpty());
}

}  // namespace
}  // namespace teskarlt::check

// ValueListTagsTest.cpp - entities from the module's value lists.
#include <deque>

#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/modules/ValueListTags.h"

namespace teskarlt {
namespace {

using brevanta::ValueNode;

// A value list whose nodes live in the test.
class List {
 public:
  ValueNode& Add(int code) {
    nodes_.push_back({nullptr, static_cast<std::int16_t>(code), {}});
    if (nodes_.size() > 1) nodes_[nodes_.size() - 2].next = &nodes_.back();
    return nodes_.back();
  }
  List& Text(int code, const char* text) {
    Add(code).value.text = const_cast<char*>(text);
    return *this;
  }
  const ValueNode* Head() const { return &nodes_.front(); }

 private:
  std::deque<ValueNode> nodes_;
};

TEST(TagsOf, EachKindOfValueIsTaken) {
  List list;
  list.Text(0, "LINE");
  ValueNode& point = list.Add(10);
  point.value.point[0] = 1;
  point.value.point[1] = 2;
  point.value.point[2] = 3;
  list.Add(40).value.real = 0.5;
  list.Add(70).value.shortInteger = -7;
  list.Add(1071).value.longInteger = 70000;
  const std::vector<dxf::TypedTag> expected = {{0, std::string_view("LINE")},
                                               {10, dxf::Point{1, 2, 3}},
                                               {40, 0.5},
                                               {70, std::int64_t{-7}},
                                               {1071, std::int64_t{70000}}};
  EXPECT_EQ(TagsOf(list.Head()), expected);
}

TEST(TagsOf, MarkerOfTheExtendedDataGoes) {
  List list;
  list.Text(0, "LINE").Add(-3);
  list.Text(1001, "TK_LT_ELEM");
  EXPECT_EQ(TagsOf(list.Head()).size(), 2U);
}

TEST(TagsOf, EmptyLayerNameIsAnErrorThatNamesTheStringModule) {
  List list;
  list.Text(0, "LINE").Text(8, "");
  try {
    TagsOf(list.Head());
    FAIL();
  } catch (const Error& error) {
    EXPECT_NE(error.Message().find("no layer, since it could not open Brevanta_d.tkr"), std::string::npos);
  }
}

TEST(TagsOf, MissingTextIsAnError) {
  List list;
  list.Text(0, "LINE").Text(8, nullptr);
  EXPECT_THROW(TagsOf(list.Head()), Error);
}

TEST(TagsOf, CodeWithoutAKindIsAnError) {
  for (const int code : {-6, 80, 310, 5007}) {
    List list;
    list.Text(0, "LINE").Add(code);
    EXPECT_THROW(TagsOf(list.Head()), Error) << code;
  }
}

TEST(TagsOf, ListThatClosesOnItselfIsAnError) {
  List list;
  ValueNode& node = list.Text(0, "LINE").Add(70);
  node.next = &node;
  EXPECT_THROW(TagsOf(list.Head()), Error);
}

}  // namespace
}  // namespace teskarlt

// MergePropertiesTest.cpp - laws of the merge on random catalogues.
#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "MergeFixture.h"
#include "ReferenceMerge.h"

namespace brevanta {
namespace {

using MergeProperties = MergeTest;

constexpr int ROUNDS = 300;

class RandomCatalogues {
 public:
  explicit RandomCatalogues(unsigned seed) : random_(seed) {}

  // A catalogue with preamble, empty lines, repeated headers and keys, and lines of any length.
  std::string Any() {
    std::string text;
    const unsigned lines = Below(40);
    for (unsigned i = 0; i < lines; ++i)
      text += Line() + (i + 1 == lines && Below(2) == 0 ? "" : "\n");
    return text;
  }

  // A catalogue in which every section occurs once and no line is longer than one read.
  std::string Plain() {
    std::string text = Below(2) == 0 ? "# preamble\n\n" : "";
    std::vector<int> sections{0, 1, 2, 3, 4};
    std::shuffle(sections.begin(), sections.end(), random_);
    sections.resize(Below(6));
    for (const int section : sections) {
      text += "VYROBCE " + std::to_string(section) + "\n";
      for (unsigned i = Below(9); i > 0; --i)
        text += (Below(5) == 0 ? "" : Item()) + "\n";
    }
    return text;
  }

 private:
  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_()) % limit; }

  std::string Item() {
    return std::string(Below(3), ' ') + "k" + std::to_string(Below(8)) + "; " + std::to_string(Below(100));
  }

  std::string Line() {
    static const std::string headers[] = {"VYROBCE", "VYROBCE A", "VYROBCE B", "VYROBCE A ", "VYROBCE\t;1"};
    switch (Below(10)) {
      case 0:
      case 1:
        return headers[Below(5)];
      case 2:
        return "";
      case 3:
        return std::string(240 + Below(40), 'x') + headers[Below(5)] + std::string(Below(300), 'y');
      case 4:
        return std::string(";; ;\0\r\x80", 7).substr(Below(7));
      default:
        return Item();
    }
  }

  std::mt19937 random_;
};

// Every item with its section, in the order of the file.
using Items = std::vector<std::pair<std::string, std::string>>;

Items ItemsOf(const std::string& text) {
  Items items;
  std::string section;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find('\n', begin);
    const std::string line = text.substr(begin, end - begin);
    begin = end + 1;
    if (line.starts_with("VYROBCE")) {
      section = line;
    } else if (!line.empty() && !section.empty()) {
      items.emplace_back(section, line);
    }
  }
  return items;
}

std::map<std::string, std::vector<std::string>> BySection(const Items& items) {
  std::map<std::string, std::vector<std::string>> sections;
  for (const auto& [section, line] : items)
    sections[section].push_back(line);
  return sections;
}

TEST_F(MergeProperties, ResultIsThatOfTheReferenceByteForByte) {
  RandomCatalogues random(53);
  for (int i = 0; i < ROUNDS; ++i) {
    Write(random.Any(), random.Any());
    const std::string target = ReadText(Target());
    const std::string source = ReadText(Source());
    ASSERT_EQ(Merge(), MERGE_DONE);
    ASSERT_EQ(ReadText(Target()), ReferenceMerge(target, source)) << target << "\n---\n" << source;
  }
}

TEST_F(MergeProperties, MergingTwiceEqualsMergingOnce) {
  RandomCatalogues random(54);
  for (int i = 0; i < ROUNDS; ++i) {
    const std::string target = random.Plain();
    const std::string source = random.Plain();
    const std::string once = Merged(target, source);
    ASSERT_EQ(Merged(once, source), once) << target << "\n---\n" << source;
  }
}

TEST_F(MergeProperties, EveryItemOfTheTargetStaysInFrontOfItsSection) {
  RandomCatalogues random(55);
  for (int i = 0; i < ROUNDS; ++i) {
    const std::string target = random.Plain();
    const auto merged = BySection(ItemsOf(Merged(target, random.Plain())));
    for (const auto& [section, lines] : BySection(ItemsOf(target))) {
      const auto& all = merged.at(section);
      ASSERT_GE(all.size(), lines.size());
      EXPECT_TRUE(std::equal(lines.begin(), lines.end(), all.begin())) << target;
    }
  }
}

std::string KeyOf(const std::string& line) {
  const std::string field = line.substr(0, line.find(';'));
  return field.substr(field.find_first_not_of(' '));
}

TEST_F(MergeProperties, EveryKeyOfTheSourceIsThere) {
  RandomCatalogues random(56);
  for (int i = 0; i < ROUNDS; ++i) {
    const std::string source = random.Plain();
    std::set<std::pair<std::string, std::string>> keys;
    for (const auto& [section, line] : ItemsOf(Merged(random.Plain(), source)))
      keys.emplace(section, KeyOf(line));
    for (const auto& [section, line] : ItemsOf(source))
      EXPECT_TRUE(keys.contains({section, KeyOf(line)})) << line;
  }
}

// The two kinds of catalogue for which a second merge changes the file again.

TEST_F(MergeProperties, SecondMergeJoinsASectionThatTheFirstOneHadToIntroduceTwice) {
  const std::string source = "VYROBCE C\nc1; 1\nVYROBCE B\nb1; 2\nVYROBCE C\nc2; 3\n";
  const std::string once = Merged("", source);
  EXPECT_EQ(once, source);
  EXPECT_EQ(Merged(once, source), "VYROBCE C\nc1; 1\nc2; 3\nVYROBCE B\nb1; 2\nVYROBCE C\n");
}

TEST_F(MergeProperties, EveryMergeAddsAnEmptyLineBehindALineOf254Characters) {
  const std::string line(254, 'x');
  const std::string once = Merged("VYROBCE A\n" + line + "\n", "");
  EXPECT_EQ(once, "VYROBCE A\n" + line + "\n\n");
  EXPECT_EQ(Merged(once, ""), "VYROBCE A\n" + line + "\n\n\n");
}

}  // namespace
}  // namespace brevanta

// Report.h - how the subcommands print tables and what their options share.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/terminal/Json.h"

namespace teskarlt {

// Raised with every change of the JSON output that a reader would notice.
constexpr int JSON_VERSION = 1;

constexpr const char* JSON_HELP = "print JSON, for programs";

// To standard output.
void PrintJson(const Json& json);

// A table in aligned columns for people; the texts are UTF-8. Line breaks and other control characters of
// theirs become blanks.
class Table {
 public:
  // How headings stand that are wider than their columns in a table of more than 100 characters.
  enum class Headings { InOneLine, Broken };

  explicit Table(std::vector<std::string> headings, Headings style = Headings::InOneLine);
  void Add(std::vector<std::string> row);
  void Print() const;  // to standard output

 private:
  std::vector<std::string> headings_;
  Headings style_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace teskarlt

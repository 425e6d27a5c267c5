// ScheduleTable.h - the schedule of windows as a table beside a plan.
#pragma once

#include <vector>

#include "teskarlt/plot/Canvas.h"
#include "teskarlt/schedule/Sheet.h"

namespace teskarlt::plot {

class ScheduleTable {
 public:
  // The sheet must outlive the table.
  explicit ScheduleTable(const schedule::Sheet& sheet);

  // What it takes, with its title.
  double Width() const;
  double Height() const;

  // With its upper left corner there.
  void Draw(const PaperPoint& corner, Canvas& canvas) const;

 private:
  void DrawHeadings(const PaperPoint& corner, Canvas& canvas) const;
  void DrawRow(const std::vector<schedule::Cell>& cells, const PaperPoint& corner, bool isBold,
               Canvas& canvas) const;
  void DrawRules(const PaperPoint& corner, Canvas& canvas) const;
  double HeadHeight() const;
  std::size_t RowCount() const;

  const schedule::Sheet& sheet_;
  std::vector<std::vector<std::string>> headings_;  // lines of each
  std::vector<double> widths_;                      // of the columns
};

}  // namespace teskarlt::plot

// Finding.cpp - the names of what can be wrong with a drawing.
#include "teskarlt/check/Finding.h"

#include <iterator>

namespace teskarlt::check {
namespace {

constexpr std::string_view KIND_NAMES[] = {
    "group-code",
    "file-cut-short",
    "eof-missing",
    "bytes-behind-eof",
    "outside-section",
    "section-open",
    "section-twice",
    "section-missing",
    "table-open",
    "table-missing",
    "table-count",
    "block-open",
    "drawing-refused",

    "unknown-code",
    "integer-value",
    "real-value",
    "handle-value",
    "binary-value",
    "text-length",
    "text-bytes",
    "code-page",

    "layer-undefined",
    "linetype-undefined",
    "text-style-undefined",
    "dimension-style-undefined",
    "block-undefined",
    "application-undefined",
    "record-missing",
    "record-twice",
    "record-name",
    "linetype-pattern",

    "handle-missing",
    "handle-twice",
    "handle-seed",
    "owner-missing",
    "owner-dangling",
    "owner-kind",
    "group-member",
    "dictionary-entry",
    "reactor",
    "extension-dictionary",
    "draw-order",
    "plot-style",

    "marker-missing",
    "marker-unexpected",
    "control-group",
    "layer-missing",
    "seqend-missing",
    "part-outside",
    "vertex-count",
    "face-index",

    "xdata-without-application",
    "xdata-application-twice",
    "xdata-order",
    "xdata-braces",
    "xdata-point",
    "xdata-text-length",
    "xdata-size",

    "window-description",
    "window-entities",
    "window-number",
    "window-size",
    "window-misfit",
    "window-mark",
    "window-tag",
    "window-foreign-data",
};
static_assert(std::size(KIND_NAMES) == static_cast<std::size_t>(Kind::KindCount));

}  // namespace

std::string_view KindName(Kind kind) {
  return KIND_NAMES[static_cast<std::size_t>(kind)];
}

}  // namespace teskarlt::check

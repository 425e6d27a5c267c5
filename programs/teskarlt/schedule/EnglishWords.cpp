// EnglishWords.cpp - the words of schedules in English.
#include "teskarlt/schedule/Language.h"

namespace teskarlt::schedule {

namespace {

constexpr std::pair<std::string_view, std::string_view> WORDS[] = {
    {"schedule", "Roof window schedule"},
    {"comparison", "Changes of the roof windows"},
    {"total", "Total"},
    // columns
    {"mark", "Mark"},
    {"quantity", "Quantity"},
    {"maker", "Maker"},
    {"key", "Catalogue key"},
    {"text", "Description"},
    {"width", "Width"},
    {"length", "Length"},
    {"frameWidth", "Frame width"},
    {"frameDepth", "Frame depth"},
    {"opening", "Opening"},
    {"pitch", "Roof pitch"},
    {"roof", "Roof"},
    {"compass", "Orientation"},
    {"sill", "Sill height"},
    {"head", "Head height"},
    {"glassArea", "Glass area"},
    {"frameArea", "Frame area"},
    {"toEaves", "To eaves"},
    {"toRidge", "To ridge"},
    {"layer", "Layer"},
    {"number", "Number"},
    {"code", "Opening code"},
    {"windowLayers", "Window layers"},
    {"notes", "Notes"},
    // how a sash opens
    {"opening.B", "top-hung"},
    {"opening.C", "bottom-hung"},
    {"opening.D", "centre-pivot"},
    {"opening.E", "side-hung"},
    {"opening.fixed", "fixed glazing"},
    {"opening.inward", "opens inward"},
    {"opening.outward", "opens outward"},
    {"opening.left", "hinges on the left seen from inside"},
    {"opening.right", "hinges on the right seen from inside"},
    // points of the compass
    {"compass.N", "N"},
    {"compass.E", "E"},
    {"compass.S", "S"},
    {"compass.W", "W"},
    // what a comparison tells
    {"change", "Change"},
    {"value", "Value"},
    {"before", "Before"},
    {"after", "Now"},
    {"came", "new"},
    {"went", "gone"},
    {"changed", "changed"},
};

}  // namespace

const Language ENGLISH{"en", '.', WORDS};

}  // namespace teskarlt::schedule

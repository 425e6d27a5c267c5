// CatalogueItem.cpp - takes a window out of a catalogue's item line into the record.
#include "dialog/CatalogueItem.h"

#include "dialog/FieldText.h"
#include "dialog/Refusal.h"
#include "inc/LibraryMerge.h"
#include "window/Choices.h"

namespace brevanta {

namespace {

constexpr double CENTIMETRES_PER_METRE = 100.0;

void TakeSize(std::string_view name, std::string_view text, double& metres) {
  if (!text.empty()) metres = ParseReal(name, text) / CENTIMETRES_PER_METRE;
}

template <std::size_t SIZE>
void TakeText(std::string_view name, std::string_view text, char (&field)[SIZE]) {
  if (!text.empty()) StoreText(name, text, SIZE, field);
}

void TakeOpeningCode(std::string_view text, WindowParams& record) {
  if (text == FIXED_GLAZING) {
    record.openingCode[0] = '\0';
  } else {
    TakeText("openingCode", text, record.openingCode);
  }
}

void TakeFields(std::string_view line, WindowParams& record) {
  const auto next = [&line] { return Trimmed(CutField(line, FIELD_DELIMITER)); };
  TakeText("text2", next(), record.text2);
  TakeSize("width", next(), record.width);
  TakeSize("length", next(), record.length);
  TakeSize("frameWidth", next(), record.frameWidth);
  TakeSize("frameDepth", next(), record.frameDepth);
  TakeOpeningCode(next(), record);
  TakeText("text3", next(), record.text3);
}

}  // namespace

void TakeCatalogueItem(std::string_view line, WindowParams& record) {
  try {
    TakeFields(line, record);
  } catch (const Refusal& refusal) {
    throw Refusal("the catalogue's window " + Quoted(Trimmed(line.substr(0, line.find(FIELD_DELIMITER)))) +
                  " cannot be used: " + refusal.what());
  }
}

}  // namespace brevanta

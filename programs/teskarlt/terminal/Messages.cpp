// Messages.cpp - what the program tells people on standard error.
#include "teskarlt/terminal/Messages.h"

#include <algorithm>
#include <cstdio>

#include <fmt/format.h>

namespace teskarlt {

namespace {

// In UTF-8: the two separators and the controls above ASCII.
constexpr std::string_view LINE_SEPARATOR = "\xE2\x80\xA8";
constexpr std::string_view PARAGRAPH_SEPARATOR = "\xE2\x80\xA9";
constexpr char UPPER_CONTROL_LEAD = '\xC2';
constexpr unsigned char FIRST_AFTER_UPPER_CONTROLS = 0xA0;
constexpr unsigned char FIRST_PRINTABLE = 0x20;
constexpr unsigned char DELETE = 0x7F;

// How many bytes at the beginning of the text are a control character; 0 when there is none.
std::size_t ControlBytes(std::string_view text) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  if (byte(0) < FIRST_PRINTABLE || byte(0) == DELETE) return 1;
  if (text.starts_with(LINE_SEPARATOR) || text.starts_with(PARAGRAPH_SEPARATOR)) return LINE_SEPARATOR.size();
  const bool isUpper =
      text.size() > 1 && text[0] == UPPER_CONTROL_LEAD && byte(1) < FIRST_AFTER_UPPER_CONTROLS;
  return isUpper ? 2 : 0;
}

// A message that standard error does not take is lost; it is no error of its own.
void Print(std::string_view begin, std::string_view message) {
  std::fputs(fmt::format("{}{}\n", begin, OneLine(message)).c_str(), stderr);
}

}  // namespace

std::string OneLine(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  while (!text.empty()) {
    const std::size_t control = ControlBytes(text);
    line += control > 0 ? ' ' : text[0];
    text.remove_prefix(std::max<std::size_t>(control, 1));
  }
  return line;
}

void Tell(std::string_view message) {
  Print("teskarlt: ", message);
}

void TellWarning(std::string_view message) {
  Print("teskarlt: warning: ", message);
}

void TellNote(std::string_view message) {
  Print("teskarlt: note: ", message);
}

}  // namespace teskarlt

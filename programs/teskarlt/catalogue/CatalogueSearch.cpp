// CatalogueSearch.cpp - words compared with the texts of windows, without case and accents.
#include "teskarlt/catalogue/CatalogueSearch.h"

#include <algorithm>

#include "platform/CodePage.h"
#include "teskarlt/catalogue/ItemFields.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

namespace {

// The plain letter of each character from U+00C0 to U+017F; a blank stands for those that have none.
constexpr char32_t FIRST_ACCENTED = 0xC0;
constexpr std::string_view PLAIN =
    "aaaaaaaceeeeiiiidnooooo ouuuuytsaaaaaaaceeeeiiiidnooooo ouuuuyty"   // U+00C0
    "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkklllllll"   // U+0100
    "lllnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";  // U+0140

void AppendPlain(std::string& text, char32_t character) {
  constexpr char32_t endOfAscii = 0x80;
  if (character < endOfAscii) {
    const bool isCapital = character >= 'A' && character <= 'Z';
    text += static_cast<char>(isCapital ? character - 'A' + 'a' : character);
    return;
  }
  const std::size_t place = character - FIRST_ACCENTED;
  if (character >= FIRST_ACCENTED && place < PLAIN.size() && PLAIN[place] != ' ') {
    text += PLAIN[place];
    return;
  }
  std::string utf8;
  platform::AppendUtf8(utf8, character);
  text += dxf::FoldedName(utf8);
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  const std::string plain = PlainLetters(text);
  for (std::size_t begin = 0; (begin = plain.find_first_not_of(' ', begin)) != std::string::npos;) {
    const std::size_t end = std::min(plain.find(' ', begin), plain.size());
    words.push_back(plain.substr(begin, end - begin));
    begin = end;
  }
  return words;
}

}  // namespace

std::string PlainLetters(std::string_view utf8) {
  constexpr char32_t replacement = 0xFFFD;
  std::string plain;
  for (std::size_t at = 0; at < utf8.size();)
    AppendPlain(plain, platform::NextCharacter(utf8, at).value_or(replacement));
  return plain;
}

std::vector<const CatalogueItem*> FindItems(const Catalogue& catalogue, std::string_view text) {
  const std::vector<std::string> words = WordsOf(text);
  std::vector<const CatalogueItem*> found;
  for (const CatalogueItem& item : catalogue.items) {
    const ItemTexts texts = TextsOf(item.line);
    const std::string all = PlainLetters(CatalogueText(MakerOf(catalogue.sections[item.section])) + "\n" +
                                         texts[FIELD_KEY] + "\n" + texts[FIELD_DESCRIPTION]);
    const bool hasAll = std::all_of(words.begin(), words.end(), [&](const std::string& word) {
      return all.find(word) != std::string::npos;
    });
    if (hasAll && !words.empty()) found.push_back(&item);
  }
  return found;
}

}  // namespace teskarlt

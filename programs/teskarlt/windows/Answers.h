// Answers.h - an order in the words of the dialog: a text for each field of the record.
#pragma once

#include <map>
#include <string>

#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/ModuleSession.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// Catalogues, each of which is read when it is needed first.
class CatalogueShelf {
 public:
  // The catalogue with this file or folder, or the usual one for an empty path (CatalogueFolder.h). It lives
  // as long as the shelf. Throws Error as ReadCatalogue does.
  const Catalogue& Get(const std::string& path);

 private:
  std::map<std::string, Catalogue> catalogues_;
};

// What the dialog is answered: the catalogue's window of the order and its settings, texts as they stand in
// the drawing's file. Throws Error, naming the option, for a window or field that there is not and for a text
// that is no UTF-8.
DialogAnswers AnswersOf(const WindowOrder& order, const dxf::Document& drawing, CatalogueShelf& shelf);

}  // namespace teskarlt

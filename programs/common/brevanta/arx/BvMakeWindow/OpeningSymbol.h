// OpeningSymbol.h - the lines that show how a window's sash opens.
#pragma once

#include "arx/BvMakeWindow/BvMakeWindow.h"

namespace brevanta {

// Draws the frame's and the sash's outline and the marks of the record's opening code, from the outlines that
// MakeWindowBody has recorded in the maker. `innerOutline` gets a fifth point, its first one again.
void DrawOpeningSymbol(CbvMakeWindow& maker);

// True when the letter, "B", "C", "D" or "E", occurs in the code. Sets the maker's `currentLinetype` and
// `hingeSide` by the suffixes of the letter: I dashed, O solid, and for E also L or R.
bool ParseOpeningCode(CbvMakeWindow& maker, const char* code, const char* letter);

}  // namespace brevanta

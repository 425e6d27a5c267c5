// xsort.h - text comparison in the order of a collation table that is read from a file.
#pragma once

namespace xsort {

// A table file lists the collating elements, letters or groups of letters that sort as one, in their sort
// order, separated by any run of blank, newline, tab, comma and semicolon:
//
//   a b c d e f g h ch i j
//
// An element's rank is its place in the file, counted from 1. A text is compared by its collation key: one
// byte for each element, its rank, and one byte for each character that is in no element, the number of
// elements plus 2. Where several elements fit, the longest wins. Texts are 8-bit strings in one code page,
// ended by NUL, never null.
//
// The library holds one table; it has no lock, so one thread uses it. What a file should keep to, and what
// happens else:
// - at most 256 elements: later tokens are ignored;
// - at most 253 elements, for a sensible order: key bytes wrap at 256, so with 254 elements a character in no
//   element ends the key, with 255 and 256 it sorts as rank 1 and 2, and the 256th element ends the key;
// - an element of at most 127 characters: the length is kept in a signed byte. Lengths that wrap to 0 or
// below (128 to 256 characters) never match; above, a token counts as the first length - 256 of its
//   characters, and so on by 256;
// - the last element one character long: the sort by length leaves it in the last place, so a longer one
//   loses to an earlier element that it begins with;
// - no element twice: the first one's rank counts;
// - the line ends of its system: on Linux a carriage return is no separator and belongs to its element;
// - no NUL: the table ends there.

// Reads the table from the file (a path, never null), which is opened as text. Gives 0; or -1, with the table
// as it was, when one is loaded already, when the file cannot be opened or read, when it is empty or a
// folder, and when memory is low. A file of separators alone gives 0 and no table. If the file changes while
// it is read, the table is made of what was read, at most the size that the file had when it was opened.
int XsortLoad(const char* fileName);

// Releases the table and gives 0; -1 when none is loaded.
int XsortUnload();

// Writes the collation key of the text, NUL-terminated. `key` must hold strlen(text) + 1 bytes, which a key
// never exceeds, and may be the text's own buffer. Gives 0; or -1, with the buffer untouched, when no table
// is loaded.
int XsortKey(const char* text, char* key);

// Below, equal to or above 0 as a sorts before, with or after b: the order of the bytes of their keys, or of
// the texts themselves when no table is loaded. For one table this is a total preorder: any two texts
// compare, transitively, and texts with the same key are equal. Reports "Low memory" as fatal when the keys
// cannot be allocated.
int XsortCompare(const char* a, const char* b);

// XsortCompare under the name that the add-on's other modules call.
int CompareTexts(const char* a, const char* b);

}  // namespace xsort

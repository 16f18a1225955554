#pragma once

#include <cwchar>

namespace qlx {

// Replaces the Arabic letters of text[start, start + length) by their
// contextual presentation forms (isolated, initial, medial, final), in logical
// order.  Lam followed by alef becomes one ligature: the lam's place takes it
// and the alef's place becomes 0.  Returns the number of ligatures made.
int arabicShape(wchar_t *text, int start, int length);

}  // namespace qlx

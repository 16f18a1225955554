#pragma once

namespace qlx {

// Turns the active locale's decimal separator into '.', in place.
char *convertToCLocale(char *s);
// Parses a number written with '.' whatever the active locale.
double atofCLocale(const char *s);

}  // namespace qlx

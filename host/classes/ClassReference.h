#pragma once

#include <string>

// The reference of the host classes as plain text, from the same tables the
// host is given: each class with its super, its block, its counts and every
// declaration.
std::string classReference();

#pragma once

#include <memory>
#include <string>
#include <vector>

// The bytes of the font files that PDF output embeds from, read once and kept
// for the next documents.  The process-wide mutex of font embedding guards them.
class PDFFontFiles {
public:
    typedef std::shared_ptr<const std::vector<char>> Bytes;
    // Null when the file can't be read.
    static Bytes load(const std::string &path);
};

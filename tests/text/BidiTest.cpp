#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "text/unicode/ArabicShaping.h"
#include "text/unicode/Bidi.h"

TEST(Bidi, CharacterTypes) {
    EXPECT_EQ(Bidi::kL, qlx::getBidiType('A'));
    EXPECT_EQ(Bidi::kR, qlx::getBidiType(0x5D0));
    EXPECT_EQ(Bidi::kAL, qlx::getBidiType(0x627));
    EXPECT_EQ(Bidi::kEN, qlx::getBidiType('7'));
    EXPECT_EQ(Bidi::kAN, qlx::getBidiType(0x661));
    EXPECT_EQ(Bidi::kWS, qlx::getBidiType(' '));
    EXPECT_EQ(Bidi::kET, qlx::getBidiType('$'));
    EXPECT_EQ(Bidi::kCS, qlx::getBidiType(','));
    EXPECT_EQ(Bidi::kES, qlx::getBidiType('+'));
    EXPECT_EQ(Bidi::kNSM, qlx::getBidiType(0x300));
    EXPECT_EQ(Bidi::kON, qlx::getBidiType('!'));
    EXPECT_EQ(Bidi::kS, qlx::getBidiType('\t'));
    // Unassigned code points in the Hebrew block default to right to left.
    EXPECT_EQ(Bidi::kR, qlx::getBidiType(0x5FF));
    EXPECT_EQ(Bidi::kL, qlx::getBidiType(0x4E00));
    EXPECT_EQ(')', qlx::getMirror('('));
    EXPECT_EQ('<', qlx::getMirror('>'));
    EXPECT_EQ(0x220B, qlx::getMirror(0x2208));
    EXPECT_EQ('a', qlx::getMirror('a'));
}

TEST(Bidi, MixedHebrewAndLatin) {
    // "abc ABC def" with ABC Hebrew: the Hebrew word is reversed in place.
    std::vector<int> s = {'a', 'b', 'c', ' ', 0x5D0, 0x5D1, 0x5D2, ' ', 'd', 'e', 'f'};
    std::vector<int> levels = Bidi::resolveLevels(s.data(), (int)s.size(), 0);
    EXPECT_EQ((std::vector<int>{0, 0, 0, 0, 1, 1, 1, 0, 0, 0, 0}), levels);
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3, 6, 5, 4, 7, 8, 9, 10}), Bidi::visualOrder(levels));
    // Right to left paragraph: Latin and numbers keep their order at level 2;
    // digits after Latin letters count as Latin.
    s = {0x5D0, ' ', 'a', 'b', ' ', '1', '2'};
    levels = Bidi::resolveLevels(s.data(), (int)s.size(), -1);
    EXPECT_EQ((std::vector<int>{1, 1, 2, 2, 2, 2, 2}), levels);
    EXPECT_EQ((std::vector<int>{2, 3, 4, 5, 6, 1, 0}), Bidi::visualOrder(levels));
    s = {0x5D0, ' ', '1', '2', ' ', 0x5D1};
    levels = Bidi::resolveLevels(s.data(), (int)s.size(), -1);
    EXPECT_EQ((std::vector<int>{1, 1, 2, 2, 1, 1}), levels);
    EXPECT_EQ((std::vector<int>{5, 4, 2, 3, 1, 0}), Bidi::visualOrder(levels));
    // European digits after Arabic letters are Arabic numbers; "1,5" stays one number.
    s = {0x627, ' ', '1', ',', '5'};
    levels = Bidi::resolveLevels(s.data(), (int)s.size(), 0);
    EXPECT_EQ((std::vector<int>{1, 1, 2, 2, 2}), levels);
    // A terminator next to a number goes with it.
    s = {0x5D0, ' ', '$', '5'};
    levels = Bidi::resolveLevels(s.data(), (int)s.size(), 1);
    EXPECT_EQ((std::vector<int>{1, 1, 2, 2}), levels);
    EXPECT_EQ(0, Bidi::paragraphLevel(s.data(), 0, -1));
}

// The conformance cases of the Unicode data that this engine's scope covers:
// no explicit embeddings or isolates, no bracket pairs, no separators.
TEST(Bidi, AgreesWithUnicodeConformanceCases) {
    std::ifstream in("/usr/share/unicode/BidiCharacterTest.txt");
    if (!in) GTEST_SKIP() << "unicode-data is not installed";
    std::set<int> brackets;
    std::ifstream bracketFile("/usr/share/unicode/BidiBrackets.txt");
    for (std::string line; std::getline(bracketFile, line);)
        if (!line.empty() && line[0] != '#') brackets.insert(std::stoi(line, nullptr, 16));
    int checked = 0;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::vector<std::string> f;
        std::stringstream ls(line);
        for (std::string x; std::getline(ls, x, ';');) f.push_back(x);
        if (f.size() < 5) continue;
        std::vector<int> chars;
        std::stringstream cs(f[0]);
        bool usable = true;
        for (std::string h; cs >> h;) {
            int c = std::stoi(h, nullptr, 16);
            int t = c > 0xFFFF ? -1 : qlx::getBidiType(c);
            if (t < 0 || t >= Bidi::kLRE || t == Bidi::kBN || t == Bidi::kB || t == Bidi::kS ||
                brackets.count(c))
                usable = false;
            chars.push_back(c);
        }
        if (!usable) continue;
        std::vector<int> expected;
        std::stringstream es(f[3]);
        for (std::string l; es >> l;) expected.push_back(l == "x" ? -1 : std::stoi(l));
        int direction = f[1] == "0" ? 0 : f[1] == "1" ? 1 : -1;
        std::vector<int> levels = Bidi::resolveLevels(chars.data(), (int)chars.size(), direction);
        ASSERT_EQ(expected, levels) << line;
        std::vector<int> order;
        std::stringstream os(f[4]);
        for (int i; os >> i;) order.push_back(i);
        ASSERT_EQ(order, Bidi::visualOrder(levels)) << line;
        ++checked;
    }
    EXPECT_GT(checked, 5);
}

// The type-sequence conformance cases, within the same scope.
TEST(Bidi, AgreesWithUnicodeTypeSequences) {
    std::ifstream in("/usr/share/unicode/BidiTest.txt");
    if (!in) GTEST_SKIP() << "unicode-data is not installed";
    const char *names[] = {"L",   "R",   "AL",  "EN",  "ES",  "ET",  "AN",  "CS",
                           "NSM", "BN",  "B",   "S",   "WS",  "ON",  "LRE", "LRO",
                           "RLE", "RLO", "PDF", "LRI", "RLI", "FSI", "PDI"};
    std::vector<int> levels;
    std::vector<int> order;
    int checked = 0;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#') continue;
        if (line.compare(0, 8, "@Levels:") == 0) {
            levels.clear();
            std::stringstream ls(line.substr(8));
            for (std::string l; ls >> l;) levels.push_back(l == "x" ? -1 : std::stoi(l));
            continue;
        }
        if (line.compare(0, 9, "@Reorder:") == 0) {
            order.clear();
            std::stringstream os(line.substr(9));
            for (int i; os >> i;) order.push_back(i);
            continue;
        }
        size_t semi = line.find(';');
        if (semi == std::string::npos) continue;
        std::vector<int> types;
        bool usable = true;
        std::stringstream ts(line.substr(0, semi));
        for (std::string name; ts >> name;) {
            int t = -1;
            for (int k = 0; k < 23; ++k)
                if (name == names[k]) t = k;
            if (t < 0 || t >= Bidi::kLRE || t == Bidi::kBN || t == Bidi::kB || t == Bidi::kS)
                usable = false;
            types.push_back(t);
        }
        if (!usable || types.size() != levels.size()) continue;
        int bits = std::stoi(line.substr(semi + 1));
        const int directions[] = {-1, 0, 1};
        for (int k = 0; k < 3; ++k) {
            if (!(bits & (1 << k))) continue;
            std::vector<int> got = Bidi::resolveTypeLevels(types, directions[k]);
            ASSERT_EQ(levels, got) << line << " direction " << directions[k];
            ASSERT_EQ(order, Bidi::visualOrder(got)) << line;
            ++checked;
        }
    }
    EXPECT_GT(checked, 10000);
}

TEST(ArabicShaping, ContextualFormsAndLamAlef) {
    // beh teh beh: initial, medial, final.
    std::wstring s = L"\x628\x62A\x628";
    EXPECT_EQ(0, qlx::arabicShape(&s[0], 0, 3));
    EXPECT_EQ(L"\xFE91\xFE98\xFE90", s);
    // Alone, a letter takes its isolated form; alef doesn't join what follows.
    s = L"\x628";
    qlx::arabicShape(&s[0], 0, 1);
    EXPECT_EQ(L"\xFE8F", s);
    s = L"\x627\x628";
    qlx::arabicShape(&s[0], 0, 2);
    EXPECT_EQ(L"\xFE8D\xFE8F", s);
    // Lam alef is one ligature: isolated alone, final after a joining letter.
    s = L"\x644\x627";
    EXPECT_EQ(1, qlx::arabicShape(&s[0], 0, 2));
    EXPECT_EQ(std::wstring(L"\xFEFB") + L'\0', s);
    s = L"\x628\x644\x623";
    EXPECT_EQ(1, qlx::arabicShape(&s[0], 0, 3));
    EXPECT_EQ(std::wstring(L"\xFE91\xFEF8") + L'\0', s);
    // A mark between letters doesn't break the join.
    s = L"\x628\x64E\x628";
    qlx::arabicShape(&s[0], 0, 3);
    EXPECT_EQ(L"\xFE91\x64E\xFE90", s);
    // Only the given stretch is shaped; non-Arabic text is left alone.
    s = L"ab\x628\x628";
    qlx::arabicShape(&s[0], 2, 1);
    EXPECT_EQ(L"ab\xFE8F\x628", s);
    EXPECT_EQ(0, qlx::arabicShape(nullptr, 0, 5));
}

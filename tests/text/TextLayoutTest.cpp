#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "tests/draw/BoundedRun.h"
#include "text/font/FontDriver.h"
#include "text/font/FontFace.h"
#include "text/font/FontGlyph.h"
#include "text/font/FontLock.h"
#include "text/layout/GlyphContainer.h"
#include "text/layout/TTFBlocks.h"
#include "text/layout/TTFImage.h"
#include "text/layout/TTFText.h"
#include "text/layout/TTFTextImpl.h"

namespace {

const int kMode = 1;  // grey antialias, hinted advances

class TextLayout : public ::testing::Test {
protected:
    void SetUp() override { canvas = DrawArea::create(); }
    void TearDown() override {
        for (TTFText *t : texts) t->destroy();
        canvas->destroy();
    }

    TTFBlocks *make(const wchar_t *text, double size = 10, int maxWidth = 0, int maxLines = 0,
                    double angle = 0) {
        TTFText *t = TTFText::create(canvas, text, "arial.ttf", 0, size, 0, angle, false, kMode,
                                     maxWidth, maxLines, 0);
        texts.push_back(t);
        return static_cast<TTFBlocks *>(t);
    }

    static FontFace *face(const char *spec, double size) {
        FontLock lock;
        return FontDriver::getDriver()->openFace(spec, 0, 0, size);
    }
    static double advance(FontFace *f, int ch) {
        FontLock lock;
        FontGlyph *g = f->getGlyph(ch, kMode);
        double a = g ? g->advance : 0;
        if (g) g->release();
        return a;
    }
    static double width(const wchar_t *s, double size = 10) {
        FontFace *f = face("arial.ttf", size);
        double w = 0;
        for (; *s; ++s) w += advance(f, *s);
        return w;
    }
    static int rounded(double v) { return (int)std::floor(v + 0.5); }

    // The characters of line i, dots included.
    static std::wstring lineText(TTFBlocks *b, int line) {
        std::wstring s;
        for (TTFText *item : b->getLineItems(line)) {
            TTFTextImpl *run = dynamic_cast<TTFTextImpl *>(item);
            if (!run) continue;
            for (int c : run->getCharacters()) s += (wchar_t)c;
        }
        return s;
    }
    static const Glyph &glyphAt(TTFBlocks *b, int line, int item, int i) {
        TTFTextImpl *run = dynamic_cast<TTFTextImpl *>(b->getLineItems(line)[item]);
        return run->getGlyphs()->at(run->getGlyphBegin() + i);
    }

    DrawArea *canvas;
    std::vector<TTFText *> texts;
};

}  // namespace

TEST_F(TextLayout, PlainTextMeasures) {
    FontFace *f = face("arial.ttf", 10);
    TTFBlocks *t = make(L"AB");
    EXPECT_EQ(rounded(width(L"AB")), t->getWidth());
    EXPECT_EQ(std::max(f->lineHeight, f->ascender + f->descender), t->getHeight());
    EXPECT_EQ(f->ascender, t->getBaseline());
    EXPECT_EQ(f->lineHeight, t->getLineHeight());
    EXPECT_EQ(1, t->getLineCount());

    TTFBlocks *empty = make(L"");
    EXPECT_EQ(0, empty->getWidth());
    EXPECT_EQ(t->getHeight(), empty->getHeight());

    // Blanks at the end of a line don't count.
    EXPECT_EQ(t->getWidth(), make(L"AB   ")->getWidth());

    TTFBlocks *big = make(L"AB", 20);
    EXPECT_EQ(rounded(width(L"AB", 20)), big->getWidth());
    EXPECT_EQ(27, face("arial.ttf", 20)->getPixelSize());
}

TEST_F(TextLayout, LineBreaksAndLiterals) {
    TTFBlocks *one = make(L"A");
    for (const wchar_t *s : {L"A<*br*>BB", L"A\nBB", L"A<* BR *>BB"}) {
        TTFBlocks *t = make(s);
        ASSERT_EQ(2, t->getLineCount()) << s;
        EXPECT_EQ(L"A", lineText(t, 0));
        EXPECT_EQ(L"BB", lineText(t, 1));
        EXPECT_EQ(2 * one->getHeight(), t->getHeight());
        EXPECT_EQ(rounded(width(L"BB")), t->getWidth());
    }
    // Empty lines keep their height.
    EXPECT_EQ(3 * one->getHeight(), make(L"A\n\nB")->getHeight());
    EXPECT_EQ(2 * one->getHeight(), make(L"A<*br*>")->getHeight());
    EXPECT_EQ(L"a<*b", lineText(make(L"a<<*b"), 0));
    // A tag with no end runs to the end of the text.
    EXPECT_EQ(L"ab", lineText(make(L"ab<*color=FF"), 0));
    TTFBlocks *spaced = make(L"<*block,linespacing=2*>A\nB<*/block*>");
    EXPECT_EQ(2 * rounded(2.0 * one->getLineDistance()), spaced->getHeight());
}

TEST_F(TextLayout, StyleKeysAndLevels) {
    TTFBlocks *hot = make(L"<*color=FF0000*>Hot");
    TTFTextImpl *run = dynamic_cast<TTFTextImpl *>(hot->getLineItems(0)[0]);
    EXPECT_EQ(0xFF0000, run->getItemColor(0, 0x123456));
    EXPECT_EQ(0x123456, make(L"cold")->getLineItems(0)[0]->getItemColor(0, 0x123456));

    // size and color open no level: "/font" at the outermost changes nothing.
    TTFBlocks *t = make(L"<*size=20,color=0000FF*>A<*/font*>B");
    EXPECT_EQ(0x0000FF, glyphAt(t, 0, 0, 1).color);
    EXPECT_EQ(27, glyphAt(t, 0, 0, 1).face->getPixelSize());
    EXPECT_EQ(rounded(width(L"AB", 20)), t->getWidth());

    t = make(L"<*font=arial.ttf,size=8*>a<*/font*>b");
    EXPECT_EQ(face("arial.ttf", 8), glyphAt(t, 0, 0, 0).face);
    EXPECT_EQ(face("arial.ttf", 10), glyphAt(t, 0, 0, 1).face);
    EXPECT_EQ(rounded(width(L"a", 8) + width(L"b")), t->getWidth());

    t = make(L"<*font=times.ttf*>a<*font,underline=2*>b<*/font*>c<*/font*>d");
    EXPECT_STREQ("Times New Roman", glyphAt(t, 0, 0, 0).face->getFontName());
    EXPECT_EQ(2, glyphAt(t, 0, 0, 1).underline);
    EXPECT_EQ(0, glyphAt(t, 0, 0, 2).underline);
    EXPECT_STREQ("Times New Roman", glyphAt(t, 0, 0, 2).face->getFontName());
    EXPECT_STREQ("Arial", glyphAt(t, 0, 0, 3).face->getFontName());

    // Spacers: advance adds pixels, advanceto reaches a position.
    t = make(L"A<*advance=10*>B");
    EXPECT_EQ(rounded(width(L"AB") + 10), t->getWidth());
    t = make(L"A<*advanceto=50*>B");
    EXPECT_EQ(rounded(50 + width(L"B")), t->getWidth());
}

TEST_F(TextLayout, SubscriptAndSuperscript) {
    // 10 points shrink to 6.5: sub moves down by 1, super up by 4.
    TTFBlocks *t = make(L"H<*sub*>2<*/font*>O");
    const Glyph &two = glyphAt(t, 0, 0, 1);
    EXPECT_EQ(-1, two.yOffset);
    EXPECT_EQ(face("arial.ttf", 6.5), two.face);
    // A bare sub opens no level, so O stays small.
    EXPECT_EQ(face("arial.ttf", 6.5), glyphAt(t, 0, 0, 2).face);
    t = make(L"H<*font,sub*>2<*/font*>O");
    EXPECT_EQ(face("arial.ttf", 10), glyphAt(t, 0, 0, 2).face);
    EXPECT_EQ(0, glyphAt(t, 0, 0, 2).yOffset);
    EXPECT_EQ(rounded(width(L"HO") + width(L"2", 6.5)), t->getWidth());

    t = make(L"x<*font,super*>2");
    EXPECT_EQ(4, glyphAt(t, 0, 0, 1).yOffset);
    FontFace *small = face("arial.ttf", 6.5), *normal = face("arial.ttf", 10);
    EXPECT_EQ(std::max(normal->ascender, small->ascender + 4), t->getBaseline());
    t = make(L"x<*size=24,super*>2");
    // 24 shrinks to 16: up by floor(24 - 14.4 + 0.5) = 10.
    EXPECT_EQ(10, glyphAt(t, 0, 0, 1).yOffset);
}

TEST_F(TextLayout, WrappingMatchesGreedyReference) {
    std::mt19937 random(7);
    const wchar_t letters[] = L"abcdefghijklmnopqrstuvwxyz";
    for (int round = 0; round < 40; ++round) {
        std::vector<std::wstring> words;
        std::wstring text;
        int count = 2 + random() % 8;
        for (int i = 0; i < count; ++i) {
            std::wstring w;
            int n = 1 + random() % 7;
            for (int k = 0; k < n; ++k) w += letters[random() % 26];
            words.push_back(w);
            text += (i ? L" " : L"") + w;
        }
        double longest = 0;
        for (auto &w : words) longest = std::max(longest, width(w.c_str()));
        int maxWidth = (int)std::ceil(longest) + random() % 60;
        // Greedy reference: a word goes on the line while its right edge fits.
        std::vector<std::wstring> expected(1);
        for (auto &w : words) {
            std::wstring candidate = expected.back().empty() ? w : expected.back() + L" " + w;
            if (width(candidate.c_str()) <= maxWidth + 1e-9 || expected.back().empty())
                expected.back() = candidate;
            else
                expected.push_back(w);
        }
        TTFBlocks *t = make(text.c_str(), 10, maxWidth);
        ASSERT_EQ((int)expected.size(), t->getLineCount()) << maxWidth;
        int widest = 0;
        for (int i = 0; i < t->getLineCount(); ++i) {
            std::wstring got = lineText(t, i);
            while (!got.empty() && got.back() == L' ') got.pop_back();
            EXPECT_EQ(expected[i], got);
            widest = std::max(widest, rounded(width(expected[i].c_str())));
        }
        EXPECT_EQ(widest, t->getWidth());
        EXPECT_LE(t->getWidth(), maxWidth);
    }
}

TEST_F(TextLayout, LongTextWrapsInLinearTime) {
    // A million characters at about ten to a line: a wrap that looked at the
    // rest of the text on every line would walk 10^11 glyphs.
    long grownMiB = boundedRunMiB(
        []() {
            std::wstring text;
            while (text.size() < 1000000) text += L"chart axis legend value of the ";
            text.resize(1000000);
            DrawArea *d = DrawArea::create();
            TTFText *t =
                TTFText::create(d, text.c_str(), "arial.ttf", 0, 10, 0, 0, false, kMode, 60, 0, 0);
            TTFBlocks *b = static_cast<TTFBlocks *>(t);
            std::wstring first = lineText(b, 0);
            bool ok = b->getLineCount() > 50000 && b->getWidth() <= 60 && first.size() > 4 &&
                      text.compare(0, first.size(), first) == 0;
            if (!ok)
                fprintf(stderr, "%d lines, %d wide, first line %ls\n", b->getLineCount(),
                        b->getWidth(), first.c_str());
            t->destroy();
            d->destroy();
            return ok;
        },
        90, 2048);
    EXPECT_GE(grownMiB, 0) << "failed, ran out of memory or of time";
    EXPECT_LT(grownMiB, bounded_run::residentLimitMiB(1024));
}

TEST_F(TextLayout, WrapBoundariesAndTruncation) {
    int w = rounded(width(L"aaa bbb"));
    TTFBlocks *t = make(L"aaa bbb ccc", 10, w);
    ASSERT_EQ(2, t->getLineCount());
    EXPECT_EQ(L"aaa bbb", lineText(t, 0));
    EXPECT_EQ(L"ccc", lineText(t, 1));
    t = make(L"aaa bbb ccc", 10, w - 1);
    EXPECT_EQ(3, t->getLineCount());

    // A word with no blank breaks between letters.
    t = make(L"abcdefghijkl", 10, 30);
    EXPECT_GT(t->getLineCount(), 1);
    std::wstring joined;
    for (int i = 0; i < t->getLineCount(); ++i) {
        joined += lineText(t, i);
        EXPECT_LE(rounded(width(lineText(t, i).c_str())), 30);
    }
    EXPECT_EQ(L"abcdefghijkl", joined);

    // Out of lines: the last one ends in dots that fit.
    t = make(L"abcdefghijkl mnop", 10, 30, 2);
    ASSERT_EQ(2, t->getLineCount());
    std::wstring last = lineText(t, 1);
    ASSERT_GE(last.size(), 3u);
    EXPECT_EQ(L"...", last.substr(last.size() - 3));
    EXPECT_LE(rounded(width(last.c_str())), 30);
    std::wstring kept = last.substr(0, last.size() - 3);
    EXPECT_GT(rounded(width((kept + L"x...").c_str())), 30 - 1 - (int)width(L"x"));
    EXPECT_LE(t->getWidth(), 30);

    t = make(L"one two three", 10, 0, 1);
    EXPECT_EQ(1, t->getLineCount());
    EXPECT_EQ(L"one two three", lineText(t, 0));
    t = make(L"one two three", 10, rounded(width(L"one two")), 1);
    last = lineText(t, 0);
    EXPECT_EQ(L"...", last.substr(last.size() - 3));
}

TEST_F(TextLayout, BlocksAndImages) {
    TTFBlocks *t = make(L"<*block,halign=center,width=100*>x<*/block*>");
    EXPECT_EQ(100, t->getWidth());
    TTFBlocks *inner = dynamic_cast<TTFBlocks *>(t->getLineItems(0)[0]);
    ASSERT_NE(nullptr, inner);
    EXPECT_EQ(std::floor((100 - rounded(width(L"x"))) / 2), inner->getLineItemLefts(0)[0]);

    t = make(L"<*block,halign=right,width=80,margin=5*>ab<*br*>c<*/block*>");
    inner = dynamic_cast<TTFBlocks *>(t->getLineItems(0)[0]);
    EXPECT_EQ(80 - 5 - rounded(width(L"ab")), inner->getLineItemLefts(0)[0]);
    EXPECT_EQ(80 - 5 - rounded(width(L"c")), inner->getLineItemLefts(1)[0]);
    EXPECT_EQ(2 * make(L"c")->getHeight() + 10, t->getHeight());

    t = make(L"<*block,margin=1 2 3 4,bgcolor=FFFF00*>ab<*/block*>");
    EXPECT_EQ(rounded(width(L"ab")) + 3, t->getWidth());
    EXPECT_EQ(make(L"ab")->getHeight() + 7, t->getHeight());

    t = make(L"a<*img=@circle,width=10,color=FF*>b");
    ASSERT_EQ(3u, t->getLineItems(0).size());
    TTFImage *image = dynamic_cast<TTFImage *>(t->getLineItems(0)[1]);
    ASSERT_NE(nullptr, image);
    EXPECT_TRUE(image->hasSymbol());
    EXPECT_EQ(7, image->getSymbol().code);
    EXPECT_EQ(10, image->getWidth());
    EXPECT_EQ(10, image->getHeight());
    EXPECT_EQ(rounded(width(L"a")) + 10 + rounded(width(L"b")), t->getWidth());

    // Missing pictures leave an empty box of the size asked for.
    t = make(L"<*img=/no/such/file.png,width=12,height=8*>");
    image = dynamic_cast<TTFImage *>(t->getLineItems(0)[0]);
    EXPECT_FALSE(image->hasPicture());
    EXPECT_EQ(12, t->getWidth());
    t = make(L"<*img=@star(7),size=9*>");
    image = dynamic_cast<TTFImage *>(t->getLineItems(0)[0]);
    EXPECT_EQ(13 | (7 << 12), image->getSymbol().code);
    t = make(L"<*img=@cross(0.25)*>");
    image = dynamic_cast<TTFImage *>(t->getLineItems(0)[0]);
    EXPECT_EQ(8 | (1024 << 12), image->getSymbol().code);
    EXPECT_EQ(7, image->getWidth());
}

TEST_F(TextLayout, RotationSwapsTheBox) {
    TTFBlocks *flat = make(L"Rotate me");
    TTFBlocks *up = make(L"Rotate me", 10, 0, 0, 90);
    EXPECT_EQ(flat->getWidth(), up->getHeight());
    EXPECT_EQ(flat->getHeight(), up->getWidth());
    TTFBlocks *slanted = make(L"Rotate me", 10, 0, 0, -45);
    double r = 3.14159265358979 / 4;
    EXPECT_NEAR((flat->getWidth() + flat->getHeight()) * std::cos(r), slanted->getWidth(), 1);
    EXPECT_EQ(315, slanted->getAttributes().angle);
}

TEST_F(TextLayout, HebrewInLatinIsReversed) {
    TTFBlocks *t = make(L"abc \x5D0\x5D1\x5D2 def");
    EXPECT_EQ(L"abc \x5D2\x5D1\x5D0 def", lineText(t, 0));
    // Mirrored brackets inside right-to-left text, with the source character kept.
    t = make(L"<*block,rtl=1*>\x5D0(\x5D1)<*/block*>");
    TTFBlocks *inner = dynamic_cast<TTFBlocks *>(t->getLineItems(0)[0]);
    EXPECT_EQ(L"(\x5D1)\x5D0", lineText(inner, 0));
}

TEST_F(TextLayout, ArabicIsShapedAndReversed) {
    // beh, lam, alef: initial beh and the final lam-alef ligature, shown right to left.
    TTFBlocks *t = make(L"\x628\x644\x627");
    EXPECT_EQ(L"\xFEFC\xFE91", lineText(t, 0));
    // The source characters stay for selection.
    EXPECT_EQ(0x644, glyphAt(t, 0, 0, 0).ch);
    EXPECT_EQ(0x628, glyphAt(t, 0, 0, 1).ch);
    // Numbers keep their order inside right-to-left text.
    t = make(L"<*block,rtl=-1*>\x5D0 12 \x5D1<*/block*>");
    TTFBlocks *inner = dynamic_cast<TTFBlocks *>(t->getLineItems(0)[0]);
    EXPECT_EQ(L"\x5D1 12 \x5D0", lineText(inner, 0));
}

TEST_F(TextLayout, VerticalTextStacksDownward) {
    TTFText *t = TTFText::create(canvas, L"WiW", "arial.ttf", 0, 10, 0, 0, true, kMode, 0, 0, 0);
    texts.push_back(t);
    FontFace *f = face("arial.ttf", 10);
    EXPECT_EQ(3 * f->lineHeight, t->getHeight());
    EXPECT_EQ((int)std::ceil(advance(f, 'W')), t->getWidth());
}

TEST_F(TextLayout, BadInputIsHarmless) {
    const wchar_t *inputs[] = {L"<*",
                               L"<**>",
                               L"<*/block*>",
                               L"<*block*><*block*>",
                               L"<*size=-5*>x",
                               L"<*size=1e300*>x",
                               L"<*width=0,height=0*>x",
                               L"<*img=*>",
                               L"<*img=@polyshape(1,2,newshape,3*>",
                               L"<*font=;;;*>x",
                               L"<*margin=,,,*>",
                               L"\x644\x627\x5D0"};
    for (const wchar_t *s : inputs) {
        TTFBlocks *t = make(s, 10, 40, 2);
        EXPECT_GE(t->getWidth(), 0) << s;
        EXPECT_GE(t->getHeight(), 0) << s;
        t->draw(10, 10, 0, 5);
    }
}

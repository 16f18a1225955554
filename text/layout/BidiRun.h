#pragma once

class GlyphContainer;

// Puts a run holding right-to-left characters into visual order: levels by the
// bidirectional rules, Arabic shaping of the right-to-left stretches, then
// reversal and mirrored brackets.
class BidiRun {
public:
    // direction: 0 left to right, 1 right to left, -1 from the first strong
    // character.
    static void apply(GlyphContainer *glyphs, int direction);
};

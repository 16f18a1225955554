#pragma once

#include <vector>

#include "draw/list/DrawBackEnd.h"
#include "draw/list/GlyphText.h"
#include "draw/list/MetaOpcodes.h"
#include "draw/list/MetaRecordReader.h"

class MetaDrawImpl;

// The interpreter: walks a list's records and calls the back end for each.
// With a scale other than 1 it multiplies coordinates and line widths as it
// reads them.
class MetaPlayer {
public:
    MetaPlayer(MetaDrawImpl *list, DrawBackEnd *backEnd, double scale)
        : list(list), backEnd(backEnd), scale(scale) {}
    // A whole run, framed by beginPlay and endPlay; returns the position reached.
    int play(int fromPos);
    // The records alone (the body of a symbol).
    int playBody(int fromPos);

private:
    void playRecord(MetaOpcode opcode);
    // A record read by its format into the parameters of its operation.
    template <MetaOpcode op>
    void playArgs();
    // A record with a reader of its own.
    template <MetaOpcode op>
    void playOwn();
    bool decode(const char *format, const char *scaled, unsigned number);
    void fault(const char *literal, const char *format, unsigned number);

    MetaDrawImpl *list;
    DrawBackEnd *backEnd;
    double scale;
    MetaRecordReader reader;
    std::vector<MetaLineEntry> lineItems;
    std::vector<MetaPathItem> pathItems;
    GlyphText glyphs;
};

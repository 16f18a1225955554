#pragma once

#include <vector>

#include "draw/list/DrawBackEnd.h"
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
    void playRecord(unsigned opcode, const char *format, const char *scaled);
    void dispatch(unsigned opcode);
    void playMultiLine();
    void playShape();
    void playText();
    void playDefineSymbol();
    void playMergeBitMap();
    void playLoadStream();
    bool decode(const char *format, const char *scaled, unsigned number);
    void fault(const char *literal, const char *format, unsigned number);

    MetaDrawImpl *list;
    DrawBackEnd *backEnd;
    double scale;
    MetaRecordReader reader;
    std::vector<MetaLineEntry> lineItems;
    std::vector<MetaPathItem> pathItems;
};

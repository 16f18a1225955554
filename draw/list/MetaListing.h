#pragma once

#include <string>

#include "draw/list/MetaRecordReader.h"
#include "foundation/Stream.h"

class MetaDrawImpl;

// The text listing of a list: one line per record, its name and arguments.
class MetaListing {
public:
    MetaListing(MetaDrawImpl *list, qlx::ostream &out) : list(list), out(out) {}
    void write();

    // The symbolic form of a colour word ("Chart.TextColor", "0x00ff00").
    static void formatColor(char *buf, int size, int color);

private:
    // False when the listing must stop.
    bool writeRecord(int pos, int recordEnd, unsigned opcode);
    bool writeArgs(const char *format, unsigned number);
    void writeMultiLine();
    void writeShape();
    void writeText();
    void writeDefineSymbol();
    void writeSlot(int k, char letter);
    void writeNumber(double v);
    void writeString(const char *s, int n);
    void separate();
    void fault(const char *literal, const char *format, unsigned number);
    void writePendingFault();

    MetaDrawImpl *list;
    qlx::ostream &out;
    MetaRecordReader reader;
    bool needSeparator = false;
    std::string pendingFault;
};

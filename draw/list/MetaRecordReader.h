#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Reads the arguments of a record back, letter by letter of a format string,
// into numbered slots.  Never reads outside [pos, end).
class MetaRecordReader {
public:
    enum Status { kOk, kShortInput, kBadFormat };
    static const int kMaxSlots = 16;

    MetaRecordReader() : words(nullptr), cursor(0), limit(0), slotCount(0) {}
    void reset(const int *streamWords, int pos, int end);

    int pos() const { return cursor; }
    bool atEnd() const { return cursor >= limit; }
    int remainingWords() const { return limit - cursor; }
    void skipToEnd() { cursor = limit; }
    bool readWord(int &value);

    // Decodes the arguments of `format`; those that `scaled` marks with 's' are
    // multiplied by `scale` (integers rounded).  Slots are numbered from 0.
    Status decode(const char *format, const char *scaled, double scale);

    int count() const { return slotCount; }
    int integer(int k) const { return slots[k].i; }
    bool flag(int k) const { return slots[k].i != 0; }
    double number(int k) const { return slots[k].d; }
    // Element count of an array or string slot.
    int length(int k) const { return slots[k].i; }
    const double *doubles(int k) const { return doubleArrays[k].data(); }
    const int *ints(int k) const { return intArrays[k].data(); }
    // Null-terminated copy of an 's' slot (the bytes may hold zeros too).
    const char *bytes(int k) const { return strings[k].c_str(); }
    const uint16_t *units(int k) const { return unitArrays[k].data(); }

private:
    struct Slot {
        int i;
        double d;
    };
    bool readDouble(double &value);
    bool readCount(int &n, int wordsNum, int wordsDen);
    Status readSlot(int k, char letter, bool scaleIt, double scale);

    const int *words;
    int cursor;
    int limit;
    int slotCount;
    Slot slots[kMaxSlots];
    std::vector<double> doubleArrays[kMaxSlots];
    std::vector<int> intArrays[kMaxSlots];
    std::string strings[kMaxSlots];
    std::vector<uint16_t> unitArrays[kMaxSlots];
};

// Bounds of the record that starts at `pos` in a stream ending at `end`: its
// end (a length that runs past the stream stops at the stream's end) and
// opcode.  False when no record can start there.
bool metaRecordAt(const int *words, int pos, int end, int &recordEnd, unsigned &opcode);

// Text of a fault in a stream: the literal, the format and " at" when given,
// then " <number>, skipping <bytes> bytes".
std::string metaFaultMessage(const char *literal, const char *format, unsigned number,
                             int remainingWords);

// The literals of the faults.
extern const char *const kFaultUnknownOpcode;
extern const char *const kFaultExtraBytes;
extern const char *const kFaultUnknownPathType;
extern const char *const kFaultVariableArguments;
extern const char *const kFaultBadFormat;
extern const char *const kFaultShortInput;

#include "draw/list/MetaRecordReader.h"

#include <cmath>
#include <cstdio>
#include <cstring>

namespace {

int scaleInt(int v, double scale) {
    double s = std::floor(v * scale + 0.5);
    if (s > 2147483647.0) return 2147483647;
    if (s < -2147483648.0) return (int)-2147483647 - 1;
    return (int)s;
}

}  // namespace

void MetaRecordReader::reset(const int *streamWords, int pos, int end) {
    words = streamWords;
    cursor = pos;
    limit = end;
    slotCount = 0;
}

bool MetaRecordReader::readWord(int &value) {
    if (cursor >= limit) return false;
    value = words[cursor++];
    return true;
}

bool MetaRecordReader::readDouble(double &value) {
    if (limit - cursor < 2) return false;
    std::memcpy(&value, words + cursor, sizeof value);
    cursor += 2;
    return true;
}

// Reads an element count and checks that the elements, `wordsNum` /
// `wordsDen` words each, fit in the record.
bool MetaRecordReader::readCount(int &n, int wordsNum, int wordsDen) {
    if (!readWord(n) || n < 0) return false;
    long long need = ((long long)n * wordsNum + wordsDen - 1) / wordsDen;
    return need <= remainingWords();
}

MetaRecordReader::Status MetaRecordReader::readSlot(int k, char letter, bool scaleIt,
                                                    double scale) {
    Slot &slot = slots[k];
    int n = 0;
    switch (letter) {
        case 'b':
        case 'x':
            return readWord(slot.i) ? kOk : kShortInput;
        case 'i':
            if (!readWord(slot.i)) return kShortInput;
            if (scaleIt) slot.i = scaleInt(slot.i, scale);
            return kOk;
        case 'd':
            if (!readDouble(slot.d)) return kShortInput;
            if (scaleIt) slot.d *= scale;
            return kOk;
        case 's':
            if (!readCount(n, 1, 4)) return kShortInput;
            strings[k].assign(reinterpret_cast<const char *>(words + cursor), n);
            cursor += (n + 3) / 4;
            break;
        case 'w':
            if (!readCount(n, 1, 2)) return kShortInput;
            unitArrays[k].resize(n + 1);
            if (n > 0) std::memcpy(unitArrays[k].data(), words + cursor, (size_t)n * 2);
            unitArrays[k][n] = 0;
            cursor += (n + 1) / 2;
            break;
        case 'D': {
            if (!readCount(n, 2, 1)) return kShortInput;
            std::vector<double> &v = doubleArrays[k];
            v.resize(n);
            if (n > 0) std::memcpy(v.data(), words + cursor, (size_t)n * sizeof(double));
            cursor += 2 * n;
            if (scaleIt)
                for (double &e : v) e *= scale;
            break;
        }
        case 'I':
        case 'X': {
            if (!readCount(n, 1, 1)) return kShortInput;
            std::vector<int> &v = intArrays[k];
            v.assign(words + cursor, words + cursor + n);
            cursor += n;
            if (scaleIt && letter == 'I')
                for (int &e : v) e = scaleInt(e, scale);
            break;
        }
        default:
            return kBadFormat;
    }
    slot.i = n;
    return kOk;
}

MetaRecordReader::Status MetaRecordReader::decode(const char *format, const char *scaled,
                                                  double scale) {
    slotCount = 0;
    size_t scaledLength = scaled ? std::strlen(scaled) : 0;
    for (int k = 0; format[k]; ++k) {
        if (k >= kMaxSlots) return kBadFormat;
        bool scaleIt = scale != 1 && (size_t)k < scaledLength && scaled[k] == 's';
        Status status = readSlot(k, format[k], scaleIt, scale);
        if (status != kOk) return status;
        slotCount = k + 1;
    }
    return kOk;
}

const char *const kFaultUnknownOpcode = "Unknown OpCode";
const char *const kFaultExtraBytes = "Extra bytes following OpCode";
const char *const kFaultUnknownPathType = "Unknown path type";
const char *const kFaultVariableArguments =
    "Don't know how to handle variable arguments for OpCode";
const char *const kFaultBadFormat = "Insufficient format in format list ";
const char *const kFaultShortInput = "Insufficient input when reading format list ";

bool metaRecordAt(const int *words, int pos, int end, int &recordEnd, unsigned &opcode) {
    if (end - pos < 2) return false;
    int length = words[pos];
    if (length < 2) return false;
    recordEnd = length > end - pos ? end : pos + length;
    opcode = (unsigned)words[pos + 1];
    return true;
}

std::string metaFaultMessage(const char *literal, const char *format, unsigned number,
                             int remainingWords) {
    std::string message(literal);
    if (format) {
        message += format;
        message += " at";
    }
    char tail[64];
    std::snprintf(tail, sizeof tail, " %u, skipping %lld bytes", number,
                  (long long)remainingWords * 4);
    return message + tail;
}

#include "draw/list/MetaRecordArg.h"

#include <cstring>

namespace {

bool fits(char letter, RecordArg::Kind kind) {
    switch (letter) {
        case 'b':
            return kind == RecordArg::kBool;
        case 'i':
            return kind == RecordArg::kInt;
        case 'x':
            return kind == RecordArg::kColor || kind == RecordArg::kWord;
        case 'd':
            return kind == RecordArg::kDouble;
        case 's':
            return kind == RecordArg::kString;
        case 'w':
            return kind == RecordArg::kWide;
        case 'D':
            return kind == RecordArg::kDoubles;
        case 'I':
            return kind == RecordArg::kInts;
        case 'X':
            return kind == RecordArg::kColors || kind == RecordArg::kWords;
        default:
            return false;
    }
}

void putDouble(std::vector<int> &out, double v) {
    int w[2];
    std::memcpy(w, &v, sizeof w);
    out.push_back(w[0]);
    out.push_back(w[1]);
}

// Packs `count` units of `unitBytes` each, low unit first in a word.
void putPacked(std::vector<int> &out, const void *data, int count, int unitBytes) {
    out.push_back(count);
    int perWord = 4 / unitBytes;
    int wordCount = (count + perWord - 1) / perWord;
    size_t at = out.size();
    out.resize(at + wordCount, 0);
    if (count > 0) std::memcpy(&out[at], data, (size_t)count * unitBytes);
}

}  // namespace

bool encodeRecordArgs(std::vector<int> &out, const char *format, const RecordArg *args, int count) {
    int k = 0;
    for (const char *f = format; *f; ++f, ++k) {
        if (k >= count || !fits(*f, args[k].kind)) return false;
        const RecordArg &a = args[k];
        switch (*f) {
            case 'b':
            case 'i':
            case 'x':
                out.push_back(a.i);
                break;
            case 'd':
                putDouble(out, a.d);
                break;
            case 's':
                putPacked(out, a.p, a.n, 1);
                break;
            case 'w':
                putPacked(out, a.p, a.n, 2);
                break;
            case 'D':
                out.push_back(a.n);
                for (int j = 0; j < a.n; ++j) putDouble(out, static_cast<const double *>(a.p)[j]);
                break;
            default:  // I and X
                out.push_back(a.n);
                out.insert(out.end(), static_cast<const int *>(a.p),
                           static_cast<const int *>(a.p) + a.n);
                break;
        }
    }
    return k == count;
}

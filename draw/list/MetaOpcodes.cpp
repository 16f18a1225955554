#include "draw/list/MetaOpcodes.h"

namespace {

#define VISTREL_META_ROW(name, code, format, scaled, reading, operation, params) \
    {kOp##name, #name, format, scaled},

constexpr MetaRecordInfo kDrawingRecords[] = {VISTREL_META_DRAWING_RECORDS(VISTREL_META_ROW)};
constexpr MetaRecordInfo kColorRecords[] = {VISTREL_META_COLOR_RECORDS(VISTREL_META_ROW)};

#undef VISTREL_META_ROW

const MetaRecordInfo kPathTypes[] = {
    {kPathLine, "Line", "ddddxb", "ssss.."},
    {kPathArc, "Arc", "ddddddddx", "ssssssss."},
    {kPathArc2, "Arc2", "ddddddddddxb", "ssss..ssss.."},
};

const MetaRecordInfo kLineItems[] = {
    {kLineItemStyle, "style", "xi", ".s"},
    {kLineItemCoor, "coor", "dd", "ss"},
};

constexpr int length(const char *s) {
    int n = 0;
    while (s[n]) ++n;
    return n;
}

// Lookups index the tables by code: each table must run 0, 1, 2... below its
// flag, and every format must have its scaling marks.
template <int N>
constexpr bool wellFormed(const MetaRecordInfo (&table)[N]) {
    for (int i = 0; i < N; ++i)
        if ((table[i].code & ~kOpColorFlag) != (unsigned)i ||
            length(table[i].format) != length(table[i].scaled))
            return false;
    return true;
}
static_assert(wellFormed(kDrawingRecords), "drawing records out of order");
static_assert(wellFormed(kColorRecords), "colour records out of order");

template <int N>
const MetaRecordInfo *findIn(const MetaRecordInfo (&table)[N], unsigned index) {
    return index < (unsigned)N ? &table[index] : nullptr;
}

}  // namespace

const MetaRecordInfo *findMetaOpcode(unsigned opcode) {
    if (isColorOpcode(opcode)) return findIn(kColorRecords, opcode & ~kOpColorFlag);
    return findIn(kDrawingRecords, opcode);
}

const MetaRecordInfo *findMetaPathType(unsigned type) {
    return findIn(kPathTypes, type);
}

const MetaRecordInfo *findMetaLineItem(unsigned item) {
    return findIn(kLineItems, item);
}

#include "draw/list/MetaPlayer.h"

#include "draw/list/MetaDrawImpl.h"
#include "draw/list/MetaRecordCall.h"
#include "draw/list/MetaText.h"

int MetaPlayer::play(int fromPos) {
    backEnd->beginPlay(scale);
    int reached = playBody(fromPos);
    backEnd->endPlay();
    return reached;
}

int MetaPlayer::playBody(int fromPos) {
    int pos = fromPos < 0 ? 0 : fromPos;
    for (;;) {
        // Re-read each time: nothing a back end does may move the stream, but
        // a symbol's play touches another list and this costs nothing.
        int end = list->readEnd();
        int recordEnd;
        unsigned opcode;
        if (pos >= end || !metaRecordAt(list->streamWords(), pos, end, recordEnd, opcode)) break;
        reader.reset(list->streamWords(), pos + 2, recordEnd);
        if (!findMetaOpcode(opcode)) {
            fault(kFaultUnknownOpcode, nullptr, opcode);
        } else {
            playRecord((MetaOpcode)opcode);
            if (!reader.atEnd()) fault(kFaultExtraBytes, nullptr, opcode);
        }
        pos = recordEnd;
    }
    return pos < list->readEnd() ? pos : list->readEnd();
}

void MetaPlayer::fault(const char *literal, const char *format, unsigned number) {
    backEnd->reportError(
        metaFaultMessage(literal, format, number, reader.remainingWords()).c_str());
    reader.skipToEnd();
}

bool MetaPlayer::decode(const char *format, const char *scaled, unsigned number) {
    MetaRecordReader::Status status = reader.decode(format, scaled, scale);
    if (status == MetaRecordReader::kOk) return true;
    fault(status == MetaRecordReader::kBadFormat ? kFaultBadFormat : kFaultShortInput, format,
          number);
    return false;
}

template <MetaOpcode op>
void MetaPlayer::playArgs() {
    using Kind = MetaRecordKind<op>;
    if (decode(Kind::format, Kind::scaled, op)) Kind::Call::call(backEnd, Kind::operation, reader);
}

template <MetaOpcode op>
void MetaPlayer::playOwn() {
    static_assert(op != op, "a record with a layout of its own needs its reader here");
}

template <>
void MetaPlayer::playOwn<kOpMultiLine>() {
    lineItems.clear();
    int item;
    while (reader.readWord(item)) {
        const MetaRecordInfo *info = findMetaLineItem((unsigned)item);
        if (!info) return fault(kFaultUnknownPathType, nullptr, (unsigned)item);
        if (!decode(info->format, info->scaled, kOpMultiLine)) return;
        MetaLineEntry e{item == kLineItemStyle, 0, 0, 0, 0};
        if (e.isStyle) {
            e.color = reader.integer(0);
            e.width = reader.integer(1);
        } else {
            e.x = reader.number(0);
            e.y = reader.number(1);
        }
        lineItems.push_back(e);
    }
    backEnd->multiLine(lineItems.data(), (int)lineItems.size());
}

template <>
void MetaPlayer::playOwn<kOpShape>() {
    if (!decode(kShapeHeader, nullptr, kOpShape)) return;
    int fill = reader.integer(0);
    bool inset = reader.flag(1), keepOutline = reader.flag(2);
    pathItems.clear();
    int type;
    while (reader.readWord(type)) {
        const MetaRecordInfo *info = findMetaPathType((unsigned)type);
        if (!info) return fault(kFaultUnknownPathType, nullptr, (unsigned)type);
        if (!decode(info->format, info->scaled, kOpShape)) return;
        MetaPathItem item{(unsigned)type, {0}, 0, false};
        int numbers = 0;
        for (int k = 0; k < reader.count(); ++k) {
            char letter = info->format[k];
            if (letter == 'd') item.v[numbers++] = reader.number(k);
            if (letter == 'x') item.color = reader.integer(k);
            if (letter == 'b') item.flag = reader.flag(k);
        }
        pathItems.push_back(item);
    }
    backEnd->shape(fill, inset, keepOutline, pathItems.data(), (int)pathItems.size());
}

template <>
void MetaPlayer::playOwn<kOpText>() {
    if (!decode(kTextLayout, kTextScaled, kOpText)) return;
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(reader.integer(0));
    if (!symbol || symbol->kind != MetaDrawImpl::kTextSymbol) return;
    static_cast<const MetaText *>(symbol->object)
        ->getGlyphRuns(reader.integer(1), reader.integer(2), reader.integer(3), reader.integer(4),
                       reader.integer(5), glyphs);
    if (!glyphs.runs.empty()) backEnd->drawText(glyphs);
}

template <>
void MetaPlayer::playOwn<kOpDefineSymbol>() {
    if (!decode(kDefineSymbolLayout, nullptr, kOpDefineSymbol)) return;
    int id = reader.integer(0);
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(id);
    if (!symbol || symbol->kind != MetaDrawImpl::kListSymbol) return;
    backEnd->beginSymbol(id);
    static_cast<MetaDrawImpl *>(symbol->object)->playSymbol(backEnd, scale);
    backEnd->endSymbol(id);
}

template <>
void MetaPlayer::playOwn<kOpMergeBitMap>() {
    using Kind = MetaRecordKind<kOpMergeBitMap>;
    if (!decode(Kind::format, Kind::scaled, kOpMergeBitMap)) return;
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(reader.integer(0));
    if (!symbol || symbol->kind != MetaDrawImpl::kPixelSymbol) return;
    backEnd->mergeBitMap(reader.integer(0),
                         IntArray(static_cast<const int *>(symbol->object), symbol->length),
                         reader.integer(1), reader.integer(2), reader.integer(3));
}

template <>
void MetaPlayer::playOwn<kOpLoadStream>() {
    using Kind = MetaRecordKind<kOpLoadStream>;
    if (!decode(Kind::format, Kind::scaled, kOpLoadStream)) return;
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(reader.integer(0));
    if (!symbol || symbol->kind != MetaDrawImpl::kImageSymbol) return;
    backEnd->loadStream(reader.integer(0), static_cast<const char *>(symbol->object),
                        symbol->length, reader.integer(1), reader.integer(2), reader.integer(3));
}

// Every record kind of the table, each through its reader: no record is left
// to a default.
void MetaPlayer::playRecord(MetaOpcode opcode) {
    switch (opcode) {
#define VISTREL_PLAY_RECORD(name, code, format, scaled, reading, operation, params) \
    case kOp##name:                                                                 \
        play##reading<kOp##name>();                                                 \
        break;
        VISTREL_META_RECORDS(VISTREL_PLAY_RECORD)
#undef VISTREL_PLAY_RECORD
    }
}

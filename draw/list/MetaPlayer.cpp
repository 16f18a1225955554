#include "draw/list/MetaPlayer.h"

#include "draw/list/MetaDrawImpl.h"
#include "draw/list/MetaOpcodes.h"

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
        const MetaRecordInfo *info = findMetaOpcode(opcode);
        if (!info) {
            fault(kFaultUnknownOpcode, nullptr, opcode);
        } else {
            playRecord(opcode, info->format, info->scaled);
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

void MetaPlayer::playRecord(unsigned opcode, const char *format, const char *scaled) {
    switch (opcode) {
        case kOpMultiLine:
            playMultiLine();
            break;
        case kOpShape:
            playShape();
            break;
        case kOpText:
            playText();
            break;
        case kOpDefineSymbol:
            playDefineSymbol();
            break;
        default:
            if (!decode(format, scaled, opcode)) return;
            dispatch(opcode);
            break;
    }
    if (!reader.atEnd()) fault(kFaultExtraBytes, nullptr, opcode);
}

void MetaPlayer::playMultiLine() {
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

void MetaPlayer::playShape() {
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

void MetaPlayer::playText() {
    if (!decode(kTextLayout, kTextScaled, kOpText)) return;
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(reader.integer(0));
    if (!symbol || symbol->kind != MetaDrawImpl::kTextSymbol) return;
    backEnd->drawText(static_cast<MetaText *>(symbol->object), reader.integer(1), reader.integer(2),
                      reader.integer(3), reader.integer(4), reader.integer(5));
}

void MetaPlayer::playDefineSymbol() {
    if (!decode(kDefineSymbolLayout, nullptr, kOpDefineSymbol)) return;
    int id = reader.integer(0);
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(id);
    if (!symbol || symbol->kind != MetaDrawImpl::kListSymbol) return;
    backEnd->beginSymbol(id);
    static_cast<MetaDrawImpl *>(symbol->object)->playSymbol(backEnd, scale);
    backEnd->endSymbol(id);
}

void MetaPlayer::playMergeBitMap() {
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(reader.integer(0));
    if (!symbol || symbol->kind != MetaDrawImpl::kPixelSymbol) return;
    backEnd->mergeBitMap(reader.integer(0), static_cast<const int *>(symbol->object),
                         symbol->length, reader.integer(1), reader.integer(2), reader.integer(3));
}

void MetaPlayer::playLoadStream() {
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(reader.integer(0));
    if (!symbol || symbol->kind != MetaDrawImpl::kImageSymbol) return;
    backEnd->loadStream(reader.integer(0), static_cast<const char *>(symbol->object),
                        symbol->length, reader.integer(1), reader.integer(2), reader.integer(3));
}

void MetaPlayer::dispatch(unsigned opcode) {
    const MetaRecordReader &r = reader;
    switch (opcode) {
        case kOpSetSize:
            backEnd->setSize(r.integer(0), r.integer(1), r.integer(2));
            break;
        case kOpResize:
            backEnd->resize(r.integer(0), r.integer(1));
            break;
        case kOpAffineTransform:
            backEnd->affineTransform(r.number(0), r.number(1), r.number(2), r.number(3),
                                     r.number(4), r.number(5), r.integer(6), r.integer(7),
                                     r.number(8));
            break;
        case kOpSetClipRect:
            backEnd->setClipRect(r.integer(0), r.integer(1), r.integer(2), r.integer(3));
            break;
        case kOpSetBgColor:
            backEnd->setBgColor(r.integer(0));
            break;
        case kOpSetBgRoundedClip:
            backEnd->setBgRoundedClip(r.integer(0), r.integer(1), r.integer(2), r.integer(3),
                                      r.integer(4));
            break;
        case kOpSetBgDropShadow:
            backEnd->setBgDropShadow(r.integer(0), r.integer(1), r.integer(2), r.integer(3),
                                     r.integer(4));
            break;
        case kOpLine:
            backEnd->line(r.number(0), r.number(1), r.number(2), r.number(3), r.integer(4),
                          r.integer(5));
            break;
        case kOpPolyLine:
            backEnd->polyLine(r.integer(0), r.integer(1), r.doubles(2), r.length(2) / 2);
            break;
        case kOpRoundedRect:
            backEnd->roundedRect(r.number(0), r.number(1), r.number(2), r.number(3), r.integer(4),
                                 r.integer(5), r.integer(6));
            break;
        case kOpMultiRoundedRect: {
            const int radius[4] = {r.integer(4), r.integer(5), r.integer(6), r.integer(7)};
            const int edge[4] = {r.integer(8), r.integer(9), r.integer(10), r.integer(11)};
            backEnd->multiRoundedRect(r.number(0), r.number(1), r.number(2), r.number(3), radius,
                                      edge, r.integer(12));
            break;
        }
        case kOpPolygon: {
            int n = r.length(2) < r.length(3) ? r.length(2) : r.length(3);
            backEnd->polygon(r.integer(0), r.integer(1), r.doubles(2), r.doubles(3), n);
            break;
        }
        case kOpExactPolygon: {
            int n = r.length(1) < r.length(2) ? r.length(1) : r.length(2);
            backEnd->exactPolygon(r.integer(0), r.doubles(1), r.doubles(2), n);
            break;
        }
        case kOpGouraudShadedTriangle: {
            double v[9];
            for (int k = 0; k < 9; ++k) v[k] = r.number(k);
            backEnd->gouraudTriangle(v, r.integer(9));
            break;
        }
        case kOpBeginSuperPixelMode:
            backEnd->beginSuperPixelMode();
            break;
        case kOpCommitSuperPixels:
            backEnd->commitSuperPixels();
            break;
        case kOpMergeWithScaling:
            backEnd->mergeWithScaling(r.integer(0), r.integer(1), r.integer(2), r.integer(3),
                                      r.integer(4), r.integer(5));
            break;
        case kOpMergeWithRotation:
            backEnd->mergeWithRotation(r.integer(0), r.number(1), r.number(2), r.number(3));
            break;
        case kOpMergeBitMap:
            playMergeBitMap();
            break;
        case kOpLoadStream:
            playLoadStream();
            break;
        case kOpInitDynamicLayer:
            backEnd->initDynamicLayer();
            break;
        case kOpSetSubDrawMode:
            backEnd->setSubDrawMode();
            break;
        case kOpAdjustBrightness:
            backEnd->adjustBrightness(r.integer(0), r.integer(1), r.number(2));
            break;
        case kOpTransformedColor:
        case kOpPreciseTransformColor: {
            double m[6];
            for (int k = 0; k < 6; ++k) m[k] = r.number(2 + k);
            if (opcode == kOpTransformedColor)
                backEnd->transformedColor(r.integer(0), r.integer(1), m);
            else
                backEnd->preciseTransformColor(r.integer(0), r.integer(1), m);
            break;
        }
        case kOpBrushedTextureColor:
            backEnd->brushedTextureColor(r.integer(0), r.integer(1), r.integer(2));
            break;
        case kOpMultiLayerColor:
            backEnd->multiLayerColor(r.integer(0), r.ints(1), r.length(1));
            break;
        case kOpDashLineColor:
            backEnd->dashLineColor(r.integer(0), r.integer(1), r.integer(2));
            break;
        case kOpLinearGradientColor:
            backEnd->linearGradientColor(r.integer(0), r.number(1), r.number(2), r.number(3),
                                         r.number(4), r.flag(5), r.ints(6), r.length(6));
            break;
        case kOpRadialGradientColor:
            backEnd->radialGradientColor(r.integer(0), r.integer(1), r.integer(2), r.integer(3),
                                         r.integer(4), r.flag(5), r.ints(6), r.length(6));
            break;
        case kOpAngleGradientColor:
            backEnd->angleGradientColor(r.integer(0), r.number(1), r.number(2), r.number(3),
                                        r.number(4), r.number(5), r.number(6), r.ints(7),
                                        r.length(7));
            break;
        case kOpRelativeLinearGradientColor:
            backEnd->relativeLinearGradientColor(r.integer(0), r.number(1), r.number(2),
                                                 r.number(3), r.number(4), r.flag(5), r.ints(6),
                                                 r.length(6));
            break;
        case kOpLightingColor:
            backEnd->lightingColor(r.integer(0), r.integer(1), r.number(2), r.number(3),
                                   r.number(4), r.number(5), r.flag(6), r.ints(7), r.length(7));
            break;
        case kOpLinearLightingColor:
            backEnd->linearLightingColor(r.integer(0), r.integer(1), r.number(2), r.number(3),
                                         r.number(4), r.number(5), r.flag(6), r.ints(7),
                                         r.length(7));
            break;
        case kOpRadialLightingColor:
            backEnd->radialLightingColor(r.integer(0), r.integer(1), r.integer(2), r.integer(3),
                                         r.integer(4), r.integer(5), r.ints(6), r.length(6));
            break;
        case kOpRelativeLinearLightingColor:
            backEnd->relativeLinearLightingColor(r.integer(0), r.integer(1), r.number(2),
                                                 r.number(3), r.number(4), r.number(5), r.flag(6),
                                                 r.ints(7), r.length(7));
            break;
        case kOpPatternColor:
            backEnd->patternColor(r.integer(0), r.integer(1), r.integer(2), r.integer(3),
                                  r.integer(4), r.ints(5), r.length(5));
            break;
        case kOpPatternColor2:
            backEnd->patternColor2(r.integer(0), r.integer(1), r.integer(2), r.bytes(3));
            break;
        case kOpZoneColor:
            backEnd->zoneColor(r.integer(0), r.flag(1), r.integer(2), r.integer(3), r.integer(4));
            break;
        case kOpRectColor:
            backEnd->rectColor(r.integer(0), r.number(1), r.number(2), r.number(3), r.number(4),
                               r.integer(5));
            break;
        default:
            break;
    }
}

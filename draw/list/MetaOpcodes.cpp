#include "draw/list/MetaOpcodes.h"

namespace {

const MetaRecordInfo kDrawingRecords[] = {
    {kOpSetSize, "SetSize", "iix", "ss."},
    {kOpResize, "Resize", "ii", "ss"},
    {kOpAffineTransform, "AffineTransform", "ddddddxid", "....ss..."},
    {kOpSetClipRect, "SetClipRect", "iiii", "ssss"},
    {kOpSetBgColor, "SetBgColor", "x", "."},
    {kOpSetBgRoundedClip, "SetBgRoundedClip", "iiiix", "ssss."},
    {kOpSetBgDropShadow, "SetBgDropShadow", "iiiix", "ssss."},
    {kOpLine, "Line", "ddddxi", "ssss.s"},
    {kOpPolyLine, "PolyLine", "xiD", ".ss"},
    {kOpMultiLine, "MultiLine", "?", "."},
    {kOpRoundedRect, "RoundedRect", "ddddixx", "sssss.."},
    {kOpMultiRoundedRect, "MultiRoundedRect", "ddddiiiixxxxx", "ssssssss....."},
    {kOpPolygon, "Polygon", "xxDD", "..ss"},
    {kOpExactPolygon, "ExactPolygon", "xDD", ".ss"},
    {kOpShape, "Shape", "?", "."},
    {kOpGouraudShadedTriangle, "GouraudShadedTriangle", "dddddddddx", "ss.ss.ss.."},
    {kOpBeginSuperPixelMode, "BeginSuperPixelMode", "", ""},
    {kOpCommitSuperPixels, "CommitSuperPixels", "", ""},
    {kOpText, "Text", "?", "."},
    {kOpDefineSymbol, "DefineSymbol", "?", "."},
    {kOpMergeWithScaling, "MergeWithScaling", "iiiiii", ".ssss."},
    {kOpMergeWithRotation, "MergeWithRotation", "iddd", ".ss."},
    {kOpMergeBitMap, "MergeBitMap", "iiii", "..ss"},
    {kOpLoadStream, "LoadStream", "iiii", "...."},
    {kOpInitDynamicLayer, "InitDynamicLayer", "", ""},
};

const MetaRecordInfo kColorRecords[] = {
    {kOpSetSubDrawMode, "SetSubDrawMode", "", ""},
    {kOpAdjustBrightness, "AdjustBrightness", "xxd", "..."},
    {kOpTransformedColor, "TransformedColor", "xxdddddd", "......ss"},
    {kOpPreciseTransformColor, "PreciseTransformColor", "xxdddddd", "......ss"},
    {kOpBrushedTextureColor, "BrushedTextureColor", "xxi", "..."},
    {kOpMultiLayerColor, "MultiLayerColor", "xX", ".."},
    {kOpDashLineColor, "DashLineColor", "xxi", "..."},
    {kOpLinearGradientColor, "LinearGradientColor", "xddddbX", ".ssss.."},
    {kOpRadialGradientColor, "RadialGradientColor", "xiiiibX", ".ssss.."},
    {kOpAngleGradientColor, "AngleGradientColor", "xddddddX", ".ss..ss."},
    {kOpRelativeLinearGradientColor, "RelativeLinearGradientColor", "xddddbX", "......."},
    {kOpLightingColor, "LightingColor", "xxddddbI", "..ssss.."},
    {kOpLinearLightingColor, "LinearLightingColor", "xxddddbI", "..ssss.."},
    {kOpRadialLightingColor, "RadialLightingColor", "xxiiiiI", "..ssss."},
    {kOpRelativeLinearLightingColor, "RelativeLinearLightingColor", "xxddddbI", "........"},
    {kOpPatternColor, "PatternColor", "xiiiiX", ".ss..."},
    {kOpPatternColor2, "PatternColor2", "xiis", ".ss."},
    {kOpZoneColor, "ZoneColor", "xbixx", "..s.."},
    {kOpRectColor, "RectColor", "xddddx", ".ssss."},
};

const MetaRecordInfo kPathTypes[] = {
    {kPathLine, "Line", "ddddxb", "ssss.."},
    {kPathArc, "Arc", "ddddddddx", "ssssssss."},
    {kPathArc2, "Arc2", "ddddddddddxb", "ssss..ssss.."},
};

const MetaRecordInfo kLineItems[] = {
    {kLineItemStyle, "style", "xi", ".s"},
    {kLineItemCoor, "coor", "dd", "ss"},
};

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

#pragma once

// Record kinds of the display list.  Drawing records are 0 to 24; records with
// the top bit set define a dynamic colour and leave a pending line batch open.
enum MetaOpcode : unsigned {
    kOpSetSize = 0,
    kOpResize = 1,
    kOpAffineTransform = 2,
    kOpSetClipRect = 3,
    kOpSetBgColor = 4,
    kOpSetBgRoundedClip = 5,
    kOpSetBgDropShadow = 6,
    kOpLine = 7,
    kOpPolyLine = 8,
    kOpMultiLine = 9,
    kOpRoundedRect = 10,
    kOpMultiRoundedRect = 11,
    kOpPolygon = 12,
    kOpExactPolygon = 13,
    kOpShape = 14,
    kOpGouraudShadedTriangle = 15,
    kOpBeginSuperPixelMode = 16,
    kOpCommitSuperPixels = 17,
    kOpText = 18,
    kOpDefineSymbol = 19,
    kOpMergeWithScaling = 20,
    kOpMergeWithRotation = 21,
    kOpMergeBitMap = 22,
    kOpLoadStream = 23,
    kOpInitDynamicLayer = 24,

    kOpColorFlag = 0x80000000u,
    kOpSetSubDrawMode = 0x80000000u,
    kOpAdjustBrightness = 0x80000001u,
    kOpTransformedColor = 0x80000002u,
    kOpPreciseTransformColor = 0x80000003u,
    kOpBrushedTextureColor = 0x80000004u,
    kOpMultiLayerColor = 0x80000005u,
    kOpDashLineColor = 0x80000006u,
    kOpLinearGradientColor = 0x80000007u,
    kOpRadialGradientColor = 0x80000008u,
    kOpAngleGradientColor = 0x80000009u,
    kOpRelativeLinearGradientColor = 0x8000000au,
    kOpLightingColor = 0x8000000bu,
    kOpLinearLightingColor = 0x8000000cu,
    kOpRadialLightingColor = 0x8000000du,
    kOpRelativeLinearLightingColor = 0x8000000eu,
    kOpPatternColor = 0x8000000fu,
    kOpPatternColor2 = 0x80000010u,
    kOpZoneColor = 0x80000011u,
    kOpRectColor = 0x80000012u,
};

// Item kinds inside a Shape record.
enum MetaPathType : unsigned { kPathLine = 0, kPathArc = 1, kPathArc2 = 2 };

// Item kinds inside a MultiLine record.
enum MetaLineItem : unsigned { kLineItemStyle = 0, kLineItemCoor = 1 };

// One row of a record table.  `format` holds one letter per argument (b i x d s
// w D I X, or "?" for a layout of its own); `scaled` is as long as `format` and
// marks with 's' the arguments that the scaling interpreter multiplies (for an
// array, every element).
struct MetaRecordInfo {
    unsigned code;
    const char *name;
    const char *format;
    const char *scaled;
};

// Layouts of the records whose format is "?": Text is the symbol id, first
// item, end item, then x, y and colour; DefineSymbol is the symbol id; Shape
// starts with the fill colour and the flags inset and keepOutline.
constexpr const char *kTextLayout = "iiiiix";
constexpr const char *kTextScaled = "...ss.";
constexpr const char *kDefineSymbolLayout = "i";
constexpr const char *kShapeHeader = "xbb";

inline bool isColorOpcode(unsigned opcode) {
    return (opcode & kOpColorFlag) != 0;
}

// Null for a code outside the tables.
const MetaRecordInfo *findMetaOpcode(unsigned opcode);
const MetaRecordInfo *findMetaPathType(unsigned type);
const MetaRecordInfo *findMetaLineItem(unsigned item);

#pragma once

// Sentinels and shared enumerations of the engine.

// A missing number in every DoubleArray; always tested by exact comparison.
constexpr double kNoValue = 1.7e308;
constexpr double kLogTick = 1.6e308;
constexpr double kLinearTick = 1.5e308;
constexpr double kTickInc = 1e200;
constexpr double kMinorTickOnly = -1.7e308;
constexpr double kMicroTickOnly = -1.6e308;
constexpr double kDataBound = -1.7e-100;
constexpr double kTouchBar = -1.7e-100;

// The engine's pi: these digits, not the full double.
constexpr double kPi = 3.14159265358979;

enum Alignment {
    kBottomLeft = 1,
    kBottomCenter = 2,
    kBottomRight = 3,
    kLeft = 4,
    kCenter = 5,
    kRight = 6,
    kTopLeft = 7,
    kTopCenter = 8,
    kTopRight = 9,
    kTopLeft2 = 10,
    kTopRight2 = 11,
    kBottomLeft2 = 12,
    kBottomRight2 = 13,
    kTop = 8,
    kBottom = 2,
};

enum ZOrder {
    kChartBackZ = 0x100,
    kPlotAreaZ = 0x1000,
    kGridLinesZ = 0x2000,
    kChartFrontZ = 0xFFFF,
};

// Which axes of an XY chart stand at the other axis's 0.
enum AxisAtOrigin {
    kXAxisAtOrigin = 1,
    kYAxisAtOrigin = 2,
    kXYAxisAtOrigin = 3,
};

// Bits of the XY chart's symmetry mode: scales centred on 0.
enum AxisSymmetry {
    kXAxisSymmetric = 1,
    kXAxisSymmetricIfNeeded = 2,
    kYAxisSymmetric = 4,
    kYAxisSymmetricIfNeeded = 8,
    kXYAxisSymmetric = 16,
    kXYAxisSymmetricIfNeeded = 32,
};

enum DataCombineMethod {
    kOverlay = 0,
    kStack = 1,
    kDepth = 2,
    kSide = 3,
    kPercentage = 4,
};

enum ImageType {
    kPNG = 0,
    kGIF = 1,
    kJPG = 2,
    kWMP = 3,
    kBMP = 4,
    kSVG = 5,
    kSVGZ = 6,
    kPDF = 7,
};

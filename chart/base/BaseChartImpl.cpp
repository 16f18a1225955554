#include "chart/base/BaseChartImpl.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "chart/base/ChartFrame.h"
#include "chart/base/ChartOutput.h"
#include "chart/base/LineImpl.h"
#include "chart/base/MultiChart.h"
#include "chart/base/TitleTextBox.h"
#include "chart/legend/LegendBoxImpl.h"
#include "chart/symbol/MarkupSymbolPainter.h"
#include "draw/pixel/ColorWords.h"
#include "draw/canvas/DrawArea.h"
#include "draw/canvas/Palettes.h"
#include "foundation/Constants.h"
#include "text/CanvasText.h"
#include "text/template/VSParser.h"
#include "text/box/VSMLTableImpl.h"

namespace {

// Property groups of getProperty: the rounded frame's radii, the view area.
const int kFrameRadiusProperty = 0x100;
const int kViewAreaProperty = 0x200;
const int kAutoGrid = -2;
const int kMaxLegendCols = 1000;
const int kSameAsOffsetX = 0x7FFFFFFF;
const int kMaxFrameThickness = 1 << 20;

int clampToInt(long long v) {
    return (int)std::max(std::min(v, 0x7FFFFFFFLL), -0x7FFFFFFFLL);
}

// A size and the room a shadow adds on either side.
int withShadow(int size, int offset, int blur) {
    long long b = blur, o = offset;
    return clampToInt(size + std::max(0LL, o + b) + std::max(0LL, b - o));
}

// A coordinate moved by the room the shadow takes before the chart.
int shiftedByShadow(int v, int offset, int blur) {
    return clampToInt(v + std::max(0LL, (long long)blur - offset));
}

}  // namespace

BaseChartImpl::BaseChartImpl()
    : width(480),
      height(360),
      drawArea(nullptr),
      legend(nullptr),
      container(nullptr),
      layoutDone(false),
      legendLayoutDone(false),
      edgeColor(kTransparent),
      wallpaperAlign(-1),
      backgroundReady(false),
      raisedEffect(0),
      cornerRadius{0, 0, 0, 0},
      frameExteriorColor(0xFFFFFF),
      frameThickness(0),
      frameColor(kLineColor),
      frameInnerEdgeColor(kTransparent),
      shadowColor(kTransparent),
      shadowOffsetX(10),
      shadowOffsetY(10),
      shadowBlur(10),
      paintCursor(-1),
      nextAutoColor(kDataColor) {
    // Charts lay texts out and draw the symbols of mark-up.
    CanvasText::install();
    MarkupSymbolPainter::install();
    drawArea = DrawArea::create();
    drawArea->setColorTable(Chart::paletteColors(Chart::defaultPalette), 0);
}

BaseChartImpl::~BaseChartImpl() {
    for (DrawObj *obj : drawObjs) obj->release();
    if (legend) legend->release();
    drawArea->destroy();
}

void BaseChartImpl::initChart(int w, int h, int bgColor, int edge, int raised) {
    setSize(w, h);
    setBackground(bgColor, edge, raised);
}

// ---- Canvas ----

void BaseChartImpl::prepareCanvas() {
    if (backgroundReady) drawArea->setBgColor(kBackgroundColor);
    drawArea->setSize(width, height, kBackgroundColor);
    drawWallpaper();
    backgroundReady = true;
}

void BaseChartImpl::drawWallpaper() {
    if (wallpaperPath.empty()) return;
    int length = 0;
    char *data = drawArea->loadFile(wallpaperPath.c_str(), DrawArea::getFileLimit(), &length);
    if (!data) return;
    DrawArea *image = drawArea->createSubDrawArea(1, 1);
    bool loaded = image->load2(length, data, -1);
    free(data);
    if (loaded && wallpaperAlign >= 1 && wallpaperAlign <= 9)
        drawArea->merge(image, DrawArea::alignX(width, wallpaperAlign),
                        DrawArea::alignY(height, wallpaperAlign), wallpaperAlign, 0);
    else if (loaded)
        drawArea->tile(image, 0);
    image->destroy();
}

DrawArea *BaseChartImpl::getDrawArea() {
    if (!backgroundReady) prepareCanvas();
    return drawArea;
}

void BaseChartImpl::setSize(int w, int h) {
    width = w;
    height = h;
    if (backgroundReady) prepareCanvas();
}

void BaseChartImpl::setBackground(int color, int edge, int raised) {
    if (color != kBackgroundColor) setColor(0, color);
    edgeColor = edge;
    raisedEffect = raised;
    if (backgroundReady) prepareCanvas();
}

// ---- Frame settings ----

void BaseChartImpl::setRoundedFrame(int extColor, int r1, int r2, int r3, int r4) {
    frameExteriorColor = extColor;
    cornerRadius[0] = r1;
    cornerRadius[1] = r2 == -1 ? r1 : r2;
    cornerRadius[2] = r3 == -1 ? r1 : r3;
    cornerRadius[3] = r4 == -1 ? r1 : r4;
}

void BaseChartImpl::setThickFrame(int thickness, int color, int outerEdgeColor,
                                  int innerEdgeColor) {
    frameThickness = std::min(std::max(thickness, 0), kMaxFrameThickness);
    if (outerEdgeColor != -1) edgeColor = outerEdgeColor;
    frameColor = color == -1 ? edgeColor : color;
    frameInnerEdgeColor = innerEdgeColor == -1 ? color : innerEdgeColor;
}

void BaseChartImpl::setWallpaper(const char *path) {
    wallpaperPath = path ? path : "";
    wallpaperAlign = -1;
}

void BaseChartImpl::setBgImage(const char *path, int align) {
    wallpaperPath = path ? path : "";
    wallpaperAlign = align;
}

void BaseChartImpl::setDropShadow(int color, int offsetX, int offsetY, int blurRadius) {
    shadowColor = color;
    shadowOffsetX = offsetX;
    shadowOffsetY = offsetY == kSameAsOffsetX ? offsetX : offsetY;
    shadowBlur = blurRadius;
}

bool BaseChartImpl::hasShadow() const {
    return shadowColor != kTransparent;
}

int BaseChartImpl::getWidthWithShadow() const {
    return hasShadow() ? withShadow(width, shadowOffsetX, shadowBlur) : width;
}

int BaseChartImpl::getHeightWithShadow() const {
    return hasShadow() ? withShadow(height, shadowOffsetY, shadowBlur) : height;
}

int BaseChartImpl::getAbsOffsetX() {
    return container ? container->getAbsOffsetX(this) : 0;
}

int BaseChartImpl::getAbsOffsetY() {
    return container ? container->getAbsOffsetY(this) : 0;
}

// ---- Canvas settings passed on ----

void BaseChartImpl::setTransparentColor(int color) {
    drawArea->setTransparentColor(color);
}

void BaseChartImpl::setAntiAlias(bool shapeAntiAlias, int textAntiAlias) {
    drawArea->setAntiAlias(shapeAntiAlias, textAntiAlias);
}

void BaseChartImpl::setSearchPath(const char *path) {
    drawArea->setSearchPath(path);
}

void BaseChartImpl::setResource(const char *id, const char *data, int length) {
    drawArea->setResource(id, data, length);
}

void BaseChartImpl::setResource2(const char *id, DrawArea *d) {
    drawArea->setResource2(id, d);
}

DrawArea *BaseChartImpl::initDynamicLayer() {
    getDrawArea()->initDynamicLayer();
    return drawArea;
}

void BaseChartImpl::removeDynamicLayer() {
    drawArea->removeDynamicLayer();
}

void BaseChartImpl::setOutputOptions(const char *options) {
    drawArea->setOutputOptions(options);
}

void BaseChartImpl::setDefaultFonts(const char *normal, const char *bold, const char *italic,
                                    const char *boldItalic) {
    drawArea->setDefaultFonts(normal, bold, italic, boldItalic);
}

void BaseChartImpl::setFontTable(int index, const char *font) {
    drawArea->setFontTable(index, font);
}

// ---- Colours ----

void BaseChartImpl::setColor(int paletteEntry, int color) {
    drawArea->setColorTable(paletteEntry & 0xFFFF, color);
}

void BaseChartImpl::setColors(IntArray colors) {
    setColors2(0, colors);
}

void BaseChartImpl::setColors2(int paletteEntry, IntArray colors) {
    int n = 0;
    while (n < colors.len && colors.data[n] != Chart::kPaletteEnd) ++n;
    if (n >= Chart::kMaxPaletteLength) return;
    drawArea->setColorTable(IntArray(colors.data, n), paletteEntry);
}

int BaseChartImpl::getColor(int paletteEntry) {
    if (paletteEntry < 0 || paletteEntry >= kMaxColorTableSize) return kTransparent;
    return drawArea->getARGBColor(kPalette + paletteEntry);
}

int BaseChartImpl::halfColor(int color) {
    return drawArea->halfColor(color);
}

int BaseChartImpl::adjustBrightness(int color, double brightness) {
    return drawArea->adjustBrightness(color, brightness);
}

int BaseChartImpl::dashLineColor(int color, int patternCode) {
    return drawArea->dashLineColor(color, patternCode);
}

int BaseChartImpl::patternColor(IntArray colors, int h, int startX, int startY) {
    return drawArea->patternColor(colors, h, startX, startY);
}

int BaseChartImpl::patternColor2(const char *file, int startX, int startY) {
    return drawArea->patternColor2(file, startX, startY);
}

int BaseChartImpl::gradientColor(int startX, int startY, int endX, int endY, int startColor,
                                 int endColor) {
    return drawArea->gradientColor(startX, startY, endX, endY, startColor, endColor);
}

int BaseChartImpl::gradientColor2(IntArray colors, double angle, double scale, int startX,
                                  int startY) {
    return drawArea->gradientColor2(colors, angle, scale, startX, startY);
}

int BaseChartImpl::linearGradientColor(int startX, int startY, int endX, int endY, int startColor,
                                       int endColor, bool periodic) {
    return drawArea->linearGradientColor(startX, startY, endX, endY, startColor, endColor,
                                         periodic);
}

int BaseChartImpl::linearGradientColor2(int startX, int startY, int endX, int endY, IntArray colors,
                                        bool periodic) {
    return drawArea->linearGradientColor2(startX, startY, endX, endY, colors, periodic);
}

int BaseChartImpl::radialGradientColor(int cx, int cy, int rx, int ry, int startColor, int endColor,
                                       bool periodic) {
    return drawArea->radialGradientColor(cx, cy, rx, ry, startColor, endColor, periodic);
}

int BaseChartImpl::radialGradientColor2(int cx, int cy, int rx, int ry, IntArray colors,
                                        bool periodic) {
    return drawArea->radialGradientColor2(cx, cy, rx, ry, colors, periodic);
}

// ---- Formatting ----

void BaseChartImpl::setNumberFormat(char thousandSeparator, char decimalPointChar, char signChar) {
    formatter.setNumberFormat(thousandSeparator, decimalPointChar, signChar);
}

void BaseChartImpl::setMonthNames(StringArray names) {
    formatter.setMonthNames(names.data, names.len);
}

void BaseChartImpl::setWeekDayNames(StringArray names) {
    formatter.setWeekDayNames(names.data, names.len);
}

void BaseChartImpl::setAMPM(const char *am, const char *pm) {
    formatter.setAMPM(am, pm);
}

const char *BaseChartImpl::keepText(const std::string &text) {
    scratchText = text;
    return scratchText.c_str();
}

const char *BaseChartImpl::formatValue(double value, const char *formatString) {
    const char *f = formatString ? formatString : "";
    if (!strchr(f, '{')) return keepText(formatter.format(f, value));
    VSParser parser(f, 0);
    while (const char *name = parser.getNextAttr())
        if (!strcmp(name, "value"))
            parser.replaceAttr(formatter.format(parser.getFormatString(), value));
    return keepText(parser.getResult(&formatter));
}

// ---- Objects ----

DrawObj *BaseChartImpl::addDrawObj(DrawObj *obj) {
    if (obj) drawObjs.push_back(obj);
    return obj;
}

TextBox *BaseChartImpl::addTitle(const char *text, const char *font, double fontSize, int fontColor,
                                 int bgColor, int edge) {
    return addTitle2(kTopCenter, text, font, fontSize, fontColor, bgColor, edge);
}

TextBox *BaseChartImpl::addTitle2(int alignment, const char *text, const char *font,
                                  double fontSize, int fontColor, int bgColor, int edge) {
    TitleTextBox *box = new TitleTextBox(this, alignment);
    box->setAlignment(alignment);
    switch (alignment) {
        case kBottomLeft:
        case kBottomCenter:
        case kBottomRight:
            box->setPos(0, height - 1);
            box->setWidth(width);
            break;
        case kLeft:
            box->setHeight(height);
            box->setFontAngle(90, false);
            break;
        case kCenter:
            box->setPos(width / 2, height / 2);
            break;
        case kRight:
            box->setPos(width - 1, 0);
            box->setHeight(height);
            box->setFontAngle(90, false);
            break;
        default:
            box->setWidth(width);
            break;
    }
    box->setFontStyle(font && *font ? font : "bold", 0);
    box->setFontSize(fontSize, 0);
    box->setFontColor(fontColor);
    box->setText(text);
    box->setBackground(bgColor, edge, 0);
    addDrawObj(box);
    titles.push_back(box);
    return box;
}

TextBox *BaseChartImpl::addText(int x, int y, const char *text, const char *font, double fontSize,
                                int fontColor, int alignment, double angle, bool vertical) {
    TextBoxImpl *box = new TextBoxImpl(this);
    box->setPos(x, y);
    box->setAlignment(alignment);
    box->setFontStyle(font, 0);
    box->setFontSize(fontSize, 0);
    box->setFontColor(fontColor);
    box->setFontAngle(angle, vertical);
    box->setText(text);
    addDrawObj(box);
    return box;
}

Line *BaseChartImpl::addLine(int x1, int y1, int x2, int y2, int color, int lineWidth) {
    LineImpl *line = new LineImpl();
    line->setPos(x1, y1, x2, y2);
    line->setColor(color);
    line->setWidth(lineWidth);
    addDrawObj(line);
    return line;
}

VSMLTable *BaseChartImpl::addTable(int x, int y, int alignment, int cols, int rows) {
    VSMLTableImpl *table = new VSMLTableImpl(this, cols, rows);
    table->setPos(x, y, alignment);
    addDrawObj(table);
    return table;
}

LegendBox *BaseChartImpl::getLegend() {
    if (!legend) legend = new LegendBoxImpl(this);
    return legend;
}

LegendBox *BaseChartImpl::addLegend(int x, int y, bool vertical, const char *font,
                                    double fontSize) {
    return addLegend2(x, y, vertical ? 1 : 0, font, fontSize);
}

LegendBox *BaseChartImpl::addLegend2(int x, int y, int noOfCols, const char *font,
                                     double fontSize) {
    if (noOfCols != kAutoGrid && (noOfCols < 0 || noOfCols > kMaxLegendCols)) noOfCols = 1;
    LegendBox *box = getLegend();
    box->setPos(x, y);
    box->setCols(noOfCols);
    box->setFontStyle(font, 0);
    box->setFontSize(fontSize, 0);
    box->setBackground(kTransparent, kLineColor, 0);
    return box;
}

void BaseChartImpl::getFreeArea(int *left, int *top, int *right, int *bottom) {
    int l = 0, t = 0, r = width - 1, b = height - 1;
    for (TitleTextBox *title : titles) {
        if (!title->takesRoom()) continue;
        title->layout(drawArea);
        if (title->isEmpty()) continue;
        int a = title->getTitleAlignment();
        if (a >= kBottomLeft && a <= kBottomRight)
            b = std::min(b, title->getTopY() - 1);
        else if (a == kLeft)
            l = std::max(l, title->getLeftX() + title->getWidth());
        else if (a == kRight)
            r = std::min(r, title->getLeftX() - 1);
        else
            t = std::max(t, title->getTopY() + title->getHeight());
    }
    *left = l, *top = t, *right = r, *bottom = b;
}

// ---- Pipeline ----

LegendBox *BaseChartImpl::layoutLegend() {
    if (!legendLayoutDone) {
        legendLayoutDone = true;
        if (!backgroundReady) prepareCanvas();
        onLayoutLegend();
        if (legend) legend->layout(drawArea);
    }
    return legend;
}

void BaseChartImpl::layout() {
    if (layoutDone) return;
    layoutDone = true;
    layoutLegend();
    onLayoutChart();
}

void BaseChartImpl::paintObjects(int maxZ) {
    while (paintCursor >= 0 && paintCursor < (int)drawObjs.size() &&
           drawObjs[paintCursor]->getZOrder() <= maxZ)
        drawObjs[paintCursor++]->paint(drawArea);
}

void BaseChartImpl::paint() {
    if (paintCursor >= 0) {
        paintObjects(0x7FFFFFFF);
        return;
    }
    std::stable_sort(drawObjs.begin(), drawObjs.end(), DrawObj::comparator);
    size_t count = drawObjs.size();
    layout();
    if (drawObjs.size() != count)
        std::stable_sort(drawObjs.begin(), drawObjs.end(), DrawObj::comparator);
    paintCursor = 0;
    paintObjects(kBackObjectsZ);
    onPaint();
    if (legend) legend->paint(drawArea);
    paintObjects(0x7FFFFFFF);
    paintFrame();
}

void BaseChartImpl::paintFrame() {
    int radius[4] = {cornerRadius[0], cornerRadius[1], cornerRadius[2], cornerRadius[3]};
    ChartFrame::limitRadii(radius, drawArea->getWidth(), drawArea->getHeight());
    bool thickFrame = frameThickness >= 1;
    if (thickFrame)
        ChartFrame::paintThickFrame(drawArea, width, height, radius, frameThickness, frameColor,
                                    raisedEffect == 0 ? edgeColor : kTransparent,
                                    frameInnerEdgeColor);
    if (!(thickFrame && raisedEffect == 0))
        ChartFrame::paintEdge(drawArea, width, height, radius,
                              edgeColor == -1 ? kTransparent : edgeColor, raisedEffect);
    drawArea->setBgRoundedClip(radius[0], radius[1], radius[2], radius[3],
                               hasShadow() ? kTransparent : frameExteriorColor);
    if (hasShadow())
        drawArea->setBgDropShadow(shadowColor, shadowOffsetX, shadowOffsetY, shadowBlur);
}

// ---- Output ----

DrawArea *BaseChartImpl::makeChart() {
    paint();
    return drawArea;
}

bool BaseChartImpl::makeChart(const char *path) {
    paint();
    if (!path || !*path) return true;
    return drawArea->out(path);
}

bool BaseChartImpl::makeChart3(int format, const char **bytes, int *length) {
    MemBlock block = makeChart2(format);
    if (bytes) *bytes = block.data;
    if (length) *length = block.len;
    return block.len > 0;
}

MemBlock BaseChartImpl::makeChart2(int format) {
    paint();
    return ChartOutput::encode(drawArea, format);
}

const char *BaseChartImpl::getHTMLImageMap(const char *url, const char *queryFormat,
                                           const char *extraAttr, int offsetX, int offsetY) {
    // The shadow's blur on the left and top moves the chart in the picture.
    if (hasShadow()) {
        offsetX = shiftedByShadow(offsetX, shadowOffsetX, shadowBlur);
        offsetY = shiftedByShadow(offsetY, shadowOffsetY, shadowBlur);
    }
    const char *map = onGetHTMLImageMap(url, queryFormat, extraAttr, offsetX, offsetY);
    return keepText(map ? map : "");
}

const char *BaseChartImpl::getJsChartModel(const char *) {
    qlx::ostrstream out;
    char buffer[96];
    snprintf(buffer, sizeof(buffer), "{\"width\":%d,\"height\":%d", drawArea->getWidth(),
             drawArea->getHeight());
    out << buffer;
    onJSONize(out);
    out << "}";
    return keepText(std::string(out.str(), out.tell()));
}

double BaseChartImpl::getProperty(int code) {
    if ((code & ~0xFF) == kFrameRadiusProperty) {
        switch (code & 0xFF) {
            case kTopLeft:
                return cornerRadius[0];
            case kTopRight:
                return cornerRadius[1];
            case kBottomRight:
                return cornerRadius[2];
            case kBottomLeft:
                return cornerRadius[3];
            default:
                return 0;
        }
    }
    if ((code & ~0xFF) == kViewAreaProperty) {
        if ((code & 0xFF) == kBottom) return height - 1;
        if ((code & 0xFF) == kRight) return width - 1;
    }
    return 0;
}

const char *BaseChartImpl::getChartMetrics() {
    int left = (int)getProperty(kViewAreaProperty + kLeft);
    int top = (int)getProperty(kViewAreaProperty + kTop);
    int right = (int)getProperty(kViewAreaProperty + kRight);
    int bottom = (int)getProperty(kViewAreaProperty + kBottom);
    char buffer[160];
    snprintf(buffer, sizeof(buffer), "w=%d&h=%d&vl=%d&vt=%d&vw=%d&vh=%d", drawArea->getWidth(),
             drawArea->getHeight(), left, top, right - left, bottom - top);
    return keepText(buffer);
}

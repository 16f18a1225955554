#include "api/CChart.h"

#include <vector>

#include "api/Handles.h"
#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/Palettes.h"
#include "foundation/ChartStatics.h"

using vistrel_api::putView;

double CChart_chartTime(int y, int m, int d, int h, int mi, int s) {
    return Chart::chartTime(y, m, d, h, mi, s);
}
double CChart_chartTime2(int unixTime) {
    return Chart::chartTime2(unixTime);
}
int CChart_getChartYMD(double t) {
    return Chart::getChartYMD(t);
}
int CChart_getChartWeekDay(double t) {
    return Chart::getChartWeekDay(t);
}
int CChart_xySize(int w, int h) {
    return Chart::xySize(w, h);
}
int CChart_getWidthFromWH(int v) {
    return Chart::getWidthFromWH(v);
}
int CChart_getHeightFromWH(int v) {
    return Chart::getHeightFromWH(v);
}
double CChart_bSearch(const double *data, int len, double v) {
    return Chart::bSearch(DoubleArray(data, len), v);
}

int CChart_encodeIntensity(double v) {
    return Chart::encodeIntensity(v);
}
double CChart_decodeIntensity(int code) {
    return Chart::decodeIntensity(code);
}
int CChart_flatBorder(int thickness) {
    return Chart::flatBorder(thickness);
}
bool CChart_isFlatBorder(int word) {
    return Chart::isFlatBorder(word);
}
int CChart_glassEffect(int glareSize, int glareDirection, int raisedEffect) {
    return Chart::glassEffect(glareSize, glareDirection, raisedEffect);
}
int CChart_softLighting(int direction, int raisedEffect) {
    return Chart::softLighting(direction, raisedEffect);
}
int CChart_cylinderEffect(int orientation, double ambientIntensity, double diffuseIntensity,
                          double specularIntensity, int shininess) {
    return Chart::cylinderEffect(orientation, ambientIntensity, diffuseIntensity, specularIntensity,
                                 shininess);
}
int CChart_encodeCylinderOrientation(int orientation) {
    return Chart::encodeCylinderOrientation(orientation);
}
bool CChart_isCylinderEffect(int word) {
    return Chart::isCylinderEffect(word);
}
int CChart_getCylinderOrientation(int word) {
    return Chart::getCylinderOrientation(word);
}
int CChart_phongLighting(double ambientIntensity, double diffuseIntensity, double specularIntensity,
                         int shininess) {
    return Chart::phongLighting(ambientIntensity, diffuseIntensity, specularIntensity, shininess);
}
int CChart_setDefaultCylinderOrientation(int word, int orientation) {
    return Chart::setDefaultCylinderOrientation(word, orientation);
}
void CChart_getPhongLighting(double *values, int word) {
    if (values) Chart::getPhongLighting(values, word);
}
int CChart_getShearedCylinderLighting(int word, double dx, double dy, int *table, int capacity) {
    std::vector<int> lighting;
    Chart::getShearedCylinderLighting(lighting, word, dx, dy);
    for (int i = 0; table && i < capacity && i < (int)lighting.size(); ++i) table[i] = lighting[i];
    return (int)lighting.size();
}
int CChart_barLighting(double startBrightness, double endBrightness) {
    return Chart::barLighting(startBrightness, endBrightness);
}
bool CChart_isBarLighting(int word) {
    return Chart::isBarLighting(word);
}
void CChart_getBarLighting(int *table, int word, double scale) {
    if (table) Chart::getBarLighting(table, word, scale);
}
int CChart_ClearTypeColor(double gamma) {
    return Chart::ClearTypeColor(gamma);
}
int CChart_ClearTypeMono(double gamma) {
    return Chart::ClearTypeMono(gamma);
}
int CChart_metalColor(int color, int angle) {
    return Chart::metalColor(color, angle);
}
int CChart_goldColor(int angle) {
    return Chart::goldColor(angle);
}
int CChart_silverColor(int angle) {
    return Chart::silverColor(angle);
}
int CChart_brushedMetalColor(int color, int texture, int angle) {
    return Chart::brushedMetalColor(color, texture, angle);
}
int CChart_brushedSilverColor(int texture, int angle) {
    return Chart::brushedSilverColor(texture, angle);
}
int CChart_brushedGoldColor(int texture, int angle) {
    return Chart::brushedGoldColor(texture, angle);
}

void CChart_defaultPalette(const int **data, int *len) {
    putView(Chart::paletteColors(Chart::defaultPalette), data, len);
}
void CChart_whiteOnBlackPalette(const int **data, int *len) {
    putView(Chart::paletteColors(Chart::whiteOnBlackPalette), data, len);
}
void CChart_transparentPalette(const int **data, int *len) {
    putView(Chart::paletteColors(Chart::transparentPalette), data, len);
}
void CChart_goldGradient(const int **data, int *len) {
    putView(Chart::gradientPairs(Chart::goldGradient), data, len);
}
void CChart_silverGradient(const int **data, int *len) {
    putView(Chart::gradientPairs(Chart::silverGradient), data, len);
}
void CChart_redMetalGradient(const int **data, int *len) {
    putView(Chart::gradientPairs(Chart::redMetalGradient), data, len);
}
void CChart_blueMetalGradient(const int **data, int *len) {
    putView(Chart::gradientPairs(Chart::blueMetalGradient), data, len);
}
void CChart_greenMetalGradient(const int **data, int *len) {
    putView(Chart::gradientPairs(Chart::greenMetalGradient), data, len);
}

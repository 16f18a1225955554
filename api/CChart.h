#pragma once

/* The statics of the public Chart class: chart time, packed sizes, the colour
   and effect encoders and the constant palettes. */

#include "api/CTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Sentinels of arrays of numbers. */
#define CChart_kNoValue 1.7e308
#define CChart_kLogTick 1.6e308
#define CChart_kLinearTick 1.5e308
#define CChart_kTickInc 1e200
#define CChart_kMinorTickOnly (-1.7e308)
#define CChart_kMicroTickOnly (-1.6e308)
#define CChart_kDataBound (-1.7e-100)
#define CChart_kTouchBar (-1.7e-100)

double CChart_chartTime(int y, int m, int d, int h, int mi, int s);
double CChart_chartTime2(int unixTime);
int CChart_getChartYMD(double t);
int CChart_getChartWeekDay(double t);
int CChart_xySize(int w, int h);
int CChart_getWidthFromWH(int v);
int CChart_getHeightFromWH(int v);
double CChart_bSearch(const double *data, int len, double v);

int CChart_encodeIntensity(double v);
double CChart_decodeIntensity(int code);
int CChart_flatBorder(int thickness);
bool CChart_isFlatBorder(int word);
int CChart_glassEffect(int glareSize, int glareDirection, int raisedEffect);
int CChart_softLighting(int direction, int raisedEffect);
int CChart_cylinderEffect(int orientation, double ambientIntensity, double diffuseIntensity,
                          double specularIntensity, int shininess);
int CChart_encodeCylinderOrientation(int orientation);
bool CChart_isCylinderEffect(int word);
int CChart_getCylinderOrientation(int word);
int CChart_phongLighting(double ambientIntensity, double diffuseIntensity, double specularIntensity,
                         int shininess);
int CChart_setDefaultCylinderOrientation(int word, int orientation);
/* values: ambient, diffuse, specular, shininess. */
void CChart_getPhongLighting(double *values, int word);
/* Writes at most capacity integers of (position, brightness) pairs; returns how
   many the lighting has. */
int CChart_getShearedCylinderLighting(int word, double dx, double dy, int *table, int capacity);
int CChart_barLighting(double startBrightness, double endBrightness);
bool CChart_isBarLighting(int word);
/* table: two pairs of (position, brightness). */
void CChart_getBarLighting(int *table, int word, double scale);
int CChart_ClearTypeColor(double gamma);
int CChart_ClearTypeMono(double gamma);
int CChart_metalColor(int color, int angle);
int CChart_goldColor(int angle);
int CChart_silverColor(int angle);
int CChart_brushedMetalColor(int color, int texture, int angle);
int CChart_brushedSilverColor(int texture, int angle);
int CChart_brushedGoldColor(int texture, int angle);

/* The constant palettes and gradients (pairs of position and colour). */
void CChart_defaultPalette(const int **data, int *len);
void CChart_whiteOnBlackPalette(const int **data, int *len);
void CChart_transparentPalette(const int **data, int *len);
void CChart_goldGradient(const int **data, int *len);
void CChart_silverGradient(const int **data, int *len);
void CChart_redMetalGradient(const int **data, int *len);
void CChart_blueMetalGradient(const int **data, int *len);
void CChart_greenMetalGradient(const int **data, int *len);

#ifdef __cplusplus
}
#endif

#pragma once

/* A pie or donut, flat or in 3D, with exploded sectors and labels around the
   pie or in two columns beside it.  Angles are degrees, 0 at 12 o'clock. */

#include "api/pie/CPieTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Destroyed through its base with CBaseChart_destroy. */
CPieChart *CPieChart_create(int width, int height, int bgColor, int edgeColor, int raisedEffect);
CBaseChart *CPieChart_toBaseChart(CPieChart *c);
/* The pie chart behind a chart handle; null if it is another kind. */
CPieChart *CPieChart_fromBaseChart(CBaseChart *c);

void CPieChart_setPieSize(CPieChart *c, int x, int y, int r);
void CPieChart_setDonutSize(CPieChart *c, int x, int y, int r, int r2);
/* depth -1: a twentieth of the chart's height; angle -1: 45 degrees, or 0
   without depth. */
void CPieChart_set3D(CPieChart *c, int depth, double angle, bool shadowMode);
void CPieChart_set3D2(CPieChart *c, const double *depths, int len, double angle, bool shadowMode);
/* A sector held by the application outlives a shorter data set. */
void CPieChart_setData(CPieChart *c, const double *data, int len, const char *const *labels,
                       int labelCount);
void CPieChart_setStartAngle(CPieChart *c, double startAngle, bool clockWise);
void CPieChart_setExplode(CPieChart *c, int sectorNo, int distance);
void CPieChart_setExplodeGroup(CPieChart *c, int startSector, int endSector, int distance);
void CPieChart_setLabelFormat(CPieChart *c, const char *formatString);
CTextBox *CPieChart_setLabelStyle(CPieChart *c, const char *font, double fontSize, int fontColor);
/* pos below 32768: labels around the pie; 32768 + n: in side columns. */
void CPieChart_setLabelPos(CPieChart *c, int pos, int joinLineColor);
void CPieChart_setLabelLayout(CPieChart *c, int layoutMethod, int pos, int topBound,
                              int bottomBound);
void CPieChart_setJoinLine(CPieChart *c, int joinLineColor, int joinLineWidth);
void CPieChart_setLineColor(CPieChart *c, int edgeColor, int joinLineColor);
void CPieChart_setSectorStyle(CPieChart *c, int shadingMethod, int edgeColor, int edgeWidth);
/* Null out of range. */
CSector *CPieChart_sector(CPieChart *c, int sectorNo);

#ifdef __cplusplus
}
#endif

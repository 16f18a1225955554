#pragma once

/* The plot rectangle of an XY chart: its background, grid and edge.  It
   belongs to its chart. */

#include "api/xy/CXYTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/* An altBgColor other than -1 paints alternate bands; an edgeColor of -1 draws
   no edge. */
void CPlotArea_setBackground(CPlotArea *p, int color, int altBgColor, int edgeColor);
/* A picture placed at an alignment (1 to 9), tiled for any other. */
void CPlotArea_setBackground2(CPlotArea *p, const char *path, int align);
void CPlotArea_set4QBgColor(CPlotArea *p, int q1Color, int q2Color, int q3Color, int q4Color,
                            int edgeColor);
void CPlotArea_setAltBgColor(CPlotArea *p, bool horizontal, int color1, int color2, int edgeColor);
void CPlotArea_setGridColor(CPlotArea *p, int hGridColor, int vGridColor, int minorHGridColor,
                            int minorVGridColor);
void CPlotArea_setGridWidth(CPlotArea *p, int hGridWidth, int vGridWidth, int minorHGridWidth,
                            int minorVGridWidth);
/* Null keeps the x or the y axis. */
void CPlotArea_setGridAxis(CPlotArea *p, CAxis *xGridAxis, CAxis *yGridAxis);
/* Just beneath the layer, or above every layer for null. */
void CPlotArea_moveGridBefore(CPlotArea *p, CLayer *layer);
int CPlotArea_getLeftX(CPlotArea *p);
int CPlotArea_getTopY(CPlotArea *p);
int CPlotArea_getWidth(CPlotArea *p);
int CPlotArea_getHeight(CPlotArea *p);
int CPlotArea_getRightX(CPlotArea *p);
int CPlotArea_getBottomY(CPlotArea *p);

#ifdef __cplusplus
}
#endif

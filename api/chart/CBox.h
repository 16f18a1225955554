#pragma once

/* A rectangle with a background, a border, a raised edge and rounded corners.
   Settings take effect when the chart lays the box out. */

#include "api/chart/CChartTypes.h"

#ifdef __cplusplus
extern "C" {
#endif

CDrawObj *CBox_toDrawObj(CBox *b);
void CBox_setPos(CBox *b, int x, int y);
void CBox_setSize(CBox *b, int width, int height);
/* An edgeColor of -1 means no edge. */
void CBox_setBackground(CBox *b, int color, int edgeColor, int raisedEffect);
/* Clockwise from the top left; -1 for r2 to r4 takes r1. */
void CBox_setRoundedCorners(CBox *b, int r1, int r2, int r3, int r4);
/* The image-map shape, offsets added; valid until the next call. */
const char *CBox_getImageCoor(CBox *b, int offsetX, int offsetY);
int CBox_getWidth(CBox *b);
int CBox_getHeight(CBox *b);
int CBox_getLeftX(CBox *b);
int CBox_getTopY(CBox *b);

#ifdef __cplusplus
}
#endif

#pragma once

#include <vector>

// Effect words (the raisedEffect argument of shapes and borders), cylinder and
// bar lighting words, intensity codes, text modes and compact metal colours.
// All are plain encoders: they need no canvas.
namespace Chart {

// A one-byte code of a light intensity; the upper part of the byte holds
// intensities above 1.
int encodeIntensity(double v);
double decodeIntensity(int code);

// A border of the given thickness without rim lighting; negative is sunken.
int flatBorder(int thickness);
bool isFlatBorder(int word);
// glareDirection is kTop, kLeft, kBottom or kRight; glareSize 0 to 3.
int glassEffect(int glareSize, int glareDirection, int raisedEffect);
int softLighting(int direction, int raisedEffect);

// Cylinder words: orientation in bits 29 to 31, shininess - 1 in bits 24 to 28,
// the specular, diffuse and ambient intensity codes below.
int cylinderEffect(int orientation, double ambientIntensity, double diffuseIntensity,
                   double specularIntensity, int shininess);
int encodeCylinderOrientation(int orientation);
bool isCylinderEffect(int word);
int getCylinderOrientation(int word);
int phongLighting(double ambientIntensity, double diffuseIntensity, double specularIntensity,
                  int shininess);
// Replaces the orientation of a cylinder word that has the default one (5).
int setDefaultCylinderOrientation(int word, int orientation);
// values gets ambient, diffuse, specular and shininess.
void getPhongLighting(double values[4], int word);
// Lighting pairs (position, brightness) across a cylinder seen along (dx, dy);
// empty when the direction is null.
void getShearedCylinderLighting(std::vector<int> &table, int word, double dx, double dy);

// Bar words: a brightness from one end of the bar to the other.
int barLighting(double startBrightness, double endBrightness);
bool isBarLighting(int word);
// The two lighting pairs of a bar word; a negative scale softens the contrast.
void getBarLighting(int table[4], int word, double scale);

// Text anti-alias modes with a gamma.
int ClearTypeColor(double gamma);
int ClearTypeMono(double gamma);

// Compact metal codes: the colour with 4 bits a component (or a palette index
// or dynamic handle), the lighting angle in steps of 45 degrees and a texture.
int metalColor(int color, int angle);
int goldColor(int angle);
int silverColor(int angle);
int brushedMetalColor(int color, int texture, int angle);
int brushedSilverColor(int texture, int angle);
int brushedGoldColor(int texture, int angle);

}  // namespace Chart

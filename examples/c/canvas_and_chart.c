/* Draws a canvas and a chart into PNG files through Vistrel's C interface.
 *
 *   cmake -S . -B build && cmake --build build && build/vistrel_c_example
 * or, with pkg-config:
 *   cc canvas_and_chart.c -o vistrel_c_example $(pkg-config --cflags --libs vistrel) \
 *      -Wl,-rpath,$(pkg-config --variable=libdir vistrel)
 *
 * Writes canvas.png and chart.png into the folder given as the first argument,
 * or into the working folder. */
#include <stdio.h>
#include <string.h>

#include <vistrel.h>

enum {
    kWhite = 0xffffff,
    kInk = 0x1f3a5f,
    kBlue = 0x4a90d9,
    kRed = 0xe4572e,
    kGreen = 0x76b041,
    kPaper = 0xf4f6fa,
    kNoColor = (int)0xff000000 /* transparent: no edge, no fill */
};
/* An alignment, as the chart constants number it. */
enum { kCenter = 5 };

/* Free drawing: shapes, a line and a text on a canvas of its own. */
static int drawCanvas(const char *path) {
    const double triangleX[] = {300, 370, 230};
    const double triangleY[] = {60, 180, 180};
    CDrawArea *d = CDrawArea_create();
    CTTFText *title;
    int ok;

    CDrawArea_setSize(d, 400, 260, kWhite);
    CDrawArea_rect(d, 20, 60, 150, 180, kInk, kBlue, 0);
    CDrawArea_circle(d, 190, 120, 32, 32, kInk, kRed);
    CDrawArea_polygon(d, triangleX, 3, triangleY, 3, kInk, kGreen);
    CDrawArea_line(d, 20, 210, 380, 210, kInk, 3);

    title = CDrawArea_text(d, "Drawn with Vistrel", "arialbd.ttf", 16);
    CTTFText_draw(title, 200, 30, kInk, kCenter);
    CTTFText_destroy(title);

    ok = CDrawArea_out(d, path);
    CDrawArea_destroy(d);
    return ok;
}

/* An XY chart: a title, a bar per region in its own colour with its value
   above it, region names on the x axis and a legend. */
static int drawChart(const char *path) {
    static const char *const names[] = {"North", "South", "East"};
    static const double values[] = {120, 75, 160};
    static const int colors[] = {kBlue, kRed, kGreen};
    CXYChart *xy = CXYChart_create(480, 300, kPaper, kInk, 0);
    CBaseChart *chart = CXYChart_toBaseChart(xy);
    CBarLayer *bars;
    int ok;

    CBaseChart_addTitle(chart, "Sales by region", "arialbd.ttf", 14, kInk, kNoColor, kNoColor);
    CXYChart_setPlotArea(xy, 50, 40, 280, 220, kWhite, -1, kNoColor, 0xdddddd, kNoColor);
    CBaseChart_addLegend(chart, 350, 60, true, "arial.ttf", 10);
    bars = CXYChart_addBarLayer3(xy, values, 3, colors, 3, names, 3, 0);
    CLayer_setAggregateLabelStyle(CBarLayer_toLayer(bars), "arial.ttf", 10, kInk, 0);
    CAxis_setLabels(CXYChart_xAxis(xy), names, 3);

    ok = CBaseChart_makeChart(chart, path);
    CBaseChart_destroy(chart);
    return ok;
}

int main(int argc, char **argv) {
    const char *folder = argc > 1 ? argv[1] : ".";
    char canvasPath[4096], chartPath[4096];
    snprintf(canvasPath, sizeof canvasPath, "%s/canvas.png", folder);
    snprintf(chartPath, sizeof chartPath, "%s/chart.png", folder);
    if (!drawCanvas(canvasPath) || !drawChart(chartPath)) {
        fprintf(stderr, "vistrel_c_example: could not write into %s\n", folder);
        return 1;
    }
    printf("wrote %s and %s\n", canvasPath, chartPath);
    return 0;
}

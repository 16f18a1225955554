// Draws a canvas and a chart into PNG files through Vistrel's C++ classes:
// the same pictures as the C example.
//
//   cmake -S . -B build && cmake --build build && build/vistrel_cpp_example
// or, with pkg-config (the program looks for its fonts beside itself):
//   c++ -std=c++17 canvas_and_chart.cpp -o vistrel_cpp_example \
//       $(pkg-config --cflags --libs vistrel-static)
//   cp -r $(pkg-config --variable=fontdir vistrel-static) fonts
//
// Writes canvas.png and chart.png into the folder given as the first argument,
// or into the working folder.
#include <cstdio>
#include <string>

#include <vistrel.hpp>

namespace {

const int kInk = 0x1f3a5f, kBlue = 0x4a90d9, kRed = 0xe4572e, kGreen = 0x76b041;
const int kWhite = 0xffffff, kPaper = 0xf4f6fa;

// Free drawing: shapes, a line and a text on a canvas of its own.
bool drawCanvas(const std::string &path) {
    const double triangleX[] = {300, 370, 230};
    const double triangleY[] = {60, 180, 180};
    DrawArea *d = DrawArea::create();
    d->setSize(400, 260, kWhite);
    d->rect(20, 60, 150, 180, kInk, kBlue, 0);
    d->circle(190, 120, 32, 32, kInk, kRed);
    d->polygon(DoubleArray(triangleX, 3), DoubleArray(triangleY, 3), kInk, kGreen);
    d->line(20, 210, 380, 210, kInk, 3);

    TTFText *title = d->text("Drawn with Vistrel", "arialbd.ttf", 16);
    title->draw(200, 30, kInk, kCenter);
    title->destroy();

    bool ok = d->out(path.c_str());
    d->destroy();
    return ok;
}

// An XY chart: a title, a bar per region in its own colour with its value
// above it, region names on the x axis and a legend.  The chart owns what it
// hands out.
bool drawChart(const std::string &path) {
    const char *names[] = {"North", "South", "East"};
    double values[] = {120, 75, 160};
    int colors[] = {kBlue, kRed, kGreen};
    XYChart *chart = XYChart::create(480, 300, kPaper, kInk, 0);

    chart->addTitle("Sales by region", "arialbd.ttf", 14, kInk, kTransparent, kTransparent);
    chart->setPlotArea(50, 40, 280, 220, kWhite, -1, kTransparent, 0xdddddd, kTransparent);
    chart->addLegend(350, 60, true, "arial.ttf", 10);
    BarLayer *bars =
        chart->addBarLayer3(DoubleArray(values, 3), IntArray(colors, 3), StringArray(names, 3), 0);
    bars->setAggregateLabelStyle("arial.ttf", 10, kInk, 0);
    chart->xAxis()->setLabels(StringArray(names, 3));

    bool ok = chart->makeChart(path.c_str());
    chart->destroy();
    return ok;
}

}  // namespace

int main(int argc, char **argv) {
    std::string folder = argc > 1 ? argv[1] : ".";
    std::string canvasPath = folder + "/canvas.png", chartPath = folder + "/chart.png";
    if (!drawCanvas(canvasPath) || !drawChart(chartPath)) {
        std::fprintf(stderr, "vistrel_cpp_example: could not write into %s\n", folder.c_str());
        return 1;
    }
    std::printf("wrote %s and %s\n", canvasPath.c_str(), chartPath.c_str());
    return 0;
}

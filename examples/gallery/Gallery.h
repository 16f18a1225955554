#pragma once

#include <string>
#include <vector>

// A gallery sample draws one picture into the file it is given.  Samples register
// themselves with VISTREL_GALLERY_SAMPLE in their own source file.
struct GallerySample {
    const char *section;
    const char *title;
    const char *fileName;  // written into the gallery folder, e.g. "canvas_lines.png"
    bool (*render)(const std::string &path);
};

std::vector<GallerySample> &gallerySamples();

class BaseChart;

// Writes the chart into the file, in the format of its extension, and
// destroys it; false for a null chart or a failed write.
bool saveChart(BaseChart *chart, const std::string &path);

// Writes the output of the reference workload of that name (bench/workloads),
// so that a sample shows the picture as it is timed.
bool saveWorkload(const char *name, const std::string &path);

struct GalleryRegistrar {
    explicit GalleryRegistrar(const GallerySample &sample) { gallerySamples().push_back(sample); }
};

#define VISTREL_GALLERY_CONCAT2(a, b) a##b
#define VISTREL_GALLERY_CONCAT(a, b) VISTREL_GALLERY_CONCAT2(a, b)
#define VISTREL_GALLERY_SAMPLE(section, title, fileName, fn) \
    static GalleryRegistrar VISTREL_GALLERY_CONCAT(          \
        galleryRegistrar_, __LINE__)(GallerySample{section, title, fileName, fn})

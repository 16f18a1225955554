#include "examples/gallery/Gallery.h"

std::vector<GallerySample> &gallerySamples() {
    static std::vector<GallerySample> samples;
    return samples;
}

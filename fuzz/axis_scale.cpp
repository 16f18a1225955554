// Random scale settings, data ranges, labels and formats through an axis and a
// second axis that follows it.  Input: a 16-byte header of choices, six doubles
// (data range, limits, steps), then up to four NUL-separated texts (labels,
// format, condition, value format).
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "chart/axis/AxisImpl.h"
#include "chart/axis/label/LabelFilter.h"
#include "chart/axis/scale/TickGenerator.h"
#include "text/template/Formatter.h"

namespace {

const size_t kHeader = 16;
const size_t kNumbers = 6;
const size_t kLargestText = 1 << 20;

void checkBounded(const char *s) {
    if (s && strnlen(s, kLargestText + 1) > kLargestText) abort();
}

std::vector<std::string> splitTexts(const uint8_t *data, size_t size) {
    std::vector<std::string> texts;
    std::string rest((const char *)data, size);
    size_t start = 0;
    while (texts.size() < 4) {
        size_t end = rest.find('\0', start);
        texts.push_back(rest.substr(start, end == std::string::npos ? end : end - start));
        if (end == std::string::npos) break;
        start = end + 1;
    }
    texts.resize(4);
    return texts;
}

void configure(AxisImpl &axis, const uint8_t *h, const double *v,
               const std::vector<std::string> &texts) {
    AxisOrientation o;
    o.alignment = h[1] % 10;
    o.angle = (int8_t)h[2] * 3;
    o.labelAngle = (int8_t)h[3] * 2;
    axis.setOrientation(o);
    axis.setLength((int8_t)h[4] * 8);
    axis.setMargin(h[5] % 16, h[6] % 16);
    axis.setTickDensity((int8_t)h[7], (int8_t)h[8]);
    if (h[9] & 1) axis.setRounding(h[9] & 2, h[9] & 4);
    if (h[9] & 8) axis.setAutoScale(v[2] / 8, v[3] / 8, v[4]);
    if (h[9] & 16) axis.setMinTickInc(v[5]);
    if (h[9] & 32) axis.setReverse(true);
    if (h[9] & 64) axis.setIndent(true);

    const char *labels[3] = {texts[0].c_str(), texts[1].c_str(), texts[3].c_str()};
    switch (h[0] % 12) {
        case 0:
            axis.setLinearScale(v[2], v[3], v[4], v[5]);
            break;
        case 1:
            axis.setLogScale(v[2], v[3], v[4], v[5]);
            break;
        case 2:
            axis.setDateScale(v[2], v[3], v[4], v[5]);
            break;
        case 3:
            axis.setLinearScale2(v[2], v[3], StringArray(labels, 3));
            break;
        case 4:
            axis.setLogScale2(v[2], v[3], StringArray(labels, 3));
            break;
        case 5:
            axis.setDateScale2(v[2], v[3], StringArray(labels, 3));
            break;
        case 6:
            axis.setLogScale3(texts[1].c_str());
            break;
        case 7:
            axis.setDateScale3(texts[1].c_str());
            break;
        case 8:
            axis.setLabels(StringArray(labels, h[10] % 4));
            break;
        case 9:
            axis.setLabels2(DoubleArray(v, (int)kNumbers), texts[1].c_str());
            break;
        case 10:
            axis.setLinearScale(v[2], kNoValue, 0, 0);
            break;
        default:
            break;
    }
    if (h[11] & 1) axis.setLabelFormat(texts[1].c_str());
    if (h[11] & 2) axis.setFormatCondition(texts[2].c_str(), v[5]);
    if (h[11] & 4) {
        int filter = Chart::encodeFilter(h[12] % 13, h[13], h[14] / 255.0);
        axis.setMultiFormat2(filter, texts[1].c_str(), (int8_t)h[15], h[11] & 8);
    }
    if (h[11] & 16) axis.addLabel(v[5], texts[0].c_str());
    if (h[11] & 32) axis.setLabelStep((int8_t)h[12], (int8_t)h[13], (int8_t)h[14], -2147483647);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size < kHeader + kNumbers * 8 || size > 4096) return 0;
    const uint8_t *h = data;
    double v[kNumbers];
    memcpy(v, data + kHeader, sizeof(v));
    std::vector<std::string> texts =
        splitTexts(data + kHeader + sizeof(v), size - kHeader - sizeof(v));

    Formatter chartFormatter;
    AxisImpl *axis = AxisImpl::of(Axis::create(nullptr, nullptr, &chartFormatter));
    AxisImpl *other = AxisImpl::of(Axis::create(nullptr, nullptr, &chartFormatter));
    configure(*axis, h, v, texts);
    switch (h[10] >> 5) {
        case 1:
            other->syncAxis(axis, v[4], v[5]);
            break;
        case 2:
            other->syncScale(axis, v[4], v[5]);
            break;
        case 3:
            other->copyAxis(axis);
            break;
        case 4:
            other->syncAxis(axis, 1, 0), axis->syncAxis(other, 1, 0);
            break;
        default:
            break;
    }
    axis->layoutScale(v[0], v[1]);
    other->layoutScale(v[1], v[0]);

    for (AxisImpl *a : {axis, other}) {
        if (a->getTickMap().size() > 3 * TickGenerator::kMaxTicks + 16) abort();
        for (const auto &tick : a->getTickMap()) {
            checkBounded(tick.second.text.c_str());
            a->getCoor(tick.first);
        }
        DoubleArray ticks = a->getTicks();
        if (ticks.len) checkBounded(a->getLabel(ticks.data[0]));
        checkBounded(a->getFormattedLabel(v[0], texts[3].c_str()));
        a->getCoor(v[1]);
    }
    axis->destroy();
    other->destroy();
    return 0;
}

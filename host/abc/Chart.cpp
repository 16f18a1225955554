#include "host/abc/Chart.h"

#include "api/CDrawArea.h"

namespace abc {

const char *Chart::testFont(const char *font, int fontIndex, double fontHeight, double fontWidth) {
    static thread_local char report[2048];
    report[0] = 0;
    CDrawArea_testFont(font, fontIndex, fontHeight, fontWidth, report);
    return report;
}

}  // namespace abc

#include "families/pie/SectorLegend.h"

#include "families/pie/PieChartImpl.h"

std::string SectorLegend::getText(const char *templateText, int flags) {
    return chart->fillSectorTemplate(sector, templateText, flags);
}

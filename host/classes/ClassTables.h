#pragma once

#include "host/glue/ClassRegistry.h"

// The declaration tables of the classes that have them so far.
extern const ClassTables kBaseChartTables;
extern const ClassTables kDrawAreaTables;
extern const ClassTables kTTFTextTables;
extern const ClassTables kArrayTables;
extern const ClassTables kMultiChartTables;
extern const ClassTables kDrawObjTables;
extern const ClassTables kBoxTables;
extern const ClassTables kTextBoxTables;
extern const ClassTables kLineTables;
extern const ClassTables kLegendBoxTables;
extern const ClassTables kAxisTables;
extern const ClassTables kXYChartTables;
extern const ClassTables kPlotAreaTables;
extern const ClassTables kLayerTables;
extern const ClassTables kBarLayerTables;
extern const ClassTables kLineLayerTables;
extern const ClassTables kAreaLayerTables;
extern const ClassTables kDataSetTables;
extern const ClassTables kMarkTables;
extern const ClassTables kLineObjTables;
extern const ClassTables kPieChartTables;
extern const ClassTables kSectorTables;

// The constants registered on VSBaseChartXPG: name and value as the host
// language writes it.
struct ConstantValue {
    const char *name;
    const char *literal;
};
extern const ConstantValue kChartConstants[];
extern const int kChartConstantCount;

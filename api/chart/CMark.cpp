#include "api/chart/CMark.h"

#include "api/chart/ChartHandles.h"
#include "chart/axis/paint/LineObj.h"
#include "chart/axis/paint/Mark.h"

using vistrel_api::E;
using vistrel_api::H;

CTextBox *CMark_toTextBox(CMark *m) {
    return m ? H(static_cast<TextBox *>(E(m))) : nullptr;
}
void CMark_setValue(CMark *m, double value) {
    if (m) E(m)->setValue(value);
}
void CMark_setMarkColor(CMark *m, int lineColor, int textColor, int tickColor) {
    if (m) E(m)->setMarkColor(lineColor, textColor, tickColor);
}
void CMark_setLineWidth(CMark *m, int width) {
    if (m) E(m)->setLineWidth(width);
}
void CMark_setDrawOnTop(CMark *m, bool onTop) {
    if (m) E(m)->setDrawOnTop(onTop);
}
CLineObj *CMark_getLine(CMark *m) {
    return m ? H(E(m)->getLine()) : nullptr;
}

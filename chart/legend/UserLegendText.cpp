#include "chart/legend/UserLegendText.h"

#include <cstring>

#include "text/template/VSParser.h"

std::string UserLegendText::getText(const char *templateText, int flags) {
    VSParser parser(templateText, flags);
    while (const char *name = parser.getNextAttr())
        if (!strcmp(name, "dataSetName") || !strcmp(name, "label"))
            parser.replaceAttr(text.c_str());
    return parser.getResult(nullptr);
}

#include "host/classes/ClassReference.h"

#include "host/classes/ClassList.h"

namespace {

void appendMethods(std::string &out, const char *heading, TableSpan<MethodEntry> table) {
    if (!table.count) return;
    out += std::string("  ") + heading + "\n";
    for (int i = 0; i < table.count; ++i)
        out += std::string("    ") + table.items[i].declaration + "\n";
}

void appendProperties(std::string &out, const char *heading, TableSpan<PropertyEntry> table) {
    if (!table.count) return;
    out += std::string("  ") + heading + "\n";
    for (int i = 0; i < table.count; ++i)
        out += std::string("    ") + table.items[i].name + " as " + table.items[i].type +
               (table.items[i].setter ? "\n" : " (read-only)\n");
}

}  // namespace

std::string classReference() {
    std::string out;
    int registered = 0, target = 0;
    for (int c = 0; c < kClassCount; ++c) {
        const ClassSpec &spec = classSpec(c);
        const ClassTables *t = spec.tables;
        int methods = t ? t->methods.count : 0;
        registered += methods;
        target += spec.targetMethods;
        out += std::to_string(c + 1) + ". " + spec.name;
        if (spec.superName) out += std::string(" inherits ") + spec.superName;
        out +=
            "\n  block: " +
            (spec.dataSize ? std::to_string(spec.dataSize) + " bytes" : std::string("its root's")) +
            "; methods " + std::to_string(methods) + " of " + std::to_string(spec.targetMethods) +
            "\n";
        if (!t) continue;
        appendMethods(out, "methods:", t->methods);
        appendProperties(out, "properties:", t->properties);
        appendMethods(out, "shared methods:", t->sharedMethods);
        appendProperties(out, "shared properties:", t->sharedProperties);
        if (t->constants.count) out += "  constants:\n";
        for (int i = 0; i < t->constants.count; ++i)
            out += std::string("    ") + t->constants.items[i].declaration + "\n";
    }
    return std::to_string(kClassCount) + " classes, " + std::to_string(registered) + " of " +
           std::to_string(target) + " methods registered\n\n" + out;
}

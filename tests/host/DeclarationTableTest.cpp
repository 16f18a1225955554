#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/classes/ClassList.h"
#include "host/classes/Registration.h"
#include "tests/host/simhost/Declaration.h"

using simhost::Declaration;
using simhost::XojoType;

namespace {

// The C code a parameter or result of that type arrives as.
char codeOf(const XojoType &t) {
    if (t.isArray) return 'a';
    if (t.name == "integer") return 'i';
    if (t.name == "double") return 'd';
    if (t.name == "boolean") return 'b';
    if (t.name == "color") return 'c';
    if (t.name == "string") return 's';
    return 'o';
}

std::string expectedSignature(const Declaration &d, bool instance) {
    std::string s(1, d.hasResult ? codeOf(d.result) : 'v');
    s += ':';
    if (instance) s += 'o';
    for (const simhost::Param &p : d.params) s += codeOf(p.type);
    return s;
}

struct TableCheck {
    std::vector<Declaration> declarations;
    void check(TableSpan<MethodEntry> table, bool instance) {
        for (int i = 0; i < table.count; ++i) {
            const MethodEntry &e = table.items[i];
            SCOPED_TRACE(e.declaration);
            Declaration d;
            std::string error;
            ASSERT_TRUE(simhost::parseDeclaration(e.declaration, d, error)) << error;
            EXPECT_NE(nullptr, e.function);
            EXPECT_EQ(expectedSignature(d, instance), e.signature);
            declarations.push_back(d);
        }
    }
};

bool sameTypes(const Declaration &a, const Declaration &b, size_t n) {
    for (size_t i = 0; i < n; ++i)
        if (a.params[i].type.name != b.params[i].type.name ||
            a.params[i].type.isArray != b.params[i].type.isArray)
            return false;
    return true;
}

size_t required(const Declaration &d) {
    size_t n = 0;
    while (n < d.params.size() && !d.params[n].hasDefault) ++n;
    return n;
}

// Two overloads that a call with the same argument types would both fit.
bool ambiguous(const Declaration &a, const Declaration &b) {
    if (simhost::lowerCase(a.name) != simhost::lowerCase(b.name)) return false;
    size_t from = std::max(required(a), required(b));
    size_t to = std::min(a.params.size(), b.params.size());
    for (size_t n = from; n <= to; ++n)
        if (sameTypes(a, b, n)) return true;
    return false;
}

}  // namespace

// Each declaration fits the C shape of the glue behind it, and no two overloads
// of a class can be confused by a call.
TEST(DeclarationTables, DeclarationsMatchTheirGlue) {
    for (int c = 0; c < kClassCount; ++c) {
        const ClassSpec &spec = classSpec(c);
        SCOPED_TRACE(spec.name);
        if (!spec.tables) continue;
        TableCheck instance, shared;
        instance.check(spec.tables->methods, true);
        shared.check(spec.tables->sharedMethods, false);
        for (const TableCheck *t : {&instance, &shared})
            for (size_t i = 0; i < t->declarations.size(); ++i)
                for (size_t j = i + 1; j < t->declarations.size(); ++j)
                    EXPECT_FALSE(ambiguous(t->declarations[i], t->declarations[j]))
                        << t->declarations[i].name << " overloads " << i << " and " << j;
        for (int p = 0; p < spec.tables->properties.count; ++p) {
            const PropertyEntry &e = spec.tables->properties.items[p];
            EXPECT_EQ(std::string(1, codeOf(XojoType{simhost::lowerCase(e.type)})) + ":oi",
                      e.getterSignature);
        }
        for (int p = 0; p < spec.tables->sharedProperties.count; ++p) {
            const PropertyEntry &e = spec.tables->sharedProperties.items[p];
            EXPECT_EQ(std::string(1, codeOf(XojoType{simhost::lowerCase(e.type)})) + ":",
                      e.getterSignature);
        }
    }
}

TEST(DeclarationTables, BlocksAndRoots) {
    for (int c = 0; c < kClassCount; ++c) {
        const ClassSpec &spec = classSpec(c);
        SCOPED_TRACE(spec.name);
        ClassId root = rootOf(ClassId(c));
        // A class uses a block of its own or its root's; only the exception has none.
        if (spec.dataSize == 0 && root == ClassId(c)) {
            EXPECT_EQ(ClassId::NotInitialzedException, root);
        } else {
            EXPECT_GT(classSpec(root).dataSize, 0u);
        }
        if (spec.dataSize > 0) {
            ASSERT_NE(nullptr, spec.tables);
        }
    }
    EXPECT_EQ(ClassId::BaseChart, rootOf(ClassId::FinanceChart));
    EXPECT_EQ(ClassId::Layer, rootOf(ClassId::ScatterLayer));
    EXPECT_EQ(ClassId::DrawObj, rootOf(ClassId::LegendBox));
    EXPECT_EQ(ClassId::PolarLayer, rootOf(ClassId::PolarSplineAreaLayer));
    EXPECT_EQ(ClassId::Axis, rootOf(ClassId::ColorAxis));
}

TEST(DeclarationTables, OldHostsLoseTheClosingOverloads) {
    const MethodEntry table[] = {
        {"a()", nullptr, "v:o", 0, 0},
        {"b()", nullptr, "v:o", 0, 2012.0},
        {"c(d as DateTime)", nullptr, "v:oo", 0, 2019.02},
    };
    TableSpan<MethodEntry> span = {table, 3};
    EXPECT_EQ(1, registeredCount(span, 2011.4));
    EXPECT_EQ(2, registeredCount(span, 2018.01));
    EXPECT_EQ(3, registeredCount(span, 2019.02));
    EXPECT_EQ(4u, flagsForHost(0x308, 2019.0));
    EXPECT_EQ(0x308u, flagsForHost(0x308, 2020.02));
    EXPECT_EQ(0x708u, flagsForHost(0x708, 2019.0));
    EXPECT_EQ(4u, flagsForHost(0x40000, 2010.029));
    EXPECT_EQ(0u, flagsForHost(0x40000, 2010.0));
    EXPECT_EQ(13, controlVersionFor(2013.04));
    EXPECT_EQ(11, controlVersionFor(2013.01));
    EXPECT_EQ(10, controlVersionFor(2012.0));
    EXPECT_EQ(9, controlVersionFor(2011.99));
}

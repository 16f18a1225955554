#include <unistd.h>

#include <cstdio>
#include <string>

#include "tests/host/HostTestSupport.h"

using simhost::B;
using simhost::D;
using simhost::I;
using simhost::S;
using simhost::SimClass;
using simhost::SimMethod;

namespace {

bool hasConstructor(const SimClass *c) {
    for (const SimMethod &m : c->methods)
        if (simhost::lowerCase(m.decl.name) == "constructor") return true;
    return false;
}

// What the process writes to the standard error stream while it lives.
class StderrCapture {
public:
    StderrCapture() : file(tmpfile()), saved(dup(2)) {
        fflush(stderr);
        dup2(fileno(file), 2);
    }
    ~StderrCapture() { fclose(file); }
    std::string text() {
        fflush(stderr);
        dup2(saved, 2);
        close(saved);
        std::string out;
        rewind(file);
        char buf[512];
        for (size_t n; (n = fread(buf, 1, sizeof buf, file)) > 0;) out.append(buf, n);
        return out;
    }

private:
    FILE *file;
    int saved;
};

}  // namespace

// Classes without a Constructor come only from factories: made with New, every
// method raises the not-initialized exception.
TEST_F(HostTest, ObjectsWithoutEngineObjectRaiseOnEveryMethod) {
    int checked = 0;
    for (const SimClass *c : host->pluginClasses()) {
        if (c->methods.empty() || hasConstructor(c)) continue;
        Value obj = make(c->name);
        for (const SimMethod &m : c->methods) {
            SCOPED_TRACE(m.text);
            CallResult r = host->callWithZeros(obj, m);
            ASSERT_TRUE(r.raised);
            EXPECT_EQ("VSNotInitialzedExceptionXPG", r.exception.className);
            EXPECT_EQ("Object not initialzed correctly.", r.exception.message);
            EXPECT_EQ(1536, r.exception.errorNumber);
            ++checked;
        }
    }
    EXPECT_EQ(346, checked);
}

// Host arrays that claim more items than memory holds.  An allocation the
// system refuses fails the same way, but the address and thread sanitizers stop
// the process on such a request instead of throwing, so that case runs only without.
TEST_F(HostTest, FailedAllocationBecomesOutOfMemoryException) {
    std::vector<int64_t> claims = {int64_t(1) << 61};
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    claims.push_back(int64_t(1) << 40);
#endif
    for (int64_t claim : claims) {
        CallResult r = host->create("VSArrayXPG", {host->claimingDoubleArray(claim)});
        ASSERT_TRUE(r.raised);
        EXPECT_EQ("OutOfMemoryException", r.exception.className);
        EXPECT_EQ("Failed to allocate memory: std::bad_alloc", r.exception.message);
        EXPECT_EQ(1536, r.exception.errorNumber);

        // The object that was there stays as it was.
        Value a = make("VSArrayXPG", {host->doubles({1, 2})});
        r = host->call(a, "addArray", {host->claimingDoubleArray(claim)});
        EXPECT_TRUE(r.raised);
        EXPECT_EQ((std::vector<double>{1, 2}), host->doublesOf(call(a, "Values")));
    }
}

// A host that lacks a runtime function: the call through it does nothing.
TEST_F(HostTest, MissingHostFunctionsAreSkipped) {
    simhost::HostOptions options;
    options.missingFunctions = {"RuntimeRaiseException", "PluginDoubleArrayGetProc"};
    start(options);
    Value text = make("VSTTFTextXPG");
    CallResult r = host->call(text, "getWidth");
    EXPECT_FALSE(r.raised);
    EXPECT_EQ(0, r.value.i);
    Value a = make("VSArrayXPG", {host->doubles({4, 5})});
    EXPECT_EQ((std::vector<double>{0, 0}), host->doublesOf(call(a, "Values")));
}

TEST_F(HostTest, DebuggingLogsEachCall) {
    Value d = make("VSDrawAreaXPG");
    StderrCapture capture;
    EXPECT_FALSE(ok(host->getSharedProperty("VSBaseChartXPG", "Debugging")).i);
    ok(host->setSharedProperty("VSBaseChartXPG", "Debugging", B(true)));
    call(d, "setSize", {I(10), I(10)});
    call(d, "setBgColor", {simhost::C(0xff0000)});
    host->call(make("VSTTFTextXPG"), "getHeight");
    shared("LogMessage", {S("from the application")});
    Value chart = make("VSMultiChartXPG", {I(20), I(20)});
    call(chart, "addTitle", {S("t")});
    chart = Value();
    shared("setDebugging", {B(false)});
    call(d, "setSize", {I(10), I(10)});
    std::string log = capture.text();
    EXPECT_NE(std::string::npos, log.find("XPG Debug: XPG debug logging enabled.\n"));
    EXPECT_NE(std::string::npos, log.find("XPG Debug: setSize 0x"));
    EXPECT_NE(std::string::npos, log.find("XPG Debug: setBgColorC 0x"));
    EXPECT_NE(std::string::npos, log.find("XPG Debug: getHeight (nil)\n"));
    EXPECT_NE(std::string::npos, log.find("XPG Debug: RaiseNotInitialzed ttftext\n"));
    EXPECT_NE(std::string::npos, log.find("XPG Debug: LogMessage\n"));
    EXPECT_NE(std::string::npos, log.find("XPG Debug: from the application\n"));
    EXPECT_NE(std::string::npos, log.find("XPG Debug: setDebugging\n"));
    for (const char *line : {"XPG Debug: addTitle 0x", "XPG Debug: return new 0x",
                             "XPG Debug: Delete... 0x", "XPG Debug: deleted.\n"})
        EXPECT_NE(std::string::npos, log.find(line)) << line;
    // Nothing after the switch-off.
    EXPECT_EQ(log.rfind("setSize"), log.find("setSize"));
}

// Whatever the order in which the application lets go, nothing stays alive.
TEST_F(HostTest, NothingOutlivesTheHostReferences) {
    Value d = make("VSDrawAreaXPG");
    call(d, "setSize", {I(40), I(20)});
    Value other = make("VSDrawAreaXPG");
    call(d, "setResource", {S("pane"), other});
    call(other, "setResource", {S("bytes"), host->memoryBlock("abc")});
    Value t1 = call(d, "text", {S("one"), S("arial.ttf"), D(8)});
    Value t2 = call(other, "text", {S("two"), S("arial.ttf"), D(8)});
    Value a = make("VSArrayXPG", {host->doubles({1, 2, 3})});
    Value sums = call(a, "aggregate", {host->doubles({1, 2, 3}), I(0)});
    d = Value();
    other = Value();
    call(t1, "draw", {I(1), I(1), I(0)});
    a = Value();
    EXPECT_EQ(3, call(sums, "count").i);
}

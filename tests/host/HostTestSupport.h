#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include "tests/host/simhost/SimHost.h"

// Symbols and texts are numbered by a counter of the process, and the plug-in
// has its own: numbered in the order they first appear, listings compare.
inline std::string renumbered(const std::string &listing) {
    static const std::regex id("(DefineSymbol|MergeWithScaling|MergeAtPoints|Text)\\((\\d+)");
    std::map<std::string, int> order;
    std::string out;
    auto last = listing.cbegin();
    for (std::sregex_iterator m(listing.begin(), listing.end(), id), end; m != end; ++m) {
        out.append(last, (*m)[2].first);
        auto found = order.emplace((*m)[2].str(), (int)order.size()).first;
        out += std::to_string(found->second);
        last = (*m)[2].second;
    }
    return out.append(last, listing.cend());
}

// A fresh simulated host per test, with the plug-in's globals back at their
// defaults; at the end nothing the test made may be left alive.
class HostTest : public ::testing::Test {
protected:
    using Value = simhost::Value;
    using CallResult = simhost::CallResult;

    void SetUp() override { start(simhost::HostOptions()); }

    void start(const simhost::HostOptions &options) {
        host.reset();
        host = std::make_unique<simhost::SimHost>(VISTREL_PLUGIN_PATH, options);
        ASSERT_TRUE(host->loaded()) << host->loadError();
        shared("setScaleFactor", {simhost::D(1)});
        shared("setDebugging", {simhost::B(false)});
    }

    void TearDown() override {
        if (!host) return;
        EXPECT_EQ(std::vector<std::string>(), host->liveObjects()) << "objects left alive";
        EXPECT_EQ(std::vector<std::string>(), host->misuse());
        host.reset();
    }

    // A call that must not raise.
    Value ok(CallResult r) {
        EXPECT_FALSE(r.raised) << r.exception.className << ": " << r.exception.message;
        return std::move(r.value);
    }
    Value make(const std::string &cls, std::vector<Value> args = {}) {
        return ok(host->create(cls, std::move(args)));
    }
    Value call(const Value &self, const std::string &m, std::vector<Value> args = {}) {
        return ok(host->call(self, m, std::move(args)));
    }
    Value shared(const std::string &m, std::vector<Value> args = {}) {
        return ok(host->callShared("VSBaseChartXPG", m, std::move(args)));
    }
    std::string listing(const Value &canvas) { return host->bytesOf(call(canvas, "outAGF2")); }

    std::unique_ptr<simhost::SimHost> host;
};

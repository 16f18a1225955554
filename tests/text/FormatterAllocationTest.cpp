#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "foundation/ChartStatics.h"
#include "text/template/Formatter.h"

// gcc 12 under -fsanitize=thread takes the replaced new and delete below, which
// both go to malloc and free, for a mismatched pair.
#pragma GCC diagnostic ignored "-Wpragmas"
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"

// Counts every allocation of the test program, so a test can ask whether a call made any.
namespace {
std::atomic<long> allocationCount{0};
}

void *operator new(size_t size) {
    ++allocationCount;
    if (void *p = malloc(size ? size : 1)) return p;
    throw std::bad_alloc();
}

void *operator new(size_t size, const std::nothrow_t &) noexcept {
    ++allocationCount;
    return malloc(size ? size : 1);
}

void operator delete(void *p, const std::nothrow_t &) noexcept {
    free(p);
}

void operator delete(void *p) noexcept {
    free(p);
}

void operator delete(void *p, size_t) noexcept {
    free(p);
}

TEST(Formatter, FormatAllocatesNothing) {
    Formatter chart;
    Formatter formatter;
    formatter.setDefault(&chart);
    const char *months[] = {"Januar", "Februar", "März"};
    chart.setMonthNames(months, 3);
    chart.setNumberFormat('.', ',', '-');
    const char *formats[] = {"",
                             "2,.",
                             "g",
                             "E5",
                             "p3",
                             "\x01",
                             "0",
                             "40",
                             "h:nna",
                             "w",
                             "mmm dd, yyyy hh:nn:ss.fff",
                             "MMM yyyy"};
    const double values[] = {0,       -0.001, 1234567.891, 1e300,
                             -5e-324, 0.256,  1e30,        Chart::chartTime(2024, 3, 9, 13, 5, 7)};
    long before = allocationCount;
    ::operator delete(::operator new(16));
    ASSERT_EQ(allocationCount - before, 1) << "the counter is not in place";
    before = allocationCount;
    size_t total = 0;
    for (const char *format : formats)
        for (double v : values) total += strlen(formatter.format(format, v));
    EXPECT_EQ(allocationCount - before, 0);
    EXPECT_GT(total, 0u);
}

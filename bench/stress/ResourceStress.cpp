// Stress runs for the cases that grow with their input: long noisy polylines,
// long wrapped texts, many font sizes and very large glyphs.  Each case runs in
// a child process of its own, so that the peak memory printed is that case's.
//
//   vistrel_stress                  every case at its default size
//   vistrel_stress CASE [N]         one case: points, wrap, sizes, bigglyphs
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"
#include "foundation/ArrayViews.h"
#include "tests/draw/BoundedRun.h"
#include "text/CanvasText.h"
#include "text/layout/TTFText.h"

namespace {

struct Case {
    const char *name;
    long defaultCount;
    const char *what;
    long (*run)(long n);  // returns a checksum, so that nothing is optimised away
};

// A time series of n points across 1000 pixels whose values jump at random.
long noisyPoints(long n) {
    std::vector<double> x((size_t)n), y((size_t)n);
    unsigned state = 12345;
    for (long i = 0; i < n; ++i) {
        state = state * 1103515245u + 12345u;
        x[(size_t)i] = 10 + 980.0 * (double)i / (double)(n > 1 ? n - 1 : 1);
        y[(size_t)i] = 10 + 580.0 * ((state >> 8) & 0xFFFF) / 65535.0;
    }
    DrawArea *d = DrawArea::create();
    d->setSize(1000, 600, 0xFFFFFF);
    d->rawPolyline(DoubleArray(x.data(), (int)n), DoubleArray(y.data(), (int)n), 0x3366CC, 1);
    long bytes = d->outPNG2().len;
    d->destroy();
    return bytes;
}

// One text of n characters, in words, wrapped at 300 pixels.
long wrappedText(long n) {
    static const char *const kWords[] = {"chart", "axis", "legend",    "value",   "series",
                                         "of",    "the",  "quarterly", "revenue", "plot"};
    std::string text;
    for (unsigned i = 0; (long)text.size() < n; ++i) {
        text += kWords[(i * 7) % 10];
        text += ' ';
    }
    text.resize((size_t)n);
    DrawArea *d = DrawArea::create();
    d->setSize(320, 200, 0xFFFFFF);
    TTFText *t = TTFText::create(d, text.c_str(), "arial.ttf", 0, 10, 0, 0, false, 1, 300, 0, 0);
    long height = t->getHeight();
    t->destroy();
    d->destroy();
    return height;
}

// n small charts, each drawn by draw(canvas, i) and encoded.
long drawCharts(long n, void (*draw)(DrawArea *d, long i)) {
    long total = 0;
    for (long i = 0; i < n; ++i) {
        DrawArea *d = DrawArea::create();
        d->setSize(400, 300, 0xFFFFFF);
        draw(d, i);
        total += d->outPNG2().len;
        d->destroy();
    }
    return total;
}

// Each chart with its title and labels at a font size of its own.
long distinctSizes(long n) {
    return drawCharts(n, [](DrawArea *d, long i) {
        double height = 8 + 0.05 * (double)(i % 400), width = 8 + 0.05 * (double)(i / 400);
        d->text4("Quarterly revenue by region", "arial.ttf", 0, height, width, 0, false, 200, 10,
                 0x000000, 8);
        d->text4("North 1,234.5  South 987.6  East 2,345.1", "arialbd.ttf", 0, height, width, 0,
                 false, 10, 150, 0x333333, 7);
    });
}

// Each chart with one letter at 4096 points.
long bigGlyphs(long n) {
    return drawCharts(n, [](DrawArea *d, long i) {
        char letter[2] = {(char)('!' + i % 90), 0};
        d->text4(letter, "arial.ttf", 0, 4096, 0, 0, false, 0, 0, 0x000000, 7);
    });
}

const Case kCases[] = {
    {"points", 1000000, "noisy polyline, points", noisyPoints},
    {"wrap", 1000000, "wrapped text, characters", wrappedText},
    {"sizes", 10000, "charts at distinct font sizes", distinctSizes},
    {"bigglyphs", 64, "letters at 4096 pt", bigGlyphs},
};

// Runs one case in a child; prints seconds, peak and final resident memory.
int runInChild(const Case &c, long n) {
    fflush(stdout);
    int pipeFd[2];
    if (pipe(pipeFd) != 0) return 1;
    auto start = std::chrono::steady_clock::now();
    pid_t pid = fork();
    if (pid == 0) {
        close(pipeFd[0]);
        CanvasText::install();
        long sum = c.run(n);
        long rss = bounded_run::residentKiB();
        long out[2] = {sum, rss};
        ssize_t written = write(pipeFd[1], out, sizeof out);
        _exit(written == (ssize_t)sizeof out ? 0 : 1);
    }
    close(pipeFd[1]);
    long out[2] = {0, 0};
    ssize_t got = read(pipeFd[0], out, sizeof out);
    close(pipeFd[0]);
    int status = 0;
    struct rusage usage;
    memset(&usage, 0, sizeof usage);
    wait4(pid, &status, 0, &usage);
    double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    bool ok = got == (ssize_t)sizeof out && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    printf("%-10s %10ld  %-32s %8.2f s  peak %8.1f MB  end %8.1f MB%s\n", c.name, n, c.what,
           seconds, usage.ru_maxrss / 1024.0, out[1] / 1024.0, ok ? "" : "  FAILED");
    return ok ? 0 : 1;
}

}  // namespace

int main(int argc, char **argv) {
    int failures = 0;
    for (const Case &c : kCases) {
        if (argc > 1 && strcmp(argv[1], c.name) != 0) continue;
        long n = argc > 2 ? atol(argv[2]) : c.defaultCount;
        failures += runInChild(c, n > 0 ? n : c.defaultCount);
    }
    return failures == 0 ? 0 : 1;
}

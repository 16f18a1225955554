#pragma once

// Helpers of the SVG and PDF tests: the outputs as text, a small reader of the
// PDF file structure, and the outside readers (qpdf, poppler, librsvg).

#include <unistd.h>
#include <zlib.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "draw/canvas/DrawArea.h"

namespace vectortest {

inline std::string svgOf(DrawArea *d, const char *options = "") {
    MemBlock b = d->outSVG2(options);
    return std::string(b.data ? b.data : "", b.len);
}

inline std::string pdfOf(DrawArea *d, const char *options = "") {
    d->setOutputOptions(options);
    MemBlock b = d->outPDF2();
    return std::string(b.data ? b.data : "", b.len);
}

inline size_t countOf(const std::string &text, const std::string &part) {
    size_t n = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++n;
    return n;
}

// Inflates zlib (windowBits 15) or gzip (31) data; empty on error.
inline std::string inflateBytes(const std::string &in, int windowBits) {
    z_stream z{};
    if (inflateInit2(&z, windowBits) != Z_OK) return std::string();
    std::string out;
    z.next_in = (Bytef *)in.data();
    z.avail_in = (uInt)in.size();
    char buf[65536];
    int rc;
    do {
        z.next_out = (Bytef *)buf;
        z.avail_out = sizeof buf;
        rc = inflate(&z, Z_NO_FLUSH);
        out.append(buf, sizeof buf - z.avail_out);
    } while (rc == Z_OK);
    inflateEnd(&z);
    return rc == Z_STREAM_END ? out : std::string();
}

// The objects of a PDF file as this back end writes them: "n 0 obj\n<<...>>",
// a stream after some, found through the cross-reference table.
class PdfReader {
public:
    explicit PdfReader(const std::string &file) : file(file) {
        size_t start = file.rfind("startxref\n");
        if (start == std::string::npos) return;
        size_t xref = std::strtoul(file.c_str() + start + 10, nullptr, 10);
        if (file.compare(xref, 5, "xref\n") != 0) return;
        int count = std::atoi(file.c_str() + xref + 7);
        size_t line = file.find('\n', xref + 5) + 1 + 20;  // past the free entry
        for (int id = 1; id < count; ++id, line += 20)
            offsets[id] = std::strtoul(file.c_str() + line, nullptr, 10);
        valid = true;
    }
    bool isValid() const { return valid; }
    int count() const { return (int)offsets.size(); }
    // True when the entry of each object points at "id 0 obj".
    bool offsetsMatch() const {
        for (const auto &o : offsets) {
            std::string head = std::to_string(o.first) + " 0 obj\n";
            if (file.compare(o.second, head.size(), head) != 0) return false;
        }
        return valid && !offsets.empty();
    }
    std::string dictionary(int id) const {
        auto it = offsets.find(id);
        if (it == offsets.end()) return std::string();
        size_t open = file.find("<<", it->second), end = file.find("endobj", open);
        size_t streamAt = file.find(">>\nstream\n", open);
        size_t close =
            streamAt != std::string::npos && streamAt < end ? streamAt : file.rfind(">>", end);
        return file.substr(open + 2, close - open - 2);
    }
    // The stream's bytes, inflated when they are Flate-compressed.
    std::string stream(int id) const {
        auto it = offsets.find(id);
        if (it == offsets.end()) return std::string();
        size_t end = file.find("endobj", it->second);
        size_t at = file.find(">>\nstream\n", it->second);
        if (at == std::string::npos || at > end) return std::string();
        at += 10;
        size_t stop = file.rfind("\nendstream", end);
        std::string raw = file.substr(at, stop - at);
        return dictionary(id).find("/FlateDecode") != std::string::npos ? inflateBytes(raw, 15)
                                                                        : raw;
    }
    // The first object whose dictionary holds `part`, or 0.
    int find(const std::string &part) const {
        for (const auto &o : offsets)
            if (dictionary(o.first).find(part) != std::string::npos) return o.first;
        return 0;
    }
    std::vector<int> findAll(const std::string &part) const {
        std::vector<int> ids;
        for (const auto &o : offsets)
            if (dictionary(o.first).find(part) != std::string::npos) ids.push_back(o.first);
        return ids;
    }

private:
    const std::string &file;
    std::map<int, size_t> offsets;
    bool valid = false;
};

// ---- Outside readers

inline bool hasTool(const char *name) {
    std::string cmd = std::string("command -v ") + name + " >/dev/null 2>&1";
    return std::system(cmd.c_str()) == 0;
}

// The command's exit status; its output goes to `output` when given.
inline int run(const std::string &command, std::string *output = nullptr) {
    FILE *p = popen((command + " 2>&1").c_str(), "r");
    if (!p) return -1;
    char buf[4096];
    size_t n;
    std::string out;
    while ((n = fread(buf, 1, sizeof buf, p)) > 0) out.append(buf, n);
    int status = pclose(p);
    if (output) *output = out;
    return status;
}

class TempFolder {
public:
    TempFolder() {
        char pattern[] = "/tmp/vector-test-XXXXXX";
        const char *made = mkdtemp(pattern);
        path = made ? made : "/tmp";
    }
    ~TempFolder() { run("rm -rf '" + path + "'"); }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;
    std::string file(const std::string &name) const { return path + "/" + name; }
    std::string write(const std::string &name, const std::string &bytes) const {
        std::string p = file(name);
        FILE *f = std::fopen(p.c_str(), "wb");
        if (f) {
            std::fwrite(bytes.data(), 1, bytes.size(), f);
            std::fclose(f);
        }
        return p;
    }
    std::string path;
};

inline std::string readFile(const std::string &path) {
    std::string s;
    FILE *f = std::fopen(path.c_str(), "rb");
    if (!f) return s;
    char buf[65536];
    size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) s.append(buf, n);
    std::fclose(f);
    return s;
}

}  // namespace vectortest

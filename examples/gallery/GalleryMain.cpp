// Renders every registered sample and writes index.html beside the pictures.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

#include "examples/gallery/Gallery.h"

static std::string htmlEscape(const char *s) {
    std::string out;
    for (; *s; ++s) {
        switch (*s) {
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '&':
                out += "&amp;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += *s;
        }
    }
    return out;
}

static bool endsWith(const std::string &name, const char *ext) {
    size_t n = strlen(ext);
    return name.size() > n && name.compare(name.size() - n, n, ext) == 0;
}

static bool isPicture(const std::string &name) {
    for (const char *ext : {".png", ".jpg", ".gif", ".bmp", ".svg"})
        if (endsWith(name, ext)) return true;
    return false;
}

// The vector outputs every PNG sample is written in as well; the SVG first.
static const char *const kVectorEndings[] = {".svg", ".svgz", ".pdf"};
// The example programs users copy (examples/c, examples/cpp), copied beside the
// page and linked from it.
static std::string exampleLinks(const std::string &dir) {
    namespace fs = std::filesystem;
    std::string html =
        "<h2>Example programs</h2>\n<p>Programs that build against the installed "
        "library: the same canvas and chart through the C interface and through "
        "the C++ classes.</p>\n<ul>\n";
    for (const char *language : {"c", "cpp"}) {
        fs::path from = fs::path(VISTREL_SOURCE_DIR) / "examples" / language;
        fs::path to = fs::path(dir) / "examples" / language;
        std::error_code error;
        fs::create_directories(to, error);
        std::vector<std::string> names;
        for (const auto &entry : fs::directory_iterator(from, error))
            if (entry.is_regular_file()) names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        for (const std::string &name : names) {
            fs::copy_file(from / name, to / name, fs::copy_options::overwrite_existing, error);
            std::string link =
                htmlEscape(("examples/" + std::string(language) + "/" + name).c_str());
            html += "<li><a href=\"" + link + "\">" + link + "</a></li>\n";
        }
    }
    return html + "</ul>\n";
}

int main(int argc, char **argv) {
    std::string dir = argc > 1 ? argv[1] : "out/gallery";
    std::vector<GallerySample> samples = gallerySamples();
    std::stable_sort(samples.begin(), samples.end(),
                     [](const GallerySample &a, const GallerySample &b) {
                         return std::string(a.section) < b.section;
                     });

    std::string html =
        "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Vistrel gallery</title>\n"
        "<style>body{font-family:sans-serif;margin:2em;background:#f4f4f4}"
        ".s{display:inline-block;vertical-align:top;margin:8px;padding:8px;background:#fff;"
        "border:1px solid #ccc}.s img{display:inline-block;vertical-align:top;max-width:640px;"
        "margin-right:8px}</style></head><body>\n"
        "<h1>Vistrel gallery</h1>\n";
    html += exampleLinks(dir);
    int failures = 0;
    std::string section;
    for (const GallerySample &s : samples) {
        if (section != s.section) {
            section = s.section;
            html += "<h2>" + htmlEscape(s.section) + "</h2>\n";
        }
        std::string path = dir + "/" + s.fileName;
        bool ok = s.render(path);
        // A picture also goes out in the vector formats, shown beside it.
        std::vector<std::string> vectors;
        if (endsWith(s.fileName, ".png"))
            for (const char *ext : kVectorEndings) {
                std::string name = std::string(s.fileName, strlen(s.fileName) - 4) + ext;
                ok = s.render(dir + "/" + name) && ok;
                vectors.push_back(name);
            }
        if (!ok) {
            ++failures;
            std::fprintf(stderr, "gallery: sample '%s' failed\n", s.title);
        }
        html += "<div class=\"s\"><p>" + htmlEscape(s.title) + "</p>";
        std::string name = htmlEscape(s.fileName);
        if (isPicture(s.fileName)) {
            html +=
                "<div class=\"row\"><img src=\"" + name + "\" alt=\"" + htmlEscape(s.title) + "\">";
            if (!vectors.empty())
                html += "<img src=\"" + htmlEscape(vectors[0].c_str()) + "\" alt=\"SVG\">";
            html += "</div>";
        }
        html += "<a href=\"" + name + "\">" + name + "</a>";
        for (const std::string &v : vectors)
            html += " <a href=\"" + htmlEscape(v.c_str()) + "\">" + htmlEscape(v.c_str()) + "</a>";
        if (!ok) html += " <b>(failed)</b>";
        html += "</div>\n";
    }
    if (samples.empty()) html += "<p>No samples yet.</p>\n";
    html += "</body></html>\n";

    std::string index = dir + "/index.html";
    FILE *f = std::fopen(index.c_str(), "wb");
    if (!f) {
        std::fprintf(stderr, "gallery: cannot write %s\n", index.c_str());
        return 1;
    }
    std::fwrite(html.data(), 1, html.size(), f);
    std::fclose(f);
    std::printf("gallery: %d samples, %d failed\n", (int)samples.size(), failures);
    return failures ? 1 : 0;
}

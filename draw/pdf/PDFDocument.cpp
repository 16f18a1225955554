#include "draw/pdf/PDFDocument.h"

#include <cstdio>

#include "foundation/Codec.h"
#include "foundation/Stream.h"

namespace {

const int kFlateLevel = 6;
// Shorter streams are stored as they are: compressing them costs more than it saves.
const size_t kSmallestCompressed = 256;

std::string namesOf(const char *prefix, const std::set<int> &ids) {
    std::string s = "<<";
    char buf[48];
    for (int id : ids) {
        std::snprintf(buf, sizeof buf, "/%s%d %d 0 R", prefix, id, id);
        s += buf;
    }
    return s + ">>";
}

std::string nameOf(const char *prefix, int id) {
    char buf[24];
    std::snprintf(buf, sizeof buf, "/%s%d", prefix, id);
    return buf;
}

}  // namespace

PDFDocument::PDFDocument() : objects(1) {}

int PDFDocument::newObject() {
    objects.emplace_back();
    return (int)objects.size();
}

std::string PDFDocument::reference(int id) {
    char buf[24];
    std::snprintf(buf, sizeof buf, "%d 0 R", id);
    return buf;
}

void PDFDocument::setDictionary(int id, const std::string &entries) {
    if (id < 1 || id > (int)objects.size()) return;
    Object &o = objects[id - 1];
    o.entries = entries;
    o.hasStream = false;
    o.stream.clear();
}

void PDFDocument::setStream(int id, const std::string &entries, const std::string &bytes) {
    if (id < 1 || id > (int)objects.size()) return;
    Object &o = objects[id - 1];
    o.entries = entries;
    o.hasStream = true;
    o.compressed = false;
    o.stream = bytes;
    if (bytes.size() < kSmallestCompressed) return;
    std::string packed(qlx::getZlibBufferSize((int)bytes.size()), '\0');
    int n = qlx::zlibCompress(&packed[0], (int)packed.size(), bytes.data(), (int)bytes.size(),
                              kFlateLevel);
    if (n > 0 && n < (int)bytes.size()) {
        packed.resize(n);
        o.stream.swap(packed);
        o.compressed = true;
    }
}

std::string PDFDocument::xobject(int id) {
    xobjects.insert(id);
    return nameOf("X", id);
}

std::string PDFDocument::pattern(int id) {
    patterns.insert(id);
    return nameOf("P", id);
}

std::string PDFDocument::font(int id) {
    fonts.insert(id);
    return nameOf("F", id);
}

std::string PDFDocument::graphicsState(int id) {
    states.insert(id);
    return nameOf("G", id);
}

std::string PDFDocument::resourceEntries() const {
    return "/ProcSet[/PDF /Text /ImageB /ImageC]/XObject" + namesOf("X", xobjects) + "/ExtGState" +
           namesOf("G", states) + "/Pattern" + namesOf("P", patterns) + "/Font" +
           namesOf("F", fonts);
}

void PDFDocument::write(qlx::ostream &out, int catalog, int info) {
    setDictionary(kResources, resourceEntries());
    int start = out.tell();
    auto put = [&](const std::string &s) { out.write(s.data(), (int)s.size()); };
    put("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
    std::vector<int> offsets;
    char buf[160];
    for (size_t i = 0; i < objects.size(); ++i) {
        const Object &o = objects[i];
        offsets.push_back(out.tell() - start);
        std::snprintf(buf, sizeof buf, "%d 0 obj\n<<", (int)i + 1);
        put(buf);
        put(o.entries);
        if (o.hasStream) {
            if (o.compressed) put("/Filter/FlateDecode");
            std::snprintf(buf, sizeof buf, "/Length %d>>\nstream\n", (int)o.stream.size());
            put(buf);
            put(o.stream);
            put("\nendstream\n");
        } else {
            put(">>\n");
        }
        put("endobj\n");
    }
    int xref = out.tell() - start;
    std::snprintf(buf, sizeof buf, "xref\n0 %d\n0000000000 65535 f \n", (int)objects.size() + 1);
    put(buf);
    for (int offset : offsets) {
        std::snprintf(buf, sizeof buf, "%010d 00000 n \n", offset);
        put(buf);
    }
    std::snprintf(buf, sizeof buf,
                  "trailer\n<<\n/Size %d\n/Root %d 0 R\n/Info %d 0 R\n>>\nstartxref\n%d\n%%%%EOF",
                  (int)objects.size() + 1, catalog, info, xref);
    put(buf);
}

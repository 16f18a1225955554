#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "draw/canvas/DrawAreaImpl.h"
#include "draw/list/MetaDraw.h"
#include "foundation/Constants.h"
#include "foundation/Stream.h"
#include "tests/draw/canvas/DrawAreaTestSupport.h"

namespace {

typedef std::vector<unsigned char> Bytes;

Bytes pngHeader(unsigned w, unsigned h) {
    Bytes b = {137, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
    for (unsigned v : {w, h})
        for (int shift = 24; shift >= 0; shift -= 8) b.push_back((unsigned char)(v >> shift));
    return b;
}

Bytes gifHeader(int w, int h) {
    return {'G',
            'I',
            'F',
            '8',
            '9',
            'a',
            (unsigned char)w,
            (unsigned char)(w >> 8),
            (unsigned char)h,
            (unsigned char)(h >> 8)};
}

Bytes bmpHeader(int w, int h) {
    Bytes b(26, 0);
    b[0] = 'B';
    b[1] = 'M';
    for (int i = 0; i < 4; ++i) {
        b[18 + i] = (unsigned char)((unsigned)w >> (8 * i));
        b[22 + i] = (unsigned char)((unsigned)h >> (8 * i));
    }
    return b;
}

// SOI, an APP0 segment of the given length word, padding 255s, then SOF2.
Bytes jpegHeader(int w, int h) {
    Bytes b = {255, 216, 255, 224, 0, 6, 'J', 'F', 'I', 'F', 255, 255, 255, 194, 0, 11, 8};
    b.push_back((unsigned char)(h >> 8));
    b.push_back((unsigned char)h);
    b.push_back((unsigned char)(w >> 8));
    b.push_back((unsigned char)w);
    b.push_back(3);
    return b;
}

std::pair<int, int> sizeOf(const Bytes &b, int len = -1) {
    int w = -1, h = -1;
    DrawArea::getImageSize(len < 0 ? (int)b.size() : len, (const char *)b.data(), &w, &h);
    return {w, h};
}

int typeOf(const Bytes &b) {
    return DrawArea::getImageType((int)b.size(), (const char *)b.data());
}

// A scratch directory removed with its files at the end of the test.
class TempDir {
public:
    TempDir() {
        char pattern[] = "/tmp/drawarea-test-XXXXXX";
        path = mkdtemp(pattern);
    }
    ~TempDir() {
        for (const std::string &f : files) unlink(f.c_str());
        for (auto it = dirs.rbegin(); it != dirs.rend(); ++it) rmdir(it->c_str());
        rmdir(path.c_str());
    }
    std::string subdir(const std::string &name) {
        std::string p = path + "/" + name;
        mkdir(p.c_str(), 0700);
        dirs.push_back(p);
        return p;
    }
    std::string write(const std::string &name, const Bytes &bytes) {
        std::string p = path + "/" + name;
        FILE *f = fopen(p.c_str(), "wb");
        fwrite(bytes.data(), 1, bytes.size(), f);
        fclose(f);
        files.push_back(p);
        return p;
    }
    std::string file(const std::string &name) {
        files.push_back(path + "/" + name);
        return files.back();
    }
    std::string path;

private:
    std::vector<std::string> files, dirs;
};

std::string readAll(const std::string &path) {
    std::string s;
    FILE *f = fopen(path.c_str(), "rb");
    if (!f) return "<missing>";
    for (int c; (c = fgetc(f)) != EOF;) s += (char)c;
    fclose(f);
    return s;
}

std::string loadedBytes(DrawArea *c, const char *path, int limit = 1000) {
    int n = -1;
    char *data = c->loadFile(path, limit, &n);
    if (!data) return "<none>";
    std::string s(data, n);
    free(data);
    return s;
}

}  // namespace

TEST(DrawAreaImage, SniffTypes) {
    EXPECT_EQ(kPNG, typeOf(pngHeader(1, 1)));
    EXPECT_EQ(kGIF, typeOf(gifHeader(1, 1)));
    EXPECT_EQ(kBMP, typeOf({'B', 'M', 0}));
    EXPECT_EQ(-1, typeOf({'B', 'M'}));  // below 3 bytes
    EXPECT_EQ(kJPG, typeOf({255, 216, 255}));
    EXPECT_EQ(-1, typeOf({255, 216, 0}));
    EXPECT_EQ(-1, typeOf({'<', 's', 'v', 'g'}));
    EXPECT_EQ(-1, DrawArea::getImageType(10, nullptr));
}

TEST(DrawAreaImage, SniffSizes) {
    EXPECT_EQ(std::make_pair(300, 200), sizeOf(pngHeader(300, 200)));
    EXPECT_EQ(std::make_pair(0, 0), sizeOf(pngHeader(300, 200), 23));
    EXPECT_EQ(std::make_pair(0x1234, 0x0201), sizeOf(gifHeader(0x1234, 0x0201)));
    EXPECT_EQ(std::make_pair(0, 0), sizeOf(gifHeader(5, 5), 9));
    EXPECT_EQ(std::make_pair(640, -480), sizeOf(bmpHeader(640, -480)));
    EXPECT_EQ(std::make_pair(0, 0), sizeOf(bmpHeader(640, 480), 20));

    Bytes jpeg = jpegHeader(1024, 768);
    EXPECT_EQ(std::make_pair(1024, 768), sizeOf(jpeg));
    // Every truncation of the header fails cleanly.
    for (int len = 0; len < (int)jpeg.size() - 1; ++len)
        EXPECT_EQ(std::make_pair(0, 0), sizeOf(jpeg, len)) << len;
    // Start of scan before any frame, a short segment length, a missing frame.
    Bytes scan = {255, 216, 255, 218, 0, 11, 8, 1, 0, 1, 0, 3};
    EXPECT_EQ(std::make_pair(0, 0), sizeOf(scan));
    Bytes shortSegment = {255, 216, 255, 224, 0, 1, 255, 192, 0, 11, 8, 0, 5, 0, 5, 3};
    EXPECT_EQ(std::make_pair(0, 0), sizeOf(shortSegment));
    // DHT (196) isn't a frame marker, SOF15 (207) is.
    Bytes huffman = {255, 216, 255, 196, 0, 2, 255, 207, 0, 11, 8, 0, 7, 0, 9, 3};
    EXPECT_EQ(std::make_pair(9, 7), sizeOf(huffman));
}

TEST(DrawAreaImage, Load2) {
    CanvasHolder c;
    Bytes png = pngHeader(20, 10);
    EXPECT_TRUE(c->load2((int)png.size(), (const char *)png.data(), -1));
    EXPECT_EQ(20, c->getWidth());
    EXPECT_EQ(10, c->getHeight());
    int l, t, r, b;
    c->getClipRect(&l, &t, &r, &b);
    EXPECT_EQ(19, r);
    EXPECT_EQ(9, b);
    std::string listing = listingOf(c.get());
    EXPECT_NE(std::string::npos, listing.find("LoadStream("));
    EXPECT_NE(std::string::npos, listing.find(", 0, 20, 10)\n"));

    CanvasHolder d;
    EXPECT_FALSE(d->load2((int)png.size(), (const char *)png.data(), kGIF));
    EXPECT_TRUE(d->load2((int)png.size(), (const char *)png.data(), kPNG));
    Bytes topDown = bmpHeader(30, -30);
    EXPECT_FALSE(d->load2((int)topDown.size(), (const char *)topDown.data(), -1));
    Bytes empty = pngHeader(0, 30);
    EXPECT_FALSE(d->load2((int)empty.size(), (const char *)empty.data(), -1));
    Bytes huge = pngHeader(20000, 20000);  // above the default pixel limit
    EXPECT_FALSE(d->load2((int)huge.size(), (const char *)huge.data(), -1));
    Bytes negative = pngHeader(0x80000000u, 5);
    EXPECT_FALSE(d->load2((int)negative.size(), (const char *)negative.data(), -1));
    EXPECT_FALSE(d->load2(0, "", -1));
    EXPECT_FALSE(d->load2(5, nullptr, -1));
    EXPECT_EQ(20, d->getWidth());
}

TEST(DrawAreaImage, LoadFromFiles) {
    TempDir dir;
    Bytes gif = gifHeader(7, 9);
    std::string path = dir.write("a.gif", gif);
    CanvasHolder c;
    EXPECT_TRUE(c->load(path.c_str()));
    EXPECT_EQ(7, c->getWidth());
    EXPECT_TRUE(c->loadGIF(("  \t" + path).c_str()));
    EXPECT_FALSE(c->loadPNG(path.c_str()));
    EXPECT_FALSE(c->loadWMP(path.c_str()));
    Bytes wbmp = {0, 0, 7, 9};
    EXPECT_FALSE(c->loadWMP(dir.write("a.wbmp", wbmp).c_str()));
    EXPECT_FALSE(c->load((dir.path + "/missing.gif").c_str()));
    EXPECT_FALSE(c->load(""));
    EXPECT_FALSE(c->load(nullptr));
}

TEST(DrawAreaImage, SearchPath) {
    TempDir dir;
    std::string a = dir.subdir("a"), b = dir.subdir("b");
    dir.write("b/x.bin", {'B'});
    dir.write("a/y.bin", {'A', 'Y'});
    dir.write("b/y.bin", {'B', 'Y'});
    CanvasHolder c;
    c->setSearchPath((a + ";" + b + "/").c_str());
    EXPECT_EQ("B", loadedBytes(c.get(), "x.bin"));
    EXPECT_EQ("AY", loadedBytes(c.get(), "y.bin"));
    EXPECT_EQ("<none>", loadedBytes(c.get(), "z.bin"));
    // Without ';' the path splits at ':'.
    c->setSearchPath((b + ":" + a).c_str());
    EXPECT_EQ("BY", loadedBytes(c.get(), "y.bin"));
    // Absolute paths ignore the search path; the limit refuses larger files.
    EXPECT_EQ("AY", loadedBytes(c.get(), (a + "/y.bin").c_str()));
    EXPECT_EQ("<none>", loadedBytes(c.get(), (a + "/y.bin").c_str(), 1));

    // "@" in the search path finds resources, local before global.
    c->setSearchPath(("@;" + a).c_str());
    DrawArea::setGlobalResource("y.bin", "global", 6);
    EXPECT_EQ("global", loadedBytes(c.get(), "y.bin"));
    c->setResource("y.bin", "local", 5);
    EXPECT_EQ("local", loadedBytes(c.get(), "y.bin"));
    EXPECT_EQ("local", loadedBytes(c.get(), "@/y.bin"));
    c->setResource("y.bin", nullptr, 0);
    DrawArea::setGlobalResource("y.bin", nullptr, 0);
    EXPECT_EQ("AY", loadedBytes(c.get(), "y.bin"));
    EXPECT_EQ("<none>", loadedBytes(c.get(), "@/y.bin"));
}

TEST(DrawAreaImage, CanvasResources) {
    CanvasHolder c;
    DrawArea *r1 = DrawArea::create();
    DrawArea *r2 = DrawArea::create();
    c->setResource2("pic", r1);
    c->setResource2("pic", r2);  // releases r1's second reference
    r1->destroy();
    EXPECT_EQ(r2, c->getDrawAreaResource("pic"));
    EXPECT_EQ(nullptr, c->getDrawAreaResource("other"));
    DrawArea::setGlobalDrawAreaResource("other", r2);
    EXPECT_EQ(r2, c->getDrawAreaResource("other"));
    DrawArea::setGlobalDrawAreaResource("other", nullptr);
    c->setResource2("pic", nullptr);
    EXPECT_EQ(nullptr, c->getDrawAreaResource("pic"));
    r2->destroy();

    int n = -1;
    EXPECT_EQ(nullptr, c->getResourceData(nullptr, &n));
    EXPECT_EQ(nullptr, c->getResourceData("", &n));
    EXPECT_EQ(0, n);
}

namespace {

// A canvas whose vector output writes the name of what was asked for.
class FakeVectorCanvas : public DrawAreaImpl {
protected:
    bool playVector(int type, qlx::ostream &out) override {
        out << (type == kSVG ? "<svg>" : "%PDF");
        if (getMetaDraw()->getOption("bitmap")) out << "bitmap";
        return true;
    }
};

bool startsWith(const std::string &s, const std::string &head) {
    return s.compare(0, head.size(), head) == 0;
}

std::string block(MemBlock b) {
    return std::string(b.data ? b.data : "", b.len);
}

}  // namespace

TEST(DrawAreaImage, OutputByExtension) {
    TempDir dir;
    CanvasHolder plainCanvas;
    plainCanvas->setSize(3, 3, 0xffffff);
    EXPECT_TRUE(plainCanvas->out(dir.file("plain.svg").c_str()));
    EXPECT_TRUE(startsWith(readAll(dir.path + "/plain.svg"), "<?xml"));

    DrawArea *c = new FakeVectorCanvas();
    c->setSize(3, 3, 0xffffff);
    const std::string png(reinterpret_cast<const char *>(pngHeader(3, 3).data()), 24),
        gif("GIF87a\3\0\3\0", 10),  // no transparency: the older version
        wbmp("\0\0\3\3", 4),        // type 0, fixed header 0, then the size
        jpg80 = block(c->outJPG2(80));
    const struct {
        const char *name;
        std::string head;
    } cases[] = {
        {"a.PNG", png},    {"a.xyz", png},
        {"noext", png},    {"a.gif", gif},
        {"a.wbmp", wbmp},  {"a.wmp", wbmp},
        {"a.bmp", "BM"},   {"a.svg", "<svg>"},
        {"a.pdf", "%PDF"}, {"a.agf", "SetSize(3, 3, 0xffffff)\n"},
    };
    for (auto &k : cases) {
        std::string path = dir.file(k.name);
        EXPECT_TRUE(c->out(path.c_str())) << k.name;
        EXPECT_TRUE(startsWith(readAll(path), k.head)) << k.name;
    }
    for (const char *name : {"a.Jpeg", "a.jpg"}) {
        EXPECT_TRUE(c->out(dir.file(name).c_str()));
        EXPECT_EQ(jpg80, readAll(dir.file(name))) << name << " is quality 80";
    }
    EXPECT_TRUE(startsWith(jpg80, "\xff\xd8\xff"));
    EXPECT_NE(jpg80, block(c->outJPG2(55)));
    std::string svgzPath = dir.file("a.svgz");
    EXPECT_TRUE(c->out(svgzPath.c_str()));
    std::string svgz = readAll(svgzPath);
    ASSERT_GE(svgz.size(), 2u);
    EXPECT_EQ('\x1f', svgz[0]);
    EXPECT_EQ('\x8b', svgz[1]);
    EXPECT_FALSE(c->out("/nonexistent-dir/x.png"));
    EXPECT_FALSE(c->out(nullptr));

    // A canvas resource is read as its PNG encoding.
    CanvasHolder pic;
    pic->setSize(2, 2, 0x123456);
    c->setResource2("pic", pic.get());
    EXPECT_EQ(block(pic->outPNG2()), loadedBytes(c, "@/pic"));

    // Options hold for one output only.
    EXPECT_EQ("<svg>bitmap", block(c->outSVG2("bitmap")));
    EXPECT_EQ("<svg>", block(c->outSVG2("")));
    c->destroy();
}

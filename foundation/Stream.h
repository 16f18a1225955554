#pragma once

#include <cstdio>

namespace qlx {

// Abstract byte sink of every back end and text builder.  No number formatting:
// callers format into a local buffer and write bytes.
class ostream {
public:
    virtual ~ostream() {}
    virtual void write(const void *buf, int size) = 0;
    virtual ostream &operator<<(const char *s);
    virtual ostream &operator<<(char c) = 0;
    virtual int tell() = 0;
    virtual void flush() = 0;
    virtual bool ensureSize(int n) = 0;
};

// Growing memory buffer.
class ostrstream : public ostream {
public:
    ostrstream() : buffer(nullptr), end(nullptr), cursor(nullptr) {}
    ~ostrstream() override;
    ostrstream(const ostrstream &) = delete;
    ostrstream &operator=(const ostrstream &) = delete;

    void write(const void *buf, int size) override;
    using ostream::operator<<;
    ostream &operator<<(char c) override;
    int tell() override { return (int)(cursor - buffer); }
    void flush() override {}
    bool ensureSize(int n) override;
    virtual void ensureNullTerminated();

    const char *str() const { return buffer; }
    char *getBuffer() { return buffer; }
    int getCapacity() const { return (int)(end - buffer); }
    // Forgets the content but keeps the memory.
    void reset() { cursor = buffer; }
    // Moves the cursor back to an earlier length.
    void truncate(int len) {
        if (len >= 0 && len < tell()) cursor = buffer + len;
    }

private:
    char *buffer;
    char *end;
    char *cursor;
};

// C FILE sink; every operation is a no-op when the file could not be opened.
class ofstream : public ostream {
public:
    ofstream(const char *path, const char *mode = "wb");
    ~ofstream() override;
    ofstream(const ofstream &) = delete;
    ofstream &operator=(const ofstream &) = delete;

    bool isOpen() const { return file != nullptr; }
    void write(const void *buf, int size) override;
    using ostream::operator<<;
    ostream &operator<<(char c) override;
    int tell() override;
    void flush() override;
    bool ensureSize(int) override { return true; }

private:
    FILE *file;
};

}  // namespace qlx

#include "draw/list/MetaListing.h"

#include <cstdio>
#include <vector>

#include "draw/list/MetaDrawImpl.h"
#include "draw/list/MetaOpcodes.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/CLocale.h"
#include "foundation/Unicode.h"

namespace {

const char *const kPaletteNames[] = {"Chart.BackgroundColor", "Chart.LineColor", "Chart.TextColor"};

}  // namespace

void MetaListing::formatColor(char *buf, int size, int color) {
    unsigned w = (unsigned)color;
    unsigned index = w & 0xffffu;
    if (color == kTransparent) {
        std::snprintf(buf, size, "Chart.Transparent");
    } else if (w < 0x1000000u || (w >> 16) != 0xffffu || (w & 0x8000u)) {
        std::snprintf(buf, size, "0x%06x", w);
    } else if (index < 3) {
        std::snprintf(buf, size, "%s", kPaletteNames[index]);
    } else if (index >= 4 && index <= 6) {
        std::snprintf(buf, size, "Chart.ContextColor%u", index - 4);
    } else if (index == 7) {
        std::snprintf(buf, size, "Chart.SameAsMainColor");
    } else {
        std::snprintf(buf, size, "Chart.DataColor + %d", (int)index - 8);
    }
}

void MetaListing::write() {
    int pos = 0;
    for (;;) {
        int end = list->readEnd();
        int recordEnd;
        unsigned opcode;
        if (pos >= end || !metaRecordAt(list->streamWords(), pos, end, recordEnd, opcode)) break;
        if (!writeRecord(pos, recordEnd, opcode)) break;
        pos = recordEnd;
    }
}

void MetaListing::separate() {
    if (needSeparator) out << ", ";
    needSeparator = true;
}

// Kept until the record's line is closed; the first fault of a record wins.
void MetaListing::fault(const char *literal, const char *format, unsigned number) {
    if (pendingFault.empty())
        pendingFault = metaFaultMessage(literal, format, number, reader.remainingWords());
    reader.skipToEnd();
}

void MetaListing::writePendingFault() {
    if (pendingFault.empty()) return;
    out << "/* " << pendingFault.c_str() << "*/\n";
    pendingFault.clear();
}

bool MetaListing::writeRecord(int pos, int recordEnd, unsigned opcode) {
    reader.reset(list->streamWords(), pos + 2, recordEnd);
    const MetaRecordInfo *info = findMetaOpcode(opcode);
    if (!info) {
        fault(kFaultUnknownOpcode, nullptr, opcode);
        writePendingFault();
        return false;
    }
    out << info->name << "(";
    needSeparator = false;
    switch (opcode) {
        case kOpMultiLine:
            writeMultiLine();
            break;
        case kOpShape:
            writeShape();
            break;
        case kOpText:
            writeText();
            break;
        case kOpDefineSymbol:
            writeDefineSymbol();
            break;
        default:
            if (info->format[0] == '?')
                fault(kFaultVariableArguments, nullptr, opcode);
            else
                writeArgs(info->format, opcode);
            break;
    }
    out << ")\n";
    if (!reader.atEnd()) fault(kFaultExtraBytes, nullptr, opcode);
    writePendingFault();
    return true;
}

// Writes what could be read; false (with the fault pending) when the record
// doesn't hold the whole format.
bool MetaListing::writeArgs(const char *format, unsigned number) {
    MetaRecordReader::Status status = reader.decode(format, nullptr, 1);
    for (int k = 0; k < reader.count(); ++k) writeSlot(k, format[k]);
    if (status == MetaRecordReader::kOk) return true;
    fault(status == MetaRecordReader::kBadFormat ? kFaultBadFormat : kFaultShortInput, format,
          number);
    return false;
}

void MetaListing::writeMultiLine() {
    int item;
    while (reader.readWord(item)) {
        const MetaRecordInfo *info = findMetaLineItem((unsigned)item);
        if (!info) return fault(kFaultUnknownPathType, nullptr, (unsigned)item);
        separate();
        out << info->name;
        if (!writeArgs(info->format, kOpMultiLine)) return;
    }
}

void MetaListing::writeShape() {
    if (!writeArgs(kShapeHeader, kOpShape)) return;
    int type;
    while (reader.readWord(type)) {
        const MetaRecordInfo *info = findMetaPathType((unsigned)type);
        if (!info) return fault(kFaultUnknownPathType, nullptr, (unsigned)type);
        separate();
        out << info->name;
        if (!writeArgs(info->format, kOpShape)) return;
    }
}

void MetaListing::writeText() {
    if (reader.decode(kTextLayout, nullptr, 1) != MetaRecordReader::kOk)
        return fault(kFaultShortInput, kTextLayout, kOpText);
    writeSlot(0, 'i');
    out << ", (";
    needSeparator = false;
    writeSlot(1, 'i');
    writeSlot(2, 'i');
    out << ")";
    for (int k = 3; k < 6; ++k) writeSlot(k, kTextLayout[k]);
}

void MetaListing::writeDefineSymbol() {
    if (!writeArgs(kDefineSymbolLayout, kOpDefineSymbol)) return;
    int id = reader.integer(0);
    out << ")\n";
    const MetaDrawImpl::Symbol *symbol = list->findSymbol(id);
    if (symbol && symbol->kind == MetaDrawImpl::kListSymbol)
        static_cast<MetaDrawImpl *>(symbol->object)->writeListing(out);
    char buf[32];
    std::snprintf(buf, sizeof buf, "%d", id);
    out << "EndDefineSymbol(" << buf;
}

void MetaListing::writeNumber(double v) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.20g", v);
    out << qlx::convertToCLocale(buf);
}

void MetaListing::writeString(const char *s, int n) {
    if (!s) {
        out << "null";
        return;
    }
    out << '"';
    for (int i = 0; i < n; ++i) {
        unsigned char c = (unsigned char)s[i];
        if (c == '"') {
            out << "\\\"";
        } else if (c == '\n') {
            out << "\\n";
        } else if (c < 32) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\x%02x", c);
            out << buf;
        } else {
            out << (char)c;
        }
    }
    out << '"';
}

void MetaListing::writeSlot(int k, char letter) {
    char buf[64];
    separate();
    switch (letter) {
        case 'b':
            out << (reader.flag(k) ? "true" : "false");
            break;
        case 'i':
            std::snprintf(buf, sizeof buf, "%d", reader.integer(k));
            out << buf;
            break;
        case 'x':
            formatColor(buf, sizeof buf, reader.integer(k));
            out << buf;
            break;
        case 'd':
            writeNumber(reader.number(k));
            break;
        case 's':
            writeString(reader.bytes(k), reader.length(k));
            break;
        case 'w': {
            int n = reader.length(k);
            std::vector<wchar_t> wide(reader.units(k), reader.units(k) + n + 1);
            std::vector<char> utf8(3 * (size_t)n + 1);
            qlx::UTF16toUTF8(utf8.data(), wide.data());
            writeString(utf8.data(), (int)std::char_traits<char>::length(utf8.data()));
            break;
        }
        default: {  // D, I and X
            out << "[";
            for (int j = 0; j < reader.length(k); ++j) {
                if (j > 0) out << ", ";
                if (letter == 'D') {
                    writeNumber(reader.doubles(k)[j]);
                } else if (letter == 'I') {
                    std::snprintf(buf, sizeof buf, "%d", reader.ints(k)[j]);
                    out << buf;
                } else {
                    formatColor(buf, sizeof buf, reader.ints(k)[j]);
                    out << buf;
                }
            }
            out << "]";
            break;
        }
    }
}

#include "draw/codec/JPEGCodec.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <vector>

#include <jpeglib.h>

#include "foundation/Stream.h"

namespace {

struct JumpingErrors {
    jpeg_error_mgr base;
    jmp_buf jump;
};

void onError(j_common_ptr cinfo) {
    longjmp(reinterpret_cast<JumpingErrors *>(cinfo->err)->jump, 1);
}

void onMessage(j_common_ptr) {}

// Endless progressive scans would take forever on hostile input.
const int kMaxScans = 1000;

void watchScans(j_common_ptr cinfo) {
    if (cinfo->is_decompressor &&
        reinterpret_cast<j_decompress_ptr>(cinfo)->input_scan_number > kMaxScans)
        onError(cinfo);
}

void installErrors(JumpingErrors &errors) {
    jpeg_std_error(&errors.base);
    errors.base.error_exit = onError;
    errors.base.output_message = onMessage;
}

const int kOutBufferSize = 8192;

struct StreamDestination {
    jpeg_destination_mgr base;
    qlx::ostream *out;
    JOCTET buffer[kOutBufferSize];
};

void initDestination(j_compress_ptr cinfo) {
    StreamDestination *dest = reinterpret_cast<StreamDestination *>(cinfo->dest);
    dest->base.next_output_byte = dest->buffer;
    dest->base.free_in_buffer = kOutBufferSize;
}

boolean emptyBuffer(j_compress_ptr cinfo) {
    StreamDestination *dest = reinterpret_cast<StreamDestination *>(cinfo->dest);
    dest->out->write(dest->buffer, kOutBufferSize);
    dest->base.next_output_byte = dest->buffer;
    dest->base.free_in_buffer = kOutBufferSize;
    return TRUE;
}

void termDestination(j_compress_ptr cinfo) {
    StreamDestination *dest = reinterpret_cast<StreamDestination *>(cinfo->dest);
    dest->out->write(dest->buffer, (int)(kOutBufferSize - dest->base.free_in_buffer));
}

struct MemorySource {
    jpeg_source_mgr base;
};

void initSource(j_decompress_ptr) {}

// Past the end the decoder gets an end marker, as libjpeg's own readers do.
boolean fillInput(j_decompress_ptr cinfo) {
    static const JOCTET kEnd[2] = {0xFF, JPEG_EOI};
    cinfo->src->next_input_byte = kEnd;
    cinfo->src->bytes_in_buffer = 2;
    return TRUE;
}

void skipInput(j_decompress_ptr cinfo, long count) {
    if (count <= 0) return;
    jpeg_source_mgr *src = cinfo->src;
    if ((size_t)count > src->bytes_in_buffer) {
        fillInput(cinfo);
        return;
    }
    src->next_input_byte += count;
    src->bytes_in_buffer -= (size_t)count;
}

void termSource(j_decompress_ptr) {}

inline int overWhite(int channel, int alpha) {
    return channel + (255 - channel) * alpha / 255;
}

}  // namespace

struct JPEGCodec::WriteJob {
    jpeg_compress_struct cinfo;
    JumpingErrors errors;
    StreamDestination dest;
    const PixelImage *image;
    int quality;
    std::vector<JSAMPLE> row;
};

struct JPEGCodec::ReadJob {
    jpeg_decompress_struct cinfo;
    JumpingErrors errors;
    MemorySource source;
    jpeg_progress_mgr progress;
    const char *data;
    int length;
    int width, height;
    int *pixels;
    std::vector<JSAMPLE> row;
};

bool JPEGCodec::encode(qlx::ostream &out, const PixelImage &image, int quality) {
    if (!image.isValid()) return false;
    WriteJob *job = new WriteJob;
    job->image = &image;
    job->quality = quality < 0 ? 0 : (quality > 100 ? 100 : quality);
    job->dest.out = &out;
    job->row.resize((size_t)image.width * 3);
    bool ok = runWrite(*job);
    jpeg_destroy_compress(&job->cinfo);
    delete job;
    return ok;
}

bool JPEGCodec::runWrite(WriteJob &job) {
    jpeg_compress_struct &cinfo = job.cinfo;
    installErrors(job.errors);
    cinfo.err = &job.errors.base;
    jpeg_create_compress(&cinfo);
    if (setjmp(job.errors.jump)) return false;

    job.dest.base.init_destination = initDestination;
    job.dest.base.empty_output_buffer = emptyBuffer;
    job.dest.base.term_destination = termDestination;
    cinfo.dest = &job.dest.base;

    const PixelImage &image = *job.image;
    cinfo.image_width = image.width;
    cinfo.image_height = image.height;
    cinfo.input_components = 3;
    cinfo.in_color_space = JCS_RGB;
    jpeg_set_defaults(&cinfo);
    jpeg_set_quality(&cinfo, job.quality, TRUE);
    if (image.interlace) jpeg_simple_progression(&cinfo);
    jpeg_start_compress(&cinfo, TRUE);
    JSAMPROW rows[1] = {job.row.data()};
    for (int y = 0; y < image.height; ++y) {
        const int *src = image.row(y);
        JSAMPLE *dst = job.row.data();
        for (int x = 0; x < image.width; ++x, dst += 3) {
            int c = src[x], a = PixelImage::alphaOf(c);
            dst[0] = (JSAMPLE)overWhite(PixelImage::redOf(c), a);
            dst[1] = (JSAMPLE)overWhite(PixelImage::greenOf(c), a);
            dst[2] = (JSAMPLE)overWhite(PixelImage::blueOf(c), a);
        }
        jpeg_write_scanlines(&cinfo, rows, 1);
    }
    jpeg_finish_compress(&cinfo);
    return true;
}

bool JPEGCodec::decode(const char *data, int length, int width, int height, int *pixels) {
    if (!pixels || width <= 0 || height <= 0) return false;
    ReadJob *job = new ReadJob;
    job->data = data;
    job->length = data && length > 0 ? length : 0;
    job->width = width;
    job->height = height;
    job->pixels = pixels;
    bool ok = runRead(*job);
    jpeg_destroy_decompress(&job->cinfo);
    delete job;
    if (!ok) std::fill(pixels, pixels + (size_t)width * height, kTransparent);
    return ok;
}

bool JPEGCodec::runRead(ReadJob &job) {
    jpeg_decompress_struct &cinfo = job.cinfo;
    installErrors(job.errors);
    cinfo.err = &job.errors.base;
    jpeg_create_decompress(&cinfo);
    if (setjmp(job.errors.jump)) return false;

    job.progress.progress_monitor = watchScans;
    cinfo.progress = &job.progress;
    job.source.base.init_source = initSource;
    job.source.base.fill_input_buffer = fillInput;
    job.source.base.skip_input_data = skipInput;
    job.source.base.resync_to_restart = jpeg_resync_to_restart;
    job.source.base.term_source = termSource;
    job.source.base.next_input_byte = reinterpret_cast<const JOCTET *>(job.data);
    job.source.base.bytes_in_buffer = (size_t)job.length;
    cinfo.src = &job.source.base;

    jpeg_read_header(&cinfo, TRUE);
    if ((int)cinfo.image_width != job.width || (int)cinfo.image_height != job.height) return false;
    bool cmyk = cinfo.jpeg_color_space == JCS_CMYK || cinfo.jpeg_color_space == JCS_YCCK;
    cinfo.out_color_space = cmyk ? JCS_CMYK : JCS_RGB;
    jpeg_start_decompress(&cinfo);
    int components = cinfo.output_components;
    if ((int)cinfo.output_width != job.width || components != (cmyk ? 4 : 3)) return false;
    job.row.resize((size_t)job.width * components);
    JSAMPROW rows[1] = {job.row.data()};
    while (cinfo.output_scanline < cinfo.output_height) {
        int y = (int)cinfo.output_scanline;
        if (jpeg_read_scanlines(&cinfo, rows, 1) != 1) return false;
        int *out = job.pixels + (size_t)y * job.width;
        const JSAMPLE *p = job.row.data();
        for (int x = 0; x < job.width; ++x, p += components) {
            if (cmyk)  // stored inverted, as Adobe writes it
                out[x] = PixelImage::makeColor(0, p[0] * p[3] / 255, p[1] * p[3] / 255,
                                               p[2] * p[3] / 255);
            else
                out[x] = PixelImage::makeColor(0, p[0], p[1], p[2]);
        }
    }
    jpeg_finish_decompress(&cinfo);
    return true;
}

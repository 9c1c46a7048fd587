#include "images/PngHeader.hpp"

#include "images/ImageDecodeError.hpp"

#include <png.h>

#include <cstdio>

namespace zm::host::images {

namespace {

struct PngFacts {
    png_uint_32 width = 0;
    png_uint_32 height = 0;
    int bitDepth = 0;
    int colorType = 0;
};

struct PngFailure {
    char message[256] = "damaged PNG image";
};

// libpng's default handler prints and aborts; ours keeps the message and jumps back.
[[noreturn]] void OnPngError(png_structp png, png_const_charp message) {
    auto* failure = static_cast<PngFailure*>(png_get_error_ptr(png));
    std::snprintf(failure->message, sizeof failure->message, "PNG: %s", message);
    png_longjmp(png, 1);
}

void OnPngWarning(png_structp, png_const_charp) {}

// Only C objects live in this frame, so the jump back from libpng skips no destructor.
bool ReadPngFacts(std::FILE* stream, PngFacts* facts, PngFailure* failure) {
    png_structp png =
        png_create_read_struct(PNG_LIBPNG_VER_STRING, failure, OnPngError, OnPngWarning);
    if (png == nullptr) {
        return false;
    }
    png_infop info = png_create_info_struct(png);
    if (info == nullptr) {
        png_destroy_read_struct(&png, nullptr, nullptr);
        return false;
    }
    if (setjmp(png_jmpbuf(png))) {
        png_destroy_read_struct(&png, &info, nullptr);
        return false;
    }
    // Our own limits judge the size, so that a huge image reads as too large, not damaged.
    png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_init_io(png, stream);
    png_read_info(png, info);
    facts->width = png_get_image_width(png, info);
    facts->height = png_get_image_height(png, info);
    facts->bitDepth = png_get_bit_depth(png, info);
    facts->colorType = png_get_color_type(png, info);
    png_destroy_read_struct(&png, &info, nullptr);
    return true;
}

}  // namespace

RasterHeader ReadPngHeader(std::FILE* stream) {
    PngFacts facts;
    PngFailure failure;
    if (!ReadPngFacts(stream, &facts, &failure)) {
        throw ImageDecodeError(ImageFault::Damaged, failure.message);
    }
    RasterHeader header;
    header.width = facts.width;
    header.height = facts.height;
    int channels = 1;
    switch (facts.colorType) {
        case PNG_COLOR_TYPE_GRAY:
            header.model = PixelModel::Gray;
            break;
        case PNG_COLOR_TYPE_GRAY_ALPHA:
            header.model = PixelModel::Gray;
            header.alpha = true;
            channels = 2;
            break;
        case PNG_COLOR_TYPE_RGB:
            channels = 3;
            break;
        case PNG_COLOR_TYPE_RGB_ALPHA:
            header.alpha = true;
            channels = 4;
            break;
        case PNG_COLOR_TYPE_PALETTE:
            header.indexed = true;
            break;
        default:
            throw ImageDecodeError(ImageFault::Damaged, "PNG: unknown colour type");
    }
    header.bitsPerPixel = channels * facts.bitDepth;
    return header;
}

}  // namespace zm::host::images

#include "images/JpegHeader.hpp"

#include "images/ImageDecodeError.hpp"

#include <csetjmp>
#include <cstdio>
#include <cstring>
// jpeglib.h needs stdio's FILE and size_t declared first.
#include <jpeglib.h>

namespace zm::host::images {

namespace {

struct JpegFacts {
    JDIMENSION width = 0;
    JDIMENSION height = 0;
    int components = 0;
    int precision = 0;
    J_COLOR_SPACE colorSpace = JCS_UNKNOWN;
};

// libjpeg hands its handlers the error manager, so it comes first.
struct JpegFailure {
    jpeg_error_mgr manager;
    std::jmp_buf jump;
    char message[JMSG_LENGTH_MAX];
};

// libjpeg's default handler calls exit(); ours keeps the message and jumps back.
[[noreturn]] void OnJpegError(j_common_ptr info) {
    auto* failure = reinterpret_cast<JpegFailure*>(info->err);
    (*info->err->format_message)(info, failure->message);
    std::longjmp(failure->jump, 1);
}

void OnJpegMessage(j_common_ptr, int) {}
void OnJpegOutput(j_common_ptr) {}

// Only C objects live in this frame, so the jump back from libjpeg skips no destructor.
bool ReadJpegFacts(std::FILE* stream, JpegFacts* facts, JpegFailure* failure) {
    jpeg_decompress_struct info;
    std::memset(&info, 0, sizeof info);  // so that destroying before creating is harmless
    info.err = jpeg_std_error(&failure->manager);
    failure->manager.error_exit = OnJpegError;
    failure->manager.emit_message = OnJpegMessage;
    failure->manager.output_message = OnJpegOutput;
    if (setjmp(failure->jump)) {
        jpeg_destroy_decompress(&info);
        return false;
    }
    jpeg_create_decompress(&info);
    jpeg_stdio_src(&info, stream);
    if (jpeg_read_header(&info, TRUE) != JPEG_HEADER_OK) {
        std::snprintf(failure->message, sizeof failure->message, "JPEG: no image");
        jpeg_destroy_decompress(&info);
        return false;
    }
    facts->width = info.image_width;
    facts->height = info.image_height;
    facts->components = info.num_components;
    facts->precision = info.data_precision;
    facts->colorSpace = info.jpeg_color_space;
    jpeg_destroy_decompress(&info);
    return true;
}

}  // namespace

RasterHeader ReadJpegHeader(std::FILE* stream) {
    JpegFacts facts;
    JpegFailure failure{};
    std::snprintf(failure.message, sizeof failure.message, "damaged JPEG image");
    if (!ReadJpegFacts(stream, &facts, &failure)) {
        throw ImageDecodeError(ImageFault::Damaged, failure.message);
    }
    RasterHeader header;
    header.width = facts.width;
    header.height = facts.height;
    switch (facts.colorSpace) {
        case JCS_GRAYSCALE:
            header.model = PixelModel::Gray;
            break;
        case JCS_RGB:
        case JCS_YCbCr:
            header.model = PixelModel::Rgb;
            break;
        case JCS_CMYK:
        case JCS_YCCK:
            header.model = PixelModel::Cmyk;
            break;
        default:
            throw ImageDecodeError(ImageFault::Unrecognized, "JPEG: unknown colour space");
    }
    header.bitsPerPixel = facts.components * facts.precision;
    return header;
}

}  // namespace zm::host::images

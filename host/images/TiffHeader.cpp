#include "images/TiffHeader.hpp"

#include <tiffio.h>

#include <climits>
#include <cstdarg>
#include <cstdio>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "images/ImageDecodeError.hpp"

namespace zm::host::images {

namespace {

// libtiff reads through these, so that files and embedded bytes go the same way.
std::FILE* StreamOf(thandle_t handle) { return static_cast<std::FILE*>(handle); }

tmsize_t ReadProc(thandle_t handle, void* buffer, tmsize_t size) {
    return static_cast<tmsize_t>(
        std::fread(buffer, 1, static_cast<size_t>(size), StreamOf(handle)));
}

tmsize_t WriteProc(thandle_t, void*, tmsize_t) { return 0; }

toff_t SeekProc(thandle_t handle, toff_t offset, int whence) {
    if (offset > static_cast<toff_t>(LONG_MAX) ||
        std::fseek(StreamOf(handle), static_cast<long>(offset), whence) != 0) {
        return static_cast<toff_t>(-1);
    }
    return static_cast<toff_t>(std::ftell(StreamOf(handle)));
}

// The stream belongs to the caller.
int CloseProc(thandle_t) { return 0; }

toff_t SizeProc(thandle_t handle) {
    std::FILE* stream = StreamOf(handle);
    long here = std::ftell(stream);
    std::fseek(stream, 0, SEEK_END);
    long size = std::ftell(stream);
    std::fseek(stream, here, SEEK_SET);
    return size < 0 ? 0 : static_cast<toff_t>(size);
}

int MapProc(thandle_t, void**, toff_t*) { return 0; }
void UnmapProc(thandle_t, void*, toff_t) {}

// Keeps libtiff's first error as the reason and prints nothing.
int OnTiffError(TIFF*, void* userData, const char* module, const char* format, va_list args) {
    auto* reason = static_cast<std::string*>(userData);
    if (reason->empty()) {
        char text[256];
        std::vsnprintf(text, sizeof text, format, args);
        *reason = std::string("TIFF: ") + (module != nullptr ? module : "") + ": " + text;
    }
    return 1;
}

int OnTiffWarning(TIFF*, void*, const char*, const char*, va_list) { return 1; }

struct OptionsDeleter {
    void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};
struct TiffDeleter {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};

[[noreturn]] void Damaged(const std::string& reason) {
    throw ImageDecodeError(ImageFault::Damaged, reason.empty() ? "damaged TIFF image" : reason);
}

// The colours a photometric interpretation stands for, and how many channels carry them.
struct PhotometricModel {
    PixelModel model;
    uint16_t colorChannels;
    bool indexed;
    std::vector<std::string> inks;  // PixelModel::Inks only
};

// The names of the InkNames tag, in channel order; none when the file has no such tag.
// libtiff has checked that the tag holds NUL-terminated names and counted them.
std::vector<std::string> InkNamesOf(TIFF* tiff) {
    const char* names = nullptr;
    uint16_t count = 0;
    if (TIFFGetField(tiff, TIFFTAG_INKNAMES, &names) == 0 || names == nullptr ||
        TIFFGetField(tiff, TIFFTAG_NUMBEROFINKS, &count) == 0) {
        return {};
    }
    std::vector<std::string> inks;
    for (uint16_t i = 0; i < count; ++i) {
        inks.emplace_back(names);
        names += inks.back().size() + 1;
    }
    return inks;
}

// Separated pixels are CMYK when the ink set says so, or says nothing and no inks are
// named; otherwise each channel is the ink the InkNames tag names for it.
PhotometricModel SeparatedModelOf(TIFF* tiff) {
    uint16_t inkSet = 0;
    const bool inkSetGiven = TIFFGetField(tiff, TIFFTAG_INKSET, &inkSet) != 0;
    std::vector<std::string> inks = InkNamesOf(tiff);
    if ((inkSetGiven && inkSet == INKSET_CMYK) || (!inkSetGiven && inks.empty())) {
        return {PixelModel::Cmyk, 4, false, {}};
    }
    if ((inkSetGiven && inkSet != INKSET_MULTIINK) || inks.empty()) {
        throw ImageDecodeError(ImageFault::Unrecognized,
                               "TIFF: separated pixels whose inks are not named");
    }
    const auto channels = static_cast<uint16_t>(inks.size());
    return {PixelModel::Inks, channels, false, std::move(inks)};
}

PhotometricModel ModelOf(TIFF* tiff, uint16_t photometric) {
    switch (photometric) {
        case PHOTOMETRIC_MINISWHITE:
        case PHOTOMETRIC_MINISBLACK:
            return {PixelModel::Gray, 1, false, {}};
        case PHOTOMETRIC_RGB:
        case PHOTOMETRIC_YCBCR:
            return {PixelModel::Rgb, 3, false, {}};
        case PHOTOMETRIC_PALETTE:
            return {PixelModel::Rgb, 1, true, {}};
        case PHOTOMETRIC_SEPARATED:
            return SeparatedModelOf(tiff);
        case PHOTOMETRIC_CIELAB:
        case PHOTOMETRIC_ICCLAB:
        case PHOTOMETRIC_ITULAB:
            return {PixelModel::Lab, 3, false, {}};
        default:
            throw ImageDecodeError(ImageFault::Unrecognized, "TIFF: unknown photometric");
    }
}

bool HasAlphaSample(TIFF* tiff) {
    uint16_t count = 0;
    uint16_t* kinds = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_EXTRASAMPLES, &count, &kinds) == 0) {
        return false;
    }
    for (uint16_t i = 0; i < count; ++i) {
        if (kinds[i] == EXTRASAMPLE_ASSOCALPHA || kinds[i] == EXTRASAMPLE_UNASSALPHA) {
            return true;
        }
    }
    return false;
}

}  // namespace

RasterHeader ReadTiffHeader(std::FILE* stream) {
    std::string reason;
    std::unique_ptr<TIFFOpenOptions, OptionsDeleter> options(TIFFOpenOptionsAlloc());
    if (!options) {
        throw std::bad_alloc();
    }
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), OnTiffError, &reason);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), OnTiffWarning, nullptr);
    // A header never needs much; a damaged one must not make libtiff allocate gigabytes.
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), 16 * 1024 * 1024);
    std::unique_ptr<TIFF, TiffDeleter> tiff(
        TIFFClientOpenExt("image", "rm", stream, ReadProc, WriteProc, SeekProc, CloseProc, SizeProc,
                          MapProc, UnmapProc, options.get()));
    if (!tiff) {
        Damaged(reason);
    }
    uint32_t width = 0;
    uint32_t height = 0;
    uint16_t photometric = 0;
    if (TIFFGetField(tiff.get(), TIFFTAG_IMAGEWIDTH, &width) == 0 ||
        TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height) == 0 ||
        TIFFGetField(tiff.get(), TIFFTAG_PHOTOMETRIC, &photometric) == 0) {
        Damaged(reason.empty() ? "TIFF: no size or photometric" : reason);
    }
    uint16_t bitsPerSample = 1;
    uint16_t samplesPerPixel = 1;
    TIFFGetFieldDefaulted(tiff.get(), TIFFTAG_BITSPERSAMPLE, &bitsPerSample);
    TIFFGetFieldDefaulted(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, &samplesPerPixel);
    PhotometricModel colours = ModelOf(tiff.get(), photometric);
    if (samplesPerPixel < colours.colorChannels || bitsPerSample == 0) {
        Damaged("TIFF: fewer samples than the photometric needs");
    }
    RasterHeader header;
    header.width = width;
    header.height = height;
    header.model = colours.model;
    header.indexed = colours.indexed;
    header.alpha = HasAlphaSample(tiff.get());
    header.bitsPerPixel = static_cast<int32_t>(samplesPerPixel) * bitsPerSample;
    header.inks = std::move(colours.inks);
    return header;
}

}  // namespace zm::host::images

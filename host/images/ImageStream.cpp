#include "images/ImageStream.hpp"

#include "images/ImageDecodeError.hpp"

#include <stdio.h>

namespace zm::host::images {

ImageStream ImageStream::OpenFile(const std::filesystem::path& file) {
    std::FILE* opened = std::fopen(file.c_str(), "rb");
    if (opened == nullptr) {
        throw ImageDecodeError(ImageFault::Damaged, "cannot open " + file.string());
    }
    return ImageStream(opened);
}

ImageStream ImageStream::OpenBytes(std::span<const uint8_t> bytes) {
    if (bytes.empty()) {
        throw ImageDecodeError(ImageFault::Damaged, "no image data");
    }
    // fmemopen never writes in read mode, so the const_cast does not let the bytes change.
    std::FILE* opened = ::fmemopen(const_cast<uint8_t*>(bytes.data()), bytes.size(), "rb");
    if (opened == nullptr) {
        throw ImageDecodeError(ImageFault::Damaged, "cannot read the image data");
    }
    return ImageStream(opened);
}

}  // namespace zm::host::images

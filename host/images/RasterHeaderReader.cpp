#include "images/RasterHeaderReader.hpp"

#include "images/ImageDecodeError.hpp"
#include "images/ImageStream.hpp"
#include "images/JpegHeader.hpp"
#include "images/PngHeader.hpp"
#include "images/TiffHeader.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace zm::host::images {

namespace {

using Reader = RasterHeader (*)(std::FILE*);

struct Signature {
    std::initializer_list<unsigned char> magic;
    Reader reader;
};

const std::array<Signature, 4> kSignatures = {{
    {{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A}, ReadPngHeader},
    {{0xFF, 0xD8, 0xFF}, ReadJpegHeader},
    {{'I', 'I', 0x2A, 0x00}, ReadTiffHeader},
    {{'M', 'M', 0x00, 0x2A}, ReadTiffHeader},
}};

}  // namespace

RasterHeader ReadRasterHeader(std::FILE* stream) {
    std::array<unsigned char, 8> head{};
    std::size_t got = std::fread(head.data(), 1, head.size(), stream);
    if (std::fseek(stream, 0, SEEK_SET) != 0) {
        throw ImageDecodeError(ImageFault::Damaged, "cannot read the image again");
    }
    for (const Signature& signature : kSignatures) {
        if (got >= signature.magic.size() &&
            std::equal(signature.magic.begin(), signature.magic.end(), head.begin())) {
            RasterHeader header = signature.reader(stream);
            CheckDescribable(header);
            return header;
        }
    }
    throw ImageDecodeError(ImageFault::Unrecognized, "not an image format the host reads");
}

RasterHeader ReadRasterHeader(const document::Image& image) {
    ImageStream stream =
        image.embedded ? ImageStream::OpenBytes(image.data) : ImageStream::OpenFile(image.file);
    return ReadRasterHeader(stream.Get());
}

}  // namespace zm::host::images

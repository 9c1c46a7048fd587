#pragma once

#include <images/ImageDecodeError.hpp>
#include <images/ImageStream.hpp>
#include <images/RasterHeader.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace zm::test {

// A file of tests/fixtures/images, made by make-images.py there.
inline std::filesystem::path ImageFixture(const std::string& name) {
    return std::filesystem::path(ZELMORA_TEST_FIXTURES) / "images" / name;
}

// The header that `reader` reads from the fixture file.
inline host::images::RasterHeader ReadFixture(
    const std::function<host::images::RasterHeader(std::FILE*)>& reader, const std::string& name) {
    host::images::ImageStream stream = host::images::ImageStream::OpenFile(ImageFixture(name));
    return reader(stream.Get());
}

// The fault `reader` reports for the fixture file; nothing when it reads a header.
inline std::optional<host::images::ImageFault> FaultOf(
    const std::function<host::images::RasterHeader(std::FILE*)>& reader, const std::string& name) {
    try {
        ReadFixture(reader, name);
    } catch (const host::images::ImageDecodeError& error) {
        return error.Fault();
    }
    return std::nullopt;
}

inline host::images::RasterHeader Header(uint32_t width, uint32_t height,
                                         host::images::PixelModel model, int32_t bitsPerPixel,
                                         bool indexed = false, bool alpha = false) {
    host::images::RasterHeader header;
    header.width = width;
    header.height = height;
    header.model = model;
    header.bitsPerPixel = bitsPerPixel;
    header.indexed = indexed;
    header.alpha = alpha;
    return header;
}

}  // namespace zm::test

#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>

namespace zm::host::images {

// A stdio stream over an image, so that every decoder reads files and embedded bytes alike.
// Closed when it goes.
class ImageStream {
public:
    // Throws ImageDecodeError (Damaged) when the file cannot be opened.
    static ImageStream OpenFile(const std::filesystem::path& file);
    // Reads `bytes` in place; they must outlive the stream. Throws ImageDecodeError (Damaged)
    // for no bytes at all.
    static ImageStream OpenBytes(std::span<const uint8_t> bytes);

    std::FILE* Get() const { return file_.get(); }

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    explicit ImageStream(std::FILE* file) : file_(file) {}

    std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace zm::host::images

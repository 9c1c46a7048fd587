#pragma once

#include <filesystem>
#include <string>

namespace zm::test {

// The descriptions of the images of tests/fixtures/svg/images/linked.svg and embedded.svg,
// worked out by hand from what each image file holds (see make-images.py) and where the SVG
// places it. One user unit of both documents is one point. Throughout:
//   channels = bits per pixel / 8 (1 for 1 bit);
//   size in K = channels x height x width / 1024 (a 1-bit image: width x height / 1024 / 8),
//     each division truncating;
//   resolution = pixels / points x 72, pixels per inch.

// The full path the host shows for a file of tests/fixtures/images.
inline std::string ImagePath(const std::string& name) {
    return (std::filesystem::path(ZELMORA_TEST_FIXTURES) / "images" / name)
        .lexically_normal()
        .string();
}

// --- linked.svg: placed files the host reads as images --------------------------------------

// 640 x 480 pixels of RGB at 8 bits a channel: 24 bits, 3 channels, 3 x 480 x 640 / 1024 =
// 921,600 / 1024 = 900K. Placed at 480 x 360 points: 640 / 480 x 72 = 96 and 480 / 360 x 72 =
// 96. The asset address ends the block, without a line end.
inline std::string PhotoBlock() {
    return ImagePath("rgb-640x480.png") +
           "\r\n"
           "Type: RGB\r\n"
           "Bits per Pixel: 24\r\n"
           "Channels: 3\r\n"
           "Size: 900K, 640 by 480 pixels\r\n"
           "Dimensions: 480.000 by 360.000 points \r\n"
           "Resolution: 96.000 by 96.000 pixels per inch\r\n"
           "URL: https://assets.example/photo";
}

// The same file at 240 x 180 points, without an address: 640 / 240 x 72 = 192 and 480 / 180 x
// 72 = 192.
inline std::string SmallPhotoBlock() {
    return ImagePath("rgb-640x480.png") +
           "\r\n"
           "Type: RGB\r\n"
           "Bits per Pixel: 24\r\n"
           "Channels: 3\r\n"
           "Size: 900K, 640 by 480 pixels\r\n"
           "Dimensions: 240.000 by 180.000 points \r\n"
           "Resolution: 192.000 by 192.000 pixels per inch\r\n";
}

// 100 x 100 pixels of gray at 8 bits: 1 channel, 10,000 / 1024 = 9K (9.77 truncated). At 72 x
// 72 points: 100 / 72 x 72 = 100 pixels per inch.
inline std::string SquareBlock() {
    return ImagePath("gray-100x100.png") +
           "\r\n"
           "Type: Grayscale\r\n"
           "Bits per Pixel: 8\r\n"
           "Channels: 1\r\n"
           "Size: 9K, 100 by 100 pixels\r\n"
           "Dimensions: 72.000 by 72.000 points \r\n"
           "Resolution: 100.000 by 100.000 pixels per inch\r\n";
}

// 1000 x 1000 pixels of 1 bit: a black and white bitmap of 1 channel, 1,000,000 / 1024 = 976,
// / 8 = 122K. At 75 x 75 points: 1000 / 75 x 72 = 960. Integers are plain: "1000".
inline std::string BitmapBlock() {
    return ImagePath("bitmap-1000x1000.png") +
           "\r\n"
           "Type: Black & White Bitmap\r\n"
           "Bits per Pixel: 1\r\n"
           "Channels: 1\r\n"
           "Size: 122K, 1000 by 1000 pixels\r\n"
           "Dimensions: 75.000 by 75.000 points \r\n"
           "Resolution: 960.000 by 960.000 pixels per inch\r\n";
}

// 100 x 50 pixels of RGB at 16 bits a channel: 48 bits, which make 6 "channels" of 8; 6 x 50 x
// 100 / 1024 = 30,000 / 1024 = 29K (29.3 truncated). At 75 x 37.5 points: 100 / 75 x 72 = 96
// and 50 / 37.5 x 72 = 96.
inline std::string DeepBlock() {
    return ImagePath("rgb16-100x50.png") +
           "\r\n"
           "Type: RGB\r\n"
           "Bits per Pixel: 48\r\n"
           "Channels: 6\r\n"
           "Size: 29K, 100 by 50 pixels\r\n"
           "Dimensions: 75.000 by 37.500 points \r\n"
           "Resolution: 96.000 by 96.000 pixels per inch\r\n";
}

// A CMYK JPEG of 16 x 8 pixels: 32 bits, 4 channels, 4 x 8 x 16 / 1024 = 512 / 1024 = 0K. At
// 12 x 6 points: 16 / 12 x 72 = 96 and 8 / 6 x 72 = 96.
inline std::string CmykBlock() {
    return ImagePath("cmyk-16x8.jpg") +
           "\r\n"
           "Type: CMYK\r\n"
           "Bits per Pixel: 32\r\n"
           "Channels: 4\r\n"
           "Size: 0K, 16 by 8 pixels\r\n"
           "Dimensions: 12.000 by 6.000 points \r\n"
           "Resolution: 96.000 by 96.000 pixels per inch\r\n";
}

// A TIFF of one named ink, 8 bits, 6 x 4 pixels: a separation (code 4). Placed art has no
// colour space to count inks in, so it is a mixed ink image, and it shows no colour space
// lines, which only raster art has. 1 channel, 24 / 1024 = 0K. At 6 x 4 points: 72.
inline std::string PlacedInkBlock() {
    return ImagePath("ink-orange-6x4.tif") +
           "\r\n"
           "Type: Mixed Ink Image\r\n"
           "Bits per Pixel: 8\r\n"
           "Channels: 1\r\n"
           "Size: 0K, 6 by 4 pixels\r\n"
           "Dimensions: 6.000 by 4.000 points \r\n"
           "Resolution: 72.000 by 72.000 pixels per inch\r\n";
}

// --- embedded.svg ---------------------------------------------------------------------------

// 64 x 32 pixels of RGB and alpha at 8 bits: code 17, transparent RGB, 32 bits, 4 channels,
// 4 x 32 x 64 / 1024 = 8,192 / 1024 = 8K. At 64 x 32 points: 72 pixels per inch. Its asset
// address ends the block.
inline std::string AlphaBlock() {
    return "Type: Transparent RGB\r\n"
           "Bits per Pixel: 32\r\n"
           "Channels: 4\r\n"
           "Size: 8K, 64 by 32 pixels\r\n"
           "Dimensions: 64.000 by 32.000 points \r\n"
           "Resolution: 72.000 by 72.000 pixels per inch\r\n"
           "URL: https://assets.example/alpha";
}

// 4 x 2 pixels of 8-bit indices over an RGB palette: the record has the palette's code, RGB;
// 8 bits, 1 channel. Its space is indexed, whose base is RGB, and the inks shown are the
// base's. 1 x 2 x 4 / 1024 = 0K. At 4 x 2 points: 72.
inline std::string PaletteBlock() {
    return "Type: RGB\r\n"
           "Bits per Pixel: 8\r\n"
           "Channels: 1\r\n"
           "Color Space: Indexed\r\n"
           "Base Color Space: RGB\r\n"
           "Colorants: Red, Green, Blue\r\n"
           "Size: 0K, 4 by 2 pixels\r\n"
           "Dimensions: 4.000 by 2.000 points \r\n"
           "Resolution: 72.000 by 72.000 pixels per inch\r\n";
}

// A TIFF of three named inks, Gray, Orange and Gray, 8 bits each, 4 x 2 pixels: DeviceN (code
// 5) of three colorants, so a mixed ink image; 24 bits, 3 channels. The first ink named Gray
// is shown as Grayscale, the last keeps its name. 3 x 2 x 4 / 1024 = 0K. At 8 x 4 points:
// 4 / 8 x 72 = 36 and 2 / 4 x 72 = 36.
inline std::string DeviceNBlock() {
    return "Type: Mixed Ink Image\r\n"
           "Bits per Pixel: 24\r\n"
           "Channels: 3\r\n"
           "Color Space: DeviceN\r\n"
           "Colorants: Grayscale, Orange, Gray\r\n"
           "Size: 0K, 4 by 2 pixels\r\n"
           "Dimensions: 8.000 by 4.000 points \r\n"
           "Resolution: 36.000 by 36.000 pixels per inch\r\n";
}

// A TIFF of one named ink, Orange, 8 bits, 6 x 4 pixels: a separation (code 4) of one
// colorant, so a single ink image; 1 channel, 24 / 1024 = 0K. At 6 x 4 points: 72.
inline std::string SeparationBlock() {
    return "Type: Single Ink Image\r\n"
           "Bits per Pixel: 8\r\n"
           "Channels: 1\r\n"
           "Color Space: Separation\r\n"
           "Colorants: Orange\r\n"
           "Size: 0K, 6 by 4 pixels\r\n"
           "Dimensions: 6.000 by 4.000 points \r\n"
           "Resolution: 72.000 by 72.000 pixels per inch\r\n";
}

// A gray JPEG of 9 x 9 pixels at 8 bits: 1 channel, 81 / 1024 = 0K. At 9 x 9 points: 72. Gray
// is no separation, DeviceN or indexed space: no colour space lines.
inline std::string TwinBlock() {
    return "Type: Grayscale\r\n"
           "Bits per Pixel: 8\r\n"
           "Channels: 1\r\n"
           "Size: 0K, 9 by 9 pixels\r\n"
           "Dimensions: 9.000 by 9.000 points \r\n"
           "Resolution: 72.000 by 72.000 pixels per inch\r\n";
}

// The same JPEG 18 points wide and of no height: 9 / 18 x 72 = 36 across, and 0 down, as a
// height of 0 gives.
inline std::string FlatBlock() {
    return "Type: Grayscale\r\n"
           "Bits per Pixel: 8\r\n"
           "Channels: 1\r\n"
           "Size: 0K, 9 by 9 pixels\r\n"
           "Dimensions: 18.000 by 0.000 points \r\n"
           "Resolution: 36.000 by 0.000 pixels per inch\r\n";
}

}  // namespace zm::test

#include "parts/png.h"

#include <png.h>

#include <stdexcept>

namespace parts {

std::string pngOf(const Image& image) {
    png_image header = {};
    header.version = PNG_IMAGE_VERSION;
    header.format = PNG_FORMAT_RGBA;
    header.width = static_cast<png_uint_32>(image.width);
    header.height = static_cast<png_uint_32>(image.height);
    std::string bytes(PNG_IMAGE_PNG_SIZE_MAX(header), '\0');
    png_alloc_size_t size = bytes.size();
    if (png_image_write_to_memory(&header, bytes.data(), &size, /*convert_to_8_bit=*/0,
                                  image.rgba.data(), /*row_stride=*/0,
                                  /*colormap=*/nullptr) == 0) {
        throw std::runtime_error(std::string("a picture cannot be written: ") + header.message);
    }
    bytes.resize(size);
    return bytes;
}

}  // namespace parts

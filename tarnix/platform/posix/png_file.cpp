#include "tarnix/platform/posix/png_file.h"

#include <png.h>

namespace tarnix::platform {

bool writePng(const RgbPicture& picture, const std::string& nativePath) {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    return ::png_image_write_to_file(&image, nativePath.c_str(), /*convert_to_8bit=*/0,
                                     picture.bytes.data(), /*row_stride=*/0,
                                     /*colormap=*/nullptr) != 0;
}

}  // namespace tarnix::platform

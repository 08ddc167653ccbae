#include "picture.h"
#include <png.h>
#include <stdexcept>

void writePng(const std::string& path, const View& view, const std::vector<std::uint8_t>& pixels) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = png_uint_32(view.width);
  image.height = png_uint_32(view.height);
  image.format = PNG_FORMAT_RGB;
  image.flags = PNG_IMAGE_FLAG_FAST; // a quarter of the time, nearly twice the file
  if (!png_image_write_to_file(&image, path.c_str(), 0, pixels.data(), 0, nullptr))
    throw std::runtime_error(path + ": cannot write the picture: " + image.message);
}

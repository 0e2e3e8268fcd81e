// painted_pictures.h: pictures that the tour paints itself, as files of the kind that the library reads.

#pragma once

#include <string>

namespace tour {

inline constexpr int kPictureCount = 3;

const char* pictureName(int picture);

// Paints the picture when it was not painted before. Empty when the file could not be written.
std::string pictureFile(int picture);

}  // namespace tour

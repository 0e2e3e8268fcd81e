#include "images/image_loader.h"

#include <algorithm>

#include "images/bmp.h"
#include "images/file_source.h"
#include "images/pixmap_sink.h"
#include "images/transparent_grey.h"

namespace kite::images {

namespace {

Picture readBmp(Screen* screen, const std::string& path, Pixel undrawn, Check check)
{
    FileSource file{path};
    if (!file.isOpen()) return {};
    PixmapSink sink{screen, undrawn, transparentGrey, check};
    return bmp::decode(file, sink) ? sink.take() : Picture{};
}

// Pictures that have a name here and no reader yet: their files are not opened.
Picture readNothing(Screen*, const std::string&, Pixel, Check)
{
    return {};
}

struct Reader {
    const char* extension;
    Picture (*read)(Screen* screen, const std::string& path, Pixel undrawn, Check check);
};

constexpr Reader kReaders[] = {{"bmp", readBmp},     {"jpg", readNothing}, {"jpeg", readNothing},
                               {"xbm", readNothing}, {"xpm", readNothing}, {"gif", readNothing}};

char lowerCased(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// At most four characters count.
std::string extensionOf(const std::string& path)
{
    const std::size_t dot = path.rfind('.');
    if (dot == std::string::npos) return {};
    std::string extension = path.substr(dot + 1, 4);
    std::transform(extension.begin(), extension.end(), extension.begin(), lowerCased);
    return extension;
}

}  // namespace

Picture load(Screen* screen, const std::string& path, Pixel undrawn, Check check)
{
    const std::string extension = extensionOf(path);
    for (const Reader& reader : kReaders)
        if (reader.extension == extension) return reader.read(screen, path, undrawn, check);
    return {};
}

}  // namespace kite::images

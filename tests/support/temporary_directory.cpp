#include "temporary_directory.h"

#include <stdlib.h>

#include <cerrno>
#include <system_error>

namespace kite::testing {

TemporaryDirectory::TemporaryDirectory(const std::string& purpose)
{
    std::string name =
        (std::filesystem::temp_directory_path() / ("kitegui-test-" + purpose + ".XXXXXX")).string();
    if (!mkdtemp(name.data())) throw std::system_error{errno, std::generic_category(), name};
    path_ = name;
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace kite::testing

#include "tests/support/TestSupport.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "waymark-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    folder = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

std::filesystem::path TemporaryFolder::file(const std::filesystem::path& name,
                                            std::string_view content) const {
    std::filesystem::path path = folder / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

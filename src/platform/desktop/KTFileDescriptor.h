#pragma once
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

/// An open file of the operating system, closed at the end of its life.
class KTFileDescriptor {
public:
    /// Opens @p path with the flags and mode of open(2); O_CLOEXEC is added. Look at `isOpen`, then errno.
    KTFileDescriptor(const std::filesystem::path& path, int flags, unsigned mode = 0);
    ~KTFileDescriptor() { close(); }
    KTFileDescriptor(const KTFileDescriptor&) = delete;
    KTFileDescriptor& operator=(const KTFileDescriptor&) = delete;

    bool isOpen() const { return number >= 0; }
    int get() const { return number; }
    /// False, with errno set, when data written earlier turned out not to be kept.
    bool close();

private:
    int number;
};

/// The system's text for the error number @p error.
std::string KTSystemErrorText(int error);

/// @p format, a display text with two placeholders, filled with @p file's name and the system's text for @p
/// error.
std::string KTFileErrorText(std::string_view format, const std::filesystem::path& file, int error);

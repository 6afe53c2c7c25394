#include "platform/desktop/KTLogFile.h"

#include "platform/common/KTInstant.h"
#include "platform/common/KTLog.h"
#include "platform/desktop/KTWriteNote.h"

#include <QString>
#include <QtGlobal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct LogFile {
    std::mutex mutex;
    fs::path path;
    int descriptor = -1;
    std::size_t size = 0;
    bool isFull = false; ///< private parts too

    bool open() {
        descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
        struct stat status = {};
        size = descriptor >= 0 && ::fstat(descriptor, &status) == 0 ? std::size_t(status.st_size) : 0;
        return descriptor >= 0;
    }

    void write(const std::string& text) {
        const std::scoped_lock lock(mutex);
        if (descriptor < 0)
            return;
        if (size + text.size() > KTLogFile::kLargest) {
            ::close(descriptor);
            ::rename(path.c_str(), (path.string() + ".1").c_str());
            if (!open())
                return;
        }
        const auto written = ::write(descriptor, text.data(), text.size());
        size += written > 0 ? std::size_t(written) : 0;
    }
};

LogFile& logFile() {
    static LogFile& file = *new LogFile; // other threads may log to the process's end
    return file;
}

void writeToolkitMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    KTLog(message.toStdString());
}

} // namespace

std::string KTWithoutPrivateParts(std::string_view line) {
    static const std::regex quoted("“[^”]*”|\"[^\"]*\"|'[^']{2,}'");
    static const std::regex address("[A-Za-z][A-Za-z0-9+.-]*://[^\\s]+|[^\\s@]+@[^\\s@]+");
    static const std::regex path("(^|[\\s=(:])~?/[^:]*"); // to the next colon: names may hold blanks
    static const std::regex position("[-−]?[0-9]{1,3}\\.[0-9]{3,}");
    std::string text(line);
    text = std::regex_replace(text, quoted, "…");
    text = std::regex_replace(text, address, "…");
    text = std::regex_replace(text, path, "$1…");
    return std::regex_replace(text, position, "…");
}

fs::path KTLogFile::userFile() {
    return KTStateFolder() / "waymark.log";
}

bool KTLogFile::keepLogIn(const fs::path& file) {
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    const char* const wish = std::getenv("WAYMARK_LOG");
    {
        const std::scoped_lock lock(logFile().mutex);
        logFile().path = file;
        logFile().isFull = wish != nullptr && std::strcmp(wish, "full") == 0;
        if (!logFile().open())
            return false;
    }
    KTSetLogSink(&KTLogFile::note);
    qInstallMessageHandler(&writeToolkitMessage);
    return true;
}

void KTLogFile::note(std::string_view line) {
    std::string text = KTISO8601Text(KTInstantNow()) + " ";
    text += logFile().isFull ? std::string(line) : KTWithoutPrivateParts(line);
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    logFile().write(text + "\n");
}

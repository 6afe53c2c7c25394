#include "platform/desktop/KTProcessIdentity.h"

#include "platform/common/KTText.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

std::string firstLine(const std::string& file) {
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    return line;
}

/// The start time of a process as the kernel counts it; empty when there is no such process.
std::string startOf(const std::string& process) {
    const std::string status = firstLine("/proc/" + process + "/stat");
    // The program's name, in parentheses, may hold anything; 19 fields on from it stands the start.
    auto name = status.rfind(')');
    if (name == std::string::npos || name + 2 > status.size())
        return {};
    const std::vector<std::string> fields = KTSplit(std::string_view(status).substr(name + 2), ' ');
    const bool hasEnded = fields[0] == "Z" || fields[0] == "X";
    return fields.size() > 19 && !hasEnded ? fields[19] : std::string();
}

} // namespace

KTProcessIdentity KTProcessIdentity::ofThisProcess() {
    std::array<char, 256> hostName = {};
    if (::gethostname(hostName.data(), hostName.size() - 1) != 0)
        hostName[0] = '\0';
    std::error_code error;
    KTProcessIdentity result;
    result.host = std::string(hostName.data()) + " " + firstLine("/etc/machine-id");
    result.systemRun = firstLine("/proc/sys/kernel/random/boot_id");
    result.processSpace = std::filesystem::read_symlink("/proc/self/ns/pid", error).string();
    result.process = std::to_string(::getpid());
    result.start = startOf(result.process);
    return result;
}

std::string KTProcessIdentity::text() const {
    return KTJoin({host, systemRun, processSpace, process, start, {}}, "\n");
}

KTProcessIdentity KTProcessIdentity::fromText(const std::string& text) {
    std::vector<std::string> parts = KTSplit(text, '\n');
    parts.resize(6);
    return {parts[0], parts[1], parts[2], parts[3], parts[4]};
}

bool KTProcessIdentity::isGone() const {
    const KTProcessIdentity mine = ofThisProcess();
    for (const std::string* part : {&host, &systemRun, &processSpace, &process, &start})
        if (part->empty())
            return false;
    if (host != mine.host || mine.systemRun.empty())
        return false;
    if (systemRun != mine.systemRun) // the computer was started anew since
        return true;
    return processSpace == mine.processSpace && !mine.start.empty() && startOf(process) != start;
}

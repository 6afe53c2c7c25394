#include "platform/tracklibrary/GPSBabelReader.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/tracklibrary/GPXReader.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <sys/resource.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr rlim_t kLargestMemory = rlim_t{4} << 30; // bytes
constexpr int kPollInterval = 200;                 // milliseconds
constexpr qsizetype kLongestMessage = 1000;

void limitResources(std::chrono::milliseconds timeLimit) {
    auto seconds = static_cast<rlim_t>(std::chrono::ceil<std::chrono::seconds>(timeLimit).count());
    rlimit time{seconds, seconds}, memory{kLargestMemory, kLargestMemory}, noDump{0, 0};
    setrlimit(RLIMIT_CPU, &time);
    setrlimit(RLIMIT_AS, &memory);
    setrlimit(RLIMIT_CORE, &noDump);
}

void prepare(QProcess& process, const GPSBabelReader& settings, const std::filesystem::path& file,
             const std::string& format) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert("TZ", "UTC");
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setProgram(QString::fromStdString(settings.program));
    // Rows of CSV become points of a track because -t comes last.
    process.setArguments({"-w", "-r", "-t", "-i", QString::fromStdString(format), "-f",
                          QString::fromStdString(std::filesystem::absolute(file).string()), "-o", "gpx", "-F",
                          "-"});
    process.setChildProcessModifier([limit = settings.timeLimit] { limitResources(limit); });
}

/// What gpsbabel wrote on standard error, as one line.
std::string messageOf(QByteArray words) {
    std::string text = KTValidUTF8(words.left(kLongestMessage).simplified().toStdString());
    return text.empty() ? text : ": " + text;
}

TrackFileProblem problemWith(std::string text) {
    return {0, std::move(text)};
}

} // namespace

std::optional<TrackFileProblem> GPSBabelReader::read(const std::filesystem::path& file,
                                                     const std::string& format, TrackFileSink& sink) const {
    QProcess process;
    prepare(process, *this, file, format);
    process.start(QIODevice::ReadOnly);
    if (!process.waitForStarted())
        return problemWith(KTStringWithFormat(
            KTLocalizedString(
                "reading this kind of file takes the program %@, which cannot be started; install the "
                "package gpsbabel (apt install gpsbabel)"),
            {program}));

    GPXReader reader(sink);
    auto deadline = Clock::now() + timeLimit;
    QByteArray words;
    bool goesOn = true;
    while (goesOn) {
        bool isRunning = process.state() != QProcess::NotRunning;
        if (isRunning)
            process.waitForReadyRead(kPollInterval);
        QByteArray piece = process.readAllStandardOutput();
        if (words.size() < kLongestMessage)
            words += process.readAllStandardError();
        goesOn = reader.append({piece.data(), static_cast<std::size_t>(piece.size())}) && !sink.isClosed() &&
                 Clock::now() < deadline && (isRunning || !piece.isEmpty());
    }
    bool isStopped = process.state() != QProcess::NotRunning;
    bool isLate = isStopped && !reader.problem() && !sink.isClosed();
    if (isStopped)
        process.kill();
    process.waitForFinished();

    if (isLate)
        return problemWith(KTLocalizedString("gpsbabel took too long to read it"));
    if (!isStopped && (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0))
        return problemWith(KTLocalizedString("gpsbabel cannot read it") + messageOf(words));
    if (!sink.isClosed() && !reader.finish())
        return problemWith(KTStringWithFormat(KTLocalizedString("what gpsbabel read of it is not usable: %@"),
                                              {reader.problem()->text}));
    if (!sink.isClosed() && !reader.foundSomething())
        return problemWith(KTLocalizedString("gpsbabel found no points in it") + messageOf(words));
    return std::nullopt;
}

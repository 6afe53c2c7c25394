// How long the window takes to be painted, beside a bare window of the toolkit, each in processes of their
// own on the offscreen platform; and with a folder, how much memory the program takes with its photos loaded:
//   StartBenchmark [FOLDER]

#include "app/WaymarkAppDelegate.h"
#include "collection/KTPhotoManager.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/application/ApplicationLook.h"
#include "ui/application/ApplicationUserInterface.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <fstream>

namespace {

constexpr int kRounds = 9;

qint64 now() {
    timespec time = {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return qint64(time.tv_sec) * 1'000'000 + time.tv_nsec / 1000;
}

double megabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:"))
            return std::stod(line.substr(6)) / 1024;
    return 0;
}

/// Calls back once the first window has been painted.
class PaintWatcher : public QObject {
public:
    explicit PaintWatcher(std::function<void()> callback) : whenPainted(std::move(callback)) {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* const widget = qobject_cast<const QWidget*>(object);
        if (event->type() == QEvent::Paint && widget && widget->isWindow() && whenPainted)
            QTimer::singleShot(0, this, std::exchange(whenPainted, nullptr));
        return false;
    }

private:
    std::function<void()> whenPainted;
};

int runBare(qint64 start, int argc, char** argv) {
    QApplication application(argc, argv);
    const PaintWatcher watcher([start] {
        std::printf("%lld\n", (long long)(now() - start));
        QCoreApplication::exit();
    });
    QLabel window("window");
    window.resize(1440, 900);
    window.show();
    return QApplication::exec();
}

int runWaymark(qint64 start, const QString& folder, int argc, char** argv) {
    QApplication application(argc, argv);
    applyLook(application);
    ApplicationUserInterface screen;
    WaymarkAppDelegate delegate(screen);
    delegate.applicationDidFinishLaunching();
    const PaintWatcher watcher([start, &folder] {
        std::printf("%lld\n", (long long)(now() - start));
        if (folder.isEmpty())
            QCoreApplication::exit();
    });
    QTimer idle;
    if (!folder.isEmpty()) {
        delegate.applicationOpenFiles({folder.toStdString()});
        QObject::connect(&idle, &QTimer::timeout, [] {
            const auto& manager = KTPhotoManager::sharedPhotoManager();
            std::printf("%zu %.1f\n", manager.numberOfPhotos(), megabytes());
            QCoreApplication::exit();
        });
        idle.start(8000);
    }
    const int status = QApplication::exec();
    delegate.applicationWillTerminate();
    return status;
}

QList<QByteArray> outputOf(const QString& program, const QStringList& arguments) {
    QTemporaryDir home;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment.insert(variable, home.path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, QStringList(arguments) << QString::number(now()));
    process.waitForFinished(60'000);
    return process.readAllStandardOutput().split('\n');
}

double medianOf(const QString& program, const QStringList& arguments) {
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round)
        times.push_back(outputOf(program, arguments).value(0).toDouble() / 1000);
    std::ranges::sort(times);
    return times[kRounds / 2];
}

} // namespace

int main(int argc, char** argv) {
    const QStringList arguments(argv + 1, argv + argc);
    if (arguments.value(0) == "--bare")
        return runBare(arguments.last().toLongLong(), argc, argv);
    if (arguments.value(0) == "--waymark")
        return runWaymark(arguments.last().toLongLong(), arguments.size() > 2 ? arguments[1] : QString(),
                          argc, argv);
    const QString self = QString::fromLocal8Bit(argv[0]);
    const double bare = medianOf(self, {"--bare"}), own = medianOf(self, {"--waymark"});
    std::printf("a bare window painted   %7.1f ms\nWaymark's painted       %7.1f ms   ratio %.2f\n", bare,
                own, own / bare);
    if (!arguments.isEmpty()) {
        const QList<QByteArray> loaded = outputOf(self, {"--waymark", arguments[0]}).value(1).split(' ');
        std::printf("%s photos loaded: %s MB\n", loaded.value(0).constData(), loaded.value(1).constData());
    }
    return 0;
}

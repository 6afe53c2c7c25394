// Exports the photos of a folder as JPEG of 2048 pixels, two at a time as the plug-in "Folder" does on two
// cores, and lets ImageMagick's mogrify do the same with copies in one process. Prints the times and their
// ratio: more than 1 is quicker than mogrify. ExportBenchmark FOLDER
#include "export/KTPhotoExportManagerOperation.h"

#include <QGuiApplication>
#include <chrono>
#include <cstdio>
#include <thread>

namespace fs = std::filesystem;

namespace {

double seconds(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::vector<KTPhotoExportManagerOperation::Photo> photosIn(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    std::ranges::sort(files);
    std::vector<KTPhotoExportManagerOperation::Photo> photos;
    for (const fs::path& file : files)
        if (auto photo = KTPhoto::initWithFile(file); photo && photo->isValid())
            photos.push_back(std::make_shared<KTExportedPhotoCopy>(photo->copyWithZone()));
    return photos;
}

std::size_t exportAll(KTPhotoExportManagerOperation& operation, const fs::path& into) {
    const auto photos = operation.photos();
    std::atomic<std::size_t> next = 0, failed = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < photos.size(); i = next++)
            if (!operation.exportPhoto(
                    *photos[i], into / photos[i]->filename(),
                    {{KTImageSizeOption, KTImageSize{2048, 2048}}, {KTImageQualityOption, 0.9}}))
                ++failed;
    };
    {
        std::vector<std::jthread> threads;
        for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); ++i)
            threads.emplace_back(work);
    }
    return failed;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 || !fs::is_directory(argv[1])) {
        std::puts("ExportBenchmark FOLDER");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    char pattern[] = "/tmp/waymark-export-XXXXXX";
    const fs::path scratch = mkdtemp(pattern);
    fs::create_directory(scratch / "ours");
    const auto operation = KTPhotoExportManagerOperation::make();
    auto photos = photosIn(argv[1]);
    std::vector<std::size_t> all(photos.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = i;
    operation->setPhotos(std::move(photos), all);

    std::size_t failed = 0;
    const double ours = seconds([&] { failed = exportAll(*operation, scratch / "ours"); });
    // The same photos, those that were exported.
    fs::create_directory(scratch / "theirs");
    for (const auto& photo : operation->photos())
        if (fs::exists(scratch / "ours" / photo->filename()))
            fs::copy(photo->path(), scratch / "theirs" / photo->filename());
    const std::string command =
        "cd " + scratch.string() + "/theirs && mogrify -resize 2048x2048 -quality 90 *";
    int status = 0;
    const double theirs = seconds([&] { status = std::system(command.c_str()); });
    fs::remove_all(scratch);
    std::printf("%zu photos, %zu of them failed: %.2f s; mogrify %.2f s (status %d); ratio %.2f\n",
                all.size(), failed, ours, theirs, status, theirs / ours);
    return 0;
}

#include "export/KTPhotoExportOperationController.h"

#include "export/KTPhotoExportPluginClass.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <QFile>
#include <QTimer>
#include <QUrl>
#include <string_view>

namespace {

constexpr qint64 kLargestIcon = 1 << 20; // bytes
constexpr std::string_view kFileScheme = "file://";

std::string contentOfIcon(const std::filesystem::path& file) {
    QFile icon(QFile::decodeName(file.c_str()));
    return !file.empty() && icon.open(QIODevice::ReadOnly) ? icon.read(kLargestIcon).toStdString()
                                                           : std::string();
}

/// Sets @p value; whether that changed it.
template<class Value>
bool replace(Value& value, Value with) {
    const bool isOther = value != with;
    value = std::move(with);
    return isOther;
}

/// Reads @p plugin between its two brackets.
void reading(KTGuardedExportPlugin& plugin, const auto& read) {
    plugin.lockProgress();
    read();
    plugin.unlockProgress();
}

} // namespace

KTPhotoExportOperationController::KTPhotoExportOperationController(std::filesystem::path storeFile,
                                                                   KTExportDesktop& workspace)
    : history(std::move(storeFile)), desktop(workspace) {}

KTPhotoExportOperationController::~KTPhotoExportOperationController() = default;

void KTPhotoExportOperationController::setPhotoExportPlugins(KTPhotoExportPluginManager* manager) {
    photoExportPlugins = manager;
    operations.stop();
    if (manager != nullptr)
        operations = manager->observe([this](const KTChange& change) {
            if (change.key == "backgroundOperations" && !change.isPrior)
                operationsDidChange();
        });
    operationsDidChange();
}

void KTPhotoExportOperationController::loadSavedExportOperations() {
    Records saved;
    for (KTPhotoExportOperation& record : history.load()) {
        const bool isThere =
            std::ranges::any_of(records, [&](const Record& one) { return one->id == record.id; });
        if (record.resultDescription.empty())
            record.resultDescription = KTLocalizedString("The export was not finished.");
        if (!isThere)
            saved.push_back(std::make_shared<KTPhotoExportOperation>(std::move(record)));
    }
    if (!saved.empty())
        insert(0, std::move(saved));
}

void KTPhotoExportOperationController::insert(std::size_t place, Records added) {
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < added.size(); ++i)
        indexes.push_back(place + i);
    willChange("exportOperations", KTChange::Kind::Insertion, indexes);
    records.insert(records.begin() + std::ptrdiff_t(place), added.begin(), added.end());
    didChange("exportOperations", KTChange::Kind::Insertion, indexes);
}

void KTPhotoExportOperationController::operationsDidChange() {
    const auto now = photoExportPlugins == nullptr ? std::vector<KTPhotoExportPluginManager::Operation>()
                                                   : photoExportPlugins->backgroundOperations();
    std::vector<KTPhotoExportPluginManager::Operation> finished;
    for (const auto& [operation, record] : running)
        if (std::ranges::count(now, operation) == 0)
            finished.push_back(operation);
    for (const auto& operation : now)
        if (!running.contains(operation))
            addExportOperation(operation);
    for (const auto& operation : finished)
        handleFinishedExportOperation(operation);
}

void KTPhotoExportOperationController::addExportOperation(
    const KTPhotoExportPluginManager::Operation& operation) {
    const auto record = std::make_shared<KTPhotoExportOperation>();
    record->name = operation->pluginClass()->name();
    record->icon = contentOfIcon(operation->pluginClass()->icon());
    record->inProgress = true;
    reading(*operation->plugin(), [&] { record->destinationURL = operation->plugin()->concludingURL(); });
    history.insert(*record);
    running.emplace(operation, record);
    insert(records.size(), {record});
    startTimer();
}

void KTPhotoExportOperationController::startTimer() {
    if (progressTimer)
        return;
    progressTimer = std::make_unique<QTimer>();
    progressTimer->setInterval(kProgressInterval);
    QObject::connect(progressTimer.get(), &QTimer::timeout, [this] { updateProgress(); });
    progressTimer->start();
}

void KTPhotoExportOperationController::updateProgress() {
    bool isChanged = false;
    for (const auto& [operation, record] : running) {
        KTGuardedExportPlugin& plugin = *operation->plugin();
        reading(plugin, [&, shown = record.get()] {
            isChanged |= replace(shown->indeterminateProgress, plugin.indeterminateProgress());
            isChanged |=
                replace(shown->totalValue, std::uint64_t(std::max<std::int64_t>(0, plugin.totalValue())));
            isChanged |= replace(shown->currentValue, plugin.currentValue());
            isChanged |= replace(shown->progressDescription, plugin.message());
            isChanged |= replace(shown->destinationURL, plugin.concludingURL());
        });
    }
    if (isChanged) {
        willChange("exportOperations");
        didChange("exportOperations");
    }
}

void KTPhotoExportOperationController::handleFinishedExportOperation(
    const KTPhotoExportPluginManager::Operation& operation) {
    KTGuardedExportPlugin& plugin = *operation->plugin();
    const Record record = running.at(operation);
    reading(plugin, [&] {
        record->resultDescription = plugin.concludingDescription();
        if (std::string url = plugin.concludingURL(); !url.empty())
            record->destinationURL = std::move(url);
    });
    if (plugin.hasThrown())
        record->resultDescription = plugin.failure();
    else if (record->resultDescription.empty()) // it was stopped before its turn came
        record->resultDescription = KTLocalizedString("Export canceled.");
    record->inProgress = false;
    history.update(*record);
    running.erase(operation);
    if (running.empty())
        progressTimer.reset();
    willChange("exportOperations");
    didChange("exportOperations");
}

void KTPhotoExportOperationController::shouldCancelExportForOperation(const Record& record) {
    const auto stopped = std::ranges::find(running, record, &decltype(running)::value_type::second);
    if (stopped == running.end())
        return;
    const auto operation = stopped->first; // the map may lose it meanwhile
    KTPhotoExportPluginManager::stopOperation(operation);
    if (!operation->hasStarted()) // else it would show as running until its turn comes
        photoExportPlugins->shouldCancelExportForManager(operation);
}

void KTPhotoExportOperationController::removeExportOperations(const Records& removed) {
    for (const Record& record : Records(removed)) {
        const auto place = std::ranges::find(records, record);
        if (record->inProgress || place == records.end())
            continue;
        const std::vector<std::size_t> index = {static_cast<std::size_t>(place - records.begin())};
        willChange("exportOperations", KTChange::Kind::Removal, index);
        records.erase(place);
        didChange("exportOperations", KTChange::Kind::Removal, index);
        history.remove(*record);
    }
}

KTMenu KTPhotoExportOperationController::menuForOperations(const Records& chosen) {
    const auto item = [&](const char* title, const char* identifier,
                          void (KTPhotoExportOperationController::*action)(const Records&)) {
        return KTMenuItem{.title = KTLocalizedString(title),
                          .action = [this, chosen, action] { (this->*action)(chosen); },
                          .isEnabled = !chosen.empty(),
                          .identifier = identifier};
    };
    return {item("Show Destination", "revealAction", &KTPhotoExportOperationController::revealAction),
            item("Remove From List", "deleteAction", &KTPhotoExportOperationController::deleteAction),
            item("Copy Address", "copyAction", &KTPhotoExportOperationController::copyAction)};
}

void KTPhotoExportOperationController::revealAction(const Records& chosen) {
    for (const Record& record : chosen)
        if (!record->destinationURL.empty())
            desktop.openURL(record->destinationURL);
}

void KTPhotoExportOperationController::copyAction(const Records& chosen) {
    std::vector<std::string> addresses;
    for (const Record& record : chosen) {
        if (record->destinationURL.empty())
            continue;
        const QUrl url(QString::fromStdString(record->destinationURL));
        addresses.push_back(
            url.isLocalFile() ? QByteArray::fromPercentEncoding(
                                    QByteArray::fromStdString(record->destinationURL).mid(kFileScheme.size()))
                                    .toStdString()
                              : record->destinationURL);
    }
    if (!addresses.empty())
        desktop.setClipboardText(KTJoin(addresses, "\n"));
}

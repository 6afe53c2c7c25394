#include "export/KTPhotoExportPluginManager.h"

#include "collection/KTPhotoController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/presentation/KTPresenter.h"

namespace {

template<class Fields>
std::vector<KTExportedField> exportedFields(const Fields& fields) {
    std::vector<KTExportedField> result;
    for (const auto& field : fields)
        result.push_back({field->key(), field->name()});
    return result;
}

} // namespace

std::shared_ptr<KTPhotoExportPluginManager> KTPhotoExportPluginManager::make() {
    return std::shared_ptr<KTPhotoExportPluginManager>(new KTPhotoExportPluginManager);
}

KTPhotoExportPluginManager::~KTPhotoExportPluginManager() {
    stopAllOperations();
}

void KTPhotoExportPluginManager::stopOperation(const Operation& operation) {
    operation->cancel();
    operation->plugin()->shouldCancelExport();
}

void KTPhotoExportPluginManager::stopAllOperations() {
    std::vector<Operation> begun; // a plug-in may end its export at once
    for (const Export& unfinished : exports) {
        unfinished.operation->cancel();
        if (unfinished.hasBegun)
            begun.push_back(unfinished.operation);
    }
    std::ranges::for_each(begun, stopOperation);
}

bool KTPhotoExportPluginManager::wantsPluginWithClass(const PluginClass& pluginClass) {
    const auto isSame = [&](const PluginClass& other) { return other->uuid() == pluginClass->uuid(); };
    if (!pluginClass || std::ranges::any_of(classes, isSame))
        return false;
    auto place = classes.end();
    if (!pluginClass->isBuiltIn())
        place = std::ranges::find_if(classes, &KTPhotoExportPluginClass::isBuiltIn);
    const std::vector<std::size_t> index = {static_cast<std::size_t>(place - classes.begin())};
    willChange("pluginClasses", KTChange::Kind::Insertion, index);
    classes.insert(place, pluginClass);
    didChange("pluginClasses", KTChange::Kind::Insertion, index);
    return true;
}

void KTPhotoExportPluginManager::drop(const PluginClass& pluginClass) {
    const auto place = std::ranges::find(classes, pluginClass);
    if (place == classes.end())
        return;
    const std::vector<std::size_t> index = {static_cast<std::size_t>(place - classes.begin())};
    willChange("pluginClasses", KTChange::Kind::Removal, index);
    classes.erase(place);
    didChange("pluginClasses", KTChange::Kind::Removal, index);
}

std::vector<std::string> KTPhotoExportPluginManager::pluginNames() const {
    std::vector<std::string> names;
    for (const PluginClass& pluginClass : classes)
        names.push_back(pluginClass->name());
    return names;
}

void KTPhotoExportPluginManager::shouldBeginExportProcessWithPluginAtIndex(std::size_t index) {
    if (index < classes.size())
        shouldBeginExportProcessWithPlugin(classes[index]);
}

void KTPhotoExportPluginManager::shouldBeginExportProcessWithPlugin(const PluginClass& chosen) {
    const PluginClass pluginClass = chosen; // the list it may stand in may lose it
    if (mainOperation) {
        KTLog("Main thread export operation already in progress!");
        return;
    }
    if (!pluginClass || photoController == nullptr)
        return;
    const Operation operation = newOperation();
    auto plugin = pluginClass->initWithAPIManager(*operation);
    if (!plugin) {
        KTLog("Plugin failed to initialize! Should inform the user that the plugin is failing.");
        if (!pluginClass->isUsable())
            drop(pluginClass);
        return;
    }
    operation->setPlugin(std::make_unique<KTGuardedExportPlugin>(std::move(plugin), pluginClass->name()));
    operation->setPluginClass(pluginClass);
    operation->setController(weak_from_this());
    exports.push_back({operation});
    ask(operation);
}

KTPhotoExportPluginManager::Operation KTPhotoExportPluginManager::newOperation() const {
    Operation operation = KTPhotoExportManagerOperation::make();
    operation->setRequestedOptions(requestedOptions);
    setPhotosAndTracks(*operation);
    if (metadataController != nullptr) {
        std::vector<KTExportedFieldGroup> groups;
        for (const auto& group : metadataController->metadataGroups())
            groups.push_back({group->name(), exportedFields(group->fields())});
        operation->setMetadata(exportedFields(metadataController->metadataFields()), std::move(groups));
    }
    operation->setWindow(primaryWindow);
    return operation;
}

void KTPhotoExportPluginManager::setPhotosAndTracks(KTPhotoExportManagerOperation& operation) const {
    std::vector<KTPhotoExportManagerOperation::Photo> copies;
    for (const auto& photo : *photoController->photos())
        copies.push_back(std::make_shared<KTExportedPhotoCopy>(photo->copyWithZone()));
    std::vector<KTInstant> dates;
    for (std::size_t index : photoController->selectedPhotoIndexes())
        if (auto date = copies.at(index)->photo()->dateTimeOriginal())
            dates.push_back(*date);
    operation.setPhotos(std::move(copies), photoController->selectedPhotoIndexes());
    if (trackManager == nullptr)
        return;
    const KTNearbyPredicates near = trackManager->nearbyPredicatesForDates(std::move(dates));
    operation.setTracks(trackManager->tracksForPredicate(near.trackPredicate), trackManager->store());
    operation.setWaypoints(trackManager->waypointsForPredicate(near.waypointPredicate));
}

void KTPhotoExportPluginManager::ask(const Operation& operation) {
    const bool wantsPath = operation->plugin()->wantsDestinationPathPrompt();
    const bool hasSettings = !wantsPath && operation->plugin()->settingsView() != nullptr;
    if (operation->plugin()->hasThrown() || ((wantsPath || hasSettings) && presenter == nullptr))
        end(operation);
    else if (wantsPath)
        presentSavePanelForManager(operation);
    else if (hasSettings)
        presentCustomSheetForManager(operation);
    else
        prepare(operation, std::nullopt);
}

void KTPhotoExportPluginManager::presentSavePanelForManager(const Operation& operation) {
    const KTGuardedExportPlugin& plugin = *operation->plugin();
    KTFilePanel panel;
    panel.kind = KTFilePanel::Kind::ChooseFolder;
    if (plugin.shouldSaveToIndividualFile()) {
        panel.kind = KTFilePanel::Kind::SaveFile;
        panel.allowedFileTypes = plugin.allowedFileTypes();
        panel.proposedName = plugin.defaultFileName();
    }
    panel.buttonText = KTLocalizedString("Export");
    panel.directory = plugin.defaultDirectory();
    panel.accessoryView = plugin.settingsView();
    const bool isFile = panel.kind == KTFilePanel::Kind::SaveFile;
    panel.completion = [manager = weak_from_this(), operation, isFile](const auto& paths) {
        const auto self = manager.lock();
        if (self && !paths.empty() && isFile)
            operation->allowReplacing({paths.back()}); // the question has asked for that
        if (self && !paths.empty())
            self->prepare(operation, paths.back());
        else if (self)
            self->end(operation);
    };
    if (plugin.hasThrown())
        end(operation);
    else
        presenter->presentFilePanel(std::move(panel));
}

void KTPhotoExportPluginManager::presentCustomSheetForManager(const Operation& operation) {
    presenter->presentSettingsSheet({operation->plugin()->settingsView(), KTLocalizedString("Export"),
                                     [manager = weak_from_this(), operation](bool isConfirmed) {
                                         const auto self = manager.lock();
                                         if (self && isConfirmed)
                                             self->prepare(operation, std::nullopt);
                                         else if (self)
                                             self->end(operation);
                                     }});
}

void KTPhotoExportPluginManager::prepare(const Operation& operation,
                                         const std::optional<std::filesystem::path>& path) {
    if (find(operation) == exports.end())
        return; // the plug-in ended the export while the question was open
    operation->plugin()->shouldPrepareForExportToPath(path);
    if (operation->plugin()->hasThrown())
        end(operation);
}

void KTPhotoExportPluginManager::shouldBeginExportForManager(const Operation& operation) {
    const auto place = find(operation);
    if (place == exports.end() || place->hasBegun)
        return;
    const bool isForQueue = operation->plugin()->canExportOnBackgroundThread();
    if (operation->plugin()->hasThrown()) {
        end(operation);
    } else if (isForQueue) {
        enqueue(*place);
    } else if (mainOperation) { // begun while this one's question was open
        KTLog("Main thread export operation already in progress!");
        end(operation);
    } else {
        place->hasBegun = true;
        schedule(operation);
    }
}

void KTPhotoExportPluginManager::enqueue(Export& begun) {
    begun.hasBegun = true;
    // Posted: the queue's thread announces it, and the end of the observation would wait for it.
    begun.finished = begun.operation->observe(
        [manager = weak_from_this(), operation = std::weak_ptr(begun.operation)](const KTChange& change) {
            if (change.key != "isFinished" || change.isPrior)
                return;
            KTPerformOnMainThread([manager, operation] {
                const auto self = manager.lock();
                const auto finished = operation.lock();
                if (self && finished)
                    self->end(finished);
            });
        });
    const std::vector<std::size_t> index = {inBackground.size()};
    willChange("backgroundOperations", KTChange::Kind::Insertion, index);
    inBackground.push_back(begun.operation);
    didChange("backgroundOperations", KTChange::Kind::Insertion, index);
    queue.addOperation(begun.operation);
}

void KTPhotoExportPluginManager::askAboutExistingFiles(const std::vector<std::filesystem::path>& existing,
                                                       std::function<void(KTExistingFiles)> answer) {
    if (existingFiles || presenter == nullptr)
        return answer(existingFiles.value_or(KTExistingFiles::Cancel));
    const std::string first = KTValidUTF8(existing.front().filename().string());
    presenter->presentAlert(
        {.message =
             existing.size() == 1
                 ? KTStringWithFormat(KTLocalizedString("“%@” exists already. Do you want to replace it?"),
                                      {first})
                 : KTLocalizedCount("%d files exist already. Do you want to replace them?", existing.size()),
         .informativeText =
             existing.size() == 1
                 ? std::string()
                 : KTStringWithFormat(KTLocalizedString("“%@” is the first of them."), {first}),
         .buttons = {KTLocalizedString("Keep Both"), KTLocalizedString("Replace"),
                     KTLocalizedString("Cancel")},
         .completion = [answer = std::move(answer)](std::size_t button) {
             answer(button == 0   ? KTExistingFiles::KeepBoth
                    : button == 1 ? KTExistingFiles::Replace
                                  : KTExistingFiles::Cancel);
         }});
}

void KTPhotoExportPluginManager::schedule(const Operation& operation) {
    mainOperation = operation;
    KTPerformOnMainThread([manager = weak_from_this(), scheduled = std::weak_ptr(operation)] {
        const auto self = manager.lock();
        const auto mine = scheduled.lock();
        if (self && mine && self->mainOperation == mine)
            mine->main();
    });
}

void KTPhotoExportPluginManager::end(Operation operation) {
    operation->cancel();
    if (mainOperation == operation)
        mainOperation.reset();
    if (const auto listed = std::ranges::find(inBackground, operation); listed != inBackground.end()) {
        const std::vector<std::size_t> index = {static_cast<std::size_t>(listed - inBackground.begin())};
        willChange("backgroundOperations", KTChange::Kind::Removal, index);
        inBackground.erase(listed);
        didChange("backgroundOperations", KTChange::Kind::Removal, index);
    }
    // Looked for only now: whoever heard of this may have begun another one.
    const auto place = find(operation);
    if (place == exports.end())
        return;
    // The plug-in may have asked for this end, and must live until its code has returned.
    KTPerformOnMainThread([ended = place->operation] {});
    exports.erase(place);
}

std::list<KTPhotoExportPluginManager::Export>::iterator
KTPhotoExportPluginManager::find(const Operation& operation) {
    return std::ranges::find(exports, operation, &Export::operation);
}

#include "cli/Command.h"
#include "cli/CommandCollection.h"
#include "cli/JSONOutput.h"

#include "collection/KTPhotoManager.h"
#include "export/KTPluginManager.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTTypeIdentifiers.h"
#include "platform/presentation/KTPresenter.h"

#include <CLI/CLI.hpp>
#include <QTimer>

namespace {

constexpr std::chrono::milliseconds kProgressInterval{100};

/// Answers a plug-in's questions with what the command was given.
class Answers final : public KTPresenter {
public:
    Answers(CommandSession& commandSession, std::filesystem::path path, bool mayOverwrite)
        : session(commandSession), destination(std::move(path)), overwrites(mayOverwrite) {}

    void presentAlert(KTAlert alert) override {
        session.failure(alert.message);
        if (alert.completion)
            alert.completion(alert.buttons.empty() ? 0 : alert.buttons.size() - 1);
    }
    void presentFilePanel(KTFilePanel panel) override {
        std::error_code error;
        const bool isFile = panel.kind == KTFilePanel::Kind::SaveFile;
        if (isFile && !overwrites && std::filesystem::exists(destination, error))
            return refuse(panel, "%@ exists already (--overwrite replaces it)");
        if (!isFile && !std::filesystem::create_directories(destination, error) && error)
            return refuse(panel, "the folder %@ cannot be made");
        panel.completion({destination});
    }
    void presentSettingsSheet(KTSettingsSheet sheet) override { sheet.completion(true); }
    void revealFiles(const std::vector<std::filesystem::path>&) override {}

private:
    void refuse(const KTFilePanel& panel, const char* why) {
        session.failure(KTStringWithFormat(KTLocalizedString(why), {KTValidUTF8(destination.string())}));
        panel.completion({});
    }

    CommandSession& session;
    const std::filesystem::path destination;
    const bool overwrites;
};

class ExportCommand : public Command {
public:
    std::string plugin, to, size, type;
    double quality = -1;
    bool excludesLocation = false, overwrites = false;
    std::vector<std::string> paths;

    int run(CommandSession& session) override {
        const KTPhotoExportOptions options = parsedOptions();
        auto exports = KTPhotoExportPluginManager::make();
        KTPluginManager plugins(exports);
        plugins.loadAllPlugins();
        const auto pluginClass = chosenClass(*exports);
        CommandCollection collection(session);
        CommandCollection::Photos photos;
        collection.importPhotos(paths, [&](const auto& file, const auto& photo, const auto& operations) {
            session.messages(file, operations);
            if (photo && photo->isValid())
                photos.push_back(photo);
        });
        if (photos.empty() || CommandSession::isInterrupted())
            return session.exitStatus();
        collection.photoManager().setSelectedPhotos(photos);
        Answers answers(session, std::filesystem::absolute(to), overwrites);
        exports->setPhotoController(&collection.photoController());
        exports->setMetadataController(&KTMetadataFieldManager::sharedMetadataFieldManager());
        exports->setTrackManager(session.tracks());
        exports->setPresenter(&answers);
        exports->setExistingFiles(overwrites ? KTExistingFiles::Replace : KTExistingFiles::Skip);
        exports->setRequestedOptions(options);
        perform(*exports, pluginClass, collection, session);
        return session.exitStatus();
    }

private:
    KTPhotoExportOptions parsedOptions() const {
        KTPhotoExportOptions options;
        if (excludesLocation)
            options[KTExcludeLocationOption] = true;
        if (quality >= 0)
            options[KTImageQualityOption] = quality;
        if (!type.empty())
            options[KTImageTypeOption] = parsedType();
        if (!size.empty()) {
            unsigned width = 0, height = 0;
            int end = 0;
            if (std::sscanf(size.c_str(), "%5ux%5u%n", &width, &height, &end) != 2 ||
                end != int(size.size()) || width == 0 || height == 0)
                throw UsageError{KTStringWithFormat(
                    KTLocalizedString("\"%@\" is not a size: WIDTHxHEIGHT in pixels is expected"), {size})};
            options[KTImageSizeOption] = KTImageSize{double(width), double(height)};
        }
        return options;
    }

    /// By extension ("jpeg"), MIME type or type identifier.
    std::string parsedType() const {
        if (const KTTypeIdentifier* known = KTTypeWithMIMEType(type))
            return std::string(known->identifier);
        if (KTTypeWithIdentifier(type) != nullptr)
            return type;
        if (auto identifier = KTTypeIdentifierForPath("x." + type))
            return *identifier;
        throw UsageError{KTStringWithFormat(KTLocalizedString("\"%@\" is not a type of pictures"), {type})};
    }

    KTPhotoExportPluginManager::PluginClass chosenClass(const KTPhotoExportPluginManager& exports) const {
        std::vector<std::string> names;
        for (const auto& pluginClass : exports.pluginClasses()) {
            if (KTEqualIgnoringCase(pluginClass->name(), plugin))
                return pluginClass;
            names.push_back(pluginClass->name());
        }
        throw UsageError{
            KTStringWithFormat(KTLocalizedString("there is no export plug-in \"%@\"; there are: %@"),
                               {plugin, KTJoin(names, ", ")})};
    }

    void perform(KTPhotoExportPluginManager& exports,
                 const KTPhotoExportPluginManager::PluginClass& pluginClass, CommandCollection& collection,
                 CommandSession& session) const {
        std::string conclusion, url;
        bool hasBegun = false, hasFailed = false;
        KTPhotoExportPluginManager::Operation running;
        const auto followed = exports.observe([&](const KTChange& change) {
            if (change.key != "backgroundOperations" || change.isPrior)
                return;
            if (change.kind == KTChange::Kind::Insertion) {
                hasBegun = true;
                running = exports.backgroundOperations().back();
                return;
            }
            KTGuardedExportPlugin& ended = *running->plugin();
            ended.lockProgress();
            conclusion = ended.concludingDescription();
            url = ended.concludingURL();
            ended.unlockProgress();
            hasFailed = ended.hasThrown() || running->hasFailures();
            if (ended.hasThrown())
                conclusion = ended.failure();
            running = nullptr;
        });
        QTimer progress;
        QObject::connect(&progress, &QTimer::timeout, [&] {
            if (running && CommandSession::isInterrupted())
                KTPhotoExportPluginManager::stopOperation(running);
            if (running)
                showProgress(*running->plugin(), session);
        });
        progress.start(kProgressInterval);
        exports.shouldBeginExportProcessWithPlugin(pluginClass);
        collection.runUntil([&] { return !exports.isExporting(); });
        if (!hasBegun || hasFailed)
            session.setFailed();
        if (hasBegun)
            report(conclusion, url, session);
    }

    static void showProgress(KTGuardedExportPlugin& running, CommandSession& session) {
        running.lockProgress();
        const std::string line = running.message();
        running.unlockProgress();
        session.showProgress(line);
    }

    static void report(const std::string& conclusion, const std::string& url, CommandSession& session) {
        if (!session.json) {
            std::printf("%s\n", conclusion.c_str());
            return;
        }
        JSONOutput json;
        json.beginObject();
        json.member("result", conclusion);
        json.member("destination", url.empty() ? KTValue() : KTValue(url));
        json.member("succeeded", !session.hasFailed());
        json.endObject();
    }
};

} // namespace

void addExportCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<ExportCommand>();
    CLI::App* parser = app.add_subcommand("export", KTLocalizedString("Export photos with a plug-in"));
    parser
        ->add_option("--plugin", command->plugin,
                     KTLocalizedString("The plug-in, as the menu \"Share\" names it"))
        ->type_name("NAME")
        ->required();
    parser->add_option("--to", command->to, KTLocalizedString("The folder or file to export to"))
        ->type_name("PATH")
        ->required();
    parser->add_option("--size", command->size, KTLocalizedString("Fit the pictures into this size"))
        ->type_name("WxH");
    parser->add_option("--type", command->type, KTLocalizedString("jpeg, png or tiff"))->type_name("TYPE");
    parser->add_option("--quality", command->quality, KTLocalizedString("Of JPEG pictures, from 0 to 1"))
        ->check(CLI::Range(0.0, 1.0))
        ->type_name("Q");
    parser->add_flag("--exclude-location", command->excludesLocation,
                     KTLocalizedString("Leave out where the pictures were taken"));
    parser->add_flag("--overwrite", command->overwrites,
                     KTLocalizedString("Replace files that exist already"));
    parser->add_option("PATH", command->paths, KTLocalizedString("Photos, sidecars or folders"))->required();
    commands.push_back({parser, std::move(command)});
}

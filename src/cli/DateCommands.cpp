#include "cli/Command.h"
#include "cli/CommandCollection.h"
#include "cli/JSONOutput.h"
#include "cli/SaveOptions.h"

#include "datetools/KTDateCopyViewController.h"
#include "datetools/KTDateSetViewController.h"
#include "datetools/KTDateShiftViewController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTTimeZoneManager.h"

#include <CLI/CLI.hpp>

namespace {

constexpr const char* kDates[] = {"dateTimeOriginalComponents", "dateTimeDigitizedComponents",
                                  "creationDate"};

/// A command that lets one of the date tools work on all photos that its paths stand for, and saves them.
class DateCommand : public Command {
public:
    std::vector<std::string> paths;
    SaveOptions saving;

    int run(CommandSession& session) override {
        check();
        saving.apply();
        CommandCollection collection(session);
        std::vector<Edited> all;
        CommandCollection::Photos photos;
        collection.importPhotos(paths, [&](const auto& file, const auto& photo, const auto& operations) {
            const bool isValid = photo && photo->isValid();
            all.push_back({file, isValid ? photo : nullptr, operations});
            if (isValid)
                photos.push_back(photo);
        });
        KTPhotoManager& manager = collection.photoManager();
        manager.setSelectedPhotos(photos);
        if (!CommandSession::isInterrupted())
            press(manager);
        for (Edited& edited : all)
            edited.isChanged = edited.photo && edited.photo->hasUnsavedChanges();
        collection.savePhotos(photos);
        report(session, all);
        return session.exitStatus();
    }

protected:
    /// Throws UsageError where the options make no sense.
    virtual void check() {}
    /// Uses the tool on the selected photos.
    virtual void press(KTPhotoManager& photos) = 0;

private:
    /// A file and what became of it.
    struct Edited {
        std::filesystem::path file;
        std::shared_ptr<KTPhoto> photo; ///< null where it could not be read
        std::vector<KTPhotoOperation> operations;
        bool isChanged = false;
    };

    static void report(CommandSession& session, std::vector<Edited>& all) {
        std::optional<JSONOutput> json;
        if (session.json) {
            json.emplace();
            json->beginObjectWithArray("photos");
        }
        for (Edited& edited : all) {
            if (edited.photo)
                edited.operations = edited.photo->photoOperations();
            const bool isPending = !edited.photo || edited.photo->hasUnsavedChanges();
            if (isPending)
                session.setFailed();
            session.messages(edited.file, edited.operations);
            const bool isSaved = edited.isChanged && !isPending;
            json ? print(*json, edited, isSaved) : print(edited, isSaved, isPending);
        }
        if (json)
            json->endObjectWithArray();
    }

    static void print(JSONOutput& json, const Edited& edited, bool isSaved) {
        json.beginObject();
        json.member("path", edited.file.string());
        for (const char* key : kDates) {
            const KTValue date = edited.photo ? edited.photo->valueForKey(key) : KTValue();
            if (date.components())
                json.captureDate(key, *date.components());
            else
                json.member(key, date);
        }
        json.member("saved", isSaved);
        json.member("operations", edited.operations);
        json.endObject();
    }

    static void print(const Edited& edited, bool isSaved, bool isPending) {
        const auto date =
            edited.photo ? edited.photo->readingOf(KTPhotoDateFamily::Original).components : std::nullopt;
        std::printf("%s: %s, %s\n", edited.file.c_str(),
                    date ? isoReading(*date).c_str() : KTLocalizedString("no capture date").c_str(),
                    KTLocalizedString(isSaved     ? "saved"
                                      : isPending ? "not saved"
                                                  : "nothing to change")
                        .c_str());
    }
};

class ShiftCommand : public DateCommand {
public:
    std::int64_t seconds = 0;
    bool digitized = false;

protected:
    void press(KTPhotoManager& photos) override {
        KTDateShiftViewController tool(photos, KTMetadataFieldManager::sharedMetadataFieldManager(),
                                       KTTimeZoneManager::sharedTimeZoneManager());
        tool.setup();
        tool.setIsNegative(seconds < 0);
        for (const auto unit : {KTDateShiftViewController::Days, KTDateShiftViewController::Hours,
                                KTDateShiftViewController::Minutes})
            tool.setMagnitude(unit, 0);
        tool.setMagnitude(KTDateShiftViewController::Seconds, seconds < 0 ? -seconds : seconds);
        tool.setShouldShiftDigitizedDate(digitized);
        tool.shiftDateTimeOriginalApply();
        tool.tearDown();
    }
};

class CopyDateCommand : public DateCommand {
public:
    std::string from;
    std::vector<std::string> to;

protected:
    void press(KTPhotoManager& photos) override {
        KTDateCopyViewController tool(photos, KTMetadataFieldManager::sharedMetadataFieldManager());
        tool.setup();
        tool.setSelectedCopyFromDate(dateNamed(from));
        for (const std::string& name : to)
            tool.setShouldCopyTo(dateNamed(name), true);
        tool.copyDateTimeApply();
        tool.tearDown();
    }

private:
    void check() override {
        if (std::ranges::count(to, from) != 0)
            throw UsageError{KTStringWithFormat(
                KTLocalizedString("copy-date: --to %@ names the date to copy from"), {from})};
    }
    static KTDateCopyViewController::Date dateNamed(std::string_view name) {
        return name == "original"    ? KTDateCopyViewController::Original
               : name == "digitized" ? KTDateCopyViewController::Digitized
                                     : KTDateCopyViewController::Creation;
    }
};

class SetDateCommand : public DateCommand {
public:
    std::string date;
    std::string precision = "second";

protected:
    void press(KTPhotoManager& photos) override {
        KTDateSetViewController tool(photos, zone);
        tool.setup();
        tool.setPrecisionVariableDate(*KTCalendar(zone.timeZone()).dateFromComponents(components));
        tool.setSelectedPrecision(row().precision);
        tool.setDateTimeOriginalApply();
        tool.tearDown();
    }

private:
    struct Row {
        const char* name;
        unsigned precision;
        std::size_t parts; ///< of the date, that it needs
    };
    static constexpr Row kRows[] = {
        {"second", KTDateSetViewController::Second, 6}, {"minute", KTDateSetViewController::Minute, 5},
        {"hour", KTDateSetViewController::Hour, 4},     {"day", KTDateSetViewController::Day, 3},
        {"month", KTDateSetViewController::Month, 2},   {"year", KTDateSetViewController::Year, 1}};

    const Row& row() const {
        return *std::ranges::find(kRows, precision,
                                  [](const Row& each) { return std::string_view(each.name); });
    }

    void check() override {
        const auto parsed = KTDateComponents::dateComponentsWithString(date);
        if (!parsed || KTTimeZone::timeZoneWithString(date))
            throw UsageError{KTStringWithFormat(
                KTLocalizedString("\"%@\" is not a date: \"YYYY-MM-DD HH:MM:SS\" is expected"), {date})};
        components = *parsed;
        const auto parts = components.unitFlags();
        if (!std::all_of(parts.begin(), parts.begin() + std::ptrdiff_t(row().parts), std::identity()))
            throw UsageError{KTStringWithFormat(
                KTLocalizedString("\"%@\" says too little for the precision %@"), {date, precision})};
        zone.setTimeZone(KTTimeZone::utc()); // where every reading of a clock exists, once
    }

    KTDateComponents components;
    KTTimeZoneManager zone;
};

template<class DateToolCommand>
DateToolCommand& add(CLI::App& app, CommandList& commands, CLI::App*& parser, const char* name,
                     const std::string& description) {
    auto command = std::make_unique<DateToolCommand>();
    DateToolCommand& added = *command;
    parser = app.add_subcommand(name, description);
    commands.push_back({parser, std::move(command)});
    return added;
}

void addPathsAndSaving(CLI::App& parser, DateCommand& command) {
    parser.add_option("PATH", command.paths, KTLocalizedString("Photos, sidecars or folders"))->required();
    command.saving.addTo(parser);
}

} // namespace

void addDateCommands(CLI::App& app, CommandList& commands) {
    CLI::App* parser = nullptr;
    const auto isDateName = CLI::IsMember({"original", "digitized", "creation"});

    auto& shift =
        add<ShiftCommand>(app, commands, parser, "shift",
                          KTLocalizedString("Move the capture date from what the files hold, and save"));
    parser->add_flag("--digitized", shift.digitized, KTLocalizedString("Also the date of digitization"));
    parser
        ->add_option("SECONDS", shift.seconds,
                     KTLocalizedString("Forward, or back where negative (-- before negative ones)"))
        ->required()
        ->check(CLI::Range(std::int64_t(-400'000'000'000), std::int64_t(400'000'000'000)));
    addPathsAndSaving(*parser, shift);

    auto& copy = add<CopyDateCommand>(
        app, commands, parser, "copy-date",
        KTLocalizedString("Copy one of the dates of each photo to others of it, and save"));
    parser
        ->add_option("--from", copy.from,
                     KTLocalizedString("The date to copy: original, digitized, creation"))
        ->required()
        ->check(isDateName);
    parser->add_option("--to", copy.to, KTLocalizedString("A date to set; repeatable"))
        ->required()
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false)
        ->check(isDateName);
    addPathsAndSaving(*parser, copy);

    auto& set = add<SetDateCommand>(app, commands, parser, "set-date",
                                    KTLocalizedString("Give every photo one capture date, and save"));
    parser
        ->add_option(
            "--precision", set.precision,
            KTLocalizedString("How much of the date is known: second, minute, hour, day, month, year"))
        ->check(CLI::IsMember({"second", "minute", "hour", "day", "month", "year"}));
    parser->add_option("DATE", set.date, KTLocalizedString("\"YYYY-MM-DD HH:MM:SS\", or its beginning"))
        ->required();
    addPathsAndSaving(*parser, set);
}

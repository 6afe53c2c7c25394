#include "cli/Command.h"
#include "cli/JSONOutput.h"

#include "photo/KTLinkablePoint.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/gazetteer/KTGazetteer.h"

#include <CLI/CLI.hpp>

namespace {

class PlaceCommand : public Command {
public:
    std::string latitude, longitude;

    int run(CommandSession& session) override {
        const auto point = KTLinkablePoint::initWithGeoPoint(
            {.latitude = degrees(latitude, 90), .longitude = degrees(longitude, 180)},
            KTLinkablePointTypeMapPoint);
        point->waitUntilLocationDescriptionFetchIsCompleted();
        if (const auto failure = point->requestFailure()) {
            session.failure(*failure);
            return kExitSomethingFailed;
        }
        const std::string description = point->locationDescription();
        if (session.json)
            printJSON(point->locationDictionary(), description);
        else
            std::printf(
                "%s\n",
                (description.empty() ? KTLocalizedString("no place is known there") : description).c_str());
        return kExitDone;
    }

private:
    static KTDecimal degrees(const std::string& text, int limit) {
        const auto number = KTDecimal::fromText(text);
        if (!number || !(std::abs(number->toDouble()) <= limit))
            throw UsageError{
                KTStringWithFormat(KTLocalizedString("\"%@\" is not a number of degrees from -%@ to %@"),
                                   {text, std::to_string(limit), std::to_string(limit)})};
        return *number;
    }

    static void printJSON(const KTValue::Dictionary& place, const std::string& description) {
        JSONOutput json;
        json.beginObject();
        for (std::string_view key : {"city", "state", "country", "countryCode"})
            if (const auto name = place.find(key); name != place.end())
                json.member(key, name->second);
        if (!description.empty())
            json.member("description", description);
        json.endObject();
    }
};

} // namespace

void addPlaceCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<PlaceCommand>();
    CLI::App* parser = app.add_subcommand(
        "place", KTLocalizedString("Name the place at a position (-- before negative numbers)"));
    parser->add_option("LAT", command->latitude, KTLocalizedString("Degrees, north positive"))->required();
    parser->add_option("LON", command->longitude, KTLocalizedString("Degrees, east positive"))->required();
    commands.push_back({parser, std::move(command)});
}

#include "cli/ParserTexts.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <CLI/CLI.hpp>

namespace {

constexpr std::string_view kHole = "%@";

/// The sentences that the parser puts together, those first that others would fit as well.
constexpr const char* kSentences[] = {
    "A subcommand is required",
    "%@ is required",
    "The following argument was not expected: %@",
    "The following arguments were not expected: %@",
    "Could not convert: %@ = %@",
    "%@: Value %@ not in range %@ to %@",
    "%@: %@ not in {%@}",
    "%@: Directory does not exist: %@",
    "%@: Directory is actually a file: %@",
    "%@: %@ required %@ missing",
    "%@: At least %@ required but received %@",
    "%@: At Most %@ required but received %@",
};

/// What stands in @p text where @p sentence has "%@"; nothing where it is another sentence.
std::optional<std::vector<std::string>> partsOf(std::string_view text, std::string_view sentence) {
    std::vector<std::string> parts;
    for (std::size_t hole = 0; (hole = sentence.find(kHole)) != sentence.npos;) {
        if (!text.starts_with(sentence.substr(0, hole)))
            return std::nullopt;
        text.remove_prefix(hole);
        sentence.remove_prefix(hole + kHole.size());
        const std::string_view next = sentence.substr(0, sentence.find(kHole));
        const std::size_t end = next.empty() ? text.size() : text.find(next);
        if (end == text.npos)
            return std::nullopt;
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return text == sentence ? std::optional(parts) : std::nullopt;
}

std::string filled(const std::string& sentence, std::vector<std::string> parts) {
    parts.resize(4); // of no sentence more
    return KTStringWithFormat(sentence, {parts[0], parts[1], parts[2], parts[3]});
}

} // namespace

void translateParser(CLI::App& app) {
    const auto formatter = app.get_formatter();
    formatter->label("Usage", KTLocalizedString("Usage"));
    formatter->label("Positionals", KTLocalizedString("Arguments"));
    formatter->label("OPTIONS", KTLocalizedString("OPTIONS"));
    formatter->label("SUBCOMMAND", KTLocalizedString("COMMAND"));
    formatter->label("REQUIRED", KTLocalizedString("REQUIRED"));
    app.group(KTLocalizedString("Commands"));
    app.option_defaults()->group(KTLocalizedString("Options"));
    app.failure_message([](const CLI::App*, const CLI::Error& failure) {
        return parserFailureText(failure) + "\n" +
               KTLocalizedString("Run with --help for more information.") + "\n";
    });
}

std::string parserFailureText(const CLI::Error& failure) {
    const std::string text = failure.what();
    for (const char* sentence : kSentences)
        if (const auto parts = partsOf(text, sentence))
            return filled(KTLocalizedString(sentence), *parts);
    return text;
}

#include "cli/Command.h"
#include "cli/JSONOutput.h"
#include "collection/InstallationCheck.h"

#include "platform/common/KTLocalizedString.h"

#include <CLI/CLI.hpp>

namespace {

class DoctorCommand : public Command {
public:
    std::vector<std::string> folders;

    int run(CommandSession& session) override {
        const std::vector<InstallationFinding> findings =
            examineInstallation(session.libraryFile.empty() ? KTTrackManager::userLibraryFile()
                                                            : std::filesystem::path(session.libraryFile),
                                {folders.begin(), folders.end()});
        if (session.json)
            printJSON(findings);
        else
            for (const InstallationFinding& finding : findings)
                printText(finding);
        for (const InstallationFinding& finding : findings)
            if (finding.kind == InstallationFinding::Kind::Failure)
                session.setFailed();
        return session.exitStatus();
    }

private:
    static void printJSON(const std::vector<InstallationFinding>& findings) {
        JSONOutput json;
        json.beginObjectWithArray("findings");
        for (const InstallationFinding& finding : findings) {
            json.beginObject();
            json.member("subject", finding.subject);
            json.member("result", finding.kind == InstallationFinding::Kind::Fine      ? "ok"
                                  : finding.kind == InstallationFinding::Kind::Warning ? "warning"
                                                                                       : "failure");
            json.member("text", finding.text);
            if (!finding.advice.empty())
                json.member("advice", finding.advice);
            json.endObject();
        }
        json.endObjectWithArray();
    }

    static void printText(const InstallationFinding& finding) {
        const char* const sign = finding.kind == InstallationFinding::Kind::Fine      ? "✓"
                                 : finding.kind == InstallationFinding::Kind::Warning ? "!"
                                                                                      : "✗";
        std::printf("%s %s: %s\n", sign, finding.subject.c_str(), finding.text.c_str());
        if (!finding.advice.empty())
            std::printf("  → %s\n", finding.advice.c_str());
    }
};

} // namespace

void addDoctorCommand(CLI::App& app, CommandList& commands) {
    auto command = std::make_unique<DoctorCommand>();
    CLI::App* parser =
        app.add_subcommand("doctor", KTLocalizedString("Check the installation and say what to do"));
    parser->add_option("FOLDER", command->folders,
                       KTLocalizedString("Folders of photos: whether photos can be saved there"));
    commands.push_back({parser, std::move(command)});
}

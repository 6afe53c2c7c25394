#pragma once
#include "cli/CommandSession.h"

namespace CLI {
class App;
}

/// One verb of the command line. Its options are bound to its members when it is added to the parser.
class Command {
public:
    virtual ~Command() = default;
    /// Does the work and prints the result; returns the exit status.
    virtual int run(CommandSession& session) = 0;
    /// Whether it needs fonts, and so an application with a display, be it offscreen.
    virtual bool drawsPictures() const { return false; }
};

/// A verb and the part of the parser that knows whether it was asked for.
struct ParsedCommand {
    const CLI::App* parser;
    std::unique_ptr<Command> command;
};
using CommandList = std::vector<ParsedCommand>;

/// Thrown by a command's run before anything was read or written: the arguments make no sense.
struct UsageError {
    std::string message;
};

void addReadCommand(CLI::App& app, CommandList& commands);
void addFieldsCommand(CLI::App& app, CommandList& commands);
void addSetCommand(CLI::App& app, CommandList& commands);
void addGeotagCommand(CLI::App& app, CommandList& commands);
void addPlaceCommand(CLI::App& app, CommandList& commands);
void addZoneCommand(CLI::App& app, CommandList& commands);
void addDateCommands(CLI::App& app, CommandList& commands); // shift, copy-date, set-date
void addMapCommand(CLI::App& app, CommandList& commands);
void addTracksCommands(CLI::App& app, CommandList& commands);
void addExportCommand(CLI::App& app, CommandList& commands);
void addDemoCommand(CLI::App& app, CommandList& commands);
void addDoctorCommand(CLI::App& app, CommandList& commands);

/// Parses the arguments, makes the application that the command needs and runs it; the exit status of the
/// process.
int runCommandLine(int argc, char** argv);

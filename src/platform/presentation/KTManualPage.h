#pragma once
#include <string>
#include <vector>

/// What a program of the command line says of itself, as data: the one source of its help and its manual
/// page.
struct KTManualPage {
    struct Entry {
        std::string name; ///< "--json", "--settings FILE"
        std::string text;
    };
    struct Section {
        std::string title;
        std::string text; ///< paragraphs parted by empty lines; may be empty
        std::vector<Entry> entries;
    };

    std::string program; ///< "waymark-cli"
    std::string summary; ///< a line
    std::vector<std::string> synopses;
    std::string description;
    std::vector<Section> sections;

    /// For "man", in the language of section 1 of the manual (roff, UTF-8).
    std::string roff() const;
    /// For "--help": synopsis, summary and sections, in lines of a terminal.
    std::string help() const;
};

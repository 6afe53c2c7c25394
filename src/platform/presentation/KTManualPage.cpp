#include "platform/presentation/KTManualPage.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <algorithm>

namespace {

/// @p text as roff takes it: hyphens that stay hyphens, no line that is taken for a request.
std::string escaped(const std::string& text) {
    std::string result;
    bool isAtStart = true;
    for (const char letter : text) {
        if (isAtStart && (letter == '.' || letter == '\''))
            result += "\\&";
        if (letter == '-')
            result += "\\-";
        else if (letter == '\\')
            result += "\\e";
        else
            result += letter;
        isAtStart = letter == '\n';
    }
    return result;
}

/// Empty lines part paragraphs.
std::string paragraphs(const std::string& text) {
    std::string result;
    for (const std::string& line : KTSplit(text, '\n'))
        result += line.empty() ? ".PP\n" : escaped(line) + "\n";
    return result;
}

std::string heading(const std::string& title) {
    return ".SH \"" + escaped(title) + "\"\n";
}

} // namespace

std::string KTManualPage::roff() const {
    std::string upper = program;
    std::ranges::transform(upper, upper.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? char(c - 32) : c; });
    std::string page = ".TH " + escaped(upper) + " 1 \"\" \"Waymark " WAYMARK_VERSION "\" \"Waymark\"\n";
    page += heading(KTLocalizedString("NAME")) + escaped(program) + " \\- " + escaped(summary) + "\n";
    page += heading(KTLocalizedString("SYNOPSIS"));
    for (const std::string& synopsis : synopses)
        page += ".B " + escaped(program) + "\n" + escaped(synopsis) + "\n.br\n";
    page += heading(KTLocalizedString("DESCRIPTION")) + paragraphs(description);
    for (const Section& section : sections) {
        page += heading(section.title) + paragraphs(section.text);
        for (const Entry& entry : section.entries)
            page += ".TP\n.B " + escaped(entry.name) + "\n" + paragraphs(entry.text);
    }
    return page;
}

std::string KTManualPage::help() const {
    std::string text;
    for (const std::string& synopsis : synopses)
        text += KTStringWithFormat(KTLocalizedString("Usage: %@"), {program + " " + synopsis}) + "\n";
    text += "\n" + description + "\n";
    for (const Section& section : sections) {
        text += "\n" + section.title + "\n" + (section.text.empty() ? "" : section.text + "\n");
        for (const Entry& entry : section.entries)
            text += "  " + entry.name + "\n        " + entry.text + "\n";
    }
    return text;
}

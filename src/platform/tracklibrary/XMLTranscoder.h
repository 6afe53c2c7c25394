#pragma once
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Turns text of any encoding that the system's iconv knows into UTF-8, piece by piece.
class XMLTranscoder {
public:
    /// The encoding that the XML declaration at the start of @p head names; empty without one.
    static std::string declaredEncoding(std::string_view head);
    /// Nothing when the system does not know @p encoding.
    static std::unique_ptr<XMLTranscoder> forEncoding(const std::string& encoding);
    ~XMLTranscoder();

    /// Appends @p bytes, as UTF-8, to @p text. False at a sequence that the encoding does not allow; @p text
    /// then holds what came before it. A sequence cut off by the end of @p bytes waits for the next call.
    bool append(std::string_view bytes, std::string& text);
    /// Whether the text so far ends inside a character.
    bool endsInsideCharacter() const { return !pending.empty(); }

private:
    explicit XMLTranscoder(void* openDescriptor) : descriptor(openDescriptor) {}
    XMLTranscoder(const XMLTranscoder&) = delete;
    XMLTranscoder& operator=(const XMLTranscoder&) = delete;

    void* descriptor;
    std::string pending;
};

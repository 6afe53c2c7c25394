#pragma once
#include "platform/tracklibrary/TrackFileProblem.h"

#include <memory>
#include <optional>
#include <string_view>

class XMLStreamHandler {
public:
    virtual ~XMLStreamHandler() = default;
    /// @p name as written, prefix included; @p attributes alternate names and values and end with nullptr.
    /// Valid during the call only, as all texts here.
    virtual void startElement(const char* name, const char** attributes) = 0;
    virtual void endElement() = 0;
    /// A piece of the current element's text; a text may come in any number of pieces.
    virtual void characters(std::string_view piece) = 0;
};

/// Parses XML 1.0 of any encoding piece by piece, on one thread. Whatever could make a small file grow or a
/// parser sink is refused: every entity declaration, more than 100 nested elements, a single tag or comment
/// beyond 1 MB. Nothing outside the given bytes is ever read.
class XMLStream {
public:
    explicit XMLStream(XMLStreamHandler& handler);
    ~XMLStream();
    XMLStream(const XMLStream&) = delete;
    XMLStream& operator=(const XMLStream&) = delete;

    /// Parses the next bytes. False after the first problem; no handler is called from then on.
    bool append(std::string_view bytes);
    /// Says that nothing follows. False when there was a problem or the document is not complete.
    bool finish();
    /// Ends the parsing with a problem at the line being parsed; for handlers.
    void fail(std::string text);
    const std::optional<TrackFileProblem>& problem() const { return found; }

private:
    struct Expat;

    bool begin();
    bool decode(std::string_view bytes);
    bool parse(std::string_view text, bool isLast);

    std::unique_ptr<Expat> expat;
    std::string head; // held back until the encoding is known
    bool hasBegun = false;
    std::optional<TrackFileProblem> found;
};

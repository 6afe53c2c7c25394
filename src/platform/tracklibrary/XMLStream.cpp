#include "platform/tracklibrary/XMLStream.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/tracklibrary/XMLTranscoder.h"

#include <algorithm>
#include <array>
#include <expat.h>

namespace {

constexpr std::size_t kHeadLength = 1024; // an XML declaration ends well before
constexpr std::size_t kPieceLength = 1 << 16;
constexpr std::int64_t kLongestToken = 1 << 20;
constexpr int kDeepestElement = 100;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool isKnownToExpat(const std::string& encoding) {
    constexpr std::array<std::string_view, 6> known = {"",         "UTF-8",    "ISO-8859-1",
                                                       "US-ASCII", "UTF-16LE", "UTF-16BE"};
    return std::ranges::any_of(known, [&](auto name) { return KTEqualIgnoringCase(name, encoding); });
}

} // namespace

struct XMLStream::Expat {
    XMLStream& stream;
    XMLStreamHandler& handler;
    XML_Parser parser = nullptr;
    std::unique_ptr<XMLTranscoder> transcoder; // for encodings that expat does not know
    std::string decoded;
    std::int64_t parsedLength = 0;
    std::int64_t skippedLines = 0;
    int depth = 0;
    bool hasElement = false;

    Expat(XMLStream& owner, XMLStreamHandler& userHandler) : stream(owner), handler(userHandler) {}
    ~Expat() {
        if (parser)
            XML_ParserFree(parser);
    }

    void open(const char* encoding) {
        parser = XML_ParserCreate(encoding);
        if (!parser)
            throw std::bad_alloc();
        XML_SetUserData(parser, this);
        XML_SetElementHandler(parser, &Expat::start, &Expat::end);
        XML_SetCharacterDataHandler(parser, &Expat::characters);
        XML_SetEntityDeclHandler(parser, &Expat::entity);
    }
    std::int64_t line() const {
        return parser ? static_cast<std::int64_t>(XML_GetCurrentLineNumber(parser)) + skippedLines : 1;
    }
    std::string errorText(bool isLast) const {
        XML_Error code = XML_GetErrorCode(parser);
        bool endsEarly = code == XML_ERROR_UNCLOSED_TOKEN || code == XML_ERROR_PARTIAL_CHAR ||
                         code == XML_ERROR_UNCLOSED_CDATA_SECTION ||
                         (code == XML_ERROR_NO_ELEMENTS && hasElement);
        if (isLast && endsEarly)
            return KTLocalizedString("the file ends too early");
        std::string reason = XML_ErrorString(code);
        return hasElement ? KTStringWithFormat(KTLocalizedString("the XML is broken: %@"), {reason})
                          : KTStringWithFormat(KTLocalizedString("this is not an XML file (%@)"), {reason});
    }

    static void start(void* data, const char* name, const char** attributes) {
        auto& self = *static_cast<Expat*>(data);
        self.hasElement = true;
        if (++self.depth > kDeepestElement)
            self.stream.fail(KTLocalizedString("the elements are nested too deeply"));
        if (!self.stream.found)
            self.handler.startElement(name, attributes);
    }
    static void end(void* data, const char*) {
        auto& self = *static_cast<Expat*>(data);
        --self.depth;
        if (!self.stream.found)
            self.handler.endElement();
    }
    static void characters(void* data, const char* text, int length) {
        auto& self = *static_cast<Expat*>(data);
        if (!self.stream.found)
            self.handler.characters({text, static_cast<std::size_t>(length)});
    }
    static void entity(void* data, const char*, int, const char*, int, const char*, const char*, const char*,
                       const char*) {
        static_cast<Expat*>(data)->stream.fail(KTLocalizedString("entity declarations are not accepted"));
    }
};

XMLStream::XMLStream(XMLStreamHandler& handler) : expat(std::make_unique<Expat>(*this, handler)) {}

XMLStream::~XMLStream() = default;

void XMLStream::fail(std::string text) {
    if (found)
        return;
    found = TrackFileProblem{expat->line(), std::move(text)};
    if (expat->parser)
        XML_StopParser(expat->parser, XML_FALSE);
}

bool XMLStream::append(std::string_view bytes) {
    if (found)
        return false;
    if (hasBegun)
        return decode(bytes);
    head.append(bytes);
    return head.size() < kHeadLength || begin();
}

bool XMLStream::finish() {
    if (!found && !hasBegun)
        begin();
    if (!found && expat->transcoder && expat->transcoder->endsInsideCharacter())
        fail(KTLocalizedString("the file ends too early"));
    return !found && parse({}, true);
}

/// Chooses the decoder by the declaration and parses what was held back. Some programs put blank lines before
/// the declaration, or declare UTF-16 for a text that is not; both can be read all the same.
bool XMLStream::begin() {
    hasBegun = true;
    std::string text = std::exchange(head, {});
    auto firstMark = text.find_first_not_of(" \t\r\n");
    if (firstMark != std::string::npos && text.compare(firstMark, 5, "<?xml") == 0) {
        expat->skippedLines =
            std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(firstMark), '\n');
        text.erase(0, firstMark);
    }
    std::string encoding = XMLTranscoder::declaredEncoding(text);
    if (text.starts_with(kByteOrderMark) || KTEqualIgnoringCase(encoding, "UTF-16")) {
        expat->open("UTF-8");
    } else if (isKnownToExpat(encoding)) {
        expat->open(nullptr);
    } else {
        expat->transcoder = XMLTranscoder::forEncoding(encoding);
        if (!expat->transcoder) {
            fail(
                KTStringWithFormat(KTLocalizedString("unknown text encoding “%@”"), {KTValidUTF8(encoding)}));
            return false;
        }
        expat->open("UTF-8");
    }
    return decode(text);
}

bool XMLStream::decode(std::string_view bytes) {
    if (!expat->transcoder)
        return parse(bytes, false);
    expat->decoded.clear();
    bool isValid = expat->transcoder->append(bytes, expat->decoded);
    if (parse(expat->decoded, false) && !isValid)
        fail(KTLocalizedString("a character is not valid in the file's encoding"));
    return !found;
}

bool XMLStream::parse(std::string_view text, bool isLast) {
    do {
        std::string_view piece = text.substr(0, kPieceLength);
        text.remove_prefix(piece.size());
        bool isLastPiece = isLast && text.empty();
        auto status = XML_Parse(expat->parser, piece.data(), static_cast<int>(piece.size()), isLastPiece);
        if (status != XML_STATUS_OK) {
            fail(expat->errorText(isLastPiece));
            return false;
        }
        expat->parsedLength += static_cast<std::int64_t>(piece.size());
        // Expat keeps a tag or comment that has not ended yet, and goes over it again with every piece.
        if (expat->parsedLength - std::max<std::int64_t>(0, XML_GetCurrentByteIndex(expat->parser)) >
            kLongestToken)
            fail(KTLocalizedString("a single tag or comment is too long"));
    } while (!text.empty() && !found);
    return !found;
}

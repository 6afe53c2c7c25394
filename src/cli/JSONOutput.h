#pragma once
#include "metadata/KTPhotoOperation.h"
#include "metadata/KTTagDictionary.h"
#include "platform/common/KTValue.h"

#include <cstdio>
#include <rapidjson/filewritestream.h>
#include <rapidjson/writer.h>

/// Writes one JSON document to standard output as it comes about. Numbers carry the decimal's exact text;
/// instants are ISO 8601 in UTC; absent values are left out with their key; bytes that are not UTF-8 become
/// U+FFFD.
class JSONOutput {
public:
    JSONOutput() : stream(stdout, buffer.data(), buffer.size()), writer(stream) {}
    ~JSONOutput();

    void beginObject() { writer.StartObject(); }
    void endObject() { writer.EndObject(); }
    void beginArray() { writer.StartArray(); }
    void endArray() { writer.EndArray(); }
    /// An object that holds one array, `{"NAME": [ … ]}`, and its end.
    void beginObjectWithArray(std::string_view name);
    void endObjectWithArray();
    void key(std::string_view name);
    /// A value without a key, an element of an array; an absent one becomes null.
    void value(const KTValue& value);

    /// Key and value; nothing when the value is absent or the null marker.
    void member(std::string_view name, const KTValue& value);
    void member(std::string_view name, const KTTagDictionary& tags);
    void member(std::string_view name, const std::vector<KTPhotoOperation>& operations);
    /// The reading under its @p key, "dateTimeOriginalComponents", and where it stands for an instant, its
    /// zone under "dateTimeOriginalTimeZone" and the instant under "dateTimeOriginal".
    void captureDate(const std::string& key, const KTDateComponents& components);

private:
    void text(std::string_view bytes);

    std::vector<char> buffer = std::vector<char>(1 << 16);
    rapidjson::FileWriteStream stream;
    rapidjson::Writer<rapidjson::FileWriteStream> writer;
};

/// The reading of a capture date as ISO 8601 without zone, "2014-06-01T12:00:00"; as far as its parts are
/// set.
std::string isoReading(const KTDateComponents& components);

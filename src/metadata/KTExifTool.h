#pragma once
#include "metadata/KTPerlInterpreter.h"
#include "metadata/KTPhotoOperation.h"
#include "metadata/KTTagDictionary.h"

#include <mutex>

/// The only door to the files' metadata: one embedded interpreter running Image::ExifTool, under one lock.
///
/// Values that come out are texts, integers, decimals (12 fractional digits) and lists of these; values that
/// go in may also be the null marker, which deletes the tag. The three compound operations and
/// `writableTags`, `canWriteToFile` hold the lock for their whole run and may be called from any thread; the
/// primitives below them never take it and are for one thread at a time.
class KTExifTool {
public:
    /// The bridge of the process, made on first use and kept to its end.
    static KTExifTool& sharedExifTool();
    /// Folder that holds Image/ExifTool.pm for bridges made from now on; empty for the resource
    /// "exiftoollib".
    static void setLibraryFolder(const std::filesystem::path& folder);

    /// The folder that bridges made now take it from.
    static std::filesystem::path usedLibraryFolder();

    KTExifTool();
    KTExifTool(const KTExifTool&) = delete;
    KTExifTool& operator=(const KTExifTool&) = delete;

    /// Reads every tag of @p fromFile into @p dictionary (keys "Group:Tag", family-0 groups; what stood there
    /// under another key stays). The record is not succeeded, with ExifTool's text, when ExifTool reports an
    /// error; the dictionary then holds whatever was found.
    KTPhotoOperation extractAllKeysIntoDictionary(KTTagDictionary& dictionary,
                                                  const std::filesystem::path& fromFile);

    /// The same with every tag in ExifTool's order, so that of tags that share a key (in the main directory
    /// and in that of the thumbnail) each is there.
    KTPhotoOperation extractAllTags(std::vector<KTTagDictionary::Entry>& tags,
                                    const std::filesystem::path& fromFile);

    /// Writes @p fromSourceFile with @p changes applied as @p toFile, which must not exist unless it is the
    /// source (then it is rewritten in place). A destination with the extension "xmp" other than the source
    /// becomes a new sidecar holding every tag of the source that XMP can hold, overridden by the changes. A
    /// value that ExifTool refuses is logged and named in the record's warning; the others are written. A key
    /// with a quote or a backslash fails the whole write before the file is touched.
    KTPhotoOperation setValuesForKeysWithDictionary(const KTTagDictionary& changes,
                                                    const std::filesystem::path& toFile,
                                                    const std::filesystem::path& fromSourceFile);
    /// The same in place.
    KTPhotoOperation setValuesForKeysWithDictionary(const KTTagDictionary& changes,
                                                    const std::filesystem::path& toFile);

    /// Keys of the tags that may be copied into a file; built on the first call.
    std::vector<std::string> writableTags();
    /// Whether ExifTool can write files of this name or type; false, and logged, for one with a quote or
    /// backslash.
    bool canWriteToFile(const std::string& fileNameOrType);
    /// Image::ExifTool's version ("12.57"); absent when the library could not be loaded.
    KTValue libraryVersion();

    // Primitives, called under the lock or where no other thread uses this bridge.
    void newExifTool();
    void setNewValue(const KTValue& value, const std::string& key);
    KTPhotoOperation writeResultToFile(const std::filesystem::path& toFile,
                                       const std::filesystem::path& fromSourceFile);
    KTPhotoOperation writeResultToFile(const std::filesystem::path& toFile);
    KTValue evaluate(const std::string& statement) { return interpreter.evaluate(statement); }
    KTValue valueForVariable(const std::string& name) { return interpreter.valueForVariable(name); }
    void setValueForVariable(const KTValue& value, const std::string& name) {
        interpreter.setValueForVariable(value, name);
    }

private:
    KTPhotoOperation writeChanges(const KTTagDictionary& changes, const std::filesystem::path& toFile,
                                  const std::filesystem::path& fromSourceFile);
    void setNewTexts(const std::vector<std::string>& texts, const std::string& quotedKey);
    /// Makes @p operation a failure when a read of the file has failed since the variable was cleared;
    /// whether it did.
    bool noteReadError(KTPhotoOperation& operation);
    /// Evaluates a SetNewValue call and keeps the error text of a refused value.
    void evaluateSetNewValue(const std::string& call);

    KTPerlInterpreter interpreter;
    std::mutex lock;
    std::vector<std::string> writableTagList;
    std::vector<std::string> writeWarnings; // of the write under way
};

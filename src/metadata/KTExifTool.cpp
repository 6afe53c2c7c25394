#include "metadata/KTExifTool.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTResources.h"

namespace {

std::filesystem::path& libraryFolder() {
    static std::filesystem::path folder;
    return folder;
}

bool canBeQuoted(std::string_view text) {
    return text.find_first_of(std::string_view("'\\\0", 3)) == std::string_view::npos;
}

bool isSidecarName(const std::filesystem::path& file) {
    return KTEqualIgnoringCase(file.extension().string(), ".xmp");
}

// Walks the tag list of one read inside the interpreter and hands back group, name, value after one another:
// the same as asking for each tag by statements of its own, at a quarter of the time. A lens is wanted by its
// readable name; a capture date in IFD0 must never stand in for the one of the EXIF directory.
constexpr const char* kWalk = R"perl(
sub waymarkTags {
    my ($tool, $info) = @_;
    my @triples;
    my (%triples, @groups);
    # In the order of the file, and then by group in the order in which the groups appear: that of
    # Sort => 'Group0', which asks for each group once more.
    foreach my $tag ($tool->GetTagList($info, 'File')) {
        my ($name) = $tag =~ /^(\S+)/; # without the number of a duplicate
        my $value;
        if ($name eq 'LensID') {
            $value = $tool->GetValue('LensID', 'PrintConv');
        } else {
            next if $name eq 'DateTimeOriginal' and $tool->GetGroup($tag, 1) eq 'IFD0';
            $value = $$info{$tag};
        }
        my $group = scalar($tool->GetGroup($tag, 0));
        push @groups, $group unless $triples{$group};
        push @{$triples{$group}}, $group, $name, $value;
    }
    return [map { @{$triples{$_}} } @groups];
}
)perl";

// The library takes a failed read for the end of the file, and would copy half a picture without a word. Each
// of its reads therefore looks at the state of the file afterwards.
constexpr const char* kReadWatch = R"perl(
{
    no strict 'refs';
    no warnings 'redefine';
    require IO::Handle;
    foreach my $name (qw(Read ReadLine)) {
        my $read = \&{"File::RandomAccess::$name"};
        *{"File::RandomAccess::$name"} = sub {
            my $file = $_[0]{FILE_PT};
            my $result = &$read; # with the caller's own arguments: it fills one of them
            $waymarkReadError = "$!" if ref $file and IO::Handle::error($file);
            return $result;
        };
    }
}
)perl";

/// The record of a write that could not begin.
KTPhotoOperation failedWrite(const std::filesystem::path& file, std::string failure) {
    KTPhotoOperation operation;
    operation.url = file;
    operation.operationDescription = KTLocalizedString("Write metadata to file");
    operation.failureReason = 1;
    operation.failureDescription = std::move(failure);
    return operation;
}

} // namespace

KTExifTool& KTExifTool::sharedExifTool() {
    static KTExifTool& shared = *new KTExifTool; // goes with the process: taking it down would only take time
    return shared;
}

void KTExifTool::setLibraryFolder(const std::filesystem::path& folder) {
    libraryFolder() = folder;
}

std::filesystem::path KTExifTool::usedLibraryFolder() {
    return libraryFolder().empty() ? KTResourcePath("exiftoollib") : libraryFolder();
}

KTExifTool::KTExifTool() {
    setValueForVariable(usedLibraryFolder().string(), "resourcePath");
    evaluate("use lib $resourcePath;");
    evaluate("use Image::ExifTool;");
    evaluate(kWalk);
    evaluate(kReadWatch);
}

KTPhotoOperation KTExifTool::extractAllKeysIntoDictionary(KTTagDictionary& dictionary,
                                                          const std::filesystem::path& fromFile) {
    std::vector<KTTagDictionary::Entry> entries(dictionary.begin(), dictionary.end());
    KTPhotoOperation operation = extractAllTags(entries, fromFile);
    dictionary = KTTagDictionary(std::move(entries));
    return operation;
}

KTPhotoOperation KTExifTool::extractAllTags(std::vector<KTTagDictionary::Entry>& tags,
                                            const std::filesystem::path& fromFile) {
    std::lock_guard guard(lock);
    evaluate("$fetchTool = new Image::ExifTool;");
    evaluate("$fetchTool->Options(FixBase=>'', IgnoreMinorErrors=>1, Composite=>1, Duplicates => 1, "
             "PrintConv => 0, "
             "Sort => 'Group0', Exclude => 'ThumbnailImage');");
    evaluate("undef $waymarkReadError;");
    setValueForVariable(fromFile.string(), "fetchToolPath");
    evaluate("$imageInfo = $fetchTool->ImageInfo($fetchToolPath);");

    KTPhotoOperation operation;
    operation.url = fromFile;
    operation.operationDescription = KTLocalizedString("Read metadata from file");
    KTValue error = evaluate("$imageInfo->{Error};");
    operation.operationDidSucceed = !error.isSomething();
    if (error.isSomething())
        operation.failureDescription = error.description();

    std::string key;
    interpreter.evaluateTriples("waymarkTags($fetchTool, $imageInfo);",
                                [&](std::string_view group, std::string_view name, KTValue value) {
                                    key.assign(group).append(":").append(name);
                                    tags.push_back({KTTagKey(key), std::move(value)});
                                });
    evaluate("undef $fetchTool;");
    noteReadError(operation);
    return operation;
}

KTPhotoOperation KTExifTool::setValuesForKeysWithDictionary(const KTTagDictionary& changes,
                                                            const std::filesystem::path& toFile,
                                                            const std::filesystem::path& fromSourceFile) {
    std::lock_guard guard(lock);
    return writeChanges(changes, toFile, fromSourceFile);
}

KTPhotoOperation KTExifTool::setValuesForKeysWithDictionary(const KTTagDictionary& changes,
                                                            const std::filesystem::path& toFile) {
    std::lock_guard guard(lock);
    return writeChanges(changes, toFile, toFile);
}

KTPhotoOperation KTExifTool::writeChanges(const KTTagDictionary& changes, const std::filesystem::path& toFile,
                                          const std::filesystem::path& fromSourceFile) {
    for (const auto& [key, value] : changes) {
        if (canBeQuoted(key))
            continue;
        return failedWrite(
            toFile,
            KTStringWithFormat(KTLocalizedString("The tag key \"%@\" contains a quote or a backslash."),
                               {std::string(key)}));
    }

    newExifTool();
    if (toFile != fromSourceFile && isSidecarName(toFile)) {
        setValueForVariable(fromSourceFile.string(), "sourcePath");
        evaluate("$temp = $exifTool->SetNewValuesFromFile($sourcePath, '*>xmp:*');");
        const KTValue error = evaluate("$temp->{Error};");
        if (error.isSomething()) // the sidecar would lack what the image tells
            return failedWrite(toFile, error.description());
        evaluate("$exifTool->SetNewValue('ThumbnailImage');");
    }
    bool writesIPTC = false;
    for (const auto& [key, value] : changes) {
        setNewValue(value, std::string(key));
        writesIPTC = writesIPTC || std::string_view(key).starts_with("IPTC");
    }
    if (writesIPTC) // so that the stored digest matches the new IPTC data
        evaluate("($success, $errorString) = $exifTool->SetNewValue('Photoshop:IPTCDigest', 'new', Protected "
                 "=> 1);");
    return writeResultToFile(toFile, fromSourceFile);
}

void KTExifTool::newExifTool() {
    writeWarnings.clear();
    evaluate("undef $waymarkReadError;");
    evaluate("$exifTool = new Image::ExifTool;");
    evaluate("$exifTool->Options(FixBase=>'', IgnoreMinorErrors=>1, PrintConv => 0);");
}

void KTExifTool::setNewValue(const KTValue& value, const std::string& key) {
    if (!canBeQuoted(key)) {
        KTLog(KTStringWithFormat("setNewValue: %@", {"refused the tag key " + key}));
        return;
    }
    const std::string quotedKey = "'" + key + "'";
    if (auto elements = value.list(); value.isNull() || (elements && elements->empty())) {
        evaluateSetNewValue("SetNewValue(" + quotedKey + ")");
    } else if (value.text()) {
        setValueForVariable(value, "stringValue");
        evaluateSetNewValue("SetNewValue(" + quotedKey + ", $stringValue, Replace => 1)");
    } else if (auto number = value.number(); number && !number->isNaN()) {
        evaluateSetNewValue("SetNewValue(" + quotedKey + ", " + number->toText() + ", Replace => 1)");
    } else if (elements) {
        setNewTexts(value.texts(), quotedKey);
    }
}

void KTExifTool::setNewTexts(const std::vector<std::string>& texts, const std::string& quotedKey) {
    const char* statement = "@valueList = ($stringValue);";
    for (const std::string& text : texts) {
        setValueForVariable(text, "stringValue");
        evaluate(statement);
        statement = "push(@valueList, $stringValue);";
    }
    evaluateSetNewValue("SetNewValue(" + quotedKey + ", \\@valueList, Replace => 1)");
}

void KTExifTool::evaluateSetNewValue(const std::string& call) {
    evaluate("($success, $errorString) = $exifTool->" + call + ";");
    KTValue success = valueForVariable("success");
    auto count = success.number();
    if (count && !count->isZero())
        return;
    std::string error = valueForVariable("errorString").description();
    KTLog(KTStringWithFormat("setNewValue: %@", {error}));
    writeWarnings.push_back(error);
}

KTPhotoOperation KTExifTool::writeResultToFile(const std::filesystem::path& toFile,
                                               const std::filesystem::path& fromSourceFile) {
    setValueForVariable(toFile.string(), "destinationPath");
    setValueForVariable(fromSourceFile.string(), "sourcePath");
    const char* statement = toFile == fromSourceFile ? "$exifTool->WriteInfo($destinationPath);"
                            : isSidecarName(toFile)  ? "$exifTool->WriteInfo(undef, $destinationPath, 'XMP');"
                                                     : "$exifTool->WriteInfo($sourcePath, $destinationPath);";
    auto status = evaluate(statement).number();

    KTPhotoOperation operation;
    operation.operationDescription = KTLocalizedString("Write metadata to file");
    operation.url = toFile;
    if (KTValue warning = evaluate("$exifTool->GetValue('Warning');"); warning.isSomething())
        writeWarnings.insert(writeWarnings.begin(), warning.description());
    operation.isWarning = !writeWarnings.empty();
    if (operation.isWarning)
        operation.warningDescription = KTJoin(writeWarnings, "; ");
    operation.operationDidSucceed = status && !status->isZero();
    if (!operation.operationDidSucceed) {
        operation.failureReason = 1;
        KTValue error = evaluate("$exifTool->GetValue('Error');");
        operation.failureDescription =
            error.isSomething() ? error.description()
                                : KTLocalizedString("An unknown error occurred when writing to the file.");
    }
    if (noteReadError(operation))
        operation.failureReason = 1;
    return operation;
}

bool KTExifTool::noteReadError(KTPhotoOperation& operation) {
    const KTValue error = valueForVariable("waymarkReadError");
    if (!error.isSomething())
        return false;
    operation.operationDidSucceed = false;
    operation.failureDescription = KTStringWithFormat(
        KTLocalizedString("The file could not be read to its end: %@"), {error.description()});
    return true;
}

KTPhotoOperation KTExifTool::writeResultToFile(const std::filesystem::path& toFile) {
    return writeResultToFile(toFile, toFile);
}

bool KTExifTool::canWriteToFile(const std::string& fileNameOrType) {
    if (!canBeQuoted(fileNameOrType)) {
        KTLog(
            KTStringWithFormat("canWriteToFile: \"%@\" contains a quote or a backslash.", {fileNameOrType}));
        return false;
    }
    std::lock_guard guard(lock);
    KTValue answer = evaluate("Image::ExifTool::CanWrite('" + fileNameOrType + "') ? 1 : 0;");
    return answer.integer() && *answer.integer() != 0;
}

KTValue KTExifTool::libraryVersion() {
    std::lock_guard guard(lock);
    return evaluate("\"$Image::ExifTool::VERSION\";");
}

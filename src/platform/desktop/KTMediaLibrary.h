#pragma once
#include "platform/common/KTInstant.h"
#include "platform/desktop/KTMediaObject.h"

#include <functional>

/// What a desktop platform offers where programs keep photo libraries: reading the libraries, and telling
/// their programs to change a photo.

/// One library among those of a KTMediaLibrary. Any thread.
class KTMediaSource {
public:
    virtual ~KTMediaSource() = default;

    virtual std::string mediaSourceIdentifier() const = 0;
    /// Loads the group that holds everything else and then calls @p didLoad, once: before it returns when the
    /// group is loaded already, else on whatever thread the loading ends.
    virtual void loadRootGroup(std::function<void()> didLoad) = 0;
    /// The item, null when the source does not know it (yet).
    virtual std::shared_ptr<const KTMediaObject> mediaObjectForIdentifier(const std::string& identifier) = 0;
};

/// The photo libraries of the user. Any thread.
class KTMediaLibrary {
public:
    /// The kind of items to load: pictures.
    static constexpr unsigned kImages = 2;

    struct Options {
        unsigned sourceTypes = kImages;
        std::vector<std::string> includedSources; ///< by their identifiers
    };

    virtual ~KTMediaLibrary() = default;

    /// Finds out which sources there are and then calls @p didLoad with them, once, as
    /// KTMediaSource::loadRootGroup does.
    virtual void loadMediaSources(
        std::function<void(const std::vector<std::shared_ptr<KTMediaSource>>& sources)> didLoad) = 0;
};

/// One photo of a photo library's program, as the program lets it be changed. Any thread.
class KTScriptingPhoto {
public:
    virtual ~KTScriptingPhoto() = default;

    /// Sets the property with the four-character code @p code ("titl"); the null marker clears it.
    virtual void setProperty(std::string_view code, const KTValue& value) = 0;
    virtual void setDate(KTInstant date) = 0;
    /// Lets the program find the names of the place where the photo was taken.
    virtual void reverseGeocode() = 0;
};

/// A photo library's program. Any thread.
class KTScriptingApplication {
public:
    virtual ~KTScriptingApplication() = default;

    /// The photos whose text property @p property ("imagePath", "originalPath") is @p value, in the library's
    /// order.
    virtual std::vector<std::shared_ptr<KTScriptingPhoto>> photosWhose(std::string_view property,
                                                                       const std::string& value) = 0;
};

/// A platform with photo libraries. Any thread.
class KTMediaPlatform {
public:
    virtual ~KTMediaPlatform() = default;

    /// Null when there is none.
    virtual std::shared_ptr<KTMediaLibrary> mediaLibrary(const KTMediaLibrary::Options& options) = 0;
    /// Null when no such program is installed or it cannot be reached.
    virtual std::shared_ptr<KTScriptingApplication>
    applicationWithBundleIdentifier(const std::string& identifier) = 0;
    /// The version as users see it ("9.6.1"), without starting the program; nothing when it is not installed.
    virtual std::optional<std::string> versionOfApplication(const std::string& bundleIdentifier) = 0;
};

#pragma once
#include "export/waymark/KTPhotoExportPlugin.h"

class KTPhotoExportManagerOperation;

/// A kind of export that the user may choose: that of a bundle, or one that is part of the program. Main
/// thread.
class KTPhotoExportPluginClass {
public:
    virtual ~KTPhotoExportPluginClass() = default;

    virtual std::string
    uuid() const = 0; ///< the identity: of two classes with the same one, the first counts
    virtual std::string name() const = 0; ///< the menu title
    /// An image file; empty for none.
    virtual std::filesystem::path icon() const = 0;
    /// Part of the program: such classes stand behind those of bundles.
    virtual bool isBuiltIn() const = 0;

    /// The plug-in for one export, to be run by @p manager; null when it cannot work. The first call loads
    /// the code. Nothing is thrown; what went wrong is in the log.
    virtual std::unique_ptr<KTPhotoExportPlugin>
    initWithAPIManager(KTPhotoExportManagerOperation& manager) = 0;
    /// False once the code could not be loaded or threw when a plug-in was to be made.
    virtual bool isUsable() const = 0;
};

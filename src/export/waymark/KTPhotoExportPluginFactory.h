#pragma once
#include "KTPhotoExportPlugin.h"

#include <QtPlugin>

/// Names the interfaces and their version inside a library, where it is read without running the library.
#define KTPhotoExportPluginFactoryIID "waymark.PhotoExportPluginFactory/2"
static_assert(KTPhotoExportInterfaceVersion == 2, "the identifier carries the version");

/// What a bundle's library gives the host: the root object of a Qt plug-in. Made when the plug-in is first
/// chosen, on the main thread; lives to the end of the process.
class KTPhotoExportPluginFactory {
public:
    virtual ~KTPhotoExportPluginFactory() = default;

    /// The plug-in for one export, to which @p manager gives the photos; null when it cannot work.
    virtual std::unique_ptr<KTPhotoExportPlugin> initWithAPIManager(KTPhotoExportManager& manager) = 0;
};

Q_DECLARE_INTERFACE(KTPhotoExportPluginFactory, KTPhotoExportPluginFactoryIID)

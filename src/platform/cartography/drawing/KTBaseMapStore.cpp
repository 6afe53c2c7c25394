#include "platform/cartography/drawing/KTBaseMapStore.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTResources.h"

#include <stdexcept>

const std::shared_ptr<KTBaseMapStore>& KTBaseMapStore::sharedStore() {
    static const auto store = std::make_shared<KTBaseMapStore>(KTResourcePath("data/basemap/map.dat"));
    return store;
}

const KTBaseMapData* KTBaseMapStore::data() {
    std::call_once(hasRead, [this] {
        try {
            content = std::make_unique<const KTBaseMapData>(file);
        } catch (const std::exception& error) {
            std::string text =
                KTStringWithFormat(KTLocalizedString("The offline map cannot be read from %@: %@"),
                                   {file.string(), error.what()});
            KTLog(text);
            std::lock_guard guard(mutex);
            problem = std::move(text);
        }
    });
    return content.get();
}

std::optional<std::string> KTBaseMapStore::failure() const {
    std::lock_guard guard(mutex);
    return problem;
}

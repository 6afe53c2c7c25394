#include "platform/defaults/KTUserDefaults.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "platform/gazetteer/KTNominatimReverseGeocoder.h"
#include "platform/gazetteer/KTOfflineReverseGeocoder.h"

namespace {

/// A gazetteer whose reverse geocoder is the one that the settings name.
class FollowingGazetteer {
public:
    FollowingGazetteer()
        : choice(choiceOfSettings()), gazetteer(reverseGeocoderFor(choice)),
          observation(KTUserDefaults::standardUserDefaults().observe([this](const KTChange& change) {
              if (!change.isPrior && change.key.starts_with("reverseGeocoder"))
                  follow();
          })) {}

    KTGazetteer& get() { return gazetteer; }

private:
    struct Choice {
        bool usesServer;
        std::string server;
        bool operator==(const Choice&) const = default;
    };

    static Choice choiceOfSettings() {
        const KTUserDefaults& settings = KTUserDefaults::standardUserDefaults();
        const bool usesServer = settings.textForKey("reverseGeocoder") == "server";
        return {usesServer, usesServer ? settings.textForKey("reverseGeocoderServer") : std::string()};
    }

    std::shared_ptr<KTReverseGeocoder> reverseGeocoderFor(const Choice& wanted) {
        if (wanted.usesServer)
            return std::make_shared<KTNominatimReverseGeocoder>(wanted.server);
        return offline;
    }

    void follow() {
        const Choice wanted = choiceOfSettings();
        {
            std::lock_guard guard(mutex);
            if (std::exchange(choice, wanted) == wanted)
                return;
        }
        gazetteer.setSelectedReverseGeocoder(reverseGeocoderFor(wanted));
    }

    const std::shared_ptr<KTReverseGeocoder> offline =
        std::make_shared<KTOfflineReverseGeocoder>(); // kept, with its data, while another one is used
    std::mutex mutex;
    Choice choice; // guarded by the mutex
    KTGazetteer gazetteer;
    KTObservable::Observation observation;
};

} // namespace

KTGazetteer& KTGazetteer::sharedGazetteer() {
    static FollowingGazetteer shared;
    return shared.get();
}

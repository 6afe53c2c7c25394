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
          })) {
        follow(); // what was set meanwhile
    }

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

    /// One thread selects at a time, and looks at the settings again after each selection: what they say last
    /// holds, above all "offline".
    void follow() {
        {
            std::lock_guard guard(mutex);
            mustLookAgain = true;
            if (std::exchange(isSelecting, true))
                return;
        }
        while (mustSelect())
            gazetteer.setSelectedReverseGeocoder(reverseGeocoderFor(choice));
    }

    bool mustSelect() {
        for (;;) {
            {
                std::lock_guard guard(mutex);
                if (!std::exchange(mustLookAgain, false))
                    return isSelecting = false;
            }
            if (Choice wanted = choiceOfSettings(); wanted != choice) {
                choice = std::move(wanted);
                return true;
            }
        }
    }

    const std::shared_ptr<KTReverseGeocoder> offline =
        std::make_shared<KTOfflineReverseGeocoder>(); // kept, with its data, while another one is used
    std::mutex mutex;                                 // guards the two flags
    bool isSelecting = false, mustLookAgain = false;
    Choice choice; // of the thread that selects
    KTGazetteer gazetteer;
    KTObservable::Observation observation;
};

} // namespace

KTGazetteer& KTGazetteer::sharedGazetteer() {
    // Used by threads until the last of them is gone, so it stays; but its own must end.
    static FollowingGazetteer* const shared = new FollowingGazetteer;
    static const struct Closing {
        ~Closing() { shared->get().close(); }
    } closing;
    return shared->get();
}

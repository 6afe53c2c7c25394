#pragma once
#include "platform/gazetteer/KTReverseGeocoder.h"

#include <filesystem>
#include <memory>

/// Finds places without a network, in the data that the program carries ("data/gazetteer" of the resources;
/// the README there names the sources).
///
/// The country is that in whose polygon the position lies; within about 100 m of a border it is uncertain.
/// Antarctica and the open sea, more than some 50 km from land, have no country and so no place at all.
///
/// The city is the nearest populated place of that country within 50 km. Places beyond a border of a
/// first-level division (state, province) are passed over. These borders are drawn to about a kilometre, so a
/// place within 1.5 km is never taken to lie beyond one.
///
/// The state is the division of that nearest place. When the place is farther than 50 km, but within 250 km,
/// the state is told without the city, if all places on the same side of the borders within twice the
/// distance agree on it.
///
/// What is unknown is left out. So is the state of a place that belongs to no division.
class KTOfflineReverseGeocoder final : public KTReverseGeocoder {
public:
    KTOfflineReverseGeocoder();
    /// Looks in the file at @p path, which is read at the first question.
    explicit KTOfflineReverseGeocoder(std::filesystem::path path);
    ~KTOfflineReverseGeocoder() override;

    std::string name() const override;
    KTPlaceAnswer placeAtLatitude(double latitude, double longitude, const std::stop_token& stop) override;

private:
    struct Gazetteer;
    const Gazetteer* gazetteer();

    std::filesystem::path file;
    bool hasRead = false;
    std::unique_ptr<const Gazetteer> content;
};

#pragma once
#include "platform/cartography/KTPointGeometry.h"
#include "platform/cartography/KTSpatialObject.h"
#include "platform/cartography/KTSpatialObjectController.h"
#include "platform/cartography/KTStyle.h"

/// A feature with whatever a test sets.
struct FakeFeature : KTSpatialObject {
    FakeFeature(double longitude, double latitude)
        : place(std::make_shared<KTPointGeometry>(KTMapPoint{longitude, latitude})) {}

    std::string featureName() const override { return "feature"; }
    std::string featureDescription() const override { return {}; }
    std::string kind() const override { return "Fake"; }
    std::vector<std::string> propertiesByName() const override { return {}; }
    bool allowsInteraction() const override { return true; }
    std::shared_ptr<const KTGeometry> geometry() const override { return place; }
    std::shared_ptr<const KTStyle> style() const override { return drawnAs; }
    KTFeatureValues featureValues() const override { return values; }
    KTSpatialObjectController* objectOwner() const override { return nullptr; }
    void setObjectOwner(KTSpatialObjectController*) override {}

    /// The five rules of a photo.
    static std::shared_ptr<const KTStyle> photoStyle() {
        auto style = std::make_shared<KTStyle>();
        style->addRule({.symbolizers = {KTShinyBallSymbolizer{}}});
        style->addRule({.presentKey = "imageDirection", .symbolizers = {KTCompassFingerSymbolizer{}}});
        style->addRule({.presentKey = "latitudeShown",
                        .onlySelected = true,
                        .symbolizers = {KTGeodesicLineSymbolizer{}}});
        style->addRule({.presentKey = "imageDirection",
                        .onlySelected = true,
                        .maximumScaleDenominator = 1000000,
                        .symbolizers = {KTPieWedgeSymbolizer{}, KTGeodesicLineSymbolizer{}}});
        style->addRule({.onlySelected = true, .symbolizers = {KTStarSymbolizer{}}});
        return style;
    }
    static std::shared_ptr<const KTStyle> flagStyle() {
        auto style = std::make_shared<KTStyle>();
        style->addRule({.symbolizers = {KTLinkablePointSmartSymbolizer{}}});
        return style;
    }

    std::shared_ptr<const KTGeometry> place;
    std::shared_ptr<const KTStyle> drawnAs = photoStyle();
    KTFeatureValues values;
};

class FakeFeatureController : public KTSpatialObjectController {
public:
    std::string name() const override { return "Fakes"; }
    Objects spatialObjects() const override { return {features.begin(), features.end()}; }
    Indexes spatialObjectSelectionIndexes() const override { return selection; }
    bool addSelectedSpatialObjects(const Objects&) override { return false; }
    bool removeSelectedSpatialObjects(const Objects&) override { return false; }

    std::shared_ptr<FakeFeature> add(double longitude, double latitude, KTFeatureValues values = {}) {
        features.push_back(std::make_shared<FakeFeature>(longitude, latitude));
        features.back()->values = values;
        didChange("spatialObjects");
        return features.back();
    }
    void select(Indexes indexes) {
        selection = std::move(indexes);
        didChange("spatialObjectSelectionIndexes");
    }

    std::vector<std::shared_ptr<FakeFeature>> features;
    Indexes selection;
};

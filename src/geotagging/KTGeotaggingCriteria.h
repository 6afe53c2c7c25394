#pragma once

class KTUserDefaults;

/// What the user asks of a track point before a photo may take its place from it. A value type.
struct KTGeotaggingCriteria {
    bool shouldUseDistanceRestriction = false;
    double distanceRestriction = 25.0; ///< metres between the two neighbouring track points, inclusive
    bool shouldUseTimeRestriction = true;
    double timeRestriction = 300.0;     ///< seconds from the photo to the nearer track point, exclusive
    bool shouldANDRestrictions = false; ///< both restrictions must hold, where both are on; else one suffices
    bool shouldUseTimeWeightedAverage = false;
    bool shouldIgnorePreviouslyTaggedPhotos = true;

    /// The criteria in force in @p defaults.
    static KTGeotaggingCriteria criteriaFromDefaults(const KTUserDefaults& defaults);
    /// What is kept of a restriction that a user enters: a value above 0 as it stands, 0 for everything else.
    static double restrictionFromInput(double value) { return value > 0 ? value : 0; }
};

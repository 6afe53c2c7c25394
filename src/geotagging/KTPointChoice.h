#pragma once
#include "geotagging/KTGeotaggingVerdict.h"

/// Which of its candidate points a photo takes its place from.
enum class KTPointChoice { Preceding, Next, TimeWeighted };

/// The choice for an accepted photo taken at @p instant: the time-weighted point where the criteria want it
/// and both neighbours exist, else the neighbour nearer in time (the preceding one when both are equally
/// near), else the only one. Nothing without neighbours. Pure; any thread.
std::optional<KTPointChoice> KTChoosePoint(const KTGeotaggingCriteria& criteria, KTInstant instant,
                                           const KTTrackNeighbours& neighbours);

/// The position between @p preceding and @p next by the share of their time span that has passed at @p
/// instant, without a date. Each coordinate, and the elevation where both have one, is weighted on its own in
/// decimal arithmetic, straight in degrees: across the 180° meridian it takes the long way round. Nothing
/// when a date or a coordinate is missing. Pure; any thread.
std::optional<KTGeoPoint> KTTimeWeightedPosition(const KTGeoPoint& preceding, const KTGeoPoint& next,
                                                 KTInstant instant);

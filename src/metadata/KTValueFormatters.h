#pragma once
#include "metadata/KTNumberPatternFormatter.h"

/// ƒ-number: "ƒ/2.8", "ƒ/8".
class KTApertureFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// Exposure time in seconds: "1/250 of a second", "2.0 seconds".
class KTShutterSpeedFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// Rounded to a whole number.
class KTISOFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// Millimetres, one decimal.
class KTFocalLengthFormatter : public KTNumberPatternFormatter {
public:
    KTFocalLengthFormatter() : KTNumberPatternFormatter("#0.0 mm") {}
};

class KTExposureBiasFormatter : public KTNumberPatternFormatter {
public:
    KTExposureBiasFormatter() : KTNumberPatternFormatter("#0.0 EV") {}
};

/// Millimetres, up to three decimals.
class KTSensorSizeFormatter : public KTNumberPatternFormatter {
public:
    KTSensorSizeFormatter() : KTNumberPatternFormatter("#0.0## mm") {}
};

/// Whole degrees.
class KTAngleFormatter : public KTNumberPatternFormatter {
public:
    KTAngleFormatter() : KTNumberPatternFormatter("#0 °") {}
};

/// Degrees of latitude or longitude, up to ten decimals.
class KTLatLonFormatter : public KTNumberPatternFormatter {
public:
    KTLatLonFormatter() : KTNumberPatternFormatter("##0.0######### °") {}
};

/// A count of bytes in decimal units: "999 bytes", "1.2 KB".
class KTBytesFormatter : public KTNumberPatternFormatter {
public:
    KTBytesFormatter() : KTNumberPatternFormatter("###,##0.0") {}
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// Whether the receiver used differential correction; from a number or its text.
class KTGPSDifferentialFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// "2 dimensional" or "3 dimensional"; from a number or its text.
class KTGPSMeasurementModeFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// What the texts "A" and "V" stand for.
class KTGPSStatusFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// Metres above sea level, in the user's height unit.
class KTDefaultHeightFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override;
};

/// Any tag value as it stands, for the tag details.
class KTRawKeyFormatter : public KTFormatter {
public:
    std::string stringForObjectValue(const KTValue& value) const override { return value.description(); }
};

#pragma once
#include "app/editor/KTFieldEdit.h"

class KTMetadataField;

/// The values of a field as texts that are typed, and back.
class KTFieldText {
public:
    /// What a typed text means.
    struct Parsed {
        KTFieldEdit::Values values; ///< null when the text is no value of the field
        std::string problem;        ///< why; in the user's language
    };

    /// The text to edit: texts as they are; heights in the user's unit; dates as "2014-05-03 17:41:09", as
    /// far as their parts are set, instants in the zone in which the application shows dates. Empty for an
    /// absent value.
    static std::string editingText(const KTMetadataField& field, const KTValue& value);
    /// The text to show, by the field's formatter.
    static std::string displayText(const KTMetadataField& field, const KTValue& value);

    /// Takes what editingText gives, and what people type: heights with or without unit ("434.5", "434,5 m",
    /// "1426 ft"); dates with hyphens or colons and as far as their parts are known ("2014-05", "2014:05:03
    /// 17:41"). A date with a zone ("2014-05-03T17:41:09+02:00") is turned into the reading that the photo's
    /// own clock had then; one without is such a reading. Blank text clears.
    static Parsed parse(const KTMetadataField& field, std::string_view text);

private:
    static Parsed parseDate(const KTMetadataField& field, std::string_view text);
};

#pragma once
#include "platform/common/KTValue.h"

#include <span>

/// What kind of value a setting holds.
enum class KTSettingType {
    Boolean,
    Integer,
    Unsigned,
    Number,   ///< a decimal number
    Text,     ///< also paths
    TextList, ///< ordered texts
    Archive,  ///< lists and dictionaries, written as JSON
};

/// One setting that the program knows.
struct KTSetting {
    std::string_view key;
    KTSettingType type;
    /// The default as a user would write it; a null text when there is none or it depends on the computer.
    std::string_view defaultText = {};
    /// Works out a default that depends on the computer, which takes its time; null for the other settings.
    KTValue (*computedDefault)() = nullptr;
    /// The texts allowed, separated by '|'; null for any.
    std::string_view choices = {};

    /// The default that is the same on every computer; absent when there is none.
    KTValue fixedDefault() const;
    /// @p text as a value of this setting: flags as true/false, yes/no, on/off, 1/0 in any letter case;
    /// numbers as plain decimal text; lists split at '|'; archives as JSON. Nothing when it is not one.
    std::optional<KTValue> valueFromText(std::string_view text) const;
    /// What valueFromText takes, for an error message ("true or false").
    std::string expectation() const;
};

/// The one table of the program's settings. Any thread.
class KTSettingsTable {
public:
    /// A setting and a value for it, or why there is none.
    struct Assignment {
        std::string key;
        KTValue value;
        std::string error; ///< empty when key and value are good
    };

    static std::span<const KTSetting> settings();
    /// Null for a key that is not in the table.
    static const KTSetting* settingForKey(std::string_view key);
    /// Reads "KEY=VALUE" as given on a command line. An unknown key, a missing "=" or a value of the wrong
    /// kind gives an error text.
    static Assignment parseAssignment(std::string_view text);
};

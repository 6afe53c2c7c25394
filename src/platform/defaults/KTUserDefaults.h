#pragma once
#include "platform/observing/KTObservable.h"

#include <filesystem>
#include <shared_mutex>

/// The settings: values for this run over stored values over registered defaults. Every set is announced
/// under the setting's key, also when nothing changes by it, on the setting thread. Any thread.
///
/// Stored values live in an INI file, written at each set, or in a throw-away domain that is never written.
/// Keys of the file that the program does not know survive. Defaults and values for this run are never
/// written.
class KTUserDefaults : public KTObservable {
public:
    /// The settings of the process: the user's file (`userFile`) unless one of the two functions below was
    /// called before. The object stays the same through them.
    static KTUserDefaults& standardUserDefaults();
    /// Points the standard settings at @p file, which need not exist. False when it exists but cannot be
    /// read.
    static bool useDomain(const std::filesystem::path& file);
    /// Points the standard settings at an empty domain that is never written.
    static void useThrowAwayDomain();
    /// waymark/waymark.ini in the user's configuration folder.
    static std::filesystem::path userFile();

    /// A throw-away domain with the defaults of the settings table.
    KTUserDefaults();
    /// The domain in the file @p domain, with the same defaults.
    explicit KTUserDefaults(const std::filesystem::path& domain);

    /// Whether the file, if there is one, could be read in full. Where not, what could be read holds, and the
    /// file is left alone by every set.
    bool isReadable() const;

    /// The value in force; absent when nothing is stored or registered.
    KTValue valueForKey(std::string_view key) const;
    /// As above, converted; false, 0 or empty when the value is absent or not of that kind.
    bool boolForKey(std::string_view key) const;
    std::int64_t integerForKey(std::string_view key) const;
    double doubleForKey(std::string_view key) const;
    std::string textForKey(std::string_view key) const;
    std::vector<std::string> textsForKey(std::string_view key) const;

    /// Stores @p value; an absent one or the null marker removes what is stored. Ends a value for this run:
    /// the latest wish holds. False when the file could not be written; the value then holds in this process.
    bool setValue(std::string_view key, const KTValue& value);
    /// Lets @p value hold to the end of the process or the next setValue, without storing it.
    void setValueForThisRun(std::string_view key, const KTValue& value);
    /// What holds where nothing is stored; later registrations of a key replace earlier ones.
    void registerDefaults(const KTValue::Dictionary& values);

private:
    static KTUserDefaults& standardObject(const std::filesystem::path* file);
    void registerSettingsTable();
    bool open(const std::filesystem::path& newFile);  // an empty path for a throw-away domain
    KTValue valueInForce(std::string_view key) const; // the mutex must be held
    bool write(std::string_view key);
    void change(std::string_view key, const std::function<void()>& modify);

    mutable std::shared_mutex mutex; // never held while announcing or writing
    std::mutex fileMutex;            // one write at a time; taken before the other
    std::filesystem::path file;
    bool readable = true;
    KTValue::Dictionary forThisRun, stored;
    mutable KTValue::Dictionary registered; // computed defaults join on demand
};

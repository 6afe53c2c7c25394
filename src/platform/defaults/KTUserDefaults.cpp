#include "platform/defaults/KTUserDefaults.h"

#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTArchiveText.h"
#include "platform/defaults/KTSettingsTable.h"

#include <QSettings>
#include <QStandardPaths>

namespace {

QSettings settingsOfFile(const std::filesystem::path& file) {
    return QSettings(QString::fromStdString(file.string()), QSettings::IniFormat);
}

bool isArchive(const KTValue& value) {
    auto isNested = [](const KTValue& element) { return element.list() || element.dictionary(); };
    return value.dictionary() || (value.list() && std::ranges::any_of(*value.list(), isNested));
}

QVariant storedForm(const KTValue& value) {
    if (isArchive(value))
        return QString::fromStdString(KTArchiveText(value));
    if (!value.list())
        return QString::fromStdString(value.description());
    QStringList texts;
    for (const std::string& text : value.texts())
        texts.append(QString::fromStdString(text));
    return texts;
}

KTValue listOfStrings(const QStringList& strings) {
    KTValue::List list;
    for (const QString& string : strings)
        list.emplace_back(string.toStdString());
    return list;
}

/// What stands in a file under @p key; absent, and logged, when the setting cannot have that value.
KTValue valueOfStoredForm(const std::string& key, const QVariant& form) {
    const KTSetting* setting = KTSettingsTable::settingForKey(key);
    bool isList = form.typeId() == QMetaType::QStringList;
    if (setting && setting->type == KTSettingType::TextList && !isList)
        return listOfStrings(form.isValid() ? QStringList(form.toString()) : QStringList());
    // A text with a comma that was not quoted by hand comes as a list.
    std::string text = (isList ? form.toStringList().join(", ") : form.toString()).toStdString();
    if (!setting)
        return isList ? listOfStrings(form.toStringList()) : KTValue(text);
    if (setting->type == KTSettingType::TextList)
        return listOfStrings(form.toStringList());
    if (auto value = setting->valueFromText(text))
        return *value;
    KTLog("The setting \"" + key + "\" holds \"" + text + "\", which is not " + setting->expectation() +
          "; its default is used.");
    return {};
}

/// The stored form of a setting outside the table is text, whatever was set.
std::optional<KTDecimal> numberOf(const KTValue& value) {
    return value.text() ? KTDecimal::fromText(*value.text()) : value.number();
}

} // namespace

KTUserDefaults& KTUserDefaults::standardObject(const std::filesystem::path* file) {
    static KTUserDefaults defaults;
    static std::once_flag pointed;
    std::call_once(pointed, [&] {
        if (!file)
            defaults.open(userFile());
    });
    return defaults;
}

KTUserDefaults& KTUserDefaults::standardUserDefaults() {
    return standardObject(nullptr);
}

bool KTUserDefaults::useDomain(const std::filesystem::path& file) {
    return standardObject(&file).open(file);
}

void KTUserDefaults::useThrowAwayDomain() {
    useDomain({});
}

std::filesystem::path KTUserDefaults::userFile() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::filesystem::path(folder.toStdString()) / "waymark" / "waymark.ini";
}

KTUserDefaults::KTUserDefaults() {
    registerSettingsTable();
}

KTUserDefaults::KTUserDefaults(const std::filesystem::path& domain) : KTUserDefaults() {
    open(domain);
}

void KTUserDefaults::registerSettingsTable() {
    for (const KTSetting& setting : KTSettingsTable::settings())
        if (KTValue value = setting.fixedDefault(); !value.isAbsent())
            registered.emplace(setting.key, std::move(value));
}

bool KTUserDefaults::open(const std::filesystem::path& newFile) {
    KTValue::Dictionary values;
    bool isGood = true;
    if (!newFile.empty()) {
        QSettings settings = settingsOfFile(newFile);
        for (const QString& key : settings.allKeys()) {
            std::string name = key.toStdString();
            if (KTValue value = valueOfStoredForm(name, settings.value(key)); !value.isAbsent())
                values.emplace(name, std::move(value));
        }
        isGood = settings.status() == QSettings::NoError && !std::filesystem::is_directory(newFile);
    }
    std::vector<std::string> keys;
    {
        std::scoped_lock guard(fileMutex, mutex);
        for (auto* dictionary : {&forThisRun, &stored, &values})
            for (const auto& [key, value] : *dictionary)
                keys.push_back(key);
        file = newFile;
        readable = isGood;
        stored = std::move(values);
        forThisRun.clear();
    }
    for (const std::string& key : keys)
        didChange(key);
    return isGood;
}

bool KTUserDefaults::isReadable() const {
    std::shared_lock guard(mutex);
    return readable;
}

KTValue KTUserDefaults::valueInForce(std::string_view key) const {
    for (const auto* dictionary : {&forThisRun, &stored, &std::as_const(registered)})
        if (auto entry = dictionary->find(key); entry != dictionary->end())
            return entry->second;
    return {};
}

KTValue KTUserDefaults::valueForKey(std::string_view key) const {
    {
        std::shared_lock guard(mutex);
        if (KTValue value = valueInForce(key); !value.isAbsent())
            return value;
    }
    // Defaults that depend on the computer cost milliseconds, so each is registered when it is first asked
    // for.
    const KTSetting* setting = KTSettingsTable::settingForKey(key);
    if (!setting || !setting->computedDefault)
        return {};
    KTValue value = setting->computedDefault();
    std::lock_guard guard(mutex);
    return registered.emplace(key, std::move(value)).first->second;
}

bool KTUserDefaults::boolForKey(std::string_view key) const {
    KTValue value = valueForKey(key);
    if (auto flag = value.flag())
        return *flag;
    if (auto number = numberOf(value))
        return !number->isZero();
    return value.text() && KTEqualIgnoringCase(*value.text(), "true");
}

std::int64_t KTUserDefaults::integerForKey(std::string_view key) const {
    auto number = numberOf(valueForKey(key));
    return number ? number->toInteger() : 0;
}

double KTUserDefaults::doubleForKey(std::string_view key) const {
    auto number = numberOf(valueForKey(key));
    return number ? number->toDouble() : 0;
}

std::string KTUserDefaults::textForKey(std::string_view key) const {
    KTValue value = valueForKey(key);
    return value.text() ? *value.text() : std::string();
}

std::vector<std::string> KTUserDefaults::textsForKey(std::string_view key) const {
    return valueForKey(key).texts();
}

void KTUserDefaults::change(std::string_view key, const std::function<void()>& modify) {
    willChange(key);
    KTValue oldValue = valueForKey(key);
    {
        std::lock_guard guard(mutex);
        modify();
    }
    didChange(key, KTChange::Kind::Setting, {}, std::move(oldValue));
}

bool KTUserDefaults::setValue(std::string_view key, const KTValue& value) {
    std::string name(key);
    change(key, [&] {
        forThisRun.erase(name);
        if (value.isSomething())
            stored[name] = value;
        else
            stored.erase(name);
    });
    return write(key);
}

void KTUserDefaults::setValueForThisRun(std::string_view key, const KTValue& value) {
    change(key, [&] { forThisRun[std::string(key)] = value; });
}

void KTUserDefaults::registerDefaults(const KTValue::Dictionary& values) {
    std::lock_guard guard(mutex);
    for (const auto& [key, value] : values)
        registered[key] = value;
}

bool KTUserDefaults::write(std::string_view key) {
    std::lock_guard fileGuard(fileMutex);
    KTValue value;
    {
        // Read here and not handed in, so that of two sets at the same time the later one is also written
        // last.
        std::shared_lock guard(mutex);
        if (file.empty())
            return true;
        if (!readable)
            return false;
        if (auto entry = stored.find(key); entry != stored.end())
            value = entry->second;
    }
    QSettings settings = settingsOfFile(file);
    QString name = QString::fromUtf8(key.data(), qsizetype(key.size()));
    if (value.isAbsent())
        settings.remove(name);
    else
        settings.setValue(name, storedForm(value));
    settings.sync();
    if (settings.status() == QSettings::NoError)
        return true;
    KTLog("The settings could not be written to \"" + file.string() + "\".");
    return false;
}

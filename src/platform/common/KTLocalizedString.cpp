#include "platform/common/KTLocalizedString.h"

#include <QTranslator>
#include <atomic>
#include <memory>
#include <vector>

namespace {

std::atomic<const QTranslator*> translation = nullptr;

/// Empty where there is no translation. @p count is negative for texts that depend on none.
std::string translated(std::string_view source, int count = -1) {
    const QTranslator* const from = translation;
    if (from == nullptr || source.empty())
        return {};
    return from->translate("Waymark", std::string(source).c_str(), nullptr, count).toStdString();
}

std::string withCount(std::string text, std::size_t count) {
    for (std::string_view placeholder : {"%d", "%lu"})
        if (const auto place = text.find(placeholder); place != std::string::npos)
            return text.replace(place, placeholder.size(), std::to_string(count));
    return text;
}

} // namespace

std::string KTLocalizedString(std::string_view key, std::string_view english) {
    std::string text = translated(key);
    if (text.empty() && key != english)
        text = translated(english);
    return text.empty() ? std::string(english) : text;
}

std::string KTLocalizedString(std::string_view english) {
    return KTLocalizedString(english, english);
}

std::string KTLocalizedCount(std::string_view one, std::string_view several, std::size_t count) {
    const std::string text = translated(several, int(std::min<std::size_t>(count, 1'000'000'000)));
    return withCount(text.empty() ? std::string(count == 1 ? one : several) : text, count);
}

std::string KTLocalizedCount(std::string_view several, std::size_t count) {
    return KTLocalizedCount(several, several, count);
}

bool KTUseTranslation(const std::filesystem::path& file) {
    static std::vector<std::unique_ptr<QTranslator>> loaded;
    auto translator = std::make_unique<QTranslator>();
    if (file.empty()) {
        translation = nullptr;
        return true;
    }
    if (!translator->load(QString::fromStdString(file.string())))
        return false;
    translation = translator.get();
    loaded.push_back(std::move(translator));
    return true;
}

#include "FolderNames.h"

#include <QStringList>
#include <algorithm>
#include <set>

namespace fs = std::filesystem;

namespace {

constexpr qsizetype kLongestName = 180;           // bytes, of the 255 that file systems allow
constexpr const char* kForbidden = "/\\:*?\"<>|"; // somewhere

std::string textOf(const KTExportedPhoto& photo, const char* key) {
    const KTExportedValue value = photo.valueForKey(key);
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? std::string() : *text;
}

/// "2014:06:01 12:00:00" of the camera's clock; of a date that is not complete, its first parts.
QString dateOf(const KTExportedPhoto& photo) {
    return QString::fromStdString(textOf(photo, "dateTimeOriginalComponents"));
}

/// The @p field, of digits, of a date; empty where it is open.
QString part(const QString& date, int from, int length) {
    const QString digits = date.mid(from, length);
    const bool isWhole =
        digits.size() == length && std::ranges::all_of(digits, [](QChar c) { return c.isDigit(); });
    return isWhole ? digits : QString();
}

QString joined(const QStringList& parts) {
    return parts.contains(QString()) ? QString() : parts.join('-');
}

/// A part of a pattern may hold anything; a file's name may not.
QString cleaned(QString name) {
    for (QChar& character : name)
        if (QString(kForbidden).contains(character) || character < QChar(' '))
            character = '-';
    while (name.startsWith('.') || name.startsWith(' '))
        name.remove(0, 1);
    while (name.toUtf8().size() > kLongestName)
        name.chop(1);
    return name.trimmed();
}

} // namespace

std::string FolderNames::nameFor(const KTExportedPhoto& photo, std::size_t number, std::size_t count) const {
    const std::string own = fs::path(photo.filename()).stem().string();
    if (settings.namePattern == "{name}")
        return own; // its bytes, which need not be text
    const QString date = dateOf(photo);
    const auto digits = std::max(3, int(std::to_string(count).size()));
    QString name = QString::fromStdString(settings.namePattern);
    name.replace("{number}", QString::number(number).rightJustified(digits, '0'));
    name.replace("{date}", joined({part(date, 0, 4), part(date, 5, 2), part(date, 8, 2)}));
    name.replace("{time}", joined({part(date, 11, 2), part(date, 14, 2), part(date, 17, 2)}));
    name.replace("{title}", QString::fromStdString(textOf(photo, "title")));
    name.replace("{name}", QString::fromStdString(own));
    const std::string result = cleaned(name).toStdString();
    return result.empty() ? own : result;
}

std::string FolderNames::extensionFor(const KTExportedPhoto& photo) const {
    if (!settings.imageType.empty() && settings.imageType != photo.uti())
        if (const std::string other = manager.fileExtensionForUTI(settings.imageType); !other.empty())
            return "." + other;
    return fs::path(photo.filename()).extension().string();
}

fs::path FolderNames::folderFor(const KTExportedPhoto& photo) const {
    const QString date = dateOf(photo);
    fs::path result = folder;
    constexpr int kParts[][2] = {{0, 4}, {5, 2}, {8, 2}};
    for (int level = 0; level < settings.subFolders; ++level) {
        const QString name = part(date, kParts[level][0], kParts[level][1]);
        if (name.isEmpty())
            break;
        result /= name.toStdString();
    }
    return result;
}

std::vector<fs::path> FolderNames::destinations(bool avoidsExisting) const {
    const auto photos = manager.photos();
    std::vector<fs::path> result;
    std::set<QString> taken; // in small letters: some file systems know no others
    std::error_code error;
    for (std::size_t i = 0; i < photos.size(); ++i) {
        const std::string name = nameFor(*photos[i], i + 1, photos.size()),
                          extension = extensionFor(*photos[i]);
        const fs::path into = folderFor(*photos[i]);
        fs::path candidate = into / (name + extension);
        const auto isTaken = [&] {
            return taken.contains(QString::fromStdString(candidate.string()).toLower()) ||
                   (avoidsExisting && fs::exists(fs::symlink_status(candidate, error)));
        };
        for (int number = 1; isTaken(); ++number)
            candidate = into / (name + "-" + std::to_string(number) + extension);
        taken.insert(QString::fromStdString(candidate.string()).toLower());
        result.push_back(candidate);
    }
    return result;
}

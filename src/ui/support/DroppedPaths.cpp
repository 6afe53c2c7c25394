#include "ui/support/DroppedPaths.h"

namespace {

constexpr QByteArrayView kScheme = "file://";

/// The path of "file:///…" or "file://host/…"; empty for other addresses.
QByteArray pathOf(const QByteArray& address) {
    if (!address.startsWith(kScheme))
        return {};
    const qsizetype slash = address.indexOf('/', kScheme.size());
    return slash < 0 ? QByteArray() : QByteArray::fromPercentEncoding(address.mid(slash));
}

} // namespace

std::vector<std::filesystem::path> droppedPaths(const QMimeData& data) {
    QStringList addresses;
    for (const QByteArray& line : data.data("text/uri-list").split('\n'))
        addresses << QString::fromLatin1(line.trimmed());
    return pathsOfAddresses(addresses);
}

QStringList addressesOf(const std::vector<std::filesystem::path>& files) {
    QStringList addresses;
    for (const std::filesystem::path& file : files)
        addresses << QString::fromLatin1(kScheme.toByteArray() +
                                         QByteArray::fromStdString(file.string()).toPercentEncoding("/"));
    return addresses;
}

std::vector<std::filesystem::path> pathsOfAddresses(const QStringList& addresses) {
    std::vector<std::filesystem::path> paths;
    for (const QString& address : addresses)
        if (const QByteArray path = pathOf(address.toUtf8()); !path.isEmpty())
            paths.emplace_back(path.toStdString());
    return paths;
}

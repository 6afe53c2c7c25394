#pragma once
#include <QMimeData>
#include <QStringList>
#include <filesystem>
#include <vector>

/// The local files that a drag or the clipboard carries, byte for byte: names need not be UTF-8.
std::vector<std::filesystem::path> droppedPaths(const QMimeData& data);

/// "file://…" addresses of files, and back; other addresses are left out.
QStringList addressesOf(const std::vector<std::filesystem::path>& files);
std::vector<std::filesystem::path> pathsOfAddresses(const QStringList& addresses);

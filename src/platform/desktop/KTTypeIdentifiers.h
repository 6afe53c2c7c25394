#pragma once
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What one file name extension says about a file.
struct KTTypeIdentifier {
    std::string_view extension;  ///< without dot, in small letters
    std::string_view identifier; ///< the uniform type identifier ("public.jpeg")
    std::string_view mimeType;   ///< empty where none is in general use
};

/// The types that photos and what is made of them come in. Of the extensions of one type the usual one comes
/// first. Types for which no identifier, or more than one, is in general use are left out.
std::span<const KTTypeIdentifier> KTTypeIdentifiers();

/// The row of the usual extension of @p identifier; null for one that the table does not know. Any thread.
const KTTypeIdentifier* KTTypeWithIdentifier(std::string_view identifier);
/// The same for a MIME type ("image/jpeg").
const KTTypeIdentifier* KTTypeWithMIMEType(std::string_view mimeType);

/// The uniform type identifier that the extension of @p file, in any letter case, stands for; nothing for one
/// that the table does not know. The file need not exist. Any thread.
std::optional<std::string> KTTypeIdentifierForPath(const std::filesystem::path& file);

#pragma once
#include "metadata/KTMetadataGroup.h"

#include <filesystem>

/// A named layout of the metadata editor, kept in a file of its own.
struct KTUserTemplate {
    using Groups = std::vector<std::shared_ptr<KTMetadataGroup>>;

    std::string templateName;
    std::filesystem::path templatePath;
    Groups groups;
};

/// The files of the user's templates: property lists in one folder. Main thread.
class KTUserTemplates {
public:
    /// Waymark/MetadataTemplates in the user's folder for application data.
    static std::filesystem::path userFolder();
    explicit KTUserTemplates(std::filesystem::path folder) : templatesFolder(std::move(folder)) {}

    /// The folder, made where it was missing; nothing, and a line in the log, when it cannot be.
    std::optional<std::filesystem::path> userTemplatesFolderPath() const;
    /// Its files whose extension is exactly "plist", by name.
    std::vector<std::filesystem::path> userTemplatePaths() const;
    /// The template in a file. What in it is no name, group or known field is passed over; nothing for a file
    /// that is no property list of a dictionary.
    static std::optional<KTUserTemplate> readTemplateFromPath(const std::filesystem::path& path);
    /// Writes the groups under that name to a file that did not exist, named after it as far as a file can
    /// be. Nothing when they could not be written; @p problem then says why.
    std::optional<KTUserTemplate> saveTemplate(const KTUserTemplate::Groups& groups,
                                               const std::string& withName, std::string& problem) const;
    /// Deletes its file. Whether that is gone.
    static bool removeTemplate(const KTUserTemplate& userTemplate);

private:
    static std::optional<std::string> writeTemplate(const KTUserTemplate& userTemplate);
    static std::filesystem::path freePath(const std::filesystem::path& folder, const std::string& name);

    const std::filesystem::path templatesFolder;
};

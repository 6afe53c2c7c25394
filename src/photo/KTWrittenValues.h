#pragma once
#include "metadata/KTPhotoOperation.h"
#include "metadata/KTTagDictionary.h"

/// Writing a language-alternative text under its plain key deletes its other languages; where @p saved holds
/// others
/// ("XMP:Description-de"), the default entry alone is addressed. Deleting the plain key still clears all
/// languages.
KTTagDictionary adaptedToLanguageAlternatives(const KTTagDictionary& changes, const KTTagDictionary& saved);

/// The entries of @p changes that none of the tags @p asRead shows: refused by the library, or changed on the
/// way (a character that the format cannot hold). Several tags may share a key; one that holds the value is
/// enough. Numbers count as equal within the precision of the formats' fractions.
KTTagDictionary valuesNotWritten(const KTTagDictionary& changes,
                                 const std::vector<KTTagDictionary::Entry>& asRead);

/// The warning that names the keys of @p values.
std::string valuesNotWrittenText(const KTTagDictionary& values);

/// Adds @p warning to those that @p operation has.
void addWarning(KTPhotoOperation& operation, const std::string& warning);

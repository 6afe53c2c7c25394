#pragma once
#include "metadata/KTMetadataProperties.h"
#include "metadata/KTTagDictionary.h"

#include <memory>

class KTFormatter;

enum class KTValueType { None, Text, Decimal, List, Date, DateComponents };

/// What the catalogue says about one field.
struct KTMetadataFieldDefinition {
    std::string key;              ///< the photo's property that holds the value
    std::string name;             ///< display name
    std::string secondaryName;    ///< for the second half of a two-part editor (time beside date)
    std::string singularName;     ///< of one element of a list field
    std::string usageDescription; ///< help text
    KTValueType propertyType = KTValueType::None;
    KTValueType exifToolPropertyType = KTValueType::None; ///< type written to the tags; None: as the property
    std::shared_ptr<const KTFormatter> formatter;         ///< null for none
    bool readonlyFlag = true;
    bool directlyUserEditable = false;
    std::string primaryExifToolKey, xmpExifToolKey; ///< of a simple field
    std::string compositeExifToolKey;               ///< of a composite field
};

/// One property of a photo and how it is read from, and written to, the tags of an image file and the records
/// of a photo library. This base class stands for a property without tags. Immutable except for the display
/// names of copies that a user's group holds; const use is safe on every thread.
///
/// Conversions never fail loudly: a tag that is missing, of the wrong kind or unreadable reads as absent.
/// Writing records changes in a dictionary of changes, the null marker for "delete", and only where the file
/// differs.
class KTMetadataField {
public:
    explicit KTMetadataField(KTMetadataFieldDefinition fieldDefinition)
        : definition(std::move(fieldDefinition)) {}
    virtual ~KTMetadataField() = default;
    KTMetadataField& operator=(const KTMetadataField&) = delete;

    const std::string& key() const { return definition.key; }
    const std::string& name() const { return definition.name; }
    void setName(std::string newName) { definition.name = std::move(newName); }
    const std::string& secondaryName() const { return definition.secondaryName; }
    void setSecondaryName(std::string newName) { definition.secondaryName = std::move(newName); }
    const std::string& singularName() const { return definition.singularName; }
    void setSingularName(std::string newName) { definition.singularName = std::move(newName); }
    const std::string& usageDescription() const { return definition.usageDescription; }
    const std::shared_ptr<const KTFormatter>& formatter() const { return definition.formatter; }
    KTValueType propertyType() const { return definition.propertyType; }
    KTValueType exifToolPropertyType() const;

    /// Editable in the metadata editor itself.
    virtual bool directlyUserEditable() const { return definition.directlyUserEditable; }
    virtual void setDirectlyUserEditable(bool editable) { definition.directlyUserEditable = editable; }
    /// Neither editable in the editor nor changed by the tools.
    bool readonly() const { return definition.readonlyFlag && !directlyUserEditable(); }

    /// The tags that the field lists as its own; a class may read and write more.
    virtual std::vector<std::string> exifToolKeys() const { return {}; }
    /// The value that a file with @p tags holds.
    virtual KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                const KTMetadataProperties& properties) const;
    /// Records in @p changes what must be written so that a file that holds @p existing reads as @p value
    /// (absent or null: cleared); withdraws earlier changes that are no longer needed.
    virtual void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                 const KTTagDictionary& existing,
                                                 const KTMetadataProperties& properties) const;

    /// Whether the field is kept in step with a photo library.
    virtual bool iPhotoSupported() const { return false; }
    /// The value in a photo library's @p record, whose keys begin with the source ("xml:", "sql:", "sb:").
    virtual KTValue valueFromiPhotoDictionary(const KTTagDictionary& record) const;
    /// As modifyExifToolChangesDictionary, for a library's record.
    virtual void modifyiPhotoChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                               const KTTagDictionary& record) const;

    virtual std::shared_ptr<KTMetadataField> copy() const;
    /// The field's key and names, for a stored group.
    KTValue::Dictionary encode() const;
    /// A copy of the catalogue's field of the archived key, with the archived name; null for an unknown key.
    static std::shared_ptr<KTMetadataField> decode(const KTValue::Dictionary& archive);

    /// @p value of a tag as @p type; absent when it cannot be (an absent list is an empty one). Texts of only
    /// white space are absent; a list becomes text joined with " | " and a text a list split at '|'; a
    /// decimal is the number that a text begins with; a date without a zone is in the assumed zone. Numbers
    /// in lists become texts.
    static KTValue coerceExifToolValue(const KTValue& value, KTValueType type);
    /// Records @p value, as @p type, under @p key of @p changes where @p existing differs, else withdraws the
    /// key. Decimals less than 0.00000001 apart do not differ. An absent value or an empty list deletes the
    /// tag.
    static void addValue(const KTValue& value, KTValueType type, std::string_view key,
                         KTTagDictionary& changes, const KTTagDictionary& existing);
    /// As addValue, but only for a tag that @p existing has.
    static void replaceValue(const KTValue& value, KTValueType type, std::string_view key,
                             KTTagDictionary& changes, const KTTagDictionary& existing);

    /// Which of the values wins where several blocks of a file hold the same fact.
    static KTValue valueFromEXIFValue(const KTValue& exif, const KTValue& orXMPValue,
                                      const KTMetadataProperties& properties);
    static KTValue valueFromIPTCValue(const KTValue& iptc, const KTValue& orXMPValue,
                                      const KTMetadataProperties& properties);
    static KTValue valueFromEXIFValue(const KTValue& exif, const KTValue& orIPTCValue,
                                      const KTValue& orXMPValue, const KTMetadataProperties& properties);

    /// 8 fractional digits, to nearest.
    static KTDecimal roundingBehavior(const KTDecimal& number) { return number.rounded(8); }
    /// 8 fractional digits, down.
    static KTDecimal diffRoundingBehavior(const KTDecimal& number) {
        return number.rounded(8, KTDecimal::Rounding::Down);
    }

protected:
    KTMetadataField(const KTMetadataField&) = default;

    /// The name of the field's value in a photo library's record, without source; null when it has none.
    virtual std::string_view libraryKey() const { return {}; }

    KTMetadataFieldDefinition definition;
};

/// Base of the concrete field classes: gives @p Class its copy.
template<class Class, class Base = KTMetadataField>
class KTMetadataFieldOfClass : public Base {
public:
    using Base::Base;
    std::shared_ptr<KTMetadataField> copy() const override {
        return std::shared_ptr<KTMetadataField>(new Class(static_cast<const Class&>(*this)));
    }
};

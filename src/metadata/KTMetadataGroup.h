#pragma once
#include "metadata/KTMetadataField.h"
#include "platform/observing/KTObservable.h"

/// A named, ordered list of fields. Announces changes of "name" and of "fields", the latter as insertions and
/// removals at the affected indexes; a move is announced as the removal and the insertion that it consists
/// of. For one thread at a time.
class KTMetadataGroup : public KTObservable {
public:
    using Fields = std::vector<std::shared_ptr<KTMetadataField>>;

    KTMetadataGroup(); ///< named "Untitled", in the user's language
    explicit KTMetadataGroup(std::string newName) : groupName(std::move(newName)) {}
    static std::shared_ptr<KTMetadataGroup> initWithName(std::string name);

    const std::string& name() const { return groupName; }
    void setName(std::string name);
    const Fields& fields() const { return groupFields; }
    void setFields(Fields fields);

    /// Appends @p field; returns true.
    bool addField(std::shared_ptr<KTMetadataField> field);
    /// Inserts @p field; false, and nothing done, when @p atIndex is past the end.
    bool addField(std::shared_ptr<KTMetadataField> field, std::size_t atIndex);
    /// Removes that very object; false when it is not in the group.
    bool removeField(const KTMetadataField& field);
    /// Takes the field at @p from out and inserts it at @p toIndex of what remains; false, and nothing done,
    /// when either is not an index of the list.
    bool moveFieldFromIndex(std::size_t from, std::size_t toIndex);

    /// A group with the same name and a copy of each field.
    std::shared_ptr<KTMetadataGroup> copy() const;
    KTValue::Dictionary encode() const;
    /// The group that was archived, with the catalogue's present definitions of its fields; fields that the
    /// catalogue does not know are left out.
    static std::shared_ptr<KTMetadataGroup> decode(const KTValue::Dictionary& archive);

private:
    void removeAtIndex(std::size_t index);

    std::string groupName;
    Fields groupFields;
};

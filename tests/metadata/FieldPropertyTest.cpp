#include "tests/metadata/FieldTestSupport.h"

#include <rapidcheck/gtest.h>

namespace {

/// Sets the settings up once a run; properties have no fixture.
const KTMetadataFieldManager& catalogue() {
    static const KTMetadataFieldManager& manager = [&]() -> const KTMetadataFieldManager& {
        KTUserDefaults::useThrowAwayDomain();
        return KTMetadataFieldManager::sharedMetadataFieldManager();
    }();
    return manager;
}

rc::Gen<Properties> anyProperties() {
    return rc::gen::construct<Properties>(rc::gen::arbitrary<bool>(), rc::gen::arbitrary<bool>(),
                                          rc::gen::arbitrary<bool>(), rc::gen::arbitrary<bool>(),
                                          rc::gen::arbitrary<bool>());
}

KTDateComponents anyDate() {
    char text[32];
    std::snprintf(text, sizeof text, "%04d:%02d:%02d %02d:%02d:%02d", *rc::gen::inRange(1900, 2100),
                  *rc::gen::inRange(1, 13), *rc::gen::inRange(1, 29), *rc::gen::inRange(0, 24),
                  *rc::gen::inRange(0, 60), *rc::gen::inRange(0, 60));
    return components(text);
}

/// A value that the photo could hold in a property of @p type.
KTValue anyValue(const KTMetadataField& field) {
    const std::vector<std::string> words = {"a", "b c", "Ř", "True", "12"};
    switch (field.propertyType()) {
    case Decimal:
        return (KTDecimal::fromInteger(*rc::gen::inRange(-17999, 18000)) / KTDecimal::fromInteger(100));
    case List:
        return texts(*rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(words)));
    case DateComponents:
        return anyDate();
    case Date:
        return KTInstantFromMilliseconds(std::int64_t(*rc::gen::inRange(-1000000000, 2000000000)) * 1000);
    default:
        if (field.key() == "marked")
            return *rc::gen::element<std::string>("Copyrighted", "Public Domain", " ");
        if (field.key() == "gpsVersionID")
            return "2.2.0.0";
        return *rc::gen::elementOf(words);
    }
}

Tags applied(Tags tags, const Tags& changes) {
    for (const auto& [key, value] : changes)
        tags.set(key, value.isNull() ? KTValue() : value);
    return tags;
}

/// What ExifTool would derive from the tags that the fields write.
void deriveComposites(Tags& tags) {
    auto join = [&](const char* date, const char* time, const char* both) {
        tags.remove(both);
        if (tags.hasValue(date) && tags.hasValue(time))
            tags.set(both, tags.valueForKey(date).description() + " " + tags.valueForKey(time).description());
    };
    join("IPTC:DateCreated", "IPTC:TimeCreated", "Composite:DateTimeCreated");
    join("IPTC:DigitalCreationDate", "IPTC:DigitalCreationTime", "Composite:DigitalCreationDateTime");
}

KTValue pickWritable(const KTMetadataField*& picked) {
    picked = (*rc::gen::elementOf(catalogue().metadataFields())).get();
    RC_PRE(!picked->readonly());
    return anyValue(*picked);
}

/// The changed field reads as it was set once the changes are written, and setting it again, to the value as
/// read, leaves nothing to write.
RC_GTEST_PROP(FieldPropertyTest, WhatIsWrittenReadsBack, ()) {
    const KTMetadataField* field = nullptr;
    KTValue value = pickWritable(field);
    Properties properties = *anyProperties();
    properties.hasXMPBlock = true; // as it is after a write that made one
    Tags changes = write(field->key(), value, {}, properties);
    Tags file = applied({}, changes);
    deriveComposites(file);
    KTValue reread = field->valueFromExifToolDictionary(file, properties);
    RC_LOG() << field->key() << " " << describe(value) << " reads " << describe(reread) << "\n";
    bool hasTags = field->key() != "creationDate";
    bool isComponents = value.components() && reread.components();
    RC_ASSERT(!hasTags ||
              (isComponents ? value.components()->hasSameReading(*reread.components()) : reread == value));
    RC_ASSERT(write(field->key(), reread, file, properties) == Tags());
}

/// Setting a value and setting the former one again withdraws every change.
RC_GTEST_PROP(FieldPropertyTest, SettingBackWithdrawsTheChanges, ()) {
    const KTMetadataField* field = nullptr;
    KTValue former = pickWritable(field), value = anyValue(*field);
    Properties properties = *anyProperties();
    properties.hasXMPBlock = true;
    Tags file = applied({}, write(field->key(), former, {}, properties));
    deriveComposites(file);
    KTValue current = field->valueFromExifToolDictionary(file, properties);
    Tags changes = write(field->key(), value, file, properties);
    RC_LOG() << field->key() << " " << describe(current) << " then " << describe(value) << "\n";
    RC_ASSERT(write(field->key(), current, file, properties, changes) == Tags());
}

} // namespace

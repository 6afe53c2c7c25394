#include "metadata/KTMetadataHelpTable.h"

namespace {

constexpr KTMetadataHelpRow kRows[] = {
    // Newscodes
    {"intellectualGenre",
     "Nature of the image as a piece of journalism, and not what it shows. Use a term of the IPTC Genre "
     "NewsCodes.",
     {"Actuality", "Profile"},
     "IPTC: ObjectAttributeReference; XMP: IntellectualGenre"},
    {"sceneCodes",
     "Kind of view, as codes of six digits from the IPTC Scene NewsCodes: 010100 is a headshot, 011200 an "
     "aerial view, 011400 a night scene.",
     {"011200", "011400 | 011600"},
     "XMP: Scene"},
    {"subjectCodes",
     "What the image is about, as codes of eight digits from the IPTC Subject NewsCodes: 15000000 is sport, "
     "15054000 soccer. News agencies sort incoming images by them.",
     {"15054000"},
     "IPTC: SubjectReference; XMP: SubjectCode"},
    {"urgency",
     "Editorial urgency of the image for a news desk, from 1 (most urgent) through 5 (normal) to 8 (least "
     "urgent).",
     {"5"},
     "IPTC: Urgency; XMP: Urgency"},
    {"transmissionReference",
     "Number or name of the job or assignment that the image belongs to, for your own workflow or that of "
     "the client who receives it.",
     {"2012-07-LU-0815"},
     "IPTC: OriginalTransmissionReference; XMP: TransmissionReference"},

    // Organization
    {"category",
     "Main subject of the image as a code of at most three letters, agreed with the receiving agency. "
     "Subject codes have taken its place, but some agencies still ask for it.",
     {"SPO", "POL"},
     "IPTC: Category; XMP: Category"},
    {"event",
     "Name of the event at which the image was shot. Use the same words for all images of the event, so that "
     "they can be found together.",
     {"Lucerne Carnival 2012", "Anna's Wedding"},
     "IPTC: FixtureIdentifier; XMP: Event"},
    {"label",
     "Mark for your own workflow, most often the name of a color. Other programs show the color only if they "
     "use exactly the same name.",
     {"Red", "To Print"},
     "XMP: Label"},
    {"rating",
     "Your rating of the image, from 1 to 5 stars. 0 stands for not rated and -1 for rejected.",
     {"4"},
     "XMP: Rating"},
    {"supplementalCategories",
     "Further categories that refine the main one, in words or codes of at most 32 characters each. Keywords "
     "have taken their place in most workflows.",
     {"Soccer | Championship"},
     "IPTC: SupplementalCategories; XMP: SupplementalCategories"},

    // Photo Description
    {"dateTimeOriginalComponents",
     "Date and time at which the image was shot, as the camera's clock showed it. Images are placed along a "
     "track by this time, so the clock must be right or corrected.",
     {"7/4/12 10:00:00 AM"},
     "EXIF: DateTimeOriginal; IPTC: DateCreated & TimeCreated; XMP: DateCreated"},
    {"headline",
     "Brief summary of what the image shows, like the headline of a newspaper article. It goes with the "
     "description and does not replace it.",
     {"Lighthouse Survives Storm of the Century"},
     "IPTC: Headline; XMP: Headline"},
    {"caption",
     "What the image shows, in one or more full sentences: who, what, where, when and why. Most programs and "
     "web galleries show this text below the image.",
     {"Waves break over the lighthouse of La Jument during the winter storm."},
     "EXIF: ImageDescription; IPTC: Caption-Abstract; XMP: Description"},
    {"captionWriter",
     "Name of the person who wrote, edited or corrected the description of the image.",
     {"Peter Lang"},
     "IPTC: Writer-Editor; XMP: CaptionWriter"},
    {"keywords",
     "Words and short phrases by which the image can be found: subjects, concepts, moods and techniques. "
     "Enter each one as a keyword of its own.",
     {"lighthouse | storm | long exposure"},
     "IPTC: Keywords; XMP: Subject"},
    {"people",
     "Names of the people whom the image shows and who can be recognized, one entry for each person.",
     {"Anna Keller | Peter Lang"},
     "IPTC: Contact; XMP: PersonInImage"},

    // Photographer
    {"creator",
     "Name of the photographer, or of the company where the photographer is not to be named. Separate "
     "several names with a semicolon.",
     {"Anna Keller", "Anna Keller; Peter Lang"},
     "EXIF: Artist; IPTC: By-line; XMP: Creator"},
    {"creatorJobtitle",
     "Position or job title of the photographer. It has meaning only together with the creator's name.",
     {"Staff Photographer", "Freelancer"},
     "IPTC: By-lineTitle; XMP: AuthorsPosition"},

    // Photographer Contact Info
    {"creatorAddress",
     "Street and number, or post office box, at which the photographer can be reached for business; the "
     "company's name may come first.",
     {"Seestrasse 12"},
     "XMP: CreatorAddress"},
    {"creatorCity",
     "City of the photographer's business address, not the city where the image was shot.",
     {"Luzern"},
     "XMP: CreatorCity"},
    {"creatorState",
     "State or province of the photographer's business address. Leave it empty where addresses go without "
     "one.",
     {"CA"},
     "XMP: CreatorRegion"},
    {"creatorPostalCode",
     "Postal code, such as the ZIP code, of the photographer's business address.",
     {"6003", "94117"},
     "XMP: CreatorPostalCode"},
    {"creatorCountry",
     "Country of the photographer's business address, by its full name.",
     {"Switzerland"},
     "XMP: CreatorCountry"},
    {"creatorWorkTelephone",
     "Telephone number for business, in international form with plus sign and country code. Separate several "
     "numbers with a comma.",
     {"+41 41 555 01 23"},
     "XMP: CreatorWorkTelephone"},
    {"creatorWorkEmail",
     "Email address at which clients reach the photographer. Whoever receives the file can read it. Separate "
     "several addresses with a comma.",
     {"anna@example.com"},
     "XMP: CreatorWorkEmail"},
    {"creatorURL",
     "Web address of the photographer's own site or portfolio, in full. Separate several addresses with a "
     "comma.",
     {"https://www.example.com/anna"},
     "XMP: CreatorWorkURL"},

    // Rights
    {"certificate",
     "Web address of a certificate that proves the rights in the image, such as its entry at a rights "
     "registry.",
     {"https://www.example.com/certificates/4711"},
     "XMP: Certificate"},
    {"copyrightNotice",
     "Notice that claims the copyright, with the year of first publication and the name of the copyright's "
     "owner.",
     {"© 2012 Anna Keller. All rights reserved."},
     "EXIF: Copyright; IPTC: CopyrightNotice; XMP: Rights"},
    {"copyrightURL",
     "Web address of a page that states who owns the image and how it may be used. Search engines link to it "
     "from their image results.",
     {"https://www.example.com/licensing"},
     "XMP: WebStatement; Photoshop: URL"},
    {"credit",
     "Credit to be printed with the image when it is published, in the wording that the supplier asks for.",
     {"Anna Keller/Example Press"},
     "IPTC: Credit; XMP: Credit"},
    {"instructions",
     "Instructions of the supplier to whoever publishes the image, such as an embargo or other restrictions.",
     {"Not to be published before 1 August 2012, 18:00 UTC"},
     "IPTC: SpecialInstructions; XMP: Instructions"},
    {"marked",
     "Indicates whether the image is protected by copyright or free for everyone. Leave it blank when you do "
     "not know; that makes no claim either way.",
     {"Copyrighted", "Public Domain"},
     "XMP: Marked"},
    {"owner",
     "Person or organization that owns the rights in the image, if that is not the photographer.",
     {"Example Press Ltd."},
     "XMP: Owner"},
    {"source",
     "Original owner or first supplier of the image: an agency, an archive or a person. It stays the same "
     "when others pass the image on.",
     {"Keller Family Archive"},
     "IPTC: Source; XMP: Source"},
    {"usageTerms",
     "Terms under which the image may be used, in plain words or by the name of a license.",
     {"Editorial use only", "Creative Commons BY 4.0"},
     "XMP: UsageTerms"},
};

} // namespace

std::span<const KTMetadataHelpRow> KTMetadataHelpRowsOfDescription() {
    return kRows;
}

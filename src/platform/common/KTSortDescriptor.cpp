#include "platform/common/KTSortDescriptor.h"

#include <QCollator>

namespace {

/// The order of kinds, nothing first.
enum class Kind { Nothing, Flag, Number, Date, Components, Text, List, Other };

Kind kindOf(const KTValue& value) {
    if (!value.isSomething())
        return Kind::Nothing;
    if (value.flag())
        return Kind::Flag;
    if (value.isNumber())
        return Kind::Number;
    if (value.date())
        return Kind::Date;
    if (value.components())
        return Kind::Components;
    if (value.text())
        return Kind::Text;
    return value.list() ? Kind::List : Kind::Other;
}

template<class T>
int compare(const T& left, const T& right) {
    return left < right ? -1 : right < left ? 1 : 0;
}

QCollator collatorOfUser() {
    const QLocale user;
    // Qt compares by code points where no language is set.
    QCollator collator(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

int compareTexts(const std::string& left, const std::string& right) {
    // Costly to make, and not to be shared between threads.
    static thread_local const QCollator collator = collatorOfUser();
    return collator.compare(QString::fromStdString(left), QString::fromStdString(right));
}

/// By the clock's reading, a date without its later parts before one that has them.
int compareReadings(const KTDateComponents& left, const KTDateComponents& right) {
    auto parts = [](const KTDateComponents& date) {
        std::array values{date.year, date.month, date.day, date.hour, date.minute, date.second};
        std::ranges::replace(values, KTDateComponents::kUndefined, std::int64_t(INT64_MIN));
        return values;
    };
    return compare(parts(left), parts(right));
}

int compareLists(const KTValue::List& left, const KTValue::List& right) {
    for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i)
        if (const int order = KTCompareForSorting(left[i], right[i]))
            return order;
    return compare(left.size(), right.size());
}

} // namespace

int KTCompareForSorting(const KTValue& left, const KTValue& right) {
    const Kind kind = kindOf(left);
    if (const int order = compare(kind, kindOf(right)))
        return order;
    switch (kind) {
    case Kind::Nothing:
        return 0;
    case Kind::Flag:
        return compare(*left.flag(), *right.flag());
    case Kind::Number:
        return left.number()->compare(*right.number());
    case Kind::Date:
        return compare(*left.date(), *right.date());
    case Kind::Components:
        return compareReadings(*left.components(), *right.components());
    case Kind::Text:
        return compareTexts(*left.text(), *right.text());
    case Kind::List:
        return compareLists(*left.list(), *right.list());
    case Kind::Other:
        break;
    }
    return compareTexts(left.description(), right.description());
}

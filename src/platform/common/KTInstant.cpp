#include "platform/common/KTInstant.h"

#include <cmath>
#include <cstdio>

KTInstant KTInstantNow() {
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

double KTSecondsBetween(KTInstant left, KTInstant right) {
    return std::abs(static_cast<double>((left - right).count()) / 1000.0);
}

std::string KTISO8601Text(KTInstant instant) {
    auto day = std::chrono::floor<std::chrono::days>(instant);
    std::chrono::year_month_day date(day);
    std::chrono::hh_mm_ss time(instant - day);
    char text[48];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02d", int(date.year()),
                  unsigned(date.month()), unsigned(date.day()), int(time.hours().count()),
                  int(time.minutes().count()), int(time.seconds().count()));
    std::string result = text;
    if (int milliseconds = int(time.subseconds().count()); milliseconds != 0) {
        std::snprintf(text, sizeof text, ".%03d", milliseconds);
        result += text;
    }
    return result + "Z";
}

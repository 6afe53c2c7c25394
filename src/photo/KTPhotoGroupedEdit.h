#pragma once
#include "photo/KTPhoto.h"

struct KTPhoto::GroupedEdit {
    KTValue::Dictionary values;
    std::map<KTPhotoDateFamily::Which, KTPhotoDateFamily::Reading> dates;
};

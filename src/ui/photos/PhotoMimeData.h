#pragma once
#include "photo/KTPhoto.h"

#include <QMimeData>

/// What a drag of photos carries: the photos themselves for views of this program, their files for others.
class PhotoMimeData : public QMimeData {
    Q_OBJECT
public:
    using Photos = std::vector<std::shared_ptr<KTPhoto>>;
    explicit PhotoMimeData(Photos dragged);

    const Photos& photos() const { return carried; }

private:
    const Photos carried;
};

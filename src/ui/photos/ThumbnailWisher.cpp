#include "ui/photos/ThumbnailWisher.h"

#include <QEvent>
#include <QScrollBar>

namespace {

constexpr std::chrono::milliseconds kPause{20};

} // namespace

ThumbnailWisher::ThumbnailWisher(QAbstractItemView& shown, KTThumbnailService& thumbnails,
                                 std::function<Rows()> visibleRows,
                                 std::function<std::filesystem::path(int row)> file,
                                 std::function<int()> edge)
    : QObject(&shown), view(shown), service(thumbnails), rowsInView(std::move(visibleRows)),
      fileOf(std::move(file)), edgeOfPictures(std::move(edge)) {
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &ThumbnailWisher::update);
    connect(view.verticalScrollBar(), &QScrollBar::valueChanged, this, &ThumbnailWisher::updateSoon);
    connect(view.verticalScrollBar(), &QScrollBar::rangeChanged, this, &ThumbnailWisher::updateSoon);
    connect(view.model(), &QAbstractItemModel::modelReset, this, &ThumbnailWisher::updateSoon);
    connect(view.model(), &QAbstractItemModel::rowsInserted, this, &ThumbnailWisher::updateSoon);
    view.viewport()->installEventFilter(this);
    observation = service.observe([this](const KTChange& change) {
        if (!change.isPrior)
            view.viewport()->update();
    });
}

ThumbnailWisher::~ThumbnailWisher() {
    service.setWishes(this, {});
}

void ThumbnailWisher::updateSoon() {
    if (!timer.isActive())
        timer.start(kPause);
}

bool ThumbnailWisher::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show || event->type() == QEvent::Hide)
        updateSoon();
    return false;
}

void ThumbnailWisher::update() {
    std::vector<KTThumbnailService::Wish> wishes;
    const int count = view.isVisible() ? view.model()->rowCount() : 0;
    const Rows rows = count > 0 ? rowsInView() : Rows();
    const int page = rows.last - rows.first + 1;
    const int edge = int(edgeOfPictures() * view.devicePixelRatioF() + 0.5);
    auto wish = [&](int row) {
        if (row < 0 || row >= count)
            return;
        if (auto file = fileOf(row); !file.empty())
            wishes.push_back({std::move(file), edge});
    };
    for (int row = rows.first; row <= rows.last + page; ++row)
        wish(row);
    for (int row = rows.first - 1; row >= rows.first - page; --row)
        wish(row);
    service.setWishes(this, std::move(wishes));
}

// How soon the inspector shows what 20,000 newly selected photos have: from the selection to the last
// painting, offscreen, with the fields of a new user. The reference is reading those fields of each photo one
// by one.
//
// InspectorBenchmark PHOTO: the photos are copies, in memory, of the record of that one.
#include "app/editor/KTMetadataCustomizationViewController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/defaults/KTComboBoxStoreController.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"
#include "ui/inspector/InspectorPane.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <cstdio>

namespace {

constexpr std::size_t kPhotos = 20'000;
constexpr int kQuiet = 150; // milliseconds without a painting
constexpr double kAim = 100;

/// What the fields show.
QString shownTexts(const QWidget& pane) {
    QString texts;
    for (const QLineEdit* const line : pane.findChildren<QLineEdit*>())
        texts += line->text() + '|' + line->placeholderText() + '|';
    for (const QPlainTextEdit* const text : pane.findChildren<QPlainTextEdit*>())
        texts += text->toPlainText() + '|';
    return texts;
}

/// When something of the inspector was painted last.
class Watch : public QObject {
public:
    explicit Watch(const QWidget& inspector) : pane(inspector) { qApp->installEventFilter(this); }

    void measure(const char* what, double reference, const std::function<void()>& action) {
        clock.start();
        lastPaint = 0;
        double longest = 0, lastText = 0;
        action();
        QString texts;
        for (double before = now(); before - lastPaint < kQuiet; before = now()) {
            QCoreApplication::processEvents();
            longest = std::max(longest, now() - before);
            if (QString shown = shownTexts(pane); shown != texts) {
                texts = std::move(shown);
                lastText = now();
            }
        }
        std::printf("%-40s values %6.1f ms (aim %.0f), %5.2f times the reference; marks, painted %6.1f ms; "
                    "longest turn %5.1f ms\n",
                    what, lastText, kAim, lastText / reference, lastPaint, longest);
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::UpdateRequest && object == &pane)
            QMetaObject::invokeMethod(
                this, [this] { lastPaint = now(); }, Qt::QueuedConnection); // when it is done
        return false;
    }

private:
    double now() const { return double(clock.nsecsElapsed()) / 1e6; }

    const QWidget& pane;
    QElapsedTimer clock;
    double lastPaint = 0;
};

double millisecondsToRead(const KTMetadataEditorViewController& editor,
                          const KTPhotoManager::Photos& photos) {
    QElapsedTimer clock;
    clock.start();
    for (const auto& group : editor.groups())
        for (const auto& field : group->fields())
            for (const auto& photo : photos)
                photo->valueForKey(field->key());
    return double(clock.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    const QApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    const auto model = argc == 2 ? KTPhoto::initWithFile(argv[1]) : nullptr;
    if (!model) {
        std::fprintf(stderr, "usage: InspectorBenchmark PHOTO\n");
        return 2;
    }
    const auto queue =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    KTPhotoManager manager;
    manager.setUndoManager(std::make_shared<KTUndoManager>(queue), queue);
    for (std::size_t i = 0; i < kPhotos; ++i)
        manager.insertObject(model->copyWithZone(), i);
    const KTPhotoManager::Photos photos = *manager.photos();
    KTComboBoxStoreController store((home.path() + "/values.sql").toStdString());
    KTMetadataEditorViewController editor(manager, KTMetadataFieldManager::sharedMetadataFieldManager(),
                                          store);
    KTMetadataCustomizationViewController customization(
        editor, KTUserTemplates((home.path() + "/templates").toStdString()));
    InspectorPane pane(editor, customization, [](bool) {});
    pane.resize(330, 820);
    pane.show();
    manager.setSelectedPhotos({photos.front()});
    while (!pane.isFilled())
        QCoreApplication::processEvents();

    const double reference = millisecondsToRead(editor, photos);
    std::printf("%zu photos; reading them takes %.1f ms\n", kPhotos, reference);
    Watch watch(pane);
    auto measure = [&](const char* what, const KTPhotoManager::Photos& selected) {
        watch.measure("one photo", reference, [&] { manager.setSelectedPhotos({photos.front()}); });
        watch.measure(what, reference, [&] { manager.setSelectedPhotos(selected); });
    };
    measure("all, which agree", photos);
    photos.back()->setValueForKey("caption", "another");
    photos.back()->setValueForKey("keywords", KTValue::listOfTexts({"another"}));
    measure("all, of which the last differs", photos);
    for (const auto& photo : photos)
        photo->setValueForKey("caption", "edited");
    measure("all, with an edit each that is not saved", photos);
    return 0;
}

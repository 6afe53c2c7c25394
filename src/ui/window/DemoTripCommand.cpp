#include "ui/window/DemoTripCommand.h"

#include "app/WaymarkAppController.h"
#include "app/WaymarkWindowController.h"
#include "collection/DemoTrip.h"
#include "geotagging/KTTimeZoneHUDController.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"
#include "ui/support/UIText.h"

#include <QPointer>
#include <QStandardPaths>
#include <QWidget>

namespace DemoTripCommand {

namespace {

constexpr unsigned kAnotherTimeZone = 2; // option of the camera clock

std::filesystem::path demoFolder() {
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return std::filesystem::path(pictures.toStdString()) / "Waymark Demo Trip";
}

struct Made {
    DemoTrip trip;
    std::optional<std::string> problem;
};

Made makeTrip() {
    Made made;
    std::error_code error;
    const std::filesystem::path folder = demoFolder();
    std::filesystem::create_directories(folder.parent_path(), error);
    if (std::filesystem::exists(folder, error) && !std::filesystem::is_empty(folder, error))
        return made; // made before; loaded as it is
    made.problem = made.trip.makeIn(folder);
    return made;
}

} // namespace

bool isOffered() {
    std::error_code error;
    return !std::filesystem::exists(demoFolder(), error);
}

void run(WaymarkWindowController& controller) {
    auto* const window = static_cast<QWidget*>(controller.window()->viewHandle());
    KTRunOnThreadPool([&controller, guard = QPointer<QWidget>(window)] {
        const auto made = std::make_shared<Made>(makeTrip());
        KTPerformOnMainThread([&controller, guard, made] {
            if (!guard)
                return;
            if (made->problem) {
                controller.window()->presentAlert(
                    {.message = KTLocalizedString("The demo trip could not be made."),
                     .informativeText = *made->problem,
                     .buttons = {KTLocalizedString("Close")}});
                return;
            }
            KTTimeZoneHUDController& clock = *controller.timeZoneHUDController();
            clock.setTimeZoneOptionsSelectedIndex(kAnotherTimeZone);
            clock.photoAssumedTimeZoneController().setDefaultTimeZone(
                *KTTimeZone::fromText(DemoTrip::kTimeZone));
            controller.appController().importFilesAtPaths({demoFolder()});
        });
    });
}

} // namespace DemoTripCommand

#pragma once

class WaymarkWindowController;

/// "Try the Demo Trip": makes the trip's files in the user's pictures folder,
/// where they are not yet, sets the camera clock to the trip's, and loads
/// photos and track.
namespace DemoTripCommand {

/// As long as no photo was ever added.
bool isOffered();
/// Returns at once; the files are made on another thread. Says so where that
/// fails.
void run(WaymarkWindowController& controller);

} // namespace DemoTripCommand

#pragma once
#include "platform/transitions/TransitionFrame.h"

/// Draws one frame, of a progress between 0 and 1.
using Transition = void(const TransitionFrame& frame);

// The pictures stay whole and move, or an edge between them does
Transition drawMoveIn, drawPush, drawReveal, drawSwipe, drawCopyMachine;
// Each pixel has its own moment
Transition drawFade, drawDisintegrate, drawDissolve, drawFlash, drawMod;
// The old picture is bent
Transition drawPageCurl, drawRipple;

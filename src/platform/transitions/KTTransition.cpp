#include "platform/transitions/KTTransition.h"

#include "platform/transitions/Transitions.h"

#include <cstring>

namespace {

constexpr Transition* kTransitions[kTransitionStyles] = {
    drawFade,     drawFade,  drawMoveIn, drawPush,     drawReveal, drawCopyMachine, drawDisintegrate,
    drawDissolve, drawFlash, drawMod,    drawPageCurl, drawRipple, drawSwipe};

bool areAlike(const QImage& left, const QImage& right) {
    return left.size() == right.size() && left.format() == right.format() &&
           left.bytesPerLine() == right.bytesPerLine();
}

void copyInto(QImage& onto, const QImage& image) {
    std::memcpy(onto.bits(), image.constBits(), std::size_t(image.sizeInBytes()));
}

} // namespace

void KTDrawTransition(KTTransitionStyle style, const QImage& from, const QImage& to, double progress,
                      QImage& onto) {
    if (!areAlike(from, to) || to.format() != QImage::Format_RGB32 || to.isNull()) {
        onto = to;
        return;
    }
    if (!areAlike(onto, to))
        onto = QImage(to.size(), to.format());
    const auto number = static_cast<unsigned>(style);
    if (progress >= 1 || number >= kTransitionStyles)
        copyInto(onto, to);
    else if (!(progress > 0))
        copyInto(onto, from);
    else
        kTransitions[number](TransitionFrame(from, to, progress, onto));
}

#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"

#include <QImage>
#include <vector>

/// Drawings of layers, from below.
using KTMapDrawings = std::vector<std::shared_ptr<const KTMapDrawing>>;

/// An image of the size of @p state's view in physical pixels, with its device pixel ratio, filled with
/// nothing: transparent, or where @p isOpaque black.
QImage KTMakeMapImage(const KTMapViewState& state, bool isOpaque);
/// Draws onto @p image, made as above. Any thread.
void KTDrawMap(QImage& image, const KTMapViewState& state, const KTMapLook& look,
               const KTMapDrawings& drawings, const std::atomic<bool>& isCancelled);

/// The whole map at once as a picture, for files, exports and tests: what a window shows after its map has
/// come to rest. @p layers in any order. On the main thread, which it keeps for as long as it takes.
QImage KTMapPicture(const std::vector<KTMapLayer*>& layers, const KTMapViewState& state,
                    const KTMapLook& look);

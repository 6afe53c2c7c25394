#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"
#include "platform/cartography/drawing/features/FeatureSnapshot.h"

/// The lines from selected photos to what they show, and the wedges of what they see.
class PhotoLineDrawing final : public KTMapDrawing {
public:
    explicit PhotoLineDrawing(std::shared_ptr<const FeatureSnapshot> photos) : snapshot(std::move(photos)) {}
    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>& isCancelled) const override;

private:
    const std::shared_ptr<const FeatureSnapshot> snapshot;
};

/// The markers of photos that are not selected, clusters and stacks.
class PhotoMarkerDrawing final : public KTMapDrawing {
public:
    explicit PhotoMarkerDrawing(std::shared_ptr<const FeatureSnapshot> photos)
        : snapshot(std::move(photos)) {}
    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>& isCancelled) const override;

private:
    const std::shared_ptr<const FeatureSnapshot> snapshot;
};

/// The markers of selected photos.
class PhotoSelectionDrawing final : public KTMapDrawing {
public:
    explicit PhotoSelectionDrawing(std::shared_ptr<const FeatureSnapshot> photos)
        : snapshot(std::move(photos)) {}
    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>& isCancelled) const override;

private:
    const std::shared_ptr<const FeatureSnapshot> snapshot;
};

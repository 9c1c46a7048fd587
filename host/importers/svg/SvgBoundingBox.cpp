#include "importers/svg/SvgBoundingBox.hpp"

#include "document/ArtBounds.hpp"

namespace zm::host::svg {

std::optional<UserBox> UserBoundingBox(const document::Art& art, const Affine& toModel) {
    auto fromModel = toModel.Inverse();
    if (!fromModel) {
        return std::nullopt;
    }
    auto bounds = document::ArtBoundsAfter(
        art, [&](const document::Point& p) { return fromModel->Apply(p); });
    if (!bounds) {
        return std::nullopt;
    }
    // Back in user units "top" holds the larger y, which SVG draws lower.
    return UserBox{bounds->left, bounds->bottom, bounds->right - bounds->left,
                   bounds->top - bounds->bottom};
}

Affine BoundingBoxUnits(const UserBox& box) {
    return Affine::Translate(box.x, box.y) * Affine::Scale(box.width, box.height);
}

}  // namespace zm::host::svg

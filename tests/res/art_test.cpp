// The pictures as the program gets them: all there, in the sizes that the layout tables need, and cut where
// the skin cuts them.
#include <gtest/gtest.h>

#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>

#include "macro_manager/manager_layout.h"
#include "platform/resources.h"
#include "skin/picture_ids.h"
#include "ui/dialog_layouts.h"
#include "ui/main_window_layout.h"

namespace tarnix {
namespace {

constexpr Color yellow = rgb(255, 255, 0);

/// A dialog's controls and the background that they stand on.
struct Face {
    unsigned background;
    Size size;
    std::span<const ControlRow> controls;
};

const Face faces[] = {
    {dialog::notice::background, dialog::wideSize, dialog::notice::controls},
    {dialog::reset::profileReset.background, dialog::wideSize, dialog::reset::controls},
    {dialog::reset::factoryReset.background, dialog::wideSize, dialog::reset::controls},
    {dialog::keymap::background, dialog::wideSize, dialog::keymap::controls},
    {dialog::profile::background, dialog::profile::size, dialog::profile::controls},
    {dialog::shortcut::background, dialog::shortcut::size, dialog::shortcut::controls},
    {dialog::launch::background, dialog::launch::size, dialog::launch::controls},
    {manager::managerBackground, manager::managerSize, manager::managerControls},
    {manager::addSet.background, manager::companionSize, manager::setNameControls},
    {manager::deleteSet.background, manager::companionSize, manager::setNameControls},
    {manager::note.background, manager::companionSize, manager::noticeControls},
    {manager::attention.background, manager::companionSize, manager::noticeControls},
    {mainBackground, mainWindowSize, commonControls},
    {pageBandImage(0), pageBand.size(), keyCaps},
    {pageBandImage(1), picture::widePageBand, macroPageControls},
    {pageBandImage(2), picture::widePageBand, gKeyFields},
    {pageBandImage(3), pageBand.size(), lightingFields},
    {mainBackground, mainWindowSize, areaMarkers},
};

int framesOf(ControlKind kind) {
    if (kind == ControlKind::Check) return picture::checkFrames;
    return kind == ControlKind::Combo ? picture::comboFrames : picture::buttonFrames;
}

const Image& pictureOf(ResourceType type, unsigned id) {
    const Image* image = resources().find(type, id);
    if (!image) throw std::out_of_range("picture " + std::to_string(id) + " is missing");
    return *image;
}

int differentPixels(const Image& image, const Rect& a, const Rect& b) {
    int different = 0;
    for (int y = a.top; y < a.bottom; ++y)
        for (int x = 0; x < a.width(); ++x)
            different += image.pixel({a.left + x, y}) != image.pixel({b.left + x, y});
    return different;
}

TEST(Art, EveryControlHasFramesThatCanBeToldApartAndRegionsLeaveOutWhatLooksLikeTheirGround) {
    for (const Face& face : faces)
        for (const ControlRow& row : face.controls) {
            const bool region = row.kind == ControlKind::Region;
            const unsigned id = region ? static_cast<unsigned>(row.region.bitmap) : row.image;
            if (id == 0) continue;
            const Image& image = pictureOf(region ? ResourceType::Bitmap : ResourceType::Png, id);
            const Size size = region ? Size{row.region.frameWidth, row.region.frameHeight} : row.rect.size();
            const Size strip{size.width * framesOf(row.kind), size.height};
            const auto [width, height] = image.size();
            EXPECT_TRUE(region ? width >= strip.width && height >= strip.height : image.size() == strip)
                << id;
            const Rect first = Rect::at(0, 0, size.width, size.height);
            const Rect second = first.moved(size.width, 0);
            for (const auto& [a, b] : {std::pair(first, second), {second, second.moved(size.width, 0)}})
                EXPECT_GT(differentPixels(image, a, b), size.width * size.height / 10) << row.id << " " << id;
            // The profile form copies parts of the notices' strips, which have another key colour there.
            if (!region || face.background == dialog::profile::background) continue;
            const Color key = image.pixel({row.region.keyX, row.region.keyY});
            const Image& ground = pictureOf(ResourceType::Bitmap, face.background);
            EXPECT_EQ(key, ground.pixel(row.rect.topLeft())) << face.background << " " << id;
            EXPECT_NE(key, image.pixel({size.width * 3 / 2, size.height / 4})) << id;
        }
}

TEST(Art, BackgroundsAndIconsHaveTheirSizesAndYellowBeyondRoundedCornersAloneInOutlines) {
    EXPECT_EQ(pictureOf(ResourceType::Bitmap, manager::managerPanel).size(),
              manager::managerPanelRect.size());
    EXPECT_EQ(pictureOf(ResourceType::Icon, picture::programIcon).size(), picture::programIconSize);
    const std::set<unsigned> shaped{mainBackground, dialog::shortcut::background, dialog::launch::background};
    constexpr int corner = 12;
    for (const Face& face : faces) {
        const Image& image = pictureOf(ResourceType::Bitmap, face.background);
        const auto [width, height] = face.size;
        ASSERT_EQ(image.size(), face.size) << face.background;
        int elsewhere = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if ((x >= corner && x < width - corner) || (y >= corner && y < height - corner))
                    elsewhere += image.pixel({x, y}) == yellow;
        EXPECT_EQ(elsewhere, 0) << face.background;
        for (Point p : {Point{0, 0}, Point{width - 1, 0}, Point{0, height - 1}, Point{width - 1, height - 1}})
            EXPECT_EQ(image.pixel(p) == yellow, shaped.contains(face.background)) << face.background;
    }
}

} // namespace
} // namespace tarnix

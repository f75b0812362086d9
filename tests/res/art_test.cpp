// The pictures as the program gets them: all there, in the sizes that the layout tables need, cut where the
// skin cuts them, and readable under the texts that the program sets on them.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "contrast.h"
#include "macro_manager/manager_layout.h"
#include "platform/builtin_resources.h"
#include "res/resource_ids.h"
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

const std::vector<Face>& faces() {
    static const std::vector<Face> all{
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
    };
    return all;
}

std::vector<ControlRow> allControls() {
    std::vector<ControlRow> rows(areaMarkers.begin(), areaMarkers.end());
    for (const Face& face : faces())
        rows.insert(rows.end(), face.controls.begin(), face.controls.end());
    return rows;
}

int framesOf(ControlKind kind) {
    if (kind == ControlKind::Check) return picture::checkFrames;
    return kind == ControlKind::Combo ? picture::comboFrames : picture::buttonFrames;
}

const Image& pictureOf(ResourceType type, unsigned id) {
    const Image* image = resources().find(type, id);
    if (!image) throw std::out_of_range("picture " + std::to_string(id) + " is missing");
    return *image;
}

/// The lowest contrast of a text with what it stands on.
double lowestContrast(Color text, const Image& ground, const Rect& area) {
    double lowest = 21;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            lowest = std::min(lowest, contrast(text, ground.pixel({x, y})));
    return lowest;
}

int differentPixels(const Image& image, Rect a, Rect b) {
    int different = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            different += image.pixel({a.left + x, a.top + y}) != image.pixel({b.left + x, b.top + y});
    return different;
}

TEST(Art, EveryControlAndBackgroundHasItsPictureInTheRightSize) {
    for (const ControlRow& row : allControls()) {
        if (row.kind == ControlKind::Region) {
            const Size size =
                pictureOf(ResourceType::Bitmap, static_cast<unsigned>(row.region.bitmap)).size();
            EXPECT_GE(size.width, row.region.frameWidth * 3) << row.region.bitmap;
            EXPECT_GE(size.height, row.region.frameHeight) << row.region.bitmap;
        } else if (row.image != 0) {
            const Size expected{row.rect.width() * framesOf(row.kind), row.rect.height()};
            EXPECT_EQ(pictureOf(ResourceType::Png, row.image).size(), expected) << row.image;
        }
    }
    for (const Face& face : faces())
        EXPECT_EQ(pictureOf(ResourceType::Bitmap, face.background).size(), face.size) << face.background;
    EXPECT_EQ(pictureOf(ResourceType::Bitmap, manager::managerPanel).size(),
              manager::managerPanelRect.size());
    EXPECT_EQ(pictureOf(ResourceType::Icon, picture::programIcon).size(), picture::programIconSize);
    for (unsigned id : {picture::stepPress, picture::stepRelease, picture::stepDelay})
        EXPECT_EQ(pictureOf(ResourceType::Png, id).size(), picture::stepIconSize);
}

TEST(Art, FramesOfAButtonDifferSoThatHoverAndPressAreSeen) {
    for (const ControlRow& row : allControls()) {
        const bool region = row.kind == ControlKind::Region;
        if (!region && row.image == 0) continue;
        const Image& image = region
                                 ? pictureOf(ResourceType::Bitmap, static_cast<unsigned>(row.region.bitmap))
                                 : pictureOf(ResourceType::Png, row.image);
        const Rect first = region ? Rect::at(0, 0, row.region.frameWidth, row.region.frameHeight)
                                  : Rect::at(0, 0, row.rect.width(), row.rect.height());
        const int least = first.width() * first.height() / 10;
        const Rect second = first.moved(first.width(), 0);
        const Rect third = second.moved(first.width(), 0);
        for (const auto& [a, b] : {std::pair(first, second), {second, third}, {first, third}})
            EXPECT_GT(differentPixels(image, a, b), least) << row.id << " " << row.image;
    }
}

TEST(Art, YellowStandsBeyondRoundedCornersAloneAndOnlyInOutlines) {
    const std::set<unsigned> shaped{mainBackground, dialog::shortcut::background, dialog::launch::background};
    constexpr int corner = 12;
    for (const Face& face : faces()) {
        const Image& image = pictureOf(ResourceType::Bitmap, face.background);
        const auto [width, height] = face.size;
        int elsewhere = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const bool atCorner =
                    (x < corner || x >= width - corner) && (y < corner || y >= height - corner);
                elsewhere += !atCorner && image.pixel({x, y}) == yellow;
            }
        EXPECT_EQ(elsewhere, 0) << face.background;
        for (Point p : {Point{0, 0}, Point{width - 1, 0}, Point{0, height - 1}, Point{width - 1, height - 1}})
            EXPECT_EQ(image.pixel(p) == yellow, shaped.contains(face.background)) << face.background;
    }
}

TEST(Art, RegionButtonsLeaveOutWhatLooksLikeTheirGround) {
    for (const Face& face : faces())
        for (const ControlRow& row : face.controls) {
            // The profile form copies parts of the notices' strips, which have another key colour there.
            if (row.kind != ControlKind::Region || face.background == dialog::profile::background) continue;
            const Image& strip = pictureOf(ResourceType::Bitmap, static_cast<unsigned>(row.region.bitmap));
            const Color key = strip.pixel({row.region.keyX, row.region.keyY});
            const Image& ground = pictureOf(ResourceType::Bitmap, face.background);
            EXPECT_EQ(key, ground.pixel(row.rect.topLeft())) << face.background << " " << row.region.bitmap;
            const Point inside{row.region.frameWidth * 3 / 2, row.region.frameHeight / 4};
            EXPECT_NE(key, strip.pixel(inside)) << row.region.bitmap;
        }
}

/// The stored pixels of a picture at a scale.
std::unique_ptr<Image> storedPicture(const std::string& type, unsigned id, int scale) {
    for (BuiltinImage stored : builtinImages())
        if (stored.id == id && stored.scale == scale &&
            (stored.type == ResourceType::Png) == (type == "Png")) {
            stored.scale = 1;
            return makeImage(stored);
        }
    throw std::out_of_range("picture " + std::to_string(id) + " is missing");
}

TEST(Art, EveryWordInThePicturesStandsOutFromItsGround) {
    std::ifstream table(ART_WORDS);
    std::string type, words;
    unsigned id;
    Size size;
    Point at;
    int lines = 0;
    double lowest = 21;
    for (int scale; table >> type >> id >> scale >> at.x >> at.y >> size.width >> size.height; ++lines) {
        std::getline(table, words);
        const double found = contrastIn(*storedPicture(type, id, scale),
                                        Rect::at(at.x, at.y, size.width, size.height).inset(-1));
        EXPECT_GE(found, 4.5) << type << " " << id << " at scale " << scale << ":" << words;
        lowest = std::min(lowest, found);
    }
    EXPECT_GT(lines, 1000);
    RecordProperty("lowest", std::to_string(lowest));
}

/// Labels are one line at the top of their rectangles.
constexpr int labelLineHeight = 16;

TEST(Art, TextsThatTheProgramSetsAreReadableOnTheirGround) {
    for (const Face& face : faces())
        for (const ControlRow& row : face.controls)
            if (row.kind == ControlKind::Label) {
                const Image& ground = pictureOf(ResourceType::Bitmap, face.background);
                const Rect line = Rect::at(row.rect.left, row.rect.top, row.rect.width(), labelLineHeight);
                EXPECT_GE(lowestContrast(row.color, ground, line), 4.5) << face.background << " " << row.id;
            }
    const ControlRow& field = lightingFields[0];
    const Image& strip = pictureOf(ResourceType::Png, field.image);
    for (int frame = 0; frame < picture::comboFrames; ++frame) {
        const Rect value = Rect::at(frame * field.rect.width() + 4, 1, 135, field.rect.height() - 2);
        EXPECT_GE(lowestContrast(0x000000, strip, value), 4.5) << frame;
    }
}

} // namespace
} // namespace tarnix

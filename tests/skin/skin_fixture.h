// A desktop, a dialog that notes what it is told, and pictures whose pixels say which frame was drawn.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

#include "platform/resources.h"
#include "skin/dlg_base.h"
#include "support/ui_scenario.h"

namespace tarnix {

/// A message as a window got it.
struct Notice {
    Message message;
    WParam w;
    LParam l;
    bool operator==(const Notice&) const = default;
};
using Notices = std::vector<Notice>;
std::ostream& operator<<(std::ostream& out, const Notice& notice);

/// A skinned window that notes its messages and paints.
class TestDialog : public CDlgBase {
  public:
    explicit TestDialog(Size size = {400, 300}) : CDlgBase({.role = "TestDialog"}, size) {}

    using CDlgBase::addControl;
    using CDlgBase::m_messages;
    using CDlgBase::mouse;

    template <class T, class... Args>
    T& make(std::size_t group, Args&&... args) {
        return addControl(group, std::make_unique<T>(*this, std::forward<Args>(args)...));
    }
    /// What has come since the last call.
    Notices take() { return std::exchange(notices, {}); }
    std::vector<Rect> takePaints() { return std::exchange(paints, {}); }

    LResult OnMessage(Message message, WParam w, LParam l) override;
    void OnPaint(Canvas& canvas, const Rect& dirty) override;

    Notices notices;
    std::vector<Rect> paints;
    int cancels = 0;

  protected:
    void BuildControls(const Rect&) override {}
    void OnCancel() override { ++cancels; }
};

/// Pictures made by the test.
class TestResources : public Resources {
  public:
    TestResources() { setResources(this); }
    ~TestResources() override { setResources(nullptr); }

    /// A strip whose frame i has the colour frameColor(i), and as many columns of `leftover` at its right.
    void addStrip(unsigned id, int frames, Size frame, int leftoverColumns = 0);
    Canvas& add(ResourceType type, unsigned id, Size size);
    const Image* find(ResourceType type, unsigned id) override;

    static constexpr Color leftover = 0xFF00FF;

  private:
    std::map<std::pair<ResourceType, unsigned>, std::unique_ptr<Surface>> m_pictures;
};

constexpr Color frameColor(int frame) {
    return rgb(20 + 30 * frame, 40, 60);
}

/// The control painted on a black surface of the dialog's size.
std::unique_ptr<Surface> painted(CControlBase& control, Size size = {400, 300});
/// Which frame the control shows in its middle; -1 for none.
int shownFrame(CControlBase& control);

class SkinTest : public ::testing::Test {
  protected:
    void SetUp() override;

    TestResources pictures;
    TestDialog dialog;
};

} // namespace tarnix

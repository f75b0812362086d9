#include <gmock/gmock.h>

#include "main_window_bench.h"

namespace tarnix {
namespace {

TEST(LightingPage, AValueWithoutANameLeavesItsFieldAsItIs) {
    MainWindowBench bench;
    bench.run([&] {
        const CComboButton& field = bench.field(id::lightModeField);
        for (const char* value : {"16", "-1", "99999999999"}) {
            bench.store.setSetting(1, settingLightMode, value);
            bench.window->ShowLighting(1);
            EXPECT_EQ(field.valueText(), "RGB Full") << value;
        }
        bench.window->ShowLighting(5);
        bench.store.setSetting(1, settingLightMode, "abc");
        bench.window->ShowLighting(1);
        EXPECT_EQ(field.valueText(), "Light Off");
        for (const LParam code : {NOTIFY_ENTER, NOTIFY_DOWN, NOTIFY_LEAVE})
            bench.window->send(id::logoLink, 0, code);
        EXPECT_EQ(bench.shell.opened, Journal{});
        bench.window->send(id::logoLink, 0, NOTIFY_CLICK);
        EXPECT_EQ(bench.shell.opened, Journal{"https://www.tarnix.example/"});
    });
}

} // namespace
} // namespace tarnix

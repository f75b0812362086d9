#include <gmock/gmock.h>

#include "main_window_bench.h"

namespace tarnix {
namespace {

TEST(LightingPage, ValuesWithoutANameLeaveTheFieldsAsTheyAre) {
    MainWindowBench bench;
    bench.run([&] {
        const auto texts = [&] {
            std::string all;
            for (const unsigned id : {id::lightModeField, id::brightnessField, id::speedField})
                all += bench.field(id).valueText() + '|';
            return all;
        };
        const auto before = texts();
        for (const char* value : {"16", "-1", "99999999999"}) {
            for (const int pair : {settingLightMode, settingLightBrightness, settingLightSpeed})
                bench.store.setSetting(1, pair, value);
            bench.window->ShowLighting(1);
            EXPECT_EQ(texts(), before) << value;
        }
        bench.window->ShowLighting(5);
        bench.window->ShowKeyCodes(-1);
        EXPECT_EQ(texts(), before);
        bench.store.setSetting(1, settingLightMode, "abc");
        bench.window->ShowLighting(1);
        EXPECT_EQ(bench.field(id::lightModeField).valueText(), "Light Off");
    });
}

} // namespace
} // namespace tarnix

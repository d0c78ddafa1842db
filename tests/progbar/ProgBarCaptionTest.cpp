#include "progbar/ProgBarCaption.h"

#include "tests/progbar/Fakes.h"

TEST(ProgBarCaption, StandsInTheMiddle) {
    const std::tuple<const char*, const char*, ProgBarState, std::string> cases[] = {
        {"negative numbers", "", {.Max = -1, .Value = -5, .ShowValue = true}, "40,45 -5/-1;"},
        {"message first", "Go", {.ShowPercent = true, .ShowMessage = true}, "39,44 Go 0%;"},
        {"an empty message brings no blank", "", {.ShowMessage = true, .ShowValue = true}, "40,45 0/100;"},
        {"a message not shown", "Go", {.ShowPercent = true}, "45,44 0%;"},
        {"both numbers were stored", "", {.ShowPercent = true, .ShowValue = true}, "45,44 0%;"},
        {"down", "", {.Percent = 45, .ShowPercent = true, .VerticalText = true}, "48,34 4;48,44 5;47,54 %;"},
        {"2 bytes", "%\xC3\xA9", {.ShowMessage = true, .VerticalText = true}, "47,39 %;48,51 \xC3\xA9;"},
    };
    for (auto [what, message, bar, printed] : cases) {
        FakeHost host(13, 263);
        bar.Message = message;
        DrawCaption(bar, host);
        EXPECT_EQ(host.log, "scale;" + printed + "pixels;") << what;
    }
}

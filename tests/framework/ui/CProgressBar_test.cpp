#include "framework/ui/CProgressBar.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using XimoGis::UI::CProgressBar;

namespace {

class ProgressBar : public ::testing::Test {
protected:
    void SetUp() override {
        bar->SetSink([this](const std::string& text) { drawn.push_back(text); });
    }
    void TearDown() override {
        while (bar->IsVisible()) bar->Hide();
        bar->SetSink(nullptr);
    }

    CProgressBar* bar = CProgressBar::Instance();
    std::vector<std::string> drawn;
};

}  // namespace

TEST_F(ProgressBar, DrawsTitleBarAndPercent) {
    bar->Show(L"\u010Cvorovi", 0, 4);
    bar->Step();
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0], "\r\xC4\x8Cvorovi [..............................]   0%");
    EXPECT_EQ(drawn[1], "\r\xC4\x8Cvorovi [#######.......................]  25%");
    bar->Hide();
    EXPECT_EQ(drawn.back(), "\r" + std::string(7 + 2 + 30 + 6, ' ') + "\r");
    EXPECT_FALSE(bar->IsVisible());
    bar->Show(3457, 0, 10);
    EXPECT_EQ(drawn.back().rfind("\rDrawing assembly schemes... [", 0), 0u);
}

TEST_F(ProgressBar, RedrawsOnlyWhenThePercentChanges) {
    bar->Show(L"Many", 0, 100000);
    for (int i = 0; i < 100000; ++i) bar->Step();
    EXPECT_EQ(drawn.size(), 101u);
    EXPECT_EQ(bar->GetPercent(), 100);
    EXPECT_NE(drawn.back().find(std::string(30, '#') + "] 100%"), std::string::npos);
    bar->Step(50);
    bar->SetPosition(-3);
    EXPECT_EQ(bar->GetPosition(), 0);
}

TEST_F(ProgressBar, HideBringsBackTheSavedState) {
    bar->Show(L"Outer", 0, 10);
    bar->Step(5);
    bar->SaveState();
    bar->Show(L"Inner", 0, 2);
    bar->Step(2);
    drawn.clear();
    bar->Hide();
    EXPECT_TRUE(bar->IsVisible());
    EXPECT_EQ(bar->GetTitle(), L"Outer");
    EXPECT_EQ(bar->GetPosition(), 5);
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[1], "\rOuter [###############...............]  50%");
    bar->Hide();
    EXPECT_FALSE(bar->IsVisible());
}

TEST_F(ProgressBar, SilentWhenStderrIsNotATerminal) {
    bar->SetSink(nullptr);
    ::testing::internal::CaptureStderr();
    bar->Show(L"Quiet", 0, 3);
    bar->Step();
    bar->Hide();
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

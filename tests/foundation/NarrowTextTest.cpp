#include "foundation/NarrowText.h"

#include "foundation/TextPropertyOperation.h"
#include "support/Texts.h"

#include <gtest/gtest.h>
#include <random>

using namespace millichart;
using penlode::CStringUtil;

namespace {

const std::string kTemperature = CStringUtil::WideToUtf8(L"温度 °C");

/// How many of `count` texts of `length` characters look like UTF-8, of GB 2312's rows from B0 to `lastRow`.
int FalseAlarms(unsigned lastRow, int length, int count) {
    std::mt19937 random(1);
    int alarms = 0;
    for (int i = 0; i < count; ++i) {
        std::string text;
        for (int c = 0; c < length; ++c) {
            text += static_cast<char>(0xB0 + random() % (lastRow - 0xB0 + 1));
            text += static_cast<char>(0xA1 + random() % 94);
        }
        alarms += LooksLikeUtf8(text) ? 1 : 0;
    }
    return alarms;
}

} // namespace

TEST(NarrowText, Utf8IsToldFromGbk) {
    EXPECT_TRUE(LooksLikeUtf8(kTemperature));
    EXPECT_TRUE(LooksLikeUtf8("100 \xE2\x82\xAC"));
    for (const std::string& gbk : {std::string("Sales"), Narrow(L"温度 °C"), Narrow(L"联通"), Narrow(L"璧"),
                                   std::string("\xC3\xA9t\xC3\xA9"), kTemperature.substr(1)}) {
        EXPECT_FALSE(LooksLikeUtf8(gbk)) << gbk;
    }
    constexpr unsigned kInCommonUse = 0xD7;
    constexpr unsigned kAll = 0xF7;
    for (const int length : {2, 3, 4, 7}) {
        EXPECT_EQ(FalseAlarms(kInCommonUse, length, 4000), 0) << length;
    }
    EXPECT_EQ(FalseAlarms(kAll, 2, 4000), 0);
    EXPECT_LT(FalseAlarms(kAll, 4, 20000), 6);
}

TEST(NarrowText, EachMistakeIsToldOnceAndTenInAll) {
    Utf8Mistakes mistakes;
    EXPECT_EQ(mistakes.SentenceOn(kTemperature),
              "millichart: \"" + kTemperature +
                  "\" looks like UTF-8; narrow texts are GBK, see CStringUtil::Utf8ToAnsi");
    EXPECT_EQ(mistakes.SentenceOn(kTemperature), "");
    EXPECT_EQ(mistakes.SentenceOn(Narrow(L"温度")), "");
    int told = 1;
    for (int i = 0; i < 20; ++i) {
        told += mistakes.SentenceOn(kTemperature + std::to_string(i)).empty() ? 0 : 1;
    }
    EXPECT_EQ(told, 10);
}

#if !defined(NDEBUG) && !defined(_WIN32)
TEST(NarrowText, ADeveloperIsToldWhereTextsAreMeasured) {
    testing::internal::CaptureStderr();
    CTextPropertyOperation::GetTextSize(kTemperature, {});
    CTextPropertyOperation::Visit([](ChartText&&) {}, {}, kTemperature, {}, {});
    const std::string told = testing::internal::GetCapturedStderr();
    EXPECT_EQ(told, Utf8Mistakes().SentenceOn(kTemperature) + "\n");
}
#endif

// What stands where texts are measured is held from platform to platform.
#include "documents/ChartDocument.h"
#include "penlode/recording/RecordingEngine.h"
#include "support/KeptFiles.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

namespace {

/// Of what is kept, or in mm: two platforms' sizes of a text differ by so much.
constexpr double kShare = 0.02;
constexpr double kLeast = 0.1;

/// A call's words and numbers, brackets apart.
std::vector<std::string> Words(std::string call) {
    std::replace_if(
        call.begin(), call.end(), [](char c) { return c == '(' || c == ')'; }, ' ');
    std::istringstream in(call);
    return {std::istream_iterator<std::string>(in), {}};
}

bool IsLike(const std::string& now, const std::string& kept) {
    std::istringstream nowIn(now);
    std::istringstream keptIn(kept);
    double nowNumber = 0.0;
    double keptNumber = 0.0;
    const bool areNumbers = nowIn >> nowNumber && nowIn.eof() && keptIn >> keptNumber && keptIn.eof();
    return now == kept || (areNumbers && std::abs(nowNumber - keptNumber) <=
                                             std::max(kLeast, kShare * std::abs(keptNumber)));
}

} // namespace

TEST(MeasuredDrawing, IsTheSameOnEveryPlatform) {
    auto document =
        millichart::ChartDocument::FromText(std::string(millichart::FindChartKind("histogram")->Template));
    // Not every platform kerns, and "Te" would be longer there.
    std::get<millichart::HistogramDocument>(document.Content).Prop.Plot.ComponentName.front() = "Juice";
    penlode::CRecordingEngine recorder;
    document.LayOut().Draw(recorder);
    std::istringstream now(recorder.Text());
    std::istringstream kept(Kept("drawings/measured-bars.txt", recorder.Text()));
    std::string call;
    std::string keptCall;
    while (std::getline(kept, keptCall)) {
        ASSERT_TRUE(std::getline(now, call)) << "no " << keptCall;
        const std::vector<std::string> words = Words(call);
        const std::vector<std::string> keptWords = Words(keptCall);
        EXPECT_TRUE(std::equal(words.begin(), words.end(), keptWords.begin(), keptWords.end(), IsLike))
            << call << " is kept as " << keptCall;
    }
    EXPECT_FALSE(std::getline(now, call)) << call;
}

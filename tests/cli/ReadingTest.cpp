#include "CommandTest.h"

#include <algorithm>

namespace {

std::vector<std::string> Documents() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(MILLICHART_EXAMPLES "/reading")) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() == ".json") {
            names.push_back(name.substr(0, name.find('.')));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

class ReadingPages : public cli_test::CommandTest {
protected:
    ReadingPages() { std::filesystem::copy(MILLICHART_EXAMPLES "/reading", File("")); }
};

} // namespace

TEST_F(ReadingPages, HoldWhatDrawsWithoutAWarningAndAPictureOfEachWithAndWithoutOptions) {
    const std::string page = ReadAll(MILLICHART_DOCS "/reading.md");
    for (const std::string& name : Documents()) {
        SCOPED_TRACE(name);
        const std::string document = name + ".chart.json";
        const Outcome drawn =
            Run("millichart draw --strict " + document + " -o readable.png && " + "millichart draw --quiet " +
                document + " --set 'options={}'" + " -o classical.png");
        ASSERT_EQ(drawn.Status, 0) << drawn.Errors;
        EXPECT_EQ(drawn.Errors, "");
        EXPECT_NE(Read("readable.png"), Read("classical.png"));
        for (const char* const shown : {".png)", "-classical.png)", ".chart.json)"}) {
            EXPECT_NE(page.find("/" + name + shown), std::string::npos) << shown;
        }
    }
}

#include "CommandTest.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <regex>

namespace {

using nlohmann::json;
using Values = std::vector<double>;

/// The commands of docs/spreadsheets.md, of which each draws one table.
std::vector<std::string> Commands() {
    const std::string page = ReadAll(MILLICHART_DOCS "/spreadsheets.md");
    const std::regex command("`(millichart draw [^`]+)`");
    std::vector<std::string> commands;
    for (std::sregex_iterator at(page.begin(), page.end(), command), end; at != end; ++at) {
        commands.push_back((*at)[1]);
    }
    return commands;
}

/// What stands at a place of an axis, read off its first and last tick, as a person reads a chart.
class Scale {
public:
    Scale(const json& layout, bool isLogarithmic) : m_isLogarithmic(isLogarithmic) {
        const json& ticks = layout.at("verMajorTicks");
        const json& labels = layout.at("verLabelTexts");
        m_first = {ticks.front().at(1), Number(labels.front())};
        m_last = {ticks.back().at(1), Number(labels.back())};
    }

    double At(double place) const {
        const double part = (place - m_first.Place) / (m_last.Place - m_first.Place);
        const double value = m_first.Value + part * (m_last.Value - m_first.Value);
        return m_isLogarithmic ? std::pow(10.0, value) : value;
    }

    /// What the eye cannot tell from a value: two thousandths of the axis.
    double Tolerance(double value) const {
        const double part = 0.002 * (m_last.Value - m_first.Value);
        return m_isLogarithmic ? value * (std::pow(10.0, part) - 1.0) : part;
    }

private:
    struct Tick {
        double Place = 0.0;
        double Value = 0.0;
    };

    double Number(const json& label) const {
        const double number = std::stod(Plain(label.get<std::string>()));
        return m_isLogarithmic ? std::log10(number) : number;
    }

    /// 1,000 as 1000, and 10⁻⁶ as 1e-6.
    static std::string Plain(std::string text) {
        text = std::regex_replace(text, std::regex(","), "");
        text = std::regex_replace(text, std::regex("^10(?=⁰|¹|²|³|⁴|⁵|⁶|⁷|⁸|⁹|⁻)"), "1e");
        const char* const raised[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
        for (int digit = 0; digit < 10; ++digit) {
            text = std::regex_replace(text, std::regex(raised[digit]), std::to_string(digit));
        }
        return std::regex_replace(text, std::regex("⁻"), "-");
    }

    bool m_isLogarithmic;
    Tick m_first;
    Tick m_last;
};

void ExpectSlices(const json& shown, const Values& values) {
    const json& slices = shown.at("shapes").at("slices");
    ASSERT_EQ(slices.size(), values.size());
    double sum = 0.0;
    for (const double value : values) {
        sum += value;
    }
    const double circle = shown.at("kind") == "pie" ? 360.0 : 180.0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_NEAR(slices[i].at("sweep"), circle * values[i] / sum, 0.001) << "slice " << i;
    }
}

void ExpectBars(const json& layout, const Scale& scale, const json& series) {
    const json& groups = layout.at("componentRects");
    ASSERT_EQ(groups.size(), series.front().size());
    for (std::size_t group = 0; group < groups.size(); ++group) {
        ASSERT_EQ(groups[group].size(), series.size());
        for (std::size_t i = 0; i < series.size(); ++i) {
            const double value = series[i][group];
            const json& bar = groups[group][i];
            const double end = bar.at(1).get<double>() + (value < 0.0 ? bar.at(3).get<double>() : 0.0);
            EXPECT_NEAR(scale.At(end), value, scale.Tolerance(value)) << "group " << group << ", bar " << i;
        }
    }
}

/// The times as places between the first and the last.
void ExpectTimes(const json& points, const Values& times) {
    const double first = points.front().at(0);
    const double width = points.back().at(0).get<double>() - first;
    for (std::size_t i = 0; i < times.size(); ++i) {
        EXPECT_NEAR((points[i].at(0).get<double>() - first) / width,
                    (times[i] - times.front()) / (times.back() - times.front()), 1e-4)
            << "point " << i;
    }
}

void ExpectCurves(const json& layout, const Scale& scale, const json& expected) {
    const json& series = expected.at("series");
    ASSERT_EQ(layout.at("curves").size(), series.size());
    for (std::size_t i = 0; i < series.size(); ++i) {
        const json& points = layout.at("curves")[i].at("points");
        ASSERT_EQ(points.size(), series[i].size());
        for (std::size_t at = 0; at < points.size(); ++at) {
            const double value = series[i][at];
            EXPECT_NEAR(scale.At(points[at].at(1)), value, scale.Tolerance(value))
                << "curve " << i << ", point " << at;
        }
        if (expected.contains("times")) {
            ExpectTimes(points, expected.at("times"));
        }
    }
}

class Spreadsheets : public cli_test::CommandTest {
protected:
    /// The command draws its table without a word, and the picture shows the table's values.
    void ExpectDrawn(const std::string& command, const json& tables) const {
        SCOPED_TRACE(command);
        std::smatch names;
        ASSERT_TRUE(std::regex_search(command, names, std::regex(R"(([\w-]+\.\w+) .*-o (\S+)$)")));
        const Outcome drawn = Run(command);
        ASSERT_EQ(drawn.Status, 0) << drawn.Errors;
        EXPECT_EQ(drawn.Errors, "");
        EXPECT_TRUE(Exists(names[2]));

        const std::string options = command.substr(sizeof "millichart draw" - 1);
        const Outcome inspected = Run("millichart inspect" + options.substr(0, options.rfind(" -o ")));
        ASSERT_EQ(inspected.Status, 0) << inspected.Errors;
        const json shown = json::parse(inspected.Output);
        const json& expected = tables.at(names[1].str());
        if (shown.at("shapes").contains("slices")) {
            ExpectSlices(shown, expected.at("series").front());
            return;
        }
        const json& layout = shown.at("layout");
        const Scale scale(layout, command.find("--log") != std::string::npos);
        if (layout.contains("curves")) {
            ExpectCurves(layout, scale, expected);
        } else {
            ExpectBars(layout, scale, expected.at("series"));
        }
    }
};

} // namespace

TEST_F(Spreadsheets, AreDrawnByOneCommandWithTheirValues) {
    const json tables = json::parse(ReadAll(MILLICHART_TESTS "/../data/spreadsheets/values.json"));
    std::filesystem::copy(MILLICHART_EXAMPLES "/spreadsheets", File(""));
    const std::vector<std::string> commands = Commands();
    EXPECT_EQ(commands.size(), tables.size());
    for (const std::string& command : commands) {
        ExpectDrawn(command, tables);
    }
}

#pragma once

#include <charconv>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace cli_test {

/// Many rows of times and values above 0, in the forms in which a table of them can be had. Times are in
/// order and each comes once; many values are equal, and so are whole stretches of them.
class PlotRows {
public:
    PlotRows(std::size_t count, unsigned seed) {
        std::mt19937 random(seed);
        std::int32_t time = -100000;
        for (std::size_t i = 0; i < count; ++i) {
            time += 1 + static_cast<std::int32_t>(random() % 3);
            const double wave = 60.0 + 50.0 * std::sin(static_cast<double>(time) / 9000.0);
            const double noise = static_cast<double>(random() % 1000003) / 77777.0;
            m_rows.emplace_back(time, i % 5000 < 900 ? 40.0 : i % 3 == 0 ? wave + noise : std::floor(wave));
        }
    }

    std::string Csv() const {
        std::string text = "t,v\n";
        for (const auto& [time, value] : m_rows) {
            text += std::to_string(time) + "," + Digits(value) + "\n";
        }
        return text;
    }

    /// Statements that make the table "points", in another order.
    std::string Sql(const std::string& type) const {
        std::string text = "begin; create table points (t integer, v " + type + ")";
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const auto& [time, value] = m_rows[i * 7919 % m_rows.size()];
            text += (i % 500 == 0 ? ";insert into points values (" : ",(") + std::to_string(time) + "," +
                    Digits(value) + ")";
        }
        return text + ";commit;";
    }

private:
    static std::string Digits(double value) {
        char text[40];
        return {text, std::to_chars(text, text + sizeof text, value).ptr};
    }

    std::vector<std::pair<std::int32_t, double>> m_rows;
};

} // namespace cli_test

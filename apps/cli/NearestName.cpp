#include "NearestName.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace cli {
namespace {

constexpr std::size_t kLongestName = 64;

std::string Lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

/// How many bytes must be put in, taken out or changed to make one text of the other.
std::size_t EditDistance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string NearestName(const std::string& name, const std::vector<std::string>& known) {
    if (name.size() > kLongestName) {
        return {};
    }
    std::string nearest;
    std::size_t least = 1 + std::max<std::size_t>(1, name.size() / 3);
    for (const std::string& candidate : known) {
        const std::size_t distance = EditDistance(Lowered(name), Lowered(candidate));
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace cli

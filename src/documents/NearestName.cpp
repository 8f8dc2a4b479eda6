#include "documents/NearestName.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace millichart::documents {
namespace {

constexpr std::size_t kMaxNameLength = 64;

std::string Lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

/// How many bytes must be put in, taken out, changed or swapped with the next to make one text of the other.
std::size_t EditDistance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    std::vector<std::size_t> last(row.size());
    std::vector<std::size_t> beforeLast(row.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            row[j + 1] = std::min({last[j] + (a[i] == b[j] ? 0 : 1), row[j] + 1, last[j + 1] + 1});
            if (i > 0 && j > 0 && a[i] == b[j - 1] && a[i - 1] == b[j]) {
                row[j + 1] = std::min(row[j + 1], beforeLast[j - 1] + 1);
            }
        }
    }
    return row.back();
}

} // namespace

std::string NearestName(const std::string& name, const std::vector<std::string>& known) {
    if (name.size() > kMaxNameLength) {
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

} // namespace millichart::documents

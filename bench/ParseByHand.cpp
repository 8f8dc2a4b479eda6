#include <charconv>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

/// A program that reads a file of rows, each a time and a value, and parses it where it lies. Its status is 0
/// if there was a row.
int main(int /*count*/, char** arguments) {
    std::ifstream in(arguments[1], std::ios::binary | std::ios::ate);
    std::string text(static_cast<std::size_t>(in.tellg()), '\0');
    in.seekg(0);
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    std::vector<std::int32_t> times;
    std::vector<double> values;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at < end) {
        std::int32_t time = 0;
        double value = 0.0;
        at = std::from_chars(at, end, time).ptr + 1;
        at = std::from_chars(at, end, value).ptr + 1;
        times.push_back(time);
        values.push_back(value);
    }
    return values.empty() ? 1 : 0;
}

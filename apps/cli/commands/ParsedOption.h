#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <utility>

namespace cli {

/// An option whose text is read by `parse(text, value)`; complains with the form that it should have.
template <class T, class Target, class Parse>
CLI::Option* AddParsed(CLI::App& command, const std::string& name, Target& target, Parse parse,
                       const std::string& form, const std::string& help) {
    return command.add_option_function<std::string>(
        name,
        [&target, parse, name, form](const std::string& text) {
            T value{};
            if (!parse(text, value)) {
                throw CLI::ValidationError(name, "found \"" + text + "\", expected " + form);
            }
            target = std::move(value);
        },
        help);
}

} // namespace cli

#pragma once

#include <string>

namespace cli_test {

/// A document of a pie whose labels are the names and values that a data base answers.
inline std::string AnsweredPie(const std::string& source, const std::string& query) {
    return R"json({"kind": "pie", "property": {"PieBasicProp": {"FixedSize": 1}, "PieLabelProp":
        {"ShowNameLabel": 1, "ShowValueLabel": 1, "ShowPercentLabel": 0}}, "data": {"source": ")json" +
           source + R"json(", "query": ")json" + query + "\"}}";
}

} // namespace cli_test

#include "support/PieLabels.h"

#include "millichart.h"

#include <algorithm>
#include <charconv>
#include <numeric>

using millichart::PieLabelProp;
using millichart::PieProp;
using penlode::CStringUtil;

namespace {

std::string OneDecimal(double value) {
    char text[64];
    return {text, std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 1).ptr};
}

std::vector<double> LoadValues(penlode::CJsonSerializeStream& stream) {
    std::vector<std::string> texts;
    stream.Push("data", -1);
    stream.Ser("values", texts, {});
    stream.Pop();
    std::vector<double> values(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        std::from_chars(texts[i].data(), texts[i].data() + texts[i].size(), values[i]);
    }
    return values;
}

/// The parts of a label, one a line, or all in one.
std::vector<std::string> LinesOf(const std::vector<std::string>& parts, const PieLabelProp& prop) {
    const std::string separator = CStringUtil::AnsiToUtf8(prop.LabelSeparator);
    std::vector<std::string> lines;
    for (const std::string& part : parts) {
        if (prop.LabelsInSingleRow != 0 && !lines.empty()) {
            lines.back() += separator + part;
        } else {
            lines.push_back(part);
        }
    }
    if (!lines.empty()) {
        lines.front().insert(0, CStringUtil::AnsiToUtf8(prop.PieLabelTextProperty.Prefix));
        lines.back() += CStringUtil::AnsiToUtf8(prop.PieLabelTextProperty.Postfix);
    }
    return lines;
}

std::vector<std::string> PartsOf(const PieLabelProp& prop, const std::string& name, double value,
                                 double total) {
    std::vector<std::string> parts;
    if (prop.ShowNameLabel == 1) {
        parts.push_back(name);
    }
    if (prop.ShowValueLabel == 1) {
        parts.push_back(OneDecimal(value));
    }
    if (prop.ShowPercentLabel == 1) {
        const auto share = static_cast<float>(value / total); // 4.15 of 100 is 4.1 %, as a float
        parts.push_back(OneDecimal(share * 100.0) + "%");
    }
    return parts;
}

} // namespace

std::vector<std::string> PieLabels(const std::string& document) {
    penlode::CJsonSerializeStream stream(document);
    PieProp prop;
    millichart::CPiePropSerialize::SerializePieProp(stream, prop, "property");
    const std::vector<double> values = LoadValues(stream);
    const double total = std::accumulate(values.begin(), values.end(), 0.0);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string name = CStringUtil::AnsiToUtf8(prop.Basic.ComponentName.at(i));
        for (const std::string& line : LinesOf(PartsOf(prop.Label, name, values[i], total), prop.Label)) {
            lines.push_back(line);
        }
        if (prop.Legend.ShowLegend != 0) {
            lines.push_back(name);
        }
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

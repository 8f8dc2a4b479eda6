#include "kinds/PlotSize.h"

#include "documents/Fields.h"

#include <utility>

namespace cli {

std::vector<Message> PlotSizeFaults(const std::string& place, float width, float height) {
    std::vector<Message> faults;
    for (const auto& [key, size] : {std::pair("/PlotWidth", width), {"/PlotHeight", height}}) {
        if (!(size > 0.0F)) {
            faults.push_back({"", Severity::Error, 0, place + key, NumberText(size), "a number above 0"});
        }
    }
    return faults;
}

} // namespace cli

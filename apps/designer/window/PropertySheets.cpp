#include "window/PropertySheets.h"

#include "editing/Edit.h"

#include <type_traits>
#include <variant>

namespace designer {
namespace {

using millichart::ChartDocument;

template <class Content>
bool EditContent(ChartDocument& document, Content& content, const std::optional<millichart::ChartPart>& at,
                 const std::function<void(const ChartDocument&)>& preview) {
    using Record = decltype(content.Prop);
    ChartDocument trial = document;
    const auto show = [&](const Record& record) {
        std::get<Content>(trial.Content).Prop = record;
        preview(trial);
    };
    return at ? millichart::EditWithPreview(&content.Prop, show, *at)
              : millichart::EditWithPreview(&content.Prop, show);
}

} // namespace

bool EditRecord(ChartDocument& document, const std::optional<millichart::ChartPart>& at,
                const std::function<void(const ChartDocument&)>& preview) {
    return std::visit(
        [&](auto& content) {
            if constexpr (std::is_same_v<std::decay_t<decltype(content)>, std::monostate>) {
                return false;
            } else {
                return EditContent(document, content, at, preview);
            }
        },
        document.Content);
}

} // namespace designer

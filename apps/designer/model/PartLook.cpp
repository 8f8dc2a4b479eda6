#include "model/PartLook.h"

namespace designer {
namespace {

using millichart::PartKind;
using millichart::TextOwner;
using millichart::TextRole;

std::optional<TextRole> RoleOf(PartKind kind) {
    switch (kind) {
    case PartKind::Slice:
    case PartKind::SliceLabel:
        return TextRole::SliceLabel;
    case PartKind::BarLabel:
        return TextRole::BarLabel;
    case PartKind::VerAxisLabel:
        return TextRole::VerAxisLabel;
    case PartKind::HorAxisLabel:
        return TextRole::HorAxisLabel;
    case PartKind::GroupName:
        return TextRole::GroupName;
    case PartKind::VerCaption:
        return TextRole::VerCaption;
    case PartKind::HorCaption:
        return TextRole::HorCaption;
    case PartKind::Caption:
        return TextRole::Caption;
    case PartKind::LegendSample:
    case PartKind::LegendName:
        return TextRole::LegendName;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<PartLook> LookOf(const millichart::LaidOutChart& chart, const millichart::ChartPart& part) {
    std::optional<PartLook> look;
    const std::optional<TextRole> role = RoleOf(part.Kind);
    chart.VisitTexts([&](millichart::ChartText&& text) {
        if (!role || text.Owner != TextOwner{*role, part.Index, part.Component, part.Part} ||
            text.Font == nullptr) {
            return;
        }
        const penlode::PointF middle = text.Box().Center();
        const penlode::SizeF size = text.Size;
        look =
            PartLook{{middle.X - size.Width / 2.0F, middle.Y - size.Height / 2.0F, size.Width, size.Height},
                     *text.Font,
                     penlode::Color{text.Color.Argb | 0xFF000000U}};
    });
    return look;
}

} // namespace designer

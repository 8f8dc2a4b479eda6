#include "window/PartNames.h"

#include <QCoreApplication>
#include <array>
#include <string_view>
#include <utility>

namespace designer {
namespace {

using millichart::PartKind;

QString Translated(const char* text) {
    return QCoreApplication::translate("PartNames", text);
}

constexpr std::array<std::pair<PartKind, const char*>, 17> kNames{{
    {PartKind::Plot, QT_TRANSLATE_NOOP("PartNames", "绘图区")},
    {PartKind::VerAxis, QT_TRANSLATE_NOOP("PartNames", "数值轴")},
    {PartKind::HorAxis, QT_TRANSLATE_NOOP("PartNames", "横轴")},
    {PartKind::Slice, QT_TRANSLATE_NOOP("PartNames", "扇区")},
    {PartKind::Bar, QT_TRANSLATE_NOOP("PartNames", "柱")},
    {PartKind::Curve, QT_TRANSLATE_NOOP("PartNames", "曲线")},
    {PartKind::CurvePoint, QT_TRANSLATE_NOOP("PartNames", "数据点")},
    {PartKind::SliceLabel, QT_TRANSLATE_NOOP("PartNames", "扇区标签")},
    {PartKind::BarLabel, QT_TRANSLATE_NOOP("PartNames", "柱标签")},
    {PartKind::VerAxisLabel, QT_TRANSLATE_NOOP("PartNames", "数值轴标签")},
    {PartKind::HorAxisLabel, QT_TRANSLATE_NOOP("PartNames", "横轴标签")},
    {PartKind::GroupName, QT_TRANSLATE_NOOP("PartNames", "组名")},
    {PartKind::VerCaption, QT_TRANSLATE_NOOP("PartNames", "数值轴标题")},
    {PartKind::HorCaption, QT_TRANSLATE_NOOP("PartNames", "横轴标题")},
    {PartKind::Caption, QT_TRANSLATE_NOOP("PartNames", "标题")},
    {PartKind::Legend, QT_TRANSLATE_NOOP("PartNames", "图例")},
    {PartKind::LegendSample, QT_TRANSLATE_NOOP("PartNames", "图例色块")},
}};

constexpr std::array<std::pair<std::string_view, const char*>, 6> kKinds{{
    {"pie", QT_TRANSLATE_NOOP("PartNames", "饼图")},
    {"half-pie", QT_TRANSLATE_NOOP("PartNames", "半饼图")},
    {"half-pie-half-pie", QT_TRANSLATE_NOOP("PartNames", "双半饼图")},
    {"half-pie-histogram", QT_TRANSLATE_NOOP("PartNames", "半饼直方图")},
    {"histogram", QT_TRANSLATE_NOOP("PartNames", "直方图")},
    {"curve", QT_TRANSLATE_NOOP("PartNames", "曲线图")},
}};

} // namespace

QString NameOf(PartKind kind) {
    for (const auto& [named, name] : kNames) {
        if (named == kind) {
            return Translated(name);
        }
    }
    return Translated(QT_TRANSLATE_NOOP("PartNames", "图例名称"));
}

QString Described(const millichart::ChartPart& part, const PartFacts& facts) {
    QString text = Capitalised(NameOf(part.Kind));
    const auto add = [&text](const char* before, const std::string& more) {
        if (!more.empty()) {
            text += QString::fromUtf8(before) + QString::fromStdString(more).simplified();
        }
    };
    add(" ", facts.Name);
    add(": ", facts.Value);
    add(", ", facts.Share);
    return text;
}

QString NameOfKind(const char* kind) {
    for (const auto& [known, name] : kKinds) {
        if (known == kind) {
            return Translated(name);
        }
    }
    return QString::fromUtf8(kind);
}

QString Capitalised(QString text) {
    if (!text.isEmpty()) {
        text[0] = text[0].toUpper();
    }
    return text;
}

} // namespace designer

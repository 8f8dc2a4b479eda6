#include "charts/reading/NamesThatFit.h"

#include "charts/reading/EveryNth.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <string_view>

namespace millichart {

using penlode::CStringUtil;
using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

using Measure = std::function<SizeF(const std::string&)>;

constexpr std::int32_t kHalfUpright = 45;
/// What lies between neighbours, as a part of a line's height: a blank, and for turned ones a little.
constexpr float kLevelGap = 0.3F;
constexpr float kTurnedGap = 0.05F;
constexpr std::ptrdiff_t kMostLines = 3;
/// Of a name that is turned, in its lines' heights; what is longer would take the picture for itself.
constexpr float kLongest = 25.0F;
/// What a line may be longer than its share of a name, as a part of its height.
constexpr float kEvenSlack = 0.6F;
constexpr std::size_t kEnoughOfScale = 5;

bool IsChinese(wchar_t c) {
    return (c >= L'\u3000' && c <= L'\u9FFF') || (c >= L'\uF900' && c <= L'\uFAFF') ||
           (c >= L'\uFF00' && c <= L'\uFFEF');
}

/// What no line begins with.
bool Closes(wchar_t c) {
    return std::wstring_view(L"，。、；：？！）》」』】〉％,.;:?!)]}%").find(c) != std::wstring_view::npos;
}

bool Opens(wchar_t c) {
    return std::wstring_view(L"（《「『【〈([{").find(c) != std::wstring_view::npos;
}

bool MayBreakBetween(wchar_t before, wchar_t after) {
    return before == L' ' || ((IsChinese(before) || IsChinese(after)) && !Opens(before) && !Closes(after));
}

std::wstring_view WithoutBlanksAtEnd(std::wstring_view text) {
    while (!text.empty() && text.back() == L' ') {
        text.remove_suffix(1);
    }
    return text;
}

/// One line without a line break, wrapped.
std::wstring WrappedLine(std::wstring_view line, float width, const Measure& measure) {
    const auto fits = [&](std::wstring_view part) {
        return measure(CStringUtil::WideToAnsiString(WithoutBlanksAtEnd(part))).Width <= width;
    };
    std::wstring text;
    std::size_t start = 0;
    std::size_t end = 0; // of what fits
    for (std::size_t i = 1; i <= line.size(); ++i) {
        if (i < line.size() && !MayBreakBetween(line[i - 1], line[i])) {
            continue;
        }
        if (end > start && !fits(line.substr(start, i - start))) {
            text.append(WithoutBlanksAtEnd(line.substr(start, end - start))).append(1, L'\n');
            start = end;
        }
        end = i;
    }
    return text.append(WithoutBlanksAtEnd(line.substr(start)));
}

std::ptrdiff_t Breaks(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
}

struct Placed {
    std::string Text;
    SizeF Size; ///< level
    float Line; ///< the height of one
    PointF Center;
    RectF Box;
};

/// Names in one form.
struct Form {
    std::int32_t Angle;
    std::vector<Placed> Names;
    PointF Along; ///< the names, of length 1
    float Gap;    ///< between neighbours, as a part of their height
};

/// Hung by the end that is higher, level ones by their middle.
Form FormOf(const NamesToFit& names, std::int32_t angle, const std::vector<std::string>& texts) {
    const double turn = angle * std::numbers::pi / 180.0;
    const auto sine = static_cast<float>(std::sin(turn));
    const auto cosine = static_cast<float>(std::cos(turn));
    const float hungAt = angle % 180 == 0 ? 0.0F : sine > 0.0F ? 0.5F : -0.5F;
    Form form{angle, {}, {cosine, -sine}, angle % 180 == 0 ? kLevelGap : kTurnedGap};
    form.Names.reserve(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const SizeF size = names.Measure(texts[i]);
        const SizeF upright{size.Width * std::abs(cosine) + size.Height * std::abs(sine),
                            size.Width * std::abs(sine) + size.Height * std::abs(cosine)};
        const PointF center{names.Centers[i] - hungAt * size.Width * cosine,
                            names.Top + upright.Height * 0.5F};
        form.Names.push_back({texts[i],
                              size,
                              size.Height / static_cast<float>(Breaks(texts[i]) + 1),
                              center,
                              {center.X - upright.Width * 0.5F, names.Top, upright.Width, upright.Height}});
    }
    return form;
}

bool Touch(const Form& form, const Placed& a, const Placed& b) {
    const PointF by = b.Center - a.Center;
    const float along = std::abs(by.X * form.Along.X + by.Y * form.Along.Y);
    const float across = std::abs(by.Y * form.Along.X - by.X * form.Along.Y);
    const float height = (a.Size.Height + b.Size.Height) * 0.5F;
    return along < (a.Size.Width + b.Size.Width + kLevelGap * (a.Line + b.Line)) * 0.5F &&
           across < height * (1.0F + form.Gap);
}

std::size_t LeastStep(const Form& form) {
    return LeastStepApart(form.Names.size(), [&form](std::size_t a, std::size_t b) {
        return Touch(form, form.Names[a], form.Names[b]);
    });
}

std::vector<FittedName> Every(std::size_t n, const Form& form) {
    std::vector<FittedName> fitted;
    for (std::size_t i = 0; i < form.Names.size(); i += n) {
        fitted.push_back({i, form.Names[i].Text, form.Names[i].Box, form.Angle});
    }
    return fitted;
}

float LeastDistance(const std::vector<float>& centers) {
    float least = std::numeric_limits<float>::max();
    for (std::size_t i = 1; i < centers.size(); ++i) {
        least = std::min(least, centers[i] - centers[i - 1]);
    }
    return least;
}

/// In as many lines as that width makes of it, but of like lengths.
std::string WrappedEvenly(const Placed& name, float width, const Measure& measure) {
    std::string wrapped = WrappedText(name.Text, width, measure);
    const auto lines = static_cast<float>(Breaks(wrapped) + 1);
    const float even = name.Size.Width / lines + name.Line * kEvenSlack;
    std::string evenly = WrappedText(name.Text, std::min(even, width), measure);
    return Breaks(evenly) == Breaks(wrapped) ? evenly : wrapped;
}

/// One that is too long for a turned name ends in "…".
std::string Shortened(const Placed& name, const Measure& measure) {
    const float width = kLongest * name.Line;
    if (name.Size.Width <= width) {
        return name.Text;
    }
    const std::wstring wide = CStringUtil::AnsiToWideString(name.Text);
    const auto cut = [&wide](std::size_t count) {
        return CStringUtil::WideToAnsiString(wide.substr(0, count) + L"…");
    };
    std::size_t fits = 0;
    std::size_t tooMany = wide.size();
    while (fits + 1 < tooMany) {
        const std::size_t middle = (fits + tooMany) / 2;
        (measure(cut(middle)).Width <= width ? fits : tooMany) = middle;
    }
    return cut(fits);
}

std::optional<Form> Wrapped(const NamesToFit& names, const Form& level) {
    float height = 0.0F;
    for (const Placed& name : level.Names) {
        height = std::max(height, name.Size.Height);
    }
    const float width = LeastDistance(names.Centers) - kLevelGap * height;
    if (!(width > height)) { // not even room for a Chinese character
        return std::nullopt;
    }
    std::vector<std::string> texts;
    for (const Placed& name : level.Names) {
        texts.push_back(WrappedEvenly(name, width, names.Measure));
        if (Breaks(texts.back()) >= kMostLines) {
            return std::nullopt;
        }
    }
    Form form = FormOf(names, 0, texts);
    return LeastStep(form) == 1 ? std::optional(std::move(form)) : std::nullopt;
}

} // namespace

std::string WrappedText(const std::string& text, float width, const Measure& measure) {
    const std::wstring wide = CStringUtil::AnsiToWideString(text);
    std::wstring_view rest = wide;
    std::wstring wrapped;
    for (;;) {
        const std::size_t end = rest.find(L'\n');
        wrapped += WrappedLine(rest.substr(0, end), width, measure);
        if (end == std::wstring_view::npos) {
            return CStringUtil::WideToAnsiString(wrapped);
        }
        wrapped += L'\n';
        rest.remove_prefix(end + 1);
    }
}

std::vector<FittedName> FitNames(const NamesToFit& names) {
    if (names.Names.empty()) {
        return {};
    }
    const Form own = FormOf(names, names.Angle, names.Names);
    const std::size_t step = LeastStep(own);
    if (step == 1 || names.Angle != 0) {
        return Every(step, own);
    }
    if (const std::optional<Form> wrapped = Wrapped(names, own)) {
        return Every(1, *wrapped);
    }
    const bool areEnough = (names.Names.size() - 1) / step + 1 >= kEnoughOfScale;
    if (names.AreOnScale && areEnough) {
        return Every(step, own);
    }
    std::vector<std::string> shortened;
    for (const Placed& name : own.Names) {
        shortened.push_back(Shortened(name, names.Measure));
    }
    const Form turned = FormOf(names, kHalfUpright, shortened);
    return Every(LeastStep(turned), turned);
}

} // namespace millichart

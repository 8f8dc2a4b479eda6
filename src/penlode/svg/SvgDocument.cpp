#include "penlode/svg/SvgDocument.h"

#include "penlode/engine/EngineArguments.h"
#include "penlode/svg/SvgShapes.h"
#include "penlode/svg/SvgWriter.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <span>
#include <utility>

namespace penlode::svg {
namespace {

/// Deep groups are not indented any further: a line would be all blanks.
constexpr std::size_t kMaxIndent = 16;

std::string Indent(std::size_t depth) {
    return std::string(2 * std::min(depth, kMaxIndent), ' ');
}

std::string Line(std::size_t depth, std::string_view text) {
    return Indent(depth).append(text).append("\n");
}

/// An element of several lines, such as a group. Texts hold no line breaks once they are escaped.
std::vector<std::string_view> LinesOf(std::string_view element) {
    std::vector<std::string_view> lines;
    for (std::size_t end = element.find('\n'); end != std::string_view::npos; end = element.find('\n')) {
        lines.push_back(element.substr(0, end));
        element.remove_prefix(end + 1);
    }
    lines.push_back(element);
    return lines;
}

/// Invalid bytes replaced, special characters escaped.
std::string CleanText(const std::string& utf8) {
    return Escaped(CStringUtil::WideToUtf8(CStringUtil::Utf8ToWideString(utf8)));
}

/// A line of its own for a text that is given.
std::string TextLine(const char* element, const std::string& utf8) {
    return utf8.empty() ? "" : Line(1, SvgElement(element).Around(CleanText(utf8)));
}

} // namespace

std::string SvgDefinitions::Define(Kind& kind, const std::string& attributes, const std::string& content) {
    const auto [place, isNew] = kind.Ids.try_emplace(attributes + ">" + content);
    if (isNew) {
        place->second = kind.IdPrefix + std::to_string(kind.Ids.size());
        m_text += Line(2, SvgElement(kind.Name).Set("id", place->second).Raw(attributes).Around(content));
    }
    return place->second;
}

SvgDocument::SvgDocument(SizeF page, SvgOptions options) : m_page(page), m_options(std::move(options)) {}

void SvgDocument::Add(const std::vector<SvgGroup>& groups, std::string_view element) {
    if (element.empty()) {
        return;
    }
    const auto differing = std::mismatch(m_open.begin(), m_open.end(), groups.begin(), groups.end()).first;
    const auto kept = static_cast<std::size_t>(differing - m_open.begin());
    while (m_open.size() > kept) {
        m_body += Line(m_open.size(), "</g>");
        m_open.pop_back();
    }
    for (const SvgGroup& group : std::span(groups).subspan(kept)) {
        m_open.push_back(group);
        m_body += Line(m_open.size(), SvgElement("g").Raw(group.Attributes).Open());
    }
    for (const std::string_view line : LinesOf(element)) {
        m_body += Line(m_open.size() + 1, line);
    }
}

std::string SvgDocument::Head() const {
    const std::string width = Number(m_page.Width);
    const std::string height = Number(m_page.Height);
    std::string head = SvgElement("svg")
                           .Set("xmlns", "http://www.w3.org/2000/svg")
                           .Set("width", width + "mm")
                           .Set("height", height + "mm")
                           .Set("viewBox", "0 0 " + width + " " + height)
                           .Set("fill", "none")
                           .Set("fill-rule", "evenodd")
                           .Set("clip-rule", "evenodd")
                           .Open() +
                       "\n";
    head += TextLine("title", m_options.Title) + TextLine("desc", m_options.Description);
    if (!m_definitions.Text().empty()) {
        head += Line(1, "<defs>") + m_definitions.Text() + Line(1, "</defs>");
    }
    const RectF page{0.0F, 0.0F, m_page.Width, m_page.Height};
    if (m_options.Background && HasExtent(page)) {
        head += Line(1, ShapeElement({{}, m_page}, {Outline::Rectangle{page}},
                                     {FillAttributes(*m_options.Background)}));
    }
    return head;
}

std::string SvgDocument::Text() const {
    std::string text = Head() + m_body;
    for (std::size_t depth = m_open.size(); depth > 0; --depth) {
        text += Line(depth, "</g>");
    }
    return text + "</svg>\n";
}

} // namespace penlode::svg

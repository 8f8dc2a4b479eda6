#include "ChartDocument.h"

#include "UserError.h"
#include "millichart.h"
#include "penlode/TextForms.h"

#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace cli {

using penlode::CJsonSerializeStream;
using penlode::PointF;
using penlode::StreamProblem;

namespace {

constexpr std::int32_t kFormatVersion = 1;
constexpr const char* kPointForm = "a point such as \"12.5 40\"";

std::string ReadFile(const std::string& name) {
    std::error_code error;
    if (std::filesystem::is_directory(name, error)) {
        throw UserError(name + ": cannot be read: it is a folder");
    }
    std::ifstream file(name, std::ios::binary);
    std::ostringstream content;
    if (!file || (file.peek() != std::ifstream::traits_type::eof() && !(content << file.rdbuf()))) {
        throw UserError(name + ": cannot be read: " + std::strerror(errno));
    }
    return std::move(content).str();
}

template <class T> bool ParseNumber(const std::string& text, T& value) {
    std::string form = text;
    return penlode::ser_evaluate(value, form, false) && std::isfinite(value);
}

bool ParsePoint(const std::string& text, PointF& point) {
    const std::size_t blank = text.find(' ');
    PointF read;
    if (blank == std::string::npos || !ParseNumber(text.substr(0, blank), read.X) ||
        !ParseNumber(text.substr(blank + 1), read.Y)) {
        return false;
    }
    point = read;
    return true;
}

std::string Load(CJsonSerializeStream& stream, const char* key, const std::string& defaultText) {
    std::string text;
    stream.Ser(key, text, defaultText);
    return text;
}

/// One item of a list after another through `parse`; what does not parse is refused with its place.
template <class T>
std::vector<T> LoadList(CJsonSerializeStream& stream, const std::string& key,
                        bool (*parse)(const std::string&, T&), const char* form) {
    std::vector<std::string> texts;
    stream.Ser(key, texts, {});
    std::vector<T> values(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!parse(texts[i], values[i])) {
            stream.Refuse(key + "/" + std::to_string(i), texts[i], form);
        }
    }
    return values;
}

PointF LoadPoint(CJsonSerializeStream& stream, const char* key) {
    const std::string text = Load(stream, key, "0 0");
    PointF point;
    if (!ParsePoint(text, point)) {
        stream.Refuse(key, text, kPointForm);
    }
    return point;
}

class PieChart final : public Chart {
public:
    explicit PieChart(CJsonSerializeStream& stream) {
        millichart::PieProp prop;
        millichart::CPiePropSerialize::SerializePieProp(stream, prop, "property");
        m_pie.SetPieProp(prop);
        stream.Push("data", -1);
        m_pie.SetComponentValue(LoadList<double>(stream, "values", ParseNumber<double>, "a number"));
        stream.Pop();
        m_pie.SetLocation(LoadPoint(stream, "location"));
        m_pie.SetChildOffset(LoadList<PointF>(stream, "labelOffsets", ParsePoint, kPointForm),
                             {LoadPoint(stream, "legendOffset")});
        m_pie.Layout();
    }

    penlode::RectF Extent() const override { return m_pie.GetPositionAll(); }

    void Draw(penlode::IGraphicsEngine& engine) const override { m_pie.Draw(&engine); }

private:
    millichart::CBasicPie m_pie;
};

struct Kind {
    const char* Name;
    std::unique_ptr<Chart> (*Load)(CJsonSerializeStream&);
};

template <class T> std::unique_ptr<Chart> Make(CJsonSerializeStream& stream) {
    return std::make_unique<T>(stream);
}

constexpr std::array<Kind, 1> kKinds{{{"pie", Make<PieChart>}}};

std::string KindNames() {
    std::string names;
    for (const Kind& kind : kKinds) {
        names += (names.empty() ? "\"" : ", \"") + std::string(kind.Name) + "\"";
    }
    return names;
}

std::unique_ptr<Chart> LoadChart(CJsonSerializeStream& stream) {
    const std::string name = Load(stream, "kind", "");
    for (const Kind& kind : kKinds) {
        if (name == kind.Name) {
            return kind.Load(stream);
        }
    }
    stream.Refuse("kind", name, KindNames());
    return nullptr;
}

void LoadHead(CJsonSerializeStream& stream, ChartDocument& document) {
    const std::string version = Load(stream, "version", std::to_string(kFormatVersion));
    if (version != std::to_string(kFormatVersion)) {
        stream.Refuse("version", version, std::to_string(kFormatVersion));
    }
    document.Title = penlode::CStringUtil::AnsiToUtf8(Load(stream, "title", ""));
    document.Description = penlode::CStringUtil::AnsiToUtf8(Load(stream, "description", ""));
    const std::string source = penlode::CStringUtil::AnsiToUtf8(Load(stream, "source", ""));
    document.Description += (document.Description.empty() || source.empty() ? "" : "\n") + source;
}

/// Every problem that keeps the document from being drawn as it was meant.
std::string Refusals(const std::string& fileName, const CJsonSerializeStream& stream) {
    std::string lines;
    for (const StreamProblem& problem : stream.Problems()) {
        if (problem.What != StreamProblem::Kind::MissingKey) {
            lines += (lines.empty() ? "" : "\n") + Describe(fileName, problem);
        }
    }
    return lines;
}

} // namespace

std::string Describe(const std::string& fileName, const StreamProblem& problem) {
    std::string text = fileName + ": " + problem.Place + ": ";
    if (problem.What == StreamProblem::Kind::UnknownKey) {
        return text + "an unknown key, ignored";
    }
    return text + "found " + problem.Found + ", expected " + problem.Expected;
}

ChartDocument LoadChartDocument(const std::string& fileName) {
    CJsonSerializeStream stream(ReadFile(fileName), fileName);
    ChartDocument document;
    if (!stream.IsUnreadable()) {
        LoadHead(stream, document);
        document.Content = LoadChart(stream);
    }
    const std::string refusals = Refusals(fileName, stream);
    if (!refusals.empty()) {
        throw UserError(refusals);
    }
    document.Remarks = stream.UnknownKeys();
    return document;
}

} // namespace cli

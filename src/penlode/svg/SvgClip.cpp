#include "penlode/svg/SvgClip.h"

#include "penlode/engine/EngineArguments.h"
#include "penlode/engine/RegionFold.h"
#include "penlode/svg/SvgGeometry.h"
#include "penlode/svg/SvgPath.h"
#include "penlode/svg/SvgWriter.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace penlode::svg {
namespace {

struct Term;
using TermRef = std::shared_ptr<const Term>;

/// An area of the page as an expression. All of no parts is everything, any of no parts is nothing.
struct Term {
    enum class Kind { Area, All, Any };

    Kind Is;
    std::string Data; ///< an area's path, by the even-odd rule
    bool Inverted = false;
    std::vector<TermRef> Parts;

    bool IsEverything() const { return Is == Kind::All && Parts.empty(); }

    bool IsNothing() const { return Is == Kind::Any && Parts.empty(); }
};

bool AreAlike(const Term& a, const Term& b) {
    return a.Is == Term::Kind::Area && b.Is == a.Is && a.Inverted == b.Inverted && a.Data == b.Data;
}

/// Makes terms, up to a bound: an expression stays small enough to be written by recursion.
class TermMaker {
public:
    explicit TermMaker(SizeF page) : m_page(page) {}

    bool IsExhausted() const { return m_made > kMaxTerms || m_tooDeep; }

    TermRef Of(const Region::Everything&) { return Make({Term::Kind::All, {}, false, {}}); }

    TermRef Of(const Region::Nothing&) { return Make({Term::Kind::Any, {}, false, {}}); }

    TermRef Of(const RectF& rect) {
        return Near(HasExtent(rect) ? PolygonData(AreaOnPage({{}, m_page}, CornersOf(rect))) : "");
    }

    TermRef Of(const GraphicsPath& path) { return Near(IsFinite(path) ? PathData(path, {{}, m_page}) : ""); }

    TermRef Both(const TermRef& a, const TermRef& b) { return Joined(Term::Kind::All, a, b); }

    TermRef Either(const TermRef& a, const TermRef& b) { return Joined(Term::Kind::Any, a, b); }

    TermRef Without(const TermRef& a, const TermRef& b) { return Both(a, Not(b)); }

    TermRef OneOf(const TermRef& a, const TermRef& b) {
        if (a->Is == Term::Kind::Area && b->Is == Term::Kind::Area) {
            return Area(a->Data + " " + b->Data, a->Inverted != b->Inverted);
        }
        return Either(Without(a, b), Both(Not(a), b));
    }

private:
    static constexpr std::size_t kMaxTerms = 3000;
    static constexpr std::size_t kMaxNested = 100;

    TermRef Make(Term term) {
        ++m_made;
        return std::make_shared<const Term>(std::move(term));
    }

    TermRef Area(std::string data, bool inverted = false) {
        return Make({Term::Kind::Area, std::move(data), inverted, {}});
    }

    TermRef Near(std::string data) { return data.empty() ? Of(Region::Nothing{}) : Area(std::move(data)); }

    TermRef Not(const TermRef& term) {
        if (term->Is == Term::Kind::Area) {
            return Area(term->Data, !term->Inverted);
        }
        Term negated{term->Is == Term::Kind::All ? Term::Kind::Any : Term::Kind::All, {}, false, {}};
        for (const TermRef& part : term->Parts) {
            negated.Parts.push_back(IsExhausted() ? part : Not(part));
        }
        return Make(std::move(negated));
    }

    /// Parts of the same kind are taken in, what changes nothing is left out, and what decides alone stays
    /// alone.
    TermRef Joined(Term::Kind kind, const TermRef& a, const TermRef& b) {
        Term joined{kind, {}, false, {}};
        for (const TermRef& term : {a, b}) {
            if (kind == Term::Kind::All ? term->IsNothing() : term->IsEverything()) {
                return term;
            }
            if (term->Is == kind) {
                joined.Parts.insert(joined.Parts.end(), term->Parts.begin(), term->Parts.end());
            } else if (joined.Parts.empty() || !AreAlike(*joined.Parts.back(), *term)) {
                joined.Parts.push_back(term);
            }
        }
        m_tooDeep = m_tooDeep || (kind == Term::Kind::All && joined.Parts.size() > kMaxNested);
        return joined.Parts.size() == 1 ? joined.Parts.front() : Make(std::move(joined));
    }

    SizeF m_page;
    std::size_t m_made = 0;
    bool m_tooDeep = false;
};

std::string PageData(SizeF page) {
    return PolygonData(MapAll({}, CornersOf(RectF{0.0F, 0.0F, page.Width, page.Height})));
}

std::string MaskArea(SizeF page) {
    return " maskUnits=\"userSpaceOnUse\" x=\"0\" y=\"0\" width=\"" + Number(page.Width) + "\" height=\"" +
           Number(page.Height) + "\"";
}

std::string White(const std::string& data) {
    return SvgElement("path").Set("d", data).Set("fill", "#ffffff").Empty();
}

/// Writes terms as definitions and groups that refer to them.
class TermWriter {
public:
    TermWriter(SizeF page, SvgDefinitions& definitions)
        : m_page(PageData(page)), m_maskArea(MaskArea(page)), m_definitions(definitions) {}

    /// One attribute for each group.
    std::vector<std::string> Groups(const TermRef& term) {
        if (term->Is != Term::Kind::All) {
            return {Attribute(term)};
        }
        std::vector<std::string> groups;
        for (const TermRef& part : term->Parts) {
            groups.push_back(Attribute(part));
        }
        return groups;
    }

private:
    std::string DataOf(const Term& area) const {
        return area.Inverted ? m_page + " " + area.Data : area.Data;
    }

    /// Of an area or any of several; written once for each term, wherever it stands.
    std::string Attribute(const TermRef& term) {
        if (term->Is == Term::Kind::Area) {
            return ClipAttribute(DataOf(*term), m_definitions);
        }
        const auto found = m_masks.find(term.get());
        if (found != m_masks.end()) {
            return found->second;
        }
        std::string shapes;
        for (const TermRef& part : term->Parts) {
            shapes += part->Is == Term::Kind::Area ? White(DataOf(*part)) : Common(*part);
        }
        const std::string id = m_definitions.Mask(m_maskArea, shapes);
        return m_masks[term.get()] = " mask=\"" + Reference(id) + "\"";
    }

    /// A white shape of what lies in all parts: one of them, in groups for the others.
    std::string Common(const Term& all) {
        std::string shape;
        std::vector<std::string> groups;
        for (const TermRef& part : all.Parts) {
            if (shape.empty() && part->Is == Term::Kind::Area) {
                shape = White(DataOf(*part));
            } else {
                groups.push_back(Attribute(part));
            }
        }
        if (shape.empty()) {
            shape = White(m_page);
        }
        for (const std::string& group : groups) {
            shape = SvgElement("g").Raw(group).Around(shape);
        }
        return shape;
    }

    std::string m_page;
    std::string m_maskArea;
    SvgDefinitions& m_definitions;
    std::map<const Term*, std::string> m_masks;
};

} // namespace

std::vector<std::string> ClipGroups(const Region& region, SizeF page, SvgDefinitions& definitions) {
    TermMaker make(page);
    return TermWriter(page, definitions).Groups(Folded(region, make));
}

std::string MaskAttribute(std::span<const std::string> groups, SizeF page, SvgDefinitions& definitions) {
    std::string shape = White(PageData(page));
    for (std::size_t i = groups.size(); i > 0; --i) {
        shape = SvgElement("g").Raw(groups[i - 1]).Around(shape);
    }
    return " mask=\"" + Reference(definitions.Mask(MaskArea(page), shape)) + "\"";
}

std::string ClipAttribute(const std::string& data, SvgDefinitions& definitions) {
    const std::string id = definitions.ClipPath(SvgElement("path").Set("d", data).Empty());
    return " clip-path=\"" + Reference(id) + "\"";
}

} // namespace penlode::svg

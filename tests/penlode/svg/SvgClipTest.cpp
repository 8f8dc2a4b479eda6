#include "penlode/svg/Body.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace penlode;

namespace {

const SolidBrush kBrush{kBlack};
const std::string kDot = "<rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" fill=\"#000000\"/>\n";
const std::string kOtherData = "M5 5 L15 5 L15 15 L5 15 Z";
const std::string kPage = "M0 0 L80 0 L80 60 L0 60 Z";

void Dot(CSvgEngine& engine) {
    engine.FillRectangle(&kBrush, 0, 0, 1, 1);
}

const std::string kSquareData = "M0 0 L10 0 L10 10 L0 10 Z";

std::string Path(const std::string& id, const std::string& data) {
    return "<clipPath id=\"" + id + "\"><path d=\"" + data + "\"/></clipPath>\n";
}

std::string Mask(const std::string& id, const std::string& shapes) {
    return "<mask id=\"" + id +
           "\" maskUnits=\"userSpaceOnUse\" x=\"0\" y=\"0\" width=\"80\" height=\"60\">" + shapes +
           "</mask>\n";
}

std::string White(const std::string& data) {
    return "<path d=\"" + data + "\" fill=\"#ffffff\"/>";
}

/// A document of one dot in groups with these attributes.
std::string DotIn(const std::string& definitions, const std::vector<std::string>& groups) {
    std::string text = "<defs>\n" + definitions + "</defs>\n";
    for (const std::string& group : groups) {
        text += "<g " + group + ">\n";
    }
    text += kDot;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        text += "</g>\n";
    }
    return text;
}

/// How many elements stand in one another at most.
int DeepestLevel(const std::string& text) {
    int level = 0;
    int deepest = 0;
    for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
        const bool closes = text[at + 1] == '/';
        level += closes ? -1 : 1;
        deepest = std::max(deepest, level);
        level -= text[text.find('>', at) - 1] == '/' ? 1 : 0;
    }
    return deepest;
}

} // namespace

TEST(SvgGroups, ContainersAreGroupsUnlessTheyAreEmpty) {
    CSvgEngine engine({80, 60});
    const auto outer = engine.BeginContainer();
    engine.EndContainer(engine.BeginContainer());
    engine.BeginContainer();
    Dot(engine);
    EXPECT_EQ(engine.EndContainer(outer), Status::Ok);
    EXPECT_EQ(engine.EndContainer(outer), Status::InvalidParameter);
    Dot(engine);
    engine.BeginContainer();
    Dot(engine);
    EXPECT_EQ(Body(engine), "<g>\n<g>\n" + kDot + "</g>\n</g>\n" + kDot + "<g>\n" + kDot + "</g>\n");
}

TEST(SvgGroups, ClipsCoverWhatIsDrawnInThem) {
    CSvgEngine engine({80, 60});
    engine.SetClip(RectF{0, 0, 10, 10}, CombineMode::Intersect);
    Dot(engine);
    const auto container = engine.BeginContainer();
    Dot(engine);
    engine.TranslateTransform(5, 5, MatrixOrder::Prepend);
    engine.SetClip(RectF{0, 0, 10, 10}, CombineMode::Replace);
    engine.ResetTransform();
    Dot(engine);
    engine.EndContainer(container);
    Dot(engine);
    engine.ResetClip();
    Dot(engine);
    engine.SetClip(RectF{0, 0, 10, 10}, CombineMode::Replace);
    Dot(engine);
    EXPECT_EQ(Body(engine), "<defs>\n" + Path("c1", kSquareData) + Path("c2", kOtherData) + "</defs>\n" +
                                "<g clip-path=\"url(#c1)\">\n" + kDot + "<g>\n" + kDot +
                                "<g clip-path=\"url(#c2)\">\n" + kDot + "</g>\n</g>\n" + kDot + "</g>\n" +
                                kDot + "<g clip-path=\"url(#c1)\">\n" + kDot + "</g>\n");
}

TEST(SvgGroups, VeryDeepContainersStayReadable) {
    CSvgEngine engine({80, 60});
    for (int i = 0; i < 1000; ++i) {
        engine.BeginContainer();
    }
    Dot(engine);
    const std::string body = Body(engine);
    std::size_t groups = 0;
    for (std::size_t at = body.find("<g>"); at != std::string::npos; at = body.find("<g>", at + 1)) {
        ++groups;
    }
    EXPECT_EQ(groups, 64U);
}

TEST(SvgGroups, ManyClipsStayReadableAndInForce) {
    CSvgEngine engine({80, 60});
    for (int i = 0; i < 300; ++i) {
        engine.BeginContainer();
        engine.SetClip(RectF{0, 0, 400.0F - static_cast<float>(i), 10}, CombineMode::Intersect);
    }
    Dot(engine);
    const std::string text = engine.Text();
    EXPECT_LT(DeepestLevel(text), 210);
    for (int i = 1; i <= 300; ++i) {
        EXPECT_NE(text.find("\"url(#c" + std::to_string(i) + ")\""), std::string::npos) << i;
    }
    // Each mask but the last is used by the next one, the last by the drawing.
    for (const char* mask : {"<g mask=\"url(#m1)\"><g clip-path", "<g mask=\"url(#m2)\"><g clip-path",
                             "<g mask=\"url(#m3)\">\n"}) {
        EXPECT_NE(text.find(mask), std::string::npos) << mask;
    }
}

TEST(SvgClip, CombinedRegionsCombineExactly) {
    const std::string bar = "M0 4 L10 4 L10 6 L0 6 Z";
    const std::string post = "M4 0 L6 0 L6 10 L4 10 Z";
    Region cross(RectF{0, 4, 10, 2});
    cross.Combine(RectF{4, 0, 2, 10}, CombineMode::Union);
    CSvgEngine square({80, 60});
    square.SetClip(RectF{0, 0, 10, 10}, CombineMode::Replace);
    square.SetClip(&std::as_const(cross), CombineMode::Exclude);
    Dot(square);
    // All but the cross is what lies outside both of its bars.
    EXPECT_EQ(Body(square),
              DotIn(Path("c1", kSquareData) + Path("c2", kPage + " " + bar) + Path("c3", kPage + " " + post),
                    {"clip-path=\"url(#c1)\"", "clip-path=\"url(#c2)\"", "clip-path=\"url(#c3)\""}));

    CSvgEngine other({80, 60});
    other.SetClip(&std::as_const(cross), CombineMode::Replace);
    other.SetClip(RectF{5, 5, 10, 10}, CombineMode::Xor);
    Dot(other);
    // The cross without the other square, and the other square outside both bars.
    EXPECT_EQ(Body(other),
              DotIn(Mask("m1", White(bar) + White(post)) + Path("c1", kPage + " " + post) +
                        Path("c2", kOtherData) +
                        Mask("m2", "<g mask=\"url(#m1)\">" + White(kPage + " " + kOtherData) + "</g>" +
                                       "<g clip-path=\"url(#c2)\"><g clip-path=\"url(#c1)\">" +
                                       White(kPage + " " + bar) + "</g></g>"),
                    {"mask=\"url(#m2)\""}));
}

TEST(SvgClip, EverythingAndNothing) {
    CSvgEngine engine({80, 60});
    Region nothing;
    nothing.MakeEmpty();
    engine.SetClip(&nothing, CombineMode::Xor);
    Dot(engine);
    EXPECT_EQ(Body(engine), kDot);
    engine.SetClip(&nothing, CombineMode::Replace);
    Dot(engine);
    EXPECT_EQ(Body(engine),
              "<defs>\n" + Mask("m1", "") + "</defs>\n" + kDot + "<g mask=\"url(#m1)\">\n" + kDot + "</g>\n");
}

TEST(SvgClip, EndlessCombiningStaysBounded) {
    CSvgEngine deep({80, 60});
    for (int i = 0; i < 150; ++i) {
        deep.SetClip(RectF{static_cast<float>(i), 0, 1, 1}, CombineMode::Exclude);
    }
    Dot(deep);
    EXPECT_EQ(DeepestLevel(deep.Text()), 100 + 2) << "groups in the root, round the dot";
    CSvgEngine engine({80, 60});
    const Region cross = [] {
        Region region(RectF{0, 4, 10, 2});
        region.Combine(RectF{4, 0, 2, 10}, CombineMode::Union);
        return region;
    }();
    for (int i = 0; i < 200; ++i) {
        engine.SetClip(&cross, CombineMode::Xor);
    }
    for (int i = 0; i < 5000; ++i) {
        engine.SetClip(RectF{static_cast<float>(i), 0, 1, 1},
                       i % 2 == 0 ? CombineMode::Union : CombineMode::Intersect);
    }
    Dot(engine);
    EXPECT_LT(engine.Text().size(), 4'000'000U);
}

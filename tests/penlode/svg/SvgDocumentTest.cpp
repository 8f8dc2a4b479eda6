#include "penlode/svg/Body.h"

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <locale>

using namespace penlode;

namespace {

/// Draws with every operation that leaves something in a document.
void DrawAll(IGraphicsEngine& engine) {
    const Pen pen(Color{0x80336699}, 0.25F, DashStyle::DashDotDot);
    const SolidBrush brush{Color{0xFFCC6600}};
    const Font font{L"宋体", 3.5F, FontStyle::Bold | FontStyle::Underline};
    const StringFormat far{0, 0, StringAlignment::Far, StringAlignment::Near};
    const PointF points[] = {{1.5F, 1}, {20.25F, 7}, {40, 3}};
    const Image image{2, 1, 96.0F, 96.0F, {kBlack, kWhite}};
    const GradientVertex vertices[] = {{0, 0, 0xFF00, 0, 0, 0}, {9, 9, 0, 0xFF00, 0, 0}, {0, 9, 0, 0, 0, 0}};
    const GradientRect rect{0, 1};
    const GradientTriangle triangle{0, 1, 2};
    GraphicsPath path;
    path.AddPie({5, 5, 30, 20}, 10, 200);

    engine.DrawRectangle(&pen, 1.5F, 1.5F, 2.25F, 3);
    engine.DrawLines(&pen, points, 3);
    engine.DrawLine(&pen, 0.125F, 0, 10, 10);
    engine.DrawArc(&pen, 1, 2, 10, 5, 10, 100);
    engine.DrawEllipse(&pen, 1, 2, 10, 5);
    engine.DrawPie(&pen, {1, 2, 10, 5}, 10, 359.9F);
    engine.DrawPolygon(&pen, points, 3);
    engine.DrawCurve(&pen, points, 3);
    const auto container = engine.BeginContainer();
    engine.TranslateTransform(20.5F, 30, MatrixOrder::Prepend);
    engine.RotateTransform(-33.3F, MatrixOrder::Prepend);
    engine.SetClip(&path, CombineMode::Intersect);
    engine.SetClip(RectF{0, 0, 9, 9}, CombineMode::Exclude);
    engine.DrawString(L"<深度>\n\"m\" & ]]>\x02", -1, &font, PointF{1, 1}, &far, &brush);
    engine.DrawString(L" two  blanks ", -1, &font, PointF{1, 1}, &brush);
    engine.DrawString(L"boxed", 3, &font, RectF{1, 1, 20, 10}, &far, &brush);
    engine.DrawScriptText(L"x\t²", &font, 3, 4, &brush);
    engine.DrawImage(&image, {5, 5, 10, 5}, 0.25F, 0, 1, 1, Unit::Pixel, nullptr, nullptr, nullptr);
    engine.DrawImage(&image, {5, 5, 10, 5});
    engine.EndContainer(container);
    engine.FillRectangle(&brush, 1, 2, 3, 4);
    engine.FillEllipse(&brush, 1, 2, 3, 4);
    engine.FillPie(&brush, {1, 2, 10, 5}, 10, -250);
    engine.FillPolygon(&brush, points, 3);
    engine.FillPath(&brush, &path);
    engine.GradientFill({0, 0, 80, 60}, {1.5F, 1}, vertices, 3, &rect, 1, GradientMode::RectV);
    engine.GradientFill({0, 0, 5, 60}, {1.5F, 1}, vertices, 3, &triangle, 1, GradientMode::Triangle);
}

std::string Document(bool outlines) {
    CSvgEngine engine({80, 60}, {"Title", "Description", kWhite, outlines});
    DrawAll(engine);
    return engine.Text();
}

struct DecimalComma final : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }

    char do_thousands_sep() const override { return '.'; }

    std::string do_grouping() const override { return "\3"; }
};

/// A locale with a decimal comma, of the C library too where one is installed, until the end of the scope.
class CommaLocale {
public:
    CommaLocale() {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German_Germany.1252"}) {
            if (std::setlocale(LC_ALL, name) != nullptr) {
                break;
            }
        }
    }

    ~CommaLocale() {
        std::locale::global(m_before);
        std::setlocale(LC_ALL, "C");
    }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    std::locale m_before = std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
};

} // namespace

TEST(SvgDocument, SameCallsGiveTheSameBytesInEveryLocale) {
    const std::string first = Document(false);
    EXPECT_EQ(Document(false), first);
    const CommaLocale comma;
    EXPECT_EQ(Document(false), first);
}

TEST(SvgDocument, CanBeReadWhileItGrows) {
    CSvgEngine engine({80, 60});
    const SolidBrush brush{kBlack};
    engine.BeginContainer();
    engine.FillRectangle(&brush, 0, 0, 1, 1);
    const std::string half = engine.Text();
    EXPECT_TRUE(half.ends_with("  </g>\n</svg>\n"));
    engine.FillRectangle(&brush, 0, 0, 1, 1);
    EXPECT_EQ(engine.Text().substr(0, half.size() - 14), half.substr(0, half.size() - 14));
}

TEST(SvgDocument, AnswersQueriesFromItsState) {
    CSvgEngine engine({80, 60});
    const Font font{L"宋体", 4.0F};
    engine.TranslateTransform(3, 4, MatrixOrder::Prepend);
    PointF point;
    EXPECT_EQ(engine.TransformPoints(CoordinateSpace::Device, CoordinateSpace::World, &point, 1), Status::Ok);
    EXPECT_EQ(point, (PointF{3, 4}));
    EXPECT_EQ(engine.GetPageUnit(), Unit::Millimeter);
    EXPECT_EQ(engine.MeasureScriptText(L"ab\nc", &font), (SizeF{4, 10}));
    engine.SetClip(RectF{1, 1, 2, 2}, CombineMode::Replace);
    Region clip;
    engine.GetClip(&clip);
    EXPECT_EQ(clip, Region(RectF{1, 1, 2, 2}));
    EXPECT_EQ(engine.SetSmoothingMode(SmoothingMode::None), Status::Ok);
    EXPECT_EQ(engine.GetSmoothingMode(), SmoothingMode::None);
    EXPECT_EQ(engine.SetSmoothingMode(static_cast<SmoothingMode>(9)), Status::InvalidParameter);
}

TEST(SvgDocument, IsWellFormed) {
    if (std::system("xmllint --version >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "xmllint is not installed";
    }
    for (const bool outlines : {false, true}) {
        const std::string name = testing::TempDir() + "millichart-well-formed.svg";
        std::ofstream(name, std::ios::binary) << Document(outlines);
        EXPECT_EQ(std::system(("xmllint --noout \"" + name + "\"").c_str()), 0);
        std::remove(name.c_str());
    }
}

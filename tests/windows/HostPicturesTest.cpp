// What examples/host-win32 prints into a file, puts on the clipboard and draws into files.
#include "Clipboard.h"
#include "Handles.h"
#include "Metafile.h"
#include "Pictures.h"
#include "Printing.h"
#include "support/PngFile.h"

#include <gtest/gtest.h>

namespace {

using namespace host;

/// A pie, 60 mm across, with a legend.
millichart::LaidOutChart Pie() {
    return millichart::ChartDocument::FromText(std::string(millichart::FindChartKind("pie")->Template))
        .LayOut();
}

/// In hundredths of a millimetre.
void ExpectFrame(HENHMETAFILE metafile, float width, float height) {
    ENHMETAHEADER header{};
    ASSERT_NE(GetEnhMetaFileHeader(metafile, sizeof header, &header), 0U);
    EXPECT_NEAR(static_cast<float>(header.rclFrame.right - header.rclFrame.left), width * 100.0F, 1.0F);
    EXPECT_NEAR(static_cast<float>(header.rclFrame.bottom - header.rclFrame.top), height * 100.0F, 1.0F);
    EXPECT_GT(header.nRecords, 20U);
}

} // namespace

TEST(HostPictures, AChartIsPrintedOnA4IntoAFile) {
    const std::wstring file = L"printed.emf";
    ASSERT_TRUE(PrintChartToFile(Pie(), file));
    {
        const KeptMetafile metafile(GetEnhMetaFileW(file.c_str()));
        ExpectFrame(metafile.get(), 210.0F, 297.0F);
    }
    EXPECT_TRUE(DeleteFileW(file.c_str()));
    EXPECT_FALSE(PrintChartToFile(Pie(), L"no such folder\\printed.emf"));
}

TEST(HostPictures, AChartIsCopiedAtItsSizeInBothFormats) {
    const millichart::LaidOutChart chart = Pie();
    const penlode::RectF ink = chart.InkExtent();
    HWND owner =
        CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_TRUE(CopyChart(owner, chart));
    ASSERT_TRUE(OpenClipboard(owner));
    ExpectFrame(static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE)), ink.Width + 2.0F,
                ink.Height + 2.0F);
    HANDLE memory = GetClipboardData(RegisterClipboardFormatW(L"PNG"));
    ASSERT_NE(memory, nullptr);
    const std::string png(static_cast<const char*>(GlobalLock(memory)), GlobalSize(memory));
    GlobalUnlock(memory);
    CloseClipboard();
    DestroyWindow(owner);
    EXPECT_NEAR(PngNumber(png, "pHYs", 0), 11811, 1) << "300 dots per inch";
    EXPECT_NEAR(PngNumber(png, "IHDR", 0), (ink.Width + 2.0F) * 11.811F, 1.0F);
    EXPECT_NEAR(PngNumber(png, "IHDR", 4), (ink.Height + 2.0F) * 11.811F, 1.0F);
}

TEST(HostPictures, AChartIsDrawnIntoFilesOfEachFormatAtItsSize) {
    auto document =
        millichart::ChartDocument::FromText(std::string(millichart::FindChartKind("pie")->Template));
    document.Title = "甲 & 乙";
    const millichart::LaidOutChart chart = document.LayOut();
    const penlode::RectF ink = chart.InkExtent();
    EXPECT_NEAR(PngNumber(PngOf(chart, 5.0F), "IHDR", 0), (ink.Width + 10.0F) * 11.811F, 1.0F);
    ExpectFrame(MetafileOf(EmfOf(chart, 5.0F)).get(), ink.Width + 10.0F, ink.Height + 10.0F);
    EXPECT_NE(SvgOf(document, chart, 5.0F).find("<title>甲 &amp; 乙</title>"), std::string::npos);
    EXPECT_EQ(MetafileOf(EmfOf(chart, 9000.0F)).get(), nullptr) << "a page that is too large";
}

#include "documents/Files.h"

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

/// millichart.exe as a person on Windows runs it.
namespace {

namespace fs = std::filesystem;
using millichart::PathFromUtf8;

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};

using Handle = std::unique_ptr<void, HandleCloser>;

/// A file that a program that is started may use.
Handle Opened(const fs::path& file, DWORD access, DWORD creation) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return Handle(CreateFileW(file.c_str(), access, FILE_SHARE_READ, &inherited, creation,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
}

struct Outcome {
    DWORD Status = 99;
    std::string Output;
    std::string Errors;
};

/// Runs in a folder whose name no code page has.
class WindowsCommand : public testing::Test {
protected:
    WindowsCommand()
        : m_folder(fs::temp_directory_path() /
                   PathFromUtf8("millichart-图表📈-" + std::to_string(GetCurrentProcessId()))) {
        fs::create_directories(m_folder);
        millichart::WriteFile(NameOf("in"), "");
    }

    ~WindowsCommand() override {
        std::error_code error;
        fs::remove_all(m_folder, error);
    }

    std::string NameOf(const std::string& file) const {
        return millichart::Utf8FromPath(m_folder / PathFromUtf8(file));
    }

    std::string Read(const std::string& file) const { return millichart::ReadFile(NameOf(file)).Text; }

    bool Exists(const std::string& file) const { return fs::exists(PathFromUtf8(NameOf(file))); }

    /// The command beside this program; `input` names the file that is the standard input.
    Outcome Run(const std::string& arguments, const std::string& input = "in") const {
        Outcome outcome;
        {
            const Handle in = Opened(m_folder / PathFromUtf8(input), GENERIC_READ, OPEN_EXISTING);
            const Handle out = Opened(m_folder / "out", GENERIC_WRITE, CREATE_ALWAYS);
            const Handle err = Opened(m_folder / "err", GENERIC_WRITE, CREATE_ALWAYS);
            STARTUPINFOW startup{};
            startup.cb = sizeof(startup);
            startup.dwFlags = STARTF_USESTDHANDLES;
            startup.hStdInput = in.get();
            startup.hStdOutput = out.get();
            startup.hStdError = err.get();
            outcome.Status = Started(L"millichart.exe " + PathFromUtf8(arguments).wstring(), startup);
        }
        outcome.Output = Read("out");
        outcome.Errors = Read("err");
        return outcome;
    }

private:
    DWORD Started(std::wstring line, STARTUPINFOW& startup) const {
        DWORD status = 99;
        PROCESS_INFORMATION started{};
        if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, m_folder.c_str(),
                           &startup, &started) != 0) {
            const Handle process(started.hProcess);
            const Handle thread(started.hThread);
            WaitForSingleObject(process.get(), INFINITE);
            GetExitCodeProcess(process.get(), &status);
        }
        return status;
    }

    fs::path m_folder;
};

std::uint32_t BigEndian(const std::string& bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = at; i < at + 4; ++i) {
        number = number << 8U | static_cast<unsigned char>(bytes.at(i));
    }
    return number;
}

} // namespace

TEST_F(WindowsCommand, DrawsEveryFormatUnderChineseNames) {
    ASSERT_EQ(Run("new pie -o 饼📈.chart.json").Status, 0U);
    const Outcome drawn = Run("draw 饼📈.chart.json --page 100x80 --dpi 254");
    EXPECT_EQ(drawn.Status, 0U);
    EXPECT_EQ(drawn.Errors, "");
    const std::string png = Read("饼📈.png");
    ASSERT_TRUE(png.starts_with("\x89PNG\r\n\x1A\n"));
    EXPECT_EQ(BigEndian(png, 16), 1000U);
    EXPECT_EQ(BigEndian(png, 20), 800U);

    EXPECT_EQ(Run("draw 饼📈.chart.json --page 100x80 -o 图.svg").Status, 0U);
    EXPECT_NE(Read("图.svg").find("width=\"100mm\" height=\"80mm\""), std::string::npos);

    EXPECT_EQ(Run("draw 饼📈.chart.json --page 100x80 -o 图.emf").Status, 0U);
    const std::string emf = Read("图.emf");
    ENHMETAHEADER header{};
    ASSERT_GT(emf.size(), sizeof(header));
    std::memcpy(&header, emf.data(), sizeof(header));
    EXPECT_EQ(header.dSignature, static_cast<DWORD>(ENHMETA_SIGNATURE));
    EXPECT_EQ(header.nBytes, emf.size());
    EXPECT_NEAR(header.rclFrame.right - header.rclFrame.left, 10000, 30);
    EXPECT_NEAR(header.rclFrame.bottom - header.rclFrame.top, 8000, 30);
}

TEST_F(WindowsCommand, NamesPrintingForPdf) {
    Run("new pie -o pie.chart.json");
    for (const std::string wish : {"-o 图.pdf", "--format pdf"}) {
        const Outcome refused = Run("draw pie.chart.json " + wish);
        EXPECT_EQ(refused.Status, 2U);
        EXPECT_NE(refused.Errors.find("printed"), std::string::npos) << refused.Errors;
    }
    EXPECT_FALSE(Exists("图.pdf"));
    EXPECT_FALSE(Exists("pie.pdf"));
}

TEST_F(WindowsCommand, StreamsCarryBytes) {
    Run("new curve -o 线.chart.json");
    EXPECT_EQ(Run("new curve").Output, Read("线.chart.json"));
    Run("draw 线.chart.json");
    EXPECT_EQ(Run("draw - --format png", "线.chart.json").Output, Read("线.png"));
    EXPECT_EQ(Run("check 没有📈.json").Output, "没有📈.json: cannot be read: No such file or directory\n"
                                              "没有📈.json: 1 error, 0 warnings, 0 notes\n");
}

TEST_F(WindowsCommand, FindsFilesByWildcardAndFoldersByBackslash) {
    for (const std::string kind : {"pie", "curve"}) {
        Run("new " + kind + " -o 图" + kind + ".chart.json");
    }
    EXPECT_EQ(Run("draw 图*.chart.json -o 画\\廊\\ --format svg").Errors, "");
    EXPECT_TRUE(Exists("画/廊/图pie.svg"));
    EXPECT_TRUE(Exists("画/廊/图curve.svg"));
    EXPECT_EQ(Run("draw 没*.json").Errors.find("millichart: 没*.json: cannot be read"), 0U);
}

TEST_F(WindowsCommand, PutsNothingInTheWayOfWhatIsThere) {
    Run("new pie -o 饼.chart.json");
    const std::string document = Read("饼.chart.json");
    EXPECT_EQ(Run("new curve -o 饼.chart.json").Status, 1U);
    EXPECT_EQ(Run("draw 饼.chart.json -o .\\饼.CHART.JSON --format svg").Errors,
              "millichart: 饼.chart.json: its picture would take the place of 饼.chart.json\n");
    EXPECT_EQ(Read("饼.chart.json"), document);

    Run("draw 饼.chart.json");
    const std::string small = Read("饼.png");
    EXPECT_EQ(Run("draw 饼.chart.json --dpi 200").Status, 0U);
    EXPECT_NE(Read("饼.png"), small);
}

#include "model/Recovery.h"

#include "documents/Files.h"
#include "model/KeptDocument.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <random>
#include <utility>

namespace designer {
namespace {

namespace fs = std::filesystem;

constexpr const char* kKept = ".kept";
constexpr const char* kMark = ".mark";

/// An absolute folder that the environment names; empty without one.
fs::path FolderIn(const char* variable) {
#ifdef _WIN32
    const std::wstring name(variable, variable + std::char_traits<char>::length(variable));
    const wchar_t* const value = _wgetenv(name.c_str());
#else
    const char* const value = std::getenv(variable);
#endif
    const fs::path folder = value == nullptr ? fs::path() : fs::path(value);
    return folder.is_absolute() ? folder : fs::path();
}

fs::path StateFolder() {
#ifdef _WIN32
    fs::path folder = FolderIn("LOCALAPPDATA");
#else
    fs::path folder = FolderIn("XDG_STATE_HOME");
    if (const fs::path home = FolderIn("HOME"); folder.empty() && !home.empty()) {
        folder = home / ".local" / "state";
    }
#endif
    std::error_code error;
    return folder.empty() ? fs::temp_directory_path(error) : folder;
}

std::string FreshName() {
    std::random_device random;
    return penlode::HexDigits(random(), 8, penlode::kLowerDigits) +
           penlode::HexDigits(random(), 8, penlode::kLowerDigits);
}

std::string MarkFile(const std::string& kept) {
    return kept.substr(0, kept.size() - std::char_traits<char>::length(kKept)) + kMark;
}

void Remove(const std::string& file) {
    std::error_code error;
    fs::remove(millichart::PathFromUtf8(file), error);
}

std::uint64_t Now() {
    return static_cast<std::uint64_t>(std::max<std::time_t>(std::time(nullptr), 0));
}

/// "2026-03-15 14:30" by the user's clock.
std::string ClockText(std::uint64_t time) {
    const auto seconds = static_cast<std::time_t>(time);
    std::tm parts{};
#ifdef _WIN32
    const bool isKnown = localtime_s(&parts, &seconds) == 0;
#else
    const bool isKnown = localtime_r(&seconds, &parts) != nullptr;
#endif
    std::array<char, 32> text{};
    return isKnown && std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &parts) > 0 ? text.data()
                                                                                            : "";
}

std::vector<DataTable> TablesOf(const millichart::ChartDocument& document) {
    return designer::TablesOf(document.Content, document.Options.TimeUnit);
}

std::optional<KeptDocument> ReadKeptFile(const std::string& file) {
    const millichart::InputText input = millichart::ReadFile(file, millichart::NamedBy::Document);
    return input.Fault.empty() ? ReadKept(input.Text) : std::nullopt;
}

} // namespace

RecoveryFile::~RecoveryFile() {
    if (m_mark) {
        m_mark.reset();
        Remove(MarkFile(m_file));
    }
}

/// Marked before anybody can find it.
std::string RecoveryFile::Begin() {
    std::string fault = MakePrivateFolder(m_folder);
    if (fault.empty()) {
        m_file = m_folder + "/" + FreshName() + kKept;
        m_mark = std::make_unique<RunMark>(MarkFile(m_file));
    }
    return fault;
}

std::string RecoveryFile::Keep(const Editor& editor) {
    if (editor.IsSaved()) {
        Drop();
        return {};
    }
    if (!m_file.empty() && editor.Revision() == m_kept) {
        return {};
    }
    if (m_file.empty()) {
        if (std::string fault = Begin(); !fault.empty()) {
            return fault;
        }
    }
    KeptDocument kept;
    kept.Time = Now();
    kept.File = editor.File();
    kept.Text = editor.Text();
    kept.TakeTables(editor.Tables(), TablesOf(editor.Document()));
    std::string fault = millichart::WriteFile(m_file, Written(kept));
    if (fault.empty()) {
        m_kept = editor.Revision();
    } else {
        Drop(); // an old copy would be taken for the last one
    }
    return fault;
}

void RecoveryFile::Drop() {
    if (!m_file.empty()) {
        Remove(m_file);
        m_mark.reset();
        Remove(MarkFile(m_file));
        m_file.clear();
    }
}

std::string RecoveryFolder() {
    return millichart::Utf8FromPath(StateFolder() / "millichart");
}

std::vector<Recovered> FindRecovered(const std::string& folder) {
    std::vector<std::pair<std::uint64_t, Recovered>> found;
    std::error_code error;
    fs::directory_iterator entries(millichart::PathFromUtf8(folder), error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const std::string file = millichart::Utf8FromPath(entries->path());
        if (!file.ends_with(kKept) || IsMarkHeld(MarkFile(file))) {
            continue;
        }
        if (const std::optional<KeptDocument> kept = ReadKeptFile(file)) {
            found.push_back({kept->Time, {file, kept->File, ClockText(kept->Time)}});
        }
    }
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
        return a.first > b.first || (a.first == b.first && a.second.Kept < b.second.Kept);
    });
    std::vector<Recovered> recovered;
    for (auto& [time, each] : found) {
        recovered.push_back(std::move(each));
    }
    return recovered;
}

Editor Recover(const Recovered& lost) {
    std::optional<KeptDocument> kept = ReadKeptFile(lost.Kept);
    if (!kept) {
        return Editor(millichart::ChartDocument::FromInput({lost.Kept, "", "cannot be read: it is damaged"}));
    }
    Editor editor(millichart::ChartDocument::FromText(std::move(kept->Text), kept->File), kept->File);
    std::vector<DataTable> tables = editor.Tables();
    kept->PutInto(tables);
    editor.RecoverTables(std::move(tables));
    return editor;
}

void Forget(const Recovered& lost) {
    if (lost.Kept.ends_with(kKept)) {
        Remove(lost.Kept);
        Remove(MarkFile(lost.Kept));
    }
}

} // namespace designer

#pragma once

#include "penlode/Export.h"

#include <cstddef>
#include <string>

namespace penlode {

enum class Severity { Error, Warning, Note };

enum class DiagnosticKind {
    Other,      ///< what only the loader of a document knows to be wrong or doubtful in it
    Unreadable, ///< the stream itself: not JSON, truncated, wrong magic ...; nothing after it was loaded
    WrongType,  ///< a group where a text was expected, and the like; the default was taken
    Refused,    ///< a text that means nothing here; the default was taken
    MissingKey, ///< the default was taken
    UnknownKey, ///< nothing asked for it
};

/// Something to tell people about a file: what a load could not use or did not find, with its place, or what
/// is doubtful. `Text` can be shown as it is. All texts are UTF-8.
struct Diagnostic {
    DiagnosticKind Kind = DiagnosticKind::Other;
    penlode::Severity Severity = penlode::Severity::Error;
    std::string File = {};  ///< empty for the document that is loaded
    std::size_t Line = 0;   ///< from 1; 0 where no line is meant
    std::string Place = {}; ///< keys joined by "/", "line 3, column 7" or "byte 12"; empty for the whole file
    std::string Found = {}; ///< empty where there is nothing to show
    std::string Expected = {}; ///< the default of a missing key, the key probably meant by an unknown one
    std::string Text = {};     ///< a sentence without file and place
    bool IsRest = false;       ///< stands for others like those before it, too many to be kept

    friend bool operator==(const Diagnostic&, const Diagnostic&) = default;
};

/// Texts of a document that appear in diagnostics are no longer than this, in characters.
inline constexpr std::size_t kMaxShown = 60;

/// The most diagnostics of one source that are kept, so that a file made of nothing but faults does not fill
/// the memory with them.
inline constexpr std::size_t kMaxDiagnostics = 10000;

/// At most kMaxShown characters of a UTF-8 text; a cut is marked by "…".
PENLODE_API std::string Shortened(std::string text);

/// An error, "found ..., expected ...".
PENLODE_API Diagnostic Error(std::string place, std::string found, std::string expected);
/// An error that a sentence says better.
PENLODE_API Diagnostic Error(std::string place, std::string text);
/// A doubt, "found ..., expected ...".
PENLODE_API Diagnostic Warning(std::string place, std::string found, std::string expected);
PENLODE_API Diagnostic Warning(std::string place, std::string text);
PENLODE_API Diagnostic Note(std::string place, std::string text);
/// What streams meet: missing keys are notes, unknown keys warnings, and the rest errors, each in the words
/// of its kind.
PENLODE_API Diagnostic StreamProblem(DiagnosticKind kind, std::string place, std::string found,
                                     std::string expected);

} // namespace penlode

#include "penlode/streams/Diagnostic.h"

#include "penlode/text/Utf8.h"

#include <utility>

namespace penlode {
namespace {

std::string MissingText(const std::string& taken) {
    if (taken.empty()) {
        return "missing, taken as empty";
    }
    if (taken == "a group") {
        return "missing, every key in it takes its default";
    }
    return taken == "an empty list" ? "missing, an empty list is taken"
                                    : "missing, \"" + taken + "\" is taken";
}

std::string UnknownText(const std::string& guess) {
    return "an unknown key, ignored" + (guess.empty() ? "" : "; is \"" + guess + "\" meant?");
}

Diagnostic Compared(Severity severity, std::string place, std::string found, std::string expected) {
    std::string text = "found " + found + ", expected " + expected;
    return {DiagnosticKind::Other, severity,       "", 0, std::move(place), std::move(found),
            std::move(expected),   std::move(text)};
}

Diagnostic Said(Severity severity, std::string place, std::string text) {
    return {DiagnosticKind::Other, severity, "", 0, std::move(place), "", "", std::move(text)};
}

} // namespace

std::string Shortened(std::string text) {
    std::size_t characters = 0;
    std::size_t cut = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        characters += IsUtf8Continuation(text[i]) ? 0 : 1;
        if (characters < kMaxShown) {
            cut = i + 1;
        } else if (characters > kMaxShown) {
            return text.substr(0, cut) + "…";
        }
    }
    return text;
}

Diagnostic Error(std::string place, std::string found, std::string expected) {
    return Compared(Severity::Error, std::move(place), std::move(found), std::move(expected));
}

Diagnostic Error(std::string place, std::string text) {
    return Said(Severity::Error, std::move(place), std::move(text));
}

Diagnostic Warning(std::string place, std::string found, std::string expected) {
    return Compared(Severity::Warning, std::move(place), std::move(found), std::move(expected));
}

Diagnostic Warning(std::string place, std::string text) {
    return Said(Severity::Warning, std::move(place), std::move(text));
}

Diagnostic Note(std::string place, std::string text) {
    return Said(Severity::Note, std::move(place), std::move(text));
}

Diagnostic StreamProblem(DiagnosticKind kind, std::string place, std::string found, std::string expected) {
    Diagnostic problem = Error(std::move(place), std::move(found), std::move(expected));
    problem.Kind = kind;
    if (kind == DiagnosticKind::MissingKey) {
        problem.Severity = Severity::Note;
        problem.Text = MissingText(problem.Expected);
    } else if (kind == DiagnosticKind::UnknownKey) {
        problem.Severity = Severity::Warning;
        problem.Text = UnknownText(problem.Expected);
    }
    return problem;
}

} // namespace penlode

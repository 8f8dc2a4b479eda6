#pragma once

#include "penlode/streams/ISerialize.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <string>
#include <vector>

/// A positional stream that only saves, and lists what it was given: one value a line, its kind first.
class ListingStream final : public penlode::ISerialize {
public:
    const std::string& Text() const { return m_text; }

    bool IsSaving() const override { return true; }

    void Write(penlode::Color value) override { Line("colour", value); }

    void Write(const std::string& value) override { Add("text", penlode::CStringUtil::AnsiToUtf8(value)); }

    void Write(float value) override { Line("float", value); }

    void Write(std::int32_t value) override { Line("int", value); }

    void Write(const std::vector<std::string>& values) override {
        std::string all;
        for (const std::string& value : values) {
            all += "[" + penlode::CStringUtil::AnsiToUtf8(value) + "]";
        }
        Add("list", all);
    }

    void Write(const penlode::Font* font) override {
        Line("font",
             font == nullptr ? penlode::Owned<penlode::Font>() : penlode::Owned<penlode::Font>(*font));
    }

    void Write(const penlode::Pen* pen) override {
        Line("pen", pen == nullptr ? penlode::Owned<penlode::Pen>() : penlode::Owned<penlode::Pen>(*pen));
    }

    void Read(penlode::Color&) override {}

    void Read(std::string&) override {}

    void Read(float&) override {}

    void Read(std::int32_t&) override {}

    void Read(std::vector<std::string>&) override {}

    void Read(penlode::Font**) override {}

    void Read(penlode::Pen**) override {}

    bool Failed() const override { return false; }

    void Refuse(const std::string&, const std::string&) override {}

private:
    template <class T> void Line(const char* kind, T value) {
        std::string text;
        penlode::ser_evaluate(value, text, true);
        Add(kind, penlode::CStringUtil::AnsiToUtf8(text));
    }

    void Add(const char* kind, const std::string& text) { m_text += std::string(kind) + " " + text + "\n"; }

    std::string m_text;
};

#pragma once

#include "penlode/Font.h"

/// Texts and their sizes in mm as Pango measures them, in faces that every test machine has.
struct KeptMeasure {
    const wchar_t* Family;
    float Size;
    std::int32_t Style;
    const wchar_t* Text;
    float Width;
    float Height;

    penlode::Font Face() const { return {Family, Size, Style}; }
};

inline constexpr KeptMeasure kKeptMeasures[] = {
    {L"Liberation Sans", 4.0F, 0, L"Depth (m) 12345.678", 37.8008F, 4.46875F},
    {L"Liberation Sans", 2.4F, 1, L"Number of bars", 17.73633F, 2.68125F},
    {L"Liberation Serif", 9.0F, 2, L"3.5 % of 1987", 50.4976F, 9.966797F},
    {L"Noto Serif CJK SC", 4.0F, 0, L"深度(m) 12345.678", 34.596F, 5.0F},
    {L"Noto Serif CJK SC", 2.5F, 1, L"粗钢产量前十的国家（百万吨）", 35.0F, 3.125F},
};

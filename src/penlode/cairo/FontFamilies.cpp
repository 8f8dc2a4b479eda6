#include "penlode/cairo/PangoText.h"
#include "penlode/text/FontFace.h"
#include "penlode/text/StringUtil.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <fontconfig/fontconfig.h>
#include <initializer_list>
#include <iterator>

namespace penlode {
namespace {

/// Names by which documents ask for a typeface, and the faces that may stand for it, best first. All UTF-8.
struct Companions {
    std::initializer_list<const char8_t*> Names;
    std::initializer_list<const char8_t*> Faces;
};

/// Song and Ming types, sans-serifs, the brush types, and the Latin three. Each list ends in faces that have
/// Chinese, so that a mixed text does not change its kind halfway.
const Companions kCompanions[] = {
    {{u8"宋体", u8"SimSun", u8"新宋体", u8"NSimSun"},
     {u8"SimSun", u8"NSimSun", u8"Noto Serif CJK SC", u8"Source Han Serif SC", u8"AR PL UMing CN",
      u8"serif"}},
    {{u8"黑体", u8"SimHei"},
     {u8"SimHei", u8"Noto Sans CJK SC", u8"Source Han Sans SC", u8"WenQuanYi Zen Hei", u8"sans-serif"}},
    {{u8"微软雅黑", u8"Microsoft YaHei"},
     {u8"Microsoft YaHei", u8"Noto Sans CJK SC", u8"Source Han Sans SC", u8"WenQuanYi Zen Hei",
      u8"sans-serif"}},
    {{u8"楷体", u8"KaiTi", u8"楷体_GB2312"},
     {u8"KaiTi", u8"AR PL UKai CN", u8"Noto Serif CJK SC", u8"AR PL UMing CN", u8"serif"}},
    {{u8"仿宋", u8"FangSong", u8"仿宋_GB2312"},
     {u8"FangSong", u8"Noto Serif CJK SC", u8"AR PL UMing CN", u8"serif"}},
    {{u8"Arial", u8"Helvetica"},
     {u8"Arial", u8"Liberation Sans", u8"DejaVu Sans", u8"Noto Sans CJK SC", u8"WenQuanYi Zen Hei",
      u8"sans-serif"}},
    {{u8"Times New Roman", u8"Times"},
     {u8"Times New Roman", u8"Liberation Serif", u8"DejaVu Serif", u8"Noto Serif CJK SC", u8"AR PL UMing CN",
      u8"serif"}},
    {{u8"Courier New", u8"Courier"},
     {u8"Courier New", u8"Liberation Mono", u8"DejaVu Sans Mono", u8"Noto Sans Mono CJK SC",
      u8"WenQuanYi Zen Hei Mono", u8"monospace"}},
};

std::string Element(const char* name, const char8_t* text) {
    return std::string("<") + name + ">" + reinterpret_cast<const char*>(text) + "</" + name + ">";
}

/// A rule that puts the faces where the name stands.
std::string Rule(const char8_t* name, const Companions& companions) {
    std::string rule = R"(<match target="pattern"><test name="family">)" + Element("string", name) +
                       R"(</test><edit name="family" mode="assign" binding="same">)";
    for (const char8_t* face : companions.Faces) {
        rule += Element("string", face);
    }
    return rule + "</edit></match>";
}

/// Embedded bitmaps would replace a small text's outlines, but only where it is not turned.
std::string OwnRules() {
    std::string rules = "<fontconfig>";
    for (const Companions& companions : kCompanions) {
        for (const char8_t* name : companions.Names) {
            rules += Rule(name, companions);
        }
    }
    return rules + R"(<match target="font"><edit name="embeddedbitmap" mode="assign">)"
                   R"(<bool>false</bool></edit></match></fontconfig>)";
}

FcConfig* BuildConfiguration() {
    FcConfig* configuration = FcConfigCreate();
    if (configuration != nullptr) {
        const std::string rules = OwnRules();
        FcConfigParseAndLoadFromMemory(configuration, reinterpret_cast<const FcChar8*>(rules.c_str()),
                                       FcFalse);
        FcConfigParseAndLoad(configuration, nullptr, FcFalse);
        FcConfigBuildFonts(configuration);
    }
    return configuration;
}

} // namespace

_FcConfig* FontConfiguration() {
    static FcConfig* const configuration = BuildConfiguration();
    return configuration;
}

std::wstring MissingCharacters(std::wstring_view text, const Font& font) {
    std::wstring missing;
    for (const std::wstring_view line : SplitLines(text)) {
        for (const std::wstring& character : UnknownCharacters(line, font)) {
            if (missing.find(character) == std::wstring::npos) {
                missing += character;
            }
        }
    }
    return missing;
}

/// The lists end in names of any face of a kind, for which any will do.
bool HasStandIns(const std::wstring& family) {
    const std::string name = CStringUtil::WideToUtf8(family);
    const auto isName = [&name](const char8_t* known) {
        return FcStrCmpIgnoreCase(reinterpret_cast<const FcChar8*>(known),
                                  reinterpret_cast<const FcChar8*>(name.c_str())) == 0;
    };
    return std::any_of(std::begin(kCompanions), std::end(kCompanions),
                       [&isName](const Companions& companions) {
                           return isName(*std::prev(companions.Faces.end())) ||
                                  std::any_of(companions.Names.begin(), companions.Names.end(), isName);
                       });
}

std::wstring ResolvedFamily(const std::wstring& family) {
    return FaceOf({family, 4.0F, FontStyle::Regular});
}

} // namespace penlode

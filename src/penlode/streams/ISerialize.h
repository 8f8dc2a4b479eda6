#pragma once

#include "penlode/Color.h"
#include "penlode/Export.h"
#include "penlode/Font.h"
#include "penlode/Pen.h"

#include <cstdint>
#include <string>
#include <vector>

namespace penlode {

/// A positional stream: values in a fixed order, without names. One routine writes and reads a record, asking
/// which way the stream goes.
///
/// A read that the stream cannot satisfy leaves its target as it was and fails the stream; every later read
/// then leaves its target too. Fonts and pens are read into a pointer that is null on entry and then belong
/// to the caller; a null one is written as such and read back as null.
class PENLODE_API ISerialize {
public:
    virtual ~ISerialize() = default;

    virtual bool IsSaving() const = 0;

    virtual void Write(Color value) = 0;
    virtual void Write(const std::string& value) = 0;
    virtual void Write(float value) = 0;
    virtual void Write(std::int32_t value) = 0;
    virtual void Write(const std::vector<std::string>& values) = 0;

    virtual void Read(Color& value) = 0;
    virtual void Read(std::string& value) = 0;
    virtual void Read(float& value) = 0;
    virtual void Read(std::int32_t& value) = 0;
    virtual void Read(std::vector<std::string>& values) = 0;

    virtual void Write(const Font* font) = 0;
    virtual void Write(const Pen* pen) = 0;
    virtual void Read(Font** font) = 0;
    virtual void Read(Pen** pen) = 0;

    /// True after a read that could not be satisfied. Loops over a count that was read stop here.
    virtual bool Failed() const = 0;
    /// Told when what was read last means nothing: fails the stream. UTF-8.
    virtual void Refuse(const std::string& found, const std::string& expected) = 0;
};

} // namespace penlode

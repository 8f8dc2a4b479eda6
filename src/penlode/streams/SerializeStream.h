#pragma once

#include "penlode/Color.h"
#include "penlode/Export.h"
#include "penlode/Font.h"
#include "penlode/Pen.h"

#include <string>
#include <vector>

namespace penlode {

/// A keyed stream: every value is a text under a tag, records are named groups, and on load a missing tag
/// yields the value's default. Tags and texts are narrow (GBK).
///
/// The order of the virtual operations is part of the interface.
class PENLODE_API CSerializeStream {
public:
    /// A list of texts.
    virtual void Ser(const std::string& tag, std::vector<std::string>& values,
                     const std::vector<std::string>& defaults) = 0;
    virtual void Ser(const std::string& tag, std::string& value, const std::string& defaultValue) = 0;
    /// The number of entries in the current group.
    virtual int GetSize() = 0;
    /// Opens a named group inside the current one; false when a load finds none. Either way it is open, an
    /// empty one if need be, until the Pop that belongs to it. The index tells groups of one name apart; −1
    /// is the only one.
    virtual bool Push(const std::string& tag, int index) = 0;
    virtual void Pop() = 0;
    virtual bool IsSaving() const = 0;
    virtual std::string GetTag() = 0;
    /// The factory of a host's own objects, which no record here uses; null.
    virtual void* GetObjectCreator() = 0;
    virtual std::string GetFullFileName() = 0;
    virtual ~CSerializeStream();
    virtual bool Push(const char* tag, int index) = 0;
    /// Told when a text under a tag of the current group means nothing to whoever loads it, so that a default
    /// stays.
    virtual void Refuse(const std::string& tag, const std::string& found, const std::string& expected);

    /// The text forms of TextForms.h. On load `*font` and `*pen` are replaced by a new object that belongs to
    /// the caller, who has freed the old one; a saved null comes back as null.
    void Ser(const std::string& tag, Color& value, Color defaultValue);
    void Ser(const std::string& tag, Font** font, const Font& defaultFont);
    void Ser(const std::string& tag, Pen** pen, const Pen& defaultPen);
};

} // namespace penlode
